#pragma once
// Loading the calculator from its record store at start-up, and saving what changed when the
// program is deactivated or exits. Every record of the wrong size or version is replaced by its
// defaults on load and marked changed, so the repaired record reaches the file at the next save.
#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "engine/engine.h"
#include "engine/user_key_map.h"
#include "store/record_store.h"

namespace brinto {

// Called by LoadState when the store holds no preferences record yet. It may fill the store from
// the data of an older release; it answers whether it found any.
using LegacyMigration = std::function<bool(RecordStore&)>;

// The five records as the file holds them, byte for byte (a record longer than the program's is
// kept one byte longer, enough to tell it from an exact one), for the records in load order:
// preferences, registers, user keys, macro, CalcState. A program keeps what it last read or wrote,
// so that a save writes only the records it changed, and what another program changed meanwhile
// can be told apart from its own changes.
struct FileRecords {
    static constexpr int kCount = 5;
    std::array<std::optional<std::vector<std::byte>>, kCount> images;
    // The store's DataVersion when these were read or written: when it changes, another program
    // has saved since.
    std::optional<long long> dataVersion;
};

// Reads the five records as they are (within the caller's transaction, if any).
FileRecords ReadFileRecords(RecordStore& store);

// Reads preferences, registers, user keys, macro and CalcState, in that order, into `e` and
// `userKeys`, repairing what is missing or damaged, and restarts the undo history from them.
// All records come from one snapshot of the file, so a save by another process is seen whole or
// not at all; `file`, when given, gets that snapshot. Returns false only on a very first run: no
// preferences record and nothing migrated.
bool LoadState(Engine& e, UserKeyMap& userKeys, RecordStore& store, const LegacyMigration& migrate = {},
               FileRecords* file = nullptr);

// Writes records as one transaction: the file gets all of them or none. Without `file`, the
// changed records (preferences, registers, user keys, macro, in that order) and then always
// CalcState; with `file` (what the file held at the last load or save), exactly the records whose
// bytes differ from it, and `file` then holds what was written. The changed flags are cleared
// once the save is in the file; a failed save keeps them. False when it did not get there.
bool SaveState(Engine& e, const UserKeyMap& userKeys, RecordStore& store, FileRecords* file = nullptr);

// Whether `e` and `userKeys` hold anything that `file` does not.
bool DiffersFromFile(Engine& e, const UserKeyMap& userKeys, const FileRecords& file);
// The records of `e` and `userKeys` as a save would write them.
FileRecords ImagesOf(Engine& e, const UserKeyMap& userKeys);

// What PickUp took over from another program.
struct PickedUp {
    bool preferences = false;
    bool engineRecords = false;  // the registers, the macro or CalcState: an undoable change
    bool userKeys = false;
    bool Any() const { return preferences || engineRecords || userKeys; }
};

// Takes into `e` and `userKeys` each record that another program changed (`now` differs from
// `file`, what the file held when this program last looked) while this program kept it as it was
// then (its image equals `base`), repairing it as a load would. A record that both changed keeps
// this program's version, which its next save writes over the other's. Afterwards `file` is `now`.
PickedUp PickUp(Engine& e, UserKeyMap& userKeys, FileRecords& file, const FileRecords& base,
                const FileRecords& now);

}  // namespace brinto
