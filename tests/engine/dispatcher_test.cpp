#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <vector>

#include "engine_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;

// A format key waits for its digit count (or the point) and backspace cancels it; backspace
// outside an entry drops X when the preference says so; an unknown key changes nothing, not even
// the history.
TEST(Dispatcher, FormatPrefixDroppingBackspaceAndUnknownKeys) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {fid::FormatStandard, fid::Point});
    EXPECT_EQ(std::pair(e.prefs.Format(), e.prefs.DigitField()), std::pair(NumberFormat::Standard, 0));
    Press(e, {fid::FormatScientific, 3});
    EXPECT_EQ(std::pair(e.prefs.Format(), e.prefs.DigitField()), std::pair(NumberFormat::Scientific, 4));
    EXPECT_TRUE(e.dirty.preferences);
    Press(e, {fid::FormatFixed, fid::Backspace, 7});  // backspace cancels; 7 is typed
    EXPECT_EQ(std::pair(e.prefs.Format(), e.X()), std::pair(NumberFormat::Scientific, 7.0));
    e.prefs.SetBackspaceDrops(true);
    Press(e, {fid::Enter, 9, fid::Enter, fid::Backspace});
    EXPECT_EQ(std::pair(e.X(), e.Y()), std::pair(9.0, 7.0));
    const int steps = e.history.UndoCount();
    EXPECT_FALSE(e.Dispatch(FunctionIdFrom(9999)));
    EXPECT_EQ(std::pair(e.state.lastCommand, e.history.UndoCount()), std::pair(fid::Backspace, steps));
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

// The financial clear empties the cash flows (the user registers) and the TVM registers but not
// the date group, sets P/YR 12 when it was 0 and shows it; the statistics clear reaches days per year, which then reads as 365.25; the date
// clear restores the date group's defaults and shows frames per second.
TEST(RegisterClears, KeysClearTheirGroups) {
    Engine e = MakeEngine(InputMethod::Rpn);
    const RegisterBank& r = e.registers;
    std::fill_n(e.registers.values, kRegisterCount, 1.0);
    std::fill_n(e.registers.aux, kUserRegisters, 2u);
    e.registers.values[reg::PYr] = 0.0;
    e.Dispatch(fid::ClearFinancial);
    EXPECT_EQ(std::tuple(r.values[5], r.aux[5], r.values[reg::PV], r.values[reg::PYr], r.cashFlowCount, r.values[reg::DaysPerYear]),
              std::tuple(0.0, 0u, 0.0, 12.0, -1, 1.0));
    EXPECT_EQ(std::pair(e.X(), e.XTag()), std::pair(12.0, ValueTag::PerYear));
    e.Dispatch(fid::ClearStatistics);
    EXPECT_EQ(std::pair(r.values[reg::DaysPerYear], e.DurationSetting(reg::DaysPerYear)), std::pair(0.0, 365.25));
    e.Dispatch(fid::ClearDate);
    EXPECT_EQ(std::tuple(e.X(), e.XTag(), r.values[reg::DaysPerYear]), std::tuple(30.0, ValueTag::FramesPerSecond, 365.25));
}

// Each key's row names the family that acts on it: offered to the calculator's chain in a plain
// state, the key is taken by the family its row names, and a key no family takes is one of the
// dispatcher's own.
TEST(KeyTable, EachRowNamesTheFamilyThatTakesItsKey) {
    for (const KeyInfo& k : kKeyTable) {
        Engine e = test::MakeEngine(InputMethod::Rpn);
        e.SetX(2);
        e.SetY(3);
        e.registers.cashFlowCount = 0;  // a cash flow to give a count (Nj)
        KeyFamily taker = kf::BuiltIn;
        for (const Family& family : e.families().chain) {
            if (family.handle(e, k.id)) {
                taker = family.family;
                break;
            }
        }
        const bool dispatchers = k.family == kf::Entry || k.family == kf::Shift || k.family == kf::Macro;
        EXPECT_EQ(FamilyName(taker), FamilyName(dispatchers ? kf::BuiltIn : k.family)) << k.name;
    }
}

}  // namespace
}  // namespace brinto
