#include "app/dialogs/register_view.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <string_view>

#include "app/dialogs/money_chart_views.h"
#include "app/dialogs/ui_text.h"
#include "display/labels.h"
#include "engine/function_ids.h"
#include "engine/value_tags.h"
#include "finance/amortization.h"

namespace brinto::dialogs {
namespace {

struct RegisterRow {
    int number;
    ValueTag labelCode;
    FunctionId solveKey;  // kNoKey where the register is not computed
};

constexpr std::array kTvmRows = {
    RegisterRow{reg::PYr, label::PerYear, kNoKey},     RegisterRow{reg::N, label::Periods, fid::N},
    RegisterRow{reg::IYr, label::YearlyRate, fid::IYr}, RegisterRow{reg::PV, label::PresentValue, fid::PV},
    RegisterRow{reg::PMT, label::Payment, fid::PMT},    RegisterRow{reg::FV, label::FutureValue, fid::FV},
};
constexpr std::array kStatisticalRows = {
    RegisterRow{reg::StatN, label::Count, kNoKey},  RegisterRow{reg::SumX, label::SumX, kNoKey},
    RegisterRow{reg::SumX2, label::SumX2, kNoKey},  RegisterRow{reg::SumY, label::SumY, kNoKey},
    RegisterRow{reg::SumY2, label::SumY2, kNoKey},  RegisterRow{reg::SumXY, label::SumXY, kNoKey},
};

struct ListInfo {
    const char* title;
    std::string_view anchor;
};
constexpr std::array kLists = {
    ListInfo{QT_TRANSLATE_NOOP("Ui", "Time Value of Money"), "tvm"},
    ListInfo{QT_TRANSLATE_NOOP("Ui", "Amortization"), "amortization"},
    ListInfo{QT_TRANSLATE_NOOP("Ui", "Statistical Registers"), "statistical"},
    ListInfo{QT_TRANSLATE_NOOP("Ui", "Cash Flow Entries"), "cashflow"},
    ListInfo{QT_TRANSLATE_NOOP("Ui", "User Registers"), "userregisters"},
};

constexpr int kLabelColumn = 0;
constexpr int kValueColumn = 1;
constexpr int kExtraColumn = 2;  // Nj of a cash flow, "Solve" of a TVM register, a register's tag

QString Label(ValueTag code) { return ToQString(LabelText(code)); }

}  // namespace

// Edits a row in place as a number field: a refused text keeps its editor open, also when the
// focus leaves it, until it is corrected or Escape gives it up.
class RegisterView::FieldDelegate : public QStyledItemDelegate {
public:
    explicit FieldDelegate(RegisterView* view) : QStyledItemDelegate(view), m_view(view) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
        auto* edit = new QLineEdit(parent);
        ++m_view->m_editors;
        edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        WatchNumberField(edit, m_view->m_session.engine(), m_view->KindAt(index.row(), index.column()),
                         m_view->m_problem);
        return edit;
    }
    // Moving to another cell commits and closes the editor whatever it holds: a refused text then
    // stores nothing, and the line under the table keeps saying so.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
        auto* edit = qobject_cast<QLineEdit*>(editor);
        if (!edit || edit->hasAcceptableInput()) {
            QStyledItemDelegate::setModelData(editor, model, index);
            return;
        }
        const FieldReading reading = ReadNumberField(m_view->m_session.engine(), edit->text(), m_view->KindAt(index.row(), index.column()));
        const QString label = m_view->m_table->item(index.row(), kLabelColumn)->text();
        m_view->m_problem->setText(Ui::tr("%1: %2 unchanged").arg(MessageText(reading.problem), label));
        m_view->m_problem->show();
        m_refusedOnClose = true;
    }
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override {
        --m_view->m_editors;
        if (!m_refusedOnClose) m_view->m_problem->hide();
        m_refusedOnClose = false;
        QStyledItemDelegate::destroyEditor(editor, index);
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* edit = qobject_cast<QLineEdit*>(object);
        if (edit && event->type() == QEvent::FocusOut && !edit->hasAcceptableInput()) return false;
        return QStyledItemDelegate::eventFilter(object, event);
    }

private:
    RegisterView* m_view;
    mutable bool m_refusedOnClose = false;
};

int CashFlowRows(const Engine& e) {
    int rows = 0;
    while (rows < kUserRegisters && e.registers.aux[rows] >= 1) ++rows;
    return rows;
}

