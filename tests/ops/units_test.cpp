#include "ops/units.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string_view>

#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;
using namespace test::unit;

constexpr FunctionId kInchesKey = 142, kFeetKey = 143, kMetersKey = 145, kPoundsKey = 150, kKmHKey = 158;
constexpr FunctionId kHoursKey = 193, kMinutesKey = 194, kDaysKey = 192;

TEST(UnitKeys, AttachToAPlainValueAndConvertWithinTheirTable) {
    Engine e = Holding({{12, 0}});
    e.state.lastX = 99;
    e.Dispatch(kInchesKey);
    EXPECT_EQ(e.X(), 12.0);
    EXPECT_EQ(XLabel(e), "inches");
    EXPECT_EQ(e.state.lastX, 99.0);  // attaching a unit is not an operation on X

    e.Dispatch(kFeetKey);
    EXPECT_DOUBLE_EQ(e.X(), 1.0);
    EXPECT_EQ(XLabel(e), "feet");
    EXPECT_EQ(e.state.lastX, 12.0);
    EXPECT_EQ(e.state.lastXTag, Inches);

    e.Dispatch(kPoundsKey);  // another category: re-tagged, not converted
    EXPECT_DOUBLE_EQ(e.X(), 1.0);
    EXPECT_EQ(XLabel(e), "pounds");

    e = Holding({{100, KmPerH}});
    e.Dispatch(156);  // m/s
    EXPECT_NEAR(e.X(), 27.7777777778, 1e-9);
    e.Dispatch(kKmHKey);
    EXPECT_EQ(XText(e), "100.");
}

TEST(UnitKeys, EveryKeyOfTheConversionKeyboardsConvertsBackToItsStart) {
    // Each key attaches its unit to 7, then converts into its table's base and back: a wrong factor
    // or a key mapped to another table's row would not come back to 7.
    const FunctionId keys[] = {142, 143, 144, 145, 146, 147, 148, 149, 150, 151, 152, 153, 154, 155, 156, 157,
                               158, 159, 160, 161, 162, 163, 216, 217, 218, 219, 220, 221, 222, 223, 224, 225,
                               226, 227, 228, 229, 230, 231, 232, 233, 234, 235, 236, 237, 238, 239, 240};
    const FunctionId bases[] = {145, 149, 229, 156, 152};  // meters, sq meters, cubic m, m/s, kg
    for (const FunctionId key : keys) {
        SCOPED_TRACE(key);
        Engine e = Holding({{7, 0}});
        e.Dispatch(key);
        const ValueTag tag = e.XTag();
        ASSERT_NE(TagCategory(tag), 0u);
        const FunctionId base = bases[TagCategory(tag) - 1];
        e.Dispatch(base);
        EXPECT_NE(e.XTag(), 0);
        e.Dispatch(key);
        EXPECT_NEAR(e.X(), 7.0, 1e-12);
        EXPECT_EQ(e.XTag(), tag);
    }
}

TEST(Temperature, ConvertsOnlyBetweenTheTwoScales) {
    Engine e = Holding({{100, 0}});
    Press(e, {fid::DegC, fid::DegF});
    EXPECT_EQ(e.X(), 212.0);
    EXPECT_EQ(XLabel(e), "deg F");
    e.Dispatch(fid::DegC);
    EXPECT_EQ(XText(e), "100.");
    EXPECT_EQ(XLabel(e), "deg C");

    e = Holding({{-40, DegF}});
    e.Dispatch(fid::DegC);
    EXPECT_DOUBLE_EQ(e.X(), -40.0);

    e = Holding({{5, Meters}});
    e.Dispatch(fid::DegF);  // not a temperature: only labelled
    EXPECT_EQ(e.X(), 5.0);
    EXPECT_EQ(e.XTag(), DegF);
}

struct ArithmeticCase {
    std::string_view name;
    FunctionId op;
    TaggedValue y;
    TaggedValue x;
    double result;
    ValueTag tag;
};

void CheckArithmetic(const ArithmeticCase& c) {
    SCOPED_TRACE(c.name);
    Engine e = Holding({c.y, c.x});
    e.Dispatch(c.op);
    EXPECT_NEAR(e.X(), c.result, std::fabs(c.result) * 1e-12);
    EXPECT_EQ(e.XTag(), c.tag);
}

