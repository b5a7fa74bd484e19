#pragma once
// Which palette slot paints which part of the screen. The Qt program draws only with these
// colours; it never reads the palette itself.
//
// The display (plain: the theme's PlainDisplay style, or DisplayStyle::Plain)
//   element               coloured   plain   black-and-white themes
//   displayBackground        7         3     white
//   displayText              8         2     black
//   displayInteger           9         2     black   (a value with an integer-format tag)
//   displayNegative         10         2     black   (any other value below zero)
//   displayLabel            11         2     black   (the unit or result label beside a value)
//   annunciator             13         2     black   (active states; inactive ones are not drawn)
//   displayFrame            16        16     black   (border "Display" or "Calculator")
//
// Around the views
//   window                  15   background of the main window around the display and keys
//   keyboardBackground      15   behind the keys and in the gaps between them
//   keyboardName            17   the keyboard's name above the keys (falls back as legends do)
//
// Keys, by key class ("Color:" Shift or Foreground; with Background every class takes the
// Standard row)
//   class       face  legend
//   Standard     17     18
//   Number       25     26
//   Register     27     28
//   Clear        29     30
//   shiftedText: slot 21, the shift colour, for "Color:" Shift and Background; the key's own
//                legend colour for Foreground.
//   pressed:     "Active:" Shift: face 21, legend 22; Foreground: face 23, legend 24;
//                Swapped: the key's legend colour as face and its face colour as legend.
//   shadow, edge: slot 16 (the edge is drawn when the theme outlines its keys).
//
// Legibility: any legend (main, shifted, pressed, keyboard name) that would stand out from the
// colour behind it by less than 3:1 is drawn instead in slot 0 (black) or slot 1 (white),
// whichever stands out more; both are the same in every theme. This is what keeps the yellow
// shift colour off the light blue number keys, and dark legends off the darkest grey keys.
//
// Custom colours (the "Customize Colors" grid: "Text" and "Background" for "Standard:",
// "Number:", "Register:", "Clear:") replace a class's legend and face after the theme, and the
// shifted and pressed colours are worked out from the replaced ones.
#include <array>
#include <optional>

#include "engine/preferences.h"
#include "engine/types.h"
#include "session/theme.h"

namespace brinto {

enum class KeyClass { Standard, Number, Register, Clear };
inline constexpr int kKeyClasses = 4;

// Digits, the radix point and hexadecimal digits are Number keys; store, recall and exchange in
// every register variant are Register keys; the clear keys are Clear keys; the rest Standard.
KeyClass KeyClassOf(FunctionId id);

struct KeyColours {
    Rgb face, text, shiftedText, pressedFace, pressedText, shadow, edge;
};

struct ScreenColours {
    Rgb window;
    Rgb displayBackground, displayText, displayNegative, displayInteger, displayLabel;
    Rgb annunciator, displayFrame;
    Rgb keyboardBackground, keyboardName;
    std::array<KeyColours, kKeyClasses> keys;
    bool outlineKeys = false;  // draw each key's edge

    const KeyColours& Key(KeyClass k) const { return keys[static_cast<int>(k)]; }
};

// The user's colours over the theme, indexed by KeyClass; an empty entry keeps the theme's.
struct CustomColours {
    std::array<std::optional<Rgb>, kKeyClasses> text, background;
};

// Whether the display is drawn plain (black on white in every theme) or in the theme's colours.
enum class DisplayStyle { Coloured, Plain };
DisplayStyle DefaultDisplayStyle(const ThemeSet& themes);  // the applied theme's choice

// The colours of the theme applied last in `themes`, with the "Color:" and "Active:" choices of
// `prefs` and the user's custom key colours.
ScreenColours MakeScreenColours(const ThemeSet& themes, const Preferences& prefs,
                                DisplayStyle display, const CustomColours& custom = {});

// The colour of a value's text: integer-format tags first, then negative values.
Rgb ValueTextColour(const ScreenColours& colours, ValueTag tag, double value);

// The contrast ratio of two colours for reading text, from 1 (same) to 21 (black on white).
double ContrastRatio(Rgb a, Rgb b);

}  // namespace brinto