RegisterView::RegisterView(Session& session, RegisterList list, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_session(session), m_list(list), m_table(new QTableWidget(this)),
      m_problem(MakeProblemLine(this)) {
    const ListInfo& info = kLists[static_cast<std::size_t>(list)];
    setWindowTitle(Ui::tr(info.title));
    m_table->setAccessibleName(Ui::tr(info.title));
    // Tab and Shift+Tab go on to the buttons; the arrows move between the cells.
    m_table->setTabKeyNavigation(false);
    m_table->setColumnCount(list == RegisterList::Statistical || list == RegisterList::Amortization ? 2 : 3);
    m_table->horizontalHeader()->setVisible(list == RegisterList::CashFlow);
    if (list == RegisterList::CashFlow) {
        m_table->setHorizontalHeaderLabels({QString(), Ui::tr("Amount"), Label(label::GroupCount)});
    }
    m_table->verticalHeader()->setVisible(false);
    m_table->horizontalHeader()->setSectionResizeMode(kValueColumn, QHeaderView::Stretch);
    m_table->setItemDelegate(new FieldDelegate(this));
    connect(m_table->itemDelegate(), &QAbstractItemDelegate::closeEditor, this, [this] {
        if (!m_refreshAfterEdit) return;
        m_refreshAfterEdit = false;
        QTimer::singleShot(0, this, &RegisterView::Refresh);  // once the editor is gone
    });
    auto* column = new QVBoxLayout(this);
    if (list == RegisterList::CashFlow) {
        m_diagram = new CashFlowDiagramView(this);
        column->addWidget(m_diagram, 1);
    }
    column->addWidget(m_table, 1);
    column->addWidget(m_problem);
    QDialogButtonBox* buttons = MakeButtonRow(this, QDialogButtonBox::Close, info.anchor, help);
    // Return closes the view; it never opens the schedule.
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    if (list == RegisterList::Amortization) {
        QPushButton* schedule = buttons->addButton(Ui::tr("Schedule..."), QDialogButtonBox::ActionRole);
        schedule->setAutoDefault(false);
        connect(schedule, &QPushButton::clicked, this, &RegisterView::scheduleRequested);
    }
    column->addWidget(buttons);
    connect(m_table, &QTableWidget::cellChanged, this, &RegisterView::Edited);
    connect(m_table, &QTableWidget::cellActivated, this, [this](int row, int column) {
        if (column != kExtraColumn || row < 0 || row >= static_cast<int>(m_rows.size())) return;
        if (const FunctionId key = m_rows[static_cast<std::size_t>(row)].solveKey; key != kNoKey) Solve(key);
    });
    if (m_diagram) {
        resize(440, 520);
    } else {
        resize(320, 360);
    }
    Refresh();
}

void RegisterView::SetChartColours(const ChartColours& colours) {
    if (m_diagram) m_diagram->SetColours(colours);
}

std::vector<RegisterView::Row> RegisterView::Rows() const {
    const Engine& e = m_session.engine();
    const double* r = e.registers.values;
    std::vector<Row> rows;
    const auto registers = [&](auto table, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            const RegisterRow& row = table[i];
            rows.push_back({Label(row.labelCode), r[row.number], Source::Register, row.number, row.solveKey, 0});
        }
    };
    switch (m_list) {
        case RegisterList::Tvm: registers(kTvmRows, kTvmRows.size()); break;
        case RegisterList::Amortization: {
            registers(kTvmRows, kTvmRows.size() - 1);  // without FV
            for (Row& row : rows) row.solveKey = kNoKey;
            const CalcState& s = e.state;
            rows.push_back({Label(label::Start), double(s.amortStart), Source::AmortStart, 0, kNoKey, 0});
            rows.push_back({Label(label::End), double(s.amortEnd), Source::AmortEnd, 0, kNoKey, 0});
            // The results of the range shown, as the amortization key would give them now.
            const AmortizationResults results = AmortizeStoredRange(e);
            rows.push_back({Label(label::Interest), results.interest, Source::Result, 0, kNoKey, 0});
            rows.push_back({Label(label::Principal), results.principal, Source::Result, 0, kNoKey, 0});
            rows.push_back({Label(label::Balance), results.balance, Source::Result, 0, kNoKey, 0});
            break;
        }
        case RegisterList::Statistical: registers(kStatisticalRows, kStatisticalRows.size()); break;
        case RegisterList::CashFlow:
            for (int j = 0; j < CashFlowRows(e); ++j) {
                rows.push_back({QStringLiteral("CF%1").arg(j), r[j], Source::CashFlow, j, kNoKey,
                                static_cast<int>(e.registers.aux[j])});
            }
            break;
        case RegisterList::UserRegisters: {
            const int count = e.prefs.HundredRegisters() ? kUserRegisters : 10;
            for (int n = 0; n < count; ++n) {
                rows.push_back({QStringLiteral("R%1").arg(n), r[n], Source::Register, n, kNoKey, 0});
            }
            break;
        }
    }
    return rows;
}

