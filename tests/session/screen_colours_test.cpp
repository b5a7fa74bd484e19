#include "session/screen_colours.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "engine/engine_test_support.h"
#include "engine/function_ids.h"

namespace brinto {
namespace {

constexpr Rgb kBlack{0, 0, 0}, kWhite{255, 255, 255}, kYellow{255, 255, 102}, kIndigo{51, 51, 153};

ScreenColours ColoursOf(u16 theme, int keyColor, int active, DisplayStyle display,
                        const CustomColours& custom = {}) {
    ThemeSet themes;
    themes.ApplyTheme(themes.SelectTheme(theme));
    Preferences prefs = DefaultPreferences();
    prefs.SetKeyColor(keyColor);
    prefs.SetActiveKey(active);
    return MakeScreenColours(themes, prefs, display, custom);
}

// The picks that are not plain slots of the table: the plain display, the legibility fallbacks, the
// user's own colours, and the "Color:" and "Active:" choices.
TEST(ScreenColours, ElementsTakeTheirSlots) {
    using Get = Rgb (*)(const ScreenColours&);
    struct Case {
        std::string name;
        ScreenColours colours;
        Get get;
        Rgb expected;
    };
    CustomColours blackNumbers;
    blackNumbers.background[static_cast<int>(KeyClass::Number)] = kBlack;
    const ScreenColours defaultColor = ColoursOf(theme_id::DefaultColor, 0, 0, DisplayStyle::Coloured);
    const ScreenColours plain = ColoursOf(theme_id::DefaultColor, 0, 0, DisplayStyle::Plain);
    const ScreenColours dark = ColoursOf(theme_id::DarkBackground, 0, 2, DisplayStyle::Coloured);
    const ScreenColours blackWhite = ColoursOf(theme_id::DefaultBlackWhite, 0, 0, DisplayStyle::Coloured);
    const ScreenColours custom = ColoursOf(theme_id::DefaultColor, 0, 0, DisplayStyle::Coloured, blackNumbers);
    const ScreenColours oneFace = ColoursOf(theme_id::DefaultColor, 3, 3, DisplayStyle::Coloured);
    const ScreenColours ownLegend = ColoursOf(theme_id::DefaultColor, 2, 1, DisplayStyle::Coloured);
    const Case cases[] = {
        {"plainNegative", plain, [](const ScreenColours& s) { return s.displayNegative; }, kBlack},
        // Yellow on light blue reads at 2.4:1: the shifted legend falls back to black.
        {"numberShifted", defaultColor, [](const ScreenColours& s) { return s.Key(KeyClass::Number).shiftedText; }, kBlack},
        {"pressedShift", defaultColor, [](const ScreenColours& s) { return s.Key(KeyClass::Clear).pressedFace; }, kYellow},
        // Grey 102 on green 0,204,0 reads at 2.6:1: black instead.
        {"darkPressedText", dark, [](const ScreenColours& s) { return s.Key(KeyClass::Standard).pressedText; }, kBlack},
        {"blackWhiteEdge", blackWhite, [](const ScreenColours& s) { return s.Key(KeyClass::Number).edge; }, kBlack},
        {"customKeepsLegible", custom, [](const ScreenColours& s) { return s.Key(KeyClass::Number).text; }, kWhite},
        {"customShifted", custom, [](const ScreenColours& s) { return s.Key(KeyClass::Number).shiftedText; }, kYellow},
        {"oneFace", oneFace, [](const ScreenColours& s) { return s.Key(KeyClass::Clear).face; }, kIndigo},
        {"swappedFace", oneFace, [](const ScreenColours& s) { return s.Key(KeyClass::Clear).pressedFace; }, kWhite},
        {"ownLegend", ownLegend, [](const ScreenColours& s) { return s.Key(KeyClass::Standard).shiftedText; }, kWhite},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.get(c.colours), c.expected);
    }
    EXPECT_TRUE(blackWhite.outlineKeys);
    EXPECT_FALSE(defaultColor.outlineKeys);
    EXPECT_EQ(ValueTextColour(defaultColor, fid::TagS32, -1), defaultColor.displayInteger);
    EXPECT_EQ(ValueTextColour(defaultColor, fid::TagHours, -1), defaultColor.displayNegative);
    EXPECT_EQ(ValueTextColour(defaultColor, fid::TagHours, 0), defaultColor.displayText);
}

// Every theme in both display styles and every "Color:" and "Active:" choice: the display's
// values and every key legend must read at 3:1 or better. The lowest ratios are printed.
TEST(ScreenColours, EveryThemeIsLegible) {
    ThemeSet themes;
    for (const Theme& listed : themes.Themes()) {
        Theme& theme = *themes.FindTheme(listed.id);
        themes.ApplyTheme(theme);
        for (const DisplayStyle display : {DisplayStyle::Coloured, DisplayStyle::Plain}) {
            double value = 21, label = 21, annunciator = 21, key = 21, name = 21;
            for (int keyColor = 1; keyColor <= 3; ++keyColor) {
                for (int active = 1; active <= 3; ++active) {
                    Preferences prefs = DefaultPreferences();
                    prefs.SetKeyColor(keyColor);
                    prefs.SetActiveKey(active);
                    const ScreenColours s = MakeScreenColours(themes, prefs, display);
                    for (const Rgb text : {s.displayText, s.displayNegative, s.displayInteger})
                        value = std::min(value, ContrastRatio(text, s.displayBackground));
                    label = std::min(label, ContrastRatio(s.displayLabel, s.displayBackground));
                    annunciator = std::min(annunciator, ContrastRatio(s.annunciator, s.displayBackground));
                    name = std::min(name, ContrastRatio(s.keyboardName, s.keyboardBackground));
                    for (const KeyColours& k : s.keys) {
                        key = std::min({key, ContrastRatio(k.text, k.face), ContrastRatio(k.shiftedText, k.face),
                                        ContrastRatio(k.pressedText, k.pressedFace)});
                    }
                }
            }
            SCOPED_TRACE(theme.name + (display == DisplayStyle::Plain ? " plain" : " coloured"));
            std::printf("%-20s %-8s value %5.2f  label %5.2f  annunciator %5.2f  keys %5.2f  name %5.2f\n",
                        theme.name.c_str(), display == DisplayStyle::Plain ? "plain" : "coloured",
                        value, label, annunciator, key, name);
            EXPECT_GE(value, 3.0);
            EXPECT_GE(label, 3.0);
            EXPECT_GE(key, 3.0);
        }
    }
}

}  // namespace
}  // namespace brinto
