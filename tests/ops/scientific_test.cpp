#include <gtest/gtest.h>

#include <cmath>
#include <span>

#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;

struct AngleCase { FunctionId angle, key; double x, result; };

Engine InAngle(const AngleCase& c) {
    Engine e = Holding({{c.x, 0}});
    e.Dispatch(c.angle);
    e.Dispatch(c.key);
    return e;
}

// In degrees and grads, sin of a half turn and cos of an odd quarter turn are exactly 0 (the
// library leaves 1e-16, which would show) and tan there is the error value; radians make no such test.
TEST(Trigonometry, ExactZerosAtMultiplesOfRightAnglesInDegreesAndGrads) {
    constexpr FunctionId D = fid::Degrees, G = fid::Grads, R = fid::Radians, Sin = fid::Sin, Cos = fid::Cos,
                         Tan = fid::Tan;
    const double err = kErrorValue;
    const AngleCase cases[] = {
        {D, Sin, 180, 0},  {D, Sin, -180, 0}, {D, Sin, -720, 0},  {D, Cos, 90, 0},    {D, Cos, -90, 0},
        {D, Cos, 270, 0},  {D, Cos, -270, 0}, {D, Cos, 450, 0},   {D, Cos, 180, -1},  {D, Tan, 90, err},
        {D, Tan, -90, err}, {D, Tan, 270, err}, {D, Tan, 180, 0}, {D, Tan, -180, 0},  {G, Sin, 200, 0},
        {G, Cos, -100, 0}, {G, Cos, 300, 0},  {G, Tan, -300, err}, {G, Tan, 200, 0},
        {G, Sin, 90, std::sin(90 * M_PI * 0.005)}, {R, Sin, M_PI, std::sin(M_PI)},
        {R, Tan, M_PI / 2, std::tan(M_PI / 2)},
    };
    for (const AngleCase& c : cases) {
        SCOPED_TRACE(testing::Message() << "key " << c.key << " angle " << c.angle << " x " << c.x);
        Engine e = InAngle(c);
        EXPECT_EQ(e.X(), c.result);
        EXPECT_EQ(e.state.lastX, c.x);
    }
}

TEST(Trigonometry, InverseFunctionsAnswerInTheAngleUnit) {
    const AngleCase cases[] = {
        {fid::Degrees, fid::Acos, 0, 90},         {fid::Grads, fid::Acos, 0, 100},
        {fid::Radians, fid::Acos, 0, M_PI * 0.5}, {fid::Degrees, fid::Asin, 1, 90},
        {fid::Grads, fid::Atan, 1, 50},           {fid::Degrees, fid::Acos, -1, 180},
    };
    for (const AngleCase& c : cases) {
        SCOPED_TRACE(testing::Message() << "key " << c.key << " angle " << c.angle << " x " << c.x);
        EXPECT_DOUBLE_EQ(InAngle(c).X(), c.result);
    }
    // Outside -1..1: the library's NaN, shown as an error.
    EXPECT_TRUE(std::isnan(InAngle({fid::Degrees, fid::Asin, 2, 0}).X()));
}

TEST(Trigonometry, HyperbolicPrefixActsOnTheNextKeyOnlyWithoutAngleConversion) {
    Engine e = Holding({{90, 0}});
    Press(e, {fid::Degrees, fid::Hyperbolic, fid::Sin});
    EXPECT_DOUBLE_EQ(e.X(), std::sinh(90.0));
    EXPECT_FALSE(e.state.status & status::Hyperbolic);
    Press(e, {1, fid::Hyperbolic, fid::Acos});
    EXPECT_EQ(e.X(), 0.0);
    Press(e, {fid::Drop, 3, 0, fid::Sin});  // the prefix was used up
    EXPECT_DOUBLE_EQ(e.X(), 0.5);
    Press(e, {fid::Hyperbolic, fid::Hyperbolic, fid::Tan});  // pressed twice: cancelled
    EXPECT_NEAR(e.X(), std::tan(0.5 * M_PI / 180), 1e-15);
}

TEST(Factorial, WholeNumbersUpTo170CombinationsAndLogGamma) {
    struct Case { FunctionId key; double y, x, result; };
    const FunctionId F = fid::Factorial, C = fid::Combinations, P = fid::Permutations, L = fid::LogGamma;
    const double err = kErrorValue;
    const Case cases[] = {
        {F, 0, 0, 1},       {F, 0, 170, 7.257415615307994e306}, {F, 0, 171, err}, {F, 0, 3.5, err},
        {F, 0, -1, err},    {F, 0, NAN, err},   {C, 5, 2, 10},  {P, 5, 2, 20},  {C, 5, 5, 1},
        {C, 2, 5, err},     {P, 2, 5, err},     {C, 5, 0.5, err}, {P, 171, 1, err},
        {L, 0, -0.5, -1.265512123484645},  // gamma(-0.5) is negative: log |gamma|
        {L, 0, 0.5, 0.5723649429247004},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "key " << c.key << " " << c.y << " " << c.x);
        EXPECT_DOUBLE_EQ(After({{c.y, 0}, {c.x, 0}}, c.key).X(), c.result);
    }
}

TEST(Coordinates, PolarToRectangularTakesTheAngleFromYAndDropsUnits) {
    Engine e = After({{30, 0}, {2, unit::Meters}}, fid::PolarToRect);
    EXPECT_DOUBLE_EQ(e.X(), 2 * std::cos(M_PI / 6));
    EXPECT_DOUBLE_EQ(e.Y(), 1.0);
    EXPECT_EQ(e.XTag() + e.YTag(), 0);
}

