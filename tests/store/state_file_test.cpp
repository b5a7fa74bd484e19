// The database file at start-up and under stress: where it lives, what happens to a damaged or
// foreign file, and that saves killed half-way or made by two processes at once always leave a
// file that passes SQLite's integrity check and loads as one complete save.
#include "store/state_file.h"

#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <optional>
#include <random>
#include <set>
#include <thread>

#include "store_test_support.h"

namespace brinto::test {
namespace {

std::string RandomBytes(std::size_t n, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes(n, '\0');
    for (char& c : bytes) c = static_cast<char>(random());
    return bytes;
}

// Writes `stamp` into every record, so that a load shows whether all five came from one save.
void StampRecords(Engine& e, UserKeyMap& keys, u32 stamp) {
    e.prefs.words[1] = static_cast<u16>(stamp);
    e.registers.values[kRegisterCount - 1] = stamp;
    e.macro.macroKeys[kMacroSlots - 1] = keys.keys[23] = FunctionIdFrom(stamp);
    e.state.randomSeed = stamp;
}

void SaveStamped(const std::filesystem::path& path, u32 stamp) {
    RecordStore store;
    ASSERT_EQ(store.Open(path), OpenResult::Opened);
    Engine e;
    UserKeyMap keys{};
    StampRecords(e, keys, stamp);
    ASSERT_TRUE(SaveAll(e, keys, store));
}

// Loads the file the way the program does at start-up: the stamp every record carries, or nothing
// when they disagree.
std::optional<u32> LoadedStamp(const std::filesystem::path& path) {
    RecordStore store;
    EXPECT_EQ(store.Open(path), OpenResult::Opened);
    Engine e;
    UserKeyMap keys{};
    LoadState(e, keys, store);
    const u32 s = e.state.randomSeed;
    const bool same = e.prefs.words[1] == static_cast<u16>(s) && e.macro.macroKeys[kMacroSlots - 1] == FunctionIdFrom(s) &&
                      e.registers.values[kRegisterCount - 1] == s && keys.keys[23] == FunctionIdFrom(s);
    return same ? std::optional<u32>(s) : std::nullopt;
}

std::vector<std::string> AsideNames(const TempFolder& folder) {
    std::vector<std::string> names = folder.Entries();
    std::erase_if(names, [](const std::string& name) { return name.find(".damaged-") == std::string::npos; });
    return names;
}

// What a Brinto database whose first page is sound but whose rest is not looks like.
std::string DamagedBrinto(const std::string& saved, unsigned seed) {
    return saved.substr(0, 4096) + RandomBytes(saved.size() - 4096, seed);
}

// Only a file that carries Brinto's mark and fails the checks is damage; it goes aside whole and a
// fresh database takes its name. An empty file simply becomes a database.
TEST(DamagedFile, IsKeptAsideAndTheProgramStartsOnDefaults) {
    TempFolder folder;
    SaveStamped(folder / "saved.db", 1);
    const std::string saved = ReadFile(folder / "saved.db");
    const std::string ours = "PRAGMA application_id=1114795636;";
    const std::string tables = "CREATE TABLE BrintoConfig(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);"
                               "CREATE TABLE BrintoState(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);";
    const std::string header2 = "X'500001000000000002000000" + std::string(136, '0') + "'";
    const std::tuple<const char*, std::string, std::string> cases[] = {  // name, bytes, or SQL that makes it
        {"zero length", "", ""},
        {"truncated mid-page", saved.substr(0, 4096 + 2000), ""},
        {"a page overwritten", DamagedBrinto(saved, 3), ""},
        {"our mark without the tables", "", ours + "CREATE TABLE other(x);"},
        {"a table without the payload column", "",
         ours + "CREATE TABLE BrintoConfig(id INTEGER PRIMARY KEY, header BLOB);"
                "CREATE TABLE BrintoState(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);"},
        {"a short header", "", ours + tables + "INSERT INTO BrintoState VALUES(1, X'5000', X'00');"},
        {"a text header", "", ours + tables + "INSERT INTO BrintoState VALUES(1, 'header', X'00');"},
        {"a null payload", "", ours + tables + "INSERT INTO BrintoState VALUES(1, " + header2 + ", NULL);"},
        {"a state record in the configuration table", "",
         ours + tables + "INSERT INTO BrintoConfig VALUES(1, " + header2 + ", X'00');"},
        {"a header of another format", "",
         ours + tables + "INSERT INTO BrintoState VALUES(1, X'50000200" + std::string(152, '0') +
             "', X'00');"},
    };
    for (const auto& [name, bytes, sql] : cases) {
        SCOPED_TRACE(name);
        TempFolder home;
        const auto path = home / "brinto.db";
        WriteFile(path, bytes);
        if (!sql.empty()) Sql(path, sql);  // SQLite takes an empty file for a new database
        const std::string original = ReadFile(path);

        RecordStore store;
        std::string warning;
        EXPECT_EQ(OpenStateFile(store, path, warning), OpenResult::Opened);
        const std::vector<std::string> aside = AsideNames(home);
        if (original.empty()) {
            EXPECT_EQ(warning, "");
            EXPECT_TRUE(aside.empty());
        } else {
            EXPECT_NE(warning.find("kept it as"), std::string::npos) << warning;
            EXPECT_EQ(warning.find('\n'), std::string::npos);
            ASSERT_EQ(aside.size(), 1u);
            EXPECT_TRUE(ReadFile(home / aside[0]) == original) << "the file kept aside differs";
        }
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
    SaveStamped(home / "saved.db", 1);
    const std::string saved = ReadFile(home / "saved.db");
    std::filesystem::remove(home / "saved.db");
    for (const unsigned seed : {4u, 6u}) {
        WriteFile(home / "brinto.db", DamagedBrinto(saved, seed));
        WriteFile(home / "brinto.db-wal", RandomBytes(5000, seed + 1));
        RecordStore store;
        std::string warning;
        ASSERT_EQ(OpenStateFile(store, home / "brinto.db", warning), OpenResult::Opened);
    }
    std::set<std::string> pairs;  // each database kept aside, followed by its journal
    for (const std::string& name : AsideNames(home)) {
        if (!name.ends_with("-wal")) pairs.insert(ReadFile(home / name) + ReadFile(home / (name + "-wal")));
    }
    EXPECT_EQ(AsideNames(home).size(), 4u);
    EXPECT_TRUE(pairs == (std::set<std::string>{DamagedBrinto(saved, 4) + RandomBytes(5000, 5),
                                                DamagedBrinto(saved, 6) + RandomBytes(5000, 7)}));
}

// Trouble is not damage, and someone else's file is not ours: a path that is no regular file, a
// missing folder, a lock held beyond the wait, a file of another kind. The store stays closed,
// nothing is moved, created or changed (not even a journal beside it), and the warning is one line.
TEST(StateFile, TroubleAndForeignFilesLeaveEverythingAsItWas) {
    TempFolder home;
    std::filesystem::create_directories(home / "folder" / "inside");
    WriteFile(home / "folder" / "inside" / "keep", "the user's file");
    ASSERT_EQ(mkfifo((home / "pipe").c_str(), 0600), 0);
    WriteFile(home / "plain", "x");
    SaveStamped(home / "locked.db", 5);
    const std::string brinto = ReadFile(home / "locked.db");
    WriteFile(home / "notes.txt", "export PATH=$HOME/bin:$PATH\n");
    WriteFile(home / "picture.png", std::string("\x89PNG\r\n\x1a\n", 8) + RandomBytes(3000, 8));
    WriteFile(home / "marked.bin", std::string("SQLite format 3", 16) + RandomBytes(8176, 2));
    WriteFile(home / "cut.db", brinto.substr(0, 60));
    Sql(home / "other.db", "CREATE TABLE notes(t TEXT); INSERT INTO notes VALUES('x');");
    Sql(home / "names.db", "CREATE TABLE BrintoConfig(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);"
                           "CREATE TABLE BrintoState(id INTEGER PRIMARY KEY, header BLOB, payload BLOB);");
    std::filesystem::create_symlink(home / "notes.txt", home / "link.db");
    const std::tuple<const char*, std::filesystem::path, OpenResult> cases[] = {
        {"a folder", home / "folder", OpenResult::Refused},
        {"a pipe, which must not block", home / "pipe", OpenResult::Refused},
        {"a device", "/dev/null", OpenResult::Refused},
        {"below a plain file", home / "plain" / "brinto.db", OpenResult::Unavailable},
        {"in a missing folder", home / "missing" / "brinto.db", OpenResult::Unavailable},
        {"locked beyond the wait", home / "locked.db", OpenResult::Busy},
        {"a text file", home / "notes.txt", OpenResult::Foreign},
        {"a picture", home / "picture.png", OpenResult::Foreign},
        {"another program's database", home / "other.db", OpenResult::Foreign},
        {"our table names without our mark", home / "names.db", OpenResult::Foreign},
        {"the SQLite mark and then noise", home / "marked.bin", OpenResult::Foreign},
        {"too short to carry a mark", home / "cut.db", OpenResult::Foreign},
        {"a link to a text file", home / "link.db", OpenResult::Foreign},
    };
    // Another program holds the file locked: it can be neither read nor written.
    sqlite3* holder = nullptr;
    ASSERT_EQ(sqlite3_open((home / "locked.db").c_str(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; DELETE FROM BrintoConfig;",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    const std::string before = Snapshot(home.path());
    for (const auto& [name, path, result] : cases) {
        SCOPED_TRACE(name);
        RecordStore store;
        std::string warning;
        EXPECT_EQ(OpenStateFile(store, path, warning), result);
        EXPECT_FALSE(store.IsOpen());
        EXPECT_NE(warning.find("nothing will be saved"), std::string::npos) << warning;
        EXPECT_EQ(warning.find('\n'), std::string::npos);
        EXPECT_EQ(Snapshot(home.path()), before);
    }
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
    sqlite3_exec(holder, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(holder);
    EXPECT_EQ(LoadedStamp(home / "locked.db"), 5u);
}

// Another program's write holds the file beyond the wait: the save changes nothing, and the
// records stay marked, so the next save writes them.
TEST(StateFile, ASaveThatMeetsALockChangesNothingAndIsTriedAgain) {
    TempFolder home;
    const auto path = home / "brinto.db";
    SaveStamped(path, 3);
    RecordStore store;
    ASSERT_EQ(store.Open(path), OpenResult::Opened);
    Engine e;
    UserKeyMap keys{};
    LoadState(e, keys, store);
    StampRecords(e, keys, 4);
    e.dirty = {true, true, true, true, true};
    sqlite3* holder = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_FALSE(SaveState(e, keys, store));
    EXPECT_TRUE(e.dirty.preferences && e.dirty.registers && e.dirty.userKeys && e.dirty.macro);
    EXPECT_EQ(LoadedStamp(path), 3u);
    sqlite3_exec(holder, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(holder);
    EXPECT_TRUE(SaveState(e, keys, store));
    EXPECT_EQ(LoadedStamp(path), 4u);
}

// A disk that fails a few reads and then recovers: the default file system of SQLite with the
// next `failures` reads beyond the first page of a database answered short, as a flaky disk or a
// file still being copied in would. Short reads come back zero-filled, which looks like damage.
namespace flaky {
int failures = 0;
sqlite3_vfs vfs;
sqlite3_vfs* real = nullptr;
sqlite3_io_methods methods;
const sqlite3_io_methods* realMethods = nullptr;

int Read(sqlite3_file* file, void* buffer, int amount, sqlite3_int64 offset) {
    if (offset >= 4096 && failures > 0) {
        --failures;
        std::memset(buffer, 0, static_cast<std::size_t>(amount));
        return SQLITE_IOERR_SHORT_READ;
    }
    return realMethods->xRead(file, buffer, amount, offset);
}

// The file is the real one; only its table of methods is ours, with the read replaced.
int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    const int code = real->xOpen(real, name, file, flags, outFlags);
    if (code == SQLITE_OK && file->pMethods && (flags & SQLITE_OPEN_MAIN_DB)) {
        realMethods = file->pMethods;
        methods = *file->pMethods;
        methods.xRead = Read;
        file->pMethods = &methods;
    }
    return code;
}

// Makes the flaky file system the default one while it lives.
struct Installed {
    Installed() {
        real = sqlite3_vfs_find(nullptr);
        vfs = *real;
        vfs.zName = "flaky";
        vfs.xOpen = Open;
        sqlite3_vfs_register(&vfs, 1);
    }
    ~Installed() {
        sqlite3_vfs_unregister(&vfs);
        sqlite3_vfs_register(real, 1);
    }
};
}  // namespace flaky

// A read error that passes is trouble at most, never damage: the second look finds the database
// sound, and the file stays where it is with everything in it.
TEST(StateFile, AReadErrorThatPassesIsNotTakenForDamage) {
    TempFolder home;
    SaveStamped(home / "brinto.db", 6);
    const std::string before = Snapshot(home.path());
    {
        const flaky::Installed installed;
        flaky::failures = 1;
        RecordStore store;
        std::string warning;
        EXPECT_EQ(OpenStateFile(store, home / "brinto.db", warning), OpenResult::Opened) << warning;
        EXPECT_EQ(flaky::failures, 0);  // the fault did strike
        EXPECT_TRUE(AsideNames(home).empty());
    }
    EXPECT_EQ(LoadedStamp(home / "brinto.db"), 6u);
}

TEST(StateFile, LocationsFollowTheXdgVariables) {
    const std::string fallbackDb = "/h/.local/share/brinto/brinto.db";
    const std::string fallbackReg = "/h/.config/brinto/Brinto.reg";
    const std::tuple<const char*, const char*, std::string, std::string> cases[] = {
        {"/d", "/c", "/d/brinto/brinto.db", "/c/brinto/Brinto.reg"},
        {nullptr, nullptr, fallbackDb, fallbackReg},
        {"", "", fallbackDb, fallbackReg},
        {"rel", "rel", fallbackDb, fallbackReg},  // a relative folder is ignored
    };
    for (const auto& [data, config, database, legacy] : cases) {
        SCOPED_TRACE(data ? data : "unset");
        const StateLocations where = LocationsFrom(data, config, "/h");
        EXPECT_EQ(where.database.string(), database);
        EXPECT_EQ(where.legacyFile.string(), legacy);
    }
}

// Forking a sanitized test process is several times slower; fewer kills keep its run short.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kKills = 120;
#else
constexpr int kKills = 300;
#endif

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
        if (!SaveAll(e, keys, store)) _exit(4);
        if (report >= 0 && write(report, &stamp, sizeof stamp) != sizeof stamp) _exit(5);
    }
    store.Close();
    _exit(0);
}

TEST(CrashSafety, AKilledSaveLeavesTheLastCompleteOne) {
    TempFolder folder;
    const auto path = folder / "brinto.db";
    SaveStamped(path, 1);  // every later load has a complete save to show
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
        // among the quick ones after it. Every fourth waits for that first save to be complete, so
        // that later saves are hit however slow a loaded machine makes the first one.
        std::optional<u32> reported;  // the newest stamp the child reported: its last complete save
        if (kill % 2 == 1) {
            u32 ready = 1;
            ASSERT_EQ(read(fds[0], &ready, sizeof ready), static_cast<ssize_t>(sizeof ready));
            ASSERT_EQ(ready, 0u);
        }
        if (kill % 4 == 3) {
            u32 first = 0;
            ASSERT_EQ(read(fds[0], &first, sizeof first), static_cast<ssize_t>(sizeof first));
            ASSERT_EQ(first, next);
            reported = first;
        }
        std::this_thread::sleep_for(std::chrono::microseconds(random() % (kill % 2 ? 15000 : 6000)));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the saving child stopped by itself: " << status;
        for (u32 stamp = 0; read(fds[0], &stamp, sizeof stamp) == sizeof stamp;) {
            if (stamp != 0) reported = stamp;
        }
        close(fds[0]);

        ASSERT_EQ(Sql(path, "PRAGMA integrity_check"), "ok");
        const std::optional<u32> loaded = LoadedStamp(path);
        ASSERT_TRUE(loaded) << "the records come from different saves";
        // Every save the child reported is in the file; at most the one after it may be too.
        const u32 complete = reported ? *reported : committed;
        EXPECT_TRUE(*loaded == complete || *loaded == (reported ? *reported + 1 : next))
            << "loaded " << *loaded << ", last reported " << complete;
        if (*loaded != committed) ++progressed;
        committed = *loaded;
        next += 100000;  // the next child's stamps are all new
    }
    // At least the kills that waited for a complete save must have found a newer one in the file.
    EXPECT_GE(progressed, kKills / 4);
}

TEST(CrashSafety, TwoProcessesSavingIntoOneFileNeverMixTheirRecords) {
    TempFolder folder;
    const auto path = folder / "brinto.db";
    SaveStamped(path, 1);
    constexpr u32 kSaves = 150;
    std::set<pid_t> saving;
    for (const u32 first : {1000000u, 2000000u}) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) SaveInALoop(path, first, kSaves, -1);
        saving.insert(child);
    }
    // Meanwhile this process loads, as a third program starting up would, until both are done and
    // it has made a few loads, however the machine shares its time between the three.
    for (int loads = 0; !saving.empty() || loads < 10; ++loads) {
        ASSERT_TRUE(LoadedStamp(path)) << "a load saw records of two different saves";
        for (const pid_t child : std::set<pid_t>(saving)) {
            int status = 0;
            if (waitpid(child, &status, WNOHANG) != child) continue;
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "a save failed: " << status;
            saving.erase(child);
        }
    }
    EXPECT_EQ(Sql(path, "PRAGMA integrity_check"), "ok");
    // The last save wins, whole: the final stamp of one of the two.
    const std::optional<u32> last = LoadedStamp(path);
    EXPECT_TRUE(last == 1000000 + kSaves - 1 || last == 2000000 + kSaves - 1) << last.value_or(0);
}

}  // namespace
}  // namespace brinto::test
