// "Enter Date" and "Enter Time".
#include <QApplication>
#include <QCalendarWidget>
#include <QFocusEvent>
#include <QListWidget>
#include <QRadioButton>

#include "app/dialogs/date_time_dialogs.h"
#include "app_dialogs/dialog_test_support.h"
#include "engine/numeric/date_fields.h"

namespace brinto::test {
namespace {

// The hour list and AM/PM both ways: 0:05 selects no hour and comes back as 0:05; "12" is noon
// with PM and midnight with AM.
TEST(EnterTime, HourListAndAmPmBothWays) {
    Rig run;
    struct Case {
        int hour, minute, row;
        const char* choose;
        int hourBack;
    };
    const Case cases[] = {
        {0, 5, -1, nullptr, 0},  {12, 30, 11, nullptr, 12}, {12, 30, 11, "AM", 0},
        {13, 7, 0, nullptr, 13}, {23, 59, 10, "AM", 11},    {11, 0, 10, "PM", 23},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.hour) + ":" + std::to_string(c.minute) + " " + (c.choose ? c.choose : ""));
        run.host.clock.now = {2005, 3, 15, c.hour, c.minute, 0, 2};
        run.session.Tap(fid::ClearStack);
        dialogs::EnterTimeDialog* d = run.dialogs.OpenEnterTime();
        EXPECT_EQ(d->hours()->currentRow(), c.row);
        // The list taking the focus makes its first row current; that chooses no hour.
        QFocusEvent focusIn(QEvent::FocusIn, Qt::TabFocusReason);
        QApplication::sendEvent(d->hours(), &focusIn);
        if (c.choose) Click(d->findChildren<QRadioButton*>()[std::string_view(c.choose) == "AM" ? 0 : 1]);
        Click(Button(d, QDialogButtonBox::Ok));
        EXPECT_EQ(run.engine.XTag(), fid::TagTime);
        EXPECT_EQ(run.engine.X(), c.hourBack * 3600.0 + c.minute * 60.0);
    }
}

// Opened on X when X holds a date (else on now); OK enters the chosen date tagged "date" (how it
// lifts the stack and undoes is the session's); Cancel enters nothing.
TEST(EnterDate, OpensOnXOrNowAndEntersOneStep) {
    Rig run;
    run.session.Tap(fid::MethodRpn);
    run.Type("5.0315");
    run.session.Tap(fid::Date);
    dialogs::EnterDateDialog* d = run.dialogs.OpenEnterDate();
    EXPECT_EQ(d->calendar()->selectedDate(), QDate(2005, 3, 15));
    d->calendar()->setSelectedDate(QDate(2031, 12, 31));
    Click(Button(d, QDialogButtonBox::Ok));
    EXPECT_EQ(run.engine.X(), double(kMaxDateValue - 86399));
    EXPECT_EQ(run.engine.XTag(), fid::TagDate);
    run.Type("7");
    run.host.clock.now = {2010, 6, 1, 9, 0, 0, 2};
    d = run.dialogs.OpenEnterDate();
    EXPECT_EQ(d->calendar()->selectedDate(), QDate(2010, 6, 1));
    Click(Button(d, QDialogButtonBox::Cancel));
    EXPECT_EQ(run.engine.X(), 7.0);
}

}  // namespace
}  // namespace brinto::test
