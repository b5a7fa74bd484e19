#include <gtest/gtest.h>

#include <cmath>
#include <string_view>

#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;
using namespace test::unit;

// Default integer formats by their preference value.
constexpr int kDefaultU8 = 0, kDefaultS8 = 1, kDefaultU16 = 2, kDefaultS16 = 3, kDefaultU32 = 4, kDefaultS32 = 5;
constexpr int kDefaultNone = 6;

TEST(IntegerFormatKeys, NarrowFromSignedAndUnsignedSources) {
    struct Case { std::string_view name; double x; ValueTag source; FunctionId key; double result; };
    const Case cases[] = {
        {"300 to u8",            300,          0,   167, 44},
        {"-1 to u8",             -1,           0,   167, 255},
        {"-1 to s8",             -1,           0,   168, -1},
        {"u8 255 to s8",         255,          U8,  168, -1},
        {"s8 -1 to u16",         -1,           S8,  169, 65535},
        {"u16 40000 to s16",     40000,        U16, 170, -25536},
        {"s32 -1 to u32",        -1,           S32, 171, 4294967295.0},
        {"u32 max to s16",       4294967295.0, U32, 170, -1},
        {"3e9 to s32",           3e9,          0,   172, -1294967296.0},
        {"-2.9 truncates",       -2.9,         0,   172, -2},
        {"meters 70000 to u16",  70000,        Meters, 169, 4464},
        {"nan to u8",            NAN,          0,   167, 0},
        {"huge to s32",          1e300,        0,   172, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({{c.x, c.source}});
        e.Dispatch(c.key);
        EXPECT_EQ(e.X(), c.result);
        EXPECT_EQ(e.XTag(), 1924 + (c.key - 167));
    }
}

TEST(IntegerFormatKeys, LastXIsSavedUnlessANumberIsBeingTyped) {
    Engine e = Holding({{5, 0}});
    e.Dispatch(167);
    EXPECT_EQ(e.state.lastX, 5.0);
    Press(e, {9, 168});
    EXPECT_EQ(e.state.lastX, 5.0);
    EXPECT_EQ(e.X(), 9.0);
    EXPECT_EQ(e.XTag(), S8);
}

TEST(IntegerFormatKeys, ToDefaultFormat) {
    Engine e = Holding({{-1, 0}});
    e.prefs.SetIntegerFormat(kDefaultU16);
    e.Dispatch(fid::ToDefaultFormat);
    EXPECT_EQ(e.X(), 65535.0);
    EXPECT_EQ(e.XTag(), U16);
    EXPECT_EQ(e.state.lastX, -1.0);

    e = Holding({{4294967295.0, U32}});
    e.prefs.SetIntegerFormat(kDefaultNone);  // no default: a whole number of 32 bits, untagged
    e.Dispatch(fid::ToDefaultFormat);
    EXPECT_EQ(e.X(), -1.0);
    EXPECT_EQ(e.XTag(), 0);
}

TEST(BitwiseNot, ComplementsWithinTheFormat) {
    struct Case { std::string_view name; double x; ValueTag tag; int defaultFormat; double result; ValueTag resultTag; };
    const Case cases[] = {
        {"0 u16",            0,   U16, kDefaultS32, 65535, U16},
        {"5 s8",             5,   S8,  kDefaultS32, -6, S8},
        {"0 u32",            0,   U32, kDefaultS32, 4294967295.0, U32},
        {"-1 s32",           -1,  S32, kDefaultU8,  0, S32},
        {"untagged default", 1,   0,   kDefaultU8,  254, U8},
        {"300 u8 wraps",     300, U8,  kDefaultS32, 211, U8},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({{c.x, c.tag}});
        e.prefs.SetIntegerFormat(c.defaultFormat);
        e.Dispatch(fid::Not);
        EXPECT_EQ(e.X(), c.result);
        EXPECT_EQ(e.XTag(), c.resultTag);
    }
}

TEST(IntegerArithmetic, WrapsToTheDefaultFormat) {
    struct Case { std::string_view name; FunctionId op; double y; ValueTag yTag; double x; ValueTag xTag; int format; double result; };
    const Case cases[] = {
        {"200+100 u8",           fid::IntegerAdd,      200, 0,   100, 0,   kDefaultU8,  44},
        {"0-1 u16",              fid::IntegerSubtract, 0,   0,   1,   0,   kDefaultU16, 65535},
        {"127+1 s8",             fid::IntegerAdd,      127, 0,   1,   0,   kDefaultS8,  -128},
        {"300x300 s16",          fid::IntegerMultiply, 300, 0,   300, 0,   kDefaultS16, 24464},
        {"operands narrow first", fid::IntegerAdd,     255, U8,  -1,  S8,  kDefaultS16, 254},
        {"u32 max / 2",          fid::IntegerDivide,   4294967295.0, 0, 2, 0, kDefaultU32, 2147483647},
        {"-7 / 2 truncates",     fid::IntegerDivide,   -7,  0,   2,   0,   kDefaultS8,  -3},
        {"s8 -128 / -1",         fid::IntegerDivide,   -128, 0,  -1,  0,   kDefaultS8,  -128},
        {"s16 -32768 / -1",      fid::IntegerDivide,   -32768, 0, -1, 0,   kDefaultS16, -32768},
        {"s32 -2^31 / -1",       fid::IntegerDivide,   -2147483648.0, 0, -1, 0, kDefaultS32, -2147483648.0},
        {"divide by 0",          fid::IntegerDivide,   5,   0,   0,   0,   kDefaultS32, kErrorValue},
        {"divisor narrows to 0", fid::IntegerDivide,   5,   0,   256, 0,   kDefaultU8,  kErrorValue},
        {"and",                  fid::And,             12,  0,   10,  0,   kDefaultU8,  8},
        {"or",                   fid::Or,              12,  0,   10,  0,   kDefaultU8,  14},
        {"xor",                  fid::Xor,             12,  0,   10,  0,   kDefaultU8,  6},
        {"and of negatives s16", fid::And,             -1,  0,   -256, 0,  kDefaultS16, -256},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({{c.y, c.yTag}, {c.x, c.xTag}});
        e.prefs.SetIntegerFormat(c.format);
        e.Dispatch(c.op);
        EXPECT_EQ(e.X(), c.result);
        if (!IsErrorValue(c.result)) {
            EXPECT_EQ(e.XTag(), 1924 + c.format);
        }
        EXPECT_EQ(e.state.lastX, c.x);
    }
}

TEST(IntegerArithmetic, NoDefaultFormatComputesIn32BitsUntagged) {
    Engine e = Holding({{2147483647.0, 0}, {1, 0}});
    e.prefs.SetIntegerFormat(kDefaultNone);
    e.Dispatch(fid::IntegerAdd);
    EXPECT_EQ(e.X(), -2147483648.0);
    EXPECT_EQ(e.XTag(), 0);
}

TEST(ShiftsAndRotate, CountsNegativeAndBeyondTheWidth) {
    struct Case { std::string_view name; FunctionId op; double y; ValueTag yTag; double count; double result; };
    const Case cases[] = {
        {"1 u8 << 8",              fid::ShiftLeft,            1,    U8,  8,    0},
        {"1 u8 << 7",              fid::ShiftLeft,            1,    U8,  7,    128},
        {"1 u8 << 100",            fid::ShiftLeft,            1,    U8,  100,  0},
        {"1 u8 << -1 is >> 1",     fid::ShiftLeft,            1,    U8,  -1,   0},
        {"4 u8 << -1",             fid::ShiftLeft,            4,    U8,  -1,   2},
        {"<< -2^31 is >> capped",  fid::ShiftLeft,            255,  U8,  -2147483648.0, 0},
        {"1 s32 << 31",            fid::ShiftLeft,            1,    S32, 31,   -2147483648.0},
        {"1 u32 << 31",            fid::ShiftLeft,            1,    U32, 31,   2147483648.0},
        {"128 u8 >> 3",            fid::ShiftRight,           128,  U8,  3,    16},
        {"128 u8 >> 200",          fid::ShiftRight,           128,  U8,  200,  0},
        {"3 u8 >> -2 is << 2",     fid::ShiftRight,           3,    U8,  -2,   12},
        {"-128 s8 >> 1",           fid::ShiftRight,           -128, S8,  1,    64},
        {"-128 s8 asr 3",          fid::ArithmeticShiftRight, -128, S8,  3,    -16},
        {"-128 s8 asr 100",        fid::ArithmeticShiftRight, -128, S8,  100,  -1},
        {"64 s8 asr 1",            fid::ArithmeticShiftRight, 64,   S8,  1,    32},
        {"u16 0x8000 asr 15",      fid::ArithmeticShiftRight, 32768, U16, 15,  65535},
        {"1 u8 rr 1",              fid::RotateRight,          1,    U8,  1,    128},
        {"3 u8 rr -1 is rl 1",     fid::RotateRight,          3,    U8,  -1,   6},
        {"3 u8 rr 9 is rr 1",      fid::RotateRight,          3,    U8,  9,    129},
        {"1 u16 rr 1",             fid::RotateRight,          1,    U16, 1,    32768},
        {"1 s32 rr 1",             fid::RotateRight,          1,    S32, 1,    -2147483648.0},
        {"count of 2^32 is 0",     fid::ShiftLeft,            5,    U8,  4294967296.0, 5},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({{c.y, c.yTag}, {c.count, 0}});
        e.Dispatch(c.op);
        EXPECT_EQ(e.X(), c.result);
        EXPECT_EQ(e.XTag(), c.yTag);
    }
}

TEST(ShiftsAndRotate, UntaggedYUsesTheDefaultFormat) {
    Engine e = Holding({{300, 0}, {1, 0}});
    e.prefs.SetIntegerFormat(kDefaultU8);
    e.Dispatch(fid::ShiftLeft);  // 300 is 44 in u8
    EXPECT_EQ(e.X(), 88.0);
    EXPECT_EQ(e.XTag(), U8);
}

TEST(IntegerTags, FloatArithmeticRemovesThem) {
    struct Case { std::string_view name; FunctionId op; ValueTag yTag; ValueTag xTag; double result; };
    const Case cases[] = {
        {"u8 + plain",  fid::Add,      U8,  0,   8},
        {"u8 - u8",     fid::Subtract, U8,  U8,  2},
        {"s16 x u8",    fid::Multiply, S16, U8,  15},
        {"plain / s32", fid::Divide,   0,   S32, 5.0 / 3.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({{5, c.yTag}, {3, c.xTag}});
        e.Dispatch(c.op);
        EXPECT_EQ(e.X(), c.result);
        EXPECT_EQ(e.XTag(), 0);
    }
}

TEST(IntegerTags, IntegerNegationKeepsTheFormat) {
    Engine e = Holding({{5, U8}});
    e.Dispatch(fid::IntegerNegate);
    EXPECT_EQ(e.X(), 251.0);
    EXPECT_EQ(e.XTag(), U8);
    e = Holding({{-128, S8}});
    e.Dispatch(fid::IntegerNegate);
    EXPECT_EQ(e.X(), -128.0);
}

TEST(IntegerTags, BaseKeysMakeAPlainNumberTheWholeNumberShown) {
    Engine e = Holding({{300.7, 0}});
    e.state.status |= 4;  // the programmer keyboard
    e.prefs.SetIntegerFormat(kDefaultU8);
    e.Dispatch(fid::BaseHex);
    EXPECT_EQ(e.X(), 44.0);
    EXPECT_EQ(e.XTag(), U8);
    EXPECT_EQ(XText(e), "2C.");

    e = Holding({{12.5, Meters}});  // a unit is not a plain number
    e.state.status |= 4;
    e.Dispatch(fid::BaseBinary);
    EXPECT_EQ(e.X(), 12.5);
    EXPECT_EQ(e.XTag(), Meters);

    e = Holding({{12.5, 0}});  // decimal changes nothing
    e.state.status |= 4;
    e.Dispatch(fid::BaseDecimal);
    EXPECT_EQ(e.X(), 12.5);

    e = Holding({{12.5, 0}});  // nor does a base on a keyboard without integer entry
    e.Dispatch(fid::BaseHex);
    EXPECT_EQ(e.X(), 12.5);
}

TEST(IntegerTags, HexadecimalEntryAndDisplay) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.state.status |= 4;
    e.prefs.SetIntegerFormat(kDefaultS8);
    Press(e, {fid::BaseHex, 15, 15, fid::Enter, 1, fid::IntegerAdd});
    EXPECT_EQ(e.X(), 0.0);  // FF is -1 in s8
    Press(e, {fid::Not});
    EXPECT_EQ(XText(e), "FF.");
    Press(e, {fid::BaseBinary});
    EXPECT_EQ(XText(e), "11111111.");
    Press(e, {fid::BaseDecimal});
    EXPECT_EQ(XText(e), "-1.");
    EXPECT_EQ(XLabel(e), "s8");
}

}  // namespace
}  // namespace brinto
