#include "app/display_view.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <algorithm>

#include "app/accessibility.h"
#include "app/dialogs/ui_text.h"
#include "app/key_view.h"
#include "display/display_text.h"
#include "display/labels.h"
#include "engine/engine.h"
#include "engine/numeric/integer_format.h"
#include "engine/register_keys.h"
#include "session/key_grid.h"
#include "session/key_legends.h"

namespace brinto {

namespace {

QString Utf8(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

bool IsBasic(const Engine& e) { return e.state.viewFlags & view::ModeMask; }

bool IsLongDate(const Engine& e, ValueTag tag) {
    return e.prefs.LongDate() && (tag == fid::TagDate || tag == fid::TagDateTime);
}

}  // namespace

DisplayView::DisplayView(const Engine& engine, QWidget* parent) : QWidget(parent), m_engine(engine) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    // The display holds the focus at the start, so that a screen reader follows X; it passes every
    // key on to the window.
    setFocusPolicy(Qt::StrongFocus);
}

void DisplayView::SetLook(const ScreenColours& colours, const ThemeSet& themes, const QString& keyboardName) {
    m_colours = colours;
    m_lines = DisplayLinesOf(m_engine.prefs, themes);
    m_fonts = DisplayFontsOf(m_engine.prefs, themes);
    m_borders = BordersOf(m_engine.prefs, themes);
    m_keyboardName = keyboardName;
    update();
    ScheduleAnnouncement();
}

int DisplayView::LinesShown() const { return IsBasic(m_engine) ? m_lines.basic : m_lines.advanced; }

QStringList DisplayView::Annunciators() const {
    const Engine& e = m_engine;
    QStringList on;
    if (e.state.status & status::FirstShift) on << QStringLiteral("SHIFT");
    on << (e.IsRpn() ? QStringLiteral("RPN") : e.IsPrecedence() ? QStringLiteral("PREC") : QStringLiteral("SIMPLE"));
    const FunctionId pending = e.PendingTop();
    if (!e.IsRpn() && pending != kNoKey && pending != fid::OpenParen && pending != fid::Enter) {
        on << LegendText(pending);
    }
    switch (e.Angle()) {
        case AngleUnit::Degrees: on << QStringLiteral("DEG"); break;
        case AngleUnit::Radians: on << QStringLiteral("RAD"); break;
        case AngleUnit::Grads: on << QStringLiteral("GRAD"); break;
    }
    if (e.state.engineFlags & flags::Begin) on << QStringLiteral("BEGIN");
    switch (e.EntryBase()) {
        case status::BaseBinary: on << QStringLiteral("BIN"); break;
        case status::BaseOctal: on << QStringLiteral("OCT"); break;
        case status::BaseHex: on << QStringLiteral("HEX"); break;
        default: break;
    }
    if (e.EntryBase() != 0) on << Utf8(LabelText(DefaultIntegerFormatTag(e.prefs)));
    if (e.state.status & status::Hyperbolic) on << QStringLiteral("HYP");
    if (e.state.engineFlags & flags::Recording) on << Utf8(LabelText(fid::TagMemory));
    // A prefix key waiting for its register or digit count: "STO _", "STO+ 1_", "FIX _".
    if (const auto waiting = PendingRegisterOf(e)) {
        QString text = LegendText(waiting->prefix);
        if (waiting->op != kNoKey) text += LegendText(waiting->op);
        text += QLatin1Char(' ');
        if (waiting->firstDigit >= 0) text += QString::number(waiting->firstDigit);
        on << text + QLatin1Char('_');
    } else if (e.state.pendingFormat != kNoKey) {
        on << LegendText(e.state.pendingFormat) + QStringLiteral(" _");
    }
    return on;
}

QString DisplayView::AccessibleX() const {
    const DisplayLine x = DisplayLevel(m_engine, 0);
    return Utf8(x.text) + (x.label.empty() ? QString() : QStringLiteral(" ") + Utf8(x.label));
}

QString DisplayView::AccessibleDetails() const {
    static const char* const kLevelNames[] = {"X", "Y", "Z", "T"};
    QStringList parts;
    for (int level = 1; level < LinesShown(); ++level) {
        const DisplayLine line = DisplayLevel(m_engine, level);
        const QString name =
            level < 4 ? QString::fromLatin1(kLevelNames[level]) : Ui::tr("Level %1").arg(level + 1);
        parts << name + QStringLiteral(": ") + Utf8(line.text) +
                     (line.label.empty() ? QString() : QStringLiteral(" ") + Utf8(line.label));
    }
    parts << Annunciators().join(QStringLiteral(", "));
    return parts.join(QStringLiteral("; "));
}

double DisplayView::XValue() const { return m_engine.Level(0).value; }

void DisplayView::ScheduleAnnouncement() {
    if (m_announcing) return;
    m_announcing = true;
    QTimer::singleShot(0, this, [this] {
        m_announcing = false;
        Announce();
    });
}

// A screen reader speaks the changes of the field it is on, so while the focus is elsewhere (on the
// keys) X is also shown to it as a notification, which it speaks wherever the focus is.
void DisplayView::Notify(const QString& x) {
    if (hasFocus() || !window()->isActiveWindow()) return;
    if (!m_notice) {
        m_notice = new QWidget(this);
        m_notice->setObjectName(QStringLiteral("resultNotice"));
        m_notice->setGeometry(0, 0, 0, 0);
    }
    m_notice->hide();
    m_notice->setAccessibleName(x);
    m_notice->show();
}

void DisplayView::Announce() {
    const QString x = AccessibleX(), details = AccessibleDetails();
    if (x != m_announcedX) {
        QAccessibleTextUpdateEvent text(this, 0, m_announcedX, x);
        SendAccessibilityEvent(text);
        QAccessibleValueChangeEvent value(this, XValue());
        SendAccessibilityEvent(value);
        Notify(x);
    } else if (details != m_announcedDetails) {
        QAccessibleEvent described(this, QAccessible::DescriptionChanged);
        SendAccessibilityEvent(described);
    }
    m_announcedX = x;
    m_announcedDetails = details;
}

// The five fonts scale with the view from the handheld's 240-pixel screen; "ClearType" lets the
// text use the screen's subpixels.
QFont DisplayView::MakeFont(DisplayFont which, int width) const {
    const FontMetrics metrics = FontOf(which);
    QFont f = font();
    f.setPixelSize(std::max(6, static_cast<int>(std::lround(metrics.pixels * GridScale(width)))));
    f.setBold(metrics.bold);
    f.setStyleStrategy(m_engine.prefs.ClearType() ? QFont::PreferAntialias : QFont::NoSubpixelAntialias);
    return f;
}

int DisplayView::PreferredHeight(int width) const {
    const double scale = GridScale(width);
    const double value = QFontMetricsF(MakeFont(m_fonts.value, width)).height();
    const double stack = QFontMetricsF(MakeFont(m_fonts.stack, width)).height();
    const double label = QFontMetricsF(MakeFont(m_fonts.label, width)).height() * 4 / 5;
    return static_cast<int>(std::ceil(3 * scale + 5 * scale + label + value + (LinesShown() - 1) * stack + 2));
}

void DisplayView::paintEvent(QPaintEvent*) {
    const Engine& e = m_engine;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), ToQColor(m_colours.window));

    const double scale = GridScale(width());
    QRectF area = rect();
    const double margin = std::round(3 * scale);
    area.adjust(margin, margin, -margin, 0);
    if (m_borders.displayFrame) {
        painter.setPen(QPen(ToQColor(m_colours.displayFrame), std::max(1.0, std::round(scale))));
    } else {
        painter.setPen(Qt::NoPen);
    }
    painter.setBrush(ToQColor(m_colours.displayBackground));
    const double radius = m_borders.displayFrame ? 4 * scale : 0;
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    if (hasFocus() && m_ringShown) {
        // The focus ring in the colour of the labels, which every theme keeps legible on the display.
        const double pen = std::max(2.0, std::round(1.5 * scale));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(ToQColor(m_colours.displayLabel), pen, Qt::DotLine));
        painter.drawRoundedRect(area.adjusted(pen, pen, -pen, -pen), radius, radius);
    }

    const QFont valueFont = MakeFont(m_fonts.value, width()), dateFont = MakeFont(m_fonts.date, width());
    const QFont stackFont = MakeFont(m_fonts.stack, width()), labelFont = MakeFont(m_fonts.label, width());

    const double pad = std::round(5 * scale);
    QRectF inner = area.adjusted(pad, pad / 2, -pad, -pad / 2);

    // One row of annunciators, smaller than the labels: only the states that are on are drawn.
    QFont annunciatorFont = labelFont;
    annunciatorFont.setPixelSize(std::max(6, labelFont.pixelSize() * 4 / 5));
    painter.setFont(annunciatorFont);
    const double rowHeight = QFontMetricsF(annunciatorFont).height();
    const QRectF row(inner.left(), inner.top(), inner.width(), rowHeight);
    painter.setPen(ToQColor(m_colours.annunciator));
    painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, Annunciators().join(QStringLiteral("  ")));
    if (!m_keyboardName.isEmpty()) {
        painter.setPen(ToQColor(m_colours.displayLabel));
        painter.drawText(row, Qt::AlignRight | Qt::AlignVCenter, m_keyboardName);
    }
    inner.setTop(inner.top() + rowHeight);

    // Stack levels from the highest shown down to X at the bottom; a level that does not fit is
    // left out rather than cut.
    double bottom = inner.bottom();
    for (int level = 0; level < LinesShown(); ++level) {
        const StackEntry entry = e.Level(level);
        const QFont& font = level > 0 ? stackFont : IsLongDate(e, entry.tag) ? dateFont : valueFont;
        const double h = QFontMetricsF(font).height();
        if (bottom - h < inner.top() - 1) break;
        const QRectF line(inner.left(), bottom - h, inner.width(), h);
        bottom -= h;
        const DisplayLine shown = DisplayLevel(e, level);
        const QString label = Utf8(shown.label);
        painter.setFont(labelFont);
        painter.setPen(ToQColor(m_colours.displayLabel));
        painter.drawText(line, Qt::AlignLeft | Qt::AlignBottom, label);
        const double labelWidth = label.isEmpty() ? 0 : QFontMetricsF(labelFont).horizontalAdvance(label) + pad;
        // A value too wide for its line is drawn smaller rather than cut.
        QFont fitted = font;
        const QString text = Utf8(shown.text);
        const double wide = QFontMetricsF(fitted).horizontalAdvance(text);
        const double room = line.width() - labelWidth;
        if (wide > room && wide > 0) fitted.setPixelSize(std::max(6, static_cast<int>(fitted.pixelSize() * room / wide)));
        painter.setFont(fitted);
        painter.setPen(ToQColor(ValueTextColour(m_colours, entry.tag, entry.value)));
        painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, text);
    }
}

// The ring shows once the focus has moved by the keyboard, as it does on the keys; a window that
// was only activated keeps what it showed.
void DisplayView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) m_ringShown = true;
    update();
}

void DisplayView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

void DisplayView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
    Q_EMIT Tapped(DisplayTapZone(width(), static_cast<int>(event->position().x())));
}

}  // namespace brinto
