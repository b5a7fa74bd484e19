// "Customize Colors" with "Color Chooser", the amortization schedule and the cash-flow diagram.
#include <QApplication>
#include <QFile>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QTableWidget>
#include <QTemporaryDir>
#include <tuple>

#include "app/dialogs/colour_dialogs.h"
#include "app/dialogs/register_view.h"
#include "app/dialogs/schedule_window.h"
#include "app_dialogs/dialog_test_support.h"
#include "app_dialogs/test_classes.h"
#include "engine/function_ids.h"

namespace brinto::test {

class ColourTests : public QObject {
    Q_OBJECT
private slots:
    // Opened from the Display page; a colour chosen for a key class is kept when both its OK and
    // the sheet's OK are pressed, dropped on either Cancel, and "Default" removes every custom colour.
    void CustomColoursFromThePreferences() {
        Place place;
        Run run(place);
        QSignalSpy changes(&run.dialogs, &dialogs::DialogHost::coloursChanged);
        dialogs::CustomizeColours* colours = nullptr;
        const auto chooseBlackNumbers = [&](QWidget* sheet) {
            Click(ButtonCalled(sheet, QStringLiteral("Colors...")));
            for (QWidget* w : QApplication::topLevelWidgets()) {
                if (auto* c = dynamic_cast<dialogs::CustomizeColours*>(w); c && c->isVisible()) colours = c;
            }
            QVERIFY(colours && colours->isVisible());
            dialogs::ColourChooser* chooser = colours->Choose(2);  // "Number:" text
            const Rgb given = chooser->Chosen();
            QTest::keyClick(chooser->slider(0), Qt::Key_Right);  // one step of 17, or none at 255
            QCOMPARE(chooser->number(0)->text().toInt(), std::min(given.r + 17, 255));
            Click(ButtonCalled(chooser, QStringLiteral("Reset")));
            QCOMPARE(chooser->Chosen(), given);
            chooser->slider(0)->setValue(0);
            chooser->slider(1)->setValue(0);
            chooser->slider(2)->setValue(0);
            Click(Button(chooser, QDialogButtonBox::Ok));
            Click(Button(colours, QDialogButtonBox::Ok));
        };
        QWidget* sheet = run.dialogs.Open(dialogs::View::Preferences);
        chooseBlackNumbers(sheet);
        Click(Button(sheet, QDialogButtonBox::Cancel));
        QCOMPARE(changes.count(), 0);
        QVERIFY(!run.dialogs.customColours().text[static_cast<int>(KeyClass::Number)]);
        sheet = run.dialogs.Open(dialogs::View::Preferences);
        chooseBlackNumbers(sheet);
        QCOMPARE(changes.count(), 0);
        Click(Button(sheet, QDialogButtonBox::Ok));
        QCOMPARE(changes.count(), 1);
        QVERIFY(run.dialogs.customColours().text[static_cast<int>(KeyClass::Number)] == Rgb{});
        QVERIFY(!run.dialogs.customColours().background[static_cast<int>(KeyClass::Number)]);
        run.Save();
        {
            Run again(place);
            QVERIFY(again.dialogs.customColours().text[static_cast<int>(KeyClass::Number)] == Rgb{});
            QVERIFY(!again.dialogs.customColours().text[static_cast<int>(KeyClass::Standard)]);
        }

        run.dialogs.OpenColours()->Choose(7)->accept();  // "Clear:" background, as given
        Click(Button(colours, QDialogButtonBox::Cancel));
        QVERIFY(!run.dialogs.customColours().background[static_cast<int>(KeyClass::Clear)]);

        run.dialogs.OpenColours();
        Click(ButtonCalled(colours, QStringLiteral("Default")));
        Click(Button(colours, QDialogButtonBox::Ok));
        QVERIFY(!run.dialogs.customColours().text[static_cast<int>(KeyClass::Number)]);
        QCOMPARE(changes.count(), 2);
    }
};

class ScheduleTests : public QObject {
    Q_OBJECT
private slots:
    // From the Amortization view: every payment and each year's total, exported as CSV, and the
    // calculator untouched.
    void ScheduleListsAndExports() {
        Place place;
        Run run(place);
        double* r = run.engine.registers.values;
        r[reg::N] = 24;
        r[reg::IYr] = 6;
        r[reg::PV] = 1000;
        run.session.Tap(fid::PMT);
        QWidget* view = run.dialogs.Open(dialogs::View::Amortization);
        const EngineRecords before = run.engine.Records();
        Click(ButtonCalled(view, QStringLiteral("Schedule...")));
        auto* schedule = run.dialogs.OpenSchedule();
        QTableWidget* table = schedule->table();
        QCOMPARE(table->rowCount(), 24 + 2);
        QCOMPARE(table->item(12, 1)->text(), QStringLiteral("Total"));
        QVERIFY(std::abs(table->item(25, 4)->text().toDouble()) < 1e-6);  // paid off
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("loan.csv"));
        QVERIFY(schedule->ExportTo(path));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QList<QByteArray> lines = file.readAll().split('\n');
        QCOMPARE(lines.front(), QByteArray("Year,Payment,Interest,Principal,Balance"));
        QCOMPARE(lines.size(), 1 + 26 + 1);  // header, rows, and the empty text after the last "\n"
        QVERIFY(std::memcmp(&before, &run.engine.Records(), sizeof before) == 0);
        QVERIFY(!schedule->ExportTo(folder.filePath(QStringLiteral("no/such/folder.csv"))));
        // The chart above the table: a point per payment after PV, a bar per payment, its summary
        // as the accessible name, and the payments of the rows in view shaded.
        const ScheduleChart& chart = schedule->chart()->chart();
        QCOMPARE(chart.balance.size(), std::size_t{24 + 1});
        QCOMPARE(chart.bars.size(), std::size_t{24});
        QCOMPARE(schedule->chart()->accessibleName(), QStringLiteral("Balance falls from 1,000 to 0 over 24 payments"));
        QCOMPARE(schedule->chart()->firstShown(), 1);
        table->scrollToBottom();
        QCOMPARE(schedule->chart()->lastShown(), 24);
        QVERIFY(schedule->chart()->firstShown() > 1);
        QVERIFY(!schedule->cutShortNote()->isVisibleTo(schedule));
        // Amounts as the display writes them; a loan longer than the keys reach says so.
        r[reg::N] = 40000;
        r[reg::PV] = 1e7;
        schedule->Refresh();
        QCOMPARE(table->item(0, 4)->text().count(QLatin1Char(',')), 2);  // 9,99x,xxx.xx
        QVERIFY(schedule->cutShortNote()->isVisibleTo(schedule));
        QVERIFY(schedule->cutShortNote()->text().contains(QStringLiteral("40,000")));
        QTest::keyClick(schedule, Qt::Key_Return);  // closes; never asks for a file
        QVERIFY(!schedule->isVisible());
    }

