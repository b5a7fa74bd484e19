#pragma once
// What the appearance choices of the "Display" and "Keyboard" pages mean on screen. Each choice
// is read from Preferences; its "Default" entry takes the value the current theme gives it
// (the style and key-style values of theme.h), so one theme can prefer a plain display, another
// outlined keys without shadow.
#include "engine/preferences.h"
#include "session/theme.h"

namespace brinto {

// "Color:": how the keys are coloured.
enum class KeyColouring {
    Shift,       // faces and legends by key class; shifted legends in the shift colour
    Foreground,  // faces by key class; shifted legends in the key's own legend colour
    Background,  // every key on the face of the standard keys; shifted legends in the shift colour
};
// "Active:": how a pressed key is drawn.
enum class PressedColouring {
    Shift,       // the face turns to the shift colour
    Foreground,  // the face turns to the highlight colour (green in the colour themes)
    Swapped,     // face and legend colours change places
};

KeyColouring KeyColouringOf(const Preferences& prefs, const ThemeSet& themes);
PressedColouring PressedColouringOf(const Preferences& prefs, const ThemeSet& themes);

}  // namespace brinto
