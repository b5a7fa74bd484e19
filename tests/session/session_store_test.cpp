// Start-up and saving as a front end sees them: the first run's question, damage told from
// trouble, a failed save, and the front end's own settings. Each test works in its own folder,
// with the XDG folders pointed into it, so no real home is ever read.
#include "session/session_store.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <unistd.h>
#include <sys/wait.h>

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

    TempFolder folder;
    std::filesystem::path db = folder / "calc.db";
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

// The file keeps the tape's newest lines.
TEST_F(SessionStoreTest, TheTapeKeepsItsNewestLines) {
    FrontEnd run;
    run.store.Start(StoreLocation::File(db));
    run.session.CharacterKey('7');
    run.session.CharacterKey('+');
    for (std::size_t i = 0; i < kTapeLines; ++i) run.session.Tap(fid::ClearX);
    ASSERT_TRUE(run.store.Save());
    const std::vector<TapeLine> tape = run.store.Tape();
    ASSERT_EQ(tape.size(), kTapeLines);
    EXPECT_EQ(tape.front().keys, "CLx");
}

// A first run asks for the input method, once, and keeps the answer; it takes over the handheld
// release's export beside the settings instead, as one whole or not at all (the store's tests read
// every kind of broken export). A calculator already saved, or a file in trouble, is never
// overwritten by the export, and no question is asked.
TEST_F(SessionStoreTest, AFirstRunAsksOrTakesOverTheExportBesideTheSettings) {
    const std::string rpnExport = "REGEDIT4\r\n[HKEY_CURRENT_USER\\Software\\ZEB\\Brinto]\r\n"
                                  "\"saved_0\"=hex:06,00,01,00,08\r\n";  // RPN, stack depth 8
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    {
        FrontEnd simple;  // a calculator already saved, in Simple
        simple.store.Start(StoreLocation::File(folder / "saved.db"));
        ASSERT_TRUE(simple.store.Save());
    }
    struct Case {
        const char* name;
        std::optional<std::string> exported;
        std::filesystem::path database;
        bool asked, rpn;
        int depth;
        const char* notice;
    };
    const Case cases[] = {  // the question is answered with RPN
        {"no export", std::nullopt, db, true, true, 4, nullptr},
        {"an export", rpnExport, db, false, true, 8, nullptr},
        {"a broken export", "REGEDIT4\r\n", db, true, true, 4, "legacy settings not imported: "},
        {"a calculator already saved", rpnExport, folder / "saved.db", false, false, 4, nullptr},
        {"a file in trouble", rpnExport, folder / "pipe", false, false, 4, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::filesystem::remove(db);
        std::filesystem::remove_all(folder / "config");
        if (c.exported) {
            std::filesystem::create_directories(folder / "config" / "brinto");
            WriteFile(folder / "config" / "brinto" / "Brinto.reg", *c.exported);
        }
        {
            FrontEnd run(InputMethod::Rpn);
            run.host.answer.openPreferences = true;
            const StartOutcome outcome = run.store.Start(StoreLocation::File(c.database));
            EXPECT_EQ(std::tuple(outcome.firstRun, outcome.openPreferences, run.host.asked),
                      std::tuple(c.asked, c.asked, c.asked ? 1 : 0));
            // The dialog's OK switches the preferences and the running engine together.
            EXPECT_EQ(std::pair(run.engine.prefs.Method() == InputMethod::Rpn, run.engine.IsRpn()),
                      std::pair(c.rpn, c.rpn));
            ASSERT_EQ(outcome.notices.size(), c.notice ? 1u : 0u);
            if (c.notice) {
                EXPECT_TRUE(outcome.notices[0].starts_with(c.notice)) << outcome.notices[0];
            }
            EXPECT_TRUE(run.store.Save());
        }
        FrontEnd again;  // what was chosen or taken over was kept, and neither is asked or read twice
        WriteFile(folder / "config" / "brinto" / "Brinto.reg", "garbage");
        EXPECT_TRUE(again.store.Start(StoreLocation::File(c.database)).notices.empty());
        EXPECT_EQ(again.host.asked, 0);
        EXPECT_EQ(std::pair(again.engine.IsRpn(), again.engine.prefs.StackDepth()), std::pair(c.rpn, c.depth));
    }
}

// A database the user may not write (a write-protected file, or one in a write-protected folder)
// or not even read is trouble, not damage: the user is told once that nothing will be saved, the
// run goes on in memory without the first run's question (on the saved calculator where it could
// be read), and the folder stays byte for byte as
// it was (SQLite's companion files included). Mode bits do not stop root, so as root the run
// happens in a child that has given up its rights, and it writes what it saw to a pipe.
TEST_F(SessionStoreTest, ADatabaseThatMayNotBeWrittenIsLeftAsItWas) {
    // file, folder, the X the run starts on
    const std::tuple<const char*, std::filesystem::perms, std::filesystem::perms, const char*> cases[] = {
        {"a write-protected file", std::filesystem::perms(0444), std::filesystem::perms(0755), "42"},
        {"a write-protected folder", std::filesystem::perms(0666), std::filesystem::perms(0555), "42"},
        {"a file that may not be read", std::filesystem::perms::none, std::filesystem::perms(0777), "0"},
    };
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    for (const auto& [name, file, shelf, x] : cases) {
        SCOPED_TRACE(name);
        const std::filesystem::path path = folder / "shelf" / "brinto.db";
        std::filesystem::remove_all(folder / "shelf");
        std::filesystem::create_directories(folder / "shelf");
        {
            FrontEnd maker(InputMethod::Rpn);
            maker.store.Start(StoreLocation::File(path));
            maker.session.CharacterKey('4');
            maker.session.CharacterKey('2');
            ASSERT_TRUE(maker.store.Save());
        }
        std::filesystem::permissions(path, file);
        std::filesystem::permissions(folder / "shelf", shelf);
        const std::string before = test::Snapshot(folder / "shelf");
        int report[2];
        ASSERT_EQ(pipe(report), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) _exit(2);
            FrontEnd run;
            const StartOutcome outcome = run.store.Start(StoreLocation::File(path));
            const bool saved = run.store.Save();
            std::string seen = std::to_string(outcome.trouble) + std::to_string(run.host.asked) +
                               std::to_string(saved) + " " + std::to_string(static_cast<int>(run.engine.X())) + "\n";
            for (const std::string& told : run.host.troubles) seen += told + "\n";
            _exit(write(report[1], seen.data(), seen.size()) == static_cast<ssize_t>(seen.size()) ? 0 : 1);
        }
        close(report[1]);
        std::string seen;
        char buffer[512];
        for (ssize_t n; (n = read(report[0], buffer, sizeof buffer)) > 0;) seen.append(buffer, n);
        close(report[0]);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        if (WIFEXITED(status) && WEXITSTATUS(status) == 2) GTEST_SKIP() << "cannot give up root's rights here";
        // Trouble, told in one line; no first-run question; the run saves into memory.
        EXPECT_TRUE(seen.starts_with("101 " + std::string(x) + "\n")) << seen;
        EXPECT_EQ(std::count(seen.begin(), seen.end(), '\n'), 2) << seen;
        EXPECT_TRUE(seen.ends_with("; the calculator runs in memory and nothing will be saved\n")) << seen;
        EXPECT_EQ(seen.find("damaged"), std::string::npos) << seen;  // trouble is never called damage
        EXPECT_TRUE(test::Snapshot(folder / "shelf") == before) << test::Snapshot(folder / "shelf").substr(0, 300);
        std::filesystem::permissions(folder / "shelf", std::filesystem::perms(0755));
        std::filesystem::permissions(path, std::filesystem::perms(0644));
        FrontEnd later;  // nothing was lost
        later.store.Start(StoreLocation::File(path));
        EXPECT_EQ(later.engine.X(), 42.0);
    }
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
