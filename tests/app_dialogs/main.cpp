// Runs every window's test class in one process.
#include <QApplication>
#include <QTest>
#include <memory>
#include <vector>

#include "app_dialogs/test_classes.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    int failures = 0;
    for (const auto& make : brinto::test::TestClasses()) {
        std::unique_ptr<QObject> tests = make();
        failures += QTest::qExec(tests.get(), argc, argv);
    }
    return failures == 0 ? 0 : 1;
}

std::vector<brinto::test::MakeTests>& brinto::test::TestClasses() {
    static std::vector<MakeTests> classes;
    return classes;
}
