#pragma once
// Host: everything a front end provides to a session, in one interface: the desktop window,
// brinto-cli, or a test. As the engine's Platform it also gives the clock, the user's way of writing
// dates and times, and the beep; the Session points its Engine at it.
#include <optional>
#include <string>
#include <string_view>

#include "engine/platform.h"
#include "engine/preferences.h"

namespace brinto {

// The answer to the first run's "Input Method" question.
struct InputMethodChoice {
    InputMethod method = InputMethod::Simple;
    bool openPreferences = false;  // the dialog's "Preferences" soft key: open the sheet next
};

// The dialog views that the "Open last form" action reopens, in the order of the tap-target list.
enum class View : u16 { Preferences, Keyboard, Stack, UserRegisters, Constants, Tvm, Amortization,
                        CashFlow, Statistical };

class Host : public Platform {
public:
    // A message box with a caption and a text (modal in the desktop program).
    virtual void ShowMessage(std::string_view caption, std::string_view text) = 0;
    // An OK/Cancel question; true for OK.
    virtual bool Confirm(std::string_view caption, std::string_view text) = 0;
    virtual void PutOnClipboard(std::string_view text) = 0;
    // The clipboard's text, or nothing when it holds none.
    virtual std::optional<std::string> ClipboardText() = 0;
    // The display and the keyboard must be repainted.
    virtual void Repaint() {}
    // The Action button's "Open last form": reopen the view last shown.
    virtual void OpenView(View /*view*/) {}
    // Asked once, on the very first run, before the main window is shown. The session applies the
    // answer as the dialog's OK does.
    virtual InputMethodChoice AskInputMethod() { return {}; }
    // The calculator could not be loaded for a reason outside it (no right to the file, a lock
    // held by another program, a path that is no file or someone else's file): one line, raised
    // once. The run goes on in memory.
    virtual void ReportTrouble(std::string_view text) = 0;
    // A save did not reach the file (a full disk, a lock held too long, a file-size limit): one
    // line, raised at every failed save. The calculator is kept and the next save tries again.
    virtual void ReportSaveFailure(std::string_view text) { ReportTrouble(text); }
    // A save reached the file after one or more had failed.
    virtual void SaveRecovered() {}
    // Another program sharing the calculator saved a change and this one took it over; with
    // `preferences`, the preferences are among what changed.
    virtual void PickedUp(bool /*preferences*/) { Repaint(); }
    // The history tape has new lines, or was cleared.
    virtual void TapeChanged() {}
};

}  // namespace brinto
