#pragma once
// DialogHost: the one door through which the main window opens the secondary windows and the
// help viewer. Each window is made the first time it is opened, so start-up pays for none, and
// kept for the rest of the run. Everything the windows change goes through the session; after a
// change `changed` is emitted so the main window repaints. The main window calls Refresh after
// every key so that open views (the "Stack") follow the calculator.
#include <QObject>
#include <QPointer>
#include <optional>
#include <string_view>

#include "app/dialogs/dialog_support.h"
#include "session/screen_colours.h"
#include "session/session.h"
#include "session/session_store.h"

class QDialog;
class QMessageBox;
class QWidget;

namespace brinto::dialogs {

class ConstantsDialog;
class CustomizeColours;
class ScheduleWindow;
class DurationsDialog;
class EnterDateDialog;
class EnterTimeDialog;
class HelpViewer;
class KeyboardDialog;
class PreferencesDialog;
class RegisterView;
class StackView;

// The views a display tap, a menu entry or "Open last form" opens (the session's list).
using View = brinto::View;
inline constexpr int kViewCount = static_cast<int>(View::Statistical) + 1;

class DialogHost : public QObject {
    Q_OBJECT
public:
    // `help` opens the guide at an anchor; when empty, the built-in help viewer does. With a
    // `store`, the custom colours are read from it now and kept in it when they change.
    DialogHost(Session& session, QWidget* parent, HelpFunction help = {}, SessionStore* store = nullptr);
    ~DialogHost() override;

    // Opens a view and remembers it as the last one. Returns the window shown: for "Cash Flow"
    // with no entry beyond CF0, the "No Cash Flow Entries" message instead.
    QWidget* Open(View view);
    QDialog* OpenAbout();
    // "Enter Date" and "Enter Time", on X's date or time or else on now; OK enters the choice.
    EnterDateDialog* OpenEnterDate();
    EnterTimeDialog* OpenEnterTime();
    DurationsDialog* OpenDurations();
    // "Customize Colors", on the colours in force; its OK keeps the custom colours and emits
    // coloursChanged, or, opened from the "Preferences" sheet, leaves them to the sheet's OK.
    CustomizeColours* OpenColours();
    ScheduleWindow* OpenSchedule();
    // The theme's colours, for the charts of the windows open now and of those opened later.
    void SetScreenColours(const ScreenColours& colours);
    const CustomColours& customColours() const { return m_customColours; }
    HelpViewer* OpenHelp(std::string_view anchor);

    void Refresh();

Q_SIGNALS:
    void changed();
    // The "Preferences" sheet closed: the theme in force is applied again.
    void preferencesClosed();
    // The user's key colours changed: they lie over the theme until "Default" clears them.
    void coloursChanged(const brinto::CustomColours& colours);

private:
    QDialog* Show(QDialog* dialog);
    void Place(QWidget* window) const;
    PreferencesDialog* PreferencesSheet();
    RegisterView* Registers(View view);
    QMessageBox* NoCashFlows();
    void KeepColours(const CustomColours& colours);

    Session& m_session;
    SessionStore* m_store;
    QWidget* m_parent;
    HelpFunction m_help;
    PreferencesDialog* m_preferences = nullptr;
    KeyboardDialog* m_keyboard = nullptr;
    StackView* m_stack = nullptr;
    ConstantsDialog* m_constants = nullptr;
    RegisterView* m_registers[kViewCount] = {};
    EnterDateDialog* m_enterDate = nullptr;
    EnterTimeDialog* m_enterTime = nullptr;
    DurationsDialog* m_durations = nullptr;
    QDialog* m_about = nullptr;
    CustomizeColours* m_colours = nullptr;
    ScheduleWindow* m_schedule = nullptr;
    QMessageBox* m_noCashFlows = nullptr;
    CustomColours m_customColours;
    std::optional<ScreenColours> m_screenColours;
    std::optional<CustomColours> m_sheetColours;  // chosen while the sheet is open, not yet kept
    QPointer<HelpViewer> m_helpViewer;
};

}  // namespace brinto::dialogs
