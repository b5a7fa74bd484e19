#pragma once
// The desktop program's side of the session: message boxes, the system clipboard, the beep, the
// local clock and the user's way of writing dates, and the repaint of the main window.
#include <functional>

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

    DateFields Now() const override;
    std::string DateText(const DateFields& date, bool longForm) const override;
    std::string TimeText(const DateFields& time) const override;
    void Beep() const override;

    // The window that repaints and opens views; none while the program starts.
    MainWindow* window = nullptr;
    bool askInputMethod = true;
};

}  // namespace brinto
