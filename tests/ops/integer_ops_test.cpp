#include <gtest/gtest.h>

#include <cmath>

#include "engine/numeric/integer_format.h"
#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;
using enum ValueTag;

// Default integer formats by their preference value; 6 selects none.
constexpr int kDefaultU8 = 0, kDefaultS8 = 1, kDefaultU16 = 2, kDefaultS16 = 3, kDefaultU32 = 4, kDefaultS32 = 5;
constexpr int kDefaultNone = 6;
constexpr FunctionId kU8Key = fid::FormatU8, kS8Key = fid::FormatS8, kU16Key = fid::FormatU16, kS16Key = fid::FormatS16, kU32Key = fid::FormatU32, kS32Key = fid::FormatS32;

// The engine after `key` on `levels`, with `format` the default integer format.
Engine InFormat(int format, std::initializer_list<TaggedValue> levels, FunctionId key) {
    Engine e = Holding(levels);
    e.prefs.SetIntegerFormat(format);
    e.Dispatch(key);
    return e;
}

TEST(IntegerKeys, NarrowComplementAndMakeAPlainNumberTheWholeNumberShown) {
    const FunctionId Not = fid::Not, Neg = fid::IntegerNegate;
    CheckKeys({
        {kU8Key, {-1, None}, {255, U8}},          {kS8Key, {-1, None}, {-1, S8}},          {kS8Key, {255, U8}, {-1, S8}},
        {kS8Key, {128, None}, {-128, S8}},        {kU8Key, {-128, S8}, {128, U8}},      {kU16Key, {-1, S8}, {65535, U16}},
        {kS16Key, {40000, U16}, {-25536, S16}}, {kS16Key, {4294967295.0, U32}, {-1, S16}},
        {kU32Key, {-1, S32}, {4294967295.0, U32}}, {kS32Key, {3e9, None}, {-1294967296.0, S32}},
        {kS32Key, {-2.9, None}, {-2, S32}},       {kU16Key, {70000, Meters}, {4464, U16}}, {kU8Key, {NAN, None}, {0, U8}},
        {kS32Key, {1e300, None}, {0, S32}},       {Not, {0, U16}, {65535, U16}},         {Not, {5, S8}, {-6, S8}},
        {Not, {0, U32}, {4294967295.0, U32}},  {Not, {-1, S32}, {0, S32}},            {Not, {300, U8}, {211, U8}},
        {Neg, {5, U8}, {251, U8}},             {Neg, {-128, S8}, {-128, S8}},
    });
    // Untagged values take the default format; with none, a whole number of 32 bits, untagged.
    EXPECT_EQ(XOf(InFormat(kDefaultU8, {{1, None}}, Not)), Tagged(254, U8));
    EXPECT_EQ(XOf(InFormat(kDefaultU8, {{300, None}, {1, None}}, fid::ShiftLeft)), Tagged(88, U8));  // 300 is 44
    Engine e = InFormat(kDefaultU16, {{-1, None}}, fid::ToDefaultFormat);
    EXPECT_EQ(XOf(e), Tagged(65535, U16));
    EXPECT_EQ(e.state.lastX, -1.0);
    EXPECT_EQ(XOf(InFormat(kDefaultNone, {{4294967295.0, U32}}, fid::ToDefaultFormat)), Tagged(-1, None));
    e = After({{5, None}}, kU8Key);  // Last X is saved unless a number is being typed
    Press(e, {9, kS8Key});
    EXPECT_EQ(e.state.lastX, 5.0);
    EXPECT_EQ(XOf(e), Tagged(9, S8));
    e = Holding({{300.7, None}});
    e.state.status |= 4;  // the programmer keyboard
    e.prefs.SetIntegerFormat(kDefaultU8);
    e.Dispatch(fid::BaseHex);
    EXPECT_EQ(XOf(e), Tagged(44, U8));
    // A unit is not a plain number, decimal changes nothing, and no base applies on a keyboard
    // without integer entry.
    struct Case { TaggedValue x; FunctionId base; u16 keyboard; };
    for (const Case& c : {Case{{12.5, Meters}, fid::BaseBinary, 4}, Case{{12.5, None}, fid::BaseDecimal, 4},
                          Case{{12.5, None}, fid::BaseHex, 0}}) {
        e = Holding({c.x});
        e.state.status |= c.keyboard;
        e.Dispatch(c.base);
        EXPECT_EQ(XOf(e), Of(c.x)) << c.base;
    }
}

