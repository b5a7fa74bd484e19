#include "display/display_text.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <memory>
#include <string_view>

#include "engine/engine.h"
#include "ops/date_fields.h"

namespace brinto {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr ValueTag kU8 = 1924, kDate = 1801, kCashFlow = 1419, kGroupCount = 1420;

class DisplayTextTest : public testing::Test {
protected:
    DisplayTextTest() : engine(std::make_unique<Engine>(&platform)), e(*engine) {
        e.prefs = DefaultPreferences();
        e.state.status = 0;
        e.registers.cashFlowCount = -1;
    }

    void Put(int level, double value, ValueTag tag = 0, u16 aux = kNoAux) {
        e.state.stack[level] = value;
        e.state.tags[level] = tag;
        e.state.aux[level] = aux;
    }
    std::string Shown(double value, ValueTag tag = 0) {
        Put(0, value, tag);
        return DisplayLevel(e, 0).text;
    }
    void Typing(const char* text) {
        e.state.status |= status::Entry;
        std::strcpy(e.state.entryText, text);
    }

    FixedPlatform platform;
    std::unique_ptr<Engine> engine;
    Engine& e;
};

TEST_F(DisplayTextTest, GroupsDigitsBeforeTheRadix) {
    struct Case { std::string_view name; double value; std::string_view point; std::string_view comma; };
    const Case cases[] = {
        {"threeDigits",   123,         "123.",         "123,"},
        {"fourDigits",    1234,        "1,234.",       "1.234,"},
        {"sixDigits",     123456,      "123,456.",     "123.456,"},
        {"withDecimals",  1234567.5,   "1,234,567.5",  "1.234.567,5"},
        {"negative",      -1234567,    "-1,234,567.",  "-1.234.567,"},
        {"scientific",    1.23456e15,  "1.23456e15",   "1,23456e15"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
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
    EXPECT_EQ(Shown(0.5), "0.50");
    EXPECT_EQ(Shown(1234.5), "1,234.50");
    EXPECT_EQ(Shown(44, kU8), "44.");        // integer values show no decimals
    EXPECT_EQ(Shown(100, kU8), "100.");      // zeros before the point stay
    e.prefs.SetFormat(NumberFormat::Scientific);
    EXPECT_EQ(Shown(1), "1.00e0");
    EXPECT_EQ(Shown(1, kU8), "1.e0");        // zeros go from the mantissa, not the exponent
    EXPECT_EQ(Shown(1e10, kU8), "1.e10");
    e.prefs.SetCommaRadix(true);
    EXPECT_EQ(Shown(2.5, kU8), "2,5e0");
}

TEST_F(DisplayTextTest, IntegerBasesAreNeverGroupedOrStripped) {
    e.state.status = status::BaseHex;
    EXPECT_EQ(Shown(0x12345678, 1928), "12345678.");
    e.state.status = status::BaseBinary;
    EXPECT_EQ(Shown(16, kU8), "10000.");
    e.prefs.SetCommaRadix(true);
    e.state.status = status::BaseOctal;
    EXPECT_EQ(Shown(-1, 1929), "37777777777,");  // the point still follows the radix preference
}

TEST_F(DisplayTextTest, DatesKeepThePlatformsText) {
    const double date = ComposeDate(DateFields{2005, 3, 15, 0, 0, 0, 0});
    e.prefs.SetCommaRadix(true);
    EXPECT_EQ(Shown(date, kDate), "2005-03-15");
    e.state.status = status::FullDisplay;  // the number, radix applied but not grouped
    EXPECT_EQ(Shown(date, kDate), "3193689600,");
}

TEST_F(DisplayTextTest, TheNumberBeingTypedShowsAsTyped) {
    struct Case { std::string_view name; const char* typed; bool comma; std::string_view shown; };
    const Case cases[] = {
        {"barePoint",       ".5",          false, "0.5"},
        {"negativePoint",   "-.5e-3",      false, "-0.5e-3"},
        {"grouped",         "1234567",     false, "1,234,567"},
        {"zerosKept",       "1.500",       false, "1.500"},
        {"groupedExponent", "123456e-12",  false, "123,456e-12"},
        {"commaRadix",      "1234.5",      true,  "1.234,5"},
        {"commaBarePoint",  ".",           true,  "0,"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
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

TEST_F(DisplayTextTest, ValuesTheFormatterRefusesShowError) {
    Put(0, kInfinity);
    Put(1, -1, kDate);
    Put(2, 3);
    const DisplayLine x = DisplayLevel(e, 0);
    EXPECT_EQ(x.text, "error");
    EXPECT_TRUE(x.error);
    const DisplayLine y = DisplayLevel(e, 1);
    EXPECT_EQ(y.text, "error");
    EXPECT_EQ(y.label, "date");
    EXPECT_FALSE(DisplayLevel(e, 2).error);
}

TEST_F(DisplayTextTest, LabelsComeFromTheTagWithCashFlowDecorations) {
    struct Case {
        std::string_view name; ValueTag tag; u16 aux; i16 flowCount; u32 groupCount; std::string_view label;
    };
    const Case cases[] = {
        {"unit",             1903,         kNoAux, -1, 0, "meters"},
        {"unknownTag",       1234,         kNoAux, -1, 0, ""},
        {"constant",         3607,         kNoAux, -1, 0, "Speed of light in vacuum, c"},
        {"cashFlowGroup",    kCashFlow,    3,      5,  4, "CFj 3 x4"},
        {"cashFlowSingle",   kCashFlow,    3,      5,  1, "CFj 3"},
        {"groupCount",       kGroupCount,  3,      5,  4, "Nj 3"},
        {"emptyList",        kCashFlow,    3,      -1, 4, "CFj"},
        {"firstEntry",       kCashFlow,    0,      0,  2, "CFj 0 x2"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        e.registers.cashFlowCount = c.flowCount;
        if (c.aux < kUserRegisters) e.registers.aux[c.aux] = c.groupCount;
        Put(0, 100, c.tag, c.aux);
        EXPECT_EQ(DisplayLevel(e, 0).label, c.label);
    }
}

TEST_F(DisplayTextTest, AnAmortizationRunShowsItsPeriods) {
    e.state.amortStart = 1;
    e.state.amortEnd = 12;
    Put(0, 250.5, 1412);
    EXPECT_EQ(DisplayLevel(e, 0, Amortizing::Yes).label, "Calculating...  1-12");
    EXPECT_EQ(DisplayLevel(e, 0).label, "Int");
}

TEST_F(DisplayTextTest, ClipboardGetsThePlainNumber) {
    struct Case { std::string_view name; double value; ValueTag tag; std::string_view text; };
    const Case cases[] = {
        {"whole",       12,          0, "12"},
        {"ungrouped",   1234567.5,   0, "1234567.5"},
        {"exponent",    1e12,        0, "1e12"},
        {"negative",    -0.25,       0, "-0.25"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Put(0, c.value, c.tag);
        EXPECT_EQ(ClipboardText(e), c.text);
    }
    e.prefs.SetCommaRadix(true);
    Put(0, 1234567.5);
    EXPECT_EQ(ClipboardText(e), "1234567,5");
    e.prefs.SetFormat(NumberFormat::Fixed);
    e.prefs.SetDigitField(3);
    Put(0, 0.5);
    EXPECT_EQ(ClipboardText(e), "0,50");
    e.state.status = status::BaseHex;
    Put(0, 255, kU8);
    EXPECT_EQ(ClipboardText(e), "FF");
    Put(0, kInfinity);
    EXPECT_EQ(ClipboardText(e), std::nullopt);
}

}  // namespace
}  // namespace brinto
