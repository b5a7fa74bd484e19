#include "ops/units.h"

#include <gtest/gtest.h>


#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;
using enum ValueTag;

constexpr FunctionId kInchesKey = fid::Inches, kFeetKey = fid::Feet, kMetersPerSKey = fid::MetersPerSecond;
constexpr FunctionId kHoursKey = fid::Hours, kMinutesKey = fid::Minutes;

TEST(UnitKeysAndRules, ConvertWithinTheirTableLabelOtherValuesAndTagArithmetic) {
    Engine e = Holding({{12, None}});
    e.state.lastX = 99;
    e.Dispatch(kInchesKey);
    EXPECT_EQ(e.state.lastX, 99.0);  // attaching a unit is not an operation on X
    e.Dispatch(kFeetKey);
    EXPECT_EQ(Tagged(e.state.lastX, e.state.lastXTag), Tagged(12, Inches));
    CheckKeys({
        {kMetersPerSKey, {100, KilometersPerHour}, {27.7777777778, MetersPerSecond}}, {fid::DegC, {212, DegF}, {100, DegC}},
        {fid::DegC, {-40, DegF}, {-40, DegC}},   {fid::DegF, {5, Meters}, {5, DegF}},
        {kMinutesKey, {1.3, Hms}, {90, Minutes}}, {kHoursKey, {90, None}, {90, Hours}}, {kHoursKey, {90, Meters}, {90, Hours}},
    });
    const FunctionId Add = fid::Add, Sub = fid::Subtract, Mul = fid::Multiply, Div = fid::Divide;
    CheckOperators({
        {Add, {5, None}, {3, Feet}, {8, Feet}},            {Sub, {5, Kilograms}, {3, None}, {2, Kilograms}},
        {Add, {5, PresentValue}, {3, Feet}, {8, Feet}},         {Add, {5, Kilograms}, {3, Feet}, {8, None}},
        {Add, {5, DegC}, {3, DegC}, {8, None}},            {Add, {5, DegC}, {3, None}, {8, DegC}},
        {Add, {5, Feet}, {3, Feet}, {8, Feet}},         {Add, {1, Feet}, {12, Inches}, {2, Feet}},
        {Sub, {1, Gallons}, {1, Liters}, {0.73582794764185, Gallons}},  // 1 - 1 / 3.785411784, in 14 digits
        {Add, {1, Hours}, {30, Minutes}, {1.5, Hours}}, {Sub, {1, Days}, {12, Hours}, {0.5, Days}},
        {Add, {1.3, Hms}, {30, Minutes}, {2, Hours}},   {Add, {30, Minutes}, {1.3, Hms}, {120, Minutes}},
        {Mul, {1, Meters}, {50, Centimeters}, {0.5, SquareMeters}},  {Mul, {5, Feet}, {3, None}, {15, Feet}},
        {Mul, {2, NauticalMiles}, {3, NauticalMiles}, {6, None}},              {Mul, {2, SquareFeet}, {6, Inches}, {1, CubicFeet}},
        {Mul, {2, SquareFeet}, {1, Feet}, {2, CubicFeet}},    {Mul, {2, SquareMiles}, {3, Feet}, {6, None}},
        // The length's factor alone divides the area: 1 sq meter counts as 1 / 0.3048 feet.
        {Mul, {2, Feet}, {1, SquareMeters}, {2 / 0.3048, CubicFeet}},  {Mul, {2, Feet}, {3, SquareFeet}, {6, CubicFeet}},
        {Mul, {60, MilesPerHour}, {30, Minutes}, {30, Miles}}, {Mul, {60, MilesPerHour}, {2, Hours}, {120, Miles}},
        {Mul, {2, Hours}, {3, MetersPerSecond}, {21600, Meters}},  {Mul, {1.3, Hms}, {10, MilesPerHour}, {15, Miles}},
        {Mul, {2, Kilograms}, {3, Kilograms}, {6, None}},                 {Div, {100, Miles}, {50, MilesPerHour}, {2, Hours}},
        {Div, {1, Meters}, {1, InchesPerSecond}, {1 / 0.0254, Seconds}}, {Div, {10, SquareFeet}, {2, Feet}, {5, Feet}},
        {Div, {10, SquareFeet}, {24, Inches}, {5, Feet}},    {Div, {10, Acres}, {2, Feet}, {5, None}},
        {Div, {1, CubicFeet}, {12, Inches}, {1, SquareFeet}},  {Div, {1, Liters}, {2, Meters}, {0.5, None}},
        {Div, {1, CubicMeters}, {2, SquareMeters}, {0.5, Meters}}, {Div, {144, CubicInches}, {1, SquareFeet}, {1, Inches}},
        {Div, {100, Meters}, {10, Seconds}, {10, MetersPerSecond}}, {Div, {100, Meters}, {1, Minutes}, {100.0 / 60, MetersPerSecond}},
        {Div, {10, Kilometers}, {30, Minutes}, {20, KilometersPerHour}},    {Div, {10, Yards}, {2, Hours}, {5, None}},
        {Div, {6, None}, {2, Feet}, {3, Feet}},             {Div, {6, Feet}, {2, Feet}, {3, None}},
    });
}

