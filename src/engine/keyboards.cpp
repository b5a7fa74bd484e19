#include "engine/keyboards.h"

namespace brinto {

namespace {
// Keyboards 0..7, unshifted then shifted.
constexpr std::array<KeyBlock, 16> kBuiltInBlocks = {{
    {54, 55, 56, 58, 66, 59, 166, 64, 65, 60, 61, 67},              // General
    {209, 210, 211, 173, 184, 177, 212, 214, 215, 174, 175, 176},
    {69, 70, 71, 72, 73, 45, 36, 85, 79, 80, 81, 46},               // Financial
    {77, 75, 76, 74, 83, 84, 78, 86, 88, 87, 82, 68},
    {89, 90, 91, 95, 97, 98, 166, 64, 65, 96, 99, 100},             // Scientific
    {92, 93, 94, 104, 106, 108, 101, 102, 103, 105, 107, 109},
    {118, 112, 113, 119, 117, 111, 37, 126, 121, 128, 124, 110},    // Statistical
    {120, 114, 115, 116, 123, 111, 37, 127, 122, 129, 125, 110},
    {130, 131, 13, 14, 15, 134, 132, 133, 10, 11, 12, 135},         // Programmer
    {141, 140, 167, 169, 171, 137, 138, 139, 168, 170, 172, 136},
    {142, 143, 218, 158, 157, 228, 217, 216, 145, 219, 144, 220},   // Conversion 1
    {146, 147, 224, 156, 159, 155, 221, 222, 149, 223, 148, 225},
    {237, 163, 236, 235, 234, 160, 238, 161, 162, 233, 232, 231},   // Conversion 2
    {151, 150, 226, 240, 239, 165, 227, 153, 152, 230, 229, 164},
    {187, 188, 189, 191, 193, 195, 185, 205, 190, 192, 194, 196},   // Date & Time
    {203, 204, 199, 201, 108, 198, 186, 58, 200, 202, 109, 197},
}};
}  // namespace

KeyBlock KeyLayout(int keyboard, int shift, const UserKeyMap& userKeys) {
    if (keyboard < 0 || keyboard >= kKeyboardCount) keyboard = 0;
    shift = shift > 0 ? 1 : 0;
    if (keyboard == kUserKeyboard) {
        KeyBlock block{};
        for (int k = 0; k < kBlockKeys; ++k) block[k] = userKeys.keys[shift * kBlockKeys + k];
        return block;
    }
    return kBuiltInBlocks[keyboard * 2 + shift];
}

}  // namespace brinto
