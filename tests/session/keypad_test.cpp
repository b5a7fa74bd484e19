#include "session/keypad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "engine/key_table.h"
#include "session/key_legends.h"
#include "engine/keyboards.h"

namespace brinto {
namespace {

// Every FunctionId on some face: the eight built-in 12-key blocks and the shared keypad, each
// unshifted and shifted.
std::set<FunctionId> AdvancedFaces() {
    std::set<FunctionId> faces;
    const UserKeyMap none = EmptyUserKeyMap();
    for (int keyboard = 0; keyboard < kUserKeyboard; ++keyboard) {
        for (int shift = 0; shift < 2; ++shift) {
            for (const FunctionId id : KeyLayout(keyboard, shift, none)) faces.insert(id);
        }
    }
    for (const KeypadRow& row : SharedKeypad()) {
        for (const KeypadKey& key : row) faces.insert({key.unshifted, key.shifted});
    }
    return faces;
}

// Characters as a reader counts them: combining marks (the bar of x̄, the hat of ŷ) add none.
int VisibleLength(std::string_view utf8) {
    int count = 0;
    for (std::size_t i = 0; i < utf8.size();) {
        const unsigned char lead = static_cast<unsigned char>(utf8[i]);
        const int bytes = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t cp = bytes == 1 ? lead : lead & (0x3F >> (bytes - 1));
        for (int k = 1; k < bytes; ++k) cp = (cp << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        if (cp < 0x0300 || cp > 0x036F) ++count;
        i += bytes;
    }
    return count;
}

TEST(Keypad, EveryKeyCanBeTappedAndHasAFace) {
    // Keys that need no face of their own: second keys of the same function, the second and third
    // shift, and the variants the keyboard sends in place of the key the user taps.
    const std::set<FunctionId> noFaceNeeded = {
        fid::SecondPoint,          fid::SecondClearAll,       fid::SecondClearStack,   fid::SecondClearX,
        fid::SecondEnter,          fid::SecondAmortize,       fid::FirstShift,    fid::SecondShift,
        fid::IntegerNegate,   fid::ToDefaultFormat, fid::IntegerAdd,    fid::IntegerSubtract,
        fid::IntegerMultiply, fid::IntegerDivide,   fid::RecallVariant, fid::RecallLarge,
        fid::ExchangeVariant, fid::ExchangeLarge,   fid::StoreVariant,  fid::StoreLarge};
    const std::set<FunctionId> faces = AdvancedFaces();
    for (const KeyInfo& key : kKeyTable) {
        SCOPED_TRACE(std::string(key.name));
        if (!noFaceNeeded.contains(key.id)) {
            EXPECT_TRUE(faces.contains(key.id)) << "no key sends it";
        }
        const KeyLegend* legend = FindLegend(key.id);
        ASSERT_NE(legend, nullptr);
        EXPECT_EQ(legend->id, key.id);
        EXPECT_FALSE(legend->fullName.empty());
        const int length = VisibleLength(legend->legend);
        EXPECT_TRUE(length >= 1 && length <= 6) << legend->legend << " does not fit a key";
    }
    EXPECT_EQ(FindLegend(kNoKey), nullptr);
    // A key drawn on screen that brinto-cli cannot name would be a key the tests cannot drive.
    for (const FunctionId id : faces) EXPECT_NE(FindLegend(id), nullptr) << "face " << ToNumber(id);
}

TEST(Keypad, EachFaceAppearsOnceOnTheSharedKeypad) {
    // Two faces with one function would waste a key; shifted faces may repeat their own key.
    std::vector<FunctionId> seen;
    for (const KeypadRow& row : SharedKeypad()) {
        for (const KeypadKey& key : row) {
            seen.push_back(key.unshifted);
            if (key.shifted != key.unshifted) seen.push_back(key.shifted);
        }
    }
    std::sort(seen.begin(), seen.end());
    EXPECT_EQ(std::adjacent_find(seen.begin(), seen.end()), seen.end());
    EXPECT_EQ(SharedKeypad().size(), 5u);
}

}  // namespace
}  // namespace brinto
