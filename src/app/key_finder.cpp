#include "app/key_finder.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/dialogs/ui_text.h"
#include "session/key_finder.h"

namespace brinto {

namespace {

constexpr std::size_t kOffersShown = 12;

QString Utf8(const std::string& s) { return QString::fromStdString(s); }

// A key is found by its meaning in the window's language as well as in English.
std::string MeaningShown(std::string_view fullName) { return KeyMeaningText(fullName).toStdString(); }

}  // namespace

KeyFinder::KeyFinder(QWidget* parent) : QDialog(parent) {
    setWindowTitle(Ui::tr("Find Key"));
    auto* label = new QLabel(Ui::tr("&Key name:"), this);
    m_field = new QLineEdit(this);
    m_field->setPlaceholderText(Ui::tr("sqrt, x^2, pv, Square root..."));
    label->setBuddy(m_field);
    auto* offersLabel = new QLabel(Ui::tr("&Matching keys:"), this);
    m_offers = new QListWidget(this);
    m_offers->setTabKeyNavigation(false);
    offersLabel->setBuddy(m_offers);
    m_problem = new QLabel(this);
    m_problem->setWordWrap(true);
    m_problem->hide();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(Ui::tr("&Press"));

    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(m_field);
    column->addWidget(offersLabel);
    column->addWidget(m_offers, 1);
    column->addWidget(m_problem);
    column->addWidget(buttons);
    resize(360, 300);

    m_field->installEventFilter(this);
    connect(m_field, &QLineEdit::textEdited, this, &KeyFinder::Offer);
    connect(m_offers, &QListWidget::itemActivated, this, [this] { Choose(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &KeyFinder::Choose);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void KeyFinder::Clear() {
    m_field->clear();
    Offer({});
    m_field->setFocus();
}

void KeyFinder::Offer(const QString& typed) {
    m_problem->hide();
    m_offers->clear();
    m_offered.clear();
    for (const KeyChoice& choice : OfferKeys(typed.toStdString(), kOffersShown, MeaningShown)) {
        // "sqrt  √x  Square root": the name, the face where it differs, the meaning in the window's
        // language.
        QString caption = Utf8(std::string(choice.name));
        if (choice.face != choice.name) caption += QStringLiteral("  ") + Utf8(std::string(choice.face));
        m_offers->addItem(caption + QStringLiteral("  ") + KeyMeaningText(choice.fullName));
        m_offered.push_back(choice.id);
    }
    m_picked = false;
    if (!m_offered.empty()) m_offers->setCurrentRow(0);
    Describe();
}

// The key offered first (or picked) is the field's description, so a screen reader says it while
// the focus stays in the field.
void KeyFinder::Describe() {
    const QListWidgetItem* item = m_offers->currentItem();
    m_field->setAccessibleDescription(m_problem->isVisible() ? m_problem->text() : item ? item->text() : QString());
}

// Return takes the key the text names exactly; else the one picked in the list.
void KeyFinder::Choose() {
    std::optional<FunctionId> id = FindKey(m_field->text().toStdString(), MeaningShown);
    const int row = m_offers->currentRow();
    const bool listPicked = m_picked || m_offers->hasFocus() || !id;
    if (listPicked && row >= 0 && row < static_cast<int>(m_offered.size())) id = m_offered[static_cast<size_t>(row)];
    if (!id) {
        m_problem->setText(m_field->text().trimmed().isEmpty()
                               ? Ui::tr("Type the name of a key.")
                               : Ui::tr("No key is called \"%1\".").arg(m_field->text().trimmed()));
        m_problem->show();
        Describe();
        return;
    }
    accept();
    Q_EMIT keyChosen(*id);
}

// Up and Down in the field move through the keys offered, so the hands stay on the field.
bool KeyFinder::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_field && event->type() == QEvent::KeyPress && m_offers->count() > 0) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            const int step = key == Qt::Key_Up ? -1 : 1;
            m_offers->setCurrentRow((m_offers->currentRow() + step + m_offers->count()) % m_offers->count());
            m_picked = true;
            Describe();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace brinto
