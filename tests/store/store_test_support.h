#pragma once
// Helpers for the store tests: a temporary folder that cleans up after itself, whole-file reads
// and writes, plain SQL on a file, and a save of every record.
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

namespace brinto::test {

class TempFolder {
public:
    TempFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "brinto-store-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) ADD_FAILURE() << "cannot make a temporary folder";
        m_path = pattern;
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::remove_all(m_path, ec);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path operator/(const std::string& name) const { return m_path / name; }
    // Names of the entries in the folder, sorted.
    std::vector<std::string> Entries() const {
        std::vector<std::string> names;
        std::error_code ec;
        for (const auto& entry : std::filesystem::directory_iterator(m_path, ec)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::filesystem::path m_path;
};

inline void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

inline std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

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
