#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "engine/value_tags.h"
#include "finance/solver.h"
#include "finance/tvm.h"
#include "engine/engine_test_support.h"

namespace brinto {
namespace {

using namespace test;

TEST(TvmClosedForms, ZeroRateAndImpossibleSigns) {
    for (const bool begin : {false, true}) {  // no interest: the payments simply add up
        const TvmProblem p{24, 0.0, 1000, -50, 200, 12, begin};
        EXPECT_EQ(std::tuple(SolvePeriods(p), SolvePresentValue(p), SolvePayment(p), SolveFutureValue(p)),
                  std::tuple(24.0, 1000.0, -50.0, 200.0));
    }
    EXPECT_TRUE(std::isinf(SolvePeriods({0, 0.0, 1000, 0, 0, 12, false})));  // what division gives
    EXPECT_EQ(SolvePeriods({0, 5.0, 1000, 10, 10000, 12, false}), kErrorValue);  // money only comes in
    EXPECT_NEAR(SolvePeriods({0, 6.0, -100000, 599.550525152752, 0, 12, false}), 360.0, 1e-9);  // both negative
    EXPECT_EQ(SolveYearlyRate({360, 6.0, 100000, 599.55, 0, 12, false}), kErrorValue);  // no root
    EXPECT_EQ(SolveYearlyRate({0, 6.0, 100000, -599.55, 0, 12, false}), kErrorValue);
}

// From (1.1, 1e14) and (1, r) the secant cannot move off 1: a small r makes 1 the root, a large
// one the error value, and no further run is made.
TEST(SecantSolver, AStuckPointIsARootOnlyWhenItsResidualIsSmall) {
    for (const auto& [residual, root] : {std::pair{1e-6, 1.0}, std::pair{1e-4, kErrorValue}}) {
        int calls = 0;
        EXPECT_EQ(SolveSecant([&](double x) { return ++calls, x == 1 ? residual : 1e14; }, 1.1, 1.0), root);
        EXPECT_EQ(calls, 3);
    }
    // A residual that never drops below 5e-8 is accepted only by the sixth, most tolerant run.
    EXPECT_NEAR(SolveSecant([](double x) { return 5e-8 + (x - 1) * (x - 1); }, 1 - 4e-8, 1 + 4e-8), 1.0, 1e-7);
}

TEST(TvmKeys, SolveOrStoreLabelAndRestartTheBalance) {
    Engine e = MakeEngine(InputMethod::Rpn);
    for (const auto& [number, key] : {std::pair{"360", fid::N}, {"6", fid::IYr}, {"100000", fid::PV}, {"0", fid::FV}}) {
        Store(e, number, key);
    }
    Press(e, {5, fid::Enter, fid::PMT});  // after Enter nothing is typed: PMT is solved, replacing the copy of 5
    EXPECT_EQ(std::pair(e.Y(), e.X()), std::pair(5.0, e.registers.values[reg::PMT]));
    Store(e, "0", fid::IYr);  // a typed guess is stored, and the next number replaces it
    Press(e, {7, fid::Enter});
    EXPECT_EQ(e.state.stack[2], e.registers.values[reg::PMT]);
    Store(e, "0", fid::N);
    e.Dispatch(fid::IYr);
    EXPECT_EQ(e.registers.values[reg::IYr], kErrorValue);
    Store(e, "360", fid::N);
    e.Dispatch(fid::IYr);  // the failed solve's error value is no guess: it restarts from 0
    EXPECT_NEAR(e.X(), 6.0, 1e-10);
    e = MakeEngine(InputMethod::Rpn);
    const struct { FunctionId key; ValueTag label; bool restartsBalance; } cases[] = {
        {fid::N, label::Months, false},    {fid::PV, label::PresentValue, true},  {fid::FV, label::FutureValue, false},
        {fid::TimesPYr, label::Months, false}};
    for (const auto& c : cases) {
        for (const char* typed : {"12", ""}) {
            e.state.amortBalance = 1234.5;
            e.dirty.registers = false;
            Store(e, typed, c.key);
            EXPECT_EQ(std::tuple(e.XTag(), e.state.amortBalance == 0.0, e.dirty.registers),
                      std::tuple(c.label, c.restartsBalance, true)) << c.key;
        }
    }
    for (const auto& [perYear, label] : {std::pair{"1", label::Years}, {"4", label::Periods}}) {
        Store(e, perYear, fid::PYr);
        e.Dispatch(fid::N);
        EXPECT_EQ(e.XTag(), label);
    }
    // ÷P/YR: years for a plain number or matching periods; any other label is dropped.
    const struct { double perYear; ValueTag before, after; } divisions[] = {
        {12, ValueTag::None, label::Years},           {12, label::Months, label::Years}, {4, label::Months, ValueTag::None},
        {1, label::Years, label::Years}, {12, label::Years, ValueTag::None},             {12, label::PresentValue, ValueTag::None}};
    for (const auto& c : divisions) {
        e.registers.values[reg::PYr] = c.perYear;
        e.SetLevel(0, {360, c.before, kNoAux});
        e.Dispatch(fid::DividePYr);
        EXPECT_EQ(std::pair(e.X(), e.XTag()), std::pair(360 / c.perYear, c.after));
    }
}

}  // namespace
}  // namespace brinto
