#include "display/number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "engine/engine.h"
#include "ops/date_fields.h"

namespace brinto {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr ValueTag kU8 = 1924, kS8 = 1925, kU16 = 1926, kS16 = 1927, kU32 = 1928, kS32 = 1929;

// FormatValue reads the display format, the entry base and the date preferences of an engine.
class FormatValueTest : public testing::Test {
protected:
    FormatValueTest() : engine(std::make_unique<Engine>(&platform)), e(*engine) {
        e.prefs = DefaultPreferences();
        e.state.status = 0;
    }

    std::string Text(double value, ValueTag tag = 0, bool noPoint = false) {
        FormattedText out;
        if (FormatValue(e, value, tag, noPoint, out) != 0) return "refused";
        return std::string(out.View());
    }
    void Base(u16 base) { e.state.status = static_cast<u16>((e.state.status & ~status::BaseMask) | base); }

    FixedPlatform platform;
    std::unique_ptr<Engine> engine;
    Engine& e;
};

TEST_F(FormatValueTest, IntegerBasesShowTheBitsOfTheValuesFormat) {
    struct Case {
        std::string_view name; u16 base; int preference; double value; ValueTag tag; std::string_view text;
    };
    const Case cases[] = {
        {"hexU8Wraps",          status::BaseHex,    5, 300,        kU8,   "2C."},
        {"hexS8Negative",       status::BaseHex,    5, -1,         kS8,   "FF."},
        {"hexU16",              status::BaseHex,    5, 65535,      kU16,  "FFFF."},
        {"hexS16",              status::BaseHex,    5, -2,         kS16,  "FFFE."},
        {"hexU32",              status::BaseHex,    5, 3735928559, kU32,  "DEADBEEF."},
        {"hexS32",              status::BaseHex,    5, -1,         kS32,  "FFFFFFFF."},
        {"untaggedUsesDefault", status::BaseHex,    0, 256,        0,    "0."},
        {"unitUsesDefault",     status::BaseHex,    2, -1,         1903, "FFFF."},
        {"noDefaultMeansS32",   status::BaseHex,    6, -1,         0,    "FFFFFFFF."},
        {"fractionCut",         status::BaseHex,    5, 255.9,      0,    "FF."},
        {"binary",              status::BaseBinary, 5, 5,          kU8,   "101."},
        {"binaryS8",            status::BaseBinary, 5, -128,       kS8,   "10000000."},
        {"octal",               status::BaseOctal,  5, 8,          0,    "10."},
        {"octalS32",            status::BaseOctal,  5, -1,         kS32,  "37777777777."},
        {"zero",                status::BaseOctal,  5, 0,          0,    "0."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Base(c.base);
        e.prefs.SetIntegerFormat(c.preference);
        EXPECT_EQ(Text(c.value, c.tag), c.text);
    }
    Base(status::BaseHex);
    EXPECT_EQ(Text(255, kU8, true), "FF");
    EXPECT_EQ(Text(kInfinity, kU8), "refused");  // the error value stays visible
}

TEST_F(FormatValueTest, DecimalFormFollowsTheDisplayFormat) {
    e.prefs.SetFormat(NumberFormat::Fixed);
    e.prefs.SetDigitField(3);
    EXPECT_EQ(Text(0.5, 1924), "0.50");  // the display, not the formatter, drops integer zeros
    e.state.status = status::FullDisplay;
    EXPECT_EQ(Text(1.0 / 3.0), "0.333333333333");
    EXPECT_EQ(Text(kInfinity), "refused");
}

TEST_F(FormatValueTest, DatesAndTimesUseThePlatformsTexts) {
    const double march15 = ComposeDate(DateFields{2005, 3, 15, 14, 5, 30, 0});
    EXPECT_EQ(Text(march15, 1801), "2005-03-15");
    EXPECT_EQ(Text(march15, 1802), "14:05");
    EXPECT_EQ(Text(march15, 1803), "2005-03-15 14:05");
    EXPECT_EQ(Text(0, 1801), "1904-01-01");
    EXPECT_EQ(Text(kMaxDateValue, 1803), "2031-12-31 23:59");
    Base(status::BaseHex);  // a date is a date in any base
    EXPECT_EQ(Text(march15, 1801), "2005-03-15");
    e.prefs.SetLongDate(true);
    EXPECT_EQ(Text(march15, 1803), "Tuesday, 15 March 2005 14:05");
}

TEST_F(FormatValueTest, DatesOutsideTheRangeAreRefused) {
    EXPECT_EQ(Text(-1, 1801), "refused");
    EXPECT_EQ(Text(kMaxDateValue + 1.0, 1802), "refused");
    EXPECT_EQ(Text(std::nan(""), 1803), "refused");
    EXPECT_EQ(Text(kInfinity, 1801), "refused");
}

TEST_F(FormatValueTest, FullDisplayShowsDatesAsNumbers) {
    e.state.status = status::FullDisplay | status::BaseHex;
    e.prefs.SetDigitField(3);
    EXPECT_EQ(Text(3.5e9, 1801), "3500000000.");
    EXPECT_EQ(Text(-1, 1801), "-1.");
}

}  // namespace
}  // namespace brinto
