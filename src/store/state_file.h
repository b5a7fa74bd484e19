#pragma once
// Where the calculator keeps its database and where a legacy export is looked for, and opening
// the database so that a damaged file never stops the program nor loses what it holds.
#include <filesystem>
#include <string>

#include "store/record_store.h"

namespace brinto {

struct StateLocations {
    std::filesystem::path database;    // $XDG_DATA_HOME/brinto/brinto.db
    std::filesystem::path legacyFile;  // $XDG_CONFIG_HOME/brinto/Brinto.reg
};

// From the given variables (null or empty when unset). As the XDG rules say, a variable that is
// not an absolute path is ignored and the folder defaults to ~/.local/share or ~/.config.
StateLocations LocationsFrom(const char* xdgDataHome, const char* xdgConfigHome, const char* home);
// From this process's environment.
StateLocations DefaultLocations();

// Opens the database at `path`, creating the file when missing (its folder must exist) or empty.
// A Brinto database that is damaged (confirmed by a second look) is renamed aside in the same
// folder (with ".damaged-" and the time in its name, so nothing the user had is destroyed) and a
// fresh database takes its place. A file that is not a Brinto database is someone else's and is
// refused untouched. Trouble (no right to read, an I/O error, a lock held too long, a path that
// names no regular file) never moves nor changes anything either: the store stays closed. A
// write-protected file opens for reading only (RecordStore::ReadOnly). `warning` gets one line
// when something was wrong; whether the store is open tells damage from refusal and trouble.
OpenResult OpenStateFile(RecordStore& store, const std::filesystem::path& path, std::string& warning);

// Renames `path` (and SQLite's companion files beside it) to a free name with ".damaged-" and the
// local time; returns the new name, or an empty path when the rename failed.
std::filesystem::path MoveAside(const std::filesystem::path& path);

}  // namespace brinto
