#pragma once
// MacroRecord: the one recorded keystroke macro, saved as a 256-byte image.
#include <cstddef>
#include <type_traits>

#include "engine/types.h"

namespace brinto {

inline constexpr int kMacroSlots = 63;     // 62 keys and the closing stop key
inline constexpr int kMacroKeyLimit = 62;  // the input-method key and 61 typed keys
inline constexpr u16 kMacroVersion = 2;

struct MacroRecord {
    u16 macroVersion;
    u16 macroLength;
    FunctionId macroKeys[kMacroSlots];
};

static_assert(std::is_trivially_copyable_v<MacroRecord>);
static_assert(sizeof(MacroRecord) == 256);
static_assert(offsetof(MacroRecord, macroKeys) == 4);

}  // namespace brinto