    // The Cash Flow Entries view draws an arrow group per entry, and names NPV and IRR/YR.
    void CashFlowViewHasItsDiagram() {
        Place place;
        Run run(place);
        double* r = run.engine.registers.values;
        r[reg::IYr] = 10;
        r[reg::PYr] = 1;
        for (const auto& [j, amount, count] : {std::tuple{0, -1000.0, 1u}, {1, 300.0, 4u}, {2, 200.0, 1u}}) {
            r[j] = amount;
            run.engine.registers.aux[j] = count;
        }
        auto* view = qobject_cast<dialogs::RegisterView*>(run.dialogs.Open(dialogs::View::CashFlow));
        QVERIFY(view && view->diagram());
        const CashFlowDiagram& diagram = view->diagram()->diagram();
        QCOMPARE(diagram.groups.size(), std::size_t{3});
        QCOMPARE(diagram.periods, 5);
        QVERIFY(view->diagram()->accessibleName().contains(QStringLiteral("NPV ")));
        QVERIFY(view->diagram()->accessibleName().contains(QStringLiteral("IRR/YR ")));
    }
};

static RegisterTests<ColourTests> registerColours;
static RegisterTests<ScheduleTests> registerSchedule;

}  // namespace brinto::test

#include "colours_schedule_test.moc"
