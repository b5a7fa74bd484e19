// brinto-cli keeps its calculator in the database file between runs: --db, the default file under
// the XDG folders, --memory, --import-legacy, and damaged files. Every run here gets its own
// temporary XDG and home folders, so the real home directory is never touched.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <map>

#include "store_test_support.h"

namespace brinto {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

struct CliRun {
    int status = -1;
    std::string out;
    std::string err;
};

// Runs brinto-cli with `args`; the environment gets HOME, XDG_DATA_HOME and XDG_CONFIG_HOME from
// `env` (a variable given as "" is removed), and the standard input is empty.
CliRun RunCli(const TempFolder& folder, const std::vector<std::string>& args, const std::map<std::string, std::string>& env) {
    const auto out = folder / "stdout.txt";
    const auto err = folder / "stderr.txt";
    const pid_t child = fork();
    if (child == 0) {
        for (const auto& [name, value] : env) {
            if (value.empty()) {
                unsetenv(name.c_str());
            } else {
                setenv(name.c_str(), value.c_str(), 1);
            }
        }
        const int in = open("/dev/null", O_RDONLY);
        const int o = open(out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        const int e = open(err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (in < 0 || o < 0 || e < 0 || dup2(in, 0) < 0 || dup2(o, 1) < 0 || dup2(e, 2) < 0) _exit(127);
        std::vector<char*> argv;
        argv.push_back(const_cast<char*>(BRINTO_CLI_PATH));
        for (const std::string& a : args) argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        execv(BRINTO_CLI_PATH, argv.data());
        _exit(127);
    }
    CliRun run;
    int status = 0;
    if (child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status)) run.status = WEXITSTATUS(status);
    run.out = ReadFile(out);
    run.err = ReadFile(err);
    return run;
}

// A scratch world: its own home and XDG folders.
class CliPersistence : public ::testing::Test {
protected:
    std::map<std::string, std::string> Env() const {
        return {{"HOME", (folder / "home").string()},
                {"XDG_DATA_HOME", (folder / "data").string()},
                {"XDG_CONFIG_HOME", (folder / "config").string()}};
    }
    CliRun Cli(const std::vector<std::string>& args) const { return RunCli(folder, args, Env()); }
    std::filesystem::path DefaultDatabase() const { return folder / "data" / "brinto" / "brinto.db"; }

    void SetUp() override { std::filesystem::create_directories(folder / "home"); }

    TempFolder folder;
};

const std::string kRpnExport =
    "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\ZEB\\Brinto]\r\n"
    "\"saved_0\"=hex:06,00,01,00,08\r\n";

TEST_F(CliPersistence, DbFileCarriesTheCalculatorFromRunToRun) {
    const std::string db = (folder / "calc.db").string();
    EXPECT_EQ(Cli({"--db", db, "12", "+"}).out, "12.\n");
    const CliRun second = Cli({"--db", db, "3", "="});
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(second.out, "15.\n");
    EXPECT_EQ(second.err, "");
    EXPECT_FALSE(std::filesystem::exists(DefaultDatabase()));
}

TEST_F(CliPersistence, WithoutOptionsTheDefaultFileIsShared) {
    Cli({"40", "+"});
    EXPECT_TRUE(std::filesystem::is_regular_file(DefaultDatabase()));
    EXPECT_EQ(Cli({"2", "="}).out, "42.\n");
    // The same file, named explicitly, is the same calculator.
    EXPECT_EQ(Cli({"--db", DefaultDatabase().string(), "+", "1", "="}).out, "43.\n");
    EXPECT_EQ(folder.Entries("home"), std::vector<std::string>{});
}

TEST_F(CliPersistence, WithoutXdgVariablesTheFileLivesUnderHome) {
    auto env = Env();
    env["XDG_DATA_HOME"] = "";
    env["XDG_CONFIG_HOME"] = "";
    RunCli(folder, {"5"}, env);
    EXPECT_TRUE(std::filesystem::is_regular_file(folder / "home" / ".local" / "share" / "brinto" / "brinto.db"));
}

TEST_F(CliPersistence, MemoryRunsReadAndWriteNothing) {
    Cli({"7", "+"});
    const std::string before = ReadFile(DefaultDatabase());
    EXPECT_EQ(Cli({"--memory", "1", "="}).out, "1.\n");  // not 8: nothing was loaded
    EXPECT_TRUE(ReadFile(DefaultDatabase()) == before);
    EXPECT_EQ(Cli({"1", "="}).out, "8.\n");

    TempFolder other;
    const CliRun run = RunCli(other, {"--memory", "3"}, {{"HOME", other.path().string()},
                                                     {"XDG_DATA_HOME", ""}, {"XDG_CONFIG_HOME", ""}});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(other.Entries(), (std::vector<std::string>{"stderr.txt", "stdout.txt"}));
}

TEST_F(CliPersistence, ABadTokenOrOptionSavesNothing) {
    const std::string db = (folder / "calc.db").string();
    EXPECT_EQ(Cli({"--db", db, "--bogus", "5"}).status, 2);
    EXPECT_EQ(Cli({"--import-legacy"}).status, 2);
    EXPECT_FALSE(std::filesystem::exists(db));  // options are checked before the file is opened
    EXPECT_FALSE(std::filesystem::exists(DefaultDatabase()));

    Cli({"--db", db, "9", "+"});
    // The keys before the bad token ran, but the run ends as if it had not started.
    EXPECT_EQ(Cli({"--db", db, "5", "=", "nonsense"}).status, 2);
    EXPECT_EQ(Cli({"--db", db, "1", "="}).out, "10.\n");
}

TEST_F(CliPersistence, ImportLegacyFillsTheDatabase) {
    WriteFile(folder / "old.reg", kRpnExport);
    const std::string db = (folder / "calc.db").string();
    const CliRun import = Cli({"--db", db, "--import-legacy", (folder / "old.reg").string(), "--json"});
    EXPECT_EQ(import.status, 0) << import.err;
    // Version 6 preferences: RPN, stack depth 8, the rest as packed from zeros.
    EXPECT_NE(import.out.find("\"prefs\":[7,0,33,0,0,0,0]"), std::string::npos) << import.out.substr(0, 80);
    EXPECT_NE(Cli({"--db", db, "--json"}).out.find("\"prefs\":[7,0,33,0,0,0,0]"), std::string::npos);
}

TEST_F(CliPersistence, AMalformedLegacyFileImportsNothingAndSaysWhy) {
    WriteFile(folder / "old.reg", "REGEDIT4\r\n[HKEY_CURRENT_USER\\Software\\ZEB\\Brinto]\r\n\"saved_0\"=hex:6g\r\n");
    const std::string db = (folder / "calc.db").string();
    Cli({"--db", db, "9", "+"});
    const CliRun run = Cli({"--db", db, "--import-legacy", (folder / "old.reg").string(), "1", "="});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    EXPECT_NE(run.err.find("line 3"), std::string::npos) << run.err;
    EXPECT_EQ(Cli({"--db", db, "1", "="}).out, "10.\n");  // the calculator is as it was
}

TEST_F(CliPersistence, AFirstRunPicksUpTheExportBesideTheSettings) {
    std::filesystem::create_directories(folder / "config" / "brinto");
    WriteFile(folder / "config" / "brinto" / "Brinto.reg", kRpnExport);
    const CliRun first = Cli({"--json"});
    EXPECT_NE(first.out.find("\"prefs\":[7,0,33,0,0,0,0]"), std::string::npos);
    // Later runs keep their own settings even when the export changes.
    WriteFile(folder / "config" / "brinto" / "Brinto.reg", "garbage");
    const CliRun second = Cli({"--json"});
    EXPECT_NE(second.out.find("\"prefs\":[7,0,33,0,0,0,0]"), std::string::npos);
    EXPECT_EQ(second.err, "");
}

TEST_F(CliPersistence, ImportIntoMemoryLastsOneRun) {
    WriteFile(folder / "old.reg", kRpnExport);
    const CliRun run = Cli({"--memory", "--import-legacy", (folder / "old.reg").string(), "--json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("\"prefs\":[7,0,33,0,0,0,0]"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder / "data"));
}

TEST_F(CliPersistence, ADamagedFileIsKeptAsideWithOneWarning) {
    const auto db = folder / "calc.db";
    WriteFile(db, "this is not a database, but it is the user's file");
    const CliRun run = Cli({"--db", db.string(), "6", "+"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "6.\n");
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    EXPECT_NE(run.err.find(".damaged-"), std::string::npos) << run.err;
    EXPECT_EQ(Cli({"--db", db.string(), "1", "="}).out, "7.\n");
}

}  // namespace
}  // namespace brinto
