#pragma once
// "Amortization Schedule": every payment of the loan in the TVM registers with its interest,
// principal and balance as the display writes amounts, and each year's totals after its last
// payment. "Export CSV..." writes the same lines to a file, amounts as the CSV writes them. Building the schedule changes nothing in the calculator.
#include <QDialog>
#include <QString>

#include "app/dialogs/dialog_support.h"
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
    // Says when the loan is longer than the list.
    QLabel* cutShortNote() const { return m_cutShort; }

private:
    void AskAndExport();

    const Engine& m_engine;
    AmortizationSchedule m_schedule;
    QTableWidget* m_table;
    QLabel* m_cutShort;
};

}  // namespace brinto::dialogs
