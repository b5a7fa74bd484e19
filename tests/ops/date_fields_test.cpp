#include "ops/date_fields.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <string_view>

namespace brinto {
namespace {

namespace chr = std::chrono;

TEST(SplitDate, AgreesWithTheCivilCalendarOnEveryDayOfTheRange) {
    // Within 1904..2031 the four-year rule and the civil calendar agree (2000 is a leap year in
    // both), so any slip in the table shows up as a disagreement here.
    const chr::sys_days epoch = chr::year{1904} / chr::January / 1;
    const u32 lastDay = kMaxDateValue / kSecondsPerDay;
    for (u32 day = 0; day <= lastDay; ++day) {
        const chr::sys_days date = epoch + chr::days{day};
        const chr::year_month_day civil{date};
        const DateFields f = SplitDate(static_cast<double>(day) * kSecondsPerDay + 3725);
        ASSERT_EQ(f.year, static_cast<int>(civil.year())) << "day " << day;
        ASSERT_EQ(f.month, static_cast<int>(static_cast<unsigned>(civil.month()))) << "day " << day;
        ASSERT_EQ(f.day, static_cast<int>(static_cast<unsigned>(civil.day()))) << "day " << day;
        ASSERT_EQ(f.dayOfWeek, static_cast<int>(chr::weekday{date}.c_encoding())) << "day " << day;
        ASSERT_EQ(f.hour * 3600 + f.minute * 60 + f.second, 3725) << "day " << day;
        ASSERT_EQ(ComposeDate(f), static_cast<double>(day) * kSecondsPerDay + 3725) << "day " << day;
    }
}

TEST(SplitDate, EndsOfTheRange) {
    const DateFields first = SplitDate(0);
    EXPECT_EQ(first.year, 1904);
    EXPECT_EQ(first.dayOfWeek, 5);  // a Friday
    const DateFields last = SplitDate(kMaxDateValue);
    EXPECT_EQ(last.year, 2031);
    EXPECT_EQ(last.month, 12);
    EXPECT_EQ(last.day, 31);
    EXPECT_EQ(last.hour, 23);
    EXPECT_EQ(last.minute, 59);
    EXPECT_EQ(last.second, 59);
}

TEST(DateSeconds, HoldsAnyDoubleWithinTheRange) {
    const double inf = std::numeric_limits<double>::infinity();
    struct Case { std::string_view name; double value; u32 seconds; };
    const Case cases[] = {
        {"fraction",  12.7,                 12},
        {"negative",  -5,                   0},
        {"nan",       std::nan(""),         0},
        {"tooLarge",  1e10,                 kMaxDateValue},
        {"wouldWrap", 4294967296.0 + 7,     kMaxDateValue},
        {"infinity",  inf,                  kMaxDateValue},
        {"last",      kMaxDateValue + 0.5,  kMaxDateValue},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(DateSeconds(c.value), c.seconds);
    }
}

TEST(ComposeDate, RollsOverflowingFieldsForwardAndLeavesTheRangeHonestly) {
    auto date = [](int y, int m, int d) { return ComposeDate(DateFields{y, m, d, 0, 0, 0, 0}); };
    struct Case { std::string_view name; double composed; double expected; };
    const Case cases[] = {
        {"month13",            date(2005, 13, 1),  date(2006, 1, 1)},
        {"month13LastOfCycle", date(2007, 13, 1),  date(2008, 1, 1)},
        {"month25",            date(2005, 25, 1),  date(2007, 1, 1)},
        {"day32",              date(2005, 1, 32),  date(2005, 2, 1)},
        {"feb30Leap",          date(2004, 2, 30),  date(2004, 3, 1)},
        {"monthZero",          date(2005, 0, 1),   date(2004, 12, 1)},
        {"2000Feb29",          date(2000, 2, 29),  date(2000, 2, 28) + kSecondsPerDay},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.composed, c.expected);
    }
    EXPECT_EQ(date(1904, 1, 1), 0);
    EXPECT_LT(date(1903, 12, 31), 0);
    EXPECT_GT(date(2032, 1, 1), kMaxDateValue);
    EXPECT_EQ(ComposeDate(DateFields{2031, 12, 31, 23, 59, 59, 0}), kMaxDateValue);
}

}  // namespace
}  // namespace brinto
