#pragma once
// The arithmetic of the keyboard view and of the display's tap areas: where each key lies for a
// view of a given size, which key a point hits, and which third of the display a tap falls in.
// Pure integer pixel arithmetic; drawing is left to the program that shows the keys.
//
// Scale: the key size sets are written in pixels of the handheld's 240 x 320 screen. A keyboard
// view w pixels wide works at the scale w / 240 (GridScale): gaps, frame margins and the
// preferred key height are multiplied by it and rounded to whole pixels, a gap or margin that is
// not 0 never falling below 1 pixel. The default window, 360 pixels wide, works at 1.5. The key
// width is never scaled: it is what the view width leaves after margins and gaps (LayoutKeyGrid).
#include <optional>
#include <vector>

#include "engine/preferences.h"

namespace brinto {

inline constexpr int kBaseScreenWidth = 240;

struct Rect {
    int x = 0, y = 0, width = 0, height = 0;
    friend bool operator==(const Rect&, const Rect&) = default;
};

// One "Size:" set, in pixels of the 240-wide screen.
struct KeySizeSet {
    int keyWidth, keyHeight;  // the preferred key: its height over its width gives the key shape
    int horizontalGap, verticalGap;
    int frameX, frameY;       // margins inside the frame, used with border "Calculator" only
};
enum class KeySize { Small, Medium, Large };
const KeySizeSet& KeySizeSetOf(KeySize size);

enum class Framed { No, Yes };

// The keys of one view: `columns` x `rows` keys of one size, numbered row by row from 0.
struct KeyGrid {
    int columns = 0, rows = 0;
    int left = 0, top = 0;          // the first key's corner, centring remainders included
    int keyWidth = 0, keyHeight = 0;
    int horizontalGap = 0, verticalGap = 0;

    int KeyCount() const { return columns * rows; }
    friend bool operator==(const KeyGrid&, const KeyGrid&) = default;
};

double GridScale(int viewWidth);

// Key width = (width - 2 x margin - (columns - 1) x gap) / columns, by integer division, and the
// key height likewise; half of each remainder goes to the left and top margins so the keys sit
// centred. A view too small for its keys gives keys of size 0, which nothing hits.
KeyGrid LayoutKeyGrid(int width, int height, int columns, int rows, const KeySizeSet& set,
                      Framed framed);
Rect KeyRect(const KeyGrid& grid, int index);  // index 0 .. KeyCount() - 1
// The key under a point; a point in a gap or a margin hits no key.
std::optional<int> HitTest(const KeyGrid& grid, int x, int y);

// The height a keyboard view of this width wants: keys of the set's shape (never taller than
// 1.6 times their width), so that a taller window gives its spare height to the display.
int PreferredKeyboardHeight(int width, int columns, int rows, const KeySizeSet& set,
                            Framed framed);
// The height a keyboard view of this width needs for keys `keyHeight` pixels high.
int KeyboardHeightFor(int keyHeight, int width, int rows, const KeySizeSet& set, Framed framed);

// The display's tap areas are its left, centre and right thirds; a point left of the display
// counts as left, one right of it as right.
TapArea DisplayTapZone(int width, int x);

}  // namespace brinto
