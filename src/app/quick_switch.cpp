#include "app/quick_switch.h"

#include <QButtonGroup>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "app/dialogs/ui_text.h"
#include "engine/keyboards.h"
#include "session/key_grid.h"

namespace brinto {

namespace {

constexpr int kHandheldHeight = 26;
constexpr int kSpacing = 1;
constexpr int kTextMargin = 2;  // on each side of a name, within its button
constexpr int kSmallestFont = 8;

// The names in their three forms, longest first, each translated where it is shown; "&&" is a plain "&" on a
// button. Each form's nine names differ from one another.
struct StripNames {
    std::array<const char*, kKeyboardCount> names;
};
constexpr std::array<StripNames, 3> kForms = {{
    {{QT_TRANSLATE_NOOP("Ui", "General"), QT_TRANSLATE_NOOP("Ui", "Financial"),
      QT_TRANSLATE_NOOP("Ui", "Scientific"), QT_TRANSLATE_NOOP("Ui", "Statistical"),
      QT_TRANSLATE_NOOP("Ui", "Programmer"), QT_TRANSLATE_NOOP("Ui", "Conversion 1"),
      QT_TRANSLATE_NOOP("Ui", "Conversion 2"), QT_TRANSLATE_NOOP("Ui", "Date && Time"),
      QT_TRANSLATE_NOOP("Ui", "User")}},
    {{QT_TRANSLATE_NOOP("Ui", "Gen"), QT_TRANSLATE_NOOP("Ui", "Fin"), QT_TRANSLATE_NOOP("Ui", "Sci"),
      QT_TRANSLATE_NOOP("Ui", "Stat"), QT_TRANSLATE_NOOP("Ui", "Prog"), QT_TRANSLATE_NOOP("Ui", "Conv 1"),
      QT_TRANSLATE_NOOP("Ui", "Conv 2"), QT_TRANSLATE_NOOP("Ui", "Date"), QT_TRANSLATE_NOOP("Ui", "User")}},
    {{QT_TRANSLATE_NOOP("Ui", "Gen"), QT_TRANSLATE_NOOP("Ui", "Fin"), QT_TRANSLATE_NOOP("Ui", "Sci"),
      QT_TRANSLATE_NOOP("Ui", "Stat"), QT_TRANSLATE_NOOP("Ui", "Prog"), QT_TRANSLATE_NOOP("Ui", "Conv\n1"),
      QT_TRANSLATE_NOOP("Ui", "Conv\n2"), QT_TRANSLATE_NOOP("Ui", "Date"), QT_TRANSLATE_NOOP("Ui", "User")}},
}};

// The font's pixel size at a width: 10 as on the handheld, growing gently on a wide window.
int FontPixels(int width) { return std::clamp(static_cast<int>(std::lround(10 * std::sqrt(GridScale(width)))), 10, 15); }

// The widest line of a name as the button shows it.
int TextWidth(const QFontMetrics& metrics, const char* name) {
    QString text = Ui::tr(name);
    text.replace(QStringLiteral("&&"), QStringLiteral("&"));
    int widest = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) widest = std::max(widest, metrics.horizontalAdvance(line));
    return widest;
}

bool Fits(const QFont& font, const StripNames& form, int buttonWidth, int height) {
    const QFontMetrics metrics(font);
    for (const char* name : form.names) {
        const int lines = std::strchr(name, '\n') ? 2 : 1;
        if (TextWidth(metrics, name) + 2 * kTextMargin > buttonWidth) return false;
        if (lines * metrics.height() > height) return false;
    }
    return true;
}

}  // namespace

QuickSwitchStrip::QuickSwitchStrip(QWidget* parent) : QWidget(parent), m_buttons(new QButtonGroup(this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kSpacing);
    m_buttons->setExclusive(true);
    for (int i = 0; i < kKeyboardCount; ++i) {
        auto* button = new QToolButton(this);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setToolTip(Ui::tr(kKeyboardNames[i].data()));
        button->setAccessibleName(button->toolTip());
        layout->addWidget(button);
        m_buttons->addButton(button, i);
    }
    connect(m_buttons, &QButtonGroup::idClicked, this, &QuickSwitchStrip::chosen);
    // The names are fitted when the window lays the strip out at its width: measuring them here,
    // at a widget's first width, loaded fonts of three sizes that the window never shows.
}

int QuickSwitchStrip::PreferredHeight(int width) const {
    return std::max(kHandheldHeight, static_cast<int>(std::lround(kHandheldHeight * FontPixels(width) / 10.0)));
}

void QuickSwitchStrip::FitTo(int width) {
    const int buttonWidth = (width - (kKeyboardCount - 1) * kSpacing) / kKeyboardCount;
    const int height = PreferredHeight(width) - 2;  // the button's frame
    QFont font = this->font();
    const StripNames* chosen = &kForms.back();
    for (int pixels = FontPixels(width); pixels >= kSmallestFont; --pixels) {
        font.setPixelSize(pixels);
        const auto fitting = std::find_if(kForms.begin(), kForms.end(),
                                          [&](const StripNames& form) { return Fits(font, form, buttonWidth, height); });
        if (fitting != kForms.end()) {
            chosen = &*fitting;
            break;
        }
    }
    for (int i = 0; i < kKeyboardCount; ++i) {
        QAbstractButton* button = m_buttons->button(i);
        button->setFont(font);
        button->setText(Ui::tr(chosen->names[static_cast<std::size_t>(i)]));
    }
}

}  // namespace brinto
