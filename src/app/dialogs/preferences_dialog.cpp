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

#include "session/theme.h"

namespace brinto::dialogs {
namespace {


// A list named by the caption beside it, so it can be found by that caption.
QComboBox* Choices(const char* caption, std::initializer_list<const char*> entries) {
    auto* list = new QComboBox;
    list->setObjectName(QString::fromUtf8(caption));
    for (const char* entry : entries) list->addItem(QString::fromUtf8(entry));
    return list;
}

QComboBox* DigitChoices() {
    auto* list = Choices("digits", {"All"});
    for (int n = 0; n <= 12; ++n) list->addItem(QString::number(n));
    return list;
}

// `b` named by a caption of its own, for a list whose entries ("4", "All") say nothing alone.
QHBoxLayout* BesideNamed(QWidget* a, const char* caption, QWidget* b, const char* tip) {
    auto* row = new QHBoxLayout;
    row->addWidget(a, 1);
    auto* label = new QLabel(QString::fromUtf8(caption));
    label->setBuddy(b);
    row->addWidget(label);
    row->addWidget(b);
    b->setToolTip(QString::fromUtf8(tip));
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
    auto* defaults = new QPushButton(QStringLiteral("Default"), page);
    QObject::connect(defaults, &QPushButton::clicked, owner, reset);
    column->addWidget(defaults, 0, Qt::AlignLeft);
    return page;
}

}  // namespace

PreferencesDialog::PreferencesDialog(Session& session, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_session(session), m_pages(new QTabWidget(this)) {
    setWindowTitle(QStringLiteral("Preferences"));
    m_pages->addTab(GeneralPage(), QStringLiteral("General"));
    m_pages->addTab(DisplayPage(), QStringLiteral("Display"));
    m_pages->addTab(KeyboardPage(), QStringLiteral("Keyboard"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_pages);
    column->addWidget(MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "prefs", help));
    Load();
}

QWidget* PreferencesDialog::GeneralPage() {
    m_format = Choices("Format:", {"Standard", "Fixed", "Scientific", "Engineering"});
    m_digits = DigitChoices();
    m_input = Choices("Input:", {"Simple", "Precedence", "RPN"});
    m_depth = Choices("depth", {"4", "8", "12", "16", "20"});
    m_integer = Choices("Integer:", {"8-bit unsigned", "8-bit signed", "16-bit unsigned", "16-bit signed",
                         "32-bit unsigned", "32-bit signed"});
    m_shift = Choices("Shift:", {"Standard", "Sticky", "Locking"});
    m_action = Choices("Action:", {"Default", "Do nothing", "Shift keyboard", "Repeat last key", "Open last form",
                        "Play macro"});
    m_hundredRegisters = new QCheckBox(QStringLiteral("100 Registers"));
    m_longDate = new QCheckBox(QStringLiteral("Long Date"));
    m_backspaceDrops = new QCheckBox(QStringLiteral("Backspace Drops"));
    m_commaRadix = new QCheckBox(QStringLiteral("Comma Radix"));
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Format:"),
                 BesideNamed(m_format, "Digits:", m_digits, "How many digits the number format shows; All: every digit"));
    form->addRow(QStringLiteral("Input:"),
                 BesideNamed(m_input, "Stack:", m_depth, "How many levels the operating stack has"));
    form->addRow(QStringLiteral("Integer:"), m_integer);
    form->addRow(QStringLiteral("Shift:"), m_shift);
    form->addRow(QStringLiteral("Action:"), m_action);
    form->addRow(Beside(m_hundredRegisters, m_longDate));
    form->addRow(Beside(m_backspaceDrops, m_commaRadix));
    return Page(form, this, [this] { GeneralDefaults(); });
}

QWidget* PreferencesDialog::DisplayPage() {
    m_tapAreas = new QButtonGroup(this);
    auto* areas = new QHBoxLayout;
    int id = 0;
    for (const char* caption : {"Left", "Center", "Right"}) {
        auto* button = new QRadioButton(QString::fromUtf8(caption));
        m_tapAreas->addButton(button, id++);
        areas->addWidget(button);
    }
    connect(m_tapAreas, &QButtonGroup::idClicked, this, &PreferencesDialog::ShowTapArea);
    m_tapTarget = Choices("Tap:", {"Preferences", "Keyboard", "Stack", "User Registers", "Constants", "TVM",
                           "Amortization", "Cash Flow", "Statistical"});
    m_theme = new QComboBox;
    m_theme->setObjectName(QStringLiteral("Theme:"));
    const ThemeSet themes;
    for (const Theme& theme : themes.Themes()) m_theme->addItem(ToQString(theme.name), theme.id);
    m_lines = Choices("Lines:", {"Default", "1", "2", "3", "4"});
    m_basicAlso = new QCheckBox(QStringLiteral("Basic also"));
    m_font = Choices("Font:", {"Default", "Small", "Medium", "Large"});
    m_border = Choices("Border:", {"Default", "None", "Display", "Calculator"});
    m_quickSwitch = new QCheckBox(QStringLiteral("Quick Switch"));
    m_clearType = new QCheckBox(QStringLiteral("ClearType"));
    auto* colors = new QPushButton(QStringLiteral("Colors..."));
    connect(colors, &QPushButton::clicked, this, &PreferencesDialog::colorsRequested);
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Tap:"), areas);
    form->addRow(QString(), m_tapTarget);
    form->addRow(QStringLiteral("Theme:"), Beside(m_theme, colors));
    form->addRow(QStringLiteral("Lines:"), Beside(m_lines, m_basicAlso));
    form->addRow(QStringLiteral("Font:"), m_font);
    form->addRow(QStringLiteral("Border:"), m_border);
    form->addRow(Beside(m_quickSwitch, m_clearType));
    return Page(form, this, [this] { DisplayDefaults(); });
}

QWidget* PreferencesDialog::KeyboardPage() {
    m_show = Choices("Show:", {"Default", "None", "Above", "Within"});
    m_size = Choices("Size:", {"Default", "Small", "Medium", "Large"});
    m_keys = Choices("Keys:", {"Default", "Static", "Swapped", "Zoomed"});
    m_color = Choices("Color:", {"Default", "Shift", "Foreground", "Background"});
    m_active = Choices("Active:", {"Default", "Shift", "Foreground", "Swapped"});
    m_shadow = Choices("Shadow:", {"Default", "None", "Normal", "Strong", "Heavy"});
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Show:"), m_show);
    form->addRow(QStringLiteral("Size:"), m_size);
    form->addRow(QStringLiteral("Keys:"), m_keys);
    form->addRow(QStringLiteral("Color:"), m_color);
    form->addRow(QStringLiteral("Active:"), m_active);
    form->addRow(QStringLiteral("Shadow:"), m_shadow);
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
