// The database file at start-up and under stress: where it lives, what happens to a damaged or
// foreign file, and that saves killed half-way or made by two processes at once always leave a
// file that passes SQLite's integrity check and loads as one complete save.
#include "store/state_file.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <optional>
#include <random>
#include <set>
#include <thread>

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

// A database file made by `make` at a scratch path, as bytes.
template <class Make>
std::string DatabaseBytes(const TempFolder& folder, Make make) {
    const auto path = folder / "made.db";
    make(path);
    std::string bytes = ReadFile(path);
    std::filesystem::remove(path);
    return bytes;
}

std::string SavedDatabase(const TempFolder& folder) {
    return DatabaseBytes(folder, [](const std::filesystem::path& path) {
        RecordStore store;
        EXPECT_EQ(store.Open(path), OpenResult::Opened);
        Engine e;
        test::SaveAll(e, EmptyUserKeyMap(), store);
    });
}

// A database made with plain SQLite; `ours` gives it the application id of our files.
std::string MadeDatabase(const TempFolder& folder, const std::string& sql, bool ours = true) {
    return DatabaseBytes(folder, [&](const std::filesystem::path& path) {
        Sql(path, (ours ? "PRAGMA application_id=1114795636;" : "") + sql);
    });
}

std::vector<std::string> AsideNames(const TempFolder& folder) {
    std::vector<std::string> names = folder.Entries();
    std::erase_if(names, [](const std::string& name) { return name.find(".damaged-") == std::string::npos; });
    return names;
}

