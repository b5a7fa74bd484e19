#pragma once
// Integer formats of the programmer keyboard and the narrowing of a stack value into one.
//
// The stack keeps doubles; a value whose tag is one of the six integer formats (u8, s8, u16,
// s16, u32, s32) stands for a whole number of that width and signedness. Every
// integer operation and the display in binary, octal and hexadecimal first narrow the double to
// such a format. Narrowing never fails: values beyond the width wrap around, and a value that is
// not finite counts as 0.
#include <array>

#include "engine/function_ids.h"
#include "engine/preferences.h"

namespace brinto {

struct IntegerFormat {
    int bits;       // 8, 16 or 32
    bool isSigned;  // two's complement when set
};

struct IntegerFormatRow {
    FunctionId key;  // the programmer keyboard's key that sets the format
    ValueTag tag;
    IntegerFormat format;
};
inline constexpr std::array kIntegerFormats = {
    IntegerFormatRow{fid::FormatU8, ValueTag::U8, {8, false}},
    IntegerFormatRow{fid::FormatS8, ValueTag::S8, {8, true}},
    IntegerFormatRow{fid::FormatU16, ValueTag::U16, {16, false}},
    IntegerFormatRow{fid::FormatS16, ValueTag::S16, {16, true}},
    IntegerFormatRow{fid::FormatU32, ValueTag::U32, {32, false}},
    IntegerFormatRow{fid::FormatS32, ValueTag::S32, {32, true}},
};

constexpr const IntegerFormatRow* FindIntegerFormat(ValueTag tag) {
    for (const IntegerFormatRow& row : kIntegerFormats) {
        if (row.tag == tag) return &row;
    }
    return nullptr;
}

constexpr bool IsIntegerFormatTag(ValueTag tag) { return FindIntegerFormat(tag) != nullptr; }

// The width and signedness named by an integer-format tag. Any other tag reads as s32, the
// format in which binary, octal and hexadecimal entry is read.
constexpr IntegerFormat FormatOfTag(ValueTag tag) {
    const IntegerFormatRow* row = FindIntegerFormat(tag);
    return row ? row->format : IntegerFormat{32, true};
}

// All ones in the low `bits` bits: 255, 65535 or 4294967295.
constexpr u32 WidthMask(IntegerFormat f) {
    return f.bits >= 32 ? 0xFFFFFFFFu : (u32{1} << f.bits) - 1;
}

// The user's default integer format ("Integer:" preference) as a tag, or none when the
// preference selects none.
ValueTag DefaultIntegerFormatTag(const Preferences& prefs);

// The integer format a value of tag `tag` is read in: its own tag when that is an integer
// format, else the default format (none when there is none).
ValueTag IntegerFormatOf(const Preferences& prefs, ValueTag tag);

// Conversions of a double to a 32-bit integer: truncation toward zero, then wrap-around modulo
// 2^32 (so -1 gives 4294967295 unsigned and 4294967296 gives 0). NaN and infinities give 0.
// Both are defined for every double.
u32 ToUnsigned32(double x);
i32 ToSigned32(double x);

// The low bits of `x` narrowed from a value tagged `sourceTag` into the format
// `targetFormatTag` (an integer-format tag; anything else is read as s32), masked to the
// target's width.
u32 NarrowBits(double x, ValueTag sourceTag, ValueTag targetFormatTag);

// The whole number that `x` becomes in the format `targetFormatTag`: the narrowed bits read as
// unsigned, or as two's complement for a signed format. 300 in u8 is 44; -1 in u8 is 255; 255
// in s8 is -1.
double Narrow(double x, ValueTag sourceTag, ValueTag targetFormatTag);

// The value of a bit pattern in a format: the low bits of `bits`, sign-extended from the width
// for a signed format. Integer operations use it to store a wrapped result back.
double ValueOfBits(u32 bits, IntegerFormat format);

}  // namespace brinto
