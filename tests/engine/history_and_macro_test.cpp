#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

#include "engine_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;

bool Undo(Engine& e) { return e.history.Undo(e.Records(), e.prefs.StickyShift()); }
bool Redo(Engine& e) { return e.history.Redo(e.Records(), e.prefs.StickyShift()); }

TEST(History, KeepsTheTenNewestSteps) {
    Engine e = MakeEngine(InputMethod::Simple);
    for (int i = 0; i < 11; ++i) e.Dispatch(fid::Enter);  // each pushes one more Enter marker
    int undone = 0;
    while (Undo(e)) ++undone;
    EXPECT_EQ(undone, 10);
    EXPECT_EQ(e.state.pendingCount, 1);  // the first step is gone
}

TEST(History, NewOperationEndsTheRedoChain) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {5, fid::Enter, 6, fid::Add});
    ASSERT_TRUE(Undo(e));
    EXPECT_EQ(e.X(), 6.0);
    ASSERT_TRUE(Redo(e));
    EXPECT_EQ(e.X(), 11.0);
    ASSERT_TRUE(Undo(e));
    Press(e, {fid::Multiply});
    EXPECT_FALSE(e.history.CanRedo());
    EXPECT_EQ(e.X(), 30.0);
}

TEST(History, ClearAllClearsEverythingAndUndoBringsItBack) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {fid::MacroRecord, 1, fid::Add, fid::MacroStop});
    Press(e, {7, fid::StoreVariant, 4, fid::Enter});
    Press(e, {fid::ClearAll});
    EXPECT_EQ(std::tuple(e.registers.values[4], e.macro.macroLength, e.X(), e.Y()), std::tuple(0.0, 0, 0.0, 0.0));
    ASSERT_TRUE(Undo(e));
    EXPECT_EQ(e.registers.values[4], 7.0);
    EXPECT_EQ(e.macro.macroLength, 4);
}

TEST(History, FirstShiftSurvivesUndoOnlyWhenSticky) {
    for (const bool sticky : {false, true}) {
        SCOPED_TRACE(sticky ? "sticky" : "standard");
        Engine e = MakeEngine(InputMethod::Rpn);
        e.prefs.SetShift(sticky ? ShiftMode::Sticky : ShiftMode::Standard);
        Press(e, {5, fid::Enter});
        e.state.status |= status::FirstShift;  // a shift latched before the next step
        Press(e, {fid::Drop});
        ASSERT_TRUE(Undo(e));
        EXPECT_EQ(static_cast<bool>(e.state.status & status::FirstShift), sticky);
    }
}

TEST(Macro, RecordsFromTheMethodKeyToStop) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {fid::MacroRecord, 2, fid::Multiply, fid::MacroStop});
    ASSERT_EQ(e.macro.macroLength, 4);
    EXPECT_EQ(e.macro.macroKeys[0], fid::MethodRpn);
    EXPECT_EQ(e.macro.macroKeys[3], fid::MacroStop);
    Press(e, {2, 1, fid::MacroPlay});
    EXPECT_EQ(e.X(), 42.0);
}

// Playback leaves X, the method the user chose, and no playback running.
TEST(Macro, PlaybackInTheRecordedMethodUpToAnErrorOrTheEnd) {
    const struct {
        const char* name;
        std::vector<test::Key> keys;
        double x;  // NAN: the error value
        bool rpn = true;
    } cases[] = {
        {"too short to play", {fid::MacroRecord, fid::MacroStop, 8, fid::MacroPlay}, 8},
        {"the shortest that plays", {fid::MacroRecord, fid::ChangeSign, fid::MacroStop, 8, fid::MacroPlay}, -8},
        {"recorded in RPN, played in Simple",  // squares X
         {fid::MacroRecord, fid::Enter, fid::Multiply, fid::MacroStop, fid::MethodSimple, 7, fid::MacroPlay}, 49,
         false},
        {"an error stops it",  // the second recording, 0 / then 5, replaces the first
         {fid::MacroRecord, fid::Enter, fid::Subtract, fid::Reciprocal, 5, fid::MacroStop, fid::MacroRecord, 0,
          fid::Divide, 5, fid::MacroStop, 3, fid::MacroPlay},
         NAN},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = MakeEngine(InputMethod::Rpn);
        for (const test::Key k : c.keys) e.Dispatch(k.id);
        EXPECT_TRUE(std::isnan(c.x) ? IsErrorValue(e.X()) : e.X() == c.x) << e.X();
        EXPECT_EQ(e.IsRpn(), c.rpn);
        EXPECT_FALSE(e.state.engineFlags & flags::Playing);
    }
}

TEST(Macro, PlaybackIsOneUndoStep) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {fid::MacroRecord, 1, fid::Add, 2, fid::Multiply, fid::MacroStop});
    Press(e, {4, fid::Enter});
    const double before = e.X();
    e.Dispatch(fid::MacroPlay);
    EXPECT_EQ(e.X(), 10.0);
    ASSERT_TRUE(Undo(e));
    EXPECT_EQ(e.X(), before);
}

TEST(Macro, PauseStopsPlaybackUntilResumed) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {fid::MacroRecord, 1, fid::Add, fid::MacroPause, 1, 0, fid::Multiply, fid::MacroStop});
    Press(e, {fid::MacroPause});  // the recorder is paused by the recorded pause: resume to stop cleanly
    Press(e, {5, fid::Enter});
    e.Dispatch(fid::MacroPlay);
    EXPECT_EQ(e.X(), 6.0);
    EXPECT_TRUE(e.state.engineFlags & flags::Paused);
    e.Dispatch(fid::MacroPlay);
    EXPECT_EQ(e.X(), 60.0);
    EXPECT_FALSE(e.state.engineFlags & flags::Playing);
}

}  // namespace
}  // namespace brinto