TEST(Coordinates, UseUpTheEnterMarkerOfTheAlgebraicMethods) {
    Engine e = MakeEngine(InputMethod::Simple);
    Press(e, {3, fid::Enter, 4, fid::RectToPolar});
    EXPECT_EQ(e.state.pendingCount, 0);
    Press(e, {fid::Add, 1, fid::Equals});
    EXPECT_DOUBLE_EQ(e.X(), 6.0);
}

TEST(Percent, OfTheRunningTotalOnlyAfterAddOrSubtract) {
    Engine e = MakeEngine(InputMethod::Simple);
    Press(e, {2, 0, 0, fid::Multiply, 1, 0, fid::Percent});
    EXPECT_DOUBLE_EQ(e.X(), 0.1);
    e = MakeEngine(InputMethod::Rpn);
    Press(e, {2, 0, 0, fid::Enter, 1, 0, fid::Percent});
    EXPECT_EQ(e.X(), 20.0);
    EXPECT_EQ(e.Y(), 200.0);  // no drop
}

TEST(RoundToDisplay, KeepsWhatTheDisplayShowsAndEndsTheFullDisplay) {
    Engine e = Holding({{2.0 / 3.0, unit::Meters}});
    Press(e, {fid::FormatFixed, 2});
    e.state.status |= status::FullDisplay;
    e.Dispatch(fid::RoundToDisplay);
    EXPECT_EQ(XOf(e), Tagged(0.67, unit::Meters));
    EXPECT_FALSE(e.state.status & status::FullDisplay);
    EXPECT_EQ(e.state.lastX, 2.0 / 3.0);

    e = Holding({{123456.789, 0}});
    e.prefs.SetFormat(NumberFormat::Engineering);
    e.prefs.SetDigitField(4);  // four significant digits: 123.5e3
    e.Dispatch(fid::RoundToDisplay);
    EXPECT_EQ(e.X(), 123500.0);
    EXPECT_EQ(After({{kErrorValue, 0}}, fid::RoundToDisplay).X(), kErrorValue);  // the formatter refuses it
}

TEST(UnitsThroughFunctions, RootsAndPowersCarryLengthAndArea) {
    using namespace unit;
    struct Case { FunctionId key; TaggedValue x, result; };
    const Case cases[] = {
        {fid::SquareRoot, {4, SqCm}, {2, Cm}},       {fid::SquareRoot, {4, Acres}, {2, 0}},
        {fid::SquareRoot, {4, Meters}, {2, 0}},      {fid::Square, {3, Feet}, {9, SqFeet}},
        {fid::Square, {3, Mm}, {9, 1935}},           {fid::Square, {3, Nmi}, {9, 0}},
        {fid::Square, {3, SqFeet}, {9, 0}},          {fid::Cube, {2, Meters}, {8, 0}},
        {fid::CubeRoot, {8, CubicM}, {2, 0}},        {fid::Abs, {-2, Kg}, {2, Kg}},
        {fid::IntegerPart, {2.5, U8}, {2, U8}},      {fid::FractionalPart, {2.3, Feet}, {0.3, Feet}},
        {fid::FractionalPart, {-2.3, 0}, {-0.3, 0}}, {fid::Floor, {2.5, 1404}, {2, 0}},
        {fid::Ceiling, {2.5, Date}, {3, Date}},      {fid::Reciprocal, {4, Feet}, {0.25, 0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "key " << c.key << " tag " << c.x.tag);
        EXPECT_EQ(XOf(After({c.x}, c.key)), Of(c.result));
    }
}

TEST(LastX, SavedByEveryFunctionButAbsoluteValueFloorCeilingPiAndRandom) {
    const FunctionId keeping[] = {fid::Abs, fid::Floor, fid::Ceiling, fid::Pi, fid::Random};
    const FunctionId saving[] = {fid::Percent, fid::RoundToDisplay, fid::IntegerPart, fid::SquareRoot,
                                 fid::Square, fid::CubeRoot, fid::Cube, fid::Reciprocal, fid::FractionalPart,
                                 fid::Sin, fid::Cos, fid::Tan, fid::Asin, fid::Acos, fid::Atan, fid::Ln,
                                 fid::Log10, fid::Exp, fid::PowerOf10, fid::RadToDeg, fid::DegToRad,
                                 fid::PolarToRect, fid::RectToPolar, fid::Factorial, fid::LogGamma};
    for (const bool saves : {false, true}) {
        for (const FunctionId key : saves ? std::span<const FunctionId>(saving) : keeping) {
            SCOPED_TRACE(key);
            Engine e = Holding({{3, 0}, {0.5, unit::Feet}});
            e.state.lastX = 7;
            e.Dispatch(key);
            EXPECT_EQ(Tagged(e.state.lastX, e.state.lastXTag), saves ? Tagged(0.5, unit::Feet) : Tagged(7, 0));
        }
    }
}

TEST(RecallLift, PiKeepsANumberBeingTypedInRpnAndReplacesItAfterAnOperator) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {2, fid::Enter, 3, fid::Pi});
    EXPECT_EQ(e.X(), M_PI);
    EXPECT_EQ(e.Y(), 3.0);
    EXPECT_EQ(e.Level(2).value, 2.0);
    e = MakeEngine(InputMethod::Simple);
    Press(e, {2, fid::Multiply, fid::Pi, fid::Equals});
    EXPECT_DOUBLE_EQ(e.X(), 2 * M_PI);
}

TEST(Random, StoresTheFifteenBitGeneratorsStateWhichWrapsModulo2To32) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.state.randomSeed = 1;
    Press(e, {fid::Random, fid::Random});
    EXPECT_EQ(e.state.randomSeed, 172u);
    e.state.randomSeed = 0xFFFFFFFF;
    e.Dispatch(fid::Random);
    EXPECT_EQ(e.state.randomSeed, 35u);
    EXPECT_EQ(e.X(), 35 * (1.0 / 32767));
}

}  // namespace
}  // namespace brinto
