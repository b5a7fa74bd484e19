#pragma once
// Helpers for the store tests: plain SQL on a file, a save of every record, and a store open on a
// fresh file.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "store/state_io.h"
#include "temp_folder.h"

namespace brinto::test {

// Runs SQL statements on a file with plain SQLite; returns the first column of the first row.
inline std::string Sql(const std::filesystem::path& path, const std::string& sql) {
    sqlite3* db = nullptr;
    std::optional<std::string> first;
    if (sqlite3_open(path.c_str(), &db) == SQLITE_OK && sqlite3_busy_timeout(db, 2000) == SQLITE_OK) {
        const auto keepFirst = [](void* out, int, char** values, char**) {
            auto& kept = *static_cast<std::optional<std::string>*>(out);
            if (!kept) kept = values[0] ? values[0] : "";
            return 0;
        };
        sqlite3_exec(db, sql.c_str(), keepFirst, &first, nullptr);
    }
    sqlite3_close(db);
    return first.value_or("");
}

// The records in a store's file: the rows of both record tables.
inline std::string RecordCount(const std::filesystem::path& path) {
    return Sql(path, "SELECT (SELECT count(*) FROM BrintoConfig) + (SELECT count(*) FROM BrintoState)");
}

// Saves every record, changed or not.
inline bool SaveAll(Engine& e, const UserKeyMap& keys, RecordStore& store) {
    e.dirty = {true, true, true, true, true};
    return SaveState(e, keys, store);
}

// A store open on a fresh file in a temporary folder.
class StoreFileTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(store.Open(path), OpenResult::Opened); }

    TempFolder folder;
    std::filesystem::path path = folder / "brinto.db";
    RecordStore store;
};

}  // namespace brinto::test
