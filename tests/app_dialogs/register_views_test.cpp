// The register views: "Time Value of Money", "Amortization", "Statistical Registers",
// "Cash Flow Entries" and "User Registers".
#include <QMessageBox>
#include <QLineEdit>
#include <QTableWidget>
#include <cmath>
#include <functional>

#include "app/dialogs/colour_dialogs.h"
#include "app/dialogs/date_time_dialogs.h"
#include "app/dialogs/register_view.h"
#include "app/dialogs/schedule_window.h"
#include "app_dialogs/dialog_test_support.h"
#include "app_dialogs/test_classes.h"
#include "display/display_text.h"
#include "engine/function_ids.h"

namespace brinto::test {
namespace {

QTableWidget* Table(QWidget* view) { return view->findChild<QTableWidget*>(); }

QStringList Labels(QWidget* view) {
    QStringList labels;
    for (int r = 0; r < Table(view)->rowCount(); ++r) labels << Table(view)->item(r, 0)->text();
    return labels;
}

void Edit(QWidget* view, int row, int column, const QString& text) {
    Table(view)->item(row, column)->setText(text);
}

QString Cell(QWidget* view, int row, int column) { return Table(view)->item(row, column)->text(); }

// What the display shows for `value` in X, without its label.
QString AsDisplayed(Engine& e, double value) {
    const StackEntry x = e.Level(0);
    e.SetX(value);
    const QString text = QString::fromStdString(DisplayLevel(e, 0).text);
    e.SetLevel(0, x);
    return text;
}

}  // namespace

class RegisterViewTests : public QObject {
    Q_OBJECT
private slots:
    // Rows in their order with their labels; an edit stores through the register as one undo
    // step and survives a reload; text that is no number changes nothing.
    void TvmEditsAreUndoableAndSaved() {
        Place place;
        {
            Run run(place);
            QWidget* view = run.dialogs.Open(dialogs::View::Tvm);
            QCOMPARE(view->windowTitle(), QStringLiteral("Time Value of Money"));
            QCOMPARE(Labels(view), (QStringList{"P/YR", "N", "I/YR", "PV", "PMT", "FV"}));
            QCOMPARE(Cell(view, 0, 1), AsDisplayed(run.engine, 12));
            Edit(view, 3, 1, QStringLiteral("-1,234.5"));
            QCOMPARE(run.engine.registers.values[reg::PV], -1234.5);
            QCOMPARE(Cell(view, 3, 1), AsDisplayed(run.engine, -1234.5));
            QVERIFY(run.engine.dirty.registers);
            Edit(view, 3, 1, QStringLiteral("abc"));
            QCOMPARE(run.engine.registers.values[reg::PV], -1234.5);
            QCOMPARE(Cell(view, 3, 1), AsDisplayed(run.engine, -1234.5));
            Edit(view, 1, 1, QStringLiteral("360"));
            run.session.Undo();
            QCOMPARE(run.engine.registers.values[reg::N], 0.0);
            QCOMPARE(run.engine.registers.values[reg::PV], -1234.5);
            run.Save();
        }
        Run again(place);
        QCOMPARE(again.engine.registers.values[reg::PV], -1234.5);
    }

