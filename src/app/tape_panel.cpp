#include "app/tape_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QSaveFile>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/dialogs/ui_text.h"
#include "session/session.h"
#include "session/session_store.h"

namespace brinto {

namespace {

QString Text(const std::string& s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

QString ResultText(const TapeLine& line) {
    return line.label.empty() ? Text(line.result) : Text(line.result + "  " + line.label);
}

// The list answers Return and the copy keys itself: the window's own Ctrl+C copies X, but with the
// tape in hand it is the tape's line that is meant.
class TapeList : public QTreeWidget {
public:
    explicit TapeList(TapePanel* panel) : m_panel(panel) {}

protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride) {
            auto* key = static_cast<QKeyEvent*>(event);
            if (key->matches(QKeySequence::Copy) || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                event->accept();
                return true;
            }
        }
        return QTreeWidget::event(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Copy)) {
            m_panel->CopyCurrent();
        } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            m_panel->RecallCurrent();
        } else {
            QTreeWidget::keyPressEvent(event);
        }
    }

private:
    TapePanel* m_panel;
};

}  // namespace

TapePanel::TapePanel(Session& session, SessionStore* store, QWidget* parent)
    : QDockWidget(Ui::tr("History Tape"), parent), m_session(session), m_store(store) {
    setObjectName(QStringLiteral("historyTape"));
    setAccessibleName(Ui::tr("History Tape"));
    auto* body = new QWidget(this);
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(4, 4, 4, 4);
    m_list = new TapeList(this);
    m_list->setObjectName(QStringLiteral("tapeLines"));
    m_list->setAccessibleName(Ui::tr("Tape lines"));
    m_list->setColumnCount(2);
    m_list->setHeaderLabels({Ui::tr("Keys"), Ui::tr("Result")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->header()->setStretchLastSection(true);
    m_list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_list->setToolTip(Ui::tr("Double click or Return recalls a result into X; Ctrl+C copies it"));
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, [this] { RecallCurrent(); });
    layout->addWidget(m_list);

    // Tool buttons: as narrow as their words, so the row fits under a calculator of the smallest width.
    auto* buttons = new QHBoxLayout;
    const auto button = [&](const QString& text, const QString& tip, auto&& what) {
        auto* b = new QToolButton(body);
        b->setText(text);
        b->setToolTip(tip);
        b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(b, &QToolButton::clicked, this, what);
        buttons->addWidget(b);
    };
    button(Ui::tr("&Recall"), Ui::tr("Recall the selected result into X"), [this] { RecallCurrent(); });
    button(Ui::tr("&Copy"), Ui::tr("Copy the selected result"), [this] { CopyCurrent(); });
    button(Ui::tr("&Save As..."), Ui::tr("Save the tape as text or CSV"), [this] { SaveAs(); });
    button(Ui::tr("C&lear"), Ui::tr("Clear the tape"), [this] {
        if (m_store) m_store->ClearTape();
        Reload();
    });
    layout->addLayout(buttons);
    setWidget(body);
}

void TapePanel::Reload() {
    m_lines = m_store ? m_store->Tape() : std::vector<TapeLine>{};
    m_list->clear();
    QList<QTreeWidgetItem*> items;
    items.reserve(static_cast<qsizetype>(m_lines.size()));
    for (const TapeLine& line : m_lines) {
        auto* item = new QTreeWidgetItem({Text(line.keys), ResultText(line)});
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setToolTip(0, Text(line.time));
        items.append(item);
    }
    m_list->addTopLevelItems(items);
    if (!items.isEmpty()) {
        m_list->setCurrentItem(items.back());
        m_list->scrollToItem(items.back());
    }
}

const TapeLine* TapePanel::Current() const {
    if (m_lines.empty()) return nullptr;
    const int row = m_list->currentItem() ? m_list->indexOfTopLevelItem(m_list->currentItem()) : -1;
    return row >= 0 && row < static_cast<int>(m_lines.size()) ? &m_lines[static_cast<std::size_t>(row)] : &m_lines.back();
}

void TapePanel::RecallCurrent() {
    if (const TapeLine* line = Current()) m_session.RecallValue(line->value, line->tag);
}

void TapePanel::CopyCurrent() {
    if (const TapeLine* line = Current()) QGuiApplication::clipboard()->setText(Text(line->result));
}

bool TapePanel::SaveTo(const QString& file) {
    std::string text;
    if (file.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive)) {
        text = TapeCsv(m_lines);
    } else {
        for (const TapeLine& line : m_lines) text += TapeText(line) + '\n';
    }
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(text.data(), static_cast<qint64>(text.size())) < 0 ||
        !out.commit()) {
        QMessageBox::warning(this, QStringLiteral("Brinto"),
                             Ui::tr("The tape could not be saved to %1: %2").arg(file, out.errorString()));
        return false;
    }
    return true;
}

void TapePanel::SaveAs() {
    QString filter;
    QString file = QFileDialog::getSaveFileName(this, Ui::tr("Save Tape"), QStringLiteral("brinto-tape.txt"),
                                                Ui::tr("Text (*.txt);;CSV (*.csv)"), &filter);
    if (file.isEmpty()) return;
    if (filter.contains(QStringLiteral("*.csv")) &&
        !file.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive)) {
        file += QStringLiteral(".csv");
    }
    SaveTo(file);
}

}  // namespace brinto