TEST(IntegerArithmetic, WrapsToTheDefaultFormat) {
    struct Case { FunctionId op; TaggedValue y, x; int format; double result; };
    const double err = kErrorValue;
    const FunctionId Add = fid::IntegerAdd, Div = fid::IntegerDivide;
    const Case cases[] = {
        {fid::IntegerSubtract, {0, None}, {1, None}, kDefaultU16, 65535},      {Add, {127, None}, {1, None}, kDefaultS8, -128},
        {fid::IntegerMultiply, {300, None}, {300, None}, kDefaultS16, 24464},
        {Add, {255, U8}, {-1, S8}, kDefaultS16, 254},  // operands narrow first
        {Add, {2147483647.0, None}, {1, None}, kDefaultNone, -2147483648.0},
        {Div, {4294967295.0, None}, {2, None}, kDefaultU32, 2147483647},       {Div, {-7, None}, {2, None}, kDefaultS8, -3},
        {Div, {-128, None}, {-1, None}, kDefaultS8, -128},                     {Div, {-32768, None}, {-1, None}, kDefaultS16, -32768},
        {Div, {-2147483648.0, None}, {-1, None}, kDefaultS32, -2147483648.0},
        {Div, {5, None}, {256, None}, kDefaultU8, err},  // the divisor narrows to 0
        {fid::And, {12, None}, {10, None}, kDefaultU8, 8},  {fid::Or, {12, None}, {10, None}, kDefaultU8, 14},
        {fid::Xor, {12, None}, {10, None}, kDefaultU8, 6},  {fid::And, {-1, None}, {-256, None}, kDefaultS16, -256},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "op " << c.op << " " << c.y.value << " " << c.x.value);
        const Engine e = InFormat(c.format, {c.y, c.x}, c.op);
        EXPECT_EQ(XOf(e), Tagged(c.result, c.result == err || c.format == kDefaultNone ? None : kIntegerFormats[c.format].tag));
        EXPECT_EQ(e.state.lastX, c.x.value);
    }
}

TEST(ShiftsAndRotate, CountsNegativeAndBeyondTheWidth) {
    const FunctionId Sl = fid::ShiftLeft, Sr = fid::ShiftRight, Rr = fid::RotateRight;
    const FunctionId Asr = fid::ArithmeticShiftRight;
    CheckOperators({
        {Sl, {1, U8}, {7, None}, {128, U8}},             {Sl, {1, U8}, {100, None}, {0, U8}},
        {Sl, {4, U8}, {-1, None}, {2, U8}},              {Sl, {255, U8}, {-2147483648.0, None}, {0, U8}},
        {Sl, {5, U8}, {4294967296.0, None}, {5, U8}},    {Sl, {1, S32}, {31, None}, {-2147483648.0, S32}},
        {Sl, {1, U32}, {31, None}, {2147483648.0, U32}}, {Sr, {128, U8}, {3, None}, {16, U8}},
        {Sr, {128, U8}, {200, None}, {0, U8}},           {Sr, {3, U8}, {-2, None}, {12, U8}},
        {Sr, {-128, S8}, {1, None}, {64, S8}},           {Asr, {-128, S8}, {3, None}, {-16, S8}},
        {Asr, {-128, S8}, {100, None}, {-1, S8}},        {Asr, {64, S8}, {1, None}, {32, S8}},
        {Asr, {32768, U16}, {15, None}, {65535, U16}},   {Rr, {3, U8}, {9, None}, {129, U8}},
        {Rr, {1, U16}, {1, None}, {32768, U16}},         {Rr, {1, S32}, {1, None}, {-2147483648.0, S32}},
        // Float arithmetic removes the integer tags.
        {fid::Subtract, {5, U8}, {3, U8}, {2, None}}, {fid::Multiply, {5, S16}, {3, U8}, {15, None}},
        {fid::Divide, {5, None}, {3, S32}, {5.0 / 3.0, None}},
    });
}

}  // namespace
}  // namespace brinto
