#pragma once
// Integer formats of the programmer keyboard and the narrowing of a stack value into one.
//
// The stack keeps doubles; a value whose tag is one of the six integer formats (1924..1929:
// u8, s8, u16, s16, u32, s32) stands for a whole number of that width and signedness. Every
// integer operation and the display in binary, octal and hexadecimal first narrow the double to
// such a format. Narrowing never fails: values beyond the width wrap around, and a value that is
// not finite counts as 0.
#include "engine/preferences.h"
#include "engine/types.h"

namespace brinto {

struct IntegerFormat {
    int bits;       // 8, 16 or 32
    bool isSigned;  // two's complement when set
};

inline constexpr ValueTag kFirstIntegerTag = 1924;  // u8; then s8, u16, s16, u32, s32
inline constexpr ValueTag kLastIntegerTag = 1929;   // s32

constexpr bool IsIntegerFormatTag(ValueTag tag) {
    return tag >= kFirstIntegerTag && tag <= kLastIntegerTag;
}

// The width and signedness named by an integer-format tag. Any other tag reads as s32, the
// format in which binary, octal and hexadecimal entry is read.
constexpr IntegerFormat FormatOfTag(ValueTag tag) {
    if (!IsIntegerFormatTag(tag)) return {32, true};
    const int index = tag - kFirstIntegerTag;
    return {8 << (index / 2), index % 2 == 1};
}

// All ones in the low `bits` bits: 255, 65535 or 4294967295.
constexpr u32 WidthMask(IntegerFormat f) {
    return f.bits >= 32 ? 0xFFFFFFFFu : (u32{1} << f.bits) - 1;
}

// The user's default integer format ("Integer:" preference) as a tag, or 0 when the preference
// selects none.
int DefaultIntegerFormatTag(const Preferences& prefs);

// The integer format a value of tag `tag` is read in: its own tag when that is an integer
// format, else the default format (0 when there is none).
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
