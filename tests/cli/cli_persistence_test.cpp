// brinto-cli keeps its calculator in the database file between runs: --db, the default file under
// the XDG folders, --memory, --import-legacy, and damaged files. Every run gets its own temporary
// home and XDG folders, so the real home directory is never touched.
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <sstream>

#include "cli/cli.h"
#include "engine/function_ids.h"
#include "session/session_store.h"

#include "calculator/assembly.h"
#include "temp_folder.h"

namespace brinto::test {
namespace {

struct CliRun {
    int status = -1;
    std::string out;
    std::string err;
};

const std::string kRpnExport = "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\ZEB\\Brinto]\r\n"
                               "\"saved_0\"=hex:06,00,01,00,08\r\n";
const std::string kRpnPrefs = "\"prefs\":[7,0,33,0,0,0,0]";  // RPN, stack depth 8

class CliPersistence : public ::testing::Test {
protected:
    // Runs brinto-cli with `args` in the scratch world, on an empty standard input; `limits` are
    // shell commands run first (a ulimit).
    CliRun Cli(const std::vector<std::string>& args, const std::string& limits = "") const {
        std::string command = limits + "HOME='" + (folder / "home").string() + "' XDG_DATA_HOME='" +
                              (folder / "data").string() + "' XDG_CONFIG_HOME='" +
                              (folder / "config").string() + "' '" BRINTO_CLI_PATH "'";
        for (const std::string& arg : args) command += " '" + arg + "'";
        command += " </dev/null >'" + (folder / "out").string() + "' 2>'" + (folder / "err").string() + "'";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadFile(folder / "out"),
                ReadFile(folder / "err")};
    }
    std::string Db() const { return (folder / "calc.db").string(); }
    std::filesystem::path DefaultDatabase() const { return folder / "data" / "brinto" / "brinto.db"; }

