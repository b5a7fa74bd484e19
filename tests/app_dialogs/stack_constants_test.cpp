// The "Stack" view and the "Constants" list.
#include <QListWidget>
#include <QScrollBar>

#include "app/dialogs/constants_dialog.h"
#include "app/dialogs/stack_view.h"
#include "app_dialogs/dialog_test_support.h"
#include "app_dialogs/test_classes.h"
#include "display/display_text.h"
#include "engine/function_ids.h"
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
    return ButtonCalled(view, QString::fromUtf8(FindLegend(id)->legend.data(),
                                                static_cast<qsizetype>(FindLegend(id)->legend.size())));
}

}  // namespace

class StackTests : public QObject {
    Q_OBJECT
private slots:
    // One line per level, X at the bottom; its keys go through the dispatcher. (That the view
    // follows keys typed on the main window is the app's window test.)
    void LinesFollowTheStack() {
        Place place;
        Run run(place);
        run.engine.prefs.SetMethod(InputMethod::Rpn);
        run.session.Tap(fid::MethodRpn);
        run.Type("1\r2\r3");
        auto* view = qobject_cast<dialogs::StackView*>(run.dialogs.Open(dialogs::View::Stack));
        QVERIFY(view && view->isVisible() && !view->isModal());
        QListWidget* lines = view->lines();
        QCOMPARE(lines->count(), run.engine.StackDepth());
        QCOMPARE(lines->item(lines->count() - 1)->text(), Line(run.engine, 0));
        // X at the bottom of the pane, however few the levels; the four lowest named.
        const QRect x = lines->visualItemRect(lines->item(lines->count() - 1));
        QVERIFY(lines->viewport()->height() - x.bottom() <= 2 * lines->spacing() + 2);
        QCOMPARE(lines->item(lines->count() - 1)->data(Qt::UserRole).toString(), QStringLiteral("X"));
        QCOMPARE(lines->item(lines->count() - 4)->data(Qt::UserRole).toString(), QStringLiteral("T"));
        QCOMPARE(lines->item(lines->count() - 3)->text(), Line(run.engine, 2));
        Click(StackKey(view, fid::Swap));
        QCOMPARE(run.engine.X(), 2.0);
        QCOMPARE(lines->item(lines->count() - 1)->text(), Line(run.engine, 0));
        Click(StackKey(view, fid::Drop));
        QCOMPARE(run.engine.X(), 3.0);
    }
};

class ConstantsTests : public QObject {
    Q_OBJECT
private slots:
    // OK with nothing selected keeps the list open; a selected constant is recalled with its tag,
    // a second recall lifts the first, and the scroll position survives a save and reload.
    void RecallAndRememberThePosition() {
        Place place;
        {
            Run run(place);
            run.session.Tap(fid::MethodRpn);
            auto* list = qobject_cast<dialogs::ConstantsDialog*>(run.dialogs.Open(dialogs::View::Constants));
            QVERIFY(list);
            QCOMPARE(list->list()->count(), 33);
            QCOMPARE(list->list()->item(7)->text(), QStringLiteral("Speed of light in vacuum, c"));
            const double x = run.engine.X();
            Click(Button(list, QDialogButtonBox::Ok));
            QVERIFY(list->isVisible());
            QCOMPARE(run.engine.X(), x);
            list->list()->scrollToItem(list->list()->item(20), QAbstractItemView::PositionAtTop);
            const int top = list->list()->verticalScrollBar()->value();
            QVERIFY(top > 0);
            list->list()->item(7)->setSelected(true);
            Click(Button(list, QDialogButtonBox::Ok));
            QVERIFY(!list->isVisible());
            QCOMPARE(run.engine.X(), 299792458.0);
            QCOMPARE(run.engine.XTag(), ValueTag::MetersPerSecond);
            run.dialogs.Open(dialogs::View::Constants);
            QVERIFY(list->list()->selectedItems().isEmpty());
            const QPoint second = list->list()->visualItemRect(list->list()->item(top + 1)).center();
            QTest::mouseClick(list->list()->viewport(), Qt::LeftButton, {}, second);
            QTest::mouseDClick(list->list()->viewport(), Qt::LeftButton, {}, second);
            QCOMPARE(run.engine.Y(), 299792458.0);
            QCOMPARE(run.engine.X(), kPhysicalConstants[static_cast<std::size_t>(top + 1)].value);
            QCOMPARE(run.engine.state.constantsTopRow, u16(top));
            run.Save();
        }
        Run again(place);
        auto* list = qobject_cast<dialogs::ConstantsDialog*>(again.dialogs.Open(dialogs::View::Constants));
        QVERIFY(list->list()->verticalScrollBar()->value() == again.engine.state.constantsTopRow);
        QVERIFY(again.engine.state.constantsTopRow > 0);
        const double x = again.engine.X(), y = again.engine.Y();
        list->list()->item(3)->setSelected(true);
        Click(Button(list, QDialogButtonBox::Cancel));
        QCOMPARE(again.engine.X(), x);
        QCOMPARE(again.engine.Y(), y);
        again.dialogs.Open(dialogs::View::Constants);
        list->list()->setCurrentRow(12);  // "Planck's constant, h", then Enter
        QTest::keyClick(list->list(), Qt::Key_Return);
        QVERIFY(!list->isVisible());
        QCOMPARE(again.engine.X(), 6.6260755e-34);
        QCOMPARE(again.engine.XTag(), ValueTag::None);
    }
};

static RegisterTests<StackTests> registerStack;
static RegisterTests<ConstantsTests> registerConstants;

}  // namespace brinto::test

#include "stack_constants_test.moc"
