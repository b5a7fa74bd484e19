#include "session/appearance.h"

#include <gtest/gtest.h>

#include <string>

namespace brinto {
namespace {

// "Default" takes the theme's value; a stored value outside a list counts as "Default".
TEST(Appearance, ChoicesResolveThroughTheTheme) {
    struct Case {
        std::string name;
        u16 theme;
        u16 word3, word5;  // the display and keyboard fields as stored
        KeySize size;
        LegendArrangement legends;
        KeyColouring colouring;
        PressedColouring pressed;
        int shadow;
        KeyboardNamePlace show;
        DisplayLines lines;
        DisplayFont value, stack;
        Borders borders;
    };
    // word 3: font bits 5..7, lines 8..10, "Basic also" 11, border 12..13, show 14..15.
    // word 5: colour 0..1, active 2..3, legends 4..5, size 6..7, shadow 8..10.
    const u16 explicitDisplay = 1 << 5 | 4 << 8 | 1 << 11 | 2 << 12 | 3 << 14;
    const u16 explicitKeys = 3 | 3 << 2 | 3 << 4 | 3 << 6 | 4 << 8;
    const Case cases[] = {
        {"defaultColor", theme_id::DefaultColor, 0, 0, KeySize::Medium, LegendArrangement::Swapped,
         KeyColouring::Shift, PressedColouring::Shift, 1, KeyboardNamePlace::AboveKeys, {3, 1},
         DisplayFont::Bold18, DisplayFont::Normal14, {false, Framed::No}},
        {"everyChoiceSet", theme_id::DefaultColor, explicitDisplay, explicitKeys, KeySize::Large,
         LegendArrangement::Zoomed, KeyColouring::Background, PressedColouring::Swapped, 4,
         KeyboardNamePlace::InDisplay, {4, 4}, DisplayFont::Bold18, DisplayFont::Normal14,
         {true, Framed::No}},
        // Shadow 7 and lines 6 are in no list: the dark theme's flat keys and two lines.
        {"outOfList", theme_id::DarkBackground, 6 << 8, 7 << 8, KeySize::Small,
         LegendArrangement::Swapped, KeyColouring::Shift, PressedColouring::Shift, 0,
         KeyboardNamePlace::None, {2, 1}, DisplayFont::Bold22, DisplayFont::Bold14,
         {false, Framed::No}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ThemeSet themes;
        themes.ApplyTheme(themes.SelectTheme(c.theme));
        Preferences prefs = DefaultPreferences();
        prefs.words[3] = c.word3;
        prefs.words[5] = c.word5;
        EXPECT_EQ(KeySizeOf(prefs, themes), c.size);
        EXPECT_EQ(LegendArrangementOf(prefs, themes), c.legends);
        EXPECT_EQ(KeyColouringOf(prefs, themes), c.colouring);
        EXPECT_EQ(PressedColouringOf(prefs, themes), c.pressed);
        EXPECT_EQ(KeyShadowDepth(prefs, themes), c.shadow);
        EXPECT_EQ(KeyboardNamePlaceOf(prefs, themes), c.show);
        EXPECT_TRUE(DisplayLinesOf(prefs, themes) == c.lines);
        const DisplayFonts fonts = DisplayFontsOf(prefs, themes);
        EXPECT_EQ(fonts.value, c.value);
        EXPECT_EQ(fonts.stack, c.stack);
        EXPECT_TRUE(BordersOf(prefs, themes) == c.borders);
    }
}

TEST(Appearance, LegendsShareTheKey) {
    struct Case {
        std::string name;
        LegendArrangement arrangement;
        bool shifted;
        Legend large;
        std::optional<Legend> small;
        Rect largeArea;
        int largePixels, smallPixels;
    };
    const Rect key{10, 20, 55, 33};  // a Medium key in the default window: small legends of 11 pixels
    const Case cases[] = {
        {"staticShifted", LegendArrangement::Static, true, Legend::Main, Legend::Shifted, {10, 32, 55, 21}, 15, 11},
        {"swapped", LegendArrangement::Swapped, false, Legend::Main, Legend::Shifted, {10, 32, 55, 21}, 15, 11},
        {"swappedShifted", LegendArrangement::Swapped, true, Legend::Shifted, Legend::Main, {10, 32, 55, 21}, 15, 11},
        {"zoomedShifted", LegendArrangement::Zoomed, true, Legend::Shifted, std::nullopt, key, 18, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const LegendPlacement p = PlaceLegends(c.arrangement, c.shifted, key);
        EXPECT_EQ(p.large, c.large);
        EXPECT_EQ(p.small, c.small);
        EXPECT_EQ(p.largeArea, c.largeArea);
        EXPECT_EQ(p.largePixels, c.largePixels);
        EXPECT_EQ(p.smallPixels, c.smallPixels);
    }
    // At every key size the legends fit their areas and the small one stays at least 0.55 of
    // the large one.
    for (int height = 16; height <= 90; height += 3) {
        for (int width = 24; width <= 130; width += 7) {
            SCOPED_TRACE(std::to_string(width) + "x" + std::to_string(height));
            const LegendPlacement p = PlaceLegends(LegendArrangement::Static, false, {0, 0, width, height});
            EXPECT_EQ(p.smallArea.height + p.largeArea.height, height);
            EXPECT_LE(p.largePixels, p.largeArea.height);
            EXPECT_LE(p.smallPixels, p.smallArea.height);
            EXPECT_GE(p.smallPixels, 0.55 * p.largePixels);
            EXPECT_GE(p.largePixels, 8);
        }
    }
}

}  // namespace
}  // namespace brinto
