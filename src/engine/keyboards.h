#pragma once
// The nine keyboards and the 12-key blocks that differ between them.
#include <array>
#include <string_view>

#include "engine/types.h"
#include "engine/user_key_map.h"

namespace brinto {

inline constexpr int kKeyboardCount = 9;
inline constexpr int kUserKeyboard = 8;
inline constexpr int kProgrammerKeyboard = 4;
inline constexpr int kBlockKeys = 12;

inline constexpr std::array<std::string_view, kKeyboardCount> kKeyboardNames = {
    "General", "Financial", "Scientific", "Statistical", "Programmer",
    "Conversion 1", "Conversion 2", "Date & Time", "User"};

using KeyBlock = std::array<u32, kBlockKeys>;

// The 12-key block of a keyboard in a shift state (a shift above 1 counts as 1, a keyboard of 9 or
// more as 0); the User keyboard's blocks come from its key map.
KeyBlock KeyLayout(int keyboard, int shift, const UserKeyMap& userKeys);

}  // namespace brinto