TEST(DamagedFile, IsKeptAsideAndTheProgramStartsOnDefaults) {
    TempFolder folder;
    const std::string saved = SavedDatabase(folder);
    const std::string tables = "CREATE TABLE BrintoConfig(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);"
                               "CREATE TABLE BrintoState(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);";
    const std::string header2 = "X'500001000000000002000000" + std::string(136, '0') + "'";
    struct Case {
        const char* name;
        std::string bytes;
    };
    const Case cases[] = {
        {"zero length", ""},
        {"truncated inside the header", saved.substr(0, 60)},
        {"truncated mid-page", saved.substr(0, saved.size() - 3000)},
        {"random bytes", RandomBytes(10000, 1)},
        {"random bytes after the SQLite mark", std::string("SQLite format 3", 16) + RandomBytes(8176, 2)},
        {"a page overwritten", saved.substr(0, 4096) + RandomBytes(saved.size() - 4096, 3)},
        {"foreign database", MadeDatabase(folder, "CREATE TABLE notes(t TEXT); INSERT INTO notes VALUES('x');", false)},
        {"foreign database with our table names", MadeDatabase(folder, tables, false)},
        {"our mark without the tables", MadeDatabase(folder, "CREATE TABLE other(x);")},
        {"a table without the payload column",
         MadeDatabase(folder, "CREATE TABLE BrintoConfig(id INTEGER PRIMARY KEY, header BLOB);"
                              "CREATE TABLE BrintoState(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);")},
        {"a short header", MadeDatabase(folder, tables + "INSERT INTO BrintoState VALUES(1, X'5000', X'00');")},
        {"a text header", MadeDatabase(folder, tables + "INSERT INTO BrintoState VALUES(1, 'header', X'00');")},
        {"a null payload", MadeDatabase(folder, tables + "INSERT INTO BrintoState VALUES(1, " + header2 + ", NULL);")},
        {"a state record in the configuration table",
         MadeDatabase(folder, tables + "INSERT INTO BrintoConfig VALUES(1, " + header2 + ", X'00');")},
        {"a header of another format",
         MadeDatabase(folder, tables + "INSERT INTO BrintoState VALUES(1, X'50000200" + std::string(152, '0') +
                                  "', X'00');")},
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

// The journal belongs to the damaged file: left behind, it would be replayed into the fresh one.
// A later damaged file never replaces one kept earlier.
TEST(DamagedFile, EachGoesAsideWithItsJournal) {
    TempFolder home;
    const auto path = home / "brinto.db";
    for (const unsigned seed : {4u, 6u, 8u}) {
        WriteFile(path, RandomBytes(5000, seed));
        WriteFile(home / "brinto.db-wal", RandomBytes(5000, seed + 1));
        RecordStore store;
        std::string warning;
        ASSERT_EQ(OpenStateFile(store, path, warning), OpenResult::Opened);
    }
    std::set<std::string> databases;
    std::set<std::string> journals;
    for (const std::string& name : AsideNames(home)) {
        const bool journal = name.ends_with("-wal");
        EXPECT_TRUE(journal || std::filesystem::exists(home / (name + "-wal"))) << name;
        (journal ? journals : databases).insert(ReadFile(home / name));
    }
    const auto bytes = [](unsigned a, unsigned b, unsigned c) {
        return std::set<std::string>{RandomBytes(5000, a), RandomBytes(5000, b), RandomBytes(5000, c)};
    };
    EXPECT_TRUE(databases == bytes(4, 6, 8));
    EXPECT_TRUE(journals == bytes(5, 7, 9));
}

TEST(StateFile, MissingFoldersAreCreatedAndAnImpossibleOneMeansNoSaving) {
    TempFolder home;
    RecordStore store;
    std::string warning;
    EXPECT_EQ(OpenStateFile(store, home / "a" / "b" / "brinto.db", warning), OpenResult::Opened);
    EXPECT_EQ(warning, "");
    EXPECT_TRUE(std::filesystem::is_regular_file(home / "a" / "b" / "brinto.db"));

    WriteFile(home / "file", "x");
    RecordStore none;
    EXPECT_EQ(OpenStateFile(none, home / "file" / "brinto.db", warning), OpenResult::Unavailable);
    EXPECT_NE(warning.find("nothing will be saved"), std::string::npos) << warning;
    Engine e;
    UserKeyMap keys{};
    EXPECT_FALSE(LoadState(e, keys, none));
    EXPECT_FALSE(test::SaveAll(e, keys, none));
    // A failed save is not retried: its flags are cleared all the same.
    EXPECT_FALSE(e.dirty.preferences || e.dirty.registers || e.dirty.userKeys || e.dirty.macro || e.dirty.state);
    EXPECT_EQ(ReadFile(home / "file"), "x");
}

TEST(StateFile, LocationsFollowTheXdgVariables) {
    struct Case {
        const char* name;
        const char* data;
        const char* config;
        std::string database;
        std::string legacy;
    };
    const std::string fallbackDb = "/h/.local/share/brinto/brinto.db";
    const std::string fallbackReg = "/h/.config/brinto/Brinto.reg";
    const Case cases[] = {
        {"set", "/d", "/c", "/d/brinto/brinto.db", "/c/brinto/Brinto.reg"},
        {"unset", nullptr, nullptr, fallbackDb, fallbackReg},
        {"empty", "", "", fallbackDb, fallbackReg},
        {"relative is ignored", "rel", "rel", fallbackDb, fallbackReg},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const StateLocations where = LocationsFrom(c.data, c.config, "/h");
        EXPECT_EQ(where.database.string(), c.database);
        EXPECT_EQ(where.legacyFile.string(), c.legacy);
    }
}

// Forking a sanitized test process is several times slower; fewer kills keep its run short.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kKills = 120;
#else
constexpr int kKills = 300;
#endif

// Writes `stamp` into every record, so that a load shows whether all five came from one save.
void StampRecords(Engine& e, UserKeyMap& keys, u32 stamp) {
    e.prefs.words[1] = static_cast<u16>(stamp);
    e.registers.values[0] = e.registers.values[kRegisterCount - 1] = stamp;
    e.macro.macroLength = static_cast<u16>(stamp % kMacroSlots);
    e.macro.macroKeys[kMacroSlots - 1] = keys.keys[0] = keys.keys[23] = stamp;
    e.state.randomSeed = stamp;
    e.state.stack[kStackLevels - 1] = stamp;
}

// The stamp every record carries, or nothing when they disagree.
std::optional<u32> StampOf(const Engine& e, const UserKeyMap& keys) {
    const u32 s = e.state.randomSeed;
    const bool same = e.prefs.words[1] == static_cast<u16>(s) && e.registers.values[0] == s &&
                      e.registers.values[kRegisterCount - 1] == s && e.macro.macroLength == s % kMacroSlots &&
                      e.macro.macroKeys[kMacroSlots - 1] == s && keys.keys[0] == s && keys.keys[23] == s &&
                      e.state.stack[kStackLevels - 1] == s;
    return same ? std::optional<u32>(s) : std::nullopt;
}

// Opens the file and loads it the way the program does at start-up.
struct Loaded {
    bool opened;
    int records;
    std::optional<u32> stamp;
};

Loaded LoadFile(const std::filesystem::path& path) {
    RecordStore store;
    const bool opened = store.Open(path) == OpenResult::Opened;
    Engine e;
    UserKeyMap keys{};
    LoadState(e, keys, store);
    return {opened, store.CountRecords(), StampOf(e, keys)};
}

// The child's work: load, then save ever newer stamps until killed (or `saves` are done),
// reporting on `report` that it has loaded (0) and then each stamp once its save is in the file.
[[noreturn]] void SaveInALoop(const std::filesystem::path& path, u32 first, u32 saves, int report) {
    RecordStore store;
    if (store.Open(path) != OpenResult::Opened) _exit(3);
    Engine e;
    UserKeyMap keys{};
    LoadState(e, keys, store);
    const u32 ready = 0;
    if (report >= 0 && write(report, &ready, sizeof ready) != sizeof ready) _exit(5);
    for (u32 stamp = first; stamp < first + saves; ++stamp) {
        StampRecords(e, keys, stamp);
        if (!test::SaveAll(e, keys, store)) _exit(4);
        if (report >= 0 && write(report, &stamp, sizeof stamp) != sizeof stamp) _exit(5);
    }
    store.Close();
    _exit(0);
}

TEST(CrashSafety, AKilledSaveLeavesTheLastCompleteOne) {
    TempFolder folder;
    const auto path = folder / "brinto.db";
    {
        // Start from a complete save with stamp 1, so every later load has something to show.
        RecordStore store;
        ASSERT_EQ(store.Open(path), OpenResult::Opened);
        Engine e;
        UserKeyMap keys{};
        StampRecords(e, keys, 1);
        ASSERT_TRUE(test::SaveAll(e, keys, store));
    }
    std::mt19937 random(20240611);
    u32 committed = 1;
    u32 next = 2;
    int progressed = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        SCOPED_TRACE(kill);
        int fds[2];
        ASSERT_EQ(pipe(fds), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            close(fds[0]);
            SaveInALoop(path, next, 1000000, fds[1]);
        }
        close(fds[1]);
        // Every other kill comes anywhere from before the child has opened the file on; the others
        // wait until it has loaded and hit it in its first save (which waits for the disk once) or
        // among the quick ones after it.
        if (kill % 2 == 1) {
            u32 ready = 1;
            ASSERT_EQ(read(fds[0], &ready, sizeof ready), static_cast<ssize_t>(sizeof ready));
            ASSERT_EQ(ready, 0u);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(random() % (kill % 2 ? 15000 : 6000)));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the saving child stopped by itself: " << status;
        // The newest stamp the child reported is the last save known to be complete.
        std::optional<u32> reported;
        for (u32 stamp = 0; read(fds[0], &stamp, sizeof stamp) == sizeof stamp;) {
            if (stamp != 0) reported = stamp;
        }
        close(fds[0]);

        ASSERT_EQ(Sql(path, "PRAGMA integrity_check"), "ok");
        const Loaded loaded = LoadFile(path);
        ASSERT_TRUE(loaded.opened);
        ASSERT_TRUE(loaded.stamp) << "the records come from different saves";
        // Every save the child reported is in the file; at most the one after it may be too.
        const u32 complete = reported ? *reported : committed;
        EXPECT_TRUE(*loaded.stamp == complete || *loaded.stamp == (reported ? *reported + 1 : next))
            << "loaded " << *loaded.stamp << ", last reported " << complete;
        if (*loaded.stamp != committed) ++progressed;
        committed = *loaded.stamp;
        next += 100000;  // the next child's stamps are all new
    }
    // Many kills must have hit children that had saved, not only ones still starting (the figure
    // depends on the machine's speed, so the bound is loose).
    EXPECT_GT(progressed, kKills / 10);
}

TEST(CrashSafety, TwoProcessesSavingIntoOneFileNeverMixTheirRecords) {
    TempFolder folder;
    const auto path = folder / "brinto.db";
    {
        RecordStore store;
        ASSERT_EQ(store.Open(path), OpenResult::Opened);
    }
    constexpr u32 kSaves = 150;
    std::set<pid_t> saving;
    for (const u32 first : {1000000u, 2000000u}) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) SaveInALoop(path, first, kSaves, -1);
        saving.insert(child);
    }
    // Meanwhile this process loads, as a third program starting up would.
    int loads = 0;
    while (!saving.empty()) {
        const Loaded loaded = LoadFile(path);
        ASSERT_TRUE(loaded.opened);
        if (loaded.records > 0) {
            ASSERT_TRUE(loaded.stamp) << "a load saw records of two different saves";
            ++loads;
        }
        for (const pid_t child : std::set<pid_t>(saving)) {
            int status = 0;
            if (waitpid(child, &status, WNOHANG) != child) continue;
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "a save failed: " << status;
            saving.erase(child);
        }
    }
    EXPECT_EQ(Sql(path, "PRAGMA integrity_check"), "ok");
    const Loaded last = LoadFile(path);
    ASSERT_TRUE(last.stamp);
    // The last save wins, whole: the final stamp of one of the two.
    EXPECT_TRUE(*last.stamp == 1000000 + kSaves - 1 || *last.stamp == 2000000 + kSaves - 1) << *last.stamp;
    EXPECT_GT(loads, 10);
}

}  // namespace
}  // namespace brinto
