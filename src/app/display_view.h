#pragma once
// The display: X and further stack levels with their labels, and a row of annunciators. It only
// reads the engine; a tap on its left, centre or right third is reported for the window to open
// the view that the "Tap:" preference names.
#include <QWidget>

#include "engine/preferences.h"
#include "session/appearance.h"
#include "session/screen_colours.h"

namespace brinto {

class Engine;

class DisplayView : public QWidget {
    Q_OBJECT
public:
    explicit DisplayView(const Engine& engine, QWidget* parent = nullptr);

    // The theme's colours and what the "Display" preferences mean under it; `keyboardName` is
    // written in the display when "Show:" puts it there (empty otherwise).
    void SetLook(const ScreenColours& colours, const ThemeSet& themes, const QString& keyboardName);
    // The number of stack levels drawn in the current view.
    int LinesShown() const;
    // The height that shows every line at this width.
    int PreferredHeight(int width) const;
    // What a screen reader reads: X with its label ("1,234.5 inches"); the other levels shown with
    // their names and the annunciators that are on ("Y: 3; Z: 2; RPN, DEG"); X as a number.
    QString AccessibleX() const;
    QString AccessibleDetails() const;
    double XValue() const;
    // The annunciators that are on, in the order drawn.
    QStringList Annunciators() const;

Q_SIGNALS:
    void Tapped(TapArea area);

protected:
    QFont MakeFont(DisplayFont which, int width) const;
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    // Once the key being handled is done, the screen reader is told what changed: X (its text
    // and value), or else the other lines and annunciators; one announcement per key.
    void ScheduleAnnouncement();
    void Announce();
    void Notify(const QString& x);

    const Engine& m_engine;
    QString m_announcedX, m_announcedDetails;
    bool m_announcing = false;
    bool m_ringShown = false;
    QWidget* m_notice = nullptr;  // X as a notification, made on first use  // the focus ring, once the focus was moved to the display by Tab
    ScreenColours m_colours{};
    DisplayLines m_lines;
    DisplayFonts m_fonts{};
    Borders m_borders;
    QString m_keyboardName;
};

}  // namespace brinto
