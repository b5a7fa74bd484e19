#include "app_fixture.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>
#include <cstdio>

#include "display/display_text.h"

namespace brinto::test {

std::string CommandOutput(const std::string& command) {
    std::string out;
    if (FILE* pipe = popen(command.c_str(), "r")) {
        char buffer[4096];
        while (size_t n = fread(buffer, 1, sizeof buffer, pipe)) out.append(buffer, n);
        pclose(pipe);
    }
    return out;
}

QList<QMenu*> Menus(MainWindow& window) {
    QList<QMenu*> menus;
    for (QAction* title : window.menuBar()->actions()) {
        Q_EMIT title->menu()->aboutToShow();  // a menu may fill itself only when first opened
        menus << title->menu();
    }
    return menus;
}

QAction* MenuEntry(MainWindow& window, const char* entry) {
    for (QMenu* menu : Menus(window)) {
        for (QAction* a : menu->actions()) {
            if (QString(a->text()).remove(QLatin1Char('&')) == QString::fromLatin1(entry)) return a;
        }
    }
    return nullptr;
}

void Trigger(MainWindow& window, const char* entry) {
    QAction* action = MenuEntry(window, entry);
    ASSERT_NE(action, nullptr) << entry;
    action->trigger();
    QCoreApplication::processEvents();
}

std::string Desk::XLine() {
    const DisplayLine line = DisplayLevel(engine(), 0);
    return line.label.empty() ? line.text : line.text + "  " + line.label;
}

bool Desk::Click(FunctionId id) {
    KeyView* view = window.keyboardView()->isVisible() ? window.keyboardView() : window.basicView();
    for (int i = 0; i < view->KeyCount(); ++i) {
        if (view->Key(i).block == 0 && view->ActiveId(i) == id) {
            QTest::mouseClick(view, Qt::LeftButton, {}, view->CellRect(i).center());
            return true;
        }
    }
    return false;
}

void Desk::ClickBlock(int k) {
    KeyView* view = window.keyboardView();
    for (int i = 0; i < view->KeyCount(); ++i) {
        if (view->Key(i).block == k) QTest::mouseClick(view, Qt::LeftButton, {}, view->CellRect(i).center());
    }
}

}  // namespace brinto::test
