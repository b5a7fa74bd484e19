#pragma once
// A calculator with its session, its windows and an in-memory store, for driving the secondary
// windows through their widgets on the offscreen platform.
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>
#include <string>
#include <vector>

#include "app/dialogs/dialogs.h"
#include "calculator/assembly.h"
#include "session/recording_host.h"
#include "session/session_store.h"

namespace brinto::test {

// Where a test's calculator is kept between its runs: a database file in a folder of its own.
struct Place {
    QTemporaryDir folder;
    std::filesystem::path file() const { return folder.filePath(QStringLiteral("brinto.db")).toStdString(); }
};

// One run of the calculator: loaded from the place at the start, saved when the test says so.
struct Run {
    Engine engine{CalculatorFamilies()};
    RecordingHost host;
    Session session{engine, host};
    SessionStore store{session};
    StartOutcome outcome;
    std::vector<std::string> helpAnchors;
    dialogs::DialogHost dialogs;

    explicit Run(const Place& place)
        : outcome(store.Start(StoreLocation::File(place.file()))),
          dialogs(session, nullptr, [this](std::string_view anchor) { helpAnchors.emplace_back(anchor); }, &store) {
        store.Save();  // a first run's defaults are written, so only what the test changes is marked
    }
    void Save() { QVERIFY(store.Save()); }
    void Type(std::string_view keys) {
        for (const char c : keys) session.CharacterKey(static_cast<unsigned char>(c));
    }
};

inline QPushButton* Button(QWidget* dialog, QDialogButtonBox::StandardButton which) {
    return dialog->findChild<QDialogButtonBox*>()->button(which);
}
inline QPushButton* ButtonCalled(QWidget* dialog, const QString& text) {
    for (QPushButton* b : dialog->findChildren<QPushButton*>()) {
        if (b->text() == text) return b;
    }
    return nullptr;
}
// A click as the user makes it; also on a button of a page that is not on show.
inline void Click(QAbstractButton* button) {
    QVERIFY(button);
    button->click();
}

}  // namespace brinto::test
