#include "session/session.h"

#include <gtest/gtest.h>

#include <optional>
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

// The main window's typed characters: each is the key of the hardware-key table, remapped as a
// tapped key is (integer and register variants); "E" is a hexadecimal digit while a base is chosen. The key dispatched is the one a macro being recorded keeps.
TEST(Session, TypedCharactersAreTheirKeys) {
    struct Case {
        char typed;
        bool hex;  // on the Programmer keyboard, base 16
        FunctionId key;
    };
    const Case cases[] = {
        {'0', false, fid::Digit0}, {'9', false, fid::Digit9},     {'.', false, fid::Point},
        {',', false, fid::Point},  {'=', false, fid::Equals},     {'+', false, fid::Add},
        {'-', false, fid::Subtract}, {'*', false, fid::Multiply}, {'x', false, fid::Multiply},
        {'X', false, fid::Multiply}, {'/', false, fid::Divide},   {'%', false, fid::Percent},
        {'(', false, fid::OpenParen}, {')', false, fid::CloseParen}, {'S', false, fid::Recall},
        {'s', false, fid::Recall}, {'R', false, fid::Exchange},   {'r', false, fid::Exchange},
        {'e', false, fid::Exponent}, {'E', false, fid::Exponent}, {'a', true, DigitKey(10)},
        {'A', true, DigitKey(10)}, {'f', true, DigitKey(15)},    {'F', true, DigitKey(15)},
        {'e', true, DigitKey(14)}, {'E', true, DigitKey(14)},    {'+', true, fid::Add},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(1, c.typed) + (c.hex ? " in base 16" : ""));
        Fixture f;
        f.engine.prefs.SetMethod(InputMethod::Precedence);
        f.engine.ClearStack();
        f.Type("1+2");  // a number and a pending operation for every key to act on
        if (c.hex) {
            f.session.SelectKeyboard(kProgrammerKeyboard);
            f.session.Tap(fid::BaseHex);
        }
        f.session.Tap(fid::MacroRecord);
        const int recorded = f.engine.macro.macroLength;
        EXPECT_TRUE(f.session.CharacterKey(static_cast<unsigned char>(c.typed)));
        ASSERT_EQ(f.engine.macro.macroLength, recorded + 1);
        EXPECT_EQ(f.engine.macro.macroKeys[recorded], f.session.Remap(c.key));
        EXPECT_EQ(f.host.beeps, 0);
    }
}

// The control characters are the Edit menu's commands, Enter the Action button; a character that
// is no key, or a key the calculator refuses, beeps.
TEST(Session, ControlCharactersAreCommandsAndOthersBeep) {
    struct Case {
        const char* typed;
        std::optional<std::string> clipboard;  // before
        double x;
        std::optional<std::string> clipboardAfter;
        int beeps;
    };
    const Case cases[] = {
        {"12\x03", std::nullopt, 12.0, "12", 0},   // Ctrl+C copies
        {"7+12\x18", std::nullopt, 7.0, "12", 0},  // Ctrl+X cuts
        {"2+\x16=", "40", 42.0, "40", 0},          // Ctrl+V pastes
        {"2+3=\x1A", std::nullopt, 3.0, std::nullopt, 0},      // Ctrl+Z undoes
        {"2+3=\x1A\x19", std::nullopt, 5.0, std::nullopt, 0},  // Ctrl+Y redoes
        {"2*3\r", std::nullopt, 6.0, std::nullopt, 0},         // Enter: "=" outside RPN
        {"12\b", std::nullopt, 1.0, std::nullopt, 0},
        {"2+3\x7F", std::nullopt, 0.0, std::nullopt, 0},       // Delete clears the stack
        {"4q", std::nullopt, 4.0, std::nullopt, 1},
        {"4A", std::nullopt, 4.0, std::nullopt, 1},  // a hexadecimal digit in base 10
        {"4\x01", std::nullopt, 4.0, std::nullopt, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed);
        Fixture f;
        f.engine.prefs.SetMethod(InputMethod::Precedence);
        f.engine.ClearStack();
        f.host.clipboard = c.clipboard;
        f.Type(c.typed);
        EXPECT_EQ(f.engine.X(), c.x);
        EXPECT_EQ(f.host.clipboard, c.clipboardAfter);
        EXPECT_EQ(f.host.beeps, c.beeps);
    }
    Fixture rpn;  // Enter is ENTER in RPN
    rpn.Type("3\r4*");
    EXPECT_EQ(rpn.engine.X(), 12.0);
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

// A paste completes the number being typed, or is a number of its own: the text counts from its
// first decimal digit, in the radix the preferences choose and the base chosen. A copy is the
// number without grouping or a trailing point; an error copies nothing.
TEST(Session, PasteTakesTheFirstNumberAndCopyTheBareValue) {
    struct Case {
        const char* typed;
        const char* pasted;
        bool commaRadix, hex;
        double x, y;
    };
    const Case cases[] = {
        {"12", "5", false, false, 5.0, 12.0},
        {"12+", "abc42", false, false, 42.0, 12.0},
        {"", "-3", false, false, 3.0, 0.0},
        {"", "7,25e1 and more", true, false, 72.5, 0.0},
        {"8", "no digits", false, false, 8.0, 0.0},
        {"", "x1f", false, true, 31.0, 0.0},
        {"", "9 apples", false, true, 9.0, 0.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pasted);
        Fixture f;
        f.engine.prefs.SetCommaRadix(c.commaRadix);
        if (c.hex) {
            f.session.SelectKeyboard(kProgrammerKeyboard);
            f.session.Tap(fid::BaseHex);
        }
        f.Type(c.typed);
        f.session.PasteText(c.pasted);
        EXPECT_EQ(std::pair(f.engine.X(), f.engine.Y()), std::pair(c.x, c.y));
        EXPECT_EQ(f.engine.XTag() == ValueTag::S32, c.hex);  // pasted in a base: the default format, s32
    }
    Fixture f;
    f.Type("1234.5");
    f.session.Tap(fid::Enter);
    f.session.Copy();
    EXPECT_EQ(f.host.clipboard, "1234.5");
    f.engine.prefs.SetCommaRadix(true);
    f.session.Cut();
    EXPECT_EQ(f.host.clipboard, "1234,5");
    EXPECT_EQ(f.engine.X(), 1234.5);  // the cut dropped the copy left by Enter
    f.host.clipboard.reset();
    f.Type("0/");
    ASSERT_TRUE(IsErrorValue(f.engine.X()));
    f.session.Copy();
    EXPECT_FALSE(f.host.clipboard.has_value());
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