TEST(UnitRules, AddAndSubtract) {
    const ArithmeticCase cases[] = {
        {"one tagged keeps it",      fid::Add,      {5, 0},         {3, Feet},        8,    Feet},
        {"one tagged either side",   fid::Subtract, {5, Kg},        {3, 0},           2,    Kg},
        {"label is no unit",         fid::Add,      {5, 1410},      {3, Feet},        8,    Feet},
        {"categories differ",        fid::Add,      {5, Kg},        {3, Feet},        8,    0},
        {"both temperatures",        fid::Add,      {5, DegC},      {3, DegC},        8,    0},
        {"one temperature",          fid::Add,      {5, DegC},      {3, 0},           8,    DegC},
        {"same unit",                fid::Add,      {5, Feet},      {3, Feet},        8,    Feet},
        {"2 m + 50 cm",              fid::Add,      {2, Meters},    {50, Cm},         2.5,  Meters},
        {"1 ft + 12 in",             fid::Add,      {1, Feet},      {12, Inches},     2,    Feet},
        {"1 gal - 1 l",              fid::Subtract, {1, Gallons},   {1, Liters},      1 - 0.001 / 0.003785411784, Gallons},
        {"hours + minutes (chain)",  fid::Add,      {1, Hours},     {30, Minutes},    1.5,  Hours},
        {"days - hours",             fid::Subtract, {1, Days},      {12, Hours},      0.5,  Days},
        {"h.mmss + minutes",         fid::Add,      {1.3, Hms},     {30, Minutes},    2,    Hours},
        {"minutes + h.mmss",         fid::Add,      {30, Minutes},  {1.3, Hms},       120,  Minutes},
    };
    for (const ArithmeticCase& c : cases) CheckArithmetic(c);
}

TEST(UnitRules, Multiply) {
    const ArithmeticCase cases[] = {
        {"3 ft x 2 ft",              fid::Multiply, {3, Feet},      {2, Feet},        6,    SqFeet},
        {"1 m x 50 cm",              fid::Multiply, {1, Meters},    {50, Cm},         0.5,  SqMeters},
        {"5 ft x 3",                 fid::Multiply, {5, Feet},      {3, 0},           15,   Feet},
        {"nmi x nmi has no area",    fid::Multiply, {2, Nmi},       {3, Nmi},         6,    0},
        {"2 sq ft x 6 in",           fid::Multiply, {2, SqFeet},    {6, Inches},      1,    CubicFt},
        {"2 sq ft x 1 ft",           fid::Multiply, {2, SqFeet},    {1, Feet},        2,    CubicFt},
        {"sq miles x feet: none",    fid::Multiply, {2, SqMiles},   {3, Feet},        6,    0},
        // The length's factor alone divides the area: 1 sq meter counts as 1 / 0.3048 feet.
        {"2 ft x 1 sq m",            fid::Multiply, {2, Feet},      {1, SqMeters},    2 / 0.3048, CubicFt},
        {"2 ft x 3 sq ft",           fid::Multiply, {2, Feet},      {3, SqFeet},      6,    CubicFt},
        {"60 mi/h x 30 min",         fid::Multiply, {60, MiPerH},   {30, Minutes},    30,   Miles},
        {"60 mi/h x 2 h",            fid::Multiply, {60, MiPerH},   {2, Hours},       120,  Miles},
        {"2 h x 3 m/s",              fid::Multiply, {2, Hours},     {3, MPerS},       21600, Meters},
        {"h.mmss x speed",           fid::Multiply, {1.3, Hms},     {10, MiPerH},     15,   Miles},
        {"kg x kg",                  fid::Multiply, {2, Kg},        {3, Kg},          6,    0},
    };
    for (const ArithmeticCase& c : cases) CheckArithmetic(c);
}

TEST(UnitRules, Divide) {
    const ArithmeticCase cases[] = {
        {"100 mi / 50 mi/h",         fid::Divide,   {100, Miles},   {50, MiPerH},     2,    Hours},
        {"100 km / 50 mi/h",         fid::Divide,   {100, Km},      {50, MiPerH},     1.2427423844746681, Hours},
        {"1 m / 1 in/s",             fid::Divide,   {1, Meters},    {1, InPerS},      1 / 0.0254, 1810},
        {"10 sq ft / 2 ft",          fid::Divide,   {10, SqFeet},   {2, Feet},        5,    Feet},
        {"10 sq ft / 24 in",         fid::Divide,   {10, SqFeet},   {24, Inches},     5,    Feet},
        {"acres / ft: none",         fid::Divide,   {10, Acres},    {2, Feet},        5,    0},
        {"1 cubic ft / 12 in",       fid::Divide,   {1, CubicFt},   {12, Inches},     1,    SqFeet},
        {"liters / m: none",         fid::Divide,   {1, Liters},    {2, Meters},      0.5,  0},
        {"1 cubic m / 2 sq m",       fid::Divide,   {1, CubicM},    {2, SqMeters},    0.5,  Meters},
        {"1 cubic in / 1 sq ft",     fid::Divide,   {144, CubicIn}, {1, SqFeet},      1,    Inches},
        {"100 m / 10 s",             fid::Divide,   {100, Meters},  {10, Seconds},    10,   MPerS},
        {"100 m / 1 min",            fid::Divide,   {100, Meters},  {1, Minutes},     100.0 / 60, MPerS},
        {"10 km / 30 min",           fid::Divide,   {10, Km},       {30, Minutes},    20,   KmPerH},
        {"yards / time: none",       fid::Divide,   {10, Yards},    {2, Hours},       5,    0},
        {"6 / 2 ft",                 fid::Divide,   {6, 0},         {2, Feet},        3,    Feet},
        {"ft / ft",                  fid::Divide,   {6, Feet},      {2, Feet},        3,    0},
    };
    for (const ArithmeticCase& c : cases) CheckArithmetic(c);
}

