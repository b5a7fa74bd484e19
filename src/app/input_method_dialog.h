#pragma once
// "Input Method": asked once, on the very first run, before the main window is shown.
#include <QDialog>

#include "engine/preferences.h"

class QListWidget;

namespace brinto {

class InputMethodDialog : public QDialog {
    Q_OBJECT
public:
    explicit InputMethodDialog(QWidget* parent = nullptr);

    // The method chosen; closing the window counts as OK with the selection in force.
    InputMethod Chosen() const;
    // Whether "Preferences" closed the dialog, so the sheet opens next.
    bool PreferencesAfterwards() const { return m_preferences; }
    QListWidget* list() { return m_list; }

    static const char* const kText;

private:
    QListWidget* m_list;
    bool m_preferences = false;
};

}  // namespace brinto
