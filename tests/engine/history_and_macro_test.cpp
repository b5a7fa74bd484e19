#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <tuple>
#include <vector>

#include "engine_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;

bool Undo(Engine& e) { return e.history.Undo(e.Records(), e.prefs.StickyShift()); }
bool Redo(Engine& e) { return e.history.Redo(e.Records(), e.prefs.StickyShift()); }

TEST(History, KeepsTheTenNewestStepsAndTheFirstShiftOnlyWhenSticky) {
    Engine e = MakeEngine(InputMethod::Simple);
    for (int i = 0; i < 11; ++i) e.Dispatch(fid::Enter);  // each pushes one more Enter marker
    int undone = 0;
    while (Undo(e)) ++undone;
    EXPECT_EQ(undone, 10);
    EXPECT_EQ(e.state.pendingCount, 1);  // the first step is gone
    for (const bool sticky : {false, true}) {
        SCOPED_TRACE(sticky ? "sticky" : "standard");
        e = MakeEngine(InputMethod::Rpn);
        e.prefs.SetShift(sticky ? ShiftMode::Sticky : ShiftMode::Standard);
        Press(e, {5, fid::Enter});
        e.state.status |= status::FirstShift;  // a shift latched before the next step
        Press(e, {fid::Drop});
        ASSERT_TRUE(Undo(e));
        EXPECT_EQ(static_cast<bool>(e.state.status & status::FirstShift), sticky);
    }
}

// A macro's playback is one step; a new operation ends the redo chain; Clear All empties the
// registers, the macro and the stack, and undo brings them back.
TEST(History, PlaybackIsOneStepANewOperationEndsRedoAndClearAllIsUndone) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {fid::MacroRecord, 1, fid::Add, 2, fid::Multiply, fid::MacroStop, 7, fid::StoreVariant, 4});
    Press(e, {5, fid::Enter, 6, fid::Add});
    ASSERT_TRUE(Undo(e));
    EXPECT_EQ(e.X(), 6.0);
    ASSERT_TRUE(Redo(e));
    EXPECT_EQ(e.X(), 11.0);
    e.Dispatch(fid::MacroPlay);  // (11 + 1) x 2
    EXPECT_EQ(e.X(), 24.0);
    ASSERT_TRUE(Undo(e));
    EXPECT_EQ(e.X(), 11.0);
    Press(e, {fid::Multiply});
    EXPECT_EQ(std::pair(e.X(), e.history.CanRedo()), std::pair(77.0, false));
    Press(e, {fid::ClearAll});
    EXPECT_EQ(std::tuple(e.registers.values[4], e.macro.macroLength, e.X(), e.Y()), std::tuple(0.0, 0, 0.0, 0.0));
    ASSERT_TRUE(Undo(e));
    EXPECT_EQ(std::pair(e.registers.values[4], int{e.macro.macroLength}), std::pair(7.0, 6));
}

// Playback runs in the recorded method up to an error or the end, and leaves the method the user
// chose. While a recording is paused the keys still go into the macro, after the recorded pause
// where playback will wait, but the macro keys do not: record or pause resumes, play or stop ends
// the recording. While a playback is paused, play or pause resumes it, stop ends it in the user's
// method, Clear Stack in the preferred one, and record starts a new macro.
TEST(Macro, PlaybackAndTheKeysWhilePaused) {
    constexpr FunctionId Rec = fid::MacroRecord, Play = fid::MacroPlay, Pause = fid::MacroPause, Stop = fid::MacroStop;
    constexpr u16 Recording = flags::Recording, Playing = flags::Playing, Paused = flags::Paused;
    struct Case {
        const char* name;
        bool fromMacro;  // the keys follow the recording below
        std::vector<test::Key> keys;
        std::optional<std::vector<FunctionId>> recorded;  // not checked when absent
        u16 flags;                                        // recording, playing and paused
        double x;                                         // NAN: the error value
        bool rpn = true;
    };
    // Recorded in RPN: x + 1, a pause, times 10.
    const std::vector<test::Key> recording = {Rec, 1, fid::Add, Pause, 1, 0, Pause, fid::Multiply, Stop};
    const std::vector<FunctionId> macro = {fid::MethodRpn, fid::Digit1, fid::Add, Pause, fid::Digit1,
                                           fid::Digit0, fid::Multiply, Stop};
    const Case cases[] = {
        {"too short to play", false, {Rec, Stop, 8, Play}, std::nullopt, 0, 8},
        {"the shortest that plays", false, {Rec, fid::ChangeSign, Stop, 8, Play}, std::nullopt, 0, -8},
        {"recorded in RPN, played in Simple", false,  // squares X
         {Rec, fid::Enter, fid::Multiply, Stop, fid::MethodSimple, 7, Play}, std::nullopt, 0, 49, false},
        {"an error stops it", false,  // the second recording, 0 / then 5, replaces the first
         {Rec, fid::Enter, fid::Subtract, fid::Reciprocal, 5, Stop, Rec, 0, fid::Divide, 5, Stop, 3, Play},
         std::nullopt, 0, NAN},
        {"pause, typing, resume by pause", false, recording, macro, 0, 10},
        {"resume by record", false, {Rec, 2, Pause, 3, Rec, fid::Add},
         std::vector{fid::MethodRpn, fid::Digit2, Pause, fid::Digit3, fid::Add}, Recording, 23},
        {"stop while paused", false, {Rec, 2, Pause, Stop}, std::vector{fid::MethodRpn, fid::Digit2, Pause, Stop}, 0, 2},
        {"record while recording", false, {Rec, 2, Rec, Stop}, std::vector{fid::MethodRpn, fid::Digit2, Stop}, 0, 2},
        {"play while paused stops and plays up to the pause", false, {Rec, 2, Pause, Play},
         std::vector{fid::MethodRpn, fid::Digit2, Pause, Stop}, Playing | Paused, 2},
        {"played up to the pause", true, {fid::MethodSimple, 4, Play}, macro, Playing | Paused, 5},
        {"play resumes", true, {fid::MethodSimple, 4, Play, Play}, macro, 0, 50, false},
        {"pause resumes", true, {fid::MethodSimple, 4, Play, Pause}, macro, 0, 50, false},
        {"a digit typed while paused begins the recorded number", true, {fid::MethodSimple, 4, Play, 2, Pause}, macro,
         0, 1050, false},
        {"stop ends it in the user's method", true, {fid::MethodSimple, 4, Play, Stop}, macro, 0, 5, false},
        {"clear stack ends it in the preferred method", true, {fid::MethodSimple, 4, Play, fid::ClearStack}, macro, 0, 0},
        {"record ends it and starts anew", true, {fid::MethodSimple, 4, Play, Rec}, std::vector{fid::MethodRpn},
         Recording, 5},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = MakeEngine(InputMethod::Rpn);
        if (c.fromMacro) Press(e, recording);
        Press(e, c.keys);
        const std::vector<FunctionId> recorded(e.macro.macroKeys, e.macro.macroKeys + e.macro.macroLength);
        EXPECT_EQ(recorded, c.recorded.value_or(recorded));
        EXPECT_EQ(e.state.engineFlags & (Recording | Playing | Paused), c.flags);
        EXPECT_TRUE(std::isnan(c.x) ? IsErrorValue(e.X()) : e.X() == c.x) << e.X();
        EXPECT_EQ(e.IsRpn(), c.rpn);
    }
}

}  // namespace
}  // namespace brinto
