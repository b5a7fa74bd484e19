#pragma once
// "Amortization Schedule": every payment of the loan in the TVM registers with its interest,
// principal and balance as the display writes amounts, and each year's totals after its last
// payment, under a chart of the balance and of each period's interest and principal that shades
// the payments the table shows. "Export CSV..." writes the same lines to a file, amounts as the
// CSV writes them. Building the schedule changes nothing in the calculator.
#include <QDialog>
#include <QString>

#include <vector>

#include "app/dialogs/dialog_support.h"
#include "app/dialogs/money_chart_views.h"
#include "finance/amortization_schedule.h"

class QLabel;
class QTableWidget;

namespace brinto::dialogs {

class ScheduleWindow : public QDialog {
public:
    ScheduleWindow(const Engine& engine, const HelpFunction& help, QWidget* parent);

    // Lists the schedule of the loan now in the registers.
    void Refresh();
    // Writes the schedule as CSV to `path`; false when the file cannot be written.
    bool ExportTo(const QString& path) const;
    QTableWidget* table() const { return m_table; }
    ScheduleChartView* chart() const { return m_chart; }
    void SetChartColours(const ChartColours& colours);
    // Says when the loan is longer than the list.
    QLabel* cutShortNote() const { return m_cutShort; }

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void AskAndExport();
    // Shades on the chart the payments of the rows in view.
    void FollowRows();

    const Engine& m_engine;
    AmortizationSchedule m_schedule;
    ScheduleChartView* m_chart;
    QTableWidget* m_table;
    std::vector<int> m_rowPayments;  // the payment of each table row (a year's total: its last)
    QLabel* m_cutShort;
};

}  // namespace brinto::dialogs