    TempFolder folder;
};

TEST_F(CliPersistence, RunsShareTheFileTheyUse) {
    EXPECT_EQ(Cli({"--memory", "7", "+"}).out, "7.\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "data"));  // --memory touches no file

    EXPECT_EQ(Cli({"--db", Db(), "12", "+"}).out, "12.\n");
    const CliRun second = Cli({"--db", Db(), "3", "="});
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(second.out, "15.\n");
    EXPECT_EQ(second.err, "");
    EXPECT_FALSE(std::filesystem::exists(DefaultDatabase()));

    Cli({"40", "+"});
    EXPECT_EQ(Cli({"2", "="}).out, "42.\n");
    const std::string before = ReadFile(DefaultDatabase());
    EXPECT_EQ(Cli({"--memory", "1", "="}).out, "1.\n");  // not 43: nothing was loaded
    EXPECT_TRUE(ReadFile(DefaultDatabase()) == before);
    // The default file, named explicitly, is the same calculator.
    EXPECT_EQ(Cli({"--db", DefaultDatabase().string(), "+", "1", "="}).out, "43.\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "home"));
}

TEST_F(CliPersistence, ABadTokenOrOptionSavesNothing) {
    EXPECT_EQ(Cli({"--db", Db(), "--bogus", "5"}).status, 2);
    EXPECT_EQ(Cli({"--import-legacy"}).status, 2);
    EXPECT_FALSE(std::filesystem::exists(Db()));  // options are checked before the file is opened
    EXPECT_FALSE(std::filesystem::exists(DefaultDatabase()));

    Cli({"--db", Db(), "9", "+"});
    // The keys before the bad token ran, but the run ends as if it had not started.
    EXPECT_EQ(Cli({"--db", Db(), "5", "=", "nonsense"}).status, 2);
    EXPECT_EQ(Cli({"--db", Db(), "1", "="}).out, "10.\n");
}

TEST_F(CliPersistence, ImportLegacyFillsTheDatabaseOrNothing) {
    const std::string file = (folder / "old.reg").string();
    WriteFile(file, "REGEDIT4\r\n[HKEY_CURRENT_USER\\Software\\ZEB\\Brinto]\r\n\"saved_0\"=hex:6g\r\n");
    Cli({"--db", Db(), "9", "+"});
    const CliRun bad = Cli({"--db", Db(), "--import-legacy", file, "1", "="});
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.out, "");
    EXPECT_EQ(std::count(bad.err.begin(), bad.err.end(), '\n'), 1) << bad.err;
    EXPECT_NE(bad.err.find("line 3"), std::string::npos) << bad.err;
    EXPECT_EQ(Cli({"--db", Db(), "1", "="}).out, "10.\n");  // the calculator is as it was
    EXPECT_EQ(Cli({"--db", Db(), "--import-legacy", (folder / "none.reg").string()}).status, 1);

    WriteFile(file, kRpnExport);
    const CliRun good = Cli({"--db", Db(), "--import-legacy", file, "--json"});
    EXPECT_EQ(good.status, 0) << good.err;
    EXPECT_NE(good.out.find(kRpnPrefs), std::string::npos) << good.out.substr(0, 80);
    EXPECT_NE(Cli({"--db", Db(), "--json"}).out.find(kRpnPrefs), std::string::npos);
    // Into memory, the import lasts one run.
    EXPECT_NE(Cli({"--memory", "--import-legacy", file, "--json"}).out.find(kRpnPrefs), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder / "data"));
}

TEST_F(CliPersistence, AFirstRunPicksUpTheExportBesideTheSettings) {
    std::filesystem::create_directories(folder / "config" / "brinto");
    WriteFile(folder / "config" / "brinto" / "Brinto.reg", kRpnExport);
    EXPECT_NE(Cli({"--json"}).out.find(kRpnPrefs), std::string::npos);
}

TEST_F(CliPersistence, ADamagedFileIsKeptAsideWithOneWarning) {
    Cli({"--db", Db(), "9", "+"});
    std::string damaged = ReadFile(Db());
    ASSERT_GT(damaged.size(), 8192u);
    std::fill(damaged.begin() + 4096, damaged.end(), '\x5A');
    WriteFile(Db(), damaged);
    const CliRun run = Cli({"--db", Db(), "6", "+"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "6.\n");
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    EXPECT_NE(run.err.find(".damaged-"), std::string::npos) << run.err;
    EXPECT_EQ(Cli({"--db", Db(), "1", "="}).out, "7.\n");
}

// Trouble with the file, met at the start (here a pipe; the store tells each kind apart) or at
// the save (a full disk), and a file that is not a Brinto database (someone's shell settings, a
// picture, another program's database, a link to one of them): the run goes on in memory, one line
// says so, the exit status is 1, and nothing is touched, byte for byte.
TEST_F(CliPersistence, TroubleAndForeignFilesSayOneLineExitOneAndTouchNothing) {
    const std::filesystem::path files = folder / "files";
    std::filesystem::create_directories(files);
    ASSERT_EQ(mkfifo((files / "pipe").c_str(), 0600), 0);
    WriteFile(files / ".bashrc", "export PATH=$HOME/bin:$PATH\n");
    WriteFile(files / "photo.png", std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) + std::string(2000, '\x7F'));
    std::filesystem::create_symlink(files / ".bashrc", files / "link.db");
    Cli({"--db", Db(), "9", "+"});
    // Another program's database: a sound SQLite file with the same tables, but another mark.
    std::string other = ReadFile(Db());
    other.replace(68, 4, "Othr");
    WriteFile(files / "other.db", other);
    const std::tuple<const char*, std::string, std::string> cases[] = {  // name, --db, shell limits
        {"a pipe", (files / "pipe").string(), ""},
        {"a full disk", Db(), "ulimit -f 1; "},
        {"a text file", (files / ".bashrc").string(), ""},
        {"a picture", (files / "photo.png").string(), ""},
        {"another program's database", (files / "other.db").string(), ""},
        {"a link to a text file", (files / "link.db").string(), ""},
    };
    for (const auto& [name, db, limits] : cases) {
        SCOPED_TRACE(name);
        const std::string before = ReadFile(Db());
        const std::string others = Snapshot(files);
        const CliRun run = Cli({"--db", db, "6", "+"}, limits);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "6.\n");
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
        EXPECT_NE(run.err.find("nothing will be saved"), std::string::npos) << run.err;
        EXPECT_TRUE(ReadFile(Db()) == before);
        EXPECT_EQ(Snapshot(files), others);
    }
    EXPECT_TRUE(std::filesystem::is_fifo(files / "pipe"));
    EXPECT_EQ(Cli({"--db", Db(), "1", "="}).out, "10.\n");
}

// A window's side of the calculator, as the desktop program keeps it: every command kept at once.
struct WindowLike : Host {
    Engine engine{CalculatorFamilies()};
    Session session{engine, *this};
    SessionStore store{session};
    FixedPlatform clock;
    std::vector<std::string> troubles;

