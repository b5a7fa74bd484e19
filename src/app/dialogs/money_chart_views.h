#pragma once
// The two pictures of money over time, drawn with QPainter from what session/money_charts.h
// works out: the amortization schedule's chart (the balance as a line, each period's interest
// and principal as a stacked bar, on two scales) and the Cash Flow Entries view's diagram (a time
// line with an arrow per flow, up for money received and down for money paid, lengths to scale,
// a group of Nj equal flows as one arrow marked "×Nj"). Both are made only when their window is
// first opened, draw in the theme's display colours, and carry their summary as accessible name.
#include <QColor>
#include <QString>
#include <QWidget>

#include "session/money_charts.h"
#include "session/screen_colours.h"

namespace brinto::dialogs {

// The colours of both pictures: the display's, so that they follow the theme.
struct ChartColours {
    QColor background, text, grid, balance, interest, principal, received, paid;
};
ChartColours MakeChartColours(const ScreenColours& screen);

class ScheduleChartView : public QWidget {
public:
    explicit ScheduleChartView(QWidget* parent = nullptr);

    void SetChart(ScheduleChart chart);
    void SetColours(const ChartColours& colours);
    // The payments of the table rows in view, shaded on the chart; first > last shades none.
    void ShowPayments(int first, int last);
    const ScheduleChart& chart() const { return m_chart; }
    int firstShown() const { return m_firstShown; }
    int lastShown() const { return m_lastShown; }

    QSize sizeHint() const override { return {520, 230}; }
    QSize minimumSizeHint() const override { return {240, 150}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ScheduleChart m_chart;
    ChartColours m_colours;
    int m_firstShown = 1, m_lastShown = 0;
};

class CashFlowDiagramView : public QWidget {
public:
    explicit CashFlowDiagramView(QWidget* parent = nullptr);

    // `figures`: NPV and IRR/YR as the display writes them, one "LABEL VALUE" a line, shown beside
    // the diagram (empty where neither is defined).
    void SetDiagram(CashFlowDiagram diagram, const QStringList& figures);
    void SetColours(const ChartColours& colours);
    const CashFlowDiagram& diagram() const { return m_diagram; }

    QSize sizeHint() const override { return {420, 200}; }
    QSize minimumSizeHint() const override { return {220, 140}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    CashFlowDiagram m_diagram;
    QStringList m_figures;
    ChartColours m_colours;
};

}  // namespace brinto::dialogs
