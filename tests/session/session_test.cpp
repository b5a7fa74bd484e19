#include "session/session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calculator/assembly.h"
#include "engine/keyboards.h"
#include "engine/numeric/date_fields.h"
#include "session/recording_host.h"

namespace brinto {
namespace {

struct Fixture {
    Engine engine{CalculatorFamilies()};
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

// The tape: a line for each operation with the number typed before it and the result it gave; a
// key that waits for more (a register key, HYP) and the shift latch add to the next line instead.
TEST(Session, TheTapeHasALinePerOperation) {
    Fixture f;
    f.Type("2");
    f.session.Special(SpecialKey::Enter);
    f.Type("3+");
    f.Type("77");
    f.session.TapKey(fid::Store);
    f.Type("02");
    f.session.Tap(fid::Shift);
    f.session.Tap(fid::ClearX);
    f.session.Undo();
    f.session.Tap(fid::Hyperbolic);
    f.session.Tap(fid::Sin);
    f.session.Undo();
    f.Type("16");
    f.session.Tap(fid::SquareRoot);
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"2 ENTER", "2."},    {"3 +", "5."},    {"77 STO 0 2", "77."}, {"CLx", "0."},
        {"Undo", "77."},      {"HYP SIN", ""},  {"Undo", "77."},       {"16 \u221Ax", "4."},
    };
    const std::vector<TapeLine> lines = f.session.TakeTapeLines();
    ASSERT_EQ(lines.size(), expected.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].keys, expected[i].first);
        if (!expected[i].second.empty()) {
            EXPECT_EQ(lines[i].result, expected[i].second) << lines[i].keys;
        }
        EXPECT_EQ(lines[i].time, "2000-01-01 00:00:00");
    }
    EXPECT_EQ(lines.back().value, 4.0);
    EXPECT_TRUE(f.session.TakeTapeLines().empty());
}

// Each refusal the user can meet shows its own caption and text, once.
TEST(Session, MessagesNameWhatCannotBeDone) {
    using Steps = void (*)(Fixture&);
    const std::tuple<Steps, const char*, const char*> cases[] = {
        {[](Fixture& f) { f.session.Undo(); }, "Nothing to Undo", "There are no operations to be undone."},
        {[](Fixture& f) { f.session.Redo(); }, "Nothing to Redo", "There are no undo actions to be redone."},
        {[](Fixture& f) {
             f.session.SelectKeyboard(kUserKeyboard);
             EXPECT_FALSE(f.session.TapBlockKey(1));
         },
         "No Function", "The Keyboard dialog can be used to assign a function to this button."},
        {[](Fixture& f) {
             for (const FunctionId key : {fid::MacroRecord, fid::MacroStop, fid::MacroPlay}) f.session.Tap(key);
         },
         "No Macro", "A macro must be recorded before it can be played back."},
        {[](Fixture& f) {
             f.session.Tap(fid::MacroRecord);
             for (int i = 0; i < 61; ++i) f.session.Tap(fid::Swap);
             EXPECT_FALSE(f.session.Tap(fid::Swap));
         },
         "Macro Length Exceeded", "The macro length has been exceeded and the last key could not be recorded."},
    };
    for (const auto& [steps, caption, text] : cases) {
        SCOPED_TRACE(caption);
        Fixture f;
        steps(f);
        ASSERT_EQ(f.host.messages.size(), 1u);
        EXPECT_EQ(f.host.messages[0].caption, caption);
        EXPECT_EQ(f.host.messages[0].text, text);
    }
}

TEST(Session, ClearAllAsksFirst) {
    Fixture f;
    f.Type("7");
    f.session.Tap(fid::StoreVariant);
    f.session.Tap(fid::Digit1);
    f.host.confirm = false;
    f.session.Tap(fid::SecondClearAll);
    EXPECT_EQ(f.engine.registers.values[1], 7.0);
    f.host.confirm = true;
    f.session.Tap(fid::SecondClearAll);
    EXPECT_EQ(f.engine.registers.values[1], 0.0);
}

