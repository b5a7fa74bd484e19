#include "session/appearance.h"

namespace brinto {

namespace {
// The stored choice, or the theme's value for it when the choice is 0 "Default".
int Resolved(int choice, int themeValue) { return choice != 0 ? choice : themeValue; }
}  // namespace

KeyColouring KeyColouringOf(const Preferences& prefs, const ThemeSet& themes) {
    switch (Resolved(prefs.KeyColor(), themes.keyStyle()[key_style::Color])) {
    case 2: return KeyColouring::Foreground;
    case 3: return KeyColouring::Background;
    default: return KeyColouring::Shift;
    }
}

PressedColouring PressedColouringOf(const Preferences& prefs, const ThemeSet& themes) {
    switch (Resolved(prefs.ActiveKey(), themes.keyStyle()[key_style::Active])) {
    case 2: return PressedColouring::Foreground;
    case 3: return PressedColouring::Swapped;
    default: return PressedColouring::Shift;
    }
}

}  // namespace brinto
