#include "app/dialogs/stack_view.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "display/display_text.h"
#include "engine/function_ids.h"
#include "session/key_legends.h"

namespace brinto::dialogs {
namespace {

constexpr std::array kStackKeys = {fid::Rotate3, fid::Over, fid::Drop, fid::Swap};

}  // namespace

StackView::StackView(Session& session, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_session(session), m_lines(new QListWidget(this)) {
    setWindowTitle(QStringLiteral("Stack"));
    setModal(false);
    m_lines->setSelectionMode(QAbstractItemView::NoSelection);
    m_lines->setAccessibleName(QStringLiteral("Stack levels"));
    m_lines->setSpacing(1);
    auto* keys = new QHBoxLayout;
    for (const FunctionId id : kStackKeys) {
        const KeyLegend* legend = FindLegend(id);
        auto* button = new QPushButton(legend ? ToQString(legend->legend) : QString(), this);
        if (legend) button->setToolTip(ToQString(legend->fullName));
        if (legend) button->setAccessibleName(ToQString(legend->fullName));
        button->setFixedHeight(30);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QPushButton::clicked, this, [this, id] { Press(id); });
        keys->addWidget(button);
    }
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_lines, 1);
    column->addLayout(keys);
    column->addWidget(MakeButtonRow(this, QDialogButtonBox::Close, "rpnstack", help));
    resize(300, 420);
    Refresh();
}

void StackView::Refresh() {
    const Engine& e = m_session.engine();
    const int depth = e.StackDepth();
    m_lines->clear();
    for (int level = depth - 1; level >= 0; --level) {
        const DisplayLine line = DisplayLevel(e, level);
        QString text = ToQString(line.text);
        if (!line.label.empty()) text += QStringLiteral("  ") + ToQString(line.label);
        auto* item = new QListWidgetItem(text, m_lines);
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    m_lines->scrollToBottom();
}

void StackView::Press(FunctionId id) {
    m_session.TapViewKey(id);
    Refresh();
    emit changed();
}

}  // namespace brinto::dialogs
