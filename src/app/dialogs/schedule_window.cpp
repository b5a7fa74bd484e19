#include "app/dialogs/schedule_window.h"

#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>
#include <cmath>
#include <string>

#include "app/dialogs/ui_text.h"
#include "engine/register_bank.h"

namespace brinto::dialogs {
namespace {

QTableWidgetItem* Cell(const QString& text) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

}  // namespace

ScheduleWindow::ScheduleWindow(const Engine& engine, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_engine(engine), m_chart(new ScheduleChartView(this)), m_table(new QTableWidget(this)) {
    setWindowTitle(Ui::tr("Amortization Schedule"));
    m_table->setColumnCount(5);
    m_table->setAccessibleName(Ui::tr("Payments"));
    m_table->setTabKeyNavigation(false);  // Tab goes on to the buttons
    m_table->setHorizontalHeaderLabels(
        {Ui::tr("Year"), Ui::tr("Payment"), Ui::tr("Int"), Ui::tr("Prin"), Ui::tr("Bal")});
    m_table->verticalHeader()->setVisible(false);
    // Whole amounts, never elided: the columns take their widths, and the table scrolls across.
    m_table->setTextElideMode(Qt::ElideNone);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_cutShort = new QLabel(this);
    m_cutShort->setWordWrap(true);
    m_cutShort->hide();
    QDialogButtonBox* buttons = MakeButtonRow(this, QDialogButtonBox::Close, "schedule", help);
    // Return closes the window; it never asks for a file.
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    QPushButton* exportCsv = buttons->addButton(Ui::tr("Export CSV..."), QDialogButtonBox::ActionRole);
    exportCsv->setAutoDefault(false);
    connect(exportCsv, &QPushButton::clicked, this, [this] { AskAndExport(); });
    connect(m_table->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { FollowRows(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_chart, 2);
    column->addWidget(m_table, 3);
    column->addWidget(m_cutShort);
    column->addWidget(buttons);
    resize(560, 640);
}

void ScheduleWindow::SetChartColours(const ChartColours& colours) { m_chart->SetColours(colours); }

void ScheduleWindow::FollowRows() {
    const int rows = static_cast<int>(m_rowPayments.size());
    int first = m_table->rowAt(0);
    int last = m_table->rowAt(m_table->viewport()->height() - 1);
    if (first < 0 || rows == 0) {
        m_chart->ShowPayments(1, 0);
        return;
    }
    if (last < 0 || last >= rows) last = rows - 1;
    m_chart->ShowPayments(m_rowPayments[static_cast<std::size_t>(first)], m_rowPayments[static_cast<std::size_t>(last)]);
}

void ScheduleWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    FollowRows();
}

void ScheduleWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    FollowRows();
}

// The amounts as the display writes them (grouped, in the radix in force); each year's totals
// after its last payment, as in the CSV.
void ScheduleWindow::Refresh() {
    m_schedule = MakeAmortizationSchedule(m_engine);
    const auto amount = [this](double value) { return Cell(DisplayNumber(m_engine, value)); };
    const auto year = m_schedule.years.begin();
    m_table->setRowCount(static_cast<int>(m_schedule.payments.size() + m_schedule.years.size()));
    m_rowPayments.clear();
    int row = 0;
    auto totals = year;
    for (const ScheduleRow& payment : m_schedule.payments) {
        while (totals != m_schedule.years.end() && totals->lastPayment < payment.payment) ++totals;
        const int yearNumber = totals != m_schedule.years.end() ? totals->year : 0;
        m_table->setItem(row, 0, Cell(QString::number(yearNumber)));
        m_table->setItem(row, 1, Cell(QString::number(payment.payment)));
        m_table->setItem(row, 2, amount(payment.interest));
        m_table->setItem(row, 3, amount(payment.principal));
        m_table->setItem(row, 4, amount(payment.balance));
        m_rowPayments.push_back(payment.payment);
        ++row;
        if (totals != m_schedule.years.end() && totals->lastPayment == payment.payment) {
            m_table->setItem(row, 0, Cell(QString::number(totals->year)));
            m_table->setItem(row, 1, Cell(Ui::tr("Total")));
            m_table->setItem(row, 2, amount(totals->interest));
            m_table->setItem(row, 3, amount(totals->principal));
            m_table->setItem(row, 4, amount(totals->balance));
            m_rowPayments.push_back(payment.payment);  // a year's total follows its last payment
            ++row;
        }
    }
    m_table->setRowCount(row);
    m_table->resizeColumnsToContents();
    // A loan longer than the amortization keys reach is listed up to their last payment, and says so.
    const double periods = m_engine.registers.values[reg::N];
    const bool cutShort = periods >= kMostSchedulePayments + 1.0;
    m_cutShort->setText(cutShort
                            ? Ui::tr("Listed up to payment %1 of %2: the amortization keys reach no further.")
                                  .arg(DisplayNumber(m_engine, kMostSchedulePayments),
                                       DisplayNumber(m_engine, std::trunc(periods)))
                            : QString());
    m_cutShort->setVisible(cutShort);
    m_chart->SetChart(MakeScheduleChart(m_schedule, m_engine.registers.values[reg::PV], m_engine.prefs.CommaRadix()));
    FollowRows();
}

bool ScheduleWindow::ExportTo(const QString& path) const {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    const std::string csv = ScheduleCsv(m_schedule);
    return file.write(csv.data(), static_cast<qint64>(csv.size())) == static_cast<qint64>(csv.size());
}

void ScheduleWindow::AskAndExport() {
    const QString path = QFileDialog::getSaveFileName(
        this, Ui::tr("Export CSV"), QStringLiteral("amortization.csv"), Ui::tr("CSV files (*.csv)"));
    if (path.isEmpty()) return;
    if (!ExportTo(path)) {
        QMessageBox::warning(this, Ui::tr("Export CSV"),
                             Ui::tr("The schedule could not be written to %1.").arg(path));
    }
}

}  // namespace brinto::dialogs
