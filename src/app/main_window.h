#pragma once
// The main window: the display over the keys, the menus, the keyboard selector and the Quick
// Switch strip. It draws and routes input; every change of the calculator is a session command.
#include <QMainWindow>
#include <functional>

#include "app/display_view.h"
#include "app/key_view.h"
#include "app/quick_switch.h"
#include "session/host.h"
#include "session/screen_colours.h"
#include "session/theme.h"

class QActionGroup;
class QButtonGroup;
class QComboBox;
class QLabel;
class QToolBar;

namespace brinto {


class KeyFinder;
class Session;
class SessionStore;
class TapePanel;
namespace dialogs {
class DialogHost;
}

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(Session& session, QWidget* parent = nullptr);

    // Called whenever the calculator changed: redraws the display and the keys, and follows the
    // view mode, the current keyboard and the shift latch.
    void Refresh();
    // Takes the colours of the theme that the preferences name (at creation and after the
    // "Preferences" sheet closed).
    void ApplyTheme();
    // The one way to open a dialog view: menus, display taps and the Action button.
    void OpenView(View view);
    // The help viewer at an anchor of the user guide.
    void OpenHelp(const QString& anchor);
    // Where the user's key colours are kept; they are read now and lie over every theme.
    void UseStore(SessionStore* store);
    // Another program changed the calculator: the window and its open views show the change (and
    // the theme, when the preferences changed).
    void PickedUp(bool preferences);
    // A line along the bottom saying that the calculator is not being saved; none for empty text.
    void ShowSaveFailure(const QString& text);
    // The history tape beside the display: shown or hidden (View > History Tape, Ctrl+H), and
    // redrawn when it has new lines.
    void ShowTape(bool shown);
    void TapeChanged();
    // Null until the tape was first shown.
    TapePanel* tapePanel() { return m_tape; }

    // The secondary windows, made on first use so that start-up does not pay for them.
    dialogs::DialogHost& Dialogs();
    // Null until a secondary window was first opened.
    dialogs::DialogHost* openedDialogs() { return m_dialogs; }

    // Run when the calculator should be kept: deactivation, minimising.
    std::function<void()> onSave;
    // Run when the window is activated: what other programs saved is picked up.
    std::function<void()> onActivate;
    // Run when the window is closed (Quit, the window's close button): false keeps it open. The
    // program ends with the window, whatever other windows (help, views) are open.
    std::function<bool()> onQuit;

    const ScreenColours& colours() const { return m_colours; }
    DisplayView* display() { return m_display; }
    KeyView* keyboardView() { return m_keys; }
    KeyView* basicView() { return m_basic; }
    QComboBox* selector() { return m_selector; }
    QuickSwitchStrip* quickSwitch() { return m_strip; }
    QButtonGroup* quickSwitchButtons() { return m_stripButtons; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildMenus();
    void OpenKeyFinder();
    void LayoutViews();
    void KeyTapped(const KeyView* view, int index);
    void DisplayTapped(TapArea area);
    // The keys typed on the hardware keyboard; false for those the window does not take.
    bool HardwareKey(QKeyEvent* event);
    void KeyDone();
    void Save();

    Session& m_session;
    QWidget* m_pane = nullptr;
    DisplayView* m_display = nullptr;
    KeyView* m_keys = nullptr;
    KeyView* m_basic = nullptr;
    QToolBar* m_toolBar = nullptr;
    QComboBox* m_selector = nullptr;
    QuickSwitchStrip* m_strip = nullptr;
    QButtonGroup* m_stripButtons = nullptr;
    ThemeSet m_themes;
    ScreenColours m_colours{};
    CustomColours m_customColours;
    SessionStore* m_store = nullptr;
    dialogs::DialogHost* m_dialogs = nullptr;
    QLabel* m_saveFailure = nullptr;
    TapePanel* m_tape = nullptr;
    QAction* m_tapeAction = nullptr;
    QSize m_tapeGrowth;  // what the window grew by when the tape was shown
    KeyFinder* m_finder = nullptr;
};

}  // namespace brinto
