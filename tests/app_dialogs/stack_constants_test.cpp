// The "Stack" view and the "Constants" list.
#include <QListWidget>
#include <QScrollBar>

#include "app/dialogs/constants_dialog.h"
#include "app/dialogs/stack_view.h"
#include "app_dialogs/dialog_test_support.h"
#include "ops/constants.h"
#include "session/key_legends.h"

namespace brinto::test {
namespace {

QString Line(Engine& e, int level) {
    const DisplayLine line = DisplayLevel(e, level);
    QString text = QString::fromStdString(line.text);
    if (!line.label.empty()) text += QStringLiteral("  ") + QString::fromStdString(line.label);
    return text;
}

QPushButton* StackKey(QWidget* view, FunctionId id) {
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
