#include "ops/date_time.h"

#include <gtest/gtest.h>

#include <cmath>

#include "ops/date_fields.h"
#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;
using namespace test::unit;

double DateOf(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return ComposeDate(DateFields{year, month, day, hour, minute, second, 0});
}

constexpr FunctionId kDpy = 198, kHpd = 201;
constexpr double kDay = 86400, kErr = kErrorValue;

TEST(DateEntry, ReadsYearMonthDayWithItsYearRules) {
    const std::pair<double, double> cases[] = {
        {5.0315, DateOf(2005, 3, 15)},    {99.1231, DateOf(1999, 12, 31)},  {31.0101, DateOf(2031, 1, 1)},
        {32.0101, DateOf(1932, 1, 1)},    {0.0101, DateOf(2000, 1, 1)},     {1800.0101, DateOf(1904, 1, 1)},
        {1904.0101, 0},                   {2000.0229, DateOf(2000, 2, 29)}, {2001.0229, DateOf(2001, 3, 1)},
        {2005.0000, DateOf(2005, 1, 1)},  {2004.1301, DateOf(2005, 1, 1)},  {2031.1231, DateOf(2031, 12, 31)},
        {2031.1232, kErr},                {2032.0101, kErr},                {kErr, kErr},
    };
    for (const auto& [typed, date] : cases) {
        SCOPED_TRACE(typed);
        EXPECT_EQ(XOf(After({{typed, 0}}, fid::Date)), Tagged(date, date == kErr ? 0 : Date));
    }
}

TEST(TimeEntry, ReadsHoursMinutesSeconds) {
    const std::pair<double, double> cases[] = {{13.3015, 48615}, {0.0001, 1}, {25, 90000}, {23.5959, 86399}};
    for (const auto& [typed, seconds] : cases) {
        SCOPED_TRACE(typed);
        EXPECT_EQ(XOf(After({{typed, 0}}, fid::Time)), Tagged(seconds, Time));
    }
    EXPECT_EQ(XText(After({{13.3015, 0}}, fid::Time)), "13:30");
}

TEST(DateAndTimeKeys, ReduceDateKindsAndLeaveTheirOwnKindAlone) {
    const double moment = DateOf(2024, 2, 29, 13, 45, 10), day = DateOf(2024, 2, 29);
    struct Case { FunctionId key; TaggedValue x, result; bool savesLastX; };
    const Case cases[] = {
        {fid::Date, {moment, DateTime}, {day, Date}, false},     {fid::Date, {12345, Date}, {12345, Date}, false},
        {fid::Time, {moment, DateTime}, {49510, Time}, false},   {fid::Time, {2.5, Time}, {2.5, Time}, false},
        {fid::DatePart, {moment, DateTime}, {day, Date}, true},  {fid::DatePart, {49510, Time}, {0, Date}, true},
        {fid::TimePart, {moment, DateTime}, {49510, Time}, true}, {fid::DatePart, {moment, 0}, {kErr, 0}, false},
        {fid::TimePart, {3, Hours}, {kErr, 0}, false},           {fid::TimePart, {-1, DateTime}, {kErr, 0}, true},
        {fid::DatePart, {4039372800.0, DateTime}, {kErr, 0}, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "key " << c.key << " " << c.x.value << " tag " << c.x.tag);
        Engine e = Holding({c.x});
        e.state.lastX = 7;
        e.Dispatch(c.key);
        EXPECT_EQ(XOf(e), Of(c.result));
        EXPECT_EQ(e.state.lastX, c.savesLastX ? c.x.value : 7.0);
    }
}

TEST(Now, ReadsTheInjectedClockAndLiftsOnlyWhenLiftIsEnabled) {
    FixedPlatform platform;
    platform.now = {2024, 2, 29, 13, 45, 10, 4};
    Engine e = MakeEngine(InputMethod::Rpn);
    e.SetPlatform(&platform);
    Press(e, {7, fid::Enter, fid::Now});  // Enter disabled the lift: the copy of 7 is replaced
    EXPECT_EQ(XOf(e), Tagged(DateOf(2024, 2, 29, 13, 45, 10), DateTime));
    EXPECT_EQ(e.Y(), 7.0);
    e.Dispatch(fid::Now);
    EXPECT_EQ(e.Y(), e.X());
    platform.now = {2032, 1, 1, 0, 0, 0, 4};  // a clock beyond the date range
    e.Dispatch(fid::Now);
    EXPECT_EQ(e.X(), kErr);
    platform.now = {2024, 99, -5, 77, 0, 0, 4};  // a broken clock
    e.Dispatch(fid::Now);
    EXPECT_EQ(e.X(), kErr);
}

