#pragma once
// The views that list registers as labelled rows: "Time Value of Money", "Amortization",
// "Statistical Registers", "Cash Flow Entries" and "User Registers". Values are written as the
// display writes them and can be edited in place: an edited value goes back through the same
// register as one undoable step (a cash-flow row keeps a group count of at least 1). The TVM rows
// have a "Solve" button that computes the register as its key does. "Cash Flow Entries" shows the
// cash-flow diagram above its rows.
#include <QDialog>
#include <vector>

#include "app/dialogs/dialog_support.h"
#include "session/session.h"

class QLabel;
class QTableWidget;

namespace brinto::dialogs {

class CashFlowDiagramView;
struct ChartColours;

enum class RegisterList { Tvm, Amortization, Statistical, CashFlow, UserRegisters };

class RegisterView : public QDialog {
    Q_OBJECT
public:
    RegisterView(Session& session, RegisterList list, const HelpFunction& help, QWidget* parent);

    // Rewrites every row from the calculator.
    void Refresh();
    QTableWidget* table() const { return m_table; }
    // The cash-flow diagram; nullptr in the other views.
    CashFlowDiagramView* diagram() const { return m_diagram; }
    void SetChartColours(const ChartColours& colours);
    // The line that says why an edited value is refused.
    QLabel* problem() const { return m_problem; }

Q_SIGNALS:
    // The calculator changed: the main window repaints.
    void changed();
    // The Amortization view's "Schedule..." button.
    void scheduleRequested();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    // What a row shows and where an edit of it goes.
    enum class Source { Register, AmortStart, AmortEnd, Result, CashFlow };
    struct Row {
        QString label;
        double value;
        Source source;
        int number;          // register, or cash-flow entry
        FunctionId solveKey; // kNoKey: no "Solve"
        int groupCount;      // cash flows only
    };
    class FieldDelegate;
    std::vector<Row> Rows() const;
    FieldKind KindAt(int row, int column) const;
    void Edited(int row, int column);
    void Solve(FunctionId key);

    Session& m_session;
    RegisterList m_list;
    QTableWidget* m_table;
    CashFlowDiagramView* m_diagram = nullptr;
    QLabel* m_problem;
    std::vector<Row> m_rows;
    bool m_filling = false;
    bool m_refreshAfterEdit = false;  // a refresh came while a value was being typed
    int m_editors = 0;                // editors open on the table
};

// The number of rows "Cash Flow Entries" lists: the leading entries with a group count of at
// least 1. Below 2 (nothing beyond CF0) the view is not opened.
int CashFlowRows(const Engine& e);

}  // namespace brinto::dialogs
