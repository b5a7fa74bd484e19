#include "ops/date_fields.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <tuple>

namespace brinto {
namespace {

namespace chr = std::chrono;

TEST(SplitDate, AgreesWithTheCivilCalendarOnEveryDayOfTheRange) {
    // Within 1904..2031 the four-year rule and the civil calendar agree (2000 is a leap year in
    // both), so any slip in the table shows up as a disagreement here.
    const chr::sys_days epoch = chr::year{1904} / chr::January / 1;
    const auto number = [](auto field) { return static_cast<int>(static_cast<unsigned>(field)); };
    for (u32 day = 0; day <= kMaxDateValue / kSecondsPerDay; ++day) {
        const chr::sys_days date = epoch + chr::days{day};
        const chr::year_month_day civil{date};
        const double value = static_cast<double>(day) * kSecondsPerDay + 3725;
        const DateFields f = SplitDate(value);
        ASSERT_EQ(std::tuple(f.year, f.month, f.day, f.dayOfWeek, f.hour * 3600 + f.minute * 60 + f.second),
                  std::tuple(static_cast<int>(civil.year()), number(civil.month()), number(civil.day()),
                             number(chr::weekday{date}.c_encoding()), 3725))
            << "day " << day;
        ASSERT_EQ(ComposeDate(f), value) << "day " << day;
    }
    const DateFields last = SplitDate(kMaxDateValue);
    EXPECT_EQ(std::tuple(last.hour, last.minute, last.second), std::tuple(23, 59, 59));
}

TEST(DateSeconds, HoldsAnyDoubleWithinTheRange) {
    const double inf = std::numeric_limits<double>::infinity();
    const std::pair<double, u32> cases[] = {
        {12.7, 12}, {-5, 0}, {NAN, 0}, {1e10, kMaxDateValue}, {4294967296.0 + 7, kMaxDateValue},
        {inf, kMaxDateValue}, {kMaxDateValue + 0.5, kMaxDateValue},
    };
    for (const auto& [value, seconds] : cases) EXPECT_EQ(DateSeconds(value), seconds) << value;
}

TEST(ComposeDate, RollsOverflowingFieldsForwardAndLeavesTheRangeHonestly) {
    auto date = [](int y, int m, int d) { return ComposeDate(DateFields{y, m, d, 0, 0, 0, 0}); };
    const std::pair<double, double> cases[] = {
        {date(2005, 13, 1), date(2006, 1, 1)}, {date(2007, 13, 1), date(2008, 1, 1)},
        {date(2005, 25, 1), date(2007, 1, 1)}, {date(2005, 1, 32), date(2005, 2, 1)},
        {date(2004, 2, 30), date(2004, 3, 1)}, {date(2005, 0, 1), date(2004, 12, 1)},
    };
    for (const auto& [composed, expected] : cases) EXPECT_EQ(composed, expected);
    EXPECT_EQ(date(1904, 1, 1), 0);
    EXPECT_LT(date(1903, 12, 31), 0);
    EXPECT_GT(date(2032, 1, 1), kMaxDateValue);
    EXPECT_EQ(ComposeDate(DateFields{2031, 12, 31, 23, 59, 59, 0}), kMaxDateValue);
}

}  // namespace
}  // namespace brinto
