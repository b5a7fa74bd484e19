// The register views: "Time Value of Money", "Amortization", "Statistical Registers",
// "Cash Flow Entries" and "User Registers", the amortization schedule, and the Help of every
// secondary window.
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTextBrowser>
#include <cstring>
#include <functional>

#include "app/dialogs/colour_dialogs.h"
#include "app/dialogs/date_time_dialogs.h"
#include "app/dialogs/help_viewer.h"
#include "app/dialogs/register_view.h"
#include "app/dialogs/schedule_window.h"
#include "app_dialogs/dialog_test_support.h"

namespace brinto::test {
namespace {

void Edit(QWidget* view, int row, int column, const QString& text) { Table(view)->item(row, column)->setText(text); }

// Each view's title and rows in order, its values as the display writes them, kept in step with
// the calculator on Refresh. "Cash Flow" with nothing beyond CF0 is a message instead.
TEST(RegisterViews, EachListsItsRowsAndFollowsTheCalculator) {
    Rig run;
    run.Type("1000");
    run.session.Tap(fid::CashFlow);
    auto* box = qobject_cast<QMessageBox*>(run.dialogs.Open(View::CashFlow));
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->windowTitle(), QStringLiteral("No Cash Flow Entries"));
    EXPECT_EQ(box->text(), QStringLiteral("There are no cash flow entries to display."));
    box->close();
    run.Type("300");
    run.session.Tap(fid::CashFlow);
    run.Type("4");
    run.session.Tap(fid::GroupCount);
    run.engine.state.amortStart = 13;
    struct Case {
        View view;
        const char* title;
        QStringList labels;
        int row;  // a row whose value is checked
        double value;
    };
    const Case cases[] = {
        {View::Tvm, "Time Value of Money", {"P/YR", "N", "I/YR", "PV", "PMT", "FV"}, 0, 12},
        {View::Amortization, "Amortization", {"P/YR", "N", "I/YR", "PV", "PMT", "Start", "End", "Int", "Prin", "Bal"}, 5, 13},
        {View::Statistical, "Statistical Registers", {"n", "sum x", "sum x2", "sum y", "sum y2", "sum xy"}, 0, 0},
        {View::CashFlow, "Cash Flow Entries", {"CF0", "CF1"}, 1, 300},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.title);
        QWidget* view = run.dialogs.Open(c.view);
        EXPECT_EQ(view->windowTitle(), QString::fromLatin1(c.title));
        EXPECT_EQ(Labels(view), c.labels);
        EXPECT_EQ(Cell(view, c.row, 1), run.Shown(c.value));
        EXPECT_EQ(run.engine.state.lastView, u16(c.view));
    }
    run.Register(0) = -1000;  // an outlay first, so the flows have a rate of return
    run.Register(reg::IYr) = 10;
    auto* flows = qobject_cast<dialogs::RegisterView*>(run.dialogs.Open(View::CashFlow));
    EXPECT_EQ(Cell(flows, 1, 2), QStringLiteral("4"));  // the group count
    // Its diagram is read out by its values.
    ASSERT_TRUE(flows && flows->diagram());
    EXPECT_TRUE(flows->diagram()->accessibleName().contains(QStringLiteral("NPV ")));
    EXPECT_TRUE(flows->diagram()->accessibleName().contains(QStringLiteral("IRR/YR ")));

    QWidget* view = run.dialogs.Open(View::UserRegisters);
    EXPECT_EQ(Table(view)->rowCount(), 100);
    run.Register(7) = 0.5;
    run.dialogs.Refresh();
    EXPECT_EQ(Cell(view, 7, 1), run.Shown(0.5));
    run.engine.prefs.SetHundredRegisters(false);
    run.dialogs.Open(View::UserRegisters);
    EXPECT_EQ(Table(view)->rowCount(), 10);
}