    // A value being typed survives a change that another program makes meanwhile; the view shows
    // that change once the edit is over.
    void AnEditOutlivesAChangeFromElsewhere() {
        Place place;
        Run run(place);
        QWidget* view = run.dialogs.Open(dialogs::View::Tvm);
        QTableWidget* table = Table(view);
        table->setFocus();
        table->setCurrentCell(3, 1);
        table->editItem(table->item(3, 1));
        auto* edit = table->findChild<QLineEdit*>();
        QVERIFY(edit);
        edit->setText(QStringLiteral("250"));
        run.engine.registers.values[reg::N] = 48;  // as a take-over from another program leaves it
        run.dialogs.Refresh();
        QCOMPARE(edit->text(), QStringLiteral("250"));
        QTest::keyClick(edit, Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(run.engine.registers.values[reg::PV], 250.0);
        QTRY_COMPARE(Cell(view, 1, 1), AsDisplayed(run.engine, 48));
    }

    // "Solve" computes the register as its key does, also while a number is being typed.
    void TvmSolveComputesTheRow() {
        Place place;
        Run run(place);
        double* r = run.engine.registers.values;
        r[reg::N] = 360;
        r[reg::IYr] = 6;
        r[reg::PV] = 100000;
        r[reg::FV] = 0;
        run.Type("77");
        QWidget* view = run.dialogs.Open(dialogs::View::Tvm);
        auto* solve = qobject_cast<QPushButton*>(Table(view)->cellWidget(4, 2));
        QVERIFY(solve && !Table(view)->cellWidget(0, 2));  // P/YR has none
        Click(solve);
        QVERIFY(std::abs(r[reg::PMT] + 599.5505251527) < 1e-6);
        QCOMPARE(run.engine.X(), r[reg::PMT]);
        QCOMPARE(Cell(view, 4, 1), AsDisplayed(run.engine, r[reg::PMT]));
    }

    // Only CF0 gives the message; rows list the entries with their group counts, and an edit
    // never leaves a count below 1.
    void CashFlowsKeepTheirGroupCounts() {
        Place place;
        Run run(place);
        run.Type("1000");
        run.session.Tap(fid::CashFlow);
        auto* box = qobject_cast<QMessageBox*>(run.dialogs.Open(dialogs::View::CashFlow));
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), QStringLiteral("No Cash Flow Entries"));
        QCOMPARE(box->text(), QStringLiteral("There are no cash flow entries to display."));
        box->close();
        run.Type("300");
        run.session.Tap(fid::CashFlow);
        run.Type("4");
        run.session.Tap(fid::GroupCount);
        QWidget* view = run.dialogs.Open(dialogs::View::CashFlow);
        QCOMPARE(view->windowTitle(), QStringLiteral("Cash Flow Entries"));
        QCOMPARE(Labels(view), (QStringList{"CF0", "CF1"}));
        QCOMPARE(Cell(view, 1, 2), QStringLiteral("4"));
        Edit(view, 1, 2, QStringLiteral("0"));
        QCOMPARE(run.engine.registers.aux[1], 4u);
        QCOMPARE(Cell(view, 1, 2), QStringLiteral("4"));
        Edit(view, 1, 2, QStringLiteral("6"));
        Edit(view, 0, 1, QStringLiteral("-900"));
        QCOMPARE(run.engine.registers.aux[1], 6u);
        QCOMPARE(run.engine.registers.values[0], -900.0);
        QCOMPARE(run.engine.registers.values[1], 300.0);
        run.session.Undo();
        QCOMPARE(run.engine.registers.values[0], 1000.0);
        QCOMPARE(run.engine.registers.aux[1], 6u);
    }

    // Start and End as last set; the results read-only and always those of the range shown, as
    // the amortization key gives them; Return closes the view. The statistical sums in order.
    void AmortizationAndStatisticsRows() {
        Place place;
        Run run(place);
        double* r = run.engine.registers.values;
        r[reg::N] = 360;
        r[reg::IYr] = 6;
        r[reg::PV] = 100000;
        r[reg::PMT] = -599.55;
        run.engine.state.amortStart = 1;
        run.engine.state.amortEnd = 12;
        run.session.Tap(fid::Amortize);  // the results of 1-12 are stored
        QWidget* view = run.dialogs.Open(dialogs::View::Amortization);
        QCOMPARE(Labels(view), (QStringList{"P/YR", "N", "I/YR", "PV", "PMT", "Start", "End", "Int", "Prin", "Bal"}));
        QCOMPARE(Cell(view, 5, 1), AsDisplayed(run.engine, 1));
        QVERIFY(!(Table(view)->item(9, 1)->flags() & Qt::ItemIsEditable));
        Edit(view, 5, 1, QStringLiteral("13"));
        Edit(view, 6, 1, QStringLiteral("24"));
        QCOMPARE(run.engine.state.amortStart, i16{13});
        QCOMPARE(run.engine.state.amortEnd, i16{24});
        const QStringList shown{Cell(view, 7, 1), Cell(view, 8, 1), Cell(view, 9, 1)};
        run.session.Tap(fid::Amortize);  // what the key gives for 13-24: Int, Prin, Bal
        QCOMPARE(shown, (QStringList{AsDisplayed(run.engine, run.engine.X()), AsDisplayed(run.engine, run.engine.Y()),
                                     AsDisplayed(run.engine, run.engine.Level(2).value)}));
        QVERIFY(run.engine.Level(2).value < 100000 - 1228);  // beyond the first year's balance
        Edit(view, 3, 1, QStringLiteral("50000"));  // a register of the loan changes them too
        run.session.Tap(fid::Amortize);
        QCOMPARE(Cell(view, 9, 1), AsDisplayed(run.engine, run.engine.Level(2).value));
        QTest::keyClick(view, Qt::Key_Return);
        QVERIFY(!view->isVisible());

        run.Type("3");
        run.session.Tap(fid::SigmaPlus);
        QWidget* stats = run.dialogs.Open(dialogs::View::Statistical);
        QCOMPARE(stats->windowTitle(), QStringLiteral("Statistical Registers"));
        QCOMPARE(Labels(stats), (QStringList{"n", "sum x", "sum x2", "sum y", "sum y2", "sum xy"}));
        QCOMPARE(Cell(stats, 0, 1), AsDisplayed(run.engine, 1));
        QCOMPARE(Cell(stats, 2, 1), AsDisplayed(run.engine, 9));
    }

