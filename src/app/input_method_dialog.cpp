#include "app/input_method_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "app/dialogs/help_viewer.h"
#include "app/dialogs/ui_text.h"

namespace brinto {

const char* const InputMethodDialog::kText = QT_TRANSLATE_NOOP(
    "Ui",
    "Choose an input method to determine how Brinto performs calculations:\n\n- Simple specifies an infix "
    "order where the operations are performed in the order they are entered, for example, entering 2 + 3 * 5 "
    "= yields the result of 25\n\n- Precedence also specifies an infix order where binary operations are "
    "performed before multiplication and division which are performed before addition and subtraction "
    "reducing the need for using parentheses, for example, 2 + 3 * 5 = yields the result of 17\n\n- RPN "
    "(Reverse Polish Notation) specifies a postfix order where the operands are entered before the "
    "operation, for example, 2 Enter 3 + 5 * yields 25 and 2 Enter 3 Enter 5 * + yields 17\n\n- The input "
    "method can be specified  at any time in the Preferences dialog\n\n- See the Comparison of Input "
    "Methods section of the User Guide for more details");

InputMethodDialog::InputMethodDialog(QWidget* parent) : QDialog(parent) {
    setWindowTitle(Ui::tr("Input Method"));
    auto* layout = new QVBoxLayout(this);
    auto* label = new QLabel(Ui::tr("&Input:"), this);
    layout->addWidget(label);
    m_list = new QListWidget(this);
    label->setBuddy(m_list);  // read as the list's name
    m_list->addItems({Ui::tr("Simple"), Ui::tr("Precedence"), QStringLiteral("RPN")});
    m_list->setCurrentRow(0);
    label->setBuddy(m_list);
    // Three rows, no more: the text below matters as much as the list.
    m_list->setFixedHeight(m_list->sizeHintForRow(0) * 3 + 2 * m_list->frameWidth() + 2);
    layout->addWidget(m_list);
    // The text scrolls rather than being cut when the window is small.
    auto* text = new QLabel(Ui::tr(kText));
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    text->setContentsMargins(4, 4, 4, 4);
    m_scroll = new QScrollArea(this);
    m_scroll->setWidget(text);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layout->addWidget(m_scroll, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Help, this);
    QPushButton* preferences = buttons->addButton(Ui::tr("Preferences"), QDialogButtonBox::ActionRole);
    preferences->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto* f1 = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(f1, &QShortcut::activated, buttons, &QDialogButtonBox::helpRequested);
    connect(buttons, &QDialogButtonBox::helpRequested, this, [this] {
        // A window of the dialog's own, so that the modal question does not block it.
        if (!m_help) {
            m_help = new dialogs::HelpViewer(this);
            m_help->setWindowFlag(Qt::Window);
            m_help->resize(560, 480);
        }
        m_help->ShowAnchor("comparison");
        m_help->show();
        m_help->raise();
    });
    connect(preferences, &QPushButton::clicked, this, [this] {
        m_preferences = true;
        accept();
    });
    // Return in the list accepts the selection.
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    // Opens tall enough to show the whole text (on a screen that has the room; else it scrolls).
    constexpr int kWidth = 420;
    const int textHeight = text->heightForWidth(kWidth - 2 * layout->contentsMargins().left());
    resize(kWidth, std::min(680, sizeHint().height() - m_scroll->sizeHint().height() + textHeight));
}

InputMethod InputMethodDialog::Chosen() const {
    // Escape or the window's close button leaves the method the calculator starts with.
    if (result() != QDialog::Accepted) return InputMethod::Simple;
    switch (m_list->currentRow()) {
        case 1: return InputMethod::Precedence;
        case 2: return InputMethod::Rpn;
        default: return InputMethod::Simple;
    }
}

}  // namespace brinto
