#pragma once
// What a session needs from whoever shows it: the desktop window, brinto-cli, or a test.
#include <optional>
#include <string>
#include <string_view>

namespace brinto {

class Host {
public:
    virtual ~Host() = default;
    // A message box with a caption and a text (modal in the desktop program).
    virtual void ShowMessage(std::string_view caption, std::string_view text) = 0;
    // An OK/Cancel question; true for OK.
    virtual bool Confirm(std::string_view caption, std::string_view text) = 0;
    virtual void PutOnClipboard(std::string_view text) = 0;
    // The clipboard's text, or nothing when it holds none.
    virtual std::optional<std::string> ClipboardText() = 0;
    // A rejected hardware key.
    virtual void Beep() {}
    // The display and the keyboard must be repainted.
    virtual void Repaint() {}
    // The Action button's "Open last form": reopen the view last shown.
    virtual void OpenView(int /*view*/) {}
};

}  // namespace brinto
