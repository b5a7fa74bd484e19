// Start-up and saving as a front end sees them: the first run's question, damage told from
// trouble, a failed save, and the front end's own settings. Each test works in its own folder,
// with the XDG folders pointed into it, so no real home is ever read.
#include "session/session_store.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <cstdlib>

#include "calculator/assembly.h"
#include "engine/function_ids.h"
#include "session/recording_host.h"
#include "temp_folder.h"

namespace brinto::test {
namespace {

// One front end's run: an engine, its host, its session and its store.
struct FrontEnd {
    Engine engine{CalculatorFamilies()};
    RecordingHost host;
    Session session{engine, host};
    SessionStore store{session};

    explicit FrontEnd(InputMethod answer = InputMethod::Simple) { host.answer.method = answer; }
};

class SessionStoreTest : public ::testing::Test {
protected:
    void SetUp() override {
        setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
        setenv("XDG_CONFIG_HOME", (folder / "config").c_str(), 1);
    }
    std::string Snapshot() const { return test::Snapshot(folder.path()); }

    TempFolder folder;
    std::filesystem::path db = folder / "calc.db";
};

TEST_F(SessionStoreTest, AFirstRunAsksOnceAndKeepsTheAnswer) {
    {
        FrontEnd first(InputMethod::Rpn);
        first.host.answer.openPreferences = true;
        const StartOutcome outcome = first.store.Start(StoreLocation::File(db));
        EXPECT_TRUE(outcome.firstRun && outcome.openPreferences && !outcome.trouble);
        EXPECT_EQ(first.host.asked, 1);
        // The dialog's OK switches the preferences and the running engine together.
        EXPECT_EQ(first.engine.prefs.Method(), InputMethod::Rpn);
        EXPECT_TRUE(first.engine.IsRpn());
        EXPECT_TRUE(first.store.Save());
    }
    FrontEnd second;
    const StartOutcome outcome = second.store.Start(StoreLocation::File(db));
    EXPECT_FALSE(outcome.firstRun || outcome.openPreferences || outcome.trouble);
    EXPECT_EQ(second.host.asked, 0);
    EXPECT_TRUE(second.engine.IsRpn());

    // The default location is made with its folder; memory touches nothing.
    FrontEnd atDefault;
    EXPECT_TRUE(atDefault.store.Start(StoreLocation::Default()).firstRun);
    EXPECT_TRUE(atDefault.store.Save());
    EXPECT_TRUE(std::filesystem::is_regular_file(folder / "data" / "brinto" / "brinto.db"));
    const std::string before = Snapshot();
    FrontEnd inMemory;
    EXPECT_TRUE(inMemory.store.Start(StoreLocation::Memory()).firstRun);
    EXPECT_TRUE(inMemory.store.Save());
    EXPECT_EQ(Snapshot(), before);
}

// Damage is moved aside and the run starts afresh; trouble and someone else's file are reported
// once, change nothing, and the run goes on in memory without asking the first run's question.
TEST_F(SessionStoreTest, DamageIsMovedAsideTroubleIsReportedAndTouchesNothing) {
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    {
        FrontEnd maker;
        maker.store.Start(StoreLocation::File(folder / "damaged.db"));
        ASSERT_TRUE(maker.store.Save());
    }
    std::string damaged = ReadFile(folder / "damaged.db");
    ASSERT_GT(damaged.size(), 8192u);
    std::fill(damaged.begin() + 4096, damaged.end(), '\x5A');
    WriteFile(folder / "damaged.db", damaged);
    WriteFile(folder / "notes.txt", "not a database at all");
    // Each kind of trouble is told apart by the store's own tests; here one stands for them all.
    const std::tuple<const char*, std::filesystem::path, bool> cases[] = {  // name, path, trouble
        {"a pipe", folder / "pipe", true},
        {"someone else's file", folder / "notes.txt", true},
        {"a damaged file", folder / "damaged.db", false},
    };
    for (const auto& [name, path, trouble] : cases) {
        SCOPED_TRACE(name);
        const std::string before = Snapshot();
        FrontEnd run;
        const StartOutcome outcome = run.store.Start(StoreLocation::File(path));
        EXPECT_EQ(outcome.trouble, trouble);
        EXPECT_EQ(run.store.HadTrouble(), trouble);
        EXPECT_EQ(run.host.troubles.size(), trouble ? 1u : 0u);
        EXPECT_EQ(outcome.firstRun, !trouble);
        EXPECT_EQ(outcome.notices.size(), trouble ? 0u : 1u);
        run.session.CharacterKey('7');
        EXPECT_TRUE(run.store.Save());  // into memory, after trouble
        EXPECT_EQ(run.host.troubles.size(), trouble ? 1u : 0u);
        if (trouble) {
            EXPECT_EQ(Snapshot(), before);
        } else {
            EXPECT_TRUE(std::filesystem::is_regular_file(path));
        }
    }
}

// Writes fail as on a full disk while the limit holds.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_saved);
        rlimit limit = m_saved;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_saved);
        std::signal(SIGXFSZ, m_signal);
    }

private:
    rlimit m_saved{};
    void (*m_signal)(int) = nullptr;
};

