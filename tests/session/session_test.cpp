#include "session/session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session/keyboards.h"

namespace brinto {
namespace {

struct Message {
    std::string caption;
    std::string text;
};

class RecordingHost : public Host {
public:
    std::vector<Message> messages;
    std::optional<std::string> clipboard;
    bool confirm = true;
    int beeps = 0;

    void ShowMessage(std::string_view caption, std::string_view text) override {
        messages.push_back({std::string(caption), std::string(text)});
    }
    bool Confirm(std::string_view, std::string_view) override { return confirm; }
    void PutOnClipboard(std::string_view text) override { clipboard = std::string(text); }
    std::optional<std::string> ClipboardText() override { return clipboard; }
    void Beep() override { ++beeps; }
};

struct Fixture {
    Engine engine;
    RecordingHost host;
    Session session{engine, host};

    Fixture() {
        engine.prefs.SetMethod(InputMethod::Rpn);
        engine.ClearStack();
    }
    void Type(std::string_view keys) {
        for (const char c : keys) session.CharacterKey(static_cast<unsigned char>(c));
    }
};

TEST(Session, UnassignedKeyShowsNoFunction) {
    Fixture f;
    f.session.SelectKeyboard(kUserKeyboard);
    EXPECT_FALSE(f.session.TapBlockKey(1));
    ASSERT_EQ(f.host.messages.size(), 1u);
    EXPECT_EQ(f.host.messages[0].caption, "No Function");
    EXPECT_EQ(f.host.messages[0].text, "The Keyboard dialog can be used to assign a function to this button.");
}

TEST(Session, ClearAllAsksFirst) {
    Fixture f;
    f.Type("7");
    f.session.Tap(fid::StoreVariant);
    f.session.Tap(fid::Digit1);
    f.host.confirm = false;
    f.session.Tap(fid::ClearAll2);
    EXPECT_EQ(f.engine.registers.values[1], 7.0);
    f.host.confirm = true;
    f.session.Tap(fid::ClearAll2);
    EXPECT_EQ(f.engine.registers.values[1], 0.0);
}

TEST(Session, UndoAndRedoMessages) {
    Fixture f;
    f.session.Undo();
    f.session.Redo();
    ASSERT_EQ(f.host.messages.size(), 2u);
    EXPECT_EQ(f.host.messages[0].caption, "Nothing to Undo");
    EXPECT_EQ(f.host.messages[0].text, "There are no operations to be undone.");
    EXPECT_EQ(f.host.messages[1].caption, "Nothing to Redo");
    EXPECT_EQ(f.host.messages[1].text, "There are no undo actions to be redone.");
}

TEST(Session, UndoKeepsTheLastCommand) {
    Fixture f;
    f.Type("2");
    f.session.Tap(fid::Enter);
    f.session.Undo();
    EXPECT_EQ(f.engine.state.lastCommand, fid::Enter);
    f.session.Redo();
    EXPECT_EQ(f.engine.state.lastCommand, fid::Enter);
}

TEST(Session, UndoSelectsTheRestoredKeyboard) {
    Fixture f;
    f.session.SelectKeyboard(2);
    f.Type("5");
    f.session.Tap(fid::Enter);
    f.session.SelectKeyboard(1);
    f.session.Undo();
    EXPECT_EQ(f.engine.Keyboard(), 2);
}

TEST(Session, MacroMessages) {
    Fixture f;
    f.session.Tap(fid::MacroRecord);
    f.session.Tap(fid::MacroStop);
    f.session.Tap(fid::MacroPlay);
    ASSERT_EQ(f.host.messages.size(), 1u);
    EXPECT_EQ(f.host.messages[0].caption, "No Macro");
    EXPECT_EQ(f.host.messages[0].text, "A macro must be recorded before it can be played back.");

    f.session.Tap(fid::MacroRecord);
    for (int i = 0; i < 61; ++i) f.session.Tap(fid::Swap);
    EXPECT_FALSE(f.session.Tap(fid::Swap));
    ASSERT_EQ(f.host.messages.size(), 2u);
    EXPECT_EQ(f.host.messages[1].caption, "Macro Length Exceeded");
    EXPECT_EQ(f.host.messages[1].text, "The macro length has been exceeded and the last key could not be recorded.");
}

TEST(Session, HardwareKeys) {
    Fixture f;
    f.Type("12+");  // in RPN, "+" adds 12 to Y
    f.Type("3e2");
    EXPECT_EQ(f.engine.X(), 300.0);
    f.session.Special(SpecialKey::Enter);  // the Action button: Enter in RPN
    f.Type("*");
    EXPECT_EQ(f.engine.X(), 90000.0);
    f.Type("q");
    EXPECT_EQ(f.host.beeps, 1);
    f.Type("A");  // a hexadecimal digit off the programmer keyboard is rejected
    EXPECT_EQ(f.host.beeps, 2);
}

TEST(Session, HardwareEIsAHexDigitInIntegerBases) {
    Fixture f;
    f.session.SelectKeyboard(kProgrammerKeyboard);
    f.session.Tap(fid::BaseHex);
    f.Type("1E");
    EXPECT_EQ(f.engine.X(), 30.0);
}

TEST(Session, ArrowsSwitchKeyboardsAndViews) {
    Fixture f;
    f.session.Special(SpecialKey::Up);
    EXPECT_EQ(f.engine.Keyboard(), 8);
    f.session.Special(SpecialKey::Down);
    EXPECT_EQ(f.engine.Keyboard(), 0);
    f.session.Special(SpecialKey::Left);
    EXPECT_EQ(f.engine.state.viewFlags & view::ModeMask, view::Basic);
    f.session.Special(SpecialKey::Down);  // keyboards do not change in the Basic view
    EXPECT_EQ(f.engine.Keyboard(), 0);
    f.session.Special(SpecialKey::Right);
    EXPECT_EQ(f.engine.state.viewFlags & view::ModeMask, 0);
    f.session.SelectKeyboard(9);
    EXPECT_EQ(f.engine.Keyboard(), 0);
}

TEST(Session, ActionButtonChoices) {
    Fixture f;
    f.engine.prefs.SetMethod(InputMethod::Simple);
    f.engine.ClearStack();
    f.Type("2+3");
    f.session.ActionButton();  // "=" outside RPN
    EXPECT_EQ(f.engine.X(), 5.0);
    f.engine.prefs.SetAction(ActionChoice::RepeatLastKey);
    f.session.Tap(fid::Multiply);
    f.Type("2");
    f.session.ActionButton();  // repeats the last command, "*"
    EXPECT_EQ(f.engine.PendingTop(), fid::Multiply);
}

TEST(Session, BlockKeysFollowTheShiftAndRemap) {
    Fixture f;
    f.session.SelectKeyboard(1);  // Financial
    f.Type("9");
    f.session.TapBlockKey(4);  // PMT: with no financial family yet or with one, the key is routed
    f.session.Tap(fid::Shift);
    EXPECT_EQ(KeyLayout(1, 1, f.session.userKeys)[3], fid::PYr);
    f.session.SelectKeyboard(0);
    f.session.Tap(fid::Shift);
    f.session.TapBlockKey(3);  // shifted General key 3: RPN
    EXPECT_TRUE(f.engine.IsRpn());
    EXPECT_EQ(f.session.Remap(fid::Recall), fid::RecallLarge);
    f.session.SelectKeyboard(kProgrammerKeyboard);
    EXPECT_EQ(f.session.Remap(fid::Add), fid::IntegerAdd);
}

TEST(Session, CopyCutAndPaste) {
    Fixture f;
    f.Type("1234.5");
    f.session.Tap(fid::Enter);
    f.session.Copy();
    EXPECT_EQ(f.host.clipboard, "1234.5");  // no grouping, no trailing point
    f.engine.prefs.SetCommaRadix(true);
    f.session.Cut();
    EXPECT_EQ(f.host.clipboard, "1234,5");
    EXPECT_EQ(f.engine.X(), 1234.5);  // the cut dropped the copy left by Enter

    f.session.PasteText("abc42");
    EXPECT_EQ(f.engine.X(), 42.0);
    EXPECT_EQ(f.engine.Y(), 1234.5);
    f.session.PasteText("-3");
    EXPECT_EQ(f.engine.X(), 3.0);
    f.session.PasteText("7,25e1 and more");
    EXPECT_EQ(f.engine.X(), 72.5);
    const double before = f.engine.X();
    f.session.PasteText("no digits");
    EXPECT_EQ(f.engine.X(), before);
}

TEST(Session, PasteCompletesATypedNumberInRpn) {
    Fixture f;
    f.Type("12");
    f.session.PasteText("5");
    EXPECT_EQ(f.engine.X(), 5.0);
    EXPECT_EQ(f.engine.Y(), 12.0);
    f.Type("+");
    EXPECT_EQ(f.engine.X(), 17.0);
}

TEST(Session, PasteReadsTheCurrentBase) {
    Fixture f;
    f.session.SelectKeyboard(kProgrammerKeyboard);
    f.session.Tap(fid::BaseHex);
    f.session.PasteText("x1f");  // the text counts from its first decimal digit
    EXPECT_EQ(f.engine.X(), 31.0);
    EXPECT_EQ(f.engine.XTag(), ValueTag::S32);  // the default format, s32
}

TEST(Session, CopyOfAnErrorCopiesNothing) {
    Fixture f;
    f.Type("1");
    f.session.Tap(fid::Enter);
    f.Type("0/");
    ASSERT_TRUE(IsErrorValue(f.engine.X()));
    f.session.Copy();
    EXPECT_FALSE(f.host.clipboard.has_value());
}

}  // namespace
}  // namespace brinto
