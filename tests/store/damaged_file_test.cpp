// Whatever lies at the database's path, the program starts: a damaged or foreign file is kept
// aside, byte for byte, and a fresh database takes its place.
#include <gtest/gtest.h>

#include <random>

#include "store/state_file.h"
#include "store/state_io.h"
#include "store_test_support.h"

namespace brinto {
namespace {

using test::ReadFile;
using test::Sql;
using test::TempFolder;
using test::WriteFile;

std::string RandomBytes(std::size_t n, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes(n, '\0');
    for (char& c : bytes) c = static_cast<char>(random());
    return bytes;
}

// A real database holding a saved calculator, as bytes.
std::string SavedDatabase(const TempFolder& folder) {
    const auto path = folder / "source.db";
    {
        RecordStore store;
        EXPECT_EQ(store.Open(path), OpenResult::Opened);
        Engine e;
        UserKeyMap keys = EmptyUserKeyMap();
        e.dirty = {true, true, true, true, true};
        SaveState(e, keys, store);
    }
    std::string bytes = ReadFile(path);
    std::filesystem::remove(path);
    return bytes;
}

// A database made with plain SQLite from `sql`, as bytes; `brinto` gives it our application id.
std::string MadeDatabase(const TempFolder& folder, const std::string& sql, bool brinto) {
    const auto path = folder / "made.db";
    Sql(path, (brinto ? "PRAGMA application_id=1114795636;" : "") + sql);
    std::string bytes = ReadFile(path);
    std::filesystem::remove(path);
    return bytes;
}

std::vector<std::string> AsideNames(const TempFolder& folder) {
    std::vector<std::string> names;
    for (const std::string& name : folder.Entries()) {
        if (name.find(".damaged-") != std::string::npos) names.push_back(name);
    }
    return names;
}

const std::string kTables =
    "CREATE TABLE BrintoConfig(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);"
    "CREATE TABLE BrintoState(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);";
const std::string kGoodHeader2 = "X'500001000000000002000000" + std::string(136, '0') + "'";

TEST(DamagedFile, IsKeptAsideAndTheProgramStartsOnDefaults) {
    TempFolder folder;
    const std::string saved = SavedDatabase(folder);
    struct Case {
        const char* name;
        std::string bytes;
    };
    const Case cases[] = {
        {"zero length", ""},
        {"truncated inside the header", saved.substr(0, 60)},
        {"truncated to one page", saved.substr(0, 4096)},
        {"truncated mid-page", saved.substr(0, saved.size() - 3000)},
        {"random bytes", RandomBytes(10000, 1)},
        {"random bytes after the SQLite mark", std::string("SQLite format 3", 16) + RandomBytes(8176, 2)},
        {"a page overwritten", saved.substr(0, 4096) + RandomBytes(saved.size() - 4096, 3)},
        {"foreign database", MadeDatabase(folder, "CREATE TABLE notes(t TEXT); INSERT INTO notes VALUES('x');", false)},
        {"foreign database with our table names", MadeDatabase(folder, kTables, false)},
        {"our mark without the tables", MadeDatabase(folder, "CREATE TABLE other(x);", true)},
        {"a table without the payload column",
         MadeDatabase(folder, "CREATE TABLE BrintoConfig(id INTEGER PRIMARY KEY, header BLOB);"
                              "CREATE TABLE BrintoState(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);", true)},
        {"a short header", MadeDatabase(folder, kTables + "INSERT INTO BrintoState VALUES(1, X'5000', X'00');", true)},
        {"a text header", MadeDatabase(folder, kTables + "INSERT INTO BrintoState VALUES(1, 'header', X'00');", true)},
        {"a null payload",
         MadeDatabase(folder, kTables + "INSERT INTO BrintoState VALUES(1, " + kGoodHeader2 + ", NULL);", true)},
        {"a state record in the configuration table",
         MadeDatabase(folder, kTables + "INSERT INTO BrintoConfig VALUES(1, " + kGoodHeader2 + ", X'00');", true)},
        {"a header of another format",
         MadeDatabase(folder, kTables + "INSERT INTO BrintoState VALUES(1, X'50000200" +
                                  std::string(152, '0') + "', X'00');", true)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TempFolder home;
        const auto path = home / "brinto.db";
        WriteFile(path, c.bytes);

        RecordStore store;
        std::string warning;
        EXPECT_EQ(OpenStateFile(store, path, warning), OpenResult::Opened);
        EXPECT_NE(warning.find("kept it as"), std::string::npos) << warning;
        EXPECT_EQ(warning.find('\n'), std::string::npos);
        const std::vector<std::string> aside = AsideNames(home);
        ASSERT_EQ(aside.size(), 1u);
        EXPECT_TRUE(ReadFile(home / aside[0]) == c.bytes) << "the file kept aside differs";

        Engine e;
        UserKeyMap keys{};
        EXPECT_FALSE(LoadState(e, keys, store));  // a first run on the fresh database
        EXPECT_TRUE(SaveState(e, keys, store));
        store.Close();
        EXPECT_EQ(OpenStateFile(store, path, warning), OpenResult::Opened);
        EXPECT_EQ(warning, "");
        EXPECT_TRUE(LoadState(e, keys, store));
    }
}

TEST(DamagedFile, TheJournalGoesAsideWithItsDatabase) {
    TempFolder home;
    const auto path = home / "brinto.db";
    WriteFile(path, RandomBytes(5000, 4));
    WriteFile(home / "brinto.db-wal", RandomBytes(5000, 5));
    RecordStore store;
    std::string warning;
    ASSERT_EQ(OpenStateFile(store, path, warning), OpenResult::Opened);
    const std::vector<std::string> aside = AsideNames(home);
    ASSERT_EQ(aside.size(), 2u);
    EXPECT_EQ(aside[1], aside[0] + "-wal");
    EXPECT_TRUE(ReadFile(home / aside[1]) == RandomBytes(5000, 5));
}

TEST(DamagedFile, ASecondDamagedFileDoesNotReplaceTheFirstKeptAside) {
    TempFolder home;
    const auto path = home / "brinto.db";
    for (const unsigned seed : {6u, 7u, 8u}) {
        WriteFile(path, RandomBytes(100, seed));
        RecordStore store;
        std::string warning;
        ASSERT_EQ(OpenStateFile(store, path, warning), OpenResult::Opened);
        store.Close();
        std::filesystem::remove(path);
    }
    EXPECT_EQ(AsideNames(home).size(), 3u);
}

TEST(StateFile, MissingFoldersAreCreated) {
    TempFolder home;
    const auto path = home / "a" / "b" / "brinto.db";
    RecordStore store;
    std::string warning;
    EXPECT_EQ(OpenStateFile(store, path, warning), OpenResult::Opened);
    EXPECT_EQ(warning, "");
    EXPECT_TRUE(std::filesystem::is_regular_file(path));
}

TEST(StateFile, AnImpossibleFolderMeansRunningWithoutSaving) {
    TempFolder home;
    WriteFile(home / "file", "x");
    RecordStore store;
    std::string warning;
    EXPECT_EQ(OpenStateFile(store, home / "file" / "brinto.db", warning), OpenResult::Unavailable);
    EXPECT_NE(warning.find("nothing will be saved"), std::string::npos) << warning;
    Engine e;
    UserKeyMap keys{};
    EXPECT_FALSE(LoadState(e, keys, store));
    EXPECT_FALSE(SaveState(e, keys, store));
    EXPECT_EQ(ReadFile(home / "file"), "x");
}

TEST(StateFile, LocationsFollowTheXdgVariables) {
    struct Case {
        const char* name;
        const char* data;
        const char* config;
        const char* home;
        std::string database;
        std::string legacy;
    };
    const Case cases[] = {
        {"set", "/d", "/c", "/h", "/d/brinto/brinto.db", "/c/brinto/Brinto.reg"},
        {"unset", nullptr, nullptr, "/h", "/h/.local/share/brinto/brinto.db", "/h/.config/brinto/Brinto.reg"},
        {"empty", "", "", "/h", "/h/.local/share/brinto/brinto.db", "/h/.config/brinto/Brinto.reg"},
        {"relative is ignored", "rel", "rel", "/h", "/h/.local/share/brinto/brinto.db",
         "/h/.config/brinto/Brinto.reg"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const StateLocations where = LocationsFrom(c.data, c.config, c.home);
        EXPECT_EQ(where.database.string(), c.database);
        EXPECT_EQ(where.legacyFile.string(), c.legacy);
    }
}

}  // namespace
}  // namespace brinto
