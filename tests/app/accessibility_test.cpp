// What screen readers and keyboard-only users get: every control of every window named, keys
// pressed through the accessible action with the display read back and its events counted, and
// the key grid driven by Tab, the arrows and Space.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableWidget>

#include "app/accessibility.h"
#include "app/dialogs/colour_dialogs.h"
#include "app/dialogs/date_time_dialogs.h"
#include "app/dialogs/dialogs.h"
#include "app/dialogs/schedule_window.h"
#include "app_fixture.h"
#include "engine/keyboards.h"
#include "engine/register_bank.h"
#include "session/session.h"

namespace brinto::test {
namespace {

// The events sent to accessibility tools while a recorder lives.
struct EventRecorder {
    struct Event {
        QAccessible::Event type;
        QObject* object;
        int child;
        bool checkedChanged;
    };
    EventRecorder() {
        WatchAccessibilityEvents([this](QAccessibleEvent& e) {
            const bool checked = e.type() == QAccessible::StateChanged &&
                                 static_cast<QAccessibleStateChangeEvent&>(e).changedStates().checked;
            events.push_back({e.type(), e.object(), e.child(), checked});
        });
    }
    ~EventRecorder() { WatchAccessibilityEvents({}); }
    int Count(QAccessible::Event type, QObject* object) const {
        return static_cast<int>(std::count_if(events.begin(), events.end(),
                                              [&](const Event& e) { return e.type == type && e.object == object; }));
    }
    std::vector<Event> events;
};

bool Interactive(QAccessible::Role role) {
    switch (role) {
        case QAccessible::Button: case QAccessible::CheckBox: case QAccessible::RadioButton:
        case QAccessible::ComboBox: case QAccessible::SpinBox: case QAccessible::EditableText:
        case QAccessible::Slider: case QAccessible::List: case QAccessible::Table:
        case QAccessible::PageTab: case QAccessible::ButtonMenu: case QAccessible::ButtonDropDown:
            return true;
        default: return false;
    }
}

// The path of every interactive control under `iface` that has neither a name nor a label.
void Unnamed(QAccessibleInterface* iface, const QString& path, QStringList& found) {
    if (!iface) return;
    const QString here = path + QLatin1Char('/') + QString::number(iface->role(), 16) + QLatin1Char(':') +
                         iface->text(QAccessible::Name);
    if (Interactive(iface->role()) && iface->text(QAccessible::Name).trimmed().isEmpty() &&
        iface->relations(QAccessible::Labelled).isEmpty()) {
        const QObject* object = iface->object();
        found << here + QLatin1Char(' ') + (object ? QString::fromLatin1(object->metaObject()->className()) : QString());
    }
    // The cells of a table and the rows of a list are their data, named by it; the list of a
    // combo box is part of it.
    if (iface->role() == QAccessible::Table || iface->role() == QAccessible::List || iface->role() == QAccessible::ComboBox) return;
    // What is hidden for good (a tool bar's overflow button) is no control; pages not on show are
    // walked when the test turns to them.
    if (const auto* widget = qobject_cast<const QWidget*>(iface->object()); widget && widget->isHidden() &&
                                                                            !qobject_cast<const QStackedWidget*>(widget->parentWidget())) {
        return;
    }
    for (int i = 0; i < iface->childCount(); ++i) Unnamed(iface->child(i), here, found);
}

// One line per unnamed control, "" for none.
std::string UnnamedIn(QWidget* window) {
    QStringList found;
    Unnamed(QAccessible::queryAccessibleInterface(window), window->windowTitle(), found);
    for (QTabWidget* tabs : window->findChildren<QTabWidget*>()) {
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            Unnamed(QAccessible::queryAccessibleInterface(tabs->widget(page)), tabs->tabText(page), found);
        }
    }
    return found.join(QLatin1Char('\n')).toStdString();
}

TEST(Accessibility, EveryInteractiveControlOfEveryWindowHasAName) {
    Desk desk;
    desk.Type("100");
    desk.session().TapKey(fid::CashFlow);
    desk.Type("50");
    desk.session().TapKey(fid::CashFlow);  // a second entry, so "Cash Flow" opens its view
    EXPECT_EQ(UnnamedIn(&desk.window), "");
    dialogs::DialogHost& dialogs = desk.window.Dialogs();
    std::vector<QWidget*> windows;
    for (int view = 0; view < dialogs::kViewCount; ++view) {
        windows.push_back(dialogs.Open(static_cast<dialogs::View>(view)));
    }
    windows.push_back(dialogs.OpenAbout());
    windows.push_back(dialogs.OpenEnterDate());
    windows.push_back(dialogs.OpenEnterTime());
    windows.push_back(dialogs.OpenDurations());
    windows.push_back(dialogs.OpenColours());
    windows.push_back(dialogs.OpenSchedule());
    QTest::keyClick(&desk.window, Qt::Key_K, Qt::ControlModifier);
    QCoreApplication::processEvents();
    windows.push_back(QApplication::activeModalWidget());
    for (QWidget* window : windows) {
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(UnnamedIn(window), "");
        window->hide();
    }

    // The TVM view's Solve buttons sit on table cells, which are what a screen reader sees: the
    // cells are named for them, and Return on one solves, as a click on its button does.
    auto* tvm = dialogs.Open(View::Tvm)->findChild<QTableWidget*>();
    ASSERT_NE(tvm, nullptr);
    QAccessibleTableInterface* table = QAccessible::queryAccessibleInterface(tvm)->tableInterface();
    ASSERT_NE(table, nullptr);
    QStringList solves;
    int fvRow = -1;
    for (int row = 0; row < tvm->rowCount(); ++row) {
        const QString name = table->cellAt(row, 2)->text(QAccessible::Name);
        if (!name.isEmpty()) solves << name;
        if (name == QStringLiteral("Solve FV")) fvRow = row;
    }
    EXPECT_EQ(solves.join(QLatin1Char('|')).toStdString(), "Solve N|Solve I/YR|Solve PV|Solve PMT|Solve FV");
    desk.session().StoreRegister(reg::N, 12);
    desk.session().StoreRegister(reg::IYr, 12);
    desk.session().StoreRegister(reg::PV, -100);
    tvm->setFocus();
    tvm->setCurrentCell(fvRow, 2);
    QTest::keyClick(tvm, Qt::Key_Return);
    EXPECT_NEAR(desk.engine().registers.values[reg::FV], 112.68, 0.01);
    desk.session().StoreRegister(reg::FV, 0);
    qobject_cast<QAbstractButton*>(tvm->cellWidget(fvRow, 2))->click();
    EXPECT_NEAR(desk.engine().registers.values[reg::FV], 112.68, 0.01);
}

int KeyShowing(KeyView* keys, FunctionId id) {
    for (int i = 0; i < keys->KeyCount(); ++i) {
        if (keys->ActiveId(i) == id) return i;
    }
    return -1;
}

TEST(Accessibility, KeysPressedByTheirActionAreAnnouncedOncePerKey) {
    Desk desk;
    KeyView* keys = desk.window.keyboardView();
    QAccessibleInterface* view = QAccessible::queryAccessibleInterface(keys);
    QAccessibleInterface* display = QAccessible::queryAccessibleInterface(desk.window.display());
    ASSERT_NE(display->textInterface(), nullptr);
    ASSERT_NE(display->valueInterface(), nullptr);
    const auto displayText = [&] { return display->textInterface()->text(0, display->textInterface()->characterCount()); };
    const auto press = [&](FunctionId id) {
        const int index = KeyShowing(keys, id);
        EXPECT_GE(index, 0) << ToNumber(id);
        QAccessibleInterface* key = view->child(index);
        EXPECT_EQ(key->role(), QAccessible::Button);
        key->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    };
    QCoreApplication::processEvents();

    struct Step {
        FunctionId key;
        const char* text;         // the display's text afterwards
        int xEvents;              // text and value events sent
        bool shifted;             // SHIFT reports itself checked
        const char* annunciator;  // in the display's description
    };
    const Step steps[] = {
        {fid::Digit2, "2", 1, false, "SIMPLE"}, {fid::Add, "2.", 1, false, "SIMPLE"},
        {fid::Digit3, "3", 1, false, "SIMPLE"}, {fid::Equals, "5.", 1, false, "SIMPLE"},
        {fid::Shift, "5.", 0, true, "SHIFT"},  // only the annunciators change
        {fid::Shift, "5.", 0, false, "SIMPLE"},
        {fid::Digit0, "0", 1, false, "SIMPLE"}, {fid::Reciprocal, "error", 1, false, "SIMPLE"},
        {fid::Shift, "error", 0, true, "SHIFT"},
        {fid::MethodRpn, "error", 0, false, "RPN"},  // on the shifted General block
    };
    const int shift = KeyShowing(keys, fid::Shift);
    for (const Step& step : steps) {
        SCOPED_TRACE(ToNumber(step.key));
        EventRecorder recorder;
        const std::string before = desk.XLine();
        const bool wasShifted = view->child(shift)->state().checked;
        press(step.key);
        // The press waits until the screen reader has had its answer.
        EXPECT_EQ(desk.XLine(), before);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        EXPECT_EQ(displayText().toStdString(), step.text);
        EXPECT_EQ(display->text(QAccessible::Value), displayText());
        EXPECT_EQ(recorder.Count(QAccessible::TextUpdated, desk.window.display()), step.xEvents);
        EXPECT_EQ(recorder.Count(QAccessible::ValueChanged, desk.window.display()), step.xEvents);
        // The other lines and the annunciators are announced only when X stays.
        EXPECT_EQ(recorder.Count(QAccessible::DescriptionChanged, desk.window.display()), step.xEvents == 0 ? 1 : 0);
        EXPECT_TRUE(display->text(QAccessible::Description).contains(QLatin1String(step.annunciator)));
        // SHIFT is a toggle that says so when it changes.
        EXPECT_TRUE(view->child(shift)->state().checkable);
        EXPECT_EQ(view->child(shift)->state().checked, step.shifted);
        const bool toldChecked = std::any_of(recorder.events.begin(), recorder.events.end(), [&](const EventRecorder::Event& e) {
            return e.type == QAccessible::StateChanged && e.checkedChanged && e.object == keys && e.child == shift;
        });
        EXPECT_EQ(toldChecked, wasShifted != step.shifted);
    }
}

TEST(Accessibility, KeyGridByTabArrowsAndSpace) {
    Desk desk;
    KeyView* keys = desk.window.keyboardView();
    QAccessibleInterface* view = QAccessible::queryAccessibleInterface(keys);
    ASSERT_EQ(QApplication::focusWidget(), desk.window.display());
    EventRecorder recorder;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCoreApplication::processEvents();
    ASSERT_EQ(QApplication::focusWidget(), keys);
    EXPECT_EQ(keys->FocusKey(), 0);
    EXPECT_EQ(view->focusChild(), view->child(0));
    EXPECT_TRUE(view->child(0)->state().focused);
    EXPECT_GE(recorder.Count(QAccessible::Focus, keys), 1);

    const int columns = keys->Columns(), rows = keys->Rows();
    struct Move {
        Qt::Key key;
        int from, to;
    };
    const Move moves[] = {
        {Qt::Key_Right, 0, 1},
        {Qt::Key_Left, 0, columns - 1},                           // wraps within the row
        {Qt::Key_Right, columns - 1, 0},
        {Qt::Key_Up, 1, (rows - 1) * columns + 1},                // wraps within the column
        {Qt::Key_Down, (rows - 1) * columns + 1, 1},
        {Qt::Key_Down, 2, columns + 2},
    };
    for (const Move& m : moves) {
        keys->SetFocusKey(m.from);
        recorder.events.clear();
        QTest::keyClick(keys, m.key);
        EXPECT_EQ(keys->FocusKey(), m.to) << m.from << " key " << m.key;
        ASSERT_EQ(recorder.Count(QAccessible::Focus, keys), 1);
        EXPECT_EQ(recorder.events.back().child, m.to);
    }

    // Space presses the key with the focus and Return presses it again; typed operators still
    // reach the calculator while the keys have the focus.
    const int seven = KeyShowing(keys, fid::Digit7);
    keys->SetFocusKey(seven);
    QTest::keyClick(keys, Qt::Key_Space);
    QCoreApplication::processEvents();
    // With the focus on the keys, the new X is shown to the screen reader as a notification.
    const auto* notice = desk.window.display()->findChild<QWidget*>(QStringLiteral("resultNotice"));
    ASSERT_NE(notice, nullptr);
    EXPECT_EQ(notice->accessibleName(), QStringLiteral("7"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(const_cast<QWidget*>(notice))->role(), QAccessible::Notification);
    QTest::keyClick(keys, Qt::Key_Return);
    QTest::keyClicks(keys, QStringLiteral("+1="));
    EXPECT_EQ(desk.XLine(), "78.");
    // The ring is drawn where the focus is, in every theme.
    for (u16 theme = theme_id::DefaultColor; theme <= theme_id::DarkBackground; ++theme) {
        desk.ChangePreferences([theme](Preferences& p) { p.SetTheme(theme); });
        const QImage focused = keys->grab().toImage();
        keys->clearFocus();
        const QImage unfocused = keys->grab().toImage();
        keys->setFocus(Qt::TabFocusReason);
        const QRect ring = keys->CellRect(seven);
        int changed = 0;
        for (int y = ring.top(); y <= ring.bottom(); ++y) {
            for (int x = ring.left(); x <= ring.right(); ++x) changed += focused.pixel(x, y) != unfocused.pixel(x, y);
        }
        EXPECT_GT(changed, ring.width() + ring.height()) << theme;
        EXPECT_EQ(focused.copy(keys->CellRect(0)), unfocused.copy(keys->CellRect(0))) << theme;
    }
    // Tab leaves the keys for the display, and Shift+Tab comes back.
    QTest::keyClick(keys, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), desk.window.display());
    QTest::keyClick(desk.window.display(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), keys);
}

}  // namespace
}  // namespace brinto::test
