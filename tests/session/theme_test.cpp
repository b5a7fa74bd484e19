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

// A theme applied after another leaves nothing of the other: every theme, put on after each one,
// gives the palette, key style and styles it gives on a fresh set. (That every theme reads well
// is the screen colours' test.)
TEST(Themes, ApplyingOneAfterAnotherLeavesNothingOfTheFirst) {
    const std::vector<Theme> themes = ThemeSet().Themes();
    for (const Theme& theme : themes) {
        ThemeSet fresh;
        fresh.ApplyTheme(fresh.SelectTheme(theme.id));
        for (const Theme& before : themes) {
            SCOPED_TRACE(before.name + " then " + theme.name);
            ThemeSet set;
            set.ApplyTheme(set.SelectTheme(before.id));
            set.ApplyTheme(set.SelectTheme(theme.id));
            EXPECT_EQ(set.palette(), fresh.palette());
            EXPECT_EQ(set.keyStyle(), fresh.keyStyle());
            EXPECT_EQ(set.styles(), fresh.styles());
        }
    }
}

}  // namespace
}  // namespace brinto
