#include "app/dialogs/colour_dialogs.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QStyleOptionButton>
#include <QVBoxLayout>

#include "app/dialogs/ui_text.h"

namespace brinto::dialogs {
namespace {

constexpr int kColourStep = 17;  // line, page and tick step of the sliders: 16 steps from 0 to 255

QColor ToQColor(Rgb c) { return QColor(c.r, c.g, c.b); }

// A push-button frame split down the middle: the colour given on the left, the one set on the right.
class Sample : public QWidget {
public:
    Sample(const Rgb* given, const Rgb* shown, QWidget* parent)
        : QWidget(parent), m_given(given), m_shown(shown) {
        setMinimumHeight(40);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QStyleOptionButton frame;
        frame.initFrom(this);
        style()->drawControl(QStyle::CE_PushButtonBevel, &frame, &painter, this);
        const QRect inner = rect().adjusted(4, 4, -4, -4);
        QRect left = inner;
        left.setWidth(inner.width() / 2);
        painter.fillRect(left, ToQColor(*m_given));
        painter.fillRect(inner.adjusted(left.width(), 0, 0, 0), ToQColor(*m_shown));
    }

private:
    const Rgb* m_given;
    const Rgb* m_shown;
};

constexpr std::size_t kBytesPerColour = 4;
constexpr std::size_t kPackedSize = 2 * kKeyClasses * kBytesPerColour;

}  // namespace

std::vector<std::byte> PackColours(const CustomColours& colours) {
    std::vector<std::byte> bytes;
    bytes.reserve(kPackedSize);
    for (std::size_t k = 0; k < kKeyClasses; ++k) {
        for (const auto* colour : {&colours.text[k], &colours.background[k]}) {
            const Rgb c = colour->value_or(Rgb{});
            for (const u8 b : {u8{colour->has_value()}, c.r, c.g, c.b}) bytes.push_back(std::byte{b});
        }
    }
    return bytes;
}

CustomColours UnpackColours(std::span<const std::byte> bytes) {
    CustomColours colours;
    if (bytes.size() != kPackedSize) return colours;
    const auto at = [&](std::size_t i) { return std::to_integer<u8>(bytes[i]); };
    std::size_t i = 0;
    for (std::size_t k = 0; k < kKeyClasses; ++k) {
        for (auto* colour : {&colours.text[k], &colours.background[k]}) {
            if (at(i) == 1) *colour = Rgb{at(i + 1), at(i + 2), at(i + 3)};
            i += kBytesPerColour;
        }
    }
    return colours;
}

ColourChooser::ColourChooser(Rgb given, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_given(given), m_shown(given), m_sample(new Sample(&m_given, &m_shown, this)) {
    setWindowTitle(Ui::tr("Color Chooser"));
    auto* grid = new QGridLayout;
    const int start[3] = {given.r, given.g, given.b};
    int row = 0;
    for (const char* caption : {QT_TRANSLATE_NOOP("Ui", "Red:"), QT_TRANSLATE_NOOP("Ui", "Green:"),
                                QT_TRANSLATE_NOOP("Ui", "Blue:")}) {
        QSlider*& slider = m_sliders[static_cast<std::size_t>(row)];
        slider = new QSlider(Qt::Horizontal, this);
        slider->setRange(0, 255);
        slider->setSingleStep(kColourStep);
        slider->setPageStep(kColourStep);
        slider->setTickInterval(kColourStep);
        slider->setTickPosition(QSlider::TicksBelow);
        slider->setValue(start[row]);
        QLabel*& number = m_numbers[static_cast<std::size_t>(row)];
        number = new QLabel(QString::number(start[row]), this);
        number->setMinimumWidth(number->fontMetrics().horizontalAdvance(QStringLiteral("255")));
        number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(new QLabel(Ui::tr(caption), this), row, 0);
        grid->addWidget(slider, row, 1);
        grid->addWidget(number, row, 2);
        connect(slider, &QSlider::valueChanged, this, [this] { SlidersMoved(); });
        ++row;
    }
    QDialogButtonBox* buttons = MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "colors", help);
    QPushButton* reset = buttons->addButton(Ui::tr("Reset"), QDialogButtonBox::ResetRole);
    connect(reset, &QPushButton::clicked, this, [this] { Reset(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_sample);
    column->addLayout(grid);
    column->addWidget(buttons);
}

Rgb ColourChooser::Chosen() const { return m_shown; }

// Only the numbers that changed are rewritten; the sample is repainted when any did.
void ColourChooser::SlidersMoved() {
    const Rgb before = m_shown;
    u8* components[3] = {&m_shown.r, &m_shown.g, &m_shown.b};
    for (std::size_t i = 0; i < 3; ++i) {
        const auto value = static_cast<u8>(m_sliders[i]->value());
        if (*components[i] == value) continue;
        *components[i] = value;
        m_numbers[i]->setText(QString::number(value));
    }
    if (!(before == m_shown)) m_sample->update();
}

void ColourChooser::Reset() {
    const int given[3] = {m_given.r, m_given.g, m_given.b};
    for (std::size_t i = 0; i < 3; ++i) {
        if (m_sliders[i]->value() != given[i]) m_sliders[i]->setValue(given[i]);
    }
}

CustomizeColours::CustomizeColours(const HelpFunction& help, QWidget* parent) : QDialog(parent), m_help(help) {
    setWindowTitle(Ui::tr("Customize Colors"));
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(Ui::tr("Text"), this), 0, 1, Qt::AlignHCenter);
    grid->addWidget(new QLabel(Ui::tr("Background"), this), 0, 2, Qt::AlignHCenter);
    int k = 0;
    for (const char* caption : {QT_TRANSLATE_NOOP("Ui", "Standard:"), QT_TRANSLATE_NOOP("Ui", "Number:"),
                                QT_TRANSLATE_NOOP("Ui", "Register:"), QT_TRANSLATE_NOOP("Ui", "Clear:")}) {
        grid->addWidget(new QLabel(Ui::tr(caption), this), k + 1, 0);
        for (int column = 0; column < 2; ++column) {
            const int i = 2 * k + column;
            QPushButton*& button = m_buttons[static_cast<std::size_t>(i)];
            button = new QPushButton(this);
            button->setMinimumSize(56, 28);
            const QString name = Ui::tr(caption).remove(QLatin1Char(':')).trimmed();
            button->setAccessibleName(column == 0 ? Ui::tr("%1 text color").arg(name)
                                                  : Ui::tr("%1 background color").arg(name));
            connect(button, &QPushButton::clicked, this, [this, i] { Choose(i); });
            grid->addWidget(button, k + 1, column + 1);
        }
        ++k;
    }
    QDialogButtonBox* buttons = MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "colors", help);
    QPushButton* defaults = buttons->addButton(Ui::tr("Default"), QDialogButtonBox::ResetRole);
    connect(defaults, &QPushButton::clicked, this, [this] {
        m_custom = CustomColours{};
        Paint();
    });
    auto* column = new QVBoxLayout(this);
    column->addLayout(grid);
    column->addWidget(buttons);
}

void CustomizeColours::Load(const ScreenColours& theme, const CustomColours& custom) {
    m_theme = theme;
    m_custom = custom;
    Paint();
}

Rgb CustomizeColours::Shown(int i) const {
    const auto k = static_cast<std::size_t>(i / 2);
    const KeyColours& key = m_theme.keys[k];
    if (i % 2 == 0) return m_custom.text[k].value_or(key.text);
    return m_custom.background[k].value_or(key.face);
}

void CustomizeColours::Paint() {
    for (int i = 0; i < 2 * kKeyClasses; ++i) {
        const QColor colour = ToQColor(Shown(i));
        m_buttons[static_cast<std::size_t>(i)]->setStyleSheet(
            QStringLiteral("background-color: %1; border: 1px solid gray;").arg(colour.name()));
    }
}

ColourChooser* CustomizeColours::Choose(int i) {
    auto* chooser = new ColourChooser(Shown(i), m_help, this);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    connect(chooser, &QDialog::accepted, this, [this, chooser, i] {
        const auto k = static_cast<std::size_t>(i / 2);
        (i % 2 == 0 ? m_custom.text[k] : m_custom.background[k]) = chooser->Chosen();
        Paint();
    });
    chooser->open();
    return chooser;
}

}  // namespace brinto::dialogs
