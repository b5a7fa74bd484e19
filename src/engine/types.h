#pragma once
// The integer vocabulary shared by every part of the calculator.
#include <cstdint>
#include <limits>

namespace brinto {

using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;
using i16 = std::int16_t;
using i32 = std::int32_t;

// A key code: keys, user key assignments and macro steps share this numbering. The keys are
// named in engine/function_ids.h.
enum class FunctionId : u32;
// The tag on a stack value: a unit, an integer format, a date kind or a result label. The tags
// are named in engine/value_tags.h.
enum class ValueTag : u16;

inline constexpr u16 kNoAux = 0xFFFF;  // aux code of a value that has none

// Failures of calculation leave positive infinity in X; the display shows it as "error".
inline constexpr double kErrorValue = std::numeric_limits<double>::infinity();
inline bool IsErrorValue(double v) { return v == kErrorValue; }

// The bit words of the records (status, view and engine flags, preference words) change a few
// bits at a time: these say which, without the casts that 16-bit arithmetic needs.
constexpr void SetBits(u16& word, u16 bits) { word = static_cast<u16>(word | bits); }
constexpr void ClearBits(u16& word, u16 bits) { word = static_cast<u16>(word & ~bits); }
// The field under `mask` becomes `bits` (already in place within the mask).
constexpr void ReplaceBits(u16& word, u16 mask, u16 bits) { word = static_cast<u16>((word & ~mask) | (bits & mask)); }

}  // namespace brinto
