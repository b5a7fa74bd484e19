#include "display/display_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

#include "display/labels.h"
#include "display/number_format.h"
#include "engine/engine.h"
#include "engine/engine_test_support.h"
#include "engine/numeric/date_fields.h"

namespace brinto {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr ValueTag kU8 = ValueTag::U8, kS8 = ValueTag::S8, kS16 = ValueTag::S16, kU32 = ValueTag::U32, kS32 = ValueTag::S32, kMeters = ValueTag::Meters;
constexpr ValueTag kDate = ValueTag::Date, kTime = ValueTag::Time, kDateTime = ValueTag::DateTime, kCashFlow = ValueTag::CashFlow, kGroupCount = ValueTag::GroupCount;
const double kMarch15 = ComposeDate(DateFields{2005, 3, 15, 14, 5, 30, 0});

struct DisplayTextTest : testing::Test {
    DisplayTextTest() {
        e.prefs = DefaultPreferences();
        e.state.status = 0;
        e.registers.cashFlowCount = -1;
    }
    void Put(int level, double value, ValueTag tag = ValueTag::None, u16 aux = kNoAux) { e.SetLevel(level, {value, tag, aux}); }
    std::string Shown(double value, ValueTag tag = ValueTag::None) {
        Put(0, value, tag);
        return DisplayLevel(e, 0).text;
    }
    // What FormatValue makes of a value, before the display's own rules.
    std::string Formatted(double value, ValueTag tag = ValueTag::None, bool noPoint = false) {
        FormattedText out;
        return FormatValue(e, value, tag, noPoint, out) != 0 ? "refused" : std::string(out.View());
    }
    void Typing(const char* text) {
        e.state.status |= status::Entry;
        std::strcpy(e.state.entryText, text);
    }

    FixedPlatform platform;
    std::unique_ptr<Engine> engine = std::make_unique<Engine>(&platform);
    Engine& e = *engine;
};

// How a value shows under each number format, radix, entry base and integer format: digits are
// grouped before the radix only in decimal; trailing zeros go unless a digit count asks for them
// (and always from an integer format's mantissa); integer bases show the bits of the value's own
// format, else the preferred one, ungrouped; dates keep their text in any base.
TEST_F(DisplayTextTest, ValuesShowAsFormatRadixBaseAndTagSay) {
    struct Look {
        NumberFormat format = NumberFormat::Standard;
        int digits = 0;
        bool comma = false;
        u16 status = 0;
        int integers = 5;  // the preferred integer format: s32
        bool longDate = false;
    };
    using enum NumberFormat;
    const u16 hex = status::BaseHex, binary = status::BaseBinary, octal = status::BaseOctal;
    const Look point, comma{.comma = true}, eng{.format = Engineering}, full{.status = status::FullDisplay},
        fixed3{.format = Fixed, .digits = 3}, sci3{.format = Scientific, .digits = 3},
        sci3Comma{.format = Scientific, .digits = 3, .comma = true}, hex5{.status = hex}, hexU8{.status = hex, .integers = 0},
        hexU16{.status = hex, .integers = 2}, hexNone{.status = hex, .integers = 6}, binary5{.status = binary},
        octal5{.status = octal}, octalComma{.comma = true, .status = octal}, hexComma{.comma = true, .status = hex},
        hexLong{.comma = true, .status = hex, .longDate = true},
        fullHex{.digits = 3, .comma = true, .status = status::FullDisplay | hex};
    const ValueTag None = ValueTag::None;
    const struct { Look look; double value; ValueTag tag; std::string_view text; } cases[] = {
        {point, 123, None, "123."},              {comma, 123, None, "123,"},          {point, 1234, None, "1,234."},
        {comma, 1234, None, "1.234,"}, {point, -1234567, None, "-1,234,567."}, {comma, -1234567, None, "-1.234.567,"},
        {point, 1.23456e15, None, "1.23456e15"}, {comma, 1.23456e15, None, "1,23456e15"},
        {eng, 123456789, None, "123.456789e6"},  {full, 1.0 / 3.0, None, "0.333333333333"},
        {fixed3, 1234.5, None, "1,234.50"},      {fixed3, 44, kU8, "44."},            {sci3, 1e10, kU8, "1.e10"},
        {sci3Comma, 2.5, kU8, "2,5e0"},          {hex5, 300, kU8, "2C."},             {hex5, -1, kS8, "FF."},
        {hex5, -2, kS16, "FFFE."},               {hexU8, 256, None, "0."},            {hexU16, -1, kMeters, "FFFF."},
        {hexNone, -1, None, "FFFFFFFF."}, {hex5, 255.9, None, "FF."}, {hex5, 3735928559, kU32, "DEADBEEF."},
        {binary5, -128, kS8, "10000000."}, {binary5, 16, kU8, "10000."}, {octal5, -1, kS32, "37777777777."},
        {octal5, 8, None, "10."}, {octalComma, -1, kS32, "37777777777,"}, {point, kMarch15, kTime, "14:05"},
        {point, 0, kDate, "1904-01-01"},         {point, kMaxDateValue, kDateTime, "2031-12-31 23:59"},
        {hexComma, kMarch15, kDate, "2005-03-15"},  {hexLong, kMarch15, kDateTime, "Tuesday, 15 March 2005 14:05"},
        {fullHex, 3.5e9, kDate, "3500000000,"}, {fullHex, -1, kDate, "-1,"},  // the number, radix applied but not grouped
        {point, -1, kDate, "error"},             {point, kMaxDateValue + 1.0, kDate, "error"},  // no date to show
        {point, NAN, kDate, "error"},            {point, kInfinity, kU8, "error"},  // the error value stays visible
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.value << " tag " << c.tag);
        e.prefs.SetFormat(c.look.format);
        e.prefs.SetDigitField(c.look.digits);
        e.prefs.SetCommaRadix(c.look.comma);
        e.prefs.SetIntegerFormat(c.look.integers);
        e.prefs.SetLongDate(c.look.longDate);
        e.state.status = c.look.status;
        EXPECT_EQ(Shown(c.value, c.tag), c.text);
    }
    e.state.status = octal;
    EXPECT_EQ(Formatted(255, kU8, true), "377");  // without the point
    Put(0, kInfinity);
    Put(1, -1, kDate);
    Put(2, 3);
    const DisplayLine x = DisplayLevel(e, 0), y = DisplayLevel(e, 1);
    EXPECT_EQ(std::tuple(x.error, y.error, y.label), std::tuple(true, true, "date"));
    EXPECT_FALSE(DisplayLevel(e, 2).error);
}