// A value being typed survives a change that another program makes meanwhile; the view shows
// that change once the edit is over.
TEST(RegisterViews, AnEditOutlivesAChangeFromElsewhere) {
    Rig run;
    QWidget* view = run.dialogs.Open(View::Tvm);
    QTableWidget* table = Table(view);
    table->setFocus();
    table->setCurrentCell(3, 1);
    table->editItem(table->item(3, 1));
    auto* edit = table->findChild<QLineEdit*>();
    ASSERT_NE(edit, nullptr);
    edit->setText(QStringLiteral("250"));
    run.Register(reg::N) = 48;  // as a take-over from another program leaves it
    run.dialogs.Refresh();
    EXPECT_EQ(edit->text(), QStringLiteral("250"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(run.Register(reg::PV), 250.0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Cell(view, 1, 1) == run.Shown(48); }));
}

// The results are read-only and always those of the range shown, as the amortization key gives
// them, also after a register of the loan changes; Return closes the view.
TEST(RegisterViews, AmortizationResultsAreThoseOfTheRangeShown) {
    Rig run;
    run.Register(reg::N) = 360;
    run.Register(reg::IYr) = 6;
    run.Register(reg::PV) = 100000;
    run.Register(reg::PMT) = -599.55;
    QWidget* view = run.dialogs.Open(View::Amortization);
    EXPECT_FALSE(Table(view)->item(9, 1)->flags() & Qt::ItemIsEditable);
    Edit(view, 5, 1, QStringLiteral("13"));
    Edit(view, 6, 1, QStringLiteral("24"));
    EXPECT_EQ(run.engine.state.amortStart, i16{13});
    EXPECT_EQ(run.engine.state.amortEnd, i16{24});
    const QStringList shown{Cell(view, 7, 1), Cell(view, 8, 1), Cell(view, 9, 1)};
    run.session.Tap(fid::Amortize);  // what the key gives for 13-24: Int, Prin, Bal
    EXPECT_EQ(shown, (QStringList{run.Shown(run.engine.X()), run.Shown(run.engine.Y()),
                                  run.Shown(run.engine.Level(2).value)}));
    Edit(view, 3, 1, QStringLiteral("50000"));
    run.session.Tap(fid::Amortize);
    EXPECT_EQ(Cell(view, 9, 1), run.Shown(run.engine.Level(2).value));
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_FALSE(view->isVisible());
}

// From the Amortization view: a row per payment and per year's total, exported as CSV with the
// calculator untouched, the chart's payments in view shaded, and a loan longer than the keys reach
// said to be cut short.
TEST(RegisterViews, AmortizationScheduleListsChartsAndExports) {
    Rig run;
    run.Register(reg::N) = 24;
    run.Register(reg::IYr) = 6;
    run.Register(reg::PV) = 1000;
    run.session.Tap(fid::PMT);
    QWidget* view = run.dialogs.Open(View::Amortization);
    const EngineRecords before = run.engine.Records();
    Click(ButtonCalled(view, QStringLiteral("Schedule...")));
    auto* schedule = run.dialogs.OpenSchedule();
    ASSERT_TRUE(schedule->isVisible());
    QTableWidget* table = schedule->table();
    EXPECT_EQ(table->rowCount(), 24 + 2);
    EXPECT_EQ(table->item(12, 1)->text(), QStringLiteral("Total"));
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("loan.csv"));
    ASSERT_TRUE(schedule->ExportTo(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count('\n'), 1 + 26);  // the header and the rows
    EXPECT_EQ(std::memcmp(&before, &run.engine.Records(), sizeof before), 0);
    EXPECT_FALSE(schedule->ExportTo(folder.filePath(QStringLiteral("no/such/folder.csv"))));
    // A point per payment after PV, a bar per payment, its summary as the accessible name.
    EXPECT_EQ(schedule->chart()->chart().balance.size(), std::size_t{24 + 1});
    EXPECT_EQ(schedule->chart()->chart().bars.size(), std::size_t{24});
    EXPECT_EQ(schedule->chart()->accessibleName(), QStringLiteral("Balance falls from 1,000 to 0 over 24 payments"));
    EXPECT_EQ(schedule->chart()->firstShown(), 1);
    table->scrollToBottom();
    EXPECT_EQ(schedule->chart()->lastShown(), 24);
    EXPECT_GT(schedule->chart()->firstShown(), 1);
    EXPECT_FALSE(schedule->cutShortNote()->isVisibleTo(schedule));
    run.Register(reg::N) = 40000;
    run.Register(reg::PV) = 1e7;
    schedule->Refresh();
    EXPECT_EQ(table->item(0, 4)->text().count(QLatin1Char(',')), 2);  // 9,99x,xxx.xx as the display writes it
    EXPECT_TRUE(schedule->cutShortNote()->text().contains(QStringLiteral("40,000")));
    EXPECT_TRUE(schedule->cutShortNote()->isVisibleTo(schedule));
    QTest::keyClick(schedule, Qt::Key_Return);  // closes; never asks for a file
    EXPECT_FALSE(schedule->isVisible());
}

