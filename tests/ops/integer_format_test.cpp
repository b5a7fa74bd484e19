#include "ops/integer_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string_view>

namespace brinto {
namespace {

constexpr ValueTag kU8 = 1924, kS8 = 1925, kU16 = 1926, kS16 = 1927, kU32 = 1928, kS32 = 1929;
constexpr ValueTag kMeters = 1903;

TEST(IntegerConversion, TruncatesTowardZeroThenWrapsModulo2To32) {
    const double inf = std::numeric_limits<double>::infinity();
    struct Case { std::string_view name; double x; u32 asUnsigned; i32 asSigned; };
    const Case cases[] = {
        {"fractionCutOff",     2.9,            2,          2},
        {"negativeFraction",   -2.9,           4294967294, -2},
        {"minusOne",           -1.0,           4294967295, -1},
        {"topUnsigned",        4294967295.0,   4294967295, -1},
        {"signedBoundary",     2147483648.0,   2147483648, -2147483647 - 1},
        {"twoTo32Wraps",       4294967296.0,   0,          0},
        {"beyondWraps",        4294967297.9,   1,          1},
        {"negativeBeyond",     -4294967297.0,  4294967295, -1},
        {"hugeIsMultiple",     1e300,          0,          0},  // 1e300 = 2^300 * odd: low bits 0
        {"nan",                std::nan(""),   0,          0},
        {"infinity",           inf,            0,          0},
        {"negativeInfinity",   -inf,           0,          0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(ToUnsigned32(c.x), c.asUnsigned);
        EXPECT_EQ(ToSigned32(c.x), c.asSigned);
    }
}

TEST(Narrow, GivesTheWholeNumberOfTheTargetWidthAndSignedness) {
    struct Case { std::string_view name; double x; ValueTag source; ValueTag target; double result; };
    const Case cases[] = {
        {"300ToU8",           300,            0,       kU8,  44},
        {"minusOneToU8",      -1,             0,       kU8,  255},
        {"minusOneToS8",      -1,             0,       kS8,  -1},
        {"u8 255ToS8",        255,            kU8,     kS8,  -1},
        {"128ToS8",           128,            0,       kS8,  -128},
        {"s8 minus128ToU8",   -128,           kS8,     kU8,  128},
        {"truncates",         -1.9,           0,       kS16, -1},
        {"65541ToU16",        65541,          0,       kU16, 5},
        {"40000ToS16",        40000,          kMeters, kS16, -25536},
        {"minusOneToU32",     -1,             kS32,    kU32, 4294967295.0},
        {"u32 maxToS32",      4294967295.0,   kU32,    kS32, -1},
        {"3e9ToS32",          3e9,            0,       kS32, -1294967296.0},
        {"nanIsZero",         std::nan(""),   0,       kU16, 0},
        {"nonFormatIsS32",    -1,             0,       kMeters, -1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Narrow(c.x, c.source, c.target), c.result);
    }
}

TEST(ValueOfBits, SignExtendsOnlySignedFormats) {
    EXPECT_EQ(ValueOfBits(0x17F, FormatOfTag(kS8)), 127);  // bits above the width are ignored
    EXPECT_EQ(ValueOfBits(0x80000000u, FormatOfTag(kS32)), -2147483648.0);
    EXPECT_EQ(ValueOfBits(0x80000000u, FormatOfTag(kU32)), 2147483648.0);
}

TEST(IntegerFormatOf, UsesTheValuesOwnFormatElseThePreference) {
    Preferences prefs = DefaultPreferences();
    struct Case { int preference; ValueTag tag; int defaultTag; ValueTag result; };
    const Case cases[] = {
        {0, 0, kU8, kU8},           {5, 0, kS32, kS32},
        {2, kMeters, kU16, kU16},   {2, kS8, kU16, kS8},
        {6, 0, 0, 0},               {7, kMeters, 0, 0},
        {7, kU32, 0, kU32},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "preference " << c.preference << " tag " << c.tag);
        prefs.SetIntegerFormat(c.preference);
        EXPECT_EQ(DefaultIntegerFormatTag(prefs), c.defaultTag);
        EXPECT_EQ(IntegerFormatOf(prefs, c.tag), c.result);
    }
}

}  // namespace
}  // namespace brinto
