#pragma once
// What the key and display views draw with: colours by role, key legends and names, and the
// arrangement of the keys. One place, so that the drawing code never decides these itself.
#include <QColor>
#include <QString>
#include <array>
#include <vector>

#include "engine/preferences.h"
#include "engine/types.h"

namespace brinto {

enum class KeyRole { Standard, Number, Register, Clear };

struct KeyColours {
    QColor face, text, shiftedText, pressedFace, pressedText, shadow, edge;
};

struct Colours {
    QColor window, displayBackground, displayText, displayNegative, displayInteger, displayLabel,
        annunciator, keyboardBackground;
    std::array<KeyColours, 4> keys;  // by KeyRole
};

Colours ColoursFor(const Preferences& prefs);
KeyRole RoleOf(FunctionId id);

// The legend on the key face, the function's full name and the hardware key doing the same
// (empty when there is none).
QString LegendOf(FunctionId id);
QString FullNameOf(FunctionId id);
QString HardwareKeyOf(FunctionId id);

// A key of the shared keypad or of the Basic view, with its shifted meaning.
struct PadKey {
    FunctionId unshifted;
    FunctionId shifted;
};
inline constexpr int kPadColumns = 6;
// The keypad under every keyboard's 12-key block, row by row.
const std::vector<PadKey>& SharedKeypad();
// The Basic view's keys (columns given), by input method.
std::vector<PadKey> BasicKeypad(InputMethod method);
inline constexpr int kBasicColumns = 4;

}  // namespace brinto
