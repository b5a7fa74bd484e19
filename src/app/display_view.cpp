#include "app/display_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "display/display_text.h"
#include "display/labels.h"
#include "engine/engine.h"
#include "engine/function_ids.h"
#include "ops/integer_format.h"

namespace brinto {

namespace {

// The five display fonts at the handheld's 240-pixel width; they scale with the view.
struct FontSpec {
    int height;
    bool bold;
};
constexpr FontSpec kFonts[5] = {{22, true}, {18, true}, {14, true}, {14, false}, {13, false}};

QString Utf8(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

bool IsBasic(const Engine& e) { return e.state.viewFlags & view::ModeMask; }

}  // namespace

DisplayView::DisplayView(const Engine& engine, QWidget* parent) : QWidget(parent), m_engine(engine) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumHeight(60);
}

void DisplayView::SetColours(const Colours& colours) {
    m_colours = colours;
    update();
}

int DisplayView::LinesShown() const {
    const Preferences& p = m_engine.prefs;
    if (IsBasic(m_engine) && !p.BasicAlso()) return 1;
    if (p.DisplayLines() >= 1 && p.DisplayLines() <= 4) return p.DisplayLines();
    return m_engine.IsRpn() ? 3 : 1;
}

QStringList DisplayView::Annunciators() const {
    const Engine& e = m_engine;
    QStringList on;
    if (e.state.status & status::FirstShift) on << QStringLiteral("SHIFT");
    on << (e.IsRpn() ? QStringLiteral("RPN") : e.IsPrecedence() ? QStringLiteral("PREC") : QStringLiteral("ALG"));
    const FunctionId pending = e.PendingTop();
    if (!e.IsRpn() && pending != kNoKey && pending != fid::OpenParen && pending != fid::Enter) {
        on << LegendOf(pending);
    }
    static const char* const kAngles[] = {"DEG", "RAD", "GRAD"};
    on << QString::fromLatin1(kAngles[std::min(2, static_cast<int>(e.Angle()))]);
    if (e.state.engineFlags & flags::Begin) on << QStringLiteral("BEGIN");
    switch (e.EntryBase()) {
        case status::BaseBinary: on << QStringLiteral("BIN"); break;
        case status::BaseOctal: on << QStringLiteral("OCT"); break;
        case status::BaseHex: on << QStringLiteral("HEX"); break;
        default: break;
    }
    if (e.EntryBase() != 0) on << Utf8(LabelText(static_cast<u32>(DefaultIntegerFormatTag(e.prefs))));
    if (e.state.status & status::Hyperbolic) on << QStringLiteral("HYP");
    if (e.state.engineFlags & flags::Recording) on << Utf8(LabelText(1600));
    return on;
}

QString DisplayView::AccessibleText() const {
    QStringList parts;
    for (int level = 0; level < LinesShown(); ++level) {
        const DisplayLine line = DisplayLevel(m_engine, level);
        parts << (Utf8(line.text) + (line.label.empty() ? QString() : QStringLiteral(" ") + Utf8(line.label)));
    }
    return parts.join(QStringLiteral("; "));
}

void DisplayView::paintEvent(QPaintEvent*) {
    const Engine& e = m_engine;
    const Preferences& p = e.prefs;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), m_colours.window);

    // "Border:": the display framed (the default), nothing, or the whole calculator framed by the
    // window (then the display fills its place edge to edge, as the keys' frame continues it).
    const int border = p.Border();
    QRectF area = rect();
    if (border == 0 || border == 2) area.adjust(4, 4, -4, -2);
    painter.setPen(border == 0 || border == 2 ? QPen(m_colours.displayLabel, 1.5) : Qt::NoPen);
    painter.setBrush(m_colours.displayBackground);
    painter.drawRoundedRect(area.adjusted(0.75, 0.75, -0.75, -0.75), border == 1 ? 0 : 6, border == 1 ? 0 : 6);

    const double scale = std::clamp(width() / 240.0, 1.0, 3.0);
    const auto makeFont = [&](int which) {
        QFont f = font();
        f.setPixelSize(static_cast<int>(kFonts[which].height * scale));
        f.setBold(kFonts[which].bold);
        f.setStyleStrategy(p.ClearType() ? QFont::PreferAntialias : QFont::NoSubpixelAntialias);
        return f;
    };
    // "Font:": which of the five fonts draws X; Default follows the view.
    int xFont = 0;
    switch (p.DisplayFont()) {
        case 1: xFont = 2; break;
        case 2: xFont = 1; break;
        case 3: xFont = 0; break;
        default: xFont = IsBasic(e) ? 0 : 1; break;
    }
    const QFont bigFont = makeFont(xFont), lineFont = makeFont(3), labelFont = makeFont(4);
    QFont annunciatorFont = labelFont;
    annunciatorFont.setPixelSize(std::max(8, static_cast<int>(labelFont.pixelSize() * 0.8)));

    const double pad = 6 * scale;
    QRectF inner = area.adjusted(pad, pad / 2, -pad, -pad / 2);

    // Annunciators along the top.
    painter.setFont(annunciatorFont);
    painter.setPen(m_colours.annunciator);
    const double annunciatorHeight = QFontMetricsF(annunciatorFont).height();
    painter.drawText(QRectF(inner.left(), inner.top(), inner.width(), annunciatorHeight),
                     Qt::AlignLeft | Qt::AlignVCenter, Annunciators().join(QStringLiteral("  ")));
    inner.setTop(inner.top() + annunciatorHeight);

    // Stack levels from the highest shown down to X at the bottom.
    const int lines = LinesShown();
    const double bigHeight = QFontMetricsF(bigFont).height();
    const double lineHeight = QFontMetricsF(lineFont).height();
    double bottom = inner.bottom();
    for (int level = 0; level < lines; ++level) {
        const bool isX = level == 0;
        const double h = isX ? bigHeight : lineHeight;
        if (bottom - h < inner.top() - 1) break;
        const QRectF row(inner.left(), bottom - h, inner.width(), h);
        bottom -= h;
        const DisplayLine line = DisplayLevel(e, level);
        const StackEntry entry = e.Level(level);
        QColor colour = m_colours.displayText;
        if (IsIntegerFormatTag(entry.tag)) colour = m_colours.displayInteger;
        else if (entry.value < 0 && !line.error) colour = m_colours.displayNegative;
        const QFont valueFont = isX ? bigFont : lineFont;
        painter.setFont(labelFont);
        painter.setPen(m_colours.displayLabel);
        const QString label = Utf8(line.label);
        const double labelWidth = label.isEmpty() ? 0 : QFontMetricsF(labelFont).horizontalAdvance(label) + pad;
        painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, label);
        // A value too wide for its line is drawn in a smaller size rather than cut.
        QFont fitted = valueFont;
        const QString text = Utf8(line.text);
        double size = fitted.pixelSize();
        while (size > 8 && QFontMetricsF(fitted).horizontalAdvance(text) > row.width() - labelWidth) {
            size -= 1;
            fitted.setPixelSize(static_cast<int>(size));
        }
        painter.setFont(fitted);
        painter.setPen(colour);
        painter.drawText(row, Qt::AlignRight | Qt::AlignVCenter, text);
    }
}

void DisplayView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
    const int third = std::clamp(static_cast<int>(event->position().x() * 3 / std::max(1, width())), 0, 2);
    Q_EMIT Tapped(static_cast<TapArea>(third));
}

}  // namespace brinto
