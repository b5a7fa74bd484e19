#pragma once
// One running calculator of the desktop program: the engine and session, where they are kept,
// and what the window remembers about itself. Tests build one with their own host.
#include <QByteArray>
#include <optional>
#include <string>

#include "engine/engine.h"
#include "session/session.h"
#include "store/record_store.h"

namespace brinto {

class WindowHost;

struct AppOptions {
    std::optional<std::string> db;  // --db PATH
    bool memory = false;            // --memory
    std::string keys;               // --keys TEXT, typed once the window is up
};

class Calculator {
public:
    explicit Calculator(WindowHost& host);

    // Loads the calculator the options name (repairing what is damaged, importing the handheld
    // release's settings on a first run). Store trouble is left in `trouble`, and the run then
    // goes on in memory.
    void Start(const AppOptions& options);
    bool FirstRun() const { return m_firstRun; }
    const std::string& Trouble() const { return m_trouble; }
    // The first run's answer: the input method in the preferences and in the engine at once.
    void ChooseInputMethod(InputMethod method);

    // Writes what changed, and the window's size and position beside the calculator's records.
    void Save(const QByteArray& geometry);
    QByteArray SavedGeometry();

    Engine engine;
    Session session;

private:
    RecordStore m_store;
    bool m_saving = false;
    bool m_firstRun = false;
    std::string m_trouble;
    QByteArray m_geometry;
};

}  // namespace brinto