TEST(TimeKeys, DurationsTakeEveryPathAndDatesGiveTheirFields) {
    struct Case { ValueTag from, to; double v, result; };
    const double err = kErrorValue;
    const Case cases[] = {
        {Hms, Hms, 1.3, 1.3},             {Hours, Minutes, 1.5, 90},          {Minutes, Hours, 90, 1.5},
        {Minutes, Days, 720, 0.5},        {Minutes, Seconds, 2, 120},         {Minutes, Frames, 1, 1800},
        {Minutes, Hms, 90, err},  // minutes reach hours only on the way to a longer unit
        {Seconds, Hms, 5415, 1.3015},     {Seconds, Minutes, 90, 1.5},        {Seconds, Frames, 2, 60},
        {Frames, Seconds, 45, 1.5},       {Frames, Minutes, 1800, 1},         {Frames, Days, 2592000, 1},
        {Frames, Hms, 162000, 1.3},       {Hms, Minutes, 1.3, 90},            {Hms, Days, 12, 0.5},
        {Days, Hours, 1.5, 36},           {Days, Hms, 0.0625, 1.3},           {Days, Minutes, 1, 1440},
        {Weeks, Days, 2, 14},             {Weeks, Seconds, 1, 604800},        {Years, Months, 0.5, 6},
        {Months, Weeks, 1, 30.4375 / 7},  {Hours, Years, 8766, 1},            {Hours, Meters, 1, err},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.from << " to " << c.to);
        const double result = ConvertDuration(c.v, c.from, c.to, DurationSettings{});
        if (c.result == err) {
            EXPECT_EQ(result, err);
        } else {
            EXPECT_NEAR(result, c.result, c.result * 1e-13);
        }
    }
    const FunctionId kTimeKeys[] = {fid::Years, fid::Months, fid::Weeks,   fid::Days,
                                    fid::Hours, fid::Minutes, fid::Seconds, fid::Frames};
    struct Fields { ValueTag kind; double value; double fields[8]; };  // years .. frames
    const Fields dates[] = {
        {Date, 3792009600, {2024, 2, err, 29, err, err, err, err}},  // 2024-02-29
        {Time, 49510, {err, err, err, err, 13, 45, 10, err}},
        {DateTime, 3792059110, {2024, 2, err, 29, 13, 45, 10, err}},
    };
    for (const Fields& c : dates) {
        for (int k = 0; k < 8; ++k) {
            const FunctionId key = kTimeKeys[k];
            SCOPED_TRACE(testing::Message() << "kind " << c.kind << " key " << key);
            const Engine e = After({{c.value, c.kind}}, key);
            EXPECT_EQ(XOf(e), Tagged(c.fields[k], None));
            EXPECT_EQ(e.state.lastX, c.value);
        }
    }
}

}  // namespace
}  // namespace brinto