    // The register set in force, and the views stay in step with the calculator on Refresh.
    void UserRegistersFollowTheRegisterSet() {
        Place place;
        Run run(place);
        QWidget* view = run.dialogs.Open(dialogs::View::UserRegisters);
        QCOMPARE(Table(view)->rowCount(), 100);
        run.engine.registers.values[7] = 0.5;
        run.dialogs.Refresh();
        QCOMPARE(Cell(view, 7, 1), AsDisplayed(run.engine, 0.5));
        run.engine.prefs.SetHundredRegisters(false);
        run.dialogs.Open(dialogs::View::UserRegisters);
        QCOMPARE(Table(view)->rowCount(), 10);
        QCOMPARE(run.engine.state.lastView, u16(dialogs::View::UserRegisters));
    }

    // Each window's Help, and F1 in it, open its own anchor.
    void HelpOpensEachAnchor() {
        Place place;
        Run run(place);
        run.Type("1");
        run.session.Tap(fid::CashFlow);
        run.session.Tap(fid::CashFlow);
        using Opener = std::function<QWidget*()>;
        const auto view = [&run](dialogs::View v) -> Opener { return [&run, v] { return run.dialogs.Open(v); }; };
        const std::pair<Opener, const char*> windows[] = {
            {view(dialogs::View::Tvm), "tvm"},
            {view(dialogs::View::Amortization), "amortization"},
            {view(dialogs::View::Statistical), "statistical"},
            {view(dialogs::View::UserRegisters), "userregisters"},
            {view(dialogs::View::CashFlow), "cashflow"},
            {view(dialogs::View::Stack), "rpnstack"},
            {view(dialogs::View::Constants), "constants"},
            {view(dialogs::View::Preferences), "prefs"},
            {view(dialogs::View::Keyboard), "keyboard"},
            {[&run] { return run.dialogs.OpenAbout(); }, "about"},
            {[&run] { return run.dialogs.OpenEnterDate(); }, "enterdate"},
            {[&run] { return run.dialogs.OpenEnterTime(); }, "enterdate"},
            {[&run] { return run.dialogs.OpenDurations(); }, "durations"},
            {[&run] { return run.dialogs.OpenSchedule(); }, "schedule"},
            {[&run] { return run.dialogs.OpenColours(); }, "colors"},
            {[&run] { return run.dialogs.OpenColours()->Choose(0); }, "colors"},
        };
        for (const auto& [open, anchor] : windows) {
            QWidget* window = open();
            QVERIFY2(window, anchor);
            run.helpAnchors.clear();
            Click(Button(window, QDialogButtonBox::Help));
            QCOMPARE(run.helpAnchors, std::vector<std::string>{anchor});
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window));
            QTest::keyClick(window, Qt::Key_F1);
            QCOMPARE(run.helpAnchors, (std::vector<std::string>{anchor, anchor}));
            window->close();
        }
    }
};

static RegisterTests<RegisterViewTests> registerViews;

}  // namespace brinto::test

#include "register_views_test.moc"
