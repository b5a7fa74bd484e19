#pragma once
// "Input Method": asked once, on the very first run, before the main window is shown.
#include <QDialog>

#include "engine/preferences.h"

class QListWidget;
class QScrollArea;

namespace brinto {

namespace dialogs {
class HelpViewer;
}

class InputMethodDialog : public QDialog {
    Q_OBJECT
public:
    explicit InputMethodDialog(QWidget* parent = nullptr);

    // The method chosen with OK or "Preferences"; Escape or closing the window chooses nothing,
    // and the calculator keeps "Simple", the method it starts with.
    InputMethod Chosen() const;
    // Whether "Preferences" closed the dialog, so the sheet opens next.
    bool PreferencesAfterwards() const { return m_preferences; }
    QListWidget* list() { return m_list; }
    QScrollArea* textArea() { return m_scroll; }

    static const char* const kText;

private:
    QListWidget* m_list;
    QScrollArea* m_scroll;
    dialogs::HelpViewer* m_help = nullptr;
    bool m_preferences = false;
};

}  // namespace brinto