// Undo brings back the keyboard of the step, but not the last command a repeat would send.
TEST(Session, UndoSelectsTheRestoredKeyboardAndKeepsTheLastCommand) {
    Fixture f;
    f.session.SelectKeyboard(2);
    f.Type("5");
    f.session.Tap(fid::Enter);
    f.session.SelectKeyboard(1);
    f.session.Undo();
    EXPECT_EQ(f.engine.Keyboard(), 2);
    EXPECT_EQ(f.engine.state.lastCommand, fid::Enter);
    f.session.Redo();
    EXPECT_EQ(f.engine.state.lastCommand, fid::Enter);
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
    f.session.SelectKeyboard(kProgrammerKeyboard);
    f.session.Tap(fid::BaseHex);
    f.Type("1E");  // E is a digit here, not the exponent
    EXPECT_EQ(f.engine.X(), 30.0);
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
    f.engine.prefs.SetAction(ActionChoice::OpenLastForm);
    f.session.SetLastView(View::Amortization);
    f.session.ActionButton();
    f.engine.state.lastView = 99;  // a damaged record names no view
    f.session.ActionButton();
    EXPECT_EQ(f.host.opened, (std::vector<View>{View::Amortization, View::Preferences}));
}

TEST(Session, BlockKeysFollowTheShiftAndRemap) {
    Fixture f;
    f.session.SelectKeyboard(1);  // Financial
    f.Type("9");
    f.session.TapBlockKey(4);  // PMT: with no financial family yet or with one, the key is routed
    f.session.Tap(fid::Shift);
    EXPECT_EQ(KeyLayout(1, 1, f.session.userKeys())[3], fid::PYr);
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
    f.Type("12");
    f.session.PasteText("5");  // completes the number being typed
    EXPECT_EQ(std::pair(f.engine.X(), f.engine.Y()), std::pair(5.0, 12.0));
    f.Type("+");
    EXPECT_EQ(f.engine.X(), 17.0);
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
    f.session.PasteText("no digits");
    EXPECT_EQ(f.engine.X(), 72.5);

    f.host.clipboard.reset();
    f.Type("0/");
    ASSERT_TRUE(IsErrorValue(f.engine.X()));
    f.session.Copy();  // an error copies nothing
    EXPECT_FALSE(f.host.clipboard.has_value());

    f.session.SelectKeyboard(kProgrammerKeyboard);
    f.session.Tap(fid::BaseHex);
    f.session.PasteText("x1f");  // the text counts from its first decimal digit
    EXPECT_EQ(f.engine.X(), 31.0);
    EXPECT_EQ(f.engine.XTag(), ValueTag::S32);  // the default format, s32
    f.session.PasteText("9 apples");  // one digit is a number too
    EXPECT_EQ(f.engine.X(), 9.0);
}

// The "Preferences" sheet's OK sends the input method's key exactly once, changed or not: a
// macro being recorded shows every key the dispatcher saw.
TEST(SessionCommands, PreferencesSendTheMethodKeyOnce) {
    const std::tuple<InputMethod, FunctionId> cases[] = {
        {InputMethod::Rpn, fid::MethodRpn},  // unchanged: the fixture runs in RPN
        {InputMethod::Precedence, fid::MethodPrecedence},
        {InputMethod::Simple, fid::MethodSimple},
    };
    for (const auto& [method, key] : cases) {
        SCOPED_TRACE(static_cast<int>(method));
        Fixture f;
        f.session.Tap(fid::MacroRecord);
        const int recorded = f.engine.macro.macroLength;  // the macro opens with the method in force
        Preferences prefs = f.engine.prefs;
        prefs.SetMethod(method);
        prefs.SetTheme(4);
        f.engine.dirty = {};
        f.session.SetPreferences(prefs);
        ASSERT_EQ(f.engine.macro.macroLength, recorded + 1);
        EXPECT_EQ(f.engine.macro.macroKeys[recorded], key);
        EXPECT_EQ(f.engine.Method(), method);
        EXPECT_EQ(f.engine.prefs.Theme(), 4);
        EXPECT_TRUE(f.engine.dirty.preferences);
    }
}

