#include "app/dialogs/stack_view.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "app/dialogs/ui_text.h"
#include "display/display_text.h"
#include "engine/function_ids.h"
#include "session/key_legends.h"

namespace brinto::dialogs {
namespace {

constexpr std::array kStackKeys = {fid::Rotate3, fid::Over, fid::Drop, fid::Swap};

// The levels' names: X, Y, Z and T beside the four lowest levels.
constexpr std::array kLevelNames = {"X", "Y", "Z", "T"};

// Draws a level's name at the left of its line, its value at the right.
class LevelDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        const QString name = index.data(Qt::UserRole).toString();
        if (name.isEmpty()) return;
        painter->save();
        QFont bold = option.font;
        bold.setBold(true);
        painter->setFont(bold);
        painter->setPen(option.palette.color(QPalette::PlaceholderText));
        painter->drawText(option.rect.adjusted(6, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, name);
        painter->restore();
    }
};

}  // namespace

// The lines sit at the bottom of the pane, X lowest, however few there are.
class StackView::Lines : public QListWidget {
public:
    using QListWidget::QListWidget;
    void Settle() {
        const int rows = count() == 0 ? 0 : count() * (sizeHintForRow(0) + 2 * spacing());
        setViewportMargins(0, std::max(0, height() - 2 * frameWidth() - rows), 0, 0);
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QListWidget::resizeEvent(event);
        Settle();
    }
};

StackView::StackView(Session& session, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_session(session), m_lines(new Lines(this)) {
    setWindowTitle(Ui::tr("Stack"));
    setModal(false);
    m_lines->setSelectionMode(QAbstractItemView::NoSelection);
    m_lines->setItemDelegate(new LevelDelegate(m_lines));
    m_lines->setFocusPolicy(Qt::NoFocus);
    m_lines->setAccessibleName(Ui::tr("Stack levels"));
    m_lines->setSpacing(1);
    auto* keys = new QHBoxLayout;
    for (const FunctionId id : kStackKeys) {
        const KeyLegend* legend = FindLegend(id);
        auto* button = new QPushButton(legend ? ToQString(legend->legend) : QString(), this);
        if (legend) button->setToolTip(KeyMeaningText(legend->fullName));
        if (legend) button->setAccessibleName(KeyMeaningText(legend->fullName));
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

QListWidget* StackView::lines() const { return m_lines; }

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
        if (level < static_cast<int>(kLevelNames.size())) item->setData(Qt::UserRole, QString::fromLatin1(kLevelNames[level]));
    }
    m_lines->Settle();
    m_lines->scrollToBottom();
}

void StackView::Press(FunctionId id) {
    m_session.TapViewKey(id);
    Refresh();
    emit changed();
}

}  // namespace brinto::dialogs
