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

// Each window opens from its menu entry, its shortcut and the display tap set to it; the Action
// button's "Open last form" reopens the last view shown, and an open Stack view follows the keys.
TEST(Windows, EachOpensFromItsMenuEntryShortcutAndDisplayTap) {
    struct Row {
        const char* entry;  // nullptr: only the shortcut reaches it
        QKeySequence shortcut;
        double tap;         // where across the display a tap opens it; 0: no tap
        const char* title;  // and where the window stands: the Stack beside the calculator
    };
    const Row rows[] = {
        {"Stack...", {}, 0.5, "Stack beside"},
        {"User Registers...", {}, 0, "User Registers centred"},
        {"Constants...", {}, 0.9, "Constants centred"},
        {"TVM...", {}, 0.1, "Time Value of Money centred"},
        {"Amortization...", {}, 0, "Amortization centred"},
        {"Cash Flow...", {}, 0, "No Cash Flow Entries centred"},  // nothing beyond CF0 yet
        {"Statistical...", {}, 0, "Statistical Registers centred"},
        {"Enter Date...", QKeySequence(Qt::CTRL | Qt::Key_D), 0, "Enter Date centred"},
        {"Enter Time...", QKeySequence(Qt::CTRL | Qt::Key_T), 0, "Enter Time centred"},
        {"Durations...", QKeySequence(Qt::CTRL | Qt::Key_U), 0, "Durations centred"},
        {"Preferences...", {}, 0, "Preferences centred"},
        {"Keyboard...", {}, 0, "Customize Keyboard centred"},
        {"About Brinto...", {}, 0, "About Brinto centred"},
        {"Find Key...", QKeySequence(Qt::CTRL | Qt::Key_K), 0, "Find Key centred"},
        {nullptr, QKeySequence(Qt::Key_F1), 0, "Brinto Help elsewhere"},
    };
    Desk desk;
    desk.window.move(20, 20);
    // Nothing is made before it is first wanted.
    EXPECT_EQ(desk.window.openedDialogs(), nullptr);
    desk.ChangePreferences([](Preferences& p) {
        p.SetTap(TapArea::Left, TapTarget::Tvm);
        p.SetTap(TapArea::Center, TapTarget::Stack);
        p.SetTap(TapArea::Right, TapTarget::Constants);
        p.SetAction(ActionChoice::OpenLastForm);
    });
    DisplayView* display = desk.window.display();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.title);
        if (row.entry) {
            QAction* entry = MenuEntry(desk.window, row.entry);
            ASSERT_NE(entry, nullptr);
            EXPECT_EQ(entry->shortcut(), row.shortcut);
            Trigger(desk.window, row.entry);
            EXPECT_EQ(OpenWindows(desk.window), row.title);
            CloseWindows(desk);
        }
        if (!row.shortcut.isEmpty()) {
            QTest::keySequence(&desk.window, row.shortcut);
            QCoreApplication::processEvents();
            EXPECT_EQ(OpenWindows(desk.window), row.title) << "by its shortcut";
            CloseWindows(desk);
        }
        if (row.tap) {
            QTest::mouseClick(display, Qt::LeftButton, {}, QPoint(static_cast<int>(display->width() * row.tap), 10));
            EXPECT_EQ(OpenWindows(desk.window), row.title) << "by a tap";
            CloseWindows(desk);
        }
    }
    desk.Press(Qt::Key_Return);
    EXPECT_EQ(OpenWindows(desk.window), "Customize Keyboard centred");
    CloseWindows(desk);

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
