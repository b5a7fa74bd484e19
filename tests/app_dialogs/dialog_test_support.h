#pragma once
// A calculator with its session, its windows and an in-memory store, for driving the secondary
// windows through their widgets on the offscreen platform.
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <string>
#include <vector>

#include "app/dialogs/dialogs.h"
#include "session/persistence.h"
#include "store/record_store.h"

namespace brinto::test {

class QuietHost : public Host {
public:
    std::vector<std::string> messages;
    void ShowMessage(std::string_view caption, std::string_view) override { messages.emplace_back(caption); }
    bool Confirm(std::string_view, std::string_view) override { return true; }
    void PutOnClipboard(std::string_view) override {}
    std::optional<std::string> ClipboardText() override { return std::nullopt; }
};

// One run of the calculator over a store that outlives it, so a second run can load what the
// first one saved.
struct Run {
    FixedPlatform platform;
    Engine engine{&platform};
    QuietHost host;
    Session session{engine, host};
    std::vector<std::string> helpAnchors;
    dialogs::DialogHost dialogs{session, nullptr,
                                [this](std::string_view anchor) { helpAnchors.emplace_back(anchor); }};

    explicit Run(RecordStore& store) {
        std::string warning;
        LoadSession(session, store, {}, warning);
        Save(store);  // a first run's defaults are written, so only what the test changes is dirty
    }
    void Save(RecordStore& store) { SaveSession(session, store); }
    void Type(std::string_view keys) {
        for (const char c : keys) session.CharacterKey(static_cast<unsigned char>(c));
    }
};

// A store kept in memory for as long as the test runs.
struct MemoryStore {
    RecordStore store;
    MemoryStore() { store.Open(std::string(RecordStore::kInMemory)); }
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
