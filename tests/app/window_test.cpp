// The main window through its real widgets: taps on drawn keys, hardware keys, keyboard switching,
// the clipboard, the history tape, the not-saved line, quitting, and the secondary windows it opens
// by menu entries, shortcuts, display taps and the Action button, with the icon the About box shows.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QStatusBar>
#include <QTimer>
#include <QTreeWidget>
#include <charconv>
#include <cmath>
#include <regex>

#include "app/dialogs/preferences_dialog.h"
#include "app/tape_panel.h"
#include "app_fixture.h"
#include "display/display_text.h"
#include "engine/keyboards.h"
#include "session/session.h"

namespace brinto::test {
namespace {

// Each stack level as brinto-cli's JSON writes it after `tokens`: the shortest value and the tag.
std::vector<std::string> CliLevels(const std::string& tokens) {
    const std::string json = CommandOutput(std::string(BRINTO_CLI_PATH) + " --memory --json --now '2005-03-15 14:05:00' " +
                                           tokens + " 2>/dev/null");
    static const std::regex level(R"re("value":"[^"]*","tag":\d+)re");
    std::vector<std::string> levels;
    for (auto it = std::sregex_iterator(json.begin(), json.end(), level); it != std::sregex_iterator(); ++it) {
        levels.push_back(it->str());
    }
    return levels;
}

std::string LevelOf(const Engine& e, int level) {
    char buffer[64];
    const double value = e.state.stack[level];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, std::isnan(value) ? NAN : value).ptr;
    return "\"value\":\"" + std::string(buffer, end) + "\",\"tag\":" + std::to_string(ToNumber(e.state.tags[level]));
}

TEST(Window, EveryBlockKeyOfEveryKeyboardActsAsInBrintoCli) {
    // RPN is chosen on the shifted General block and the keyboard reached with the Down arrow;
    // then each block key in turn, shifted or not, gets operands typed on the keyboard. The whole
    // stack must end as brinto-cli's after the same keys.
    for (int keyboard = 0; keyboard < kUserKeyboard; ++keyboard) {
        for (const bool shift : {false, true}) {
            Desk desk;
            ASSERT_TRUE(desk.Click(fid::Shift));
            desk.ClickBlock(3);
            for (int i = 0; i < keyboard; ++i) desk.Press(Qt::Key_Down);
            std::string tokens = "rpn kb:" + std::to_string(keyboard);
            for (int k = 1; k <= kBlockKeys; ++k) {
                // Typed, not tapped: a prefix key may have left the keypad shifted.
                desk.Type("7\r3");
                if (shift) {
                    ASSERT_TRUE(desk.Click(fid::Shift));
                }
                desk.ClickBlock(k);
                tokens += std::string(" 7 enter 3") + (shift ? " shift" : "") + " key:" + std::to_string(k);
            }
            SCOPED_TRACE(tokens);
            const std::vector<std::string> cli = CliLevels(tokens);
            ASSERT_GE(cli.size(), 20u);
            for (int level = 0; level < 20; ++level) EXPECT_EQ(LevelOf(desk.engine(), level), cli[level]);
            EXPECT_EQ(desk.engine().Keyboard(), keyboard);
        }
    }
}

// Characters, Return and Backspace reach the calculator, and so do taps on the drawn keypad of
// either view; a character that is no key beeps.
TEST(Window, TypedAndTappedKeysReachTheCalculator) {
    struct Case {
        bool basic;  // the Basic view instead of the Advanced keyboard
        std::vector<FunctionId> taps;
        const char* typed;
        const char* x;
        int beeps;
    };
    const std::vector<FunctionId> taps = {fid::Digit2, fid::Add, fid::Digit3, fid::Multiply, fid::Digit5, fid::Equals};
    const Case cases[] = {
        {false, {}, "2+3*5=", "25.", 0},
        {false, {}, "12\b4+1\r", "15.", 0},  // Backspace edits the number being typed
        {false, taps, "", "25.", 0},
        {true, taps, "", "25.", 0},
        {false, {}, "q", "0.", 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.basic ? "basic " : "") + c.typed);
        Desk desk;
        if (c.basic) desk.Press(Qt::Key_Left);
        ASSERT_EQ(desk.window.basicView()->isVisible(), c.basic);
        for (FunctionId id : c.taps) ASSERT_TRUE(desk.Click(id)) << ToNumber(id);
        for (const char* p = c.typed; *p; ++p) {
            if (*p == '\r') desk.Press(Qt::Key_Return);
            else if (*p == '\b') desk.Press(Qt::Key_Backspace);
            else QTest::keyClick(&desk.window, *p);
        }
        EXPECT_EQ(desk.XLine(), c.x);
        EXPECT_EQ(desk.host.beeps, c.beeps);
    }
}

TEST(Window, KeyboardsSwitchByArrowsDropDownAndStrip) {
    Desk desk;
    desk.Press(Qt::Key_Up);
    EXPECT_EQ(desk.engine().Keyboard(), kUserKeyboard);
    desk.Press(Qt::Key_Down);
    EXPECT_EQ(desk.engine().Keyboard(), 0);
    Q_EMIT desk.window.selector()->activated(4);
    EXPECT_EQ(desk.engine().Keyboard(), 4);
    EXPECT_TRUE(desk.window.selector()->isVisible());

    desk.ChangePreferences([](Preferences& p) { p.SetQuickSwitch(true); });
    EXPECT_FALSE(desk.window.selector()->isVisible());
    ASSERT_TRUE(desk.window.quickSwitch()->isVisible());
    EXPECT_TRUE(desk.window.quickSwitchButtons()->button(4)->isChecked());
    QTest::mouseClick(desk.window.quickSwitchButtons()->button(7), Qt::LeftButton);
    EXPECT_EQ(desk.engine().Keyboard(), 7);
    EXPECT_EQ(desk.window.selector()->currentIndex(), 7);
    // The strip belongs to the Advanced view; Up and Down do nothing in the Basic view.
    desk.Press(Qt::Key_Right);
    EXPECT_FALSE(desk.window.quickSwitch()->isVisible());
    EXPECT_FALSE(desk.window.selector()->isEnabled());
    desk.Press(Qt::Key_Down);
    EXPECT_EQ(desk.engine().Keyboard(), 7);
    desk.Press(Qt::Key_Left);
    EXPECT_TRUE(desk.window.quickSwitch()->isVisible());
    EXPECT_TRUE(desk.window.selector()->isEnabled());
}

// Copy and Paste go through the system clipboard, the undo shortcuts reach the session, and the
// View menu switches views.
TEST(Window, ClipboardUndoAndViews) {
    Desk desk;
    desk.Type("42");
    Trigger(desk.window, "Copy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("42"));
    desk.Type("+1=");
    QGuiApplication::clipboard()->setText(QStringLiteral("abc-7.5"));
    QTest::keyClick(&desk.window, Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::processEvents();  // menu entries act once the key's event is answered
    EXPECT_EQ(desk.XLine(), "7.5");
    QTest::keyClick(&desk.window, Qt::Key_Z, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(desk.XLine(), "43.");
    QTest::keyClick(&desk.window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(desk.XLine(), "7.5");
    Trigger(desk.window, "Basic");
    EXPECT_TRUE(desk.window.basicView()->isVisible());
    Trigger(desk.window, "Advanced");
    EXPECT_TRUE(desk.window.keyboardView()->isVisible());
}

// A failed save shows a line on the window for as long as saves fail; the next save that gets
// through takes it away. (While quitting, the caller tells instead of a box.)
TEST(Window, FailedSavesShowALineUntilASaveGetsThrough) {
    Desk desk;
    desk.host.quitting = true;
    desk.host.ReportSaveFailure("cannot save the calculator to /x (disk I/O error)");
    auto* line = desk.window.findChild<QLabel*>(QStringLiteral("saveFailure"));
    ASSERT_NE(line, nullptr);
    EXPECT_TRUE(line->isVisibleTo(&desk.window));
    EXPECT_TRUE(line->text().contains(QStringLiteral("disk I/O error")));
    EXPECT_FALSE(line->accessibleName().isEmpty());
    desk.host.SaveRecovered();
    EXPECT_FALSE(desk.window.statusBar()->isVisibleTo(&desk.window));
}

// Quit ends the program, whatever other windows are open: the help viewer is a window of its own
// and must not keep a program running that the user has quit.
TEST(Window, ClosingTheWindowQuitsWithTheHelpViewerOpen) {
    Desk desk;
    int asked = 0;
    desk.window.onQuit = [&] { return ++asked > 1; };  // the first time the user stays
    desk.window.OpenHelp(QStringLiteral("Main_Contents"));
    desk.window.close();
    EXPECT_TRUE(desk.window.isVisible());
    QTimer::singleShot(0, &desk.window, [&] { desk.window.close(); });
    QTimer::singleShot(5000, [] { QCoreApplication::exit(7); });  // what a program that lives on would do
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(asked, 2);
    EXPECT_FALSE(desk.window.isVisible());
}

// The history tape opens from the keyboard beside the keys, follows every key, recalls a line's
// result into X with Return and copies it with Ctrl+C.
TEST(Window, TheHistoryTapeFollowsRecallsAndCopies) {
    Desk desk;
    desk.window.UseStore(&desk.calculator.store);
    desk.calculator.store.KeepEachCommand();
    desk.Type("2+3=");
    QTest::keyClick(&desk.window, Qt::Key_H, Qt::ControlModifier);
    QCoreApplication::processEvents();
    TapePanel* tape = desk.window.tapePanel();
    ASSERT_TRUE(tape && tape->isVisible());
    QTreeWidget* list = tape->list();
    desk.Type("4*");
    ASSERT_EQ(list->topLevelItemCount(), 3);
    EXPECT_EQ(list->topLevelItem(1)->text(0), QStringLiteral("3 ="));
    EXPECT_EQ(list->topLevelItem(1)->text(1), QStringLiteral("5."));
    list->setCurrentItem(list->topLevelItem(1));
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("5."));
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(desk.XLine(), "5.");
    EXPECT_EQ(list->topLevelItem(list->topLevelItemCount() - 1)->text(0), QStringLiteral("Recall"));
    QTest::keyClick(&desk.window, Qt::Key_H, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_FALSE(tape->isVisible());
}

// The titles of the windows shown besides the main window, each with where it stands: "beside"
// the main window, "centred" on it, or "elsewhere".
std::string OpenWindows(const MainWindow& window) {
    QStringList titles;
    const QRect main = window.frameGeometry();
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget == &window || !widget->isVisible() || widget->windowTitle().isEmpty()) continue;
        const QRect frame = widget->frameGeometry();
        const bool centred = (frame.center() - main.center()).manhattanLength() <= 4;
        titles << widget->windowTitle() + (!frame.intersects(main) ? " beside" : centred ? " centred" : " elsewhere");
    }
    return titles.join(QLatin1Char('|')).toStdString();
}

void CloseWindows(Desk& desk) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget != &desk.window && widget->isVisible()) widget->hide();
    }
    // Hiding the active window lets the platform hand the activation on later: wait that out.
    for (int tries = 0; tries < 5 && QApplication::activeWindow() != &desk.window; ++tries) {
        desk.window.activateWindow();
        [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(&desk.window);
        QCoreApplication::processEvents();
    }
}

// Each window opens from its menu entry, its shortcut and the display tap set to it; the Action
// button's "Open last form" reopens the last view shown, and an open Stack view follows the keys.
TEST(Windows, EachOpensFromItsMenuEntryShortcutAndDisplayTap) {
    struct Row {
        const char* entry;  // nullptr: only the shortcut reaches it
        QKeySequence shortcut;
        double tap;         // where across the display a tap opens it; 0: no tap
        const char* title;  // and where the window stands: the Stack beside the calculator
    };
    const Row rows[] = {
        {"Stack...", {}, 0.5, "Stack beside"},
        {"User Registers...", {}, 0, "User Registers centred"},
        {"Constants...", {}, 0.9, "Constants centred"},
        {"TVM...", {}, 0.1, "Time Value of Money centred"},
        {"Amortization...", {}, 0, "Amortization centred"},
        {"Cash Flow...", {}, 0, "No Cash Flow Entries centred"},  // nothing beyond CF0 yet
        {"Statistical...", {}, 0, "Statistical Registers centred"},
        {"Enter Date...", QKeySequence(Qt::CTRL | Qt::Key_D), 0, "Enter Date centred"},
        {"Enter Time...", QKeySequence(Qt::CTRL | Qt::Key_T), 0, "Enter Time centred"},
        {"Durations...", QKeySequence(Qt::CTRL | Qt::Key_U), 0, "Durations centred"},
        {"Preferences...", {}, 0, "Preferences centred"},
        {"Keyboard...", {}, 0, "Customize Keyboard centred"},
        {"About Brinto...", {}, 0, "About Brinto centred"},
        {"Find Key...", QKeySequence(Qt::CTRL | Qt::Key_K), 0, "Find Key centred"},
        {nullptr, QKeySequence(Qt::Key_F1), 0, "Brinto Help elsewhere"},
    };
    Desk desk;
    desk.window.move(20, 20);
    // Nothing is made before it is first wanted.
    EXPECT_EQ(desk.window.openedDialogs(), nullptr);
    // The icon is on the window and on the application, so the About box shows it too. (Its files
    // at each size are the install test's.)
    EXPECT_FALSE(desk.window.windowIcon().isNull());
    EXPECT_FALSE(QGuiApplication::windowIcon().isNull());
    desk.ChangePreferences([](Preferences& p) {
        p.SetTap(TapArea::Left, TapTarget::Tvm);
        p.SetTap(TapArea::Center, TapTarget::Stack);
        p.SetTap(TapArea::Right, TapTarget::Constants);
        p.SetAction(ActionChoice::OpenLastForm);
    });
    DisplayView* display = desk.window.display();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.title);
        if (row.entry) {
            QAction* entry = MenuEntry(desk.window, row.entry);
            ASSERT_NE(entry, nullptr);
            EXPECT_EQ(entry->shortcut(), row.shortcut);
            Trigger(desk.window, row.entry);
            EXPECT_EQ(OpenWindows(desk.window), row.title);
            CloseWindows(desk);
        }
        if (!row.shortcut.isEmpty()) {
            QTest::keySequence(&desk.window, row.shortcut);
            QCoreApplication::processEvents();
            EXPECT_EQ(OpenWindows(desk.window), row.title) << "by its shortcut";
            CloseWindows(desk);
        }
        if (row.tap) {
            QTest::mouseClick(display, Qt::LeftButton, {}, QPoint(static_cast<int>(display->width() * row.tap), 10));
            EXPECT_EQ(OpenWindows(desk.window), row.title) << "by a tap";
            CloseWindows(desk);
        }
    }
    desk.Press(Qt::Key_Return);
    EXPECT_EQ(OpenWindows(desk.window), "Customize Keyboard centred");
    CloseWindows(desk);

    Trigger(desk.window, "Stack...");
    desk.Type("7");
    QStringList lines;
    for (QListWidget* list : desk.window.findChildren<QListWidget*>()) {
        for (int i = 0; i < list->count(); ++i) lines << list->item(i)->text().trimmed();
    }
    EXPECT_TRUE(lines.contains(QStringLiteral("7"))) << lines.join(QLatin1Char('|')).toStdString();
}

// The theme chosen on the "Preferences" sheet is the window's once OK is pressed.
TEST(Windows, PreferencesThemeIsAppliedAfterOk) {
    Desk desk;
    const Rgb before = desk.window.colours().window;
    Trigger(desk.window, "Preferences...");
    auto* sheet = qobject_cast<dialogs::PreferencesDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(sheet, nullptr);
    auto* theme = sheet->findChild<QComboBox*>(QStringLiteral("Theme:"));
    theme->setCurrentIndex(theme->findData(theme_id::DarkBackground));
    sheet->accept();
    EXPECT_EQ(desk.engine().prefs.Theme(), theme_id::DarkBackground);
    EXPECT_LT(ToQColor(desk.window.colours().window).lightness(), 100);
    EXPECT_NE(desk.window.colours().window, before);
}

}  // namespace
}  // namespace brinto::test
