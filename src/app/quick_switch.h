#pragma once
// The Quick Switch strip: nine buttons along the bottom of the main window, one per keyboard. Its
// names stay whole and distinct at every width from the window's minimum up: the full names
// where they fit, else short forms ("Conv 1"), else the short forms on two lines, in a font that
// shrinks no further than 8 pixels; every button tells its full name as its tool tip.
#include <QWidget>

class QButtonGroup;

namespace brinto {

class QuickSwitchStrip : public QWidget {
    Q_OBJECT
public:
    explicit QuickSwitchStrip(QWidget* parent = nullptr);

    QButtonGroup* buttons() const { return m_buttons; }
    // The strip's height at a window width: 26 pixels as on the handheld, a little more on a
    // wide window, whose names are drawn larger.
    int PreferredHeight(int width) const;
    // Chooses the names and the font for a width; called before the strip is given it.
    void FitTo(int width);

Q_SIGNALS:
    void chosen(int keyboard);

private:
    QButtonGroup* m_buttons;
};

}  // namespace brinto
