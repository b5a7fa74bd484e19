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

}  // namespace brinto
