#include "ops/date_time.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "engine/numeric/date_fields.h"
#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;
using enum ValueTag;

double DateOf(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return ComposeDate(DateFields{year, month, day, hour, minute, second, 0});
}

constexpr FunctionId kDpy = fid::DaysPerYear, kHpd = fid::HoursPerDay;
constexpr double kDay = 86400, kErr = kErrorValue;

TEST(DateAndTimeKeys, ReadDatesTimesAndHmsAndStepDurationsDown) {
    const FunctionId D = fid::Date, T = fid::Time, ToHms = fid::ToHms, ToHours = fid::ToHours,
                     ToFrames = fid::HmsToFrames, F = fid::FractionToNextUnit;
    // A year before the calendar's first is taken as 1904 with its month and day kept.
    CheckKeys({
        {D, {5.0315, None}, {DateOf(2005, 3, 15), Date}},    {D, {99.1231, None}, {DateOf(1999, 12, 31), Date}},
        {D, {31.0101, None}, {DateOf(2031, 1, 1), Date}},    {D, {32.0101, None}, {DateOf(1932, 1, 1), Date}},
        {D, {0.0101, None}, {DateOf(2000, 1, 1), Date}},     {D, {1903.1231, None}, {DateOf(1904, 12, 31), Date}},
        {D, {1904.0101, None}, {0, Date}},                   {D, {2000.0229, None}, {DateOf(2000, 2, 29), Date}},
        {D, {2001.0229, None}, {DateOf(2001, 3, 1), Date}},  {D, {2005.0000, None}, {DateOf(2005, 1, 1), Date}},
        {D, {2004.1301, None}, {DateOf(2005, 1, 1), Date}},  {D, {2031.1231, None}, {DateOf(2031, 12, 31), Date}},
        {D, {2031.1232, None}, {kErr, None}},  {D, {2032.0101, None}, {kErr, None}},  {D, {kErr, None}, {kErr, None}},
        {T, {13.3015, None}, {48615, Time}}, {T, {0.0001, None}, {1, Time}}, {T, {25, None}, {90000, Time}},
        {T, {23.5959, None}, {86399, Time}},
        // h.mmss both ways, and the fraction of a duration stepped down one unit.
        {ToHms, {90, Minutes}, {1.3, Hms}},   {ToHms, {1, Days}, {24, Hms}},        {ToHms, {2.75, None}, {2.45, Hms}},
        {ToHours, {1.3, Hms}, {1.5, Hours}},  {ToHours, {-1.3, None}, {-1.5, Hours}},  {ToFrames, {0.0001, None}, {30, Frames}},
        {ToFrames, {1.3, Hms}, {162000, Frames}},
        {F, {1.5, Months}, {15.21875, Days}}, {F, {1.5, Weeks}, {3.5, Days}},     {F, {1.25, Days}, {6, Hours}},
        {F, {2.5, Hours}, {30, Minutes}},     {F, {3.25, Minutes}, {15, Seconds}}, {F, {0.5, Seconds}, {15, Frames}},
        {F, {2.5, Frames}, {0.5, Frames}},    {F, {1.3, Hms}, {0.3, Hms}},         {F, {-2.5, Hours}, {-30, Minutes}},
        {F, {2.5, None}, {kErr, None}},             {F, {2.5, Date}, {kErr, None}},
    });
    EXPECT_EQ(After({{1.3, Hms}}, ToHours).state.lastX, 1.3);
    EXPECT_EQ(After({{2.5, Hours}}, F).state.lastX, 2.5);
}

