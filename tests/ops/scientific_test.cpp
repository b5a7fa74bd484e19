#include <gtest/gtest.h>

#include <cmath>
#include <span>
#include <tuple>

#include "ops/constants.h"
#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;
using enum ValueTag;

// In degrees and grads, sin of a half turn and cos of an odd quarter turn are exactly 0 (the
// library leaves 1e-16, which would show) and tan there is the error value; radians make no such
// test. The inverse functions answer in the angle unit, acos 0 exactly a right angle.
TEST(Trigonometry, ExactZerosAtMultiplesOfRightAnglesInDegreesAndGrads) {
    constexpr FunctionId D = fid::Degrees, G = fid::Grads, R = fid::Radians, Sin = fid::Sin, Cos = fid::Cos,
                         Tan = fid::Tan, Acos = fid::Acos;
    const double err = kErrorValue;
    struct Case { FunctionId angle, key; double x, result; };
    const Case cases[] = {
        {D, Sin, 180, 0},  {D, Sin, -180, 0}, {D, Sin, -720, 0},  {D, Cos, 90, 0},    {D, Cos, -90, 0},
        {D, Cos, 270, 0},  {D, Cos, -270, 0}, {D, Cos, 450, 0},   {D, Cos, 180, -1},  {D, Tan, 90, err},
        {D, Tan, -90, err}, {D, Tan, 270, err}, {D, Tan, 180, 0}, {D, Tan, -180, 0},  {G, Sin, 200, 0},
        {G, Cos, -100, 0}, {G, Cos, 300, 0},  {G, Tan, -300, err}, {G, Tan, 200, 0},  {D, Acos, 0, 90},
        {G, Acos, 0, 100}, {R, Acos, 0, M_PI * 0.5},              {G, Sin, 90, std::sin(90 * M_PI * 0.005)},
        {R, Sin, M_PI, std::sin(M_PI)},       {R, Tan, M_PI / 2, std::tan(M_PI / 2)},
        {D, fid::Asin, 1, 90},                {G, fid::Atan, 1, 50},                   {D, Acos, -1, 180},
        {D, fid::Asin, 2, NAN},  // outside -1..1: the library's NaN, shown as an error
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "key " << c.key << " angle " << c.angle << " x " << c.x);
        Engine e = Holding({{c.x, None}});
        Press(e, {c.angle, c.key});
        EXPECT_TRUE(e.X() == c.result || (std::isnan(c.result) && std::isnan(e.X()))) << e.X();
        EXPECT_EQ(e.state.lastX, c.x);
    }
}

TEST(Functions, ResultsAndTheUnitsTheyKeep) {
    const FunctionId F = fid::Factorial, L = fid::LogGamma, Sqrt = fid::SquareRoot, Sq = fid::Square;
    const double err = kErrorValue;
    CheckKeys({
        {F, {0, None}, {1, None}},           {F, {170, None}, {7.257415615307994e306, None}},   {F, {171, None}, {err, None}},
        {F, {3.5, None}, {err, None}},       {F, {-1, None}, {err, None}},  {F, {NAN, None}, {err, None}},
        {L, {-0.5, None}, {-1.265512123484645, None}},  // gamma(-0.5) is negative: the log of its size
        {L, {0.5, None}, {0.5723649429247004, None}},   {Sqrt, {4, SquareCentimeters}, {2, Centimeters}},        {Sqrt, {4, Acres}, {2, None}},
        {Sqrt, {4, Meters}, {2, None}},   {Sq, {3, Feet}, {9, SquareFeet}}, {Sq, {3, Millimeters}, {9, SquareMillimeters}}, {Sq, {3, NauticalMiles}, {9, None}},
        {Sq, {3, SquareFeet}, {9, None}},     {fid::Cube, {2, Meters}, {8, None}},        {fid::CubeRoot, {8, CubicMeters}, {2, None}},
        {fid::Abs, {-2, Kilograms}, {2, Kilograms}}, {fid::IntegerPart, {2.5, U8}, {2, U8}},      {fid::Floor, {2.5, PerYear}, {2, None}},
        {fid::FractionalPart, {2.3, Feet}, {0.3, Feet}}, {fid::FractionalPart, {-2.3, None}, {-0.3, None}},
        {fid::Ceiling, {2.5, Date}, {3, Date}},          {fid::Reciprocal, {4, Feet}, {0.25, None}},
        {fid::ChangeSign, {5, Meters}, {-5, Meters}},  {fid::ChangeSign, {5, Date}, {-5, Date}},  // units and dates stay
        {fid::ChangeSign, {5, PresentValue}, {-5, None}},  {fid::ChangeSign, {5, U8}, {-5, None}},
    });
    const FunctionId C = fid::Combinations, P = fid::Permutations;
    CheckOperators({
        {C, {5, None}, {2, None}, {10, None}},  {P, {5, None}, {2, None}, {20, None}},   {C, {5, None}, {5, None}, {1, None}},
        {C, {49, None}, {50, None}, {0, None}}, {P, {2, None}, {5, None}, {0, None}},    {P, {0, None}, {170, None}, {0, None}},  // Y < X: no way
        {C, {5, None}, {0.5, None}, {err, None}}, {C, {-1, None}, {5, None}, {err, None}}, {P, {2, None}, {171, None}, {err, None}},
        {P, {171, None}, {1, None}, {err, None}}, {P, {2, None}, {-1, None}, {err, None}},
        {fid::PolarToRect, {30, None}, {2, Meters}, {2 * std::cos(M_PI / 6), None}},  // the angle in Y; no unit
    });
}

