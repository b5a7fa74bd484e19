#pragma once
// "Enter Date", "Enter Time" and the duration settings. The first two hand back what was chosen;
// the owner enters it into X. The duration settings (dpy, dpm, dpw, hpd, fps) are stored on OK.
#include <QDialog>
#include <array>

#include "app/dialogs/dialog_support.h"
#include "session/session.h"

class QButtonGroup;
class QCalendarWidget;
class QLabel;
class QLineEdit;
class QListWidget;

namespace brinto::dialogs {

// The hour list's row for hour h (0..23): "1".."12" are rows 0..11, so 13..23 select "1".."11"
// and 0 selects no row (-1). And back: the row and "PM" give the hour, "12" with "AM" being 0.
constexpr int HourRow(int hour) { return (hour - 1) % 12; }
constexpr int HourOf(int row, bool pm) { return (row + 1) % 12 + (pm ? 12 : 0); }

// The fields "Enter Date" and "Enter Time" open on: those of X when X holds a date (for Date) or a
// clock time (for Time) or a date and time, else the current local time.
enum class Offer { Date, Time };
DateFields DateTimeToOffer(const Engine& e, Offer offer);

class EnterDateDialog : public QDialog {
public:
    EnterDateDialog(const HelpFunction& help, QWidget* parent);
    void SetDate(int year, int month, int day);
    QCalendarWidget* calendar() const { return m_calendar; }

private:
    QCalendarWidget* m_calendar;
};

class EnterTimeDialog : public QDialog {
public:
    EnterTimeDialog(const HelpFunction& help, QWidget* parent);
    void SetTime(int hour, int minute);
    int Hour() const;
    int Minute() const;
    QListWidget* hours() const { return m_hours; }

private:
    QListWidget* m_hours;
    QListWidget* m_tens;
    QListWidget* m_units;
    QButtonGroup* m_halfDay;
};

class DurationsDialog : public QDialog {
    Q_OBJECT
public:
    DurationsDialog(Session& session, const HelpFunction& help, QWidget* parent);
    void Load();
    void accept() override;
    QLineEdit* field(int i) const { return m_fields[static_cast<std::size_t>(i)]; }

Q_SIGNALS:
    void changed();

private:
    Session& m_session;
    std::array<QLineEdit*, 5> m_fields{};
    QLabel* m_problem;
};

}  // namespace brinto::dialogs
