#include "app/dialogs/preferences_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <initializer_list>
#include <string_view>

#include "app/dialogs/ui_text.h"
#include "session/theme.h"

namespace brinto::dialogs {
namespace {

// A list named by the caption beside it, so it can be found by that caption (in English, whatever
// the language shown).
QComboBox* Choices(const char* caption, std::initializer_list<const char*> entries) {
    auto* list = new QComboBox;
    list->setObjectName(QString::fromUtf8(caption));
    for (const char* entry : entries) list->addItem(Ui::tr(entry));
    return list;
}

QComboBox* DigitChoices() {
    auto* list = Choices("digits", {QT_TRANSLATE_NOOP("Ui", "All")});
    for (int n = 0; n <= 12; ++n) list->addItem(QString::number(n));
    return list;
}

// `b` named by a caption of its own, for a list whose entries ("4", "All") say nothing alone.
QHBoxLayout* BesideNamed(QWidget* a, const char* caption, QWidget* b, const char* tip) {
    auto* row = new QHBoxLayout;
    row->addWidget(a, 1);
    auto* label = new QLabel(Ui::tr(caption));
    label->setBuddy(b);
    row->addWidget(label);
    row->addWidget(b);
    b->setToolTip(Ui::tr(tip));
    label->setToolTip(b->toolTip());
    return row;
}

QHBoxLayout* Beside(QWidget* a, QWidget* b) {
    auto* row = new QHBoxLayout;
    row->addWidget(a, 1);
    row->addWidget(b);
    return row;
}

// A page: its form, then a "Default" button at the bottom that resets the page.
template <typename Reset>
QWidget* Page(QFormLayout* form, QWidget* owner, Reset reset) {
    auto* page = new QWidget(owner);
    auto* column = new QVBoxLayout(page);
    column->addLayout(form);
    column->addStretch(1);
    auto* defaults = new QPushButton(Ui::tr("Default"), page);
    QObject::connect(defaults, &QPushButton::clicked, owner, reset);
    column->addWidget(defaults, 0, Qt::AlignLeft);
    return page;
}

}  // namespace

PreferencesDialog::PreferencesDialog(Session& session, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_session(session), m_pages(new QTabWidget(this)) {
    setWindowTitle(Ui::tr("Preferences"));
    m_pages->addTab(GeneralPage(), Ui::tr("General"));
    m_pages->addTab(DisplayPage(), Ui::tr("Display"));
    m_pages->addTab(KeyboardPage(), Ui::tr("Keyboard"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_pages);
    column->addWidget(MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "prefs", help));
    Load();
}

QWidget* PreferencesDialog::GeneralPage() {
    m_format =
        Choices("Format:", {QT_TRANSLATE_NOOP("Ui", "Standard"), QT_TRANSLATE_NOOP("Ui", "Fixed"),
                            QT_TRANSLATE_NOOP("Ui", "Scientific"), QT_TRANSLATE_NOOP("Ui", "Engineering")});
    m_digits = DigitChoices();
    m_input = Choices("Input:", {QT_TRANSLATE_NOOP("Ui", "Simple"), QT_TRANSLATE_NOOP("Ui", "Precedence"),
                                 QT_TRANSLATE_NOOP("Ui", "RPN")});
    m_depth = Choices("depth", {"4", "8", "12", "16", "20"});
    m_integer = Choices(
        "Integer:", {QT_TRANSLATE_NOOP("Ui", "8-bit unsigned"), QT_TRANSLATE_NOOP("Ui", "8-bit signed"),
                     QT_TRANSLATE_NOOP("Ui", "16-bit unsigned"), QT_TRANSLATE_NOOP("Ui", "16-bit signed"),
                     QT_TRANSLATE_NOOP("Ui", "32-bit unsigned"), QT_TRANSLATE_NOOP("Ui", "32-bit signed")});
    m_shift = Choices("Shift:", {QT_TRANSLATE_NOOP("Ui", "Standard"), QT_TRANSLATE_NOOP("Ui", "Sticky"),
                                 QT_TRANSLATE_NOOP("Ui", "Locking")});
    m_action = Choices("Action:",
                       {QT_TRANSLATE_NOOP("Ui", "Default"), QT_TRANSLATE_NOOP("Ui", "Do nothing"),
                        QT_TRANSLATE_NOOP("Ui", "Shift keyboard"), QT_TRANSLATE_NOOP("Ui", "Repeat last key"),
                        QT_TRANSLATE_NOOP("Ui", "Open last form"), QT_TRANSLATE_NOOP("Ui", "Play macro")});
    m_hundredRegisters = new QCheckBox(Ui::tr("100 Registers"));
    m_longDate = new QCheckBox(Ui::tr("Long Date"));
    m_backspaceDrops = new QCheckBox(Ui::tr("Backspace Drops"));
    m_commaRadix = new QCheckBox(Ui::tr("Comma Radix"));
    auto* form = new QFormLayout;
    form->addRow(
        Ui::tr("Format:"),
        BesideNamed(m_format, QT_TRANSLATE_NOOP("Ui", "Digits:"), m_digits,
                    QT_TRANSLATE_NOOP("Ui", "How many digits the number format shows; All: every digit")));
    form->addRow(Ui::tr("Input:"),
                 BesideNamed(m_input, QT_TRANSLATE_NOOP("Ui", "Stack:"), m_depth,
                             QT_TRANSLATE_NOOP("Ui", "How many levels the operating stack has")));
    form->addRow(Ui::tr("Integer:"), m_integer);
    form->addRow(Ui::tr("Shift:"), m_shift);
    form->addRow(Ui::tr("Action:"), m_action);
    form->addRow(Beside(m_hundredRegisters, m_longDate));
    form->addRow(Beside(m_backspaceDrops, m_commaRadix));
    return Page(form, this, [this] { GeneralDefaults(); });
}

QWidget* PreferencesDialog::DisplayPage() {
    m_tapAreas = new QButtonGroup(this);
    auto* areas = new QHBoxLayout;
    int id = 0;
    for (const char* caption : {QT_TRANSLATE_NOOP("Ui", "Left"), QT_TRANSLATE_NOOP("Ui", "Center"),
                                QT_TRANSLATE_NOOP("Ui", "Right")}) {
        auto* button = new QRadioButton(Ui::tr(caption));
        m_tapAreas->addButton(button, id++);
        areas->addWidget(button);
    }
    connect(m_tapAreas, &QButtonGroup::idClicked, this, &PreferencesDialog::ShowTapArea);
    m_tapTarget =
        Choices("Tap:", {QT_TRANSLATE_NOOP("Ui", "Preferences"), QT_TRANSLATE_NOOP("Ui", "Keyboard"),
                         QT_TRANSLATE_NOOP("Ui", "Stack"), QT_TRANSLATE_NOOP("Ui", "User Registers"),
                         QT_TRANSLATE_NOOP("Ui", "Constants"), QT_TRANSLATE_NOOP("Ui", "TVM"),
                         QT_TRANSLATE_NOOP("Ui", "Amortization"), QT_TRANSLATE_NOOP("Ui", "Cash Flow"),
                         QT_TRANSLATE_NOOP("Ui", "Statistical")});
    m_theme = new QComboBox;
    m_theme->setObjectName(QStringLiteral("Theme:"));
    const ThemeSet themes;
    for (const Theme& theme : themes.Themes()) m_theme->addItem(ThemeText(theme.name), theme.id);
    m_lines = Choices("Lines:", {QT_TRANSLATE_NOOP("Ui", "Default"), "1", "2", "3", "4"});
    m_basicAlso = new QCheckBox(Ui::tr("Basic also"));
    m_font = Choices("Font:", {QT_TRANSLATE_NOOP("Ui", "Default"), QT_TRANSLATE_NOOP("Ui", "Small"),
                               QT_TRANSLATE_NOOP("Ui", "Medium"), QT_TRANSLATE_NOOP("Ui", "Large")});
    m_border =
        Choices("Border:", {QT_TRANSLATE_NOOP("Ui", "Default"), QT_TRANSLATE_NOOP("Ui", "None"),
                            QT_TRANSLATE_NOOP("Ui", "Display"), QT_TRANSLATE_NOOP("Ui", "Calculator")});
    m_quickSwitch = new QCheckBox(Ui::tr("Quick Switch"));
    m_clearType = new QCheckBox(QStringLiteral("ClearType"));
    auto* colors = new QPushButton(Ui::tr("Colors..."));
    connect(colors, &QPushButton::clicked, this, &PreferencesDialog::colorsRequested);
    auto* form = new QFormLayout;
    form->addRow(Ui::tr("Tap:"), areas);
    form->addRow(QString(), m_tapTarget);
    form->addRow(Ui::tr("Theme:"), Beside(m_theme, colors));
    form->addRow(Ui::tr("Lines:"), Beside(m_lines, m_basicAlso));
    form->addRow(Ui::tr("Font:"), m_font);
    form->addRow(Ui::tr("Border:"), m_border);
    form->addRow(Beside(m_quickSwitch, m_clearType));
    return Page(form, this, [this] { DisplayDefaults(); });
}

QWidget* PreferencesDialog::KeyboardPage() {
    m_show = Choices("Show:", {QT_TRANSLATE_NOOP("Ui", "Default"), QT_TRANSLATE_NOOP("Ui", "None"),
                               QT_TRANSLATE_NOOP("Ui", "Above"), QT_TRANSLATE_NOOP("Ui", "Within")});
    m_size = Choices("Size:", {QT_TRANSLATE_NOOP("Ui", "Default"), QT_TRANSLATE_NOOP("Ui", "Small"),
                               QT_TRANSLATE_NOOP("Ui", "Medium"), QT_TRANSLATE_NOOP("Ui", "Large")});
    m_keys = Choices("Keys:", {QT_TRANSLATE_NOOP("Ui", "Default"), QT_TRANSLATE_NOOP("Ui", "Static"),
                               QT_TRANSLATE_NOOP("Ui", "Swapped"), QT_TRANSLATE_NOOP("Ui", "Zoomed")});
    m_color =
        Choices("Color:", {QT_TRANSLATE_NOOP("Ui", "Default"), QT_TRANSLATE_NOOP("Ui", "Shift"),
                           QT_TRANSLATE_NOOP("Ui", "Foreground"), QT_TRANSLATE_NOOP("Ui", "Background")});
    m_active =
        Choices("Active:", {QT_TRANSLATE_NOOP("Ui", "Default"), QT_TRANSLATE_NOOP("Ui", "Shift"),
                            QT_TRANSLATE_NOOP("Ui", "Foreground"), QT_TRANSLATE_NOOP("Ui", "Swapped")});
    m_shadow = Choices("Shadow:", {QT_TRANSLATE_NOOP("Ui", "Default"), QT_TRANSLATE_NOOP("Ui", "None"),
                                   QT_TRANSLATE_NOOP("Ui", "Normal"), QT_TRANSLATE_NOOP("Ui", "Strong"),
                                   QT_TRANSLATE_NOOP("Ui", "Heavy")});
    auto* form = new QFormLayout;
    form->addRow(Ui::tr("Show:"), m_show);
    form->addRow(Ui::tr("Size:"), m_size);
    form->addRow(Ui::tr("Keys:"), m_keys);
    form->addRow(Ui::tr("Color:"), m_color);
    form->addRow(Ui::tr("Active:"), m_active);
    form->addRow(Ui::tr("Shadow:"), m_shadow);
    return Page(form, this, [this] { KeyboardDefaults(); });
}

void PreferencesDialog::Load() {
    const Preferences& p = m_session.engine().prefs;
    m_format->setCurrentIndex(p.FormatListIndex());
    m_digits->setCurrentIndex(p.DigitField());
    m_input->setCurrentIndex(static_cast<int>(p.Method()));
    m_depth->setCurrentIndex(p.StackDepthListIndex());
    m_integer->setCurrentIndex(p.IntegerFormat());
    m_shift->setCurrentIndex(static_cast<int>(p.Shift()));
    m_action->setCurrentIndex(static_cast<int>(p.Action()));
    m_hundredRegisters->setChecked(p.HundredRegisters());
    m_longDate->setChecked(p.LongDate());
    m_backspaceDrops->setChecked(p.BackspaceDrops());
    m_commaRadix->setChecked(p.CommaRadix());

    for (const TapArea area : {TapArea::Left, TapArea::Center, TapArea::Right}) {
        m_tapIndex[static_cast<int>(area)] = static_cast<int>(p.Tap(area));
    }
    m_tapArea = static_cast<int>(TapArea::Left);
    m_tapAreas->button(m_tapArea)->setChecked(true);
    m_tapTarget->setCurrentIndex(m_tapIndex[m_tapArea]);
    const int theme = m_theme->findData(p.Theme());
    m_theme->setCurrentIndex(theme < 0 ? 0 : theme);
    m_lines->setCurrentIndex(p.DisplayLines());
    m_basicAlso->setChecked(p.BasicAlso());
    m_font->setCurrentIndex(p.DisplayFont());
    m_border->setCurrentIndex(p.Border());
    m_quickSwitch->setChecked(p.QuickSwitch());
    m_clearType->setChecked(p.ClearType());

    m_show->setCurrentIndex(p.KeyboardShow());
    m_size->setCurrentIndex(p.KeySize());
    m_keys->setCurrentIndex(p.KeyLabels());
    m_color->setCurrentIndex(p.KeyColor());
    m_active->setCurrentIndex(p.ActiveKey());
    m_shadow->setCurrentIndex(p.KeyShadow());
    m_pages->setCurrentIndex(0);
}

// Switching areas first keeps the list's choice for the area that was checked.
void PreferencesDialog::ShowTapArea(int area) {
    m_tapIndex[m_tapArea] = m_tapTarget->currentIndex();
    m_tapArea = area;
    m_tapTarget->setCurrentIndex(m_tapIndex[area]);
}

Preferences PreferencesDialog::Edited() const {
    Preferences p = m_session.engine().prefs;
    p.SetFormatListIndex(m_format->currentIndex());
    p.SetDigitField(m_digits->currentIndex());
    p.SetMethod(static_cast<InputMethod>(m_input->currentIndex()));
    p.SetStackDepthListIndex(m_depth->currentIndex());
    p.SetIntegerFormat(m_integer->currentIndex());
    p.SetShift(static_cast<ShiftMode>(m_shift->currentIndex()));
    p.SetAction(static_cast<ActionChoice>(m_action->currentIndex()));
    p.SetHundredRegisters(m_hundredRegisters->isChecked());
    p.SetLongDate(m_longDate->isChecked());
    p.SetBackspaceDrops(m_backspaceDrops->isChecked());
    p.SetCommaRadix(m_commaRadix->isChecked());

    std::array<int, 3> taps = m_tapIndex;
    taps[m_tapArea] = m_tapTarget->currentIndex();
    for (const TapArea area : {TapArea::Left, TapArea::Center, TapArea::Right}) {
        p.SetTap(area, static_cast<TapTarget>(taps[static_cast<int>(area)]));
    }
    p.SetTheme(static_cast<u16>(m_theme->currentData().toUInt()));
    p.SetDisplayLines(m_lines->currentIndex());
    p.SetBasicAlso(m_basicAlso->isChecked());
    p.SetDisplayFont(m_font->currentIndex());
    p.SetBorder(m_border->currentIndex());
    p.SetQuickSwitch(m_quickSwitch->isChecked());
    p.SetClearType(m_clearType->isChecked());

    p.SetKeyboardShow(m_show->currentIndex());
    p.SetKeySize(m_size->currentIndex());
    p.SetKeyLabels(m_keys->currentIndex());
    p.SetKeyColor(m_color->currentIndex());
    p.SetActiveKey(m_active->currentIndex());
    p.SetKeyShadow(m_shadow->currentIndex());
    return p;
}

void PreferencesDialog::GeneralDefaults() {
    m_format->setCurrentIndex(0);
    m_digits->setCurrentIndex(0);
    m_input->setCurrentIndex(static_cast<int>(InputMethod::Simple));
    m_depth->setCurrentIndex(0);
    m_integer->setCurrentIndex(5);  // "32-bit signed"
    m_shift->setCurrentIndex(static_cast<int>(ShiftMode::Standard));
    m_action->setCurrentIndex(static_cast<int>(ActionChoice::Default));
    m_hundredRegisters->setChecked(true);
    m_longDate->setChecked(false);
    m_backspaceDrops->setChecked(false);
    m_commaRadix->setChecked(false);
}

void PreferencesDialog::DisplayDefaults() {
    m_tapIndex.fill(0);
    m_tapTarget->setCurrentIndex(0);
    m_theme->setCurrentIndex(m_theme->findData(theme_id::DefaultColor));
    m_lines->setCurrentIndex(0);
    m_basicAlso->setChecked(false);
    m_font->setCurrentIndex(0);
    m_border->setCurrentIndex(0);
    m_quickSwitch->setChecked(false);
    m_clearType->setChecked(false);
}

void PreferencesDialog::KeyboardDefaults() {
    for (QComboBox* list : {m_show, m_size, m_keys, m_color, m_active, m_shadow}) list->setCurrentIndex(0);
}

}  // namespace brinto::dialogs
