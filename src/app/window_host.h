#pragma once
// The desktop program's side of the session: message boxes, the system clipboard, the beep, the
// local clock and the user's way of writing dates, and the repaint of the main window.
#include <functional>
#include <string>

#include "engine/platform.h"
#include "session/host.h"

namespace brinto {

class MainWindow;

class WindowHost : public Host {
public:
    // Message boxes with the calculator's captions, texts, icons and buttons. Tests override
    // these two to record the messages instead of showing them.
    void ShowMessage(std::string_view caption, std::string_view text) override;
    bool Confirm(std::string_view caption, std::string_view text) override;

    void PutOnClipboard(std::string_view text) override;
    std::optional<std::string> ClipboardText() override;
    void Repaint() override;
    void OpenView(View view) override;
    // The first run's "Input Method" dialog (not asked of a calculator kept in memory only).
    InputMethodChoice AskInputMethod() override;
    void ReportTrouble(std::string_view text) override;
    // A failed save shows a line on the window for as long as saves fail, and a box when the
    // first of them fails; the line goes once a save gets through.
    void ReportSaveFailure(std::string_view text) override;
    void SaveRecovered() override;
    void PickedUp(bool preferences) override;
    void TapeChanged() override;

    DateFields Now() const override;
    std::string DateText(const DateFields& date, bool longForm) const override;
    std::string TimeText(const DateFields& time) const override;
    void Beep() const override;

    // The window that repaints and opens views; none while the program starts.
    MainWindow* window = nullptr;
    bool askInputMethod = true;
    // What the last failed save said; empty once a save got through.
    std::string saveFailure;
    // While the program ends, a failed save is the caller's to tell: no box of its own.
    bool quitting = false;
};

}  // namespace brinto
