#pragma once
// Loading the calculator from its record store at start-up, and saving what changed when the
// program is deactivated or exits. Every record of the wrong size or version is replaced by its
// defaults on load and marked changed, so the repaired record reaches the file at the next save.
#include <functional>

#include "engine/engine.h"
#include "engine/user_key_map.h"
#include "store/record_store.h"

namespace brinto {

// Called by LoadState when the store holds no preferences record yet. It may fill the store from
// the data of an older release; it answers whether it found any.
using LegacyMigration = std::function<bool(RecordStore&)>;

// Reads preferences, registers, user keys, macro and CalcState, in that order, into `e` and
// `userKeys`, repairing what is missing or damaged, and restarts the undo history from them.
// All records come from one snapshot of the file, so a save by another process is seen whole or
// not at all. Returns false only on a very first run: no preferences record and nothing migrated.
bool LoadState(Engine& e, UserKeyMap& userKeys, RecordStore& store, const LegacyMigration& migrate = {});

// Writes the changed records (preferences, registers, user keys, macro, in that order) and then
// always CalcState, as one transaction: the file gets all of them or none. The changed flags are
// cleared once the save is in the file; a failed save keeps them. False when it did not get there.
bool SaveState(Engine& e, const UserKeyMap& userKeys, RecordStore& store);

}  // namespace brinto
