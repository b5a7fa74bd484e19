#pragma once
// What the appearance choices of the "Display" and "Keyboard" pages mean on screen. Each choice
// is read from Preferences; its "Default" entry takes the value the current theme gives it (the
// style and key-style values of theme.h), so "Light Background" comes with small keys in a
// frame, the grey and black-and-white themes with outlined keys and large display fonts. A
// stored value outside a list (the record is not range-checked) counts as "Default".
//
// Pixel sizes here are for the handheld's 240-pixel-wide screen, like the key size sets: the
// program multiplies them by GridScale of the view they are drawn in. AppearanceGuide() says the
// same in words, one row per choice, for the user guide.
#include <optional>
#include <span>
#include <string_view>

#include "engine/preferences.h"
#include "session/key_grid.h"
#include "session/theme.h"

namespace brinto {

// "Size:": the key size set.
KeySize KeySizeOf(const Preferences& prefs, const ThemeSet& themes);

// "Keys:": how the main and the shifted legend share a key.
enum class LegendArrangement {
    Static,   // main legend large; shifted legend small along the top, in the shift colour
    Swapped,  // as Static, but while shifted the shifted legend is large and the main one small
    Zoomed,   // one legend, larger: the main one, or the shifted one while shifted
};
LegendArrangement LegendArrangementOf(const Preferences& prefs, const ThemeSet& themes);

enum class Legend { Main, Shifted };
// Where a key's legends go, in the key's own rectangle, and their font heights in pixels (of the
// view, not of the 240-wide screen: they are worked out from the key itself). The small legend
// is at least 0.55 of the large one, so it stays readable.
struct LegendPlacement {
    Legend large = Legend::Main;
    std::optional<Legend> small;  // none with Zoomed
    Rect largeArea, smallArea;
    int largePixels = 0, smallPixels = 0;
};
LegendPlacement PlaceLegends(LegendArrangement arrangement, bool shifted, Rect key);
// The lowest key whose small legend is still 8 pixels tall and whole: a smaller window gives the
// keys at least this much height, taken from the display.
int LegibleKeyHeight();

// "Color:": how the keys are coloured (screen_colours.h has the slots).
enum class KeyColouring {
    Shift,       // faces and legends by key class; shifted legends in the shift colour
    Foreground,  // faces by key class; shifted legends in the key's own legend colour
    Background,  // every key on the face of the standard keys; shifted legends in the shift colour
};
KeyColouring KeyColouringOf(const Preferences& prefs, const ThemeSet& themes);

// "Active:": how a pressed key is drawn.
enum class PressedColouring {
    Shift,       // the face turns to the shift colour
    Foreground,  // the face turns to the highlight colour (green in the colour themes)
    Swapped,     // face and legend colours change places
};
PressedColouring PressedColouringOf(const Preferences& prefs, const ThemeSet& themes);

// "Shadow:": how far below and right of a key its shadow reaches, in pixels of the 240-wide
// screen (None 0, Normal 1, Strong 2, Heavy 4).
int KeyShadowDepth(const Preferences& prefs, const ThemeSet& themes);

// "Show:": where the current keyboard's name is written.
enum class KeyboardNamePlace { None, AboveKeys, InDisplay };
KeyboardNamePlace KeyboardNamePlaceOf(const Preferences& prefs, const ThemeSet& themes);

// "Lines:" and "Basic also": how many stack levels (X first) the display shows in each view.
// The Basic view shows X alone unless "Basic also" is checked.
struct DisplayLines {
    int advanced = 1, basic = 1;
    friend bool operator==(const DisplayLines&, const DisplayLines&) = default;
};
DisplayLines DisplayLinesOf(const Preferences& prefs, const ThemeSet& themes);

// The display's five fonts, created once: 22 bold, 18 bold, 14 bold, 14 normal, 13 normal.
enum class DisplayFont { Bold22, Bold18, Bold14, Normal14, Normal13 };
struct FontMetrics {
    int pixels;  // height in pixels of the 240-wide screen
    bool bold;
};
FontMetrics FontOf(DisplayFont font);

// "Font:": which font serves which line of the display.
struct DisplayFonts {
    DisplayFont value;  // X, or the number being typed
    DisplayFont date;   // X when it is a date shown with "Long Date", which is long
    DisplayFont stack;  // the other stack levels
    DisplayFont label;  // labels beside values, annunciators, the keyboard's name
};
DisplayFonts DisplayFontsOf(const Preferences& prefs, const ThemeSet& themes);

// "Border:": None draws no frame; Display frames the display; Calculator frames the display and
// the keys, and only then do the keys keep the frame margins of their size set.
struct Borders {
    bool displayFrame = false;
    Framed keyboardFrame = Framed::No;
    friend bool operator==(const Borders&, const Borders&) = default;
};
Borders BordersOf(const Preferences& prefs, const ThemeSet& themes);

// One row per choice of the fields above, in the order the pages list them.
struct GuideRow {
    std::string_view field;    // the caption on the page, such as "Size:"
    std::string_view choice;   // the entry of its list, such as "Small"
    std::string_view meaning;  // what it does on screen
};
std::span<const GuideRow> AppearanceGuide();

}  // namespace brinto
