// "Customize Colors" with "Color Chooser", and the amortization schedule.
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

#include "app/dialogs/colour_dialogs.h"
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
};

static RegisterTests<ColourTests> registerColours;
static RegisterTests<ScheduleTests> registerSchedule;

}  // namespace brinto::test

#include "colours_schedule_test.moc"