TEST(DurationChain, EveryPathAndTheDeliberateFailure) {
    struct Case { std::string_view name; ValueTag from; ValueTag to; double v; double result; };
    const Case cases[] = {
        {"same unit",          Hms,     Hms,     1.3,   1.3},
        {"hours to minutes",   Hours,   Minutes, 1.5,   90},
        {"minutes to hours",   Minutes, Hours,   90,    1.5},
        {"minutes to days",    Minutes, Days,    720,   0.5},
        {"minutes to seconds", Minutes, Seconds, 2,     120},
        {"minutes to frames",  Minutes, Frames,  1,     1800},
        {"minutes to h.mmss",  Minutes, Hms,     90,    kErrorValue},
        {"seconds to h.mmss",  Seconds, Hms,     5415,  1.3015},
        {"seconds to minutes", Seconds, Minutes, 90,    1.5},
        {"seconds to frames",  Seconds, Frames,  2,     60},
        {"frames to seconds",  Frames,  Seconds, 45,    1.5},
        {"frames to minutes",  Frames,  Minutes, 1800,  1},
        {"frames to days",     Frames,  Days,    2592000, 1},
        {"frames to h.mmss",   Frames,  Hms,     162000, 1.3},
        {"h.mmss to minutes",  Hms,     Minutes, 1.3,   90},
        {"h.mmss to days",     Hms,     Days,    12,    0.5},
        {"days to hours",      Days,    Hours,   1.5,   36},
        {"days to h.mmss",     Days,    Hms,     0.0625, 1.3},
        {"days to minutes",    Days,    Minutes, 1,     1440},
        {"weeks to days",      Weeks,   Days,    2,     14},
        {"weeks to seconds",   Weeks,   Seconds, 1,     604800},
        {"years to months",    Years,   Months,  0.5,   6},
        {"months to weeks",    Months,  Weeks,   1,     30.4375 / 7},
        {"hours to years",     Hours,   Years,   8766,  1},
        {"to a non-duration",  Hours,   Meters,  1,     kErrorValue},
    };
    const DurationSettings defaults;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const double result = ConvertDuration(c.v, c.from, c.to, defaults);
        if (IsErrorValue(c.result)) {
            EXPECT_EQ(result, kErrorValue);
        } else {
            EXPECT_NEAR(result, c.result, c.result * 1e-13);
        }
    }
}

TEST(DurationChain, FollowsTheSettingsAndTheirDefaults) {
    Engine e = Holding({{1, Days}});
    e.registers.values[reg::HoursPerDay] = 8;
    e.Dispatch(kHoursKey);
    EXPECT_EQ(e.X(), 8.0);
    EXPECT_EQ(e.state.lastX, 0.0);  // the time keys do not save Last X

    // Clearing the statistics zeroes the register of days per year; durations then use 365.25.
    e = Holding({{1, Years}});
    e.Dispatch(fid::ClearStatistics);
    EXPECT_EQ(e.registers.values[reg::DaysPerYear], 0.0);
    e.Dispatch(kDaysKey);
    EXPECT_EQ(e.X(), 365.25);

    e = Holding({{1, Seconds}});
    e.registers.values[reg::FramesPerSecond] = NAN;
    e.Dispatch(fid::Frames);
    EXPECT_EQ(e.X(), 30.0);
}

TEST(TimeKeys, ConvertDurationsAndOnlyLabelOtherValues) {
    struct Case { std::string_view name; TaggedValue x; FunctionId key; double result; };
    const Case cases[] = {
        {"90 min to hours",      {90, Minutes},    kHoursKey,   1.5},
        {"h.mmss to minutes",    {1.3, Hms},       kMinutesKey, 90},
        {"plain: labelled",      {90, 0},          kHoursKey,   90},
        {"meters: re-labelled",  {90, Meters},     kHoursKey,   90},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({c.x});
        e.Dispatch(c.key);
        EXPECT_DOUBLE_EQ(e.X(), c.result);
        EXPECT_EQ(e.XTag(), Years + (c.key - fid::Years));
    }
}

TEST(TimeKeys, ExtractTheFieldsOfDates) {
    // 2024-02-29 13:45:10
    const double moment = 3792059110;
    const double err = kErrorValue;
    struct Case { ValueTag kind; double value; double fields[8]; };  // years .. frames
    const Case cases[] = {
        {Date,     3792009600, {2024, 2, err, 29, err, err, err, err}},
        {Time,     49510,      {err, err, err, err, 13, 45, 10, err}},
        {DateTime, moment,     {2024, 2, err, 29, 13, 45, 10, err}},
    };
    for (const Case& c : cases) {
        for (int k = 0; k < 8; ++k) {
            SCOPED_TRACE(testing::Message() << "kind " << c.kind << " key " << fid::Years + k);
            Engine e = Holding({{c.value, c.kind}});
            e.Dispatch(fid::Years + k);
            EXPECT_EQ(e.X(), c.fields[k]);
            EXPECT_EQ(e.XTag(), 0);
            EXPECT_EQ(e.state.lastX, c.value);
        }
    }
}

}  // namespace
}  // namespace brinto
