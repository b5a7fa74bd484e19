#include "app/dialogs/schedule_window.h"

#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>
#include <string>

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
    setWindowTitle(QStringLiteral("Amortization Schedule"));
    m_table->setColumnCount(5);
    m_table->setAccessibleName(QStringLiteral("Payments"));
    m_table->setTabKeyNavigation(false);  // Tab goes on to the buttons
    m_table->setHorizontalHeaderLabels({QStringLiteral("Year"), QStringLiteral("Payment"), QStringLiteral("Int"),
                                        QStringLiteral("Prin"), QStringLiteral("Bal")});
    m_table->verticalHeader()->setVisible(false);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    QDialogButtonBox* buttons = MakeButtonRow(this, QDialogButtonBox::Close, "amortization", help);
    QPushButton* exportCsv = buttons->addButton(QStringLiteral("Export CSV..."), QDialogButtonBox::ActionRole);
    connect(exportCsv, &QPushButton::clicked, this, [this] { AskAndExport(); });
    connect(m_table->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { FollowRows(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_chart, 2);
    column->addWidget(m_table, 3);
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

// The table shows the amounts as the CSV has them: one text per line, split at the commas.
void ScheduleWindow::Refresh() {
    m_schedule = MakeAmortizationSchedule(m_engine);
    const QStringList lines = QString::fromStdString(ScheduleCsv(m_schedule)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    m_table->setRowCount(static_cast<int>(lines.size()) - 1);
    m_rowPayments.clear();
    for (int row = 1; row < lines.size(); ++row) {
        const QStringList fields = lines[row].split(QLatin1Char(','));
        for (int column = 0; column < fields.size() && column < 5; ++column) {
            m_table->setItem(row - 1, column, Cell(fields[column]));
        }
        bool number = false;
        const int payment = fields.size() > 1 ? fields[1].toInt(&number) : 0;
        m_rowPayments.push_back(number ? payment : m_rowPayments.empty() ? 0 : m_rowPayments.back());
    }
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
    const QString path = QFileDialog::getSaveFileName(this, QStringLiteral("Export CSV"),
                                                      QStringLiteral("amortization.csv"),
                                                      QStringLiteral("CSV files (*.csv)"));
    if (path.isEmpty()) return;
    if (!ExportTo(path)) {
        QMessageBox::warning(this, QStringLiteral("Export CSV"),
                             QStringLiteral("The schedule could not be written to %1.").arg(path));
    }
}

}  // namespace brinto::dialogs
