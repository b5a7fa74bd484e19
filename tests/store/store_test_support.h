#pragma once
// Helpers for the store tests: a temporary folder that cleans up after itself, whole-file reads
// and writes, and records stamped with one number so a test can tell a complete save from a mix.
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

#include "engine/engine.h"
#include "engine/user_key_map.h"

namespace brinto::test {

class TempFolder {
public:
    TempFolder() {
        const char* base = std::getenv("TMPDIR");
        std::string pattern = std::string(base && *base ? base : "/tmp") + "/brinto-store-XXXXXX";
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
    std::vector<std::string> Entries(const std::filesystem::path& sub = {}) const {
        std::vector<std::string> names;
        std::error_code ec;
        for (const auto& entry : std::filesystem::directory_iterator(m_path / sub, ec)) {
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

// Runs one SQL statement on a file with plain SQLite; returns the first column of the first row.
inline std::string Sql(const std::filesystem::path& path, const std::string& sql) {
    sqlite3* db = nullptr;
    std::string result;
    if (sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) == SQLITE_OK) {
        sqlite3_busy_timeout(db, 2000);
        sqlite3_stmt* statement = nullptr;
        const char* tail = sql.c_str();
        while (*tail && sqlite3_prepare_v2(db, tail, -1, &statement, &tail) == SQLITE_OK && statement) {
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

// Writes `stamp` into every record, so that a load shows whether all five came from one save.
inline void StampRecords(Engine& e, UserKeyMap& keys, u32 stamp) {
    e.prefs.words[1] = static_cast<u16>(stamp);
    e.registers.values[0] = stamp;
    e.registers.values[kRegisterCount - 1] = stamp;
    e.macro.macroLength = static_cast<u16>(stamp % kMacroSlots);
    e.macro.macroKeys[kMacroSlots - 1] = stamp;
    keys.keys[0] = stamp;
    keys.keys[23] = stamp;
    e.state.randomSeed = stamp;
    e.state.stack[kStackLevels - 1] = stamp;
    e.dirty = {true, true, true, true, true};
}

// The stamp every record carries, or nothing when they disagree.
inline std::optional<u32> StampOf(const Engine& e, const UserKeyMap& keys) {
    const u32 stamp = e.state.randomSeed;
    const bool same = e.prefs.words[1] == static_cast<u16>(stamp) && e.registers.values[0] == stamp &&
                      e.registers.values[kRegisterCount - 1] == stamp &&
                      e.macro.macroLength == stamp % kMacroSlots && e.macro.macroKeys[kMacroSlots - 1] == stamp &&
                      keys.keys[0] == stamp && keys.keys[23] == stamp && e.state.stack[kStackLevels - 1] == stamp;
    if (!same) return std::nullopt;
    return stamp;
}

}  // namespace brinto::test