TEST(DateAndTimeKeys, ReduceDateKindsAndLeaveTheirOwnKindAlone) {
    const double moment = DateOf(2024, 2, 29, 13, 45, 10), day = DateOf(2024, 2, 29);
    struct Case { FunctionId key; TaggedValue x, result; bool savesLastX; };
    const Case cases[] = {
        {fid::Date, {moment, DateTime}, {day, Date}, false},     {fid::Date, {12345, Date}, {12345, Date}, false},
        {fid::Time, {moment, DateTime}, {49510, Time}, false},   {fid::Time, {2.5, Time}, {2.5, Time}, false},
        {fid::DatePart, {moment, DateTime}, {day, Date}, true},  {fid::DatePart, {49510, Time}, {0, Date}, true},
        {fid::TimePart, {moment, DateTime}, {49510, Time}, true}, {fid::DatePart, {moment, None}, {kErr, None}, false},
        {fid::TimePart, {3, Hours}, {kErr, None}, false},           {fid::TimePart, {-1, DateTime}, {kErr, None}, true},
        {fid::DatePart, {4039372800.0, DateTime}, {kErr, None}, true},
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
    // A clock beyond the date range, and a broken one.
    for (const DateFields now : {DateFields{2032, 1, 1, 0, 0, 0, 4}, DateFields{2024, 99, -5, 77, 0, 0, 4}}) {
        platform.now = now;
        EXPECT_EQ((e.Dispatch(fid::Now), e.X()), kErr);
    }
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

TEST(DateArithmetic, AddAndSubtractForEveryPairOfKinds) {
    const double d = DateOf(2005, 3, 15), t = 49510, dt = DateOf(2005, 3, 15, 13, 45, 10);
    const ArithmeticCase sums[] = {
        {{d, Date}, {1, None}, {d + kDay, Date}},                  {{1, None}, {d, Date}, {d + kDay, Date}},
        {{DateOf(2001, 2, 28), Date}, {1, None}, {DateOf(2001, 3, 1), Date}},
        {{d, Date}, {36, Hours}, {d + 1.5 * kDay, Date}},       {{d, Date}, {1, Years}, {d + 365.25 * kDay, Date}},
        {{d, Date}, {1, Meters}, {d + kDay, Date}},             {{t, Time}, {1.5, None}, {t + 5400, Time}},
        {{t, Time}, {1.3, Hms}, {t + 5400, Time}},              {{t, Time}, {30, Frames}, {t + 1, Time}},
        {{t, Time}, {24, None}, {t + kDay, Time}},                 {{dt, DateTime}, {1, None}, {dt + kDay, DateTime}},
        {{d, Date}, {t, Time}, {dt, DateTime}},                 {{t, Time}, {d, Date}, {dt, DateTime}},
        {{d, Date}, {d, Date}, {kErr, None}},                      {{dt, DateTime}, {t, Time}, {kErr, None}},
        {{kMaxDateValue, DateTime}, {1, Seconds}, {kErr, None}},   {{0, Date}, {-1, None}, {kErr, None}},
        {{d, Date}, {NAN, None}, {kErr, None}},
    };
    const ArithmeticCase differences[] = {
        {{DateOf(2005, 1, 1), Date}, {d, Date}, {-73, Days}},   {{dt, DateTime}, {d, Date}, {49510 / kDay, Days}},
        {{DateOf(2004, 3, 1), Date}, {DateOf(2004, 2, 28), Date}, {2, Days}},
        {{t, Time}, {t - 5400, Time}, {1.5, Hours}},          {{dt, DateTime}, {dt - kDay, DateTime}, {24, Hours}},
        {{d, Date}, {dt, DateTime}, {kErr, None}},                 {{d, Date}, {t, Time}, {kErr, None}},
        {{d, Date}, {1, None}, {d - kDay, Date}},                  {{d, Date}, {0.5, None}, {d - kDay, Date}},
        {{d, Date}, {12, Hours}, {d - kDay, Date}},             {{t, Time}, {1, None}, {t - 3600, Time}},
        {{dt, DateTime}, {1, None}, {dt - kDay, DateTime}},        {{0, Date}, {1, None}, {kErr, None}},
        {{t, Time}, {14, Hours}, {kErr, None}},                    {{DateOf(2031, 12, 31), Date}, {-1, None}, {kErr, None}},
        {{5, None}, {d, Date}, {kErr, None}},                         {{5, Hours}, {t, Time}, {kErr, None}},
    };
    for (const ArithmeticCase& c : sums) CheckArithmetic({fid::Add, fid::IntegerAdd}, c);
    for (const ArithmeticCase& c : differences) CheckArithmetic({fid::Subtract, fid::IntegerSubtract}, c);
    // A date is neither multiplied nor divided.
    for (const ArithmeticCase& c : {ArithmeticCase{{100, Date}, {2, None}, {kErr, None}}, {{2, None}, {100, Time}, {kErr}}}) {
        CheckArithmetic({fid::Multiply, fid::Divide, fid::IntegerMultiply, fid::IntegerDivide}, c);
    }
}

// Typed, the settings keys store; otherwise they recall. The time keys convert through them
// (a setting that is no number reads as its default) and do not save Last X.
TEST(DurationSettings, StoreWhileTypingRecallOtherwiseAndConvertDurations) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {3, 6, 0, kDpy});
    EXPECT_TRUE(e.dirty.registers);
    Press(e, {8, kHpd});  // storing disabled the lift: 8 replaced X, and is stored as hours per day
    EXPECT_EQ(e.Y(), 0.0);
    EXPECT_EQ(e.registers.values[reg::HoursPerDay], 8.0);
    Press(e, {1, fid::Years, fid::Days});
    EXPECT_EQ(e.X(), 360.0);
    e.Dispatch(fid::Hours);
    EXPECT_EQ(std::pair(e.X(), e.state.lastX), std::pair(2880.0, 0.0));
    e.registers.values[reg::FramesPerSecond] = NAN;
    Press(e, {1, fid::Seconds, fid::Frames});
    EXPECT_EQ(e.X(), 30.0);

    e = After({{5, None}}, kDpy);  // nothing typed: recalled, lifting the 5
    EXPECT_EQ(XOf(e), Tagged(365.25, fid::TagDpy));
    EXPECT_EQ(e.Y(), 5.0);
}

}  // namespace
}  // namespace brinto
