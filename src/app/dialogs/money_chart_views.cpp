#include "app/dialogs/money_chart_views.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "app/dialogs/ui_text.h"

namespace brinto::dialogs {
namespace {

QColor ToColour(Rgb rgb) { return QColor(rgb.r, rgb.g, rgb.b); }

QColor Faded(QColor colour, int alpha) {
    colour.setAlpha(alpha);
    return colour;
}

// A step of 1, 2 or 5 times a power of ten that cuts `span` into about `parts` parts.
double NiceStep(double span, int parts) {
    if (!(span > 0.0) || !std::isfinite(span)) return 1.0;
    const double raw = span / parts;
    const double magnitude = std::pow(10.0, std::floor(std::log10(raw)));
    const double norm = raw / magnitude;
    return (norm <= 1.0 ? 1.0 : norm <= 2.0 ? 2.0 : norm <= 5.0 ? 5.0 : 10.0) * magnitude;
}

QString Amount(double value) { return QString::fromStdString(AmountText(value, false)); }

// The chart's summary in the window's language, from the parts the session said it with.
QString Described(const ScheduleChart& chart) {
    const QString from = QString::fromStdString(chart.from), to = QString::fromStdString(chart.to);
    const bool one = chart.payments == 1;
    switch (chart.trend) {
        case BalanceTrend::NoPayments:
            return Ui::tr("No payments to chart");
        case BalanceTrend::Stays:
            return one ? Ui::tr("Balance stays at %1 over 1 payment").arg(from)
                       : Ui::tr("Balance stays at %1 over %2 payments").arg(from).arg(chart.payments);
        case BalanceTrend::Falls:
            return one ? Ui::tr("Balance falls from %1 to %2 over 1 payment").arg(from, to)
                       : Ui::tr("Balance falls from %1 to %2 over %3 payments")
                             .arg(from, to)
                             .arg(chart.payments);
        case BalanceTrend::Grows:
            return one ? Ui::tr("Balance grows from %1 to %2 over 1 payment").arg(from, to)
                       : Ui::tr("Balance grows from %1 to %2 over %3 payments")
                             .arg(from, to)
                             .arg(chart.payments);
    }
    return QString::fromStdString(chart.description);
}

QString Described(const CashFlowDiagram& diagram) {
    const QString paid = QString::fromStdString(diagram.paid),
                  received = QString::fromStdString(diagram.received);
    return diagram.periods == 0 ? Ui::tr("Cash flows at period 0: %1 paid, %2 received").arg(paid, received)
                                : Ui::tr("Cash flows over periods 0 to %1: %2 paid, %3 received")
                                      .arg(diagram.periods)
                                      .arg(paid, received);
}

// An amount on an axis: whole thousands as "250k" once the axis runs past 10,000, so the labels
// stay narrow.
QString AxisAmount(double value, double top) {
    if (top >= 10000.0 && std::fmod(value, 1000.0) == 0.0) return Amount(value / 1000.0) + QLatin1Char('k');
    return Amount(value);
}

double Finite(double value) { return std::isfinite(value) ? std::fabs(value) : 0.0; }

// An arrow from `base` to `tip` with a filled head `head` long; a group's has a double shaft.
void Arrow(QPainter& p, QPointF base, QPointF tip, double head, const QColor& colour, bool group) {
    p.setPen(QPen(colour, 2.0, Qt::SolidLine, Qt::FlatCap));
    const double direction = tip.y() < base.y() ? 1.0 : -1.0;  // 1: up
    const QPointF shaftEnd(tip.x(), tip.y() + direction * head);
    if (group) {
        // A group of equal flows: a double shaft.
        p.drawLine(QPointF(base.x() - 3, base.y()), QPointF(shaftEnd.x() - 3, shaftEnd.y()));
        p.drawLine(QPointF(base.x() + 3, base.y()), QPointF(shaftEnd.x() + 3, shaftEnd.y()));
    } else {
        p.drawLine(base, shaftEnd);
    }
    QPolygonF triangle;
    triangle << tip << QPointF(tip.x() - head * 0.6, shaftEnd.y()) << QPointF(tip.x() + head * 0.6, shaftEnd.y());
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPolygon(triangle);
    p.setBrush(Qt::NoBrush);
}

// Until the window's theme arrives: dark on light, as the default display.
ChartColours DefaultChartColours() {
    ChartColours c;
    c.background = QColor(0xF4, 0xF6, 0xEE);
    c.text = QColor(0x10, 0x10, 0x10);
    c.grid = Faded(c.text, 60);
    c.balance = c.text;
    c.interest = QColor(0xB0, 0x20, 0x20);
    c.principal = QColor(0x20, 0x50, 0xA0);
    c.received = c.principal;
    c.paid = c.interest;
    return c;
}

}  // namespace

ChartColours MakeChartColours(const ScreenColours& screen) {
    ChartColours c;
    c.background = ToColour(screen.displayBackground);
    c.text = ToColour(screen.displayText);
    c.grid = Faded(c.text, 60);
    c.balance = c.text;
    c.interest = ToColour(screen.displayNegative);
    c.principal = ToColour(screen.displayLabel);
    c.received = ToColour(screen.displayLabel);
    c.paid = ToColour(screen.displayNegative);
    return c;
}

ScheduleChartView::ScheduleChartView(QWidget* parent) : QWidget(parent), m_colours(DefaultChartColours()) {
    setAccessibleName(Ui::tr("Amortization chart"));
}

void ScheduleChartView::SetChart(ScheduleChart chart) {
    m_chart = std::move(chart);
    setAccessibleName(Described(m_chart));
    setAccessibleDescription(
        m_chart.byYear ? Ui::tr("Balance after each payment; interest and principal by year")
                       : Ui::tr("Balance after each payment; interest and principal of each payment"));
    update();
}

void ScheduleChartView::SetColours(const ChartColours& colours) {
    m_colours = colours;
    update();
}

void ScheduleChartView::ShowPayments(int first, int last) {
    if (first == m_firstShown && last == m_lastShown) return;
    m_firstShown = first;
    m_lastShown = last;
    update();
}

namespace {

// Where the schedule chart draws: the plot area and its three scales (payments across, the
// balance on the left, a period's payment on the right).
struct ScheduleFrame {
    QRectF plot;
    int payments;
    double balanceTop, balanceStep, barTop, barStep;
    double leftWidth, rightWidth, line;

