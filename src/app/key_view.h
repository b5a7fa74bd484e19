#pragma once
// A grid of drawn keys: the Advanced view's keyboard (the 12-key block over the shared keypad) or
// the Basic view's keys. Faces are painted from the legend table in the theme's colours; a tap
// is reported by the key's index and the window decides what it means.
//
// The view takes the focus by Tab only (a click does not take it, so Return after a click still
// is the Action button). While it has the focus, the arrow keys move a focus ring from key to
// key, wrapping at the edges, and Space or Return press the key with the ring; every other key
// goes on to the window, so typed digits and operators work as anywhere else.
#include <QWidget>
#include <vector>

#include "session/appearance.h"
#include "session/key_grid.h"
#include "session/screen_colours.h"

namespace brinto {

struct KeyCell {
    FunctionId unshifted;
    FunctionId shifted;
    int block;  // 1..12 for the keyboard's variable block, 0 for the shared keys
    friend bool operator==(const KeyCell&, const KeyCell&) = default;
};

// How the keys are drawn, from the theme and the "Keyboard" preferences.
struct KeyLook {
    ScreenColours colours;
    KeySizeSet sizeSet{};
    Framed framed = Framed::No;
    LegendArrangement arrangement = LegendArrangement::Static;
    int shadow = 1;  // pixels of the 240-wide screen
    int corner = 3;  // likewise
    bool shifted = false;
    QString title;   // the keyboard's name above the keys; empty for none
    std::vector<FunctionId> latchedOn;  // latch keys whose state is on (shift, HYP, DEG, ...)
};

QColor ToQColor(Rgb rgb);
// A key's face text, full name and hardware key from the legend table.
QString LegendText(FunctionId id);
QString ToolTipText(FunctionId id);

class KeyView : public QWidget {
    Q_OBJECT
public:
    explicit KeyView(QWidget* parent = nullptr);

    void SetKeys(std::vector<KeyCell> keys, int columns);
    void SetLook(const KeyLook& look);

    int KeyCount() const { return static_cast<int>(m_keys.size()); }
    const KeyCell& Key(int index) const { return m_keys[static_cast<size_t>(index)]; }
    int Columns() const { return m_columns; }
    int Rows() const;
    // The height of the name strip above the keys (0 without a name) at the view's width, or at
    // `width`, the one it is about to be given: the layout must not depend on the width it had.
    int TitleHeight() const { return TitleHeight(width()); }
    int TitleHeight(int width) const;
    // The height of the capitals of the smallest legend drawn, in pixels.
    int SmallestLegendCapitals() const;
    // The key's rectangle in widget coordinates.
    QRect CellRect(int index) const;
    int KeyAt(QPoint point) const;
    // The function the key performs now: its shifted one while the latch is set.
    FunctionId ActiveId(int index) const;

    // A tap on the key from outside the mouse: accessibility tools' press action.
    void Press(int index) { Q_EMIT Tapped(index); }
    // The key the focus ring is on (also while the view has no focus: where Tab will put it).
    int FocusKey() const { return m_focusKey; }
    void SetFocusKey(int index);
    // Whether the key's latch is on (false for keys that are no latch).
    bool LatchedOn(int index) const;

Q_SIGNALS:
    void Tapped(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;

private:
    int Inset() const;
    void Relayout();
    void DrawKey(QPainter& painter, int index);
    void DrawFocusRing(QPainter& painter);
    // The key `steps` columns and `rowSteps` rows away from the ring, wrapping within its row or column.
    int Neighbour(int columnSteps, int rowSteps) const;
    // Tells accessibility tools which key has the focus, or what changed on one key.
    void NotifyFocus() const;

    std::vector<KeyCell> m_keys;
    int m_columns = 1;
    KeyLook m_look;
    KeyGrid m_grid;
    int m_pressed = -1;
    int m_hover = -1;
    int m_focusKey = 0;
};

}  // namespace brinto