    explicit WindowLike(const std::string& db) {
        store.Start(StoreLocation::File(db));
        store.KeepEachCommand();
    }
    void Type(std::string_view keys) {
        for (const char c : keys) session.CharacterKey(static_cast<unsigned char>(c));
    }
    void ShowMessage(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
    void PutOnClipboard(std::string_view) override {}
    std::optional<std::string> ClipboardText() override { return std::nullopt; }
    void ReportTrouble(std::string_view text) override { troubles.emplace_back(text); }
    DateFields Now() const override { return clock.Now(); }
    std::string DateText(const DateFields& d, bool longForm) const override { return clock.DateText(d, longForm); }
    std::string TimeText(const DateFields& t) const override { return clock.TimeText(t); }
};

// One calculator, many doors: brinto-cli runs beside an open window build on its work and it on
// theirs, and nothing either did is lost when the window saves, looks again or closes.
TEST_F(CliPersistence, AWindowAndBrintoCliRunsAreOneCalculator) {
    WindowLike window(Db());
    window.Type("7");
    EXPECT_EQ(Cli({"--db", Db(), "rpn", "enter", "5", "+"}).out, "12.\n");  // on the window's 7
    EXPECT_EQ(Cli({"--db", Db(), "77", "sto", "0", "2"}).out, "77.\n");
    EXPECT_TRUE(window.store.Save());  // as when the window is deactivated: nothing of its own to write
    window.Type("2*");                 // on brinto-cli's 77
    EXPECT_EQ(window.engine.X(), 154.0);
    EXPECT_EQ(Cli({"--db", Db(), "rcl", "0", "2", "+"}).out, "231.\n");
    EXPECT_TRUE(window.store.Refresh());  // an idle window shows it
    EXPECT_EQ(window.engine.X(), 231.0);
    window.session.Undo();                // the step taken over is undone, and that is kept
    EXPECT_EQ(Cli({"--db", Db()}).out, "154.\n");
    window.store.Finish();
    EXPECT_EQ(Cli({"--db", Db(), "rcl", "0", "2"}).out, "77.  CFj\n");
    EXPECT_TRUE(window.troubles.empty());
}

// Runs in parallel take turns: two loops of brinto-cli adding to one register lose no update.
// (A window typing at the same time would share the number being typed with them: the keys of
// every program go to one calculator, so only whole runs can be counted on.)
TEST_F(CliPersistence, ParallelRunsLoseNoUpdate) {
    Cli({"--db", Db(), "rpn", "0", "sto", "0", "5"});
    constexpr int kRuns = 60;
    const std::string loop = "for i in $(seq " + std::to_string(kRuns) + "); do '" BRINTO_CLI_PATH "' --db '" +
                             Db() + "' 1 sto + 0 5 >/dev/null || echo failed; done";
    const std::string command = "(" + loop + ") & (" + loop + ") & wait";
    FILE* loops = popen(command.c_str(), "r");
    ASSERT_NE(loops, nullptr);
    std::string printed;
    char buffer[256];
    while (fgets(buffer, sizeof buffer, loops)) printed += buffer;
    EXPECT_EQ(pclose(loops), 0);
    EXPECT_EQ(printed, "");
    EXPECT_EQ(Cli({"--db", Db(), "rcl", "0", "5"}).out, std::to_string(2 * kRuns) + ".  CFj\n");
}

// The tape is one for every program on the file: a window's lines and brinto-cli's follow each
// other in the order they were made; it keeps the newest 1,000 lines and has its own Clear.
TEST_F(CliPersistence, TheTapeIsSharedAndKeepsItsNewestLines) {
    WindowLike window(Db());
    window.Type("2+3=");
    EXPECT_EQ(Cli({"--db", Db(), "4", "*", "5", "=", "undo"}).out, "5\n");  // back to typing the 5
    const std::vector<TapeLine> tape = window.store.Tape();
    std::vector<std::string> lines;
    for (const TapeLine& line : tape) lines.push_back(line.keys + " = " + line.result);
    EXPECT_EQ(lines, (std::vector<std::string>{"2 + = 2.", "3 = = 5.", "4 \u00D7 = 4.", "5 = = 20.", "Undo = 5"}));
    EXPECT_EQ(Cli({"--db", Db(), "--tape"}).out.substr(0, 29), "2 +                     = 2.\n");

    std::vector<std::string> presses = {"--db", Db()};
    presses.insert(presses.end(), 1003, "clx");
    Cli(presses);
    const std::vector<TapeLine> full = window.store.Tape();
    ASSERT_EQ(full.size(), kTapeLines);
    EXPECT_EQ(full.front().keys, "CLx");
    EXPECT_EQ(Cli({"--db", Db(), "--clear-tape", "--tape"}).out, "");
    EXPECT_TRUE(window.store.Tape().empty());
    EXPECT_EQ(Cli({"--memory", "--tape", "1", "+", "2", "="}).out,
              "1 +                     = 1.\n2 =                     = 3.\n");
}

// --pref holds for the run in both modes; the saved preferences keep what they were.
TEST_F(CliPersistence, GivenPreferencesAreNotSavedInEitherMode) {
    for (const bool interactive : {false, true}) {
        SCOPED_TRACE(interactive ? "interactive" : "script");
        const std::string db = Db() + (interactive ? "i" : "s");
        std::istringstream in("1 +\n");
        std::ostringstream out, err;
        const std::vector<std::string> args = {"--db", db, "--pref", "6=1"};
        EXPECT_EQ(brinto::RunCli(args, in, interactive, out, err), 0) << err.str();
        const std::string saved = Cli({"--db", db, "--json"}).out;
        EXPECT_NE(saved.find("\"prefs\":[7,0,656,2,0,0,0]"), std::string::npos) << saved.substr(0, 80);
    }
}

}  // namespace
}  // namespace brinto::test
