#include <gtest/gtest.h>

#include <vector>

#include "engine_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;

struct MethodCase {
    const char* name;
    InputMethod method;
    std::vector<test::Key> keys;
    double x;
};

constexpr FunctionId Plus = fid::Add, Minus = fid::Subtract, Times = fid::Multiply, By = fid::Divide,
                     Eq = fid::Equals, Open = fid::OpenParen, Close = fid::CloseParen;

TEST(InputMethods, KeySequencesLeaveExpectedX) {
    const MethodCase cases[] = {
        {"simple left to right", InputMethod::Simple, {2, Plus, 3, Times, 5, Eq}, 25},
        {"precedence", InputMethod::Precedence, {2, Plus, 3, Times, 5, Eq}, 17},
        {"rpn", InputMethod::Rpn, {2, fid::Enter, 3, Plus, 5, Times}, 25},
        {"rpn nested", InputMethod::Rpn, {2, fid::Enter, 3, fid::Enter, 5, Times, Plus}, 17},
        {"precedence applies x when + comes", InputMethod::Precedence, {2, Times, 3, Plus, 4, Eq}, 10},
        {"second operator replaces the first", InputMethod::Simple, {2, Plus, Times, 3, Eq}, 6},
        {"repeated equals", InputMethod::Simple, {2, Plus, 3, Eq, Eq}, 8},
        {"repeated equals subtracts again", InputMethod::Precedence, {9, Minus, 2, Eq, Eq, Eq}, 3},
        {"parentheses", InputMethod::Simple, {2, Times, Open, 3, Plus, 4, Close, Eq}, 14},
        {"nested parentheses", InputMethod::Precedence, {Open, Open, 1, Plus, 2, Close, Times, 3, Close, By, 9, Eq}, 1},
        {"enter works in algebraic", InputMethod::Simple, {2, fid::Enter, 3, Plus}, 5},
        {"subtraction is cleaned", InputMethod::Simple, {0, fid::Point, 3, Minus, 0, fid::Point, 1, Eq}, 0.2},
        {"power binds tightest", InputMethod::Precedence, {2, Times, 3, fid::Power, 2, Eq}, 18},
        {"percent of total", InputMethod::Simple, {5, 0, fid::PercentTotal, 2, 0, 0, Eq}, 400},
        {"percent change", InputMethod::Rpn, {5, 0, fid::Enter, 7, 5, fid::PercentChange}, 50},
        {"x-th root", InputMethod::Rpn, {2, 7, fid::Enter, 3, fid::XRoot}, 3},
        {"modulo", InputMethod::Rpn, {7, fid::Enter, 3, fid::Modulo}, 1},
    };
    for (const MethodCase& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = MakeEngine(c.method);
        for (const test::Key k : c.keys) e.Dispatch(k.id);
        EXPECT_DOUBLE_EQ(e.X(), c.x);
    }
}

TEST(InputMethods, EqualsWithNothingPendingAndNoOperatorChangesNothing) {
    Engine e = MakeEngine(InputMethod::Simple);
    e.Dispatch(fid::Digit5);
    const CalcState before = e.state;
    e.Dispatch(fid::Equals);
    EXPECT_EQ(e.X(), before.stack[0]);
    EXPECT_EQ(e.Y(), before.stack[1]);
    EXPECT_EQ(e.state.pendingCount, 0);
}

TEST(InputMethods, PercentChangeKeepsTheBaseInYUnderRpn) {
    Engine e = MakeEngine(InputMethod::Rpn);
    test::Press(e, {2, 0, fid::Enter, 2, 5, fid::PercentChange});
    EXPECT_EQ(e.Y(), 20.0);
}

TEST(InputMethods, PendingStackRefusesTheFortyFirstEntry) {
    Engine e = MakeEngine(InputMethod::Simple);
    e.Dispatch(fid::ClearX);  // lift disabled: "(" pushes its marker
    for (int i = 0; i < kMaxPending; ++i) EXPECT_TRUE(e.Dispatch(fid::OpenParen)) << i;
    const CalcState before = e.state;
    EXPECT_FALSE(e.Dispatch(fid::OpenParen));
    EXPECT_EQ(e.state.pendingCount, kMaxPending);
    e.Dispatch(fid::Digit1);
    EXPECT_FALSE(e.Dispatch(fid::Add));  // cannot wait either
    EXPECT_EQ(e.state.pendingCount, kMaxPending);
    EXPECT_EQ(before.pendingCount, kMaxPending);
}

TEST(InputMethods, SwitchingMethodsKeepsTheStack) {
    Engine e = MakeEngine(InputMethod::Simple);
    test::Press(e, {4, fid::MethodRpn, fid::Enter, 5, Plus});
    EXPECT_EQ(e.X(), 9.0);
    EXPECT_TRUE(e.IsRpn());
}

}  // namespace
}  // namespace brinto