// Each window's Help, and F1 in it, open its own anchor.
TEST(SecondaryWindows, HelpAndF1OpenTheWindowsAnchor) {
    Rig run;
    run.Type("1");
    run.session.Tap(fid::CashFlow);
    run.session.Tap(fid::CashFlow);
    using Opener = std::function<QWidget*()>;
    const auto view = [&run](View v) -> Opener { return [&run, v] { return run.dialogs.Open(v); }; };
    const std::pair<Opener, const char*> windows[] = {
        {view(View::Tvm), "tvm"},
        {view(View::Amortization), "amortization"},
        {view(View::Statistical), "statistical"},
        {view(View::UserRegisters), "userregisters"},
        {view(View::CashFlow), "cashflow"},
        {view(View::Stack), "rpnstack"},
        {view(View::Constants), "constants"},
        {view(View::Preferences), "prefs"},
        {view(View::Keyboard), "keyboard"},
        {[&run] { return run.dialogs.OpenAbout(); }, "about"},
        {[&run] { return run.dialogs.OpenEnterDate(); }, "enterdate"},
        {[&run] { return run.dialogs.OpenEnterTime(); }, "enterdate"},
        {[&run] { return run.dialogs.OpenDurations(); }, "durations"},
        {[&run] { return run.dialogs.OpenSchedule(); }, "schedule"},
        {[&run] { return run.dialogs.OpenColours(); }, "colors"},
        {[&run] { return run.dialogs.OpenColours()->Choose(0); }, "colors"},
    };
    for (const auto& [open, anchor] : windows) {
        SCOPED_TRACE(anchor);
        QWidget* window = open();
        ASSERT_NE(window, nullptr);
        run.helpAnchors.clear();
        Click(Button(window, QDialogButtonBox::Help));
        EXPECT_EQ(run.helpAnchors, std::vector<std::string>{anchor});
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, Qt::Key_F1);
        EXPECT_EQ(run.helpAnchors, (std::vector<std::string>{anchor, anchor}));
        window->close();
    }

    // The viewer shows the bundled guide at each of those anchors and the main window's, or says
    // the guide is missing; find wraps around.
    dialogs::HelpViewer viewer;
    QFile guide(QString::fromLatin1(dialogs::kGuideResource));
#ifdef BRINTO_GUIDE_BUNDLED
    ASSERT_TRUE(guide.exists());
#endif
    if (guide.open(QIODevice::ReadOnly)) {
        const QByteArray text = guide.readAll();
        std::vector<const char*> anchors{"Main_Contents"};
        for (const auto& window : windows) anchors.push_back(window.second);
        for (const char* anchor : anchors) {
            EXPECT_TRUE(text.contains("id=\"" + QByteArray(anchor) + "\"")) << anchor;
            viewer.ShowAnchor(anchor);
            EXPECT_EQ(viewer.browser()->source().fragment(), QString::fromLatin1(anchor));
        }
        EXPECT_TRUE(viewer.Find(QStringLiteral("Brinto")));
    } else {
        viewer.ShowAnchor("tvm");
        EXPECT_TRUE(viewer.browser()->toPlainText().contains(QStringLiteral("User guide missing")));
        EXPECT_TRUE(viewer.Find(QStringLiteral("missing")));
        EXPECT_TRUE(viewer.Find(QStringLiteral("missing")));  // wraps to the first again
    }
    EXPECT_FALSE(viewer.Find(QStringLiteral("no such words anywhere")));
}

}  // namespace
}  // namespace brinto::test
