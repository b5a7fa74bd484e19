#include "app/dialogs/schedule_window.h"

#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
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
    : QDialog(parent), m_engine(engine), m_table(new QTableWidget(this)) {
    setWindowTitle(QStringLiteral("Amortization Schedule"));
    m_table->setColumnCount(5);
    m_table->setHorizontalHeaderLabels({QStringLiteral("Year"), QStringLiteral("Payment"), QStringLiteral("Int"),
                                        QStringLiteral("Prin"), QStringLiteral("Bal")});
    m_table->verticalHeader()->setVisible(false);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    QDialogButtonBox* buttons = MakeButtonRow(this, QDialogButtonBox::Close, "amortization", help);
    // Return closes the window; it never asks for a file.
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    QPushButton* exportCsv = buttons->addButton(QStringLiteral("Export CSV..."), QDialogButtonBox::ActionRole);
    exportCsv->setAutoDefault(false);
    connect(exportCsv, &QPushButton::clicked, this, [this] { AskAndExport(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_table);
    column->addWidget(buttons);
    resize(480, 480);
}

// The table shows the amounts as the CSV has them: one text per line, split at the commas.
void ScheduleWindow::Refresh() {
    m_schedule = MakeAmortizationSchedule(m_engine);
    const QStringList lines = QString::fromStdString(ScheduleCsv(m_schedule)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    m_table->setRowCount(static_cast<int>(lines.size()) - 1);
    for (int row = 1; row < lines.size(); ++row) {
        const QStringList fields = lines[row].split(QLatin1Char(','));
        for (int column = 0; column < fields.size() && column < 5; ++column) {
            m_table->setItem(row - 1, column, Cell(fields[column]));
        }
    }
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
