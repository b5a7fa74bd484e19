#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "engine/value_tags.h"
#include "engine_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;

struct MethodCase {
    const char* name;
    InputMethod method;
    std::vector<test::Key> keys;
    double x;
    double y = NAN;  // not checked unless given
};

constexpr FunctionId Plus = fid::Add, Minus = fid::Subtract, Times = fid::Multiply, By = fid::Divide,
                     Eq = fid::Equals, Open = fid::OpenParen, Close = fid::CloseParen;

// Where a key must leave the stack lift alone, enable it or disable it, the row ends with keys
// whose result differs in each case. The hyperbolic prefix acts on the next key only, without
// angle conversion; pi keeps a number being typed in RPN and replaces X after an operator; percent
// is of the running total only after + or -, and in RPN leaves Y; the coordinate keys use up the
// Enter marker the algebraic methods leave for them.
TEST(InputMethods, KeySequencesLeaveExpectedXAndY) {
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
        {"every power waiting is done before a times", InputMethod::Precedence,
         {2, fid::Power, 3, fid::Power, 2, Times, 4, Eq}, 2048},
        {"percent of total", InputMethod::Simple, {5, 0, fid::PercentTotal, 2, 0, 0, Eq}, 400},
        {"percent change", InputMethod::Rpn, {5, 0, fid::Enter, 7, 5, fid::PercentChange}, 50},
        {"x-th root", InputMethod::Rpn, {2, 7, fid::Enter, 3, fid::XRoot}, 3},
        {"modulo", InputMethod::Rpn, {7, fid::Enter, 3, fid::Modulo}, 1},
        {"percent change keeps the base in Y", InputMethod::Rpn, {2, 0, fid::Enter, 2, 5, fid::PercentChange}, 25, 20},
        {"equals with nothing pending", InputMethod::Simple, {5, Eq}, 5, 0},
        {"switching methods keeps the stack", InputMethod::Simple, {4, fid::MethodRpn, fid::Enter, 5, Plus}, 9},
        {"shift does not end the entry", InputMethod::Rpn, {1, fid::Shift, 2}, 12},
        {"enter disables the lift", InputMethod::Rpn, {7, fid::Enter, 8, Plus}, 15, 0},
        {"an operation enables it", InputMethod::Rpn, {7, fid::Enter, 8, Plus, 2}, 2, 15},
        {"mode keys keep the lift state", InputMethod::Rpn, {3, fid::Enter, fid::Radians, 4, Plus}, 7, 0},
        {"last x lifts", InputMethod::Rpn, {6, fid::Enter, 2, By, fid::LastX}, 2, 3},
        {"last x replaces a cleared x", InputMethod::Rpn, {6, fid::Enter, 2, By, fid::LastX, fid::ClearX, fid::LastX}, 2, 3},
        {"change sign outside an entry ends it", InputMethod::Rpn, {5, fid::Enter, fid::ChangeSign, 2}, 2, -5},
        {"backspace only cancels the hyperbolic prefix", InputMethod::Rpn, {1, fid::Hyperbolic, fid::Backspace, fid::Asin}, 90},
        {"backspace outside an entry clears x, lift disabled", InputMethod::Rpn,
         {1, fid::Enter, 4, fid::Enter, 5, Plus, fid::Backspace, 3, Plus}, 4},
        {"hyperbolic sine in degrees", InputMethod::Rpn, {9, 0, fid::Hyperbolic, fid::Sin}, std::sinh(90.0), 0},
        {"the prefix is used up", InputMethod::Rpn, {2, fid::Hyperbolic, fid::Acos, 3, 0, fid::Sin}, 0.5, std::acosh(2.0)},
        {"pressed twice, cancelled", InputMethod::Rpn, {3, 0, fid::Hyperbolic, fid::Hyperbolic, fid::Sin}, 0.5, 0},
        {"pi keeps a number being typed", InputMethod::Rpn, {2, fid::Enter, 3, fid::Pi}, M_PI, 3},
        {"pi after an operator", InputMethod::Simple, {2, Times, fid::Pi, Eq}, 2 * M_PI, 0},
        {"percent of x", InputMethod::Simple, {2, 0, 0, Times, 1, 0, fid::Percent}, 0.1, 200},
        {"percent in RPN leaves y", InputMethod::Rpn, {2, 0, 0, fid::Enter, 1, 0, fid::Percent}, 20, 200},
        {"coordinates use up the enter marker", InputMethod::Simple,
         {3, fid::Enter, 4, fid::RectToPolar, Plus, 1, Eq}, 6, std::atan2(3.0, 4.0) * 180 / M_PI},
    };
    for (const MethodCase& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = MakeEngine(c.method);
        test::Press(e, c.keys);
        EXPECT_DOUBLE_EQ(e.X(), c.x);
        if (!std::isnan(c.y)) {
            EXPECT_DOUBLE_EQ(e.Y(), c.y);
        }
    }
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

