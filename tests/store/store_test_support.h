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
    std::string result;
    if (sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) == SQLITE_OK) {
        sqlite3_busy_timeout(db, 2000);
        sqlite3_stmt* statement = nullptr;
        for (const char* tail = sql.c_str();
             *tail && sqlite3_prepare_v2(db, tail, -1, &statement, &tail) == SQLITE_OK && statement;) {
            if (sqlite3_step(statement) == SQLITE_ROW && result.empty()) {
                const unsigned char* text = sqlite3_column_text(statement, 0);
                result = text ? reinterpret_cast<const char*>(text) : "";
            }
            sqlite3_finalize(statement);
            statement = nullptr;
        }
    }
    sqlite3_close(db);
    return result;
}

// Saves every record, changed or not.
inline bool SaveAll(Engine& e, const UserKeyMap& keys, RecordStore& store) {
    e.dirty = {true, true, true, true, true};
    return SaveState(e, keys, store);
}

}  // namespace brinto::test
