#pragma once
// Colour themes: the eight built-in looks of the calculator. A theme is a list of changes to one
// shared palette of 31 colour slots, plus nine style values and five key-style values that pick
// defaults for the display and the keys. ThemeSet owns the themes, the palette and the key style;
// which slot paints which part of the screen is decided in screen_colours.h, what the style
// values mean in appearance.h. Nothing here draws.
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "engine/types.h"

namespace brinto {

struct Rgb {
    u8 r = 0, g = 0, b = 0;
    friend constexpr bool operator==(const Rgb&, const Rgb&) = default;
};

inline constexpr int kPaletteSlots = 31;
inline constexpr int kStyleValues = 9;
inline constexpr int kKeyStyleValues = 5;

using Palette = std::array<Rgb, kPaletteSlots>;
using KeyStyle = std::array<int, kKeyStyleValues>;
using ThemeStyles = std::array<int, kStyleValues>;

// Theme identifiers, in the order the "Theme:" list shows them.
namespace theme_id {
inline constexpr u16 DefaultColor = 1;
inline constexpr u16 DefaultGrayscale = 2;
inline constexpr u16 DefaultBlackWhite = 3;
inline constexpr u16 OriginalColor = 4;
inline constexpr u16 OriginalGrayscale = 5;
inline constexpr u16 OriginalBlackWhite = 6;
inline constexpr u16 LightBackground = 7;
inline constexpr u16 DarkBackground = 8;
}  // namespace theme_id

// What the nine style values and five key-style values stand for (appearance.h reads them).
namespace style {
inline constexpr int PlainDisplay = 2;    // 1: the display is drawn plain (slots 3 and 2)
inline constexpr int Lines = 3;           // "Lines:" Default: stack lines shown, 1..4
inline constexpr int Border = 4;          // "Border:" Default: 1 None, 2 Display, 3 Calculator
inline constexpr int Font = 5;            // "Font:" Default: 1 Small, 2 Medium, 3 Large
inline constexpr int Show = 6;            // "Show:" Default: 1 None, 2 Above, 3 Within
inline constexpr int Size = 7;            // "Size:" Default: 1 Small, 2 Medium, 3 Large
inline constexpr int Keys = 8;            // "Keys:" Default: 1 Static, 2 Swapped, 3 Zoomed
}  // namespace style
namespace key_style {
inline constexpr int Color = 0;           // "Color:" Default: 1 Shift, 2 Foreground, 3 Background
inline constexpr int Active = 1;          // "Active:" Default: 1 Shift, 2 Foreground, 3 Swapped
inline constexpr int Outline = 2;         // 1: every key face is outlined in the edge colour
inline constexpr int Shadow = 3;          // "Shadow:" Default: 0 None, 1 Normal, 2 Strong, 3 Heavy
inline constexpr int Corner = 4;          // corner radius of a key, in pixels of a 240-wide screen
}  // namespace key_style

struct Theme {
    u16 id = 0;
    std::string name;          // as the "Theme:" list shows it
    u16 baseId = 0;            // a theme this one is derived from; 0 for every built-in theme
    ThemeStyles styles{};      // rewritten by ApplyTheme
};

enum class ColourDisplay { No, Yes };

// The theme list with the palette it paints. A Theme& from FindTheme or CurrentTheme stays valid
// until the next BuildThemes; a copied set keeps its own themes and current theme.
class ThemeSet {
public:
    // Builds the colour list. Until a theme is applied the palette is the base one every theme
    // starts from (black, with a few white slots) and the style values are their defaults.
    ThemeSet();

    // Recreates the list: all eight themes, or only the two black-and-white ones ("Default B&W",
    // "Original B&W") for a screen without colour. Forgets the current and applied theme.
    void BuildThemes(ColourDisplay colour);

    const std::vector<Theme>& Themes() const { return m_themes; }
    // The first theme with this identifier, or null.
    Theme* FindTheme(u16 id);
    // 0 counts as "Default Color"; an identifier of no theme leaves the current one in force.
    Theme& SelectTheme(u16 id);
    // The current theme; selects "Default Color" (or the first of the list) when none was.
    Theme& CurrentTheme();
    // Resets the theme's style values, the palette and the key style to their defaults, then
    // applies the theme's own values. The theme must belong to this set.
    void ApplyTheme(Theme& theme);

    const Palette& palette() const { return m_palette; }
    const KeyStyle& keyStyle() const { return m_keyStyle; }
    // The style values of the theme applied last (the defaults before any).
    const ThemeStyles& styles() const;

private:
    int IndexOf(const Theme* theme) const;
    void ResetToBase();

    std::vector<Theme> m_themes;
    int m_current = -1;  // indices into m_themes; -1 for none
    int m_applied = -1;
    Palette m_palette{};
    KeyStyle m_keyStyle{};
};

inline constexpr ThemeStyles kDefaultStyles = {0, 0, 0, 3, 1, 1, 2, 2, 2};
inline constexpr KeyStyle kDefaultKeyStyle = {1, 1, 0, 1, 3};

}  // namespace brinto
