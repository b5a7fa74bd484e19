#pragma once
// One running calculator of the desktop program: the engine and its session, where they are kept,
// and what the window remembers about itself. Tests build one with their own host.
#include <QByteArray>
#include <optional>
#include <string>

#include "calculator/assembly.h"
#include "engine/engine.h"
#include "session/session.h"
#include "session/session_store.h"

namespace brinto {

class WindowHost;

struct AppOptions {
    std::optional<std::string> db;  // --db PATH
    bool memory = false;            // --memory
    std::string keys;               // --keys TEXT, typed once the window is up
    std::optional<std::string> screenshots;  // --screenshot DIR

    // A calculator from the defaults that saves nothing (tests, pictures).
    static AppOptions InMemory() {
        AppOptions o;
        o.memory = true;
        return o;
    }
};

class Calculator {
public:
    explicit Calculator(WindowHost& host);

    // Loads the calculator the options name; the session's store repairs what is damaged, takes
    // over the handheld release's settings and asks for the input method on a first run, and
    // reports trouble through the host.
    StartOutcome Start(const AppOptions& options);

    // Writes what changed, and the window's size and position beside the calculator's records;
    // false when that did not reach the file.
    bool Save(const QByteArray& geometry);
    QByteArray SavedGeometry() const;

    Engine engine{CalculatorFamilies()};
    Session session;
    SessionStore store;
};

}  // namespace brinto
