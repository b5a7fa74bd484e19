// brinto-cli's runs on a database file that a transcript cannot show (the options --db, --memory and
// --import-legacy are in the transcripts): what a run says and answers when the file is damaged or
// in trouble, runs in parallel, and preferences given for a run. Every test gets its own
// home and XDG folders, so the real home directory is never touched.
#include <sys/stat.h>

#include <algorithm>
#include <sstream>

#include "cli/cli.h"
#include "cli_runner.h"
#include "temp_folder.h"

namespace brinto::test {
namespace {

class CliPersistence : public ::testing::Test {
protected:
    RunResult Cli(const std::vector<std::string>& args) const {
        return RunCli(args, "", {"HOME=" + (folder / "home").string(), "XDG_DATA_HOME=" + (folder / "data").string(),
                                 "XDG_CONFIG_HOME=" + (folder / "config").string()});
    }
    std::string Db() const { return (folder / "calc.db").string(); }

    TempFolder folder;
};

// A damaged file is kept aside with one warning and the run goes on afresh. Trouble with the file,
// met at the start (here a pipe) or at the save (a full disk): the run goes on in memory, one line
// says so, and the exit status is 1. (What each leaves on disk is the store's and session's test.)
TEST_F(CliPersistence, DamageAndTroubleSayOneLine) {
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const std::string damaged = (folder / "damaged.db").string();
    Cli({"--db", damaged, "9", "+"});
    std::string bytes = ReadFile(damaged);
    ASSERT_GT(bytes.size(), 8192u);
    std::fill(bytes.begin() + 4096, bytes.end(), '\x5A');
    WriteFile(damaged, bytes);
    Cli({"--db", Db(), "9", "+"});
    const std::tuple<const char*, std::string, rlim_t, int, const char*> cases[] = {  // --db, file size, exit
        {"a damaged file", damaged, RLIM_INFINITY, 0, ".damaged-"},
        {"a pipe", (folder / "pipe").string(), RLIM_INFINITY, 1, "nothing will be saved"},
        {"a full disk", Db(), 1024, 1, "nothing will be saved"},
    };
    for (const auto& [name, db, fileSize, exit, says] : cases) {
        SCOPED_TRACE(name);
        const RunResult run = [&] {
            const FileSizeLimit limit(fileSize);
            return Cli({"--db", db, "6", "+"});
        }();
        EXPECT_EQ(std::tuple(run.exitCode, run.out), std::tuple(exit, "6.\n"));
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
        EXPECT_NE(run.err.find(says), std::string::npos) << run.err;
    }
    EXPECT_EQ(Cli({"--db", Db(), "1", "="}).out, "10.\n");
    EXPECT_EQ(Cli({"--db", damaged, "1", "="}).out, "7.\n");
}

// Runs in parallel take turns: two loops of brinto-cli adding to one register lose no update.
// (A window typing at the same time would share the number being typed with them: the keys of
// every program go to one calculator, so only whole runs can be counted on.)
TEST_F(CliPersistence, ParallelRunsLoseNoUpdate) {
    Cli({"--db", Db(), "rpn", "0", "sto", "0", "5"});
    constexpr int kRuns = 60;
    const std::string loop = "for i in $(seq " + std::to_string(kRuns) + "); do '" BRINTO_CLI_PATH "' --db '" +
                             Db() + "' 1 sto + 0 5 >/dev/null || echo failed; done";
    const RunResult loops = RunProgram({"/bin/sh", "-c", "(" + loop + ") & (" + loop + ") & wait"});
    EXPECT_EQ(std::tuple(loops.exitCode, loops.out), std::tuple(0, ""));
    EXPECT_EQ(Cli({"--db", Db(), "rcl", "0", "5"}).out, std::to_string(2 * kRuns) + ".  CFj\n");
}

// --pref holds for the run in both modes; the saved preferences keep what they were.
TEST_F(CliPersistence, GivenPreferencesAreNotSavedInEitherMode) {
    for (const bool interactive : {false, true}) {
        SCOPED_TRACE(interactive ? "interactive" : "script");
        const std::string db = Db() + (interactive ? "i" : "s");
        std::istringstream in("1 +\n");
        std::ostringstream out, err;
        EXPECT_EQ(brinto::RunCli({"--db", db, "--pref", "6=1"}, in, interactive, out, err), 0) << err.str();
        const std::string saved = Cli({"--db", db, "--json"}).out;
        EXPECT_NE(saved.find("\"prefs\":[7,0,656,2,0,0,0]"), std::string::npos) << saved.substr(0, 80);
    }
}

}  // namespace
}  // namespace brinto::test