struct ArithmeticCase { TaggedValue y, x, result; };

void CheckArithmetic(std::initializer_list<FunctionId> ops, const ArithmeticCase& c) {
    for (const FunctionId op : ops) {
        SCOPED_TRACE(testing::Message() << "op " << op << ": " << c.y.value << " tag " << c.y.tag << ", "
                                        << c.x.value << " tag " << c.x.tag);
        const Engine e = After({c.y, c.x}, op);
        EXPECT_DOUBLE_EQ(e.X(), c.result.value);
        EXPECT_EQ(e.XTag(), c.result.tag);
    }
}

TEST(DateArithmetic, AddForEveryPairOfKinds) {
    const double d = DateOf(2005, 3, 15), t = 49510, dt = DateOf(2005, 3, 15, 13, 45, 10);
    const ArithmeticCase cases[] = {
        {{d, Date}, {1, 0}, {d + kDay, Date}},                  {{1, 0}, {d, Date}, {d + kDay, Date}},
        {{DateOf(2001, 2, 28), Date}, {1, 0}, {DateOf(2001, 3, 1), Date}},
        {{d, Date}, {36, Hours}, {d + 1.5 * kDay, Date}},       {{d, Date}, {1, Years}, {d + 365.25 * kDay, Date}},
        {{d, Date}, {1, Meters}, {d + kDay, Date}},             {{t, Time}, {1.5, 0}, {t + 5400, Time}},
        {{t, Time}, {1.3, Hms}, {t + 5400, Time}},              {{t, Time}, {30, Frames}, {t + 1, Time}},
        {{t, Time}, {24, 0}, {t + kDay, Time}},                 {{dt, DateTime}, {1, 0}, {dt + kDay, DateTime}},
        {{d, Date}, {t, Time}, {dt, DateTime}},                 {{t, Time}, {d, Date}, {dt, DateTime}},
        {{d, Date}, {d, Date}, {kErr, 0}},                      {{dt, DateTime}, {t, Time}, {kErr, 0}},
        {{kMaxDateValue, DateTime}, {1, Seconds}, {kErr, 0}},   {{0, Date}, {-1, 0}, {kErr, 0}},
        {{d, Date}, {NAN, 0}, {kErr, 0}},
    };
    for (const ArithmeticCase& c : cases) CheckArithmetic({fid::Add, fid::IntegerAdd}, c);
}

TEST(DateArithmetic, SubtractForEveryPairOfKinds) {
    const double d = DateOf(2005, 3, 15), t = 49510, dt = DateOf(2005, 3, 15, 13, 45, 10);
    const ArithmeticCase cases[] = {
        {{DateOf(2005, 1, 1), Date}, {d, Date}, {-73, Days}},   {{dt, DateTime}, {d, Date}, {49510 / kDay, Days}},
        {{DateOf(2004, 3, 1), Date}, {DateOf(2004, 2, 28), Date}, {2, Days}},
        {{t, Time}, {t - 5400, Time}, {1.5, Hours}},          {{dt, DateTime}, {dt - kDay, DateTime}, {24, Hours}},
        {{d, Date}, {dt, DateTime}, {kErr, 0}},                 {{d, Date}, {t, Time}, {kErr, 0}},
        {{d, Date}, {1, 0}, {d - kDay, Date}},                  {{d, Date}, {0.5, 0}, {d - kDay, Date}},
        {{d, Date}, {12, Hours}, {d - kDay, Date}},             {{t, Time}, {1, 0}, {t - 3600, Time}},
        {{dt, DateTime}, {1, 0}, {dt - kDay, DateTime}},        {{0, Date}, {1, 0}, {kErr, 0}},
        {{t, Time}, {14, Hours}, {kErr, 0}},                    {{DateOf(2031, 12, 31), Date}, {-1, 0}, {kErr, 0}},
        {{5, 0}, {d, Date}, {kErr, 0}},                         {{5, Hours}, {t, Time}, {kErr, 0}},
    };
    for (const ArithmeticCase& c : cases) CheckArithmetic({fid::Subtract, fid::IntegerSubtract}, c);
    // A date is neither multiplied nor divided.
    for (const ArithmeticCase& c : {ArithmeticCase{{100, Date}, {2, 0}, {kErr, 0}}, {{2, 0}, {100, Time}, {kErr}}}) {
        CheckArithmetic({fid::Multiply, fid::Divide, fid::IntegerMultiply, fid::IntegerDivide}, c);
    }
}

