#pragma once
// Keeping a session's calculator between runs: what the desktop program and brinto-cli do at
// start-up (load, after a first-run migration of the handheld release's settings) and on
// deactivation and exit (save what changed).
#include <filesystem>
#include <string>

#include "session/session.h"
#include "store/record_store.h"

namespace brinto {

// Loads the session's engine and user keys from `store`. On a first run (no preferences record)
// the legacy export at `legacyFile` is migrated first when there is one; one that cannot be
// imported leaves the reason in `warning` and the run starts on defaults. Returns false only on a
// very first run, when the program would ask for the input method.
bool LoadSession(Session& session, RecordStore& store, const std::filesystem::path& legacyFile,
                 std::string& warning);

// Saves what changed, and always the engine state, as one transaction.
bool SaveSession(Session& session, RecordStore& store);

}  // namespace brinto
