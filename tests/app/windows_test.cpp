// The secondary windows as the main window opens them: the menu entries, their shortcuts, display
// taps, the Action button, and the theme the "Preferences" sheet leaves behind.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>

#include "app/dialogs/preferences_dialog.h"
#include "app_fixture.h"
#include "session/session.h"

namespace brinto::test {
namespace {

// The titles of the windows shown besides the main window, each with where it stands: "beside"
// the main window, "centred" on it, or "elsewhere".
std::string OpenWindows(const MainWindow& window) {
    QStringList titles;
    const QRect main = window.frameGeometry();
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget == &window || !widget->isVisible() || widget->windowTitle().isEmpty()) continue;
        const QRect frame = widget->frameGeometry();
        const bool centred = (frame.center() - main.center()).manhattanLength() <= 4;
        titles << widget->windowTitle() + (!frame.intersects(main) ? " beside" : centred ? " centred" : " elsewhere");
    }
    return titles.join(QLatin1Char('|')).toStdString();
}

void CloseWindows(Desk& desk) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget != &desk.window && widget->isVisible()) widget->hide();
    }
    // Hiding the active window lets the platform hand the activation on later: wait that out.
    for (int tries = 0; tries < 5 && QApplication::activeWindow() != &desk.window; ++tries) {
        desk.window.activateWindow();
        [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(&desk.window);
        QCoreApplication::processEvents();
    }
}

TEST(Windows, EachOpensFromItsMenuEntryAndShortcut) {
    struct Row {
        const char* entry;  // nullptr: only the shortcut reaches it
        QKeySequence shortcut;
        const char* title;  // and where the window stands: the Stack beside the calculator
    };
    const Row rows[] = {
        {"Stack...", {}, "Stack beside"},
        {"User Registers...", {}, "User Registers centred"},
        {"Constants...", {}, "Constants centred"},
        {"TVM...", {}, "Time Value of Money centred"},
        {"Amortization...", {}, "Amortization centred"},
        {"Cash Flow...", {}, "No Cash Flow Entries centred"},  // nothing beyond CF0 yet
        {"Statistical...", {}, "Statistical Registers centred"},
        {"Enter Date...", QKeySequence(Qt::CTRL | Qt::Key_D), "Enter Date centred"},
        {"Enter Time...", QKeySequence(Qt::CTRL | Qt::Key_T), "Enter Time centred"},
        {"Durations...", QKeySequence(Qt::CTRL | Qt::Key_U), "Durations centred"},
        {"Preferences...", {}, "Preferences centred"},
        {"Keyboard...", {}, "Customize Keyboard centred"},
        {"About Brinto...", {}, "About Brinto centred"},
        {"Find Key...", QKeySequence(Qt::CTRL | Qt::Key_K), "Find Key centred"},
        {nullptr, QKeySequence(Qt::Key_F1), "Brinto Help elsewhere"},
    };
    Desk desk;
    desk.window.move(20, 20);
    // Nothing is made before it is first wanted.
    EXPECT_EQ(desk.window.openedDialogs(), nullptr);
    for (const Row& row : rows) {
        if (row.entry) {
            QAction* entry = MenuEntry(desk.window, row.entry);
            ASSERT_NE(entry, nullptr) << row.entry;
            EXPECT_EQ(entry->shortcut(), row.shortcut) << row.entry;
            Trigger(desk.window, row.entry);
            EXPECT_EQ(OpenWindows(desk.window), row.title) << row.entry;
            CloseWindows(desk);
        }
        if (!row.shortcut.isEmpty()) {
            QTest::keySequence(&desk.window, row.shortcut);
            QCoreApplication::processEvents();
            EXPECT_EQ(OpenWindows(desk.window), row.title)
                << row.shortcut.toString().toStdString();
            CloseWindows(desk);
        }
    }
}

TEST(Windows, DisplayTapsAndTheActionButtonOpenTheirTarget) {
    Desk desk;
    desk.window.move(20, 20);
    desk.ChangePreferences([](Preferences& p) {
        p.SetTap(TapArea::Left, TapTarget::Tvm);
        p.SetTap(TapArea::Center, TapTarget::Stack);
        p.SetTap(TapArea::Right, TapTarget::Constants);
        p.SetAction(ActionChoice::OpenLastForm);
    });
    const struct {
        double at;  // across the display
        const char* title;
    } taps[] = {{0.1, "Time Value of Money centred"}, {0.5, "Stack beside"}, {0.9, "Constants centred"}};
    DisplayView* display = desk.window.display();
    for (const auto& tap : taps) {
        QTest::mouseClick(display, Qt::LeftButton, {}, QPoint(static_cast<int>(display->width() * tap.at), 10));
        EXPECT_EQ(OpenWindows(desk.window), tap.title) << tap.at;
        CloseWindows(desk);
    }
    // "Open last form" brings back the last one shown.
    desk.Press(Qt::Key_Return);
    EXPECT_EQ(OpenWindows(desk.window), "Constants centred");
    CloseWindows(desk);

    // An open Stack view follows the keys typed on the main window.
    Trigger(desk.window, "Stack...");
    desk.Type("7");
    QStringList lines;
    for (QListWidget* list : desk.window.findChildren<QListWidget*>()) {
        for (int i = 0; i < list->count(); ++i) lines << list->item(i)->text().trimmed();
    }
    EXPECT_TRUE(lines.contains(QStringLiteral("7"))) << lines.join(QLatin1Char('|')).toStdString();
}

// The theme chosen on the "Preferences" sheet is the window's once OK is pressed.
TEST(Windows, PreferencesThemeIsAppliedAfterOk) {
    Desk desk;
    const Rgb before = desk.window.colours().window;
    Trigger(desk.window, "Preferences...");
    auto* sheet = qobject_cast<dialogs::PreferencesDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(sheet, nullptr);
    auto* theme = sheet->findChild<QComboBox*>(QStringLiteral("Theme:"));
    theme->setCurrentIndex(theme->findData(theme_id::DarkBackground));
    sheet->accept();
    EXPECT_EQ(desk.engine().prefs.Theme(), theme_id::DarkBackground);
    EXPECT_LT(ToQColor(desk.window.colours().window).lightness(), 100);
    EXPECT_NE(desk.window.colours().window, before);
}

}  // namespace
}  // namespace brinto::test
