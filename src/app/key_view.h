#pragma once
// A grid of drawn keys: the Advanced view's keyboard (the 12-key block over the shared keypad) or
// the Basic view's keys. Faces are painted from the legend table in the theme's colours; a tap
// is reported by the key's index and the window decides what it means.
#include <QWidget>
#include <vector>

#include "app/faces.h"

namespace brinto {

struct KeyCell {
    FunctionId unshifted;
    FunctionId shifted;
    int block;  // 1..12 for the keyboard's variable block, 0 for the shared keys
};

// How the keys are drawn, from the preferences.
struct KeyLook {
    Colours colours;
    bool shifted = false;  // the shift latch is set
    int size = 0, labels = 0, colour = 0, active = 0, shadow = 0, show = 0;
};

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
    // The key's cell in widget coordinates (the face and the space for its shifted legend).
    QRect CellRect(int index) const;
    // The face of the key, inside its cell.
    QRectF FaceRect(int index) const;
    int KeyAt(QPoint point) const;
    // The function the key has now: its shifted one while the latch is set.
    FunctionId ShownId(int index) const;
    // The function drawn small beside the face, if any.
    FunctionId OtherId(int index) const;

Q_SIGNALS:
    void Tapped(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void DrawKey(QPainter& painter, int index);

    std::vector<KeyCell> m_keys;
    int m_columns = 1;
    KeyLook m_look;
    int m_pressed = -1;
    int m_hover = -1;
};

}  // namespace brinto
