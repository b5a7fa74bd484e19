#include "session/key_grid.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace brinto {
namespace {

// Worked by hand from the rule: the remainders of the divisions, halved, centre the keys;
// every key lies in the view, its own pixels hit it, and gaps and margins hit nothing.
TEST(KeyGrid, LayoutFollowsTheGridRule) {
    struct Case {
        std::string name;
        int width, height, columns, rows;
        KeySize size;
        Framed framed;
        KeyGrid want;
    };
    const Case cases[] = {
        // Scale 1.5: gaps 3 -> 5; (360 - 5 x 5) / 6 = 55 r 5; (300 - 7 x 5) / 8 = 33 r 1.
        {"medium", 360, 300, 6, 8, KeySize::Medium, Framed::No, {6, 8, 2, 0, 55, 33, 5, 5}},
        // Frame margins 5 -> 8 and 4 -> 6: (360 - 16 - 25) / 6 = 53 r 1; (300 - 12 - 35) / 8 = 31 r 5.
        {"framed", 360, 300, 6, 8, KeySize::Medium, Framed::Yes, {6, 8, 8, 8, 53, 31, 5, 5}},
        // Scale 1: (240 - 4 x 2) / 5 = 46 r 2; (200 - 5 x 2) / 6 = 31 r 4.
        {"small", 240, 200, 5, 6, KeySize::Small, Framed::No, {5, 6, 1, 2, 46, 31, 2, 2}},
        // Scale 2: gaps 6 and 8, frame 12 and 10: (480 - 24 - 18) / 4 = 109 r 2; (400 - 20 - 32) / 5 = 69 r 3.
        {"large", 480, 400, 4, 5, KeySize::Large, Framed::Yes, {4, 5, 13, 11, 109, 69, 6, 8}},
        // Gaps never shrink below a pixel; the keys get nothing.
        {"tooSmall", 10, 10, 6, 8, KeySize::Medium, Framed::No, {6, 8, 2, 1, 0, 0, 1, 1}},
        {"noColumns", 360, 300, 0, 8, KeySize::Medium, Framed::No, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const KeyGrid g = LayoutKeyGrid(c.width, c.height, c.columns, c.rows, KeySizeSetOf(c.size), c.framed);
        EXPECT_TRUE(g == c.want);
        for (int i = 0; i < g.KeyCount(); ++i) {
            const Rect r = KeyRect(g, i);
            EXPECT_LE(r.x + r.width, c.width);
            EXPECT_LE(r.y + r.height, c.height);
            if (r.width == 0) {
                EXPECT_EQ(HitTest(g, r.x, r.y), std::nullopt);
                continue;
            }
            EXPECT_EQ(HitTest(g, r.x, r.y), i);
            EXPECT_EQ(HitTest(g, r.x + r.width - 1, r.y + r.height - 1), i);
            // Just past the key is a gap or the margin: no key there.
            EXPECT_EQ(HitTest(g, r.x + r.width, r.y), std::nullopt);
            EXPECT_EQ(HitTest(g, r.x, r.y + r.height), std::nullopt);
            EXPECT_EQ(HitTest(g, r.x - 1, r.y - 1), std::nullopt);
        }
    }
}

// The preferred height, laid out again, gives keys of the set's shape with no remainder, and
// keys no taller than 1.6 times their width.
TEST(KeyGrid, PreferredHeightGivesShapedKeys) {
    EXPECT_EQ(PreferredKeyboardHeight(360, 6, 8, KeySizeSetOf(KeySize::Medium), Framed::No),
              8 * 37 + 7 * 5);  // 55 x 24 / 36 = 36.7
    for (const KeySize size : {KeySize::Small, KeySize::Medium, KeySize::Large}) {
        for (const int width : {200, 240, 360, 777}) {
            for (const Framed framed : {Framed::No, Framed::Yes}) {
                SCOPED_TRACE(width);
                const KeySizeSet& set = KeySizeSetOf(size);
                const int height = PreferredKeyboardHeight(width, 6, 8, set, framed);
                const KeyGrid g = LayoutKeyGrid(width, height, 6, 8, set, framed);
                const Rect last = KeyRect(g, g.KeyCount() - 1);
                EXPECT_EQ(height - (last.y + last.height), g.top);  // nothing left over
                EXPECT_LE(g.keyHeight, 1.6 * g.keyWidth);
                EXPECT_NEAR(double(g.keyHeight) / g.keyWidth, double(set.keyHeight) / set.keyWidth, 0.03);
            }
        }
    }
}

TEST(KeyGrid, DisplayThirds) {
    const struct {
        int width, x;
        TapArea area;
    } cases[] = {
        {300, 99, TapArea::Left},  {300, 100, TapArea::Center}, {300, 199, TapArea::Center},
        {300, 200, TapArea::Right}, {100, 33, TapArea::Left},    {100, 34, TapArea::Center},
        {100, 67, TapArea::Right},  {300, -5, TapArea::Left},    {300, 400, TapArea::Right},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.width) + ":" + std::to_string(c.x));
        EXPECT_EQ(DisplayTapZone(c.width, c.x), c.area);
    }
}

}  // namespace
}  // namespace brinto
