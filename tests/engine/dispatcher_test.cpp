#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "engine/register_keys.h"
#include "engine_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;

TEST(FormatPrefix, DigitOrPointSetsTheDisplayFormat) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {fid::FormatStandard, fid::Point});
    EXPECT_EQ(e.prefs.Format(), NumberFormat::Standard);
    EXPECT_EQ(e.prefs.DigitField(), 0);
    Press(e, {fid::FormatScientific, 3});
    EXPECT_EQ(e.prefs.Format(), NumberFormat::Scientific);
    EXPECT_EQ(e.prefs.DigitField(), 4);
    EXPECT_TRUE(e.dirty.preferences);
    Press(e, {fid::FormatFixed, fid::Backspace, 7});  // backspace cancels; 7 is typed
    EXPECT_EQ(e.prefs.Format(), NumberFormat::Scientific);
    EXPECT_EQ(e.X(), 7.0);
}

TEST(Dispatcher, BackspaceWithHyperbolicPrefixOnlyCancelsIt) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {4, fid::Enter, fid::Hyperbolic});
    EXPECT_TRUE(e.state.status & status::Hyperbolic);
    e.Dispatch(fid::Backspace);  // acts as the prefix key itself, toggling it off
    EXPECT_FALSE(e.state.status & status::Hyperbolic);
    EXPECT_EQ(e.X(), 4.0);
}

TEST(Dispatcher, BackspaceOutsideAnEntryDropsWhenThePreferenceSaysSo) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.prefs.SetBackspaceDrops(true);
    Press(e, {4, fid::Enter, 9, fid::Enter, fid::Backspace});
    EXPECT_EQ(std::pair(e.X(), e.Y()), std::pair(9.0, 4.0));
}

TEST(Dispatcher, ChangeSignOutsideEntryKeepsOnlyUnitTags) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {5, fid::Enter});
    e.SetXTag(ValueTag::Meters);
    e.Dispatch(fid::ChangeSign);
    EXPECT_EQ(e.X(), -5.0);
    EXPECT_EQ(e.XTag(), ValueTag::Meters);
    e.SetXTag(ValueTag::PresentValue);  // "PV" is a label, not a unit
    e.Dispatch(fid::ChangeSign);
    EXPECT_EQ(e.XTag(), ValueTag::None);
    Press(e, {2});  // change sign ended the entry and enabled lift
    EXPECT_EQ(e.Y(), 5.0);
}

TEST(Dispatcher, UnknownKeyIsNotAcceptedAndChangesNothing) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {1, 2});
    const int steps = e.history.UndoCount();
    EXPECT_FALSE(e.Dispatch(FunctionIdFrom(9999)));
    EXPECT_EQ(e.state.lastCommand, fid::Digit2);
    EXPECT_EQ(e.history.UndoCount(), steps);  // not an undo step either
}

// Standard lasts one key, Sticky until pressed again, Locking holds on a double press.
TEST(ShiftKeys, EachModeKeepsTheShiftAsLongAsItSays) {
    const std::tuple<ShiftMode, std::vector<test::Key>, bool> cases[] = {
        {ShiftMode::Standard, {fid::Shift}, true},
        {ShiftMode::Standard, {fid::Shift, 1}, false},
        {ShiftMode::Sticky, {fid::Shift, 2, 3}, true},
        {ShiftMode::Sticky, {fid::Shift, 2, 3, fid::Shift}, false},
        {ShiftMode::Locking, {fid::Shift, fid::Shift, 1, 2}, true},
        {ShiftMode::Locking, {fid::Shift, fid::Shift, 1, 2, fid::Shift}, false},
    };
    for (const auto& [mode, keys, shifted] : cases) {
        SCOPED_TRACE(testing::Message() << "mode " << static_cast<int>(mode) << ", " << keys.size() << " keys");
        Engine e = MakeEngine(InputMethod::Rpn);
        e.prefs.SetShift(mode);
        for (const test::Key k : keys) e.Dispatch(k.id);
        EXPECT_EQ(static_cast<bool>(e.state.status & status::FirstShift), shifted);
    }
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {fid::SecondShift});
    EXPECT_TRUE(e.state.viewFlags & view::SecondShift);
    Press(e, {fid::FirstShift});
    EXPECT_FALSE(e.state.viewFlags & view::SecondShift);
}

