#include <gtest/gtest.h>

#include <cmath>
#include <string_view>

#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;

Engine InAngle(FunctionId angleKey, double x) {
    Engine e = Holding({{x, 0}});
    e.Dispatch(angleKey);
    return e;
}

TEST(Trigonometry, ExactZerosAtMultiplesOfRightAnglesInDegreesAndGrads) {
    struct Case { std::string_view name; FunctionId angle; FunctionId key; double x; double result; };
    const double error = kErrorValue;
    const Case cases[] = {
        {"sin 0",        fid::Degrees, fid::Sin, 0,    0},
        {"sin -0",       fid::Degrees, fid::Sin, -0.0, 0},
        {"sin 180",      fid::Degrees, fid::Sin, 180,  0},
        {"sin -180",     fid::Degrees, fid::Sin, -180, 0},
        {"sin 540",      fid::Degrees, fid::Sin, 540,  0},
        {"sin -720",     fid::Degrees, fid::Sin, -720, 0},
        {"cos 90",       fid::Degrees, fid::Cos, 90,   0},
        {"cos -90",      fid::Degrees, fid::Cos, -90,  0},
        {"cos 270",      fid::Degrees, fid::Cos, 270,  0},
        {"cos -270",     fid::Degrees, fid::Cos, -270, 0},
        {"cos 450",      fid::Degrees, fid::Cos, 450,  0},
        {"cos 180",      fid::Degrees, fid::Cos, 180,  -1},
        {"tan 90",       fid::Degrees, fid::Tan, 90,   error},
        {"tan -90",      fid::Degrees, fid::Tan, -90,  error},
        {"tan 270",      fid::Degrees, fid::Tan, 270,  error},
        {"tan 180",      fid::Degrees, fid::Tan, 180,  0},
        {"tan -180",     fid::Degrees, fid::Tan, -180, 0},
        {"sin 200g",     fid::Grads,   fid::Sin, 200,  0},
        {"sin -200g",    fid::Grads,   fid::Sin, -200, 0},
        {"sin 400g",     fid::Grads,   fid::Sin, 400,  0},
        {"cos 100g",     fid::Grads,   fid::Cos, 100,  0},
        {"cos -100g",    fid::Grads,   fid::Cos, -100, 0},
        {"cos 300g",     fid::Grads,   fid::Cos, 300,  0},
        {"cos -300g",    fid::Grads,   fid::Cos, -300, 0},
        {"tan 100g",     fid::Grads,   fid::Tan, 100,  error},
        {"tan -300g",    fid::Grads,   fid::Tan, -300, error},
        {"tan 200g",     fid::Grads,   fid::Tan, 200,  0},
        {"sin 90 in grads is not a zero", fid::Grads, fid::Sin, 90, std::sin(90 * M_PI * 0.005)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = InAngle(c.angle, c.x);
        e.Dispatch(c.key);
        EXPECT_EQ(e.X(), c.result);
        EXPECT_EQ(e.state.lastX, c.x);
    }
}

TEST(Trigonometry, RadiansMakeNoExactZeroTests) {
    Engine e = InAngle(fid::Radians, M_PI);
    e.Dispatch(fid::Sin);
    EXPECT_NE(e.X(), 0.0);
    EXPECT_NEAR(e.X(), 0.0, 1e-15);
    e = InAngle(fid::Radians, M_PI / 2);
    e.Dispatch(fid::Tan);
    EXPECT_FALSE(IsErrorValue(e.X()));
}

TEST(Trigonometry, InverseFunctionsAnswerInTheAngleUnit) {
    struct Case { std::string_view name; FunctionId angle; FunctionId key; double x; double result; };
    const Case cases[] = {
        {"acos 0 deg",   fid::Degrees, fid::Acos, 0,    90},
        {"acos -0 deg",  fid::Degrees, fid::Acos, -0.0, 90},
        {"acos 0 grad",  fid::Grads,   fid::Acos, 0,    100},
        {"acos 0 rad",   fid::Radians, fid::Acos, 0,    M_PI * 0.5},
        {"asin 1 deg",   fid::Degrees, fid::Asin, 1,    90},
        {"atan 1 grad",  fid::Grads,   fid::Atan, 1,    50},
        {"acos -1 deg",  fid::Degrees, fid::Acos, -1,   180},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = InAngle(c.angle, c.x);
        e.Dispatch(c.key);
        EXPECT_DOUBLE_EQ(e.X(), c.result);
    }
    Engine e = InAngle(fid::Degrees, 2);
    e.Dispatch(fid::Asin);  // outside -1..1: the library's NaN, shown as an error
    EXPECT_TRUE(std::isnan(e.X()));
}

TEST(Trigonometry, HyperbolicPrefixActsOnTheNextKeyOnlyWithoutAngleConversion) {
    Engine e = InAngle(fid::Degrees, 90);
    Press(e, {fid::Hyperbolic, fid::Sin});
    EXPECT_DOUBLE_EQ(e.X(), std::sinh(90.0));
    EXPECT_FALSE(e.state.status & status::Hyperbolic);
    Press(e, {1, fid::Hyperbolic, fid::Acos});
    EXPECT_EQ(e.X(), 0.0);
    Press(e, {fid::Drop, 3, 0, fid::Sin});  // the prefix was used up
    EXPECT_DOUBLE_EQ(e.X(), 0.5);
    Press(e, {fid::Hyperbolic, fid::Hyperbolic, fid::Tan});  // pressed twice: cancelled
    EXPECT_NEAR(e.X(), std::tan(0.5 * M_PI / 180), 1e-15);
}

TEST(Factorial, WholeNumbersUpTo170ByMultiplication) {
    struct Case { std::string_view name; double x; double result; };
    const Case cases[] = {
        {"0",          0,       1},
        {"1",          1,       1},
        {"5",          5,       120},
        {"170",        170,     7.257415615307994e306},
        {"171",        171,     kErrorValue},
        {"3.5",        3.5,     kErrorValue},
        {"-1",         -1,      kErrorValue},
        {"nan",        NAN,     kErrorValue},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({{c.x, 0}});
        e.Dispatch(fid::Factorial);
        EXPECT_EQ(e.X(), c.result);
    }
}

TEST(Factorial, CombinationsAndPermutations) {
    struct Case { std::string_view name; FunctionId key; double y; double x; double result; };
    const Case cases[] = {
        {"5C2",           fid::Combinations, 5, 2, 10},
        {"5P2",           fid::Permutations, 5, 2, 20},
        {"5C5",           fid::Combinations, 5, 5, 1},
        {"Y below X C",   fid::Combinations, 2, 5, kErrorValue},
        {"Y below X P",   fid::Permutations, 2, 5, kErrorValue},
        {"half C",        fid::Combinations, 5, 0.5, kErrorValue},
        {"171 P 1",       fid::Permutations, 171, 1, kErrorValue},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({{c.y, 0}, {c.x, 0}});
        e.Dispatch(c.key);
        EXPECT_EQ(e.X(), c.result);
    }
}

TEST(LogGamma, CarriesTheSignOfGamma) {
    Engine e = Holding({{-0.5, 0}});
    e.Dispatch(fid::LogGamma);  // gamma(-0.5) = -3.5449...
    EXPECT_DOUBLE_EQ(e.X(), -1.265512123484645);
    e = Holding({{0.5, 0}});
    e.Dispatch(fid::LogGamma);
    EXPECT_DOUBLE_EQ(e.X(), 0.5723649429247004);
}

TEST(Coordinates, RectangularToPolarIsThePlainArctangent) {
    Engine e = Holding({{1, 0}, {-1, 0}});  // y = 1, x = -1
    e.Dispatch(fid::RectToPolar);
    EXPECT_EQ(XText(e), "1.41421356237");
    EXPECT_DOUBLE_EQ(e.Y(), -45.0);  // not 135: no quadrant correction
    EXPECT_EQ(e.state.lastX, -1.0);
}

TEST(Coordinates, PolarToRectangularTakesTheAngleFromY) {
    Engine e = Holding({{30, 0}, {2, unit::Meters}});
    e.Dispatch(fid::PolarToRect);
    EXPECT_DOUBLE_EQ(e.X(), 2 * std::cos(M_PI / 6));
    EXPECT_DOUBLE_EQ(e.Y(), 1.0);
    EXPECT_EQ(e.XTag(), 0);
    EXPECT_EQ(e.YTag(), 0);
}

TEST(Coordinates, UseUpTheEnterMarkerOfTheAlgebraicMethods) {
    Engine e = MakeEngine(InputMethod::Simple);
    Press(e, {3, fid::Enter, 4, fid::RectToPolar});
    EXPECT_EQ(e.state.pendingCount, 0);
    EXPECT_DOUBLE_EQ(e.X(), 5.0);
    Press(e, {fid::Add, 1, fid::Equals});
    EXPECT_DOUBLE_EQ(e.X(), 6.0);
}

TEST(Percent, OfTheRunningTotalOnlyAfterAddOrSubtract) {
    Engine e = MakeEngine(InputMethod::Simple);
    Press(e, {2, 0, 0, fid::Add, 1, 0, fid::Percent});
    EXPECT_EQ(e.X(), 20.0);
    EXPECT_EQ(e.Y(), 200.0);
    Press(e, {fid::Equals});
    EXPECT_EQ(e.X(), 220.0);

    e = MakeEngine(InputMethod::Simple);
    Press(e, {2, 0, 0, fid::Multiply, 1, 0, fid::Percent});
    EXPECT_DOUBLE_EQ(e.X(), 0.1);

    e = MakeEngine(InputMethod::Rpn);
    Press(e, {2, 0, 0, fid::Enter, 1, 0, fid::Percent});
    EXPECT_EQ(e.X(), 20.0);
    EXPECT_EQ(e.Y(), 200.0);  // no drop
}

TEST(RoundToDisplay, KeepsWhatTheDisplayShowsAndEndsTheFullDisplay) {
    Engine e = Holding({{2.0 / 3.0, unit::Meters}});
    e.prefs.SetFormat(NumberFormat::Fixed);
    e.prefs.SetDigitField(3);  // two places
    e.state.status |= status::FullDisplay;
    e.Dispatch(fid::RoundToDisplay);
    EXPECT_EQ(e.X(), 0.67);
    EXPECT_EQ(e.XTag(), unit::Meters);
    EXPECT_FALSE(e.state.status & status::FullDisplay);
    EXPECT_EQ(e.state.lastX, 2.0 / 3.0);

    e = Holding({{123456.789, 0}});
    e.prefs.SetFormat(NumberFormat::Engineering);
    e.prefs.SetDigitField(4);  // four significant digits: 123.5e3
    e.Dispatch(fid::RoundToDisplay);
    EXPECT_EQ(e.X(), 123500.0);

    e = Holding({{kErrorValue, 0}});
    e.Dispatch(fid::RoundToDisplay);  // the formatter refuses it: X stays
    EXPECT_EQ(e.X(), kErrorValue);
}

TEST(UnitsThroughFunctions, RootsAndPowersCarryLengthAndArea) {
    struct Case { std::string_view name; FunctionId key; double x; ValueTag tag; double result; ValueTag resultTag; };
    const Case cases[] = {
        {"sqrt sq feet",     fid::SquareRoot, 4, unit::SqFeet, 2, unit::Feet},
        {"sqrt sq cm",       fid::SquareRoot, 4, unit::SqCm,   2, unit::Cm},
        {"sqrt acres",       fid::SquareRoot, 4, unit::Acres,  2, 0},
        {"sqrt meters",      fid::SquareRoot, 4, unit::Meters, 2, 0},
        {"square feet",      fid::Square,     3, unit::Feet,   9, unit::SqFeet},
        {"square mm",        fid::Square,     3, unit::Mm,     9, 1935},
        {"square nmi",       fid::Square,     3, unit::Nmi,    9, 0},
        {"square sq feet",   fid::Square,     3, unit::SqFeet, 9, 0},
        {"cube meters",      fid::Cube,       2, unit::Meters, 8, 0},
        {"cbrt cubic m",     fid::CubeRoot,   8, unit::CubicM, 2, 0},
        {"abs keeps unit",   fid::Abs,        -2, unit::Kg,    2, unit::Kg},
        {"ip keeps format",  fid::IntegerPart, 2.5, unit::U8,  2, unit::U8},
        {"fp keeps unit",    fid::FractionalPart, 2.3, unit::Feet, 0.3, unit::Feet},
        {"fp of negative",   fid::FractionalPart, -2.3, 0,     -0.3, 0},
        {"floor drops a label", fid::Floor,   2.5, 1404,       2, 0},
        {"ceiling keeps date", fid::Ceiling,  2.5, unit::Date, 3, unit::Date},
        {"reciprocal drops", fid::Reciprocal, 4, unit::Feet,   0.25, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({{c.x, c.tag}});
        e.Dispatch(c.key);
        EXPECT_EQ(e.X(), c.result);
        EXPECT_EQ(e.XTag(), c.resultTag);
    }
}

TEST(LastX, SavedByEveryFunctionButAbsoluteValueFloorCeilingPiAndRandom) {
    const FunctionId keeping[] = {fid::Abs, fid::Floor, fid::Ceiling, fid::Pi, fid::Random};
    const FunctionId saving[] = {fid::Percent, fid::RoundToDisplay, fid::IntegerPart, fid::SquareRoot,
                                 fid::Square, fid::CubeRoot, fid::Cube, fid::Reciprocal, fid::FractionalPart,
                                 fid::Sin, fid::Cos, fid::Tan, fid::Asin, fid::Acos, fid::Atan, fid::Ln,
                                 fid::Log10, fid::Exp, fid::PowerOf10, fid::RadToDeg, fid::DegToRad,
                                 fid::PolarToRect, fid::RectToPolar, fid::Factorial, fid::LogGamma};
    for (const FunctionId key : keeping) {
        SCOPED_TRACE(key);
        Engine e = Holding({{3, 0}, {0.5, unit::Feet}});
        e.state.lastX = 7;
        e.Dispatch(key);
        EXPECT_EQ(e.state.lastX, 7.0);
    }
    for (const FunctionId key : saving) {
        SCOPED_TRACE(key);
        Engine e = Holding({{3, 0}, {0.5, unit::Feet}});
        e.state.lastX = 7;
        e.Dispatch(key);
        EXPECT_EQ(e.state.lastX, 0.5);
        EXPECT_EQ(e.state.lastXTag, unit::Feet);
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

TEST(Random, FollowsTheFifteenBitGeneratorFromTheStoredSeed) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.state.randomSeed = 1;
    const u32 expected[] = {41, 172, 600, 1997};
    for (const u32 value : expected) {
        e.Dispatch(fid::Random);
        EXPECT_EQ(e.X(), value * (1.0 / 32767));
        EXPECT_EQ(e.state.randomSeed, value);
    }
    EXPECT_EQ(e.Level(3).value, 41 * (1.0 / 32767));  // each number was kept: the lift
    e.state.randomSeed = 0xFFFFFFFF;                   // the state wraps modulo 2^32
    e.Dispatch(fid::Random);
    EXPECT_EQ(e.state.randomSeed, 35u);
}

}  // namespace
}  // namespace brinto
