#include "app/dialogs/keyboard_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/dialogs/ui_text.h"
#include "engine/keyboards.h"
#include "session/key_legends.h"

namespace brinto::dialogs {
namespace {

constexpr int kColumns = 6;  // the 12-key block as 2 rows of 6

// The face of a key, with its full name as the tooltip; a blank key for no function.
void ShowKey(QPushButton* button, FunctionId id) {
    const KeyLegend* legend = FindLegend(id);
    button->setText(legend ? ToQString(legend->legend) : QString());
    button->setToolTip(legend ? KeyMeaningText(legend->fullName) : QString());
    // A screen reader says which key of the block it is and what it does, also when it is blank.
    button->setAccessibleName(Ui::tr("Key %1: %2")
                                  .arg(button->property("keyNumber").toInt())
                                  .arg(legend ? KeyMeaningText(legend->fullName) : Ui::tr("no function")));
}

// A 2 x 6 grid of key buttons added to `into`; `tapped` receives the key number 0..11.
template <typename Tapped>
std::array<QPushButton*, kBlockKeys> KeyGrid(QWidget* owner, QVBoxLayout* into, bool checkable,
                                             Tapped tapped) {
    std::array<QPushButton*, kBlockKeys> keys{};
    auto* grid = new QGridLayout;
    for (int k = 0; k < kBlockKeys; ++k) {
        keys[k] = new QPushButton(owner);
        keys[k]->setCheckable(checkable);
        keys[k]->setProperty("keyNumber", k + 1);
        keys[k]->setMinimumHeight(28);
        grid->addWidget(keys[k], k / kColumns, k % kColumns);
        QObject::connect(keys[k], &QPushButton::clicked, owner, [tapped, k] { tapped(k); });
    }
    into->addLayout(grid);
    return keys;
}

}  // namespace

KeyboardDialog::KeyboardDialog(Session& session, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_session(session) {
    setWindowTitle(Ui::tr("Customize Keyboard"));
    auto* column = new QVBoxLayout(this);

    auto* userRow = new QHBoxLayout;
    userRow->addWidget(new QLabel(Ui::tr("User Keys:")), 1);
    m_integer = new QCheckBox(Ui::tr("Integer"));
    m_userShifted = new QCheckBox(Ui::tr("Shifted"));
    userRow->addWidget(m_integer);
    userRow->addWidget(m_userShifted);
    column->addLayout(userRow);
    m_userKeys = new QButtonGroup(this);
    m_userButtons = KeyGrid(this, column, true, [](int) {});
    for (int k = 0; k < kBlockKeys; ++k) m_userKeys->addButton(m_userButtons[k], k);
    connect(m_userShifted, &QCheckBox::toggled, this, [this] { ShowUserKeys(); });

    auto* availableRow = new QHBoxLayout;
    availableRow->addWidget(new QLabel(Ui::tr("Available Keys:")), 1);
    m_availableShifted = new QCheckBox(Ui::tr("Shifted"));
    availableRow->addWidget(m_availableShifted);
    column->addLayout(availableRow);
    m_keyboards = new QListWidget;
    m_keyboards->setAccessibleName(Ui::tr("Available keyboard"));
    for (int k = 0; k < kUserKeyboard; ++k) m_keyboards->addItem(Ui::tr(kKeyboardNames[k].data()));
    m_keyboards->setCurrentRow(0);
    m_keyboards->setMaximumHeight(90);
    column->addWidget(m_keyboards);
    m_availableButtons = KeyGrid(this, column, false, [this](int k) { Assign(k); });
    connect(m_keyboards, &QListWidget::currentRowChanged, this, [this] { ShowAvailableKeys(); });
    connect(m_availableShifted, &QCheckBox::toggled, this, [this] { ShowAvailableKeys(); });

    QDialogButtonBox* buttons =
        MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "keyboard", help);
    QPushButton* clear = buttons->addButton(Ui::tr("Clear"), QDialogButtonBox::ActionRole);
    QPushButton* copy = buttons->addButton(Ui::tr("Copy"), QDialogButtonBox::ActionRole);
    connect(clear, &QPushButton::clicked, this, [this] { ClearShownHalf(); });
    connect(copy, &QPushButton::clicked, this, [this] { CopyAvailable(); });
    column->addWidget(buttons);
    Load();
}

void KeyboardDialog::Load() {
    m_working = m_session.userKeys();
    m_integer->setChecked(m_session.engine().prefs.IntegerUserKeys());
    ShowUserKeys();
    ShowAvailableKeys();
}

bool KeyboardDialog::IntegerChecked() const { return m_integer->isChecked(); }

int KeyboardDialog::UserHalf() const { return m_userShifted->isChecked() ? kBlockKeys : 0; }

void KeyboardDialog::ShowUserKeys() {
    for (int k = 0; k < kBlockKeys; ++k) ShowKey(m_userButtons[k], m_working.keys[UserHalf() + k]);
}

void KeyboardDialog::ShowAvailableKeys() {
    const KeyBlock block = KeyLayout(std::max(0, m_keyboards->currentRow()),
                                     m_availableShifted->isChecked() ? 1 : 0, m_working);
    for (int k = 0; k < kBlockKeys; ++k) ShowKey(m_availableButtons[k], block[k]);
}

void KeyboardDialog::Assign(int availableKey) {
    const int selected = m_userKeys->checkedId();
    if (selected < 0) return;
    const KeyBlock block = KeyLayout(std::max(0, m_keyboards->currentRow()),
                                     m_availableShifted->isChecked() ? 1 : 0, m_working);
    m_working.keys[UserHalf() + selected] = block[availableKey];
    ShowUserKeys();
}

void KeyboardDialog::ClearShownHalf() {
    std::fill_n(m_working.keys + UserHalf(), kBlockKeys, kNoKey);
    ShowUserKeys();
}

void KeyboardDialog::CopyAvailable() {
    const KeyBlock block = KeyLayout(std::max(0, m_keyboards->currentRow()),
                                     m_availableShifted->isChecked() ? 1 : 0, m_working);
    std::copy(block.begin(), block.end(), m_working.keys + UserHalf());
    ShowUserKeys();
}

// Only the keys that differ from the user keyboard are assigned, and "Integer" only when changed.
void KeyboardDialog::WriteBack() {
    for (const KeyHalf half : {KeyHalf::Unshifted, KeyHalf::Shifted}) {
        const int first = half == KeyHalf::Shifted ? kBlockKeys : 0;
        for (int k = 0; k < kBlockKeys; ++k) {
            const FunctionId id = m_working.keys[first + k];
            if (id != m_session.userKeys().keys[first + k]) m_session.AssignUserKey(half, k + 1, id);
        }
    }
    if (IntegerChecked() != m_session.engine().prefs.IntegerUserKeys()) m_session.SetIntegerUserKeys(IntegerChecked());
}

void KeyboardDialog::done(int result) {
    if (result == QDialog::Accepted) WriteBack();
    // The selection of a User key is not kept; the keyboard below and both boxes are.
    if (QAbstractButton* selected = m_userKeys->checkedButton()) {
        m_userKeys->setExclusive(false);
        selected->setChecked(false);
        m_userKeys->setExclusive(true);
    }
    QDialog::done(result);
}

}  // namespace brinto::dialogs
