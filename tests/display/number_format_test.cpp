#include "display/number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace brinto {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(FormatDecimal, FormsDigitsAndCarries) {
    struct Case { double value; NumberFormat format; int digitField; std::string_view text; };
    const NumberFormat Std = NumberFormat::Standard, Fix = NumberFormat::Fixed, Sci = NumberFormat::Scientific,
                       Eng = NumberFormat::Engineering;
    const Case cases[] = {
        {12, Std, 0, "12."},                         {0, Std, 0, "0."},
        {-0.0, Std, 0, "0."},                        {-1234.5, Std, 0, "-1234.5"},
        {0.1 + 0.2, Std, 0, "0.3"},                  {9.9999999999999, Std, 0, "10."},
        {999999999999, Std, 0, "999999999999."},     {1e12, Std, 0, "1.e12"},
        {999999999999.5, Std, 0, "1.e12"},           {1e-12, Std, 0, "0.000000000001"},
        {1e-13, Std, 0, "1.e-13"},                   {0.123456789012, Std, 0, "0.123456789012"},
        {0.0123456789012, Std, 0, "1.23456789012e-2"}, {5e-324, Std, 0, "5.e-324"},
        {1.0 / 3.0, Std, 3, "0.33"},                 {0.01, Std, 3, "0.01"},
        {0.001, Std, 3, "1.00e-3"},                  {123456789012.25, Std, 4, "123456789012."},
        {2.0 / 3.0, Fix, 3, "0.67"},                 {0.996, Fix, 3, "1.00"},
        {2.5, Fix, 1, "3."},                         {0.004, Fix, 3, "0.00"},
        {0.006, Fix, 3, "0.01"},                     {1e-9, Fix, 3, "0.00"},
        {-0.004, Fix, 3, "-0.00"},                   {12345678901.25, Fix, 4, "12345678901.3"},
        {123456789012, Fix, 6, "123456789012."},     {1e13, Fix, 3, "1.00e13"},
        {0.000123456789012345, Fix, 0, "0.000123456789"}, {1e-13, Fix, 0, "0."},
        {6e-13, Fix, 0, "0.000000000001"},           {123456, Sci, 0, "1.23456e5"},
        {123456, Sci, 3, "1.23e5"},                  {1, Sci, 3, "1.00e0"},
        {9.96, Sci, 2, "1.0e1"},                     {0.000123, Sci, 0, "1.23e-4"},
        {-2.5e-300, Sci, 0, "-2.5e-300"},            {1.0 / 3.0, Sci, 15, "3.33333333333e-1"},
        {123456, Eng, 0, "123.456e3"},               {12, Eng, 0, "12.e0"},
        {1e5, Eng, 0, "100.e3"},                     {0.000123, Eng, 0, "123.e-6"},
        {123456, Eng, 2, "120.e3"},                  {1234, Eng, 4, "1.234e3"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.value << " format " << static_cast<int>(c.format) << " digits "
                                        << c.digitField);
        FormattedText out;
        EXPECT_EQ(FormatDecimal(c.value, c.format, c.digitField, out), 0u);
        EXPECT_EQ(out.View(), c.text);
    }
    FormattedText out;
    EXPECT_EQ(FormatDecimal(kInfinity, Std, 0, out), 1u);
    EXPECT_EQ(out.View(), "inf");
    EXPECT_EQ(FormatDecimal(std::nan(""), Fix, 3, out), 1u);
}

TEST(ParseDecimal, ReadsWholeDecimalTextsOnly) {
    const std::optional<double> none;
    const std::pair<std::string_view, std::optional<double>> cases[] = {
        {"12.5", 12.5},   {"-3", -3.0},    {".5", 0.5},       {"-.5e-3", -0.0005}, {"1e5", 1e5},   {"12.", 12.0},
        {"0.1", 0.1},     {"1e999", kInfinity},               {"-1e999", -kInfinity}, {"1e-999", 0.0},
        {"", none},       {"abc", none},   {"1.2.3", none},   {"12 ", none},      {"inf", none},   {"nan", none},
        {"+1", none},     {"1e", none},
    };
    for (const auto& [text, value] : cases) EXPECT_EQ(ParseDecimal(text), value) << text;
}

}  // namespace
}  // namespace brinto
