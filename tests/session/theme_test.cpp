#include "session/theme.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brinto {
namespace {

TEST(Themes, SelectionFollowsIdentifiers) {
    ThemeSet set;
    EXPECT_EQ(set.CurrentTheme().name, "Default Color");  // nothing selected yet
    EXPECT_EQ(set.SelectTheme(theme_id::DarkBackground).name, "Dark Background");
    EXPECT_EQ(set.SelectTheme(9).name, "Dark Background");  // no such theme: current stays
    EXPECT_EQ(set.SelectTheme(0).name, "Default Color");
    EXPECT_EQ(set.FindTheme(9), nullptr);

    set.BuildThemes(ColourDisplay::No);
    std::vector<u16> ids;
    for (const Theme& t : set.Themes()) ids.push_back(t.id);
    EXPECT_EQ(ids, (std::vector<u16>{theme_id::DefaultBlackWhite, theme_id::OriginalBlackWhite}));
    EXPECT_EQ(set.FindTheme(theme_id::DefaultColor), nullptr);
    EXPECT_EQ(set.SelectTheme(0).name, "Default B&W");  // no colour theme to fall back on
    EXPECT_EQ(set.SelectTheme(theme_id::OriginalBlackWhite).name, "Original B&W");
}

// Each row applies a theme after "Dark Background", so a value the theme leaves alone must
// come back to its default: the reset is tested on every row. (That every theme reads well is
// the screen colours' test.)
TEST(Themes, ApplyingRewritesPaletteAndStyles) {
    struct SlotIs {
        int slot;
        Rgb colour;
    };
    struct Case {
        u16 id;
        std::vector<SlotIs> slots;
        KeyStyle keyStyle;
        ThemeStyles styles;
    };
    const Rgb black{0, 0, 0}, white{255, 255, 255}, yellow{255, 255, 102}, indigo{51, 51, 153};
    const Case cases[] = {
        {theme_id::DefaultColor,
         {{0, black}, {7, white}, {15, white}, {21, yellow}, {22, indigo}, {24, indigo}, {28, white},
          {30, white}},
         {1, 1, 0, 1, 3},
         {0, 0, 0, 3, 1, 1, 2, 2, 2}},
        // Copies are taken when listed: 21 is the new dark 19, not theme 1's yellow.
        {theme_id::DefaultGrayscale,
         {{18, black}, {21, {51, 51, 51}}, {22, {204, 204, 204}}, {26, black}, {30, white}},
         {1, 1, 1, 0, 3},
         {0, 0, 0, 3, 1, 3, 2, 2, 1}},
        {theme_id::DarkBackground,
         {{7, {204, 204, 204}}, {9, {0, 0, 153}}, {13, {0, 0, 153}}, {16, black},
          {21, {204, 204, 0}}, {27, {102, 102, 102}}, {30, {204, 204, 204}}},
         {1, 1, 0, 0, 3},
         {0, 0, 0, 2, 1, 2, 1, 1, 2}},
    };
    ThemeSet set;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.id);
        set.ApplyTheme(set.SelectTheme(theme_id::DarkBackground));
        set.ApplyTheme(set.SelectTheme(c.id));
        for (const SlotIs& s : c.slots) {
            SCOPED_TRACE(s.slot);
            EXPECT_EQ(set.palette()[s.slot], s.colour);
        }
        EXPECT_EQ(set.keyStyle(), c.keyStyle);
        EXPECT_EQ(set.styles(), c.styles);
        EXPECT_EQ(set.CurrentTheme().styles, c.styles);
    }
}

}  // namespace
}  // namespace brinto
