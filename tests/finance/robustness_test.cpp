// Every key of the Financial and Statistical keyboards on every kind of register contents: the
// key is accepted when it should be, and nothing it leaves breaks the engine or the display.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <set>

#include "display/display_text.h"
#include "finance_test_support.h"
#include "engine/keyboards.h"

namespace brinto {
namespace {

using namespace test;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// Both blocks in both shift states, the second amortization key and "=", but not the register
// prefixes, which would take the next key as their argument.
std::set<FunctionId> Keys() {
    std::set<FunctionId> keys = {fid::SecondAmortize, fid::Equals};
    for (const int keyboard : {1, 3}) {
        for (const int shift : {0, 1}) {
            for (const FunctionId key : KeyLayout(keyboard, shift, UserKeyMap{})) keys.insert(key);
        }
    }
    keys.erase(fid::Recall);
    keys.erase(fid::Exchange);
    return keys;
}

// Keys of the scientific family on the Statistical keyboard, and the cash-flow keys, which are
// refused on a full, empty or damaged list.
bool MayRefuse(FunctionId key) {
    return key == fid::Random || key == fid::Factorial || key == fid::LogGamma || key == fid::Combinations ||
           key == fid::Permutations || key == fid::CashFlow || key == fid::GroupCount;
}

void FillAll(Engine& e, double value) { std::fill_n(e.registers.values, kRegisterCount, value); }

const std::pair<const char*, std::function<void(Engine&)>> kContents[] = {
    {"reset", [](Engine&) {}},                  {"zeroPerYear", [](Engine& e) { e.registers.values[reg::PYr] = 0; }},
    {"nan", [](Engine& e) { FillAll(e, kNan); }}, {"infinite", [](Engine& e) { FillAll(e, kErrorValue); }},
    {"negativeHuge", [](Engine& e) { FillAll(e, -1e308); }},
    {"negativeN", [](Engine& e) { e.registers.values[reg::N] = -5.5, e.state.amortStart = 3; }},
    {"farNegativeN", [](Engine& e) { e.registers.values[reg::N] = -1e300, e.state.amortStart = 3; }},
    {"manyPeriods", [](Engine& e) { e.registers.values[reg::N] = 1e300, e.state.amortEnd = 32767; }},
    {"fullList", [](Engine& e) { e.registers.cashFlowCount = 99, std::fill_n(e.registers.aux, 100, 0x7FFFFFFFu); }},
    {"negativeGroups", [](Engine& e) { e.registers.cashFlowCount = 5, std::fill_n(e.registers.aux, 100, 0x80000000u); }},
    {"damagedCount", [](Engine& e) { e.registers.cashFlowCount = 300; }},
    {"damagedAmortization", [](Engine& e) { e.state.amortStep = 7, e.state.amortStart = -32768, e.state.amortBalance = kNan; }},
};

TEST(FinanceRobustness, EveryKeyOnEveryRegisterContents) {
    for (const auto& [name, set] : kContents) {
        for (const bool typed : {false, true}) {
            for (const double x : {0.0, kNan, kErrorValue, -2.5}) {
                SCOPED_TRACE(testing::Message() << name << (typed ? " typed" : "") << " x=" << x);
                Engine e = MakeEngine(InputMethod::Rpn);
                e.prefs.SetDigitField(3);
                set(e);
                for (const int level : {0, 1}) e.SetLevel(level, {x, ValueTag::None, kNoAux});
                for (const FunctionId key : Keys()) {
                    if (typed) Type(e, "12");
                    EXPECT_TRUE(e.Dispatch(key) != 0 || MayRefuse(key)) << key;
                    for (int level = 0; level < 4; ++level) DisplayLevel(e, level);
                }
            }
        }
    }
    for (const i16 count : {i16{100}, i16{-2}}) {  // a count no key could have left
        Engine e = MakeEngine(InputMethod::Rpn);
        e.registers.cashFlowCount = count;
        EXPECT_FALSE(e.Dispatch(fid::CashFlow));
        EXPECT_FALSE(e.Dispatch(fid::GroupCount));
    }
}

}  // namespace
}  // namespace brinto