    double X(double payment) const { return plot.left() + plot.width() * payment / payments; }
    double YBalance(double v) const { return plot.bottom() - plot.height() * v / balanceTop; }
    double YBar(double v) const { return plot.bottom() - plot.height() * v / barTop; }
};

ScheduleFrame FrameFor(const ScheduleChart& chart, const QFontMetricsF& fm, QSizeF size) {
    ScheduleFrame f{};
    f.payments = chart.balance.back().payment;
    f.line = fm.height();
    double balanceMax = 0.0, barMax = 0.0;
    for (const BalancePoint& b : chart.balance) balanceMax = std::max(balanceMax, Finite(b.balance));
    for (const PeriodBar& b : chart.bars) barMax = std::max(barMax, Finite(b.interest) + Finite(b.principal));
    f.balanceStep = NiceStep(balanceMax, 4);
    f.barStep = NiceStep(barMax, 4);
    f.balanceTop = std::max(f.balanceStep, std::ceil(balanceMax / f.balanceStep) * f.balanceStep);
    f.barTop = std::max(f.barStep, std::ceil(barMax / f.barStep) * f.barStep);
    f.leftWidth = fm.horizontalAdvance(AxisAmount(f.balanceTop, f.balanceTop)) + 10;
    f.rightWidth = fm.horizontalAdvance(AxisAmount(f.barTop, f.barTop)) + 10;
    f.plot = QRectF(f.leftWidth, f.line * 1.8, size.width() - f.leftWidth - f.rightWidth, size.height() - f.line * 3.2);
    return f;
}

// Grid lines and the balance scale on the left; the bar scale on the right.
void DrawScales(QPainter& p, const ScheduleFrame& f, const ChartColours& c) {
    for (double v = 0.0; v <= f.balanceTop * 1.0001; v += f.balanceStep) {
        p.setPen(QPen(c.grid, 1.0, Qt::DotLine));
        p.drawLine(QPointF(f.plot.left(), f.YBalance(v)), QPointF(f.plot.right(), f.YBalance(v)));
        p.setPen(c.text);
        p.drawText(QRectF(0, f.YBalance(v) - f.line / 2, f.leftWidth - 5, f.line), Qt::AlignRight | Qt::AlignVCenter,
                   AxisAmount(v, f.balanceTop));
    }
    for (double v = 0.0; v <= f.barTop * 1.0001; v += f.barStep) {
        p.drawText(QRectF(f.plot.right() + 5, f.YBar(v) - f.line / 2, f.rightWidth - 5, f.line),
                   Qt::AlignLeft | Qt::AlignVCenter, AxisAmount(v, f.barTop));
    }
}

// Principal below, interest above it, so that a bar's height is the period's payment.
void DrawBars(QPainter& p, const ScheduleFrame& f, const ChartColours& c, const std::vector<PeriodBar>& bars) {
    for (const PeriodBar& b : bars) {
        const double left = f.X(b.first - 1), right = f.X(b.last);
        const double gap = (right - left) * 0.15;
        const double principal = Finite(b.principal), interest = Finite(b.interest);
        p.fillRect(QRectF(QPointF(left + gap, f.YBar(principal)), QPointF(right - gap, f.plot.bottom())),
                   Faded(c.principal, 170));
        p.fillRect(QRectF(QPointF(left + gap, f.YBar(principal + interest)), QPointF(right - gap, f.YBar(principal))),
                   Faded(c.interest, 170));
    }
}

void DrawBalance(QPainter& p, const ScheduleFrame& f, const ChartColours& c, const std::vector<BalancePoint>& points) {
    QPainterPath path;
    for (const BalancePoint& b : points) {
        const QPointF point(f.X(b.payment), f.YBalance(Finite(b.balance)));
        if (path.elementCount() == 0) {
            path.moveTo(point);
        } else {
            path.lineTo(point);
        }
    }
    p.setPen(QPen(c.balance, 2.0));
    p.drawPath(path);
}

// The frame's axes, and the payments (or years) along the bottom.
void DrawAxes(QPainter& p, const ScheduleFrame& f, const ChartColours& c, const ScheduleChart& chart) {
    p.setPen(QPen(c.text, 1.0));
    p.drawLine(f.plot.bottomLeft(), f.plot.bottomRight());
    p.drawLine(f.plot.bottomLeft(), f.plot.topLeft());
    p.drawLine(f.plot.bottomRight(), f.plot.topRight());
    const int perYear = chart.byYear && !chart.bars.empty() ? chart.bars.front().last - chart.bars.front().first + 1 : 1;
    const double units = static_cast<double>(f.payments) / perYear;
    const double unitStep = std::max(1.0, NiceStep(units, std::max(2, static_cast<int>(f.plot.width() / 60))));
    for (double u = 0.0; u <= units + 1e-9; u += unitStep) {
        const double at = f.X(u * perYear);
        p.drawLine(QPointF(at, f.plot.bottom()), QPointF(at, f.plot.bottom() + 3));
        p.drawText(QRectF(at - 40, f.plot.bottom() + 3, 80, f.line), Qt::AlignHCenter | Qt::AlignTop, Amount(u));
    }
    p.drawText(QRectF(f.plot.left(), f.plot.bottom() + 3 + f.line, f.plot.width(), f.line),
               Qt::AlignHCenter | Qt::AlignTop, chart.byYear ? Ui::tr("Year") : Ui::tr("Payment"));
}

void DrawLegend(QPainter& p, const ScheduleFrame& f, const ChartColours& c, const QFontMetricsF& fm, bool byYear) {
    double at = f.plot.left();
    const double mid = f.line * 0.8;
    const double baseline = mid + fm.ascent() / 2 - 1;
    p.setPen(QPen(c.balance, 2.0));
    p.drawLine(QPointF(at, mid), QPointF(at + 18, mid));
    at += 22;
    p.setPen(c.text);
    const std::pair<QString, QColor> entries[] = {
        {Ui::tr("Balance"), QColor()},
        {Ui::tr("Interest"), Faded(c.interest, 170)},
        {Ui::tr("Principal"), Faded(c.principal, 170)},
        {byYear ? Ui::tr("(by year)") : Ui::tr("(by payment)"), QColor()}};
    for (const auto& [text, swatch] : entries) {
        if (swatch.isValid()) {
            p.fillRect(QRectF(at, mid - 5, 10, 10), swatch);
            at += 14;
        }
        p.drawText(QPointF(at, baseline), text);
        at += fm.horizontalAdvance(text) + 14;
    }
}

}  // namespace

void ScheduleChartView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), m_colours.background);
    const QFontMetricsF fm(font());
    if (m_chart.balance.empty() || m_chart.balance.back().payment == 0) {
        p.setPen(m_colours.text);
        p.drawText(rect(), Qt::AlignCenter, Described(m_chart));
        return;
    }
    const ScheduleFrame frame = FrameFor(m_chart, fm, size());
    if (m_firstShown <= m_lastShown) {  // the rows the table shows
        p.fillRect(QRectF(QPointF(frame.X(m_firstShown - 1), frame.plot.top()),
                          QPointF(frame.X(m_lastShown), frame.plot.bottom())),
                   Faded(m_colours.text, 28));
    }
    DrawScales(p, frame, m_colours);
    DrawBars(p, frame, m_colours, m_chart.bars);
    DrawBalance(p, frame, m_colours, m_chart.balance);
    DrawAxes(p, frame, m_colours, m_chart);
    DrawLegend(p, frame, m_colours, fm, m_chart.byYear);
}