constexpr FunctionId Sto = fid::Store, Rcl = fid::Recall, Xch = fid::Exchange;

// A register prefix waits for its register: one digit with the small set, two with the large one
// (the default), or a key that names a register. Store and recall take an arithmetic key first;
// exchange does not, so there the key cancels the prefix and acts. Each row ends with the register
// it names and the X and Y the keys leave.
TEST(RegisterKeys, PrefixSequencesLeaveRegisterXAndY) {
    struct Case {
        const char* name;
        std::vector<test::Key> keys;
        int reg;
        double value, x, y;
        ValueTag tag = ValueTag::None;  // X's label
        bool programmer = false;  // the programmer keyboard, whose keyboard layer sends integer keys
    };
    const Case cases[] = {
        {"store takes two digits", {7, Sto, 0, 3}, 3, 7, 7, 0},
        {"store plus", {7, Sto, 0, 3, 2, Sto, Plus, 0, 3}, 3, 9, 2, 7},
        {"store minus is cleaned", {fid::Point, 3, Sto, 0, 3, fid::Point, 1, Sto, Minus, 0, 3}, 3, 0.2, 0.1, 0.3},
        {"store times", {7, Sto, 0, 3, 2, Sto, Times, 0, 3}, 3, 14, 2, 7},
        {"store divides", {7, Sto, 0, 3, 2, Sto, By, 0, 3}, 3, 3.5, 2, 7},
        {"recall lifts, naming the register", {7, Sto, 4, 2, fid::Enter, 5, Rcl, 4, 2}, 42, 7, 7, 5, label::CashFlow},
        {"recall divides x, keeps y", {8, Sto, 0, 1, fid::Enter, 2, 0, Rcl, By, 0, 1}, 1, 8, 2.5, 8},
        {"recall minus", {8, Sto, 0, 1, fid::Enter, 2, 0, Rcl, Minus, 0, 1}, 1, 8, 12, 8},
        {"exchange swaps x with the register", {7, Sto, 0, 3, 2, Xch, 0, 3}, 3, 2, 7, 7, label::CashFlow},
        {"exchange takes no arithmetic", {7, Sto, 0, 3, fid::Enter, 2, Xch, Plus, 0, 3}, 3, 7, 3, 9},
        {"the small set's key takes one digit", {7, fid::StoreVariant, 4, fid::RecallVariant, 4}, 4, 7, 7, 7, label::CashFlow},
        {"the large set's key takes two", {7, fid::StoreLarge, 4, 7, 0}, 47, 7, 0, 7},
        {"the next register after the last", {7, Sto, 9, 8, Sto, fid::CashFlow, Rcl, 9, 9}, 99, 7, 7, 7, label::CashFlow},
        {"none after ninety-nine", {7, Sto, 9, 9, 5, Sto, fid::CashFlow}, reg::N, 0, 5, 7},
        {"a key names its register", {9, Sto, fid::PV, 1, Rcl, fid::PV}, reg::PV, 9, 9, 1, label::PresentValue},
        {"periods per year", {Rcl, fid::PYr}, reg::PYr, 12, 12, 0, label::PerYear},
        {"backspace cancels the prefix", {5, fid::Enter, Sto, fid::Backspace, 7}, 0, 0, 7, 5},
        {"another key cancels it, then acts", {5, fid::Enter, 3, Sto, fid::Swap}, 0, 0, 5, 3},
        {"integer keys do plain register arithmetic", {2, 0, 0, Sto, 0, 1, 1, 0, 0, Sto, fid::IntegerAdd, 0, 1,
                                                       Rcl, fid::IntegerDivide, 0, 1}, 1, 300, 1.0 / 3, 200, ValueTag::None, true},
        {"integer times and minus", {6, Sto, 0, 1, 7, Sto, fid::IntegerMultiply, 0, 1, Sto, fid::IntegerSubtract, 0, 1},
         1, 35, 7, 6, ValueTag::None, true},
        {"a hex number is stored as its value", {fid::BaseHex, fid::HexF, fid::HexF, Sto, 0, 2}, 2, 255, 255, 0, ValueTag::None, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = MakeEngine(InputMethod::Rpn);
        if (c.programmer) e.state.status |= 4;
        test::Press(e, c.keys);
        EXPECT_EQ(e.state.pendingArgument, kNoPendingArgument);
        EXPECT_EQ(e.registers.values[c.reg], c.value);
        EXPECT_EQ(e.X(), c.x);
        EXPECT_EQ(e.Y(), c.y);
        EXPECT_EQ(e.XTag(), c.tag);
    }
}

}  // namespace
}  // namespace brinto
