#include "session/appearance.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace brinto {

namespace {

// The stored choice, or the theme's value for it when the choice is 0 "Default" or is not in
// the list (1 .. last).
int Resolved(int choice, int last, int themeValue) {
    return choice >= 1 && choice <= last ? choice : themeValue;
}

constexpr std::array<FontMetrics, 5> kFonts = {{
    {22, true}, {18, true}, {14, true}, {14, false}, {13, false},
}};

// By "Font:" choice 1 Small, 2 Medium, 3 Large.
constexpr std::array<DisplayFonts, 3> kFontChoices = {{
    {DisplayFont::Bold18, DisplayFont::Bold14, DisplayFont::Normal14, DisplayFont::Normal13},
    {DisplayFont::Bold22, DisplayFont::Bold18, DisplayFont::Bold14, DisplayFont::Normal13},
    {DisplayFont::Bold22, DisplayFont::Bold18, DisplayFont::Bold18, DisplayFont::Normal14},
}};

// By "Shadow:" choice 1 None .. 4 Heavy.
constexpr std::array<int, 4> kShadowDepths = {0, 1, 2, 4};

// Legend proportions, as parts of the key's height (and width, for long legends).
constexpr double kSmallBand = 0.36;      // the band along the top that holds the small legend
constexpr double kLargeHeight = 0.45;    // large legend over key height, with a small one above
constexpr double kZoomedHeight = 0.55;   // the one legend of Zoomed keys
constexpr double kLegendWidth = 0.34;    // no legend taller than this part of the key's width
constexpr double kZoomedWidth = 0.40;
constexpr double kSmallRatio = 0.6;      // small legend over large one
constexpr int kSmallestLegend = 11;      // pixels: capitals about 8 pixels tall

int Fit(double wanted, int room) {
    return std::clamp(static_cast<int>(std::lround(wanted)), std::min(kSmallestLegend, room), room);
}

}  // namespace

KeySize KeySizeOf(const Preferences& prefs, const ThemeSet& themes) {
    switch (Resolved(prefs.KeySize(), 3, themes.styles()[style::Size])) {
    case 1: return KeySize::Small;
    case 3: return KeySize::Large;
    default: return KeySize::Medium;
    }
}

LegendArrangement LegendArrangementOf(const Preferences& prefs, const ThemeSet& themes) {
    switch (Resolved(prefs.KeyLabels(), 3, themes.styles()[style::Keys])) {
    case 2: return LegendArrangement::Swapped;
    case 3: return LegendArrangement::Zoomed;
    default: return LegendArrangement::Static;
    }
}

int LegibleKeyHeight() { return static_cast<int>(std::ceil(kSmallestLegend / kSmallBand)); }

LegendPlacement PlaceLegends(LegendArrangement arrangement, bool shifted, Rect key) {
    LegendPlacement p;
    if (arrangement == LegendArrangement::Zoomed) {
        p.large = shifted ? Legend::Shifted : Legend::Main;
        p.largeArea = key;
        p.largePixels = Fit(std::min(key.height * kZoomedHeight, key.width * kZoomedWidth), key.height);
        return p;
    }
    const bool swap = shifted && arrangement == LegendArrangement::Swapped;
    p.large = swap ? Legend::Shifted : Legend::Main;
    p.small = swap ? Legend::Main : Legend::Shifted;
    const int band = static_cast<int>(std::lround(key.height * kSmallBand));
    p.smallArea = {key.x, key.y, key.width, band};
    p.largeArea = {key.x, key.y + band, key.width, key.height - band};
    p.largePixels = Fit(std::min(key.height * kLargeHeight, key.width * kLegendWidth),
                        p.largeArea.height);
    p.smallPixels = std::min(Fit(p.largePixels * kSmallRatio, band), p.largePixels);
    return p;
}

KeyColouring KeyColouringOf(const Preferences& prefs, const ThemeSet& themes) {
    switch (Resolved(prefs.KeyColor(), 3, themes.keyStyle()[key_style::Color])) {
    case 2: return KeyColouring::Foreground;
    case 3: return KeyColouring::Background;
    default: return KeyColouring::Shift;
    }
}

PressedColouring PressedColouringOf(const Preferences& prefs, const ThemeSet& themes) {
    switch (Resolved(prefs.ActiveKey(), 3, themes.keyStyle()[key_style::Active])) {
    case 2: return PressedColouring::Foreground;
    case 3: return PressedColouring::Swapped;
    default: return PressedColouring::Shift;
    }
}

int KeyShadowDepth(const Preferences& prefs, const ThemeSet& themes) {
    // The theme's key style counts 0 None .. 3 Heavy; the list counts 1 None .. 4 Heavy.
    const int choice = Resolved(prefs.KeyShadow(), 4, themes.keyStyle()[key_style::Shadow] + 1);
    return kShadowDepths[std::clamp(choice, 1, 4) - 1];
}

KeyboardNamePlace KeyboardNamePlaceOf(const Preferences& prefs, const ThemeSet& themes) {
    switch (Resolved(prefs.KeyboardShow(), 3, themes.styles()[style::Show])) {
    case 1: return KeyboardNamePlace::None;
    case 3: return KeyboardNamePlace::InDisplay;
    default: return KeyboardNamePlace::AboveKeys;
    }
}

DisplayLines DisplayLinesOf(const Preferences& prefs, const ThemeSet& themes) {
    const int lines = std::clamp(Resolved(prefs.DisplayLines(), 4, themes.styles()[style::Lines]), 1, 4);
    return {lines, prefs.BasicAlso() ? lines : 1};
}

