#pragma once
// The display: X and further stack levels with their labels, and a row of annunciators. It only
// reads the engine; a tap on its left, centre or right third is reported for the window to open
// the view that the "Tap:" preference names.
#include <QWidget>

#include "app/faces.h"
#include "engine/preferences.h"

namespace brinto {

class Engine;

class DisplayView : public QWidget {
    Q_OBJECT
public:
    explicit DisplayView(const Engine& engine, QWidget* parent = nullptr);

    void SetColours(const Colours& colours);
    // The number of stack levels drawn in the current view.
    int LinesShown() const;
    // The display's text as a screen reader reads it: X, its label, then the other levels.
    QString AccessibleText() const;
    // The annunciators that are on, in the order drawn.
    QStringList Annunciators() const;

Q_SIGNALS:
    void Tapped(TapArea area);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const Engine& m_engine;
    Colours m_colours;
};

}  // namespace brinto
