#include "session/key_grid.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace brinto {

namespace {

// Pixels of the 240-wide screen. The shapes run from wide and flat (Small, more room for the
// display) to nearly square (Large, easier to hit with a finger).
constexpr std::array<KeySizeSet, 3> kKeySizeSets = {{
    {34, 20, 2, 2, 4, 3},  // Small
    {36, 24, 3, 3, 5, 4},  // Medium
    {38, 28, 3, 4, 6, 5},  // Large
}};
constexpr double kTallestKey = 1.6;  // height over width: taller keys only look empty

int Scaled(int base, double scale) {
    if (base == 0) return 0;
    return std::max(1, static_cast<int>(std::lround(base * scale)));
}

struct Spacing {
    int hGap, vGap, marginX, marginY;
};
Spacing SpacingFor(int width, const KeySizeSet& set, Framed framed) {
    const double s = GridScale(width);
    const bool frame = framed == Framed::Yes;
    return {Scaled(set.horizontalGap, s), Scaled(set.verticalGap, s),
            frame ? Scaled(set.frameX, s) : 0, frame ? Scaled(set.frameY, s) : 0};
}

// One axis of the grid rule: the size of each of `count` keys and the margin before the first.
struct Axis {
    int key, start;
};
Axis SplitAxis(int length, int count, int margin, int gap) {
    const int room = std::max(0, length - 2 * margin - (count - 1) * gap);
    return {room / count, margin + room % count / 2};
}

}  // namespace

const KeySizeSet& KeySizeSetOf(KeySize size) { return kKeySizeSets[static_cast<int>(size)]; }

double GridScale(int viewWidth) {
    return static_cast<double>(std::max(viewWidth, 0)) / kBaseScreenWidth;
}

KeyGrid LayoutKeyGrid(int width, int height, int columns, int rows, const KeySizeSet& set,
                      Framed framed) {
    if (columns <= 0 || rows <= 0) return {};
    const Spacing sp = SpacingFor(width, set, framed);
    const Axis across = SplitAxis(width, columns, sp.marginX, sp.hGap);
    const Axis down = SplitAxis(height, rows, sp.marginY, sp.vGap);
    return {columns, rows, across.start, down.start, across.key, down.key, sp.hGap, sp.vGap};
}

Rect KeyRect(const KeyGrid& grid, int index) {
    const int row = index / grid.columns, column = index % grid.columns;
    return {grid.left + column * (grid.keyWidth + grid.horizontalGap),
            grid.top + row * (grid.keyHeight + grid.verticalGap), grid.keyWidth, grid.keyHeight};
}

std::optional<int> HitTest(const KeyGrid& grid, int x, int y) {
    if (grid.keyWidth <= 0 || grid.keyHeight <= 0 || x < grid.left || y < grid.top) return {};
    const int pitchX = grid.keyWidth + grid.horizontalGap;
    const int pitchY = grid.keyHeight + grid.verticalGap;
    const int column = (x - grid.left) / pitchX, row = (y - grid.top) / pitchY;
    if (column >= grid.columns || row >= grid.rows) return {};
    if ((x - grid.left) % pitchX >= grid.keyWidth || (y - grid.top) % pitchY >= grid.keyHeight)
        return {};  // in a gap
    return row * grid.columns + column;
}

int PreferredKeyboardHeight(int width, int columns, int rows, const KeySizeSet& set,
                            Framed framed) {
    if (columns <= 0 || rows <= 0) return 0;
    const Spacing sp = SpacingFor(width, set, framed);
    const int keyWidth = SplitAxis(width, columns, sp.marginX, sp.hGap).key;
    const int shaped = static_cast<int>(std::lround(keyWidth * double(set.keyHeight) / set.keyWidth));
    const int keyHeight = std::min(shaped, static_cast<int>(keyWidth * kTallestKey));
    return rows * keyHeight + (rows - 1) * sp.vGap + 2 * sp.marginY;
}

int KeyboardHeightFor(int keyHeight, int width, int rows, const KeySizeSet& set, Framed framed) {
    if (rows <= 0) return 0;
    const Spacing sp = SpacingFor(width, set, framed);
    return rows * keyHeight + (rows - 1) * sp.vGap + 2 * sp.marginY;
}

TapArea DisplayTapZone(int width, int x) {
    if (x * 3 < width) return TapArea::Left;
    if (x * 3 < width * 2) return TapArea::Center;
    return TapArea::Right;
}

}  // namespace brinto