TEST(Hms, ConversionsBothWays) {
    struct Case { FunctionId key; TaggedValue x; const char* text; ValueTag tag; };
    const Case cases[] = {
        {fid::ToHms, {90, Minutes}, "1.3", Hms},        {fid::ToHms, {1, Days}, "24.", Hms},
        {fid::ToHms, {2.75, 0}, "2.45", Hms},           {fid::ToHours, {1.3, Hms}, "1.5", Hours},
        {fid::ToHours, {-1.3, 0}, "-1.5", Hours},       {fid::HmsToFrames, {0.0001, 0}, "30.", Frames},
        {fid::HmsToFrames, {1.3, Hms}, "162,000.", Frames},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "key " << c.key << " " << c.x.value << " tag " << c.x.tag);
        const Engine e = After({c.x}, c.key);
        EXPECT_EQ(XText(e), c.text);
        EXPECT_EQ(e.XTag(), c.tag);
        EXPECT_EQ(e.state.lastX, c.x.value);
    }
}

TEST(FractionToNextUnit, StepsDownOneUnit) {
    const std::pair<TaggedValue, TaggedValue> cases[] = {
        {{1.5, Months}, {15.21875, Days}}, {{1.5, Weeks}, {3.5, Days}},      {{1.25, Days}, {6, Hours}},
        {{2.5, Hours}, {30, Minutes}},     {{3.25, Minutes}, {15, Seconds}}, {{0.5, Seconds}, {15, Frames}},
        {{2.5, Frames}, {0.5, Frames}},    {{1.3, Hms}, {0.3, Hms}},         {{-2.5, Hours}, {-30, Minutes}},
        {{2.5, 0}, {kErr, 0}},             {{2.5, Date}, {kErr, 0}},
    };
    for (const auto& [x, result] : cases) {
        SCOPED_TRACE(testing::Message() << x.value << " tag " << x.tag);
        const Engine e = After({x}, fid::FractionToNextUnit);
        EXPECT_DOUBLE_EQ(e.X(), result.value);
        EXPECT_EQ(e.XTag(), result.tag);
        EXPECT_EQ(e.state.lastX, x.value);
    }
}

TEST(DurationSettings, StoreWhileTypingRecallOtherwise) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {3, 6, 0, kDpy});
    EXPECT_TRUE(e.dirty.registers);
    Press(e, {2, kHpd});  // storing disabled the lift: 2 replaced X, and is stored as hours per day
    EXPECT_EQ(e.Y(), 0.0);
    EXPECT_EQ(e.registers.values[reg::HoursPerDay], 2.0);
    Press(e, {1, fid::Years, 192});  // 192: the days key, which uses the stored days per year
    EXPECT_EQ(e.X(), 360.0);

    e = After({{5, 0}}, kDpy);  // nothing typed: recalled, lifting the 5
    EXPECT_EQ(XOf(e), Tagged(365.25, fid::TagDpy));
    EXPECT_EQ(e.Y(), 5.0);
}

TEST(DateFunctions, PureFunctionsHoldForEveryDouble) {
    const auto inRange = [](double v) { return IsErrorValue(v) || IsDateInRange(v); };
    for (const double v : {std::nan(""), kErr, -kErr, -0.0, 4.9e-324, 1e300, -1e300, 4039372800.0}) {
        SCOPED_TRACE(v);
        EXPECT_TRUE(inRange(DatePartOf(v)));
        EXPECT_TRUE(inRange(DateFromEntry(v)));
        EXPECT_TRUE(inRange(DateSum({v, Date}, {v, 0}).value));
        EXPECT_TRUE(inRange(DateDifference({v, DateTime}, {v, Years}).value));
    }
}

}  // namespace
}  // namespace brinto