TEST_F(SessionStoreTest, EveryFailedSaveIsReportedAndTriedAgainWhole) {
    FrontEnd run;
    run.store.Start(StoreLocation::File(db));
    run.session.StoreRegister(5, 7.0);
    ASSERT_TRUE(run.store.Save());
    run.session.StoreRegister(5, 42.0);
    {
        const FileSizeLimit full(1);
        EXPECT_FALSE(run.store.Save());
        EXPECT_FALSE(run.store.Save());
    }
    ASSERT_EQ(run.host.troubles.size(), 2u);
    EXPECT_NE(run.host.troubles[1].find(db.string()), std::string::npos) << run.host.troubles[1];
    EXPECT_TRUE(run.store.HadTrouble());
    {
        FrontEnd reader;
        reader.store.Start(StoreLocation::File(db));
        EXPECT_EQ(reader.engine.registers.values[5], 7.0);
    }
    // The changed registers stayed marked: the next save that can write them does.
    EXPECT_TRUE(run.store.Save());
    EXPECT_EQ(run.host.recovered, 1);
    FrontEnd reader;
    reader.store.Start(StoreLocation::File(db));
    EXPECT_EQ(reader.engine.registers.values[5], 42.0);
}

// Two windows on one file are one calculator: each keeps every command at once and builds on what
// the other saved, and a change taken over is one step that Undo takes back.
TEST_F(SessionStoreTest, TwoWindowsOnOneFileAreOneCalculator) {
    FrontEnd a, b;
    a.store.Start(StoreLocation::File(db));
    a.store.KeepEachCommand();
    b.store.Start(StoreLocation::File(db));
    b.store.KeepEachCommand();
    a.session.SetPreferences([&] {
        Preferences p = a.engine.prefs;
        p.SetMethod(InputMethod::Rpn);
        return p;
    }());
    a.session.StoreRegister(1, 10.0);
    b.session.StoreRegister(2, 20.0);  // b takes a's change over first, then adds its own
    EXPECT_TRUE(b.engine.IsRpn());
    EXPECT_EQ(b.host.pickedUp, std::vector<bool>{true});
    a.session.CharacterKey('5');
    a.session.Special(SpecialKey::Enter);
    b.session.CharacterKey('6');
    b.session.CharacterKey('+');
    EXPECT_EQ(a.engine.X(), 5.0);
    ASSERT_TRUE(a.store.Refresh());  // an idle look, or the next command, shows b's work
    EXPECT_EQ(a.engine.X(), 11.0);
    a.session.CharacterKey('2');
    b.session.CharacterKey('*');  // on a's 2: b's own 11 is gone from its X
    EXPECT_EQ(b.engine.X(), 22.0);
    ASSERT_TRUE(a.store.Refresh());
    EXPECT_EQ(a.engine.X(), 22.0);
    EXPECT_EQ(a.engine.registers.values[2], 20.0);
    // a's Undo takes back the step it took over (b's multiplication) and keeps that.
    a.session.Undo();
    EXPECT_EQ(a.engine.X(), 2.0);
    EXPECT_TRUE(b.store.Refresh());
    EXPECT_EQ(b.engine.X(), 2.0);
    // Nothing changed: no look at the file finds anything, and no save writes anything.
    EXPECT_FALSE(a.store.Refresh() || b.store.Refresh());
    FrontEnd reader;
    reader.store.Start(StoreLocation::File(db));
    EXPECT_EQ(reader.engine.X(), 2.0);
    EXPECT_EQ(reader.engine.Y(), 11.0);
    EXPECT_EQ(reader.engine.registers.values[1], 10.0);
    EXPECT_EQ(reader.engine.registers.values[2], 20.0);
    // A key that makes no tape line of its own still shows the lines the other one added.
    const int shown = a.host.tapeChanges;
    b.session.Special(SpecialKey::Enter);
    a.session.CharacterKey('9');
    EXPECT_GT(a.host.tapeChanges, shown);
}

TEST_F(SessionStoreTest, FrontEndSettingsTravelWithTheNextSave) {
    const std::vector<std::byte> geometry = {std::byte{1}, std::byte{0}, std::byte{0xFF}};
    {
        FrontEnd run;
        run.store.Start(StoreLocation::File(db));
        EXPECT_FALSE(run.store.FrontEndSetting("geometry").has_value());
        EXPECT_TRUE(run.store.SetFrontEndSetting("geometry", geometry));
        EXPECT_EQ(run.store.FrontEndSetting("geometry"), geometry);
        FrontEnd other;
        other.store.Start(StoreLocation::File(db));
        EXPECT_FALSE(other.store.FrontEndSetting("geometry").has_value());  // not saved yet
        EXPECT_TRUE(run.store.Save());
        // Names that a record cannot hold, and values beyond the bound, are refused.
        EXPECT_FALSE(run.store.SetFrontEndSetting("", geometry));
        EXPECT_FALSE(run.store.SetFrontEndSetting(std::string(33, 'n'), geometry));
        EXPECT_FALSE(run.store.SetFrontEndSetting("g\xC3\xA9om", geometry));
        EXPECT_FALSE(run.store.SetFrontEndSetting(
            "big", std::vector<std::byte>(SessionStore::kMaxFrontEndSetting + 1)));
    }
    FrontEnd later;
    later.store.Start(StoreLocation::File(db));
    EXPECT_EQ(later.store.FrontEndSetting("geometry"), geometry);
    EXPECT_FALSE(later.store.FrontEndSetting("Geometry").has_value());
}

}  // namespace
}  // namespace brinto::test
