#pragma once
// A desktop calculator in memory with its real main window on the offscreen platform, a host that
// records messages instead of showing them, and clicks on keys by their drawn rectangles.
#include <QList>
#include <QTest>
#include <string>
#include <vector>

#include "app/calculator.h"
#include "app/main_window.h"
#include "app/window_host.h"
#include "engine/function_ids.h"

class QMenu;

namespace brinto::test {

// What a shell command writes on its standard output.
std::string CommandOutput(const std::string& command);
// The menus of the menu bar, each with its entries, as the user finds them on opening it.
QList<QMenu*> Menus(MainWindow& window);
// The entry of the window's menus with caption `entry` (mnemonic left out), or nullptr.
QAction* MenuEntry(MainWindow& window, const char* entry);
// Chooses that entry, as the user does, and lets it act (entries act once the menu has closed).
void Trigger(MainWindow& window, const char* entry);

class RecordingHost : public WindowHost {
public:
    void ShowMessage(std::string_view caption, std::string_view) override { messages.emplace_back(caption); }
    bool Confirm(std::string_view caption, std::string_view) override {
        messages.emplace_back(caption);
        return confirm;
    }
    RecordingHost() { askInputMethod = false; }
    void Beep() const override { ++beeps; }
    void ReportTrouble(std::string_view text) override { messages.emplace_back(text); }
    // The moment brinto-cli is pinned to with --now, so date keys agree.
    DateFields Now() const override { return {2005, 3, 15, 14, 5, 0, 2}; }

    std::vector<std::string> messages;
    bool confirm = true;
    mutable int beeps = 0;
};

struct Desk {
    explicit Desk(QSize size = {360, 480}) : calculator(host), window(calculator.session) {
        calculator.Start(AppOptions::InMemory());
        host.window = &window;
        window.resize(size);
        window.show();
        window.activateWindow();
        // Menu shortcuts need an active window.
        [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(&window);
        window.Refresh();
    }

    const Engine& engine() { return calculator.engine; }
    // Changes the preferences as the "Preferences" sheet's OK does, theme included.
    template <typename Change>
    void ChangePreferences(Change change) {
        Preferences p = engine().prefs;
        change(p);
        session().SetPreferences(p);
        window.ApplyTheme();
    }
    Session& session() { return calculator.session; }
    // The X line as brinto-cli prints it: the text, and the label after two blanks.
    std::string XLine();

    // Clicks the key that shows `id` in the view on screen (the Advanced keyboard or the Basic
    // keys); false when no key shows it.
    bool Click(FunctionId id);
    // Clicks key k (1..12) of the keyboard's variable block.
    void ClickBlock(int k);
    void Type(const char* keys) { QTest::keyClicks(&window, QString::fromLatin1(keys)); }
    void Press(Qt::Key key) { QTest::keyClick(&window, key); }

    RecordingHost host;
    Calculator calculator;
    MainWindow window;
};

}  // namespace brinto::test
