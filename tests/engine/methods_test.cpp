#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "engine/value_tags.h"
#include "engine_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;

// Keys pressed in a method, and the X and Y they leave; where a register prefix is tested, the
// register it names with its value, and X's label.
struct MethodCase {
    const char* name;
    InputMethod method;
    std::vector<test::Key> keys;
    double x;
    double y = NAN;  // not checked unless given
    int reg = -1;    // none
    double value = 0;
    ValueTag tag = ValueTag::None;
    bool programmer = false;  // the programmer keyboard, whose keyboard layer sends integer keys
};

void Check(const MethodCase& c) {
    SCOPED_TRACE(c.name);
    Engine e = MakeEngine(c.method);
    if (c.programmer) e.state.status |= 4;
    test::Press(e, c.keys);
    EXPECT_DOUBLE_EQ(e.X(), c.x);
    if (!std::isnan(c.y)) {
        EXPECT_DOUBLE_EQ(e.Y(), c.y);
    }
    EXPECT_EQ(std::pair(e.XTag(), e.state.pendingArgument), std::pair(c.tag, kNoPendingArgument));
    if (c.reg >= 0) {
        EXPECT_EQ(e.registers.values[c.reg], c.value);
    }
}

constexpr InputMethod Rpn = InputMethod::Rpn;
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
    for (const MethodCase& c : cases) Check(c);
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
// exchange does not, so there the key cancels the prefix and acts. Each row ends with the X and Y
// the keys leave, then the register named and its value.
TEST(RegisterKeys, PrefixSequencesLeaveRegisterXAndY) {
    const MethodCase cases[] = {
        {"store takes two digits", Rpn, {7, Sto, 0, 3}, 7, 0, 3, 7},
        {"store plus", Rpn, {7, Sto, 0, 3, 2, Sto, Plus, 0, 3}, 2, 7, 3, 9},
        {"store minus is cleaned", Rpn, {fid::Point, 3, Sto, 0, 3, fid::Point, 1, Sto, Minus, 0, 3},
         0.1, 0.3, 3, 0.2},
        {"store times", Rpn, {7, Sto, 0, 3, 2, Sto, Times, 0, 3}, 2, 7, 3, 14},
        {"store divides", Rpn, {7, Sto, 0, 3, 2, Sto, By, 0, 3}, 2, 7, 3, 3.5},
        {"recall lifts, naming the register", Rpn, {7, Sto, 4, 2, fid::Enter, 5, Rcl, 4, 2},
         7, 5, 42, 7, label::CashFlow},
        {"recall divides x, keeps y", Rpn, {8, Sto, 0, 1, fid::Enter, 2, 0, Rcl, By, 0, 1}, 2.5, 8, 1, 8},
        {"recall minus", Rpn, {8, Sto, 0, 1, fid::Enter, 2, 0, Rcl, Minus, 0, 1}, 12, 8, 1, 8},
        {"exchange swaps x with the register", Rpn, {7, Sto, 0, 3, 2, Xch, 0, 3}, 7, 7, 3, 2, label::CashFlow},
        {"exchange takes no arithmetic", Rpn, {7, Sto, 0, 3, fid::Enter, 2, Xch, Plus, 0, 3}, 3, 9, 3, 7},
        {"the small set's key takes one digit", Rpn, {7, fid::StoreVariant, 4, fid::RecallVariant, 4},
         7, 7, 4, 7, label::CashFlow},
        {"the large set's key takes two", Rpn, {7, fid::StoreLarge, 4, 7, 0}, 0, 7, 47, 7},
        {"the next register after the last", Rpn, {7, Sto, 9, 8, Sto, fid::CashFlow, Rcl, 9, 9},
         7, 7, 99, 7, label::CashFlow},
        {"none after ninety-nine", Rpn, {7, Sto, 9, 9, 5, Sto, fid::CashFlow}, 5, 7, reg::N, 0},
        {"a key names its register", Rpn, {9, Sto, fid::PV, 1, Rcl, fid::PV}, 9, 1, reg::PV, 9, label::PresentValue},
        {"periods per year", Rpn, {Rcl, fid::PYr}, 12, 0, reg::PYr, 12, label::PerYear},
        {"backspace cancels the prefix", Rpn, {5, fid::Enter, Sto, fid::Backspace, 7}, 7, 5, 0, 0},
        {"another key cancels it, then acts", Rpn, {5, fid::Enter, 3, Sto, fid::Swap}, 5, 3, 0, 0},
        {"integer keys do plain register arithmetic", Rpn,
         {2, 0, 0, Sto, 0, 1, 1, 0, 0, Sto, fid::IntegerAdd, 0, 1, Rcl, fid::IntegerDivide, 0, 1},
         1.0 / 3, 200, 1, 300, ValueTag::None, true},
        {"integer times and minus", Rpn,
         {6, Sto, 0, 1, 7, Sto, fid::IntegerMultiply, 0, 1, Sto, fid::IntegerSubtract, 0, 1},
         7, 6, 1, 35, ValueTag::None, true},
        {"a hex number is stored as its value", Rpn, {fid::BaseHex, fid::HexF, fid::HexF, Sto, 0, 2},
         255, 0, 2, 255, ValueTag::None, true},
    };
    for (const MethodCase& c : cases) Check(c);
}

}  // namespace
}  // namespace brinto
