// What the window draws and how it lays it out: every theme gives a non-blank, legible face at a
// small and a large size, each appearance preference changes the drawing, the desktop's palette
// reaches the menus and dialogs but not the face; the Quick Switch strip's names are whole and
// distinct, legends have capitals of at least 8 pixels at every size, and keys are laid out once.
// (`brinto --screenshot DIR` draws every window for looking at.)
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QImage>
#include <QListWidget>
#include <QMenuBar>
#include <QPalette>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <functional>

#include "app/input_method_dialog.h"
#include "app_fixture.h"
#include "engine/keyboards.h"
#include "session/screen_colours.h"
#include "session/session.h"

namespace brinto::test {
namespace {

QImage Grab(Desk& desk) { return desk.window.grab().toImage().convertToFormat(QImage::Format_RGB32); }

int Distance(QColor a, QColor b) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
}

// Pixels of `image` inside `area` nearer to `ink` than to `paper`: the text drawn there.
int CountInk(const QImage& image, const QRect& area, QColor ink, QColor paper) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (Distance(c, ink) < Distance(c, paper)) ++count;
        }
    }
    return count;
}

QRect InWindow(Desk& desk, QWidget* view, QRect r) {
    return QRect(view->mapTo(&desk.window, r.topLeft()), r.size());
}

TEST(Drawing, EveryThemeDrawsLegibleKeysAndDisplayAtTwoSizes) {
    for (u16 theme = theme_id::DefaultColor; theme <= theme_id::DarkBackground; ++theme) {
        for (QSize size : {QSize(240, 320), QSize(720, 960)}) {
            Desk desk(size);
            desk.ChangePreferences([theme](Preferences& p) { p.SetTheme(theme); });
            desk.Type("12345");
            desk.Click(fid::ChangeSign);
            const QImage image = Grab(desk);
            const ScreenColours& colours = desk.window.colours();
            KeyView* keys = desk.window.keyboardView();
            for (FunctionId id : {fid::Digit5, fid::Add, fid::Shift, fid::ClearX}) {
                int index = 0;
                while (index < keys->KeyCount() && keys->ActiveId(index) != id) ++index;
                ASSERT_LT(index, keys->KeyCount());
                const KeyColours& c = colours.Key(KeyClassOf(id));
                const QRect face = InWindow(desk, keys, keys->CellRect(index));
                const int ink = CountInk(image, face, ToQColor(c.text), ToQColor(c.face));
                EXPECT_GT(ink, face.width() * face.height() / 100) << theme << ' ' << ToNumber(id) << ' ' << size.width();
                EXPECT_LT(ink, face.width() * face.height() / 2) << theme << ' ' << ToNumber(id) << ' ' << size.width();
            }
            // X is drawn in its colour, large enough to read. (The colours' contrast is the screen
            // colours' test; this one checks the pixels.)
            const QRect display = InWindow(desk, desk.window.display(), desk.window.display()->rect());
            const QColor valueColour = ToQColor(ValueTextColour(colours, ValueTag::None, -12345.0));
            const int ink = CountInk(image, display, valueColour, ToQColor(colours.displayBackground));
            EXPECT_GT(ink, 150 * size.width() / 240) << theme << ' ' << size.width();
        }
    }
}

// The mean lightness (0..255) of `area` of `image`.
int Lightness(const QImage& image, const QRect& area) {
    long long sum = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) sum += image.pixelColor(x, y).lightness();
    }
    return static_cast<int>(sum / std::max(1LL, static_cast<long long>(area.width()) * area.height()));
}

// A dark desktop (its platform theme sets the application's palette) darkens the menu bar and the
// dialogs; the calculator's face keeps its own theme, light here.
TEST(Drawing, TheDesktopsPaletteReachesMenusAndDialogsNotTheFace) {
    const QPalette desktop = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30), QColor(0x24, 0x24, 0x24)));
    {
        Desk desk;
        const QImage image = Grab(desk);
        EXPECT_LT(Lightness(image, QRect(QPoint(0, 0), desk.window.menuBar()->size())), 100);
        EXPECT_GT(Lightness(image, InWindow(desk, desk.window.display(), desk.window.display()->rect())), 160);
        desk.window.OpenView(View::Preferences);
        const QImage dialog = QApplication::activeModalWidget()->grab().toImage();
        EXPECT_LT(Lightness(dialog, dialog.rect()), 100);
    }
    QApplication::setPalette(desktop);
}

TEST(Drawing, EachAppearanceChoiceChangesTheDrawing) {
    using Setter = std::function<void(Preferences&)>;
    const std::pair<const char*, Setter> choices[] = {
        {"Size: Small", [](Preferences& p) { p.SetKeySize(1); }},
        {"Size: Large", [](Preferences& p) { p.SetKeySize(3); }},
        {"Keys: Zoomed", [](Preferences& p) { p.SetKeyLabels(3); }},
        {"Color: Background", [](Preferences& p) { p.SetKeyColor(3); }},
        {"Shadow: Heavy", [](Preferences& p) { p.SetKeyShadow(4); }},
        {"Show: None", [](Preferences& p) { p.SetKeyboardShow(1); }},
        {"Show: Within", [](Preferences& p) { p.SetKeyboardShow(3); }},
        {"Lines: 1", [](Preferences& p) { p.SetDisplayLines(1); }},
        {"Lines: 4", [](Preferences& p) { p.SetDisplayLines(4); }},
        {"Font: Large", [](Preferences& p) { p.SetDisplayFont(3); }},
        {"Border: Display", [](Preferences& p) { p.SetBorder(2); }},
        {"Border: Calculator", [](Preferences& p) { p.SetBorder(3); }},
        {"Comma Radix", [](Preferences& p) { p.SetCommaRadix(true); }},
    };
    const auto draw = [](const Setter& set) {
        Desk desk;
        desk.Type("1234.5\r6\r");
        desk.ChangePreferences(set);
        return Grab(desk);
    };
    const QImage plain = draw([](Preferences&) {});
    for (const auto& [name, set] : choices) EXPECT_NE(draw(set), plain) << name;

    // "Active:" changes how a key looks while it is held down.
    const auto pressed = [](int active) {
        Desk desk;
        desk.ChangePreferences([active](Preferences& p) { p.SetActiveKey(active); });
        KeyView* keys = desk.window.keyboardView();
        QTest::mousePress(keys, Qt::LeftButton, {}, keys->CellRect(20).center());
        const QImage image = Grab(desk);
        QTest::mouseRelease(keys, Qt::LeftButton, {}, keys->CellRect(20).center());
        return image;
    };
    EXPECT_NE(pressed(1), pressed(3));
}

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

}  // namespace
}  // namespace brinto::test
