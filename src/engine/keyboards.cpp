#include "engine/keyboards.h"

namespace brinto {

static_assert([] {
    for (std::size_t k = 0; k < kBuiltInKeyboards.size(); ++k) {
        if (kBuiltInKeyboards[k].name != kKeyboardNames[k]) return false;
    }
    return true;
}(), "the built-in keyboards are listed in the order of their names");

KeyBlock KeyLayout(int keyboard, int shift, const UserKeyMap& userKeys) {
    if (keyboard < 0 || keyboard >= kKeyboardCount) keyboard = 0;
    const bool shifted = shift > 0;
    if (keyboard == kUserKeyboard) {
        KeyBlock block{};
        for (int k = 0; k < kBlockKeys; ++k) block[k] = userKeys.keys[(shifted ? kBlockKeys : 0) + k];
        return block;
    }
    const KeyboardLayout& layout = kBuiltInKeyboards[static_cast<std::size_t>(keyboard)];
    return shifted ? layout.shifted : layout.unshifted;
}

}  // namespace brinto
