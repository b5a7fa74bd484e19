#pragma once
// The "Customize Keyboard" dialog: the User keys of a working copy of the user key map above, a
// built-in keyboard below. Tapping a User key selects it; tapping a key below assigns that key's
// function to it. "Clear" empties the half of the User keys on show, "Copy" copies the keyboard
// below into it. OK writes back only what changed. The keyboard chosen below and both "Shifted"
// boxes stay as they were for the next opening, also after Cancel.
#include <QDialog>
#include <array>

#include "app/dialogs/dialog_support.h"
#include "engine/user_key_map.h"
#include "session/session.h"

class QButtonGroup;
class QCheckBox;
class QListWidget;
class QPushButton;

namespace brinto::dialogs {

class KeyboardDialog : public QDialog {
public:
    KeyboardDialog(Session& session, const HelpFunction& help, QWidget* parent);

    // Takes a fresh working copy of the user keys and the "Integer" preference.
    void Load();
    const UserKeyMap& WorkingCopy() const { return m_working; }
    bool IntegerChecked() const;

    void done(int result) override;

private:
    void WriteBack();
    void ShowUserKeys();
    void ShowAvailableKeys();
    void Assign(int availableKey);
    void ClearShownHalf();
    void CopyAvailable();
    int UserHalf() const;  // index of the first key of the half on show

    Session& m_session;
    UserKeyMap m_working = EmptyUserKeyMap();
    QCheckBox* m_integer;
    QCheckBox* m_userShifted;
    QButtonGroup* m_userKeys;
    std::array<QPushButton*, 12> m_userButtons{};
    QListWidget* m_keyboards;
    QCheckBox* m_availableShifted;
    std::array<QPushButton*, 12> m_availableButtons{};
};

}  // namespace brinto::dialogs