// Pi and random leave Last X alone; the keys outside the table of one-number functions save it
// (the trigonometric keys are checked with their results).
TEST(LastX, SavedByTheKeysOutsideTheFunctionTableButPiAndRandom) {
    const FunctionId keeping[] = {fid::Floor, fid::Pi, fid::Random};
    const FunctionId saving[] = {fid::Ln, fid::Percent, fid::RoundToDisplay, fid::SquareRoot, fid::Square,
                                 fid::PolarToRect, fid::RectToPolar};
    for (const bool saves : {false, true}) {
        for (const FunctionId key : saves ? std::span<const FunctionId>(saving) : keeping) {
            SCOPED_TRACE(key);
            Engine e = Holding({{3, None}, {0.5, Feet}});
            e.state.lastX = 7;
            e.Dispatch(key);
            EXPECT_EQ(Tagged(e.state.lastX, e.state.lastXTag), saves ? Tagged(0.5, Feet) : Tagged(7, None));
        }
    }
}

TEST(RoundToDisplay, KeepsWhatTheDisplayShowsAndEndsTheFullDisplay) {
    Engine e = Holding({{2.0 / 3.0, Meters}});
    Press(e, {fid::FormatFixed, 2});
    e.state.status |= status::FullDisplay;
    e.Dispatch(fid::RoundToDisplay);
    EXPECT_EQ(XOf(e), Tagged(0.67, Meters));
    EXPECT_FALSE(e.state.status & status::FullDisplay);
    EXPECT_EQ(e.state.lastX, 2.0 / 3.0);
    e = Holding({{123456.789, None}});
    e.prefs.SetFormat(NumberFormat::Engineering);
    e.prefs.SetDigitField(4);  // four significant digits: 123.5e3
    e.Dispatch(fid::RoundToDisplay);
    EXPECT_EQ(e.X(), 123500.0);
    EXPECT_EQ(After({{kErrorValue, None}}, fid::RoundToDisplay).X(), kErrorValue);  // the formatter refuses it
}

constexpr int kSpeedOfLight = 7, kPlanck = 12;

// A constant is recalled as pi is: it lifts unless the lift is disabled, closes a number being
// typed and does not replace X after an operator. It leaves Last X alone, keeps the list's scroll
// position, and carries its unit when it has one. A row beyond the list recalls nothing.
TEST(Constants, RecallFollowsTheLiftAndKeepsLastXAndTheListsScroll) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.state.lastX = 9;
    Press(e, {2, fid::Enter});  // lift disabled: the recall replaces the copy of 2
    ASSERT_TRUE(RecallConstant(e, kPlanck, 4));
    EXPECT_EQ(std::tuple(e.X(), e.XTag(), e.Y(), e.state.lastX, e.state.constantsTopRow),
              std::tuple(6.6260755e-34, None, 2.0, 9.0, 4));
    Press(e, {3, 1});  // a number typed after a recall lifts it
    RecallConstant(e, kSpeedOfLight, 0);
    EXPECT_EQ(std::tuple(e.EntryOpen(), e.Y(), e.Level(2).value, e.XTag()),
              std::tuple(false, 31.0, 6.6260755e-34, MetersPerSecond));
    for (const int outside : {kConstantCount, -1}) EXPECT_FALSE(RecallConstant(e, outside, 3));
    EXPECT_EQ(std::tuple(e.X(), e.state.constantsTopRow), std::tuple(299792458.0, 0));
    e = MakeEngine(InputMethod::Simple);
    Press(e, {2, fid::Multiply});
    RecallConstant(e, kSpeedOfLight, 0);
    Press(e, {fid::Add, 1, fid::Equals});  // + does not replace x: the recall came between
    EXPECT_EQ(e.X(), 599584917.0);
    e = MakeEngine(InputMethod::Rpn);
    e.state.randomSeed = 1;
    Press(e, {fid::Random, fid::Random});
    EXPECT_EQ(e.state.randomSeed, 172u);
    e.state.randomSeed = 0xFFFFFFFF;
    e.Dispatch(fid::Random);
    EXPECT_EQ(std::pair(e.state.randomSeed, e.X()), std::pair(35u, 35 * (1.0 / 32767)));
}

}  // namespace
}  // namespace brinto
