#include "display/display_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
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

TEST_F(DisplayTextTest, GroupsDigitsBeforeTheRadix) {
    struct Case { double value; std::string_view point, comma; };
    const Case cases[] = {
        {123, "123.", "123,"},       {1234, "1,234.", "1.234,"},   {123456, "123,456.", "123.456,"},
        {-1234567, "-1,234,567.", "-1.234.567,"},                  {1.23456e15, "1.23456e15", "1,23456e15"},
    };
    for (const Case& c : cases) {
        e.prefs.SetCommaRadix(false);
        EXPECT_EQ(Shown(c.value), c.point);
        e.prefs.SetCommaRadix(true);
        EXPECT_EQ(Shown(c.value), c.comma);
    }
    e.prefs.SetCommaRadix(false);
    e.prefs.SetFormat(NumberFormat::Engineering);
    EXPECT_EQ(Shown(123456789), "123.456789e6");
}

TEST_F(DisplayTextTest, TrailingZerosGoUnlessADigitCountAsksForThem) {
    e.prefs.SetFormat(NumberFormat::Fixed);
    e.prefs.SetDigitField(3);
    EXPECT_EQ(Shown(1234.5), "1,234.50");
    EXPECT_EQ(Formatted(0.5, kU8), "0.50");  // the display, not the formatter, drops integer zeros
    EXPECT_EQ(Shown(44, kU8), "44.");
    EXPECT_EQ(Shown(100, kU8), "100.");  // zeros before the point stay
    e.state.status = status::FullDisplay;
    EXPECT_EQ(Formatted(1.0 / 3.0), "0.333333333333");
    e.state.status = 0;
    e.prefs.SetFormat(NumberFormat::Scientific);
    EXPECT_EQ(Shown(1), "1.00e0");
    EXPECT_EQ(Shown(1e10, kU8), "1.e10");  // zeros go from the mantissa, not the exponent
    e.prefs.SetCommaRadix(true);
    EXPECT_EQ(Shown(2.5, kU8), "2,5e0");
}

TEST_F(DisplayTextTest, IntegerBasesShowTheBitsOfTheValuesFormatUngrouped) {
    struct Case { u16 base; int preference; double value; ValueTag tag; std::string_view text; };
    const u16 hex = status::BaseHex, binary = status::BaseBinary, octal = status::BaseOctal;
    const Case cases[] = {
        {hex, 5, 300, kU8, "2C."},        {hex, 5, -1, kS8, "FF."},     {hex, 5, -2, kS16, "FFFE."},
        {hex, 0, 256, ValueTag::None, "0."},           {hex, 2, -1, kMeters, "FFFF."}, {hex, 6, -1, ValueTag::None, "FFFFFFFF."},
        {hex, 5, 255.9, ValueTag::None, "FF."},        {hex, 5, 3735928559, kU32, "DEADBEEF."}, {hex, 5, 0x12345678, kU32, "12345678."},
        {binary, 5, -128, kS8, "10000000."}, {binary, 5, 16, kU8, "10000."}, {octal, 5, -1, kS32, "37777777777."},
        {octal, 5, 8, ValueTag::None, "10."},          {octal, 5, 0, ValueTag::None, "0."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.value << " tag " << c.tag << " preference " << c.preference);
        e.state.status = c.base;
        e.prefs.SetIntegerFormat(c.preference);
        EXPECT_EQ(Shown(c.value, c.tag), c.text);
    }
    EXPECT_EQ(Formatted(255, kU8, true), "377");  // in octal, without the point
    EXPECT_EQ(Formatted(kInfinity, kU8), "refused");  // the error value stays visible
    e.prefs.SetCommaRadix(true);
    EXPECT_EQ(Shown(-1, kS32), "37777777777,");  // the point still follows the radix preference
}

TEST_F(DisplayTextTest, DatesKeepThePlatformsTextInAnyBase) {
    EXPECT_EQ(Shown(kMarch15, kTime), "14:05");
    EXPECT_EQ(Shown(0, kDate), "1904-01-01");
    EXPECT_EQ(Shown(kMaxDateValue, kDateTime), "2031-12-31 23:59");
    e.state.status = status::BaseHex;
    e.prefs.SetCommaRadix(true);
    EXPECT_EQ(Shown(kMarch15, kDate), "2005-03-15");
    e.prefs.SetLongDate(true);
    EXPECT_EQ(Shown(kMarch15, kDateTime), "Tuesday, 15 March 2005 14:05");
    for (const double outside : {-1.0, kMaxDateValue + 1.0, std::nan(""), kInfinity}) {
        EXPECT_EQ(Formatted(outside, kDate), "refused") << outside;
    }
    e.state.status = status::FullDisplay | status::BaseHex;  // the number, radix applied but not grouped
    e.prefs.SetDigitField(3);
    EXPECT_EQ(Shown(3.5e9, kDate), "3500000000,");
    EXPECT_EQ(Shown(-1, kDate), "-1,");
}

TEST_F(DisplayTextTest, TheNumberBeingTypedShowsAsTyped) {
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
}

TEST(EmptyEntry, AnEntryEditedToNothingShowsZero) {
    // Typing a digit, changing the sign, then erasing both leaves the entry open with X zero: the
    // display shows the zero a cleared X shows, not a blank line.
    const FunctionId cases[][6] = {
        {fid::Digit1, fid::ChangeSign, fid::Digit4, fid::Backspace, fid::Backspace, fid::ChangeSign},
        {fid::Digit2, fid::Add, fid::Digit5, fid::ChangeSign, fid::Backspace, fid::ChangeSign},
    };
    const std::string zero = DisplayLevel(*std::make_unique<Engine>(), 0).text;
    for (const auto& keys : cases) {
        auto e = std::make_unique<Engine>(CalculatorFamilies());
        for (const FunctionId id : keys) e->Dispatch(id);
        EXPECT_EQ(e->X(), 0.0);
        EXPECT_EQ(DisplayLevel(*e, 0).text, zero);
    }
    EXPECT_FALSE(zero.empty());
}

TEST_F(DisplayTextTest, ValuesTheFormatterRefusesShowError) {
    Put(0, kInfinity);
    Put(1, -1, kDate);
    Put(2, 3);
    const DisplayLine x = DisplayLevel(e, 0), y = DisplayLevel(e, 1);
    EXPECT_EQ(std::tuple(x.text, x.error, y.text, y.label), std::tuple("error", true, "error", "date"));
    EXPECT_FALSE(DisplayLevel(e, 2).error);
}

TEST_F(DisplayTextTest, LabelsComeFromTheTagWithCashFlowDecorations) {
    struct Case { ValueTag tag; u16 aux; i16 flowCount; u32 groupCount; std::string_view label; };
    const Case cases[] = {
        {ValueTagFrom(1234), kNoAux, -1, 0, ""},        {ValueTag::SpeedOfLight, kNoAux, -1, 0, "Speed of light in vacuum, c"},
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
    // The table's first and last rows are found; a number it lacks has no label.
    const std::pair<ValueTag, std::string_view> rows[] = {
        {ValueTag::Error, "error"},         {ValueTag::ReferenceIntensity, "Reference intensity, I0"},
        {ValueTagFrom(1421), ""},           {ValueTagFrom(1955), ""},
    };
    for (const auto& [tag, text] : rows) EXPECT_EQ(LabelText(tag), text) << tag;
}

TEST_F(DisplayTextTest, ClipboardGetsThePlainNumber) {
    const std::pair<double, std::string_view> cases[] = {{1e12, "1e12"}, {-0.25, "-0.25"}};
    for (const auto& [value, text] : cases) {
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

}  // namespace
}  // namespace brinto
