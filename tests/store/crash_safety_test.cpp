// Saves that are killed half-way, and two processes saving into one file: the file always passes
// SQLite's integrity check and always loads as one complete save.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>
#include <set>
#include <thread>

#include "store/state_file.h"
#include "store/state_io.h"
#include "store_test_support.h"

namespace brinto {
namespace {

using test::Sql;
using test::StampOf;
using test::StampRecords;
using test::TempFolder;

// Forking a sanitized test process is several times slower; fewer kills keep its run short.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kKills = 120;
#else
constexpr int kKills = 300;
#endif

// Opens the file and loads it the way the program does at start-up.
struct Loaded {
    bool opened = false;
    int records = 0;
    std::optional<u32> stamp;
};

Loaded LoadFile(const std::filesystem::path& path) {
    Loaded loaded;
    RecordStore store;
    loaded.opened = store.Open(path) == OpenResult::Opened;
    loaded.records = store.CountRecords();
    Engine e;
    UserKeyMap keys{};
    LoadState(e, keys, store);
    loaded.stamp = StampOf(e, keys);
    return loaded;
}

// The child's work: load, then save ever newer stamps until killed (or `saves` are done),
// reporting each stamp on `report` once its save is in the file.
[[noreturn]] void SaveInALoop(const std::filesystem::path& path, u32 first, int saves, int report) {
    RecordStore store;
    if (store.Open(path) != OpenResult::Opened) _exit(3);
    Engine e;
    UserKeyMap keys{};
    LoadState(e, keys, store);
    const u32 ready = 0;
    if (report >= 0 && write(report, &ready, sizeof ready) != sizeof ready) _exit(5);
    for (int i = 0; i < saves; ++i) {
        const u32 stamp = first + static_cast<u32>(i);
        StampRecords(e, keys, stamp);
        if (!SaveState(e, keys, store)) _exit(4);
        if (report >= 0 && write(report, &stamp, sizeof stamp) != sizeof stamp) _exit(5);
    }
    store.Close();
    _exit(0);
}

// Reads every stamp the child reported; the newest is the last save known to be complete.
std::optional<u32> LastReported(int pipe) {
    std::optional<u32> last;
    u32 stamp = 0;
    while (read(pipe, &stamp, sizeof stamp) == sizeof stamp) {
        if (stamp != 0) last = stamp;  // 0 only says the child has loaded
    }
    return last;
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
        ASSERT_TRUE(SaveState(e, keys, store));
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
        const std::optional<u32> reported = LastReported(fds[0]);
        close(fds[0]);

        ASSERT_EQ(Sql(path, "PRAGMA integrity_check"), "ok");
        const Loaded loaded = LoadFile(path);
        ASSERT_TRUE(loaded.opened);
        ASSERT_TRUE(loaded.stamp) << "the records come from different saves";
        // Every save the child reported is in the file; at most the one after it may be too.
        const u32 complete = reported ? *reported : committed;
        const u32 newest = reported ? *reported + 1 : next;
        EXPECT_TRUE(*loaded.stamp == complete || *loaded.stamp == newest)
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
        std::string warning;
        ASSERT_EQ(OpenStateFile(store, path, warning), OpenResult::Opened);
    }
    constexpr int kSaves = 150;
    const pid_t first = fork();
    ASSERT_GE(first, 0);
    if (first == 0) SaveInALoop(path, 1000000, kSaves, -1);
    const pid_t second = fork();
    ASSERT_GE(second, 0);
    if (second == 0) SaveInALoop(path, 2000000, kSaves, -1);

    // Meanwhile this process loads, as a third program starting up would.
    std::set<pid_t> saving = {first, second};
    int loads = 0;
    // It keeps loading until both are done and it has made a few loads, however the machine
    // shares its time between the three.
    while (!saving.empty() || loads < 10) {
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
}

}  // namespace
}  // namespace brinto
