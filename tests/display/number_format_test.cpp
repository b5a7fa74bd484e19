#include "display/number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>


namespace brinto {
namespace {

constexpr auto kStandard = NumberFormat::Standard;
constexpr auto kFixed = NumberFormat::Fixed;
constexpr auto kScientific = NumberFormat::Scientific;
constexpr auto kEngineering = NumberFormat::Engineering;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string Decimal(double value, NumberFormat format = kStandard, int digitField = 0) {
    FormattedText out;
    EXPECT_EQ(FormatDecimal(value, format, digitField, out), 0u);
    return std::string(out.View());
}

TEST(RoundDigits, RoundsHalfUpOnTheDigitString) {
    struct Case {
        std::string_view name; const char* digits; int decpt; int n;
        std::string_view result; int resultDecpt; u32 roundedUp;
    };
    const Case cases[] = {
        {"shortEnoughUnchanged", "1200",  4, 5, "1200", 4, 0},  // zeros kept when nothing is cut
        {"cutDown",              "12345", 5, 3, "123",  5, 0},
        {"cutUp",                "1235",  2, 3, "124",  2, 1},
        {"halfGoesUp",           "125",   0, 2, "13",   0, 1},
        {"carryIntoNewDigit",    "9996",  1, 3, "1",    2, 1},
        {"zerosStrippedAfterCut", "12001", 3, 4, "12",  3, 0},
        {"carryLeavesZeros",     "1995",  1, 3, "2",    1, 1},
        {"zeroDigitsUp",         "5",     -3, 0, "1",   -2, 1},
        {"zeroDigitsDown",       "4",     -3, 0, "0",   -3, 0},
        {"negativeCountsAsZero", "7",     -3, -2, "1",  -2, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        char digits[32];
        std::strcpy(digits, c.digits);
        int decpt = c.decpt;
        EXPECT_EQ(RoundDigits(digits, decpt, c.n), c.roundedUp);
        EXPECT_EQ(std::string_view(digits), c.result);
        EXPECT_EQ(decpt, c.resultDecpt);
    }
}

TEST(RoundTo14, RoundsTheShortestDecimalNotTheBinaryValue) {
    // The double nearest 1.00000000000005 lies just below it: rounding the binary value would
    // give 1.0; rounding its shortest decimal gives ...01.
    EXPECT_EQ(RoundTo14(1.00000000000005), 1.0000000000001);
    EXPECT_EQ(RoundTo14(0.3 - 0.1), 0.2);
    EXPECT_EQ(RoundTo14(0.1 + 0.2), 0.3);
    EXPECT_EQ(RoundTo14(0.1 - 0.3), -0.2);
    EXPECT_EQ(RoundTo14(1.2345678901234567e300), 1.2345678901235e300);
    EXPECT_EQ(RoundTo14(9.99999999999999e-200), 1e-199);
    EXPECT_EQ(RoundTo14(2.0 / 3.0), 0.66666666666667);
    EXPECT_EQ(RoundTo14(123.45), 123.45);
    EXPECT_EQ(RoundTo14(kInfinity), kInfinity);
    EXPECT_TRUE(std::isnan(RoundTo14(std::nan(""))));
    EXPECT_TRUE(std::signbit(RoundTo14(-0.0)));
}

TEST(FormatDecimal, Standard) {
    struct Case { std::string_view name; double value; int digitField; std::string_view text; };
    const Case cases[] = {
        {"whole",                12,                  0, "12."},
        {"zero",                 0,                   0, "0."},
        {"negativeZero",         -0.0,                0, "0."},
        {"negative",             -1234.5,             0, "-1234.5"},
        {"third",                1.0 / 3.0,           0, "0.333333333333"},
        {"sumOfTenths",          0.1 + 0.2,           0, "0.3"},
        {"carryToNewDigit",      9.9999999999999,     0, "10."},
        {"twelveDigits",         999999999999,        0, "999999999999."},
        {"thirteenDigitsSci",    1e12,                0, "1.e12"},
        {"roundsUpIntoSci",      999999999999.5,      0, "1.e12"},
        {"smallStillPlain",      1e-12,               0, "0.000000000001"},
        {"smallerIsSci",         1e-13,               0, "1.e-13"},
        {"twelveDigitsAfterPt",  0.123456789012,      0, "0.123456789012"},
        {"wouldNeedThirteen",    0.0123456789012,     0, "1.23456789012e-2"},
        {"denormal",             5e-324,              0, "5.e-324"},
        {"digitsThird",          1.0 / 3.0,           3, "0.33"},
        {"digitsStillPlain",     0.01,                3, "0.01"},
        {"digitsTooSmallIsSci",  0.001,               3, "1.00e-3"},
        {"digitsLimitBefore",    123456789012.25,     4, "123456789012."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Decimal(c.value, kStandard, c.digitField), c.text);
    }
}

TEST(FormatDecimal, Fixed) {
    struct Case { std::string_view name; double value; int digitField; std::string_view text; };
    const Case cases[] = {
        {"halfTwoDecimals",      0.5,                 3, "0.50"},
        {"roundsLastDecimal",    2.0 / 3.0,           3, "0.67"},
        {"carryThroughPoint",    0.996,               3, "1.00"},
        {"noDecimals",           2.5,                 1, "3."},
        {"roundsToZero",         0.004,               3, "0.00"},
        {"roundsUpToLastPlace",  0.006,               3, "0.01"},
        {"farBelow",             1e-9,                3, "0.00"},
        {"negativeRoundsToZero", -0.004,              3, "-0.00"},
        {"decimalsGiveWay",      12345678901.25,      4, "12345678901.3"},
        {"noRoomForDecimals",    123456789012,        6, "123456789012."},
        {"tooLargeIsSci",        1e13,                3, "1.00e13"},
        {"allDigitsSmall",       0.000123456789012345, 0, "0.000123456789"},
        {"allDigitsUnderflow",   1e-13,               0, "0."},
        {"allDigitsRoundsUp",    6e-13,               0, "0.000000000001"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Decimal(c.value, kFixed, c.digitField), c.text);
    }
}

TEST(FormatDecimal, ScientificAndEngineering) {
    struct Case {
        std::string_view name; double value; NumberFormat format; int digitField; std::string_view text;
    };
    const Case cases[] = {
        {"sci",                  123456,     kScientific,  0, "1.23456e5"},
        {"sciDigits",            123456,     kScientific,  3, "1.23e5"},
        {"sciPadded",            1,          kScientific,  3, "1.00e0"},
        {"sciCarry",             9.96,       kScientific,  2, "1.0e1"},
        {"sciSmall",             0.000123,   kScientific,  0, "1.23e-4"},
        {"sciNegative",          -2.5e-300,  kScientific,  0, "-2.5e-300"},
        {"sciDigitsCapped",      1.0 / 3.0,  kScientific,  15, "3.33333333333e-1"},
        {"eng",                  123456,     kEngineering, 0, "123.456e3"},
        {"engTwoLead",           12,         kEngineering, 0, "12.e0"},
        {"engPadsLead",          1e5,        kEngineering, 0, "100.e3"},
        {"engNegativeExponent",  0.000123,   kEngineering, 0, "123.e-6"},
        {"engFewDigits",         123456,     kEngineering, 2, "120.e3"},
        {"engDigits",            1234,       kEngineering, 4, "1.234e3"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Decimal(c.value, c.format, c.digitField), c.text);
    }
}

TEST(FormatDecimal, RefusesValuesThatAreNotFinite) {
    FormattedText out;
    EXPECT_EQ(FormatDecimal(kInfinity, kStandard, 0, out), 1u);
    EXPECT_EQ(out.View(), "inf");
    EXPECT_EQ(FormatDecimal(std::nan(""), kFixed, 3, out), 1u);
}

TEST(ParseDecimal, ReadsWholeDecimalTextsOnly) {
    struct Case { std::string_view text; std::optional<double> value; };
    const Case cases[] = {
        {"12.5", 12.5},       {"-3", -3.0},        {".5", 0.5},        {"-.5e-3", -0.0005},
        {"1e5", 1e5},         {"12.", 12.0},       {"0.1", 0.1},       {"1e999", kInfinity},
        {"-1e999", -kInfinity}, {"1e-999", 0.0},
        {"", std::nullopt},   {"abc", std::nullopt}, {"1.2.3", std::nullopt},
        {"12 ", std::nullopt}, {"inf", std::nullopt}, {"nan", std::nullopt}, {"+1", std::nullopt},
        {"1e", std::nullopt},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(ParseDecimal(c.text), c.value);
    }
}

}  // namespace
}  // namespace brinto
