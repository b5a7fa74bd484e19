// "Enter Date", "Enter Time", the duration settings and the help viewer.
#include <QApplication>
#include <QCalendarWidget>
#include <QFocusEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTextBrowser>

#include "app/dialogs/date_time_dialogs.h"
#include "app/dialogs/help_viewer.h"
#include "app_dialogs/dialog_test_support.h"
#include "app_dialogs/test_classes.h"
#include "engine/function_ids.h"
#include "engine/numeric/date_fields.h"

namespace brinto::test {

class DateTimeTests : public QObject {
    Q_OBJECT
private slots:
    // The hour list and AM/PM both ways, through the dialog: 0:05 selects no hour and comes back
    // as 0:05; "12" is noon with PM and midnight with AM.
    void EnterTimeHourArithmetic() {
        Place place;
        Run run(place);
        struct Case { int hour, minute, row; const char* choose; int hourBack; };
        const Case cases[] = {
            {0, 5, -1, nullptr, 0},  {12, 30, 11, nullptr, 12}, {12, 30, 11, "AM", 0},
            {13, 7, 0, nullptr, 13}, {23, 59, 10, "AM", 11},    {11, 0, 10, "PM", 23},
        };
        for (const Case& c : cases) {
            run.host.clock.now = {2005, 3, 15, c.hour, c.minute, 0, 2};
            run.session.Tap(fid::ClearStack);
            dialogs::EnterTimeDialog* d = run.dialogs.OpenEnterTime();
            QCOMPARE(d->hours()->currentRow(), c.row);
            // The list taking the focus makes its first row current; that chooses no hour.
            QFocusEvent focusIn(QEvent::FocusIn, Qt::TabFocusReason);
            QApplication::sendEvent(d->hours(), &focusIn);
            if (c.choose) Click(d->findChildren<QRadioButton*>()[std::string_view(c.choose) == "AM" ? 0 : 1]);
            Click(Button(d, QDialogButtonBox::Ok));
            QCOMPARE(run.engine.XTag(), fid::TagTime);
            QCOMPARE(run.engine.X(), c.hourBack * 3600.0 + c.minute * 60.0);
        }
    }

    // Opened on X when X holds a date (else on now); OK enters the chosen date tagged "date" as
    // one undoable step, lifting X like a recalled value; Cancel enters nothing.
    void EnterDateFromXAndUndo() {
        Place place;
        Run run(place);
        run.session.Tap(fid::MethodRpn);
        run.Type("5.0315");
        run.session.Tap(fid::Date);
        dialogs::EnterDateDialog* d = run.dialogs.OpenEnterDate();
        QCOMPARE(d->calendar()->selectedDate(), QDate(2005, 3, 15));
        d->calendar()->setSelectedDate(QDate(2031, 12, 31));
        Click(Button(d, QDialogButtonBox::Ok));
        QCOMPARE(run.engine.X(), double(kMaxDateValue - 86399));
        QCOMPARE(run.engine.XTag(), fid::TagDate);
        QCOMPARE(run.engine.YTag(), fid::TagDate);
        run.session.Undo();
        QCOMPARE(run.engine.YTag(), ValueTag::None);
        run.Type("7");
        run.host.clock.now = {2010, 6, 1, 9, 0, 0, 2};
        d = run.dialogs.OpenEnterDate();
        QCOMPARE(d->calendar()->selectedDate(), QDate(2010, 6, 1));
        Click(Button(d, QDialogButtonBox::Cancel));
        QCOMPARE(run.engine.X(), 7.0);
    }

    // The settings show their defaults while unset; OK stores them as one step that survives a
    // reload.
    void DurationSettings() {
        Place place;
        {
            Run run(place);
            dialogs::DurationsDialog* d = run.dialogs.OpenDurations();
            QCOMPARE(d->field(0)->text(), QStringLiteral("365.25"));
            d->field(0)->setText(QStringLiteral("360"));
            Click(Button(d, QDialogButtonBox::Ok));
            QCOMPARE(run.engine.DurationSetting(reg::DaysPerYear), 360.0);
            run.Save();
        }
        Run again(place);
        dialogs::DurationsDialog* d = again.dialogs.OpenDurations();
        QCOMPARE(d->field(0)->text(), QStringLiteral("360."));  // as the display writes it
        Click(ButtonCalled(d, QStringLiteral("Default")));
        QCOMPARE(d->field(0)->text(), QStringLiteral("365.25"));
        Click(Button(d, QDialogButtonBox::Ok));
        QCOMPARE(again.engine.DurationSetting(reg::DaysPerYear), 365.25);
        again.session.Undo();
        QCOMPARE(again.engine.DurationSetting(reg::DaysPerYear), 360.0);
    }

    // The viewer shows the bundled guide at every anchor a window asks for, or says the guide is
    // missing; find wraps around.
    void HelpViewerShowsTheAnchor() {
        dialogs::HelpViewer viewer;
        QFile guide(QString::fromLatin1(dialogs::kGuideResource));
#ifdef BRINTO_GUIDE_BUNDLED
        QVERIFY(guide.exists());
#endif
        if (guide.open(QIODevice::ReadOnly)) {
            const QByteArray text = guide.readAll();
            for (const char* anchor : {"Main_Contents", "about", "amortization", "cashflow", "constants", "keyboard",
                                       "prefs", "rpnstack", "statistical", "tvm", "userregisters"}) {
                QVERIFY2(text.contains("id=\"" + QByteArray(anchor) + "\""), anchor);
                viewer.ShowAnchor(anchor);
                QCOMPARE(viewer.browser()->source().fragment(), QString::fromLatin1(anchor));
            }
            QVERIFY(viewer.Find(QStringLiteral("Brinto")));
        } else {
            viewer.ShowAnchor("tvm");
            QVERIFY(viewer.browser()->toPlainText().contains(QStringLiteral("User guide missing")));
            QVERIFY(viewer.Find(QStringLiteral("missing")));
            QVERIFY(viewer.Find(QStringLiteral("missing")));  // wraps to the first again
        }
        QVERIFY(!viewer.Find(QStringLiteral("no such words anywhere")));
    }
};

static RegisterTests<DateTimeTests> registerDateTime;

}  // namespace brinto::test

#include "date_time_test.moc"
