// The programmer keyboard: the format keys, NOT, the two-operand integer operations, and the tag
// of X after a change of entry base.
#include "ops/integer_ops.h"

#include <algorithm>
#include <cstdint>

#include "engine/numeric/integer_format.h"
#include "ops/key_handlers.h"

namespace brinto {

namespace {

using i64 = std::int64_t;

// The word shifted right n steps within the low `bits` bits; each step clears the top bit of the
// width, or (arithmetic shift of a word whose top bit was set) sets it again. A negative count
// shifts left. Counts beyond the width give the same word as the width itself, so they are capped
// (which also keeps a count of -2^31 from overflowing).
u32 ShiftRight(u32 word, i64 n, IntegerFormat f, bool arithmetic) {
    const u32 mask = WidthMask(f);
    const u32 top = u32{1} << (f.bits - 1);
    word &= mask;
    if (n < 0) {
        const i64 steps = std::min<i64>(-n, f.bits);
        for (i64 i = 0; i < steps; ++i) word <<= 1;
        return word & mask;
    }
    const bool fill = arithmetic && (word & top);
    const i64 steps = std::min<i64>(n, f.bits);
    for (i64 i = 0; i < steps; ++i) {
        word = (word >> 1) & ~top;
        if (fill) word |= top;
    }
    return word;
}

// Rotate right within the width; the count is read unsigned, so -1 rotates by width - 1.
u32 RotateRight(u32 word, i32 n, IntegerFormat f) {
    const u32 top = u32{1} << (f.bits - 1);
    word &= WidthMask(f);
    const u32 steps = static_cast<u32>(n) % static_cast<u32>(f.bits);
    for (u32 i = 0; i < steps; ++i) word = (word >> 1) | ((word & 1) ? top : 0);
    return word;
}

// Shifts and rotate work in Y's format; the count is X as a signed 32-bit number.
TaggedValue ShiftOperation(const Preferences& prefs, FunctionId op, TaggedValue y, TaggedValue x) {
    const ValueTag formatTag = IntegerFormatOf(prefs, y.tag);
    const IntegerFormat f = FormatOfTag(formatTag);
    const u32 word = NarrowBits(y.value, y.tag, ValueTag::U32);
    const i32 count = static_cast<i32>(NarrowBits(x.value, x.tag, ValueTag::S32));
    u32 bits = 0;
    switch (op) {
        case fid::ShiftLeft: bits = ShiftRight(word, -i64{count}, f, false); break;
        case fid::ShiftRight: bits = ShiftRight(word, count, f, false); break;
        case fid::ArithmeticShiftRight: bits = ShiftRight(word, count, f, true); break;
        default: bits = RotateRight(word, count, f); break;
    }
    return {ValueOfBits(bits, f), formatTag};
}

// Both operands in the default format; the result wraps to it.
TaggedValue WordOperation(const Preferences& prefs, FunctionId op, TaggedValue y, TaggedValue x) {
    const ValueTag formatTag = IntegerFormatOf(prefs, ValueTag::None);
    const IntegerFormat f = FormatOfTag(formatTag);
    const u32 a = NarrowBits(y.value, y.tag, formatTag);
    const u32 b = NarrowBits(x.value, x.tag, formatTag);
    u32 bits = 0;
    switch (op) {
        case fid::And: bits = a & b; break;
        case fid::Or: bits = a | b; break;
        case fid::Xor: bits = a ^ b; break;
        case fid::IntegerAdd: bits = a + b; break;
        case fid::IntegerSubtract: bits = a - b; break;
        case fid::IntegerMultiply: bits = a * b; break;
        default: {
            if (b == 0) return {kErrorValue, ValueTag::None};
            // Signed division truncates toward zero; -2^31 / -1 fits in 64 bits and then wraps
            // back to -2^31 like any other result beyond the format.
            const i64 quotient = static_cast<i64>(ValueOfBits(a, f)) / static_cast<i64>(ValueOfBits(b, f));
            bits = static_cast<u32>(quotient);
            break;
        }
    }
    return {ValueOfBits(bits, f), formatTag};
}

// X narrowed from its own tag into a format and tagged with it (none: the s32 width, untagged).
void SetFormat(Engine& e, ValueTag formatTag) {
    const double value = Narrow(e.X(), e.XTag(), formatTag);
    e.SetX(value);
    e.SetXTag(formatTag);
}

void BitwiseNot(Engine& e) {
    e.SaveLastX();
    const ValueTag formatTag = IntegerFormatOf(e.prefs, e.XTag());
    const u32 bits = NarrowBits(e.X(), e.XTag(), formatTag);
    e.SetX(ValueOfBits(~bits, FormatOfTag(formatTag)));  // for a signed format this is -x - 1
    e.SetXTag(formatTag);
}

}  // namespace

std::optional<TaggedValue> IntegerOperation(const Preferences& prefs, FunctionId op, TaggedValue y, TaggedValue x) {
    switch (op) {
        case fid::And: case fid::Or: case fid::Xor:
        case fid::IntegerAdd: case fid::IntegerSubtract: case fid::IntegerMultiply: case fid::IntegerDivide:
            return WordOperation(prefs, op, y, x);
        case fid::ShiftLeft: case fid::ShiftRight: case fid::ArithmeticShiftRight: case fid::RotateRight:
            return ShiftOperation(prefs, op, y, x);
        default:
            return std::nullopt;
    }
}

bool HandleIntegerKey(Engine& e, FunctionId id) {
    for (const IntegerFormatRow& row : kIntegerFormats) {
        if (row.key != id) continue;
        if (!e.EntryOpen()) e.SaveLastX();
        SetFormat(e, row.tag);
        return true;
    }
    switch (id) {
        case fid::ToDefaultFormat:
            e.SaveLastX();
            SetFormat(e, DefaultIntegerFormatTag(e.prefs));
            return true;
        case fid::Not: BitwiseNot(e); return true;
        default: return false;
    }
}

void RederiveIntegerTag(Engine& e) {
    // In binary, octal or hexadecimal a plain number is shown as a whole number of the default
    // format; it becomes that number, so that what is stored is what is shown. Units, dates and
    // values already in a format keep theirs, and decimal changes nothing.
    if (e.EntryBase() == 0 || !e.IntegerEntryAllowed()) return;
    if (TagCategory(e.XTag()) != Category::None) return;
    SetFormat(e, IntegerFormatOf(e.prefs, e.XTag()));
}

}  // namespace brinto
