#include "app/dialogs/constants_dialog.h"

#include <QListWidget>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "app/dialogs/ui_text.h"
#include "ops/constants.h"

namespace brinto::dialogs {

ConstantsDialog::ConstantsDialog(Session& session, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_session(session), m_list(new QListWidget(this)) {
    setWindowTitle(Ui::tr("Constants"));
    m_list->setAccessibleName(Ui::tr("Constants"));
    for (int i = 0; i < kConstantCount; ++i) m_list->addItem(ConstantText(ConstantName(i)));
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &ConstantsDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_list);
    column->addWidget(MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "constants", help));
    resize(320, 360);
    Load();
}

void ConstantsDialog::Load() {
    const int top = std::min<int>(m_session.engine().state.constantsTopRow, kConstantCount - 1);
    m_list->clearSelection();
    m_list->setCurrentRow(-1);
    m_list->scrollToItem(m_list->item(top), QAbstractItemView::PositionAtTop);
}

// The first row in view; per-item scrolling makes it the scroll bar's value.
int ConstantsDialog::TopRow() const {
    const QListWidgetItem* top = m_list->itemAt(2, 2);
    return top ? m_list->row(top) : m_list->verticalScrollBar()->value();
}

void ConstantsDialog::accept() {
    const QList<QListWidgetItem*> selected = m_list->selectedItems();
    if (selected.isEmpty()) return;
    m_session.RecallConstant(m_list->row(selected.front()), static_cast<u16>(TopRow()));
    m_list->clearSelection();
    emit changed();
    QDialog::accept();
}

}  // namespace brinto::dialogs