// Each dialog's change marks the record it changed, and only that one.
TEST(SessionCommands, EachChangeMarksItsRecord) {
    using Command = void (*)(Session&);
    const std::tuple<const char*, Command, DirtyFlags> cases[] = {  // preferences, state, registers, macro, keys
        {"integer user keys", [](Session& s) { s.SetIntegerUserKeys(true); }, {true, false, false, false, false}},
        {"assign a user key", [](Session& s) { s.AssignUserKey(KeyHalf::Shifted, 12, fid::Add); },
         {false, false, false, false, true}},
        {"store a register", [](Session& s) { s.StoreRegister(123, 2.5); }, {false, false, true, false, false}},
        {"constants list", [](Session& s) { s.SetConstantsTopRow(9); }, {false, true, false, false, false}},
        {"last view", [](Session& s) { s.SetLastView(View::CashFlow); }, {false, true, false, false, false}},
        {"override", [](Session& s) { s.OverridePreferences(DefaultPreferences()); }, {}},
    };
    for (const auto& [name, command, marked] : cases) {
        SCOPED_TRACE(name);
        Fixture f;
        f.engine.dirty = {};
        command(f.session);
        const DirtyFlags& d = f.engine.dirty;
        EXPECT_EQ(std::tuple(d.preferences, d.state, d.registers, d.macro, d.userKeys),
                  std::tuple(marked.preferences, marked.state, marked.registers, marked.macro, marked.userKeys));
    }
}

TEST(SessionCommands, UserKeysAreAssignedByHalf) {
    Fixture f;
    EXPECT_TRUE(f.session.AssignUserKey(KeyHalf::Shifted, 12, fid::Add));
    EXPECT_FALSE(f.session.AssignUserKey(KeyHalf::Shifted, 13, fid::Add));
    EXPECT_FALSE(f.session.AssignUserKey(KeyHalf::Unshifted, 0, fid::Add));
    EXPECT_EQ(f.session.userKeys().keys[23], fid::Add);
}

// Values from dialogs enter as one undoable step each; what is no date or time changes nothing.
TEST(SessionCommands, DialogValuesAreUndoableSteps) {
    Fixture f;
    f.Type("5");
    f.session.Tap(fid::Enter);
    EXPECT_TRUE(f.session.StoreRegister(7, 42.0));
    EXPECT_FALSE(f.session.StoreRegister(124, 1.0));
    EXPECT_TRUE(f.session.EnterDate(2024, 2, 29));
    EXPECT_EQ(f.engine.XTag(), fid::TagDate);
    EXPECT_EQ(SplitDate(f.engine.X()).day, 29);
    EXPECT_EQ(f.engine.Y(), 5.0);  // the date was lifted onto the stack like a recall
    for (const auto& [y, m, d] : {std::tuple(2023, 2, 29), std::tuple(1903, 12, 31), std::tuple(2032, 1, 1),
                                  std::tuple(2024, 13, 1), std::tuple(2024, 4, 31)}) {
        EXPECT_FALSE(f.session.EnterDate(y, m, d)) << y << "-" << m << "-" << d;
    }
    EXPECT_FALSE(f.session.EnterTime(24, 0));
    EXPECT_FALSE(f.session.EnterTime(0, 60));
    EXPECT_TRUE(f.session.EnterTime(0, 5));
    EXPECT_EQ(std::pair(f.engine.X(), f.engine.XTag()), std::pair(300.0, fid::TagTime));
    f.session.Undo();  // the time
    f.session.Undo();  // the date
    EXPECT_EQ(f.engine.X(), 5.0);
    EXPECT_EQ(f.engine.registers.values[7], 42.0);
    f.session.Undo();  // the register
    EXPECT_EQ(f.engine.registers.values[7], 0.0);
    EXPECT_TRUE(f.host.messages.empty());
}

// What the register views cannot send through their widgets is refused here: a group count that
// would end the series early, an entry not made, registers beyond 123, a payment number below 1.
TEST(SessionCommands, RegisterViewEditsAreRefusedOutsideTheirRange) {
    Fixture f;
    f.Type("1000");
    f.session.Tap(fid::CashFlow);
    EXPECT_FALSE(f.session.StoreCashFlow(0, 300.0, 0));
    EXPECT_FALSE(f.session.StoreCashFlow(1, 5.0, 1));
    const double durations[] = {360.0, 30.0, 7.0, 24.0, 25.0};
    EXPECT_FALSE(f.session.StoreRegisters(reg::FramesPerSecond, durations));
    EXPECT_FALSE(f.session.SetAmortizationRange(0, 12));
    EXPECT_EQ(std::pair(f.engine.registers.aux[0], f.engine.state.amortStart), std::pair(1u, i16{0}));
    f.engine.state.status |= status::FullDisplay;
    f.session.TapViewKey(fid::Swap);
    EXPECT_FALSE(f.engine.state.status & status::FullDisplay);
}

}  // namespace
}  // namespace brinto
