#include "app/dialogs/help_viewer.h"

#include <QFile>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLineEdit>
#include <QShortcut>
#include <QTextBrowser>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include "app/dialogs/ui_text.h"

namespace brinto::dialogs {
namespace {

constexpr const char* kMissingGuide = QT_TRANSLATE_NOOP(
    "Ui",
    "<h2>User guide missing</h2>"
    "<p>The user guide was not built into this copy of Brinto, so help cannot be shown.</p>");

QToolButton* NavigationButton(const QString& text, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setText(text);
    button->setEnabled(false);
    return button;
}

}  // namespace

HelpViewer::HelpViewer(QWidget* parent)
    : QWidget(parent, Qt::Window), m_browser(new QTextBrowser(this)), m_find(new QLineEdit(this)) {
    setWindowTitle(Ui::tr("Brinto Help"));
    QToolButton* back = NavigationButton(Ui::tr("Back"), this);
    QToolButton* forward = NavigationButton(Ui::tr("Forward"), this);
    connect(back, &QToolButton::clicked, m_browser, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, m_browser, &QTextBrowser::forward);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QToolButton::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QToolButton::setEnabled);
    m_find->setPlaceholderText(Ui::tr("Find"));
    m_find->setClearButtonEnabled(true);
    connect(m_find, &QLineEdit::returnPressed, this, [this] { Find(m_find->text()); });
    auto* findShortcut = new QShortcut(QKeySequence::Find, this);
    connect(findShortcut, &QShortcut::activated, this, [this] {
        m_find->setFocus();
        m_find->selectAll();
    });
    auto* bar = new QHBoxLayout;
    bar->addWidget(back);
    bar->addWidget(forward);
    bar->addStretch(1);
    bar->addWidget(m_find);
    auto* column = new QVBoxLayout(this);
    column->addLayout(bar);
    column->addWidget(m_browser, 1);
    m_browser->setOpenExternalLinks(true);
    resize(640, 560);
}

void HelpViewer::ShowAnchor(std::string_view anchor) {
    if (!QFile::exists(QString::fromLatin1(kGuideResource))) {
        m_browser->setHtml(Ui::tr(kMissingGuide));
        return;
    }
    QUrl url(QStringLiteral("qrc") + QString::fromLatin1(kGuideResource));
    url.setFragment(QString::fromUtf8(anchor.data(), static_cast<qsizetype>(anchor.size())));
    m_browser->setSource(url);
}

bool HelpViewer::Find(const QString& text) {
    if (text.isEmpty()) return false;
    if (m_browser->find(text)) return true;
    QTextCursor start = m_browser->textCursor();
    start.movePosition(QTextCursor::Start);
    m_browser->setTextCursor(start);
    return m_browser->find(text);
}

}  // namespace brinto::dialogs