CashFlowDiagramView::CashFlowDiagramView(QWidget* parent) : QWidget(parent), m_colours(DefaultChartColours()) {
    setAccessibleName(Ui::tr("Cash-flow diagram"));
}

void CashFlowDiagramView::SetDiagram(CashFlowDiagram diagram, const QStringList& figures) {
    m_diagram = std::move(diagram);
    m_figures = figures;
    QString name = Described(m_diagram);
    for (const QString& figure : figures) name += QStringLiteral("; ") + figure;
    setAccessibleName(name);
    update();
}

void CashFlowDiagramView::SetColours(const ChartColours& colours) {
    m_colours = colours;
    update();
}

void CashFlowDiagramView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), m_colours.background);
    const QFontMetricsF fm(font());
    const double line = fm.height();
    const auto& groups = m_diagram.groups;
    if (groups.empty()) return;

    double figuresWidth = 0.0;
    for (const QString& f : m_figures) figuresWidth = std::max(figuresWidth, fm.horizontalAdvance(f));
    if (figuresWidth > 0) figuresWidth += 16;
    const QRectF plot(10, line + 6, width() - 20 - figuresWidth, height() - 3 * line - 14);
    double up = 0.0, down = 0.0;
    for (const FlowGroup& g : groups) {
        double& side = g.amount > 0 ? up : down;
        side = std::max(side, Finite(g.amount));
    }
    const double span = std::max(up + down, 1e-300);
    // The time line sits where the longest arrows up and down both fit, to one scale.
    const double baseline = plot.top() + plot.height() * up / span;
    const double scale = plot.height() / span;
    const double slot = plot.width() / static_cast<double>(groups.size());
    const double head = std::clamp(slot / 3, 4.0, 9.0);

    p.setPen(QPen(m_colours.text, 1.0));
    p.drawLine(QPointF(plot.left(), baseline), QPointF(plot.right(), baseline));
    // Labels skip slots where they would run into each other.
    const double labelWidth = fm.horizontalAdvance(QStringLiteral("00–00")) + 6;
    const int every = std::max(1, static_cast<int>(std::ceil(labelWidth / slot)));
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const FlowGroup& g = groups[i];
        const double x = plot.left() + slot * (static_cast<double>(i) + 0.5);
        const bool received = g.amount > 0;
        const double length = Finite(g.amount) * scale;
        const QColor colour = received ? m_colours.received : m_colours.paid;
        if (length >= 1.0) {
            Arrow(p, QPointF(x, baseline), QPointF(x, baseline + (received ? -length : length)), head, colour, g.count > 1);
        }
        if (i % static_cast<std::size_t>(every) != 0) continue;
        p.setPen(m_colours.text);
        const QString amount = Amount(g.amount) + (g.count > 1 ? QStringLiteral(" ×%1").arg(g.count) : QString());
        const double tip = baseline + (received ? -length : length);
        const QRectF label(x - slot * every / 2, received ? tip - line - 2 : tip + 2, slot * every, line);
        p.drawText(label, Qt::AlignHCenter | Qt::AlignVCenter, amount);
        const QString period = g.count > 1 ? QStringLiteral("%1–%2").arg(g.firstPeriod).arg(g.firstPeriod + g.count - 1)
                                           : QString::number(g.firstPeriod);
        p.drawText(QRectF(x - slot * every / 2, height() - line - 4, slot * every, line), Qt::AlignHCenter | Qt::AlignTop,
                   period);
    }
    // NPV and IRR/YR beside the diagram.
    double y = plot.top();
    for (const QString& f : m_figures) {
        p.drawText(QRectF(width() - figuresWidth, y, figuresWidth - 8, line), Qt::AlignLeft | Qt::AlignVCenter, f);
        y += line * 1.3;
    }
}

}  // namespace brinto::dialogs
