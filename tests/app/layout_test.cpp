// The main window reads well at every size: the Quick Switch strip's names whole and distinct,
// legends with capitals of at least 8 pixels, and keys laid out once.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>

#include "app/input_method_dialog.h"
#include "app_fixture.h"
#include "engine/keyboards.h"
#include "session/session.h"

namespace brinto::test {
namespace {

// The widest line of a button's text as drawn ("&&" is one "&").
int TextWidth(const QAbstractButton* button) {
    QString text = button->text();
    text.replace(QStringLiteral("&&"), QStringLiteral("&"));
    int widest = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        widest = std::max(widest, QFontMetrics(button->font()).horizontalAdvance(line));
    }
    return widest;
}

}  // namespace

TEST(Layout, NamesAndLegendsReadWellFromTheSmallestWindowUp) {
    for (const QSize size : {QSize(240, 360), QSize(360, 480), QSize(1000, 1300)}) {
        SCOPED_TRACE(std::to_string(size.width()) + "x" + std::to_string(size.height()));
        Desk desk(size);
        ASSERT_EQ(desk.window.size(), size);  // no size below the minimum in the list
        for (const bool quickSwitch : {false, true}) {
            SCOPED_TRACE(quickSwitch ? "Quick Switch" : "drop-down");
            desk.ChangePreferences([=](Preferences& p) { p.SetQuickSwitch(quickSwitch); });
            QCoreApplication::processEvents();  // the room of the drop-down or the strip goes to the keys
            for (int keyboard = 0; keyboard < kKeyboardCount; ++keyboard) {
                SCOPED_TRACE(keyboard);
                desk.session().SelectKeyboard(keyboard);
                EXPECT_GE(desk.window.keyboardView()->SmallestLegendCapitals(), 8);
            }
        }
        QSet<QString> names;
        for (QAbstractButton* button : desk.window.quickSwitchButtons()->buttons()) {
            SCOPED_TRACE(button->toolTip().toStdString());
            EXPECT_LE(TextWidth(button) + 4, button->width());
            EXPECT_GE(QFontMetrics(button->font()).capHeight(), 5);
            names.insert(button->text());
        }
        EXPECT_EQ(names.size(), kKeyboardCount);
        EXPECT_FALSE(names.contains(QStringLiteral("Date & Time")));  // a single "&" shows as "_T"
    }
}

// The first key of a session leaves the keys where they were drawn at start-up.
TEST(Layout, KeysStayPutAtTheFirstKey) {
    RecordingHost host;
    Calculator calculator(host);
    calculator.Start(AppOptions::InMemory());
    MainWindow window(calculator.session);
    host.window = &window;
    window.resize(360, 480);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const QRect keys = window.keyboardView()->geometry();
    const QRect display = window.display()->geometry();
    QTest::keyClick(&window, Qt::Key_5);
    EXPECT_EQ(calculator.engine.X(), 5.0);
    EXPECT_EQ(window.keyboardView()->geometry(), keys);
    EXPECT_EQ(window.display()->geometry(), display);
}

// While a prefix waits for its register digits the display says so, until it completes or is
// cancelled.
TEST(Layout, DisplaySaysWhatAPrefixWaitsFor) {
    Desk desk;
    const auto waiting = [&] {
        QStringList shown;
        for (const QString& a : desk.window.display()->Annunciators()) {
            if (a.endsWith(QLatin1Char('_'))) shown << a;
        }
        return shown.join(QLatin1Char('|')).toStdString();
    };
    struct Step {
        FunctionId key;
        std::string shown;
    };
    const Step steps[] = {
        {fid::Store, "STO _"}, {fid::Add, "STO+ _"}, {fid::Digit1, "STO+ 1_"}, {DigitKey(2), ""},
        {fid::Recall, "RCL _"}, {fid::Backspace, ""},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(ToNumber(step.key));
        desk.session().Tap(step.key);
        EXPECT_EQ(waiting(), step.shown);
    }
}

// The first run's question shows all of its text at its opening size and offers its help; Escape
// chooses nothing, whatever the list shows.
TEST(Layout, InputMethodQuestionIsWholeAndEscapeChoosesNothing) {
    InputMethodDialog dialog;
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    EXPECT_EQ(dialog.textArea()->verticalScrollBar()->maximum(), 0);
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    ASSERT_NE(buttons->button(QDialogButtonBox::Help), nullptr);
    dialog.list()->setCurrentRow(2);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.Chosen(), InputMethod::Simple);
    EXPECT_FALSE(dialog.PreferencesAfterwards());
    dialog.show();
    dialog.list()->setCurrentRow(2);
    buttons->button(QDialogButtonBox::Ok)->click();
    EXPECT_EQ(dialog.Chosen(), InputMethod::Rpn);
}

}  // namespace brinto::test