void RegisterView::Refresh() {
    // A value being typed is not overwritten, also not when another program changed the
    // calculator meanwhile: the view follows once the edit is over.
    if (m_editors > 0) {
        m_refreshAfterEdit = true;
        return;
    }
    const Engine& e = m_session.engine();
    m_filling = true;
    m_rows = Rows();
    m_table->setRowCount(static_cast<int>(m_rows.size()));
    for (int i = 0; i < static_cast<int>(m_rows.size()); ++i) {
        const Row& row = m_rows[static_cast<std::size_t>(i)];
        auto* name = new QTableWidgetItem(row.label);
        name->setFlags(Qt::ItemIsEnabled);
        m_table->setItem(i, kLabelColumn, name);
        auto* value = new QTableWidgetItem(DisplayNumber(e, row.value));
        value->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        if (row.source == Source::Result) value->setFlags(Qt::ItemIsEnabled);
        m_table->setItem(i, kValueColumn, value);
        if (row.source == Source::CashFlow) {
            m_table->setItem(i, kExtraColumn, new QTableWidgetItem(QString::number(row.groupCount)));
        } else if (m_list == RegisterList::UserRegisters) {
            auto* tag = new QTableWidgetItem(row.number < kUserRegisters ? Label(e.registers.tags[row.number]) : QString());
            tag->setFlags(Qt::ItemIsEnabled);
            m_table->setItem(i, kExtraColumn, tag);
        } else if (row.solveKey != kNoKey && !m_table->cellWidget(i, kExtraColumn)) {
            auto* solve = new QPushButton(Ui::tr("Solve"));
            solve->setAutoDefault(false);
            solve->setAccessibleName(Ui::tr("Solve %1").arg(row.label));
            const FunctionId key = row.solveKey;
            connect(solve, &QPushButton::clicked, this, [this, key] { Solve(key); });
            m_table->setCellWidget(i, kExtraColumn, solve);
            // Screen readers see the table's cells, not the buttons on them: the cell under the
            // button is named for it, and activating the cell (Return) solves as the button does.
            auto* cell = new QTableWidgetItem(solve->accessibleName());
            cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            m_table->setItem(i, kExtraColumn, cell);
        }
    }
    m_table->resizeColumnToContents(kLabelColumn);
    m_filling = false;
    if (m_diagram) {
        CashFlowDiagram diagram = MakeCashFlowDiagram(e);
        QStringList figures;
        if (diagram.npv) figures << Label(label::NetPresentValue) + QLatin1Char(' ') + DisplayNumber(e, *diagram.npv);
        if (diagram.irr) figures << Label(label::ReturnRate) + QLatin1Char(' ') + DisplayNumber(e, *diagram.irr);
        m_diagram->SetDiagram(std::move(diagram), figures);
    }
}

FieldKind RegisterView::KindAt(int row, int column) const {
    if (row < 0 || row >= static_cast<int>(m_rows.size())) return FieldKind::Value;
    switch (m_rows[static_cast<std::size_t>(row)].source) {
        case Source::AmortStart:
        case Source::AmortEnd: return FieldKind::Payment;
        case Source::CashFlow: return column == kValueColumn ? FieldKind::Value : FieldKind::GroupCount;
        case Source::Register:
        case Source::Result: return FieldKind::Value;
    }
    return FieldKind::Value;
}

void RegisterView::Edited(int row, int column) {
    if (m_filling || row < 0 || row >= static_cast<int>(m_rows.size())) return;
    const Row& edited = m_rows[static_cast<std::size_t>(row)];
    const FieldReading reading =
        ReadNumberField(m_session.engine(), m_table->item(row, column)->text(), KindAt(row, column));
    bool stored = false;
    if (const auto number = reading.value) {
        // Payment and GroupCount readings are whole numbers within an int.
        const auto whole = [&] { return static_cast<int>(*number); };
        // The other end of a range never set (0) counts as payment 1, as the amortization key takes it.
        const int start = std::max<int>(1, m_session.engine().state.amortStart);
        const int end = std::max<int>(1, m_session.engine().state.amortEnd);
        switch (edited.source) {
            case Source::Register: stored = m_session.StoreRegister(edited.number, *number); break;
            case Source::AmortStart: stored = m_session.SetAmortizationRange(whole(), end); break;
            case Source::AmortEnd: stored = m_session.SetAmortizationRange(start, whole()); break;
            case Source::Result: break;
            case Source::CashFlow:
                stored = column == kValueColumn ? m_session.StoreCashFlow(edited.number, *number, edited.groupCount)
                                                : m_session.StoreCashFlow(edited.number, edited.value, whole());
                break;
        }
    }
    Refresh();
    // Only text set from outside an editor gets here refused; it is said, not dropped silently.
    m_problem->setText(reading.value ? QString() : MessageText(reading.problem));
    m_problem->setVisible(!reading.value);
    if (stored) emit changed();
}

// A refused edit left open is given up when the view closes: the next opening shows the registers.
void RegisterView::hideEvent(QHideEvent* event) {
    for (QLineEdit* editor : m_table->viewport()->findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly)) {
        Q_EMIT m_table->itemDelegate()->closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
    }
    m_problem->hide();
    QDialog::hideEvent(event);
}

void RegisterView::Solve(FunctionId key) {
    m_session.Solve(key);
    Refresh();
    emit changed();
}

}  // namespace brinto::dialogs