TEST(RegisterKeys, StoreRecallAndArithmetic) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.prefs.SetHundredRegisters(false);
    Press(e, {7, fid::Store, 3});
    EXPECT_EQ(e.registers.values[3], 7.0);
    Press(e, {2, fid::Store, fid::Multiply, 3});  // R3 = R3 x 2
    EXPECT_EQ(e.registers.values[3], 14.0);
    Press(e, {fid::Store, fid::Subtract, 3});
    EXPECT_EQ(e.registers.values[3], 12.0);
    Press(e, {fid::Recall, 3});
    EXPECT_EQ(e.X(), 12.0);
    EXPECT_EQ(e.Y(), 2.0);  // recall lifts
    EXPECT_EQ(e.XTag(), fid::TagCashFlow);
    EXPECT_EQ(e.state.aux[0], 3);
    Press(e, {fid::Recall, fid::Add, 3});  // X = X + R3
    EXPECT_EQ(e.X(), 24.0);
    EXPECT_EQ(e.state.lastX, 12.0);
}

TEST(RegisterKeys, TwoDigitArgumentsWithTheLargeRegisterSet) {
    Engine e = MakeEngine(InputMethod::Rpn);
    ASSERT_TRUE(e.prefs.HundredRegisters());
    Press(e, {4, 2, fid::StoreLarge, 4, 7});
    EXPECT_EQ(e.registers.values[47], 42.0);
    Press(e, {fid::StoreLarge, fid::CashFlow});  // the register after the last one used
    EXPECT_EQ(e.registers.values[48], 42.0);
    Press(e, {fid::RecallVariant, 9});  // the small set's key takes one digit
    EXPECT_EQ(e.X(), 0.0);
    EXPECT_EQ(e.Y(), 42.0);
}

TEST(RegisterKeys, EntryStaysOpenAcrossThePrefix) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {1, 2, fid::StoreLarge});
    EXPECT_TRUE(e.EntryOpen());
    EXPECT_NE(e.state.pendingArgument, kNoPendingArgument);
    Press(e, {0, 5});
    EXPECT_FALSE(e.EntryOpen());
    EXPECT_EQ(e.registers.values[5], 12.0);
    EXPECT_TRUE(e.LiftEnabled());
}

TEST(RegisterKeys, FinancialKeysNameTheirRegisters) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {fid::Recall, fid::PYr});
    EXPECT_EQ(e.X(), 12.0);
    EXPECT_EQ(e.XTag(), ValueTag::PerYear);
    Press(e, {9, fid::Store, fid::PV, fid::Recall, fid::PV});
    EXPECT_EQ(e.registers.values[reg::PV], 9.0);
    EXPECT_EQ(e.XTag(), ValueTag::PresentValue);
    Press(e, {fid::Recall, fid::FramesPerSecond});
    EXPECT_EQ(e.X(), 30.0);
    EXPECT_EQ(e.XTag(), ValueTag::FramesPerSecond);
}

TEST(RegisterClears, KeysClearTheirGroups) {
    Engine e = MakeEngine(InputMethod::Rpn);
    for (int r = 0; r < kRegisterCount; ++r) e.registers.values[r] = 1.0;
    e.registers.values[reg::PYr] = 0.0;
    e.Dispatch(fid::ClearFinancial);
    EXPECT_EQ(e.registers.values[5], 0.0);
    EXPECT_EQ(e.registers.values[reg::PV], 0.0);
    EXPECT_EQ(e.registers.values[reg::PYr], 12.0);
    EXPECT_EQ(e.X(), 12.0);
    EXPECT_EQ(e.XTag(), ValueTag::PerYear);
    EXPECT_EQ(e.registers.cashFlowCount, -1);
    EXPECT_EQ(e.registers.values[reg::DaysPerYear], 1.0);
    e.Dispatch(fid::ClearStatistics);
    EXPECT_EQ(e.registers.values[reg::DaysPerYear], 0.0);  // the wide clear reaches dpy
    EXPECT_EQ(e.DurationSetting(reg::DaysPerYear), 365.25);
    e.Dispatch(fid::ClearDate);
    EXPECT_EQ(e.X(), 30.0);
    EXPECT_EQ(e.XTag(), ValueTag::FramesPerSecond);
    EXPECT_EQ(e.registers.values[reg::DaysPerYear], 365.25);
}

}  // namespace
}  // namespace brinto
