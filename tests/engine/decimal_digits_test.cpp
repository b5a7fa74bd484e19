#include "engine/numeric/decimal_digits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string_view>


namespace brinto {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(RoundDigits, RoundsHalfUpOnTheDigitString) {
    struct Case { const char* digits; int decpt, n; std::string_view result; int resultDecpt; u32 roundedUp; };
    const Case cases[] = {
        {"1200", 4, 5, "1200", 4, 0},  // zeros kept when nothing is cut
        {"12345", 5, 3, "123", 5, 0},  {"1235", 2, 3, "124", 2, 1},    {"125", 0, 2, "13", 0, 1},
        {"9996", 1, 3, "1", 2, 1},     {"12001", 3, 4, "12", 3, 0},    {"1995", 1, 3, "2", 1, 1},
        {"5", -3, 0, "1", -2, 1},      {"4", -3, 0, "0", -3, 0},       {"7", -3, -2, "1", -2, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.digits << " to " << c.n);
        char digits[32];
        std::strcpy(digits, c.digits);
        int decpt = c.decpt;
        EXPECT_EQ(RoundDigits(digits, decpt, c.n), c.roundedUp);
        EXPECT_EQ(std::pair(std::string_view(digits), decpt), std::pair(c.result, c.resultDecpt));
    }
}

TEST(RoundTo14AndToPlaces, RoundTheShortestDecimalAsTheDisplayShowsIt) {
    // The double nearest 1.00000000000005 lies just below it: rounding the binary value would
    // give 1.0; rounding its shortest decimal gives ...01.
    const std::pair<double, double> cases[] = {
        {1.00000000000005, 1.0000000000001}, {0.1 + 0.2, 0.3},            {0.1 - 0.3, -0.2},
        {1.2345678901234567e300, 1.2345678901235e300},                   {9.99999999999999e-200, 1e-199},
        {2.0 / 3.0, 0.66666666666667},       {123.45, 123.45},            {kInfinity, kInfinity},
    };
    for (const auto& [value, rounded] : cases) EXPECT_EQ(RoundTo14(value), rounded) << value;
    EXPECT_TRUE(std::isnan(RoundTo14(std::nan(""))));
    EXPECT_TRUE(std::signbit(RoundTo14(-0.0)));
    const struct { double value; int places; double rounded; } toPlaces[] = {
        {0.125, 2, 0.13}, {1.005, 2, 1.01}, {-1.005, 2, -1.01},  // the double lies below 1.005; its digits do not
        {0.0049, 2, 0.0}, {0.005, 2, 0.01}, {999.995, 2, 1000},  {0.5, 0, 1.0}, {1e20, 2, 1e20}, {45.5, -1, 45.5},
        {2689.2104999999998, 3, 2689.211},  // 12 digits first: 2689.21050000, a tie
        {1234567890.12345, 3, 1234567890.12}};  // no more than 12 digits survive
    for (const auto& c : toPlaces) {
        EXPECT_EQ(RoundToPlaces(c.value, c.places), c.rounded) << c.value;
        EXPECT_EQ(RoundToPlacesByDigits(c.value, c.places), c.rounded) << c.value;
    }
}

}  // namespace
}  // namespace brinto