FontMetrics FontOf(DisplayFont font) { return kFonts[static_cast<int>(font)]; }

DisplayFonts DisplayFontsOf(const Preferences& prefs, const ThemeSet& themes) {
    const int choice = std::clamp(Resolved(prefs.DisplayFont(), 3, themes.styles()[style::Font]), 1, 3);
    return kFontChoices[choice - 1];
}

Borders BordersOf(const Preferences& prefs, const ThemeSet& themes) {
    switch (Resolved(prefs.Border(), 3, themes.styles()[style::Border])) {
    case 2: return {true, Framed::No};
    case 3: return {true, Framed::Yes};
    default: return {false, Framed::No};
    }
}

namespace {
constexpr std::array kGuide = {
    GuideRow{"Size:", "Default", "The theme's size: Small with \"Light Background\" and \"Dark Background\", Medium otherwise."},
    GuideRow{"Size:", "Small", "Wide, flat keys, leaving the most room for the display."},
    GuideRow{"Size:", "Medium", "Keys two thirds as high as they are wide."},
    GuideRow{"Size:", "Large", "Taller keys with wider gaps, easiest to hit with a finger."},
    GuideRow{"Keys:", "Default", "The theme's arrangement: Swapped in \"Default Color\", \"Light Background\" and \"Dark Background\", Static otherwise."},
    GuideRow{"Keys:", "Static", "Each key shows its main legend large and its shifted legend small above it, in the shift colour."},
    GuideRow{"Keys:", "Swapped", "As Static, but while the keyboard is shifted the shifted legends are drawn large and the main ones small."},
    GuideRow{"Keys:", "Zoomed", "Each key shows one legend in a larger font: the main one, or the shifted one while the keyboard is shifted."},
    GuideRow{"Color:", "Default", "The theme's colouring: Foreground in the \"Original\" themes, Shift otherwise."},
    GuideRow{"Color:", "Shift", "Digits, register keys, clear keys and the other keys each have their own colours; shifted legends are in the shift colour."},
    GuideRow{"Color:", "Foreground", "Keys keep their colours, and shifted legends are drawn in the colour of the key's main legend."},
    GuideRow{"Color:", "Background", "Every key has the colours of the standard keys; shifted legends are in the shift colour."},
    GuideRow{"Active:", "Default", "The theme's choice: Foreground in the \"Original\" themes, Shift otherwise."},
    GuideRow{"Active:", "Shift", "A pressed key turns to the shift colour."},
    GuideRow{"Active:", "Foreground", "A pressed key turns to the highlight colour (green in the colour themes)."},
    GuideRow{"Active:", "Swapped", "A pressed key swaps its face and legend colours."},
    GuideRow{"Shadow:", "Default", "The theme's shadow: Normal in \"Default Color\", \"Original Color\", \"Original Grayscale\" and \"Light Background\", none otherwise."},
    GuideRow{"Shadow:", "None", "Flat keys."},
    GuideRow{"Shadow:", "Normal", "A thin shadow below and right of each key."},
    GuideRow{"Shadow:", "Strong", "A shadow twice as deep."},
    GuideRow{"Shadow:", "Heavy", "A shadow four times as deep."},
    GuideRow{"Show:", "Default", "The theme's place: within the display in the \"Original\" themes, nowhere in \"Light Background\" and \"Dark Background\", above the keys otherwise."},
    GuideRow{"Show:", "None", "The keyboard's name is not shown (the selector still names it)."},
    GuideRow{"Show:", "Above", "The keyboard's name is written above the keys."},
    GuideRow{"Show:", "Within", "The keyboard's name is written in the display, beside the annunciators."},
    GuideRow{"Lines:", "Default", "The theme's count: 3 stack levels, 1 in the \"Original\" themes, 2 in \"Light Background\" and \"Dark Background\"."},
    GuideRow{"Lines:", "1", "The display shows X only."},
    GuideRow{"Lines:", "2", "The display shows X and Y."},
    GuideRow{"Lines:", "3", "The display shows X, Y and Z."},
    GuideRow{"Lines:", "4", "The display shows X, Y, Z and T."},
    GuideRow{"Basic also", "", "The Basic view shows as many stack levels as the Advanced view; without it the Basic view shows X only."},
    GuideRow{"Font:", "Default", "The theme's fonts: Large in the grey and black-and-white \"Default\" themes, Medium in the \"Original\" themes and \"Dark Background\", Small otherwise."},
    GuideRow{"Font:", "Small", "X in 18-pixel bold, the other levels in 14-pixel, labels in 13-pixel."},
    GuideRow{"Font:", "Medium", "X in 22-pixel bold, the other levels in 14-pixel bold, labels in 13-pixel."},
    GuideRow{"Font:", "Large", "X in 22-pixel bold, the other levels in 18-pixel bold, labels in 14-pixel."},
    GuideRow{"Border:", "Default", "The theme's border: Calculator in \"Light Background\", None otherwise."},
    GuideRow{"Border:", "None", "No frames: the display and the keys reach the window's edges."},
    GuideRow{"Border:", "Display", "A frame around the display."},
    GuideRow{"Border:", "Calculator", "Frames around the display and around the keys, which keep a margin inside their frame."},
};
}  // namespace

std::span<const GuideRow> AppearanceGuide() { return kGuide; }

}  // namespace brinto