TEST_F(DisplayTextTest, TheNumberBeingTypedShowsAsTypedAndTheClipboardGetsThePlainNumber) {
    struct Case { const char* typed; bool comma; std::string_view shown; };
    const Case cases[] = {
        {".5", false, "0.5"},         {"-.5e-3", false, "-0.5e-3"},         {"1.500", false, "1.500"},
        {"123456e-12", false, "123,456e-12"}, {"1234.5", true, "1.234,5"}, {".", true, "0,"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed);
        e.prefs.SetCommaRadix(c.comma);
        Typing(c.typed);
        EXPECT_EQ(DisplayLevel(e, 0).text, c.shown);
    }
    e.prefs.SetCommaRadix(false);
    e.state.status = status::BaseHex;
    Typing("FFFF0");
    EXPECT_EQ(DisplayLevel(e, 0).text, "FFFF0");
    Put(1, 1234.5);
    EXPECT_EQ(DisplayLevel(e, 1).text, "4D2.");  // other levels show their values
    e.state.status = 0;  // the clipboard gets the plain number, not what was typed
    const std::pair<double, std::string_view> copies[] = {{1e12, "1e12"}, {-0.25, "-0.25"}};
    for (const auto& [value, text] : copies) {
        Put(0, value);
        EXPECT_EQ(ClipboardText(e), text);
    }
    e.prefs.SetCommaRadix(true);
    e.prefs.SetFormat(NumberFormat::Fixed);
    e.prefs.SetDigitField(3);
    Put(0, 0.5);
    EXPECT_EQ(ClipboardText(e), "0,50");
    e.state.status = status::BaseHex;
    Put(0, 255, kU8);
    EXPECT_EQ(ClipboardText(e), "FF");
}

TEST_F(DisplayTextTest, LabelsComeFromTheTagWithCashFlowDecorations) {
    struct Case { ValueTag tag; u16 aux; i16 flowCount; u32 groupCount; std::string_view label; };
    const Case cases[] = {
        {ValueTagFrom(1234), kNoAux, -1, 0, ""}, {ValueTag::SpeedOfLight, kNoAux, -1, 0, "Speed of light in vacuum, c"},
        {kCashFlow, 3, 5, 4, "CFj 3 x4"}, {kCashFlow, 3, 5, 1, "CFj 3"},   {kGroupCount, 3, 5, 4, "Nj 3"},
        {kCashFlow, 3, -1, 4, "CFj"},     {kCashFlow, 0, 0, 2, "CFj 0 x2"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "tag " << c.tag << " entry " << c.aux);
        e.registers.cashFlowCount = c.flowCount;
        if (c.aux < kUserRegisters) e.registers.aux[c.aux] = c.groupCount;
        Put(0, 100, c.tag, c.aux);
        EXPECT_EQ(DisplayLevel(e, 0).label, c.label);
    }
    e.state.amortStart = 1;
    e.state.amortEnd = 12;
    Put(0, 250.5, ValueTag::Interest);
    EXPECT_EQ(DisplayLevel(e, 0, Amortizing::Yes).label, "Calculating...  1-12");
    EXPECT_EQ(DisplayLevel(e, 0).label, "Int");
}

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
