#pragma once
// A calculator with its session, its windows and a store, for driving the secondary windows
// through their widgets on the offscreen platform.
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>
#include <string>
#include <vector>

#include "app/dialogs/dialogs.h"
#include "calculator/assembly.h"
#include "display/display_text.h"
#include "engine/function_ids.h"
#include "engine/register_bank.h"
#include "session/recording_host.h"
#include "session/session_store.h"

namespace brinto::test {

// Where a test's calculator is kept between its runs: a database file in a folder of its own.
struct Place {
    QTemporaryDir folder;
    std::filesystem::path file() const { return folder.filePath(QStringLiteral("brinto.db")).toStdString(); }
};

// One run of the calculator with its windows: loaded from the place at the start (from nothing
// without one).
struct Rig {
    Engine engine{CalculatorFamilies()};
    RecordingHost host;
    Session session{engine, host};
    SessionStore store{session};
    StartOutcome outcome;
    std::vector<std::string> helpAnchors;
    dialogs::DialogHost dialogs;

    explicit Rig(const Place* place = nullptr)
        : outcome(store.Start(place ? StoreLocation::File(place->file()) : StoreLocation::Memory())),
          dialogs(session, nullptr, [this](std::string_view anchor) { helpAnchors.emplace_back(anchor); }, &store) {
        store.Save();  // a first run's defaults are written, so only what the test changes is marked
    }
    void Type(std::string_view keys) {
        for (const char c : keys) session.CharacterKey(static_cast<unsigned char>(c));
    }
    double& Register(int n) { return engine.registers.values[n]; }
    // What the display shows for `value` in X, without its label.
    QString Shown(double value) {
        const StackEntry x = engine.Level(0);
        engine.SetX(value);
        const QString text = QString::fromStdString(DisplayLevel(engine, 0).text);
        engine.SetLevel(0, x);
        return text;
    }
};

inline QPushButton* Button(QWidget* dialog, QDialogButtonBox::StandardButton which) {
    return dialog->findChild<QDialogButtonBox*>()->button(which);
}
// The button, check box or radio button with `text`, or nullptr.
inline QAbstractButton* ButtonCalled(QWidget* dialog, const QString& text) {
    for (QAbstractButton* b : dialog->findChildren<QAbstractButton*>()) {
        if (b->text() == text) return b;
    }
    return nullptr;
}
// A click as the user makes it; also on a button of a page that is not on show.
inline void Click(QAbstractButton* button) {
    ASSERT_NE(button, nullptr);
    button->click();
}
inline QTableWidget* Table(QWidget* view) { return view->findChild<QTableWidget*>(); }
inline QString Cell(QWidget* view, int row, int column) { return Table(view)->item(row, column)->text(); }
// The first column's labels, top to bottom.
inline QStringList Labels(QWidget* view) {
    QStringList labels;
    for (int r = 0; r < Table(view)->rowCount(); ++r) labels << Cell(view, r, 0);
    return labels;
}

}  // namespace brinto::test
