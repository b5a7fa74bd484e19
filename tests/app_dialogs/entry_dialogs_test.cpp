// The windows that put values into the calculator: "Enter Date", "Enter Time", the "Stack" view
// and the "Constants" list.
#include <QApplication>
#include <QCalendarWidget>
#include <QFocusEvent>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollBar>

#include "app/dialogs/constants_dialog.h"
#include "app/dialogs/date_time_dialogs.h"
#include "app/dialogs/stack_view.h"
#include "app_dialogs/dialog_test_support.h"
#include "engine/numeric/date_fields.h"
#include "ops/constants.h"
#include "session/key_legends.h"

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

QString Line(Engine& e, int level) {
    const DisplayLine line = DisplayLevel(e, level);
    QString text = QString::fromStdString(line.text);
    if (!line.label.empty()) text += QStringLiteral("  ") + QString::fromStdString(line.label);
    return text;
}

QAbstractButton* StackKey(QWidget* view, FunctionId id) {
    const std::string_view legend = FindLegend(id)->legend;
    return ButtonCalled(view, QString::fromUtf8(legend.data(), static_cast<qsizetype>(legend.size())));
}

// One line per level, X at the bottom of the pane however few the levels, the four lowest named;
// its keys go through the dispatcher. (That the view follows keys typed on the main window is the
// app's window test.)
TEST(StackView, LinesFollowTheStack) {
    Rig run;
    run.session.Tap(fid::MethodRpn);
    run.Type("1\r2\r3");
    auto* view = qobject_cast<dialogs::StackView*>(run.dialogs.Open(View::Stack));
    ASSERT_TRUE(view && view->isVisible());
    EXPECT_FALSE(view->isModal());
    QListWidget* lines = view->lines();
    const int x = lines->count() - 1;
    EXPECT_EQ(lines->count(), run.engine.StackDepth());
    EXPECT_EQ(lines->item(x)->text(), Line(run.engine, 0));
    EXPECT_LE(lines->viewport()->height() - lines->visualItemRect(lines->item(x)).bottom(), 2 * lines->spacing() + 2);
    EXPECT_EQ(lines->item(x)->data(Qt::UserRole).toString(), QStringLiteral("X"));
    EXPECT_EQ(lines->item(x - 3)->data(Qt::UserRole).toString(), QStringLiteral("T"));
    EXPECT_EQ(lines->item(x - 2)->text(), Line(run.engine, 2));
    Click(StackKey(view, fid::Swap));
    EXPECT_EQ(run.engine.X(), 2.0);
    EXPECT_EQ(lines->item(x)->text(), Line(run.engine, 0));
    Click(StackKey(view, fid::Drop));
    EXPECT_EQ(run.engine.X(), 3.0);
}

// OK with nothing selected keeps the list open; a selected constant is recalled with its tag, a
// double click recalls the row clicked, Return the current row, Cancel nothing; the scroll
// position is kept in the calculator and the list opens on it.
TEST(ConstantsList, RecallsAndRemembersThePosition) {
    Rig run;
    auto* list = qobject_cast<dialogs::ConstantsDialog*>(run.dialogs.Open(View::Constants));
    ASSERT_NE(list, nullptr);
    QListWidget* rows = list->list();
    EXPECT_EQ(rows->item(7)->text(), QStringLiteral("Speed of light in vacuum, c"));
    Click(Button(list, QDialogButtonBox::Ok));
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(run.engine.X(), 0.0);
    rows->scrollToItem(rows->item(20), QAbstractItemView::PositionAtTop);
    const int top = rows->verticalScrollBar()->value();
    ASSERT_GT(top, 0);
    rows->item(7)->setSelected(true);
    Click(Button(list, QDialogButtonBox::Ok));
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(run.engine.X(), 299792458.0);
    EXPECT_EQ(run.engine.XTag(), ValueTag::MetersPerSecond);
    run.dialogs.Open(View::Constants);
    EXPECT_TRUE(rows->selectedItems().isEmpty());
    const QPoint second = rows->visualItemRect(rows->item(top + 1)).center();
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(rows->viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(run.engine.X(), kPhysicalConstants[static_cast<std::size_t>(top + 1)].value);
    EXPECT_EQ(run.engine.state.constantsTopRow, u16(top));

    Rig again;
    again.engine.state.constantsTopRow = 9;
    list = qobject_cast<dialogs::ConstantsDialog*>(again.dialogs.Open(View::Constants));
    rows = list->list();
    EXPECT_EQ(rows->verticalScrollBar()->value(), 9);
    rows->item(3)->setSelected(true);
    Click(Button(list, QDialogButtonBox::Cancel));
    EXPECT_EQ(again.engine.X(), 0.0);
    again.dialogs.Open(View::Constants);
    rows->setCurrentRow(12);  // "Planck's constant, h", then Enter
    QTest::keyClick(rows, Qt::Key_Return);
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(again.engine.X(), 6.6260755e-34);
}

}  // namespace
}  // namespace brinto::test
