#pragma once
// A host that records what the session raises and answers its questions as a test sets them.
#include <optional>
#include <string>
#include <vector>

#include "session/host.h"

namespace brinto {

struct Message {
    std::string caption;
    std::string text;
};

class RecordingHost : public Host {
public:
    std::vector<Message> messages;
    std::vector<std::string> troubles;
    std::optional<std::string> clipboard;
    bool confirm = true;
    mutable int beeps = 0;
    std::vector<View> opened;
    InputMethodChoice answer;
    int asked = 0;
    int recovered = 0;
    int tapeChanges = 0;
    std::vector<bool> pickedUp;  // whether each change taken over from another program had preferences
    FixedPlatform clock;

    void ShowMessage(std::string_view caption, std::string_view text) override {
        messages.push_back({std::string(caption), std::string(text)});
    }
    bool Confirm(std::string_view, std::string_view) override { return confirm; }
    void PutOnClipboard(std::string_view text) override { clipboard = std::string(text); }
    std::optional<std::string> ClipboardText() override { return clipboard; }
    void Beep() const override { ++beeps; }
    void OpenView(View view) override { opened.push_back(view); }
    InputMethodChoice AskInputMethod() override {
        ++asked;
        return answer;
    }
    void ReportTrouble(std::string_view text) override { troubles.emplace_back(text); }
    void SaveRecovered() override { ++recovered; }
    void PickedUp(bool preferences) override { pickedUp.push_back(preferences); }
    void TapeChanged() override { ++tapeChanges; }
    DateFields Now() const override { return clock.Now(); }
    std::string DateText(const DateFields& d, bool longForm) const override { return clock.DateText(d, longForm); }
    std::string TimeText(const DateFields& t) const override { return clock.TimeText(t); }
};

}  // namespace brinto
