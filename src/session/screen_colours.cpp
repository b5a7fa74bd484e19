#include "session/screen_colours.h"

#include <algorithm>
#include <cmath>

#include "engine/function_ids.h"
#include "session/appearance.h"

namespace brinto {

namespace {

constexpr double kMinimumContrast = 3.0;

// Slots of the display, coloured and plain.
struct DisplaySlots {
    int background, text, integer, negative, label, annunciator;
};
constexpr DisplaySlots kColouredDisplay = {7, 8, 9, 10, 11, 13};
constexpr DisplaySlots kPlainDisplay = {3, 2, 2, 2, 2, 2};
constexpr int kFrameSlot = 16;
constexpr int kBackgroundSlot = 15;
constexpr int kBlackSlot = 0;
constexpr int kWhiteSlot = 1;

struct ClassSlots {
    int face, text;
};
constexpr std::array<ClassSlots, kKeyClasses> kClassSlots = {{
    {17, 18},  // Standard
    {25, 26},  // Number
    {27, 28},  // Register
    {29, 30},  // Clear
}};
constexpr int kShiftedSlot = 21;
constexpr ClassSlots kPressedShift = {21, 22};
constexpr ClassSlots kPressedForeground = {23, 24};
constexpr int kShadowSlot = 16;

constexpr std::array kClearKeys = {fid::ClearAll,  fid::ClearStack,     fid::ClearX,
                                   fid::SecondClearAll, fid::SecondClearStack,    fid::SecondClearX,
                                   fid::ClearRegisters, fid::ClearFinancial,
                                   fid::ClearStatistics, fid::ClearDate};
constexpr std::array kRegisterKeys = {fid::Store, fid::Recall, fid::Exchange};

double Linear(u8 component) {
    const double c = component / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}
double Luminance(Rgb c) {
    return 0.2126 * Linear(c.r) + 0.7152 * Linear(c.g) + 0.0722 * Linear(c.b);
}

// `text` if it can be read on `behind`, else black or white, whichever reads better.
Rgb Legible(Rgb text, Rgb behind, const Palette& p) {
    if (ContrastRatio(text, behind) >= kMinimumContrast) return text;
    const Rgb black = p[kBlackSlot], white = p[kWhiteSlot];
    return ContrastRatio(black, behind) >= ContrastRatio(white, behind) ? black : white;
}

KeyColours ClassColours(const Palette& p, ClassSlots slots, std::optional<Rgb> customFace,
                        std::optional<Rgb> customText, KeyColouring colouring,
                        PressedColouring pressed) {
    KeyColours k;
    k.face = customFace.value_or(p[slots.face]);
    k.text = customText.value_or(Legible(p[slots.text], k.face, p));  // the user's choice stands
    k.shiftedText = Legible(colouring == KeyColouring::Foreground ? k.text : p[kShiftedSlot],
                            k.face, p);
    switch (pressed) {
    case PressedColouring::Shift:
        k.pressedFace = p[kPressedShift.face];
        k.pressedText = p[kPressedShift.text];
        break;
    case PressedColouring::Foreground:
        k.pressedFace = p[kPressedForeground.face];
        k.pressedText = p[kPressedForeground.text];
        break;
    case PressedColouring::Swapped:
        k.pressedFace = k.text;
        k.pressedText = k.face;
        break;
    }
    k.pressedText = Legible(k.pressedText, k.pressedFace, p);
    k.shadow = k.edge = p[kShadowSlot];
    return k;
}

}  // namespace

KeyClass KeyClassOf(FunctionId id) {
    if ((id >= fid::Digit0 && id <= fid::Digit9) || (id >= fid::HexA && id <= fid::HexF) ||
        id == fid::Point || id == fid::SecondPoint)
        return KeyClass::Number;
    if (std::ranges::find(kRegisterKeys, RegisterBase(id)) != kRegisterKeys.end())
        return KeyClass::Register;
    if (std::ranges::find(kClearKeys, id) != kClearKeys.end()) return KeyClass::Clear;
    return KeyClass::Standard;
}

DisplayStyle DefaultDisplayStyle(const ThemeSet& themes) {
    return themes.styles()[style::PlainDisplay] != 0 ? DisplayStyle::Plain : DisplayStyle::Coloured;
}

ScreenColours MakeScreenColours(const ThemeSet& themes, const Preferences& prefs,
                                DisplayStyle display, const CustomColours& custom) {
    const Palette& p = themes.palette();
    const DisplaySlots& d = display == DisplayStyle::Plain ? kPlainDisplay : kColouredDisplay;
    ScreenColours s;
    s.window = s.keyboardBackground = p[kBackgroundSlot];
    s.displayBackground = p[d.background];
    s.displayText = p[d.text];
    s.displayInteger = p[d.integer];
    s.displayNegative = p[d.negative];
    s.displayLabel = p[d.label];
    s.annunciator = p[d.annunciator];
    s.displayFrame = p[kFrameSlot];
    s.keyboardName = Legible(p[kClassSlots[0].face], s.keyboardBackground, p);

    const KeyColouring colouring = KeyColouringOf(prefs, themes);
    const PressedColouring pressed = PressedColouringOf(prefs, themes);
    for (int k = 0; k < kKeyClasses; ++k) {
        const ClassSlots slots = colouring == KeyColouring::Background ? kClassSlots[0] : kClassSlots[k];
        s.keys[k] = ClassColours(p, slots, custom.background[k], custom.text[k], colouring, pressed);
    }
    s.outlineKeys = themes.keyStyle()[key_style::Outline] != 0;
    return s;
}

Rgb ValueTextColour(const ScreenColours& colours, ValueTag tag, double value) {
    if (TagCategory(tag) == Category::IntegerFormat) return colours.displayInteger;
    return value < 0 ? colours.displayNegative : colours.displayText;
}

double ContrastRatio(Rgb a, Rgb b) {
    const double la = Luminance(a), lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

}  // namespace brinto
