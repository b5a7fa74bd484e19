// End-to-end transcripts: each file under tests/cli/transcripts holds cases of
//   $ TOKENS...        run `brinto-cli --json --memory TOKENS` ($! runs the arguments as given)
//   < TEXT             a line of standard input
//   exit = N           the exit status (default 0)
//   stderr ~ TEXT      standard error contains TEXT
//   stdout = TEXT      standard output, without its last newline
//   stdout ~ TEXT      standard output contains TEXT
//   PATH = VALUE       a field of the JSON report ("stack.0.text = 5."), arrays as [1,2]
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli_runner.h"
#include "temp_folder.h"

namespace brinto::test {
namespace {

struct Case {
    std::string where;
    std::vector<std::string> args;
    std::string input;
    std::vector<std::pair<std::string, std::string>> checks;
};

std::vector<std::string> Words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string w; in >> w;) words.push_back(w);
    return words;
}

std::string Trim(const std::string& s) {
    const auto b = s.find_first_not_of(' ');
    const auto e = s.find_last_not_of(' ');
    return b == std::string::npos ? "" : s.substr(b, e - b + 1);
}

std::vector<Case> ReadCases(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::vector<Case> cases;
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        if (line.empty() || line[0] == '#') continue;
        const std::string where = file.filename().string() + ":" + std::to_string(number);
        if (line.rfind("$!", 0) == 0) {
            cases.push_back({where, Words(line.substr(2)), {}, {}});
        } else if (line[0] == '$') {
            cases.push_back({where, {"--json", "--memory"}, {}, {}});
            for (const std::string& w : Words(line.substr(1))) cases.back().args.push_back(w);
        } else if (!cases.empty() && line[0] == '<') {
            cases.back().input += line.substr(line.size() > 1 && line[1] == ' ' ? 2 : 1) + "\n";
        } else if (!cases.empty()) {
            const auto tilde = line.find(" ~ ");
            const auto eq = line.find(" = ");
            if (tilde != std::string::npos && (eq == std::string::npos || tilde < eq)) {
                cases.back().checks.emplace_back(Trim(line.substr(0, tilde)) + "~", line.substr(tilde + 3));
            } else if (eq != std::string::npos) {
                cases.back().checks.emplace_back(Trim(line.substr(0, eq)), line.substr(eq + 3));
            }
        }
    }
    return cases;
}

void RunCase(const Case& c) {
    SCOPED_TRACE(c.where);
    const RunResult r = RunCli(c.args, c.input);
    int expectedExit = 0;
    std::optional<Json> json;
    for (const auto& [path, value] : c.checks) {
        if (path == "exit") {
            expectedExit = std::stoi(value);
        } else if (path == "stderr~") {
            EXPECT_NE(r.err.find(value), std::string::npos) << "stderr: " << r.err;
        } else if (path == "stdout~") {
            EXPECT_NE(r.out.find(value), std::string::npos) << "stdout: " << r.out;
        } else if (path == "stdout") {
            EXPECT_EQ(r.out.substr(0, r.out.empty() ? 0 : r.out.size() - 1), value);
        } else {
            if (!json) json = ParseJson(r.out);
            ASSERT_TRUE(json.has_value()) << "not JSON: " << r.out << r.err;
            const Json* node = Find(*json, path);
            ASSERT_NE(node, nullptr) << "no field " << path;
            EXPECT_EQ(Compact(*node), value) << path;
        }
    }
    EXPECT_EQ(r.exitCode, expectedExit) << r.err;
}

TEST(Transcripts, EveryCaseHolds) {
    const std::filesystem::path folder = std::filesystem::path(BRINTO_SOURCE_DIR) / "tests/cli/transcripts";
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".txt") continue;
        for (const Case& c : ReadCases(entry.path())) {
            RunCase(c);
            ++count;
        }
    }
    EXPECT_GT(count, 0);
}

TEST(Cli, JsonReportIsOneObjectWithEveryField) {
    const RunResult r = RunCli({"--json", "--memory", "12"});
    ASSERT_EQ(r.exitCode, 0);
    const auto json = ParseJson(r.out);
    ASSERT_TRUE(json.has_value());
    for (const char* field : {"stack", "depth", "lastX", "entry", "status", "viewFlags", "engineFlags", "pending",
                              "repeatOperator", "parenDepth", "registers", "cashFlowCount", "groupCounts", "amort",
                              "prefs", "macro", "messages", "rejected", "clipboard"}) {
        EXPECT_NE(Find(*json, field), nullptr) << field;
    }
    EXPECT_EQ(Find(*json, "stack")->size(), 20u);
    EXPECT_EQ(Find(*json, "registers")->size(), 124u);
    EXPECT_EQ(Find(*json, "groupCounts")->size(), 100u);
    EXPECT_EQ(Compact(*Find(*json, "entry")), "12");
}

// A bad option or token is one line that says where it is and what was probably meant.
TEST(Cli, BadInputIsAOneLineErrorWithStatusTwo) {
    struct Bad {
        std::vector<std::string> args;
        std::string input;
        std::string says;
    };
    const std::vector<Bad> bad = {
        {{"bogus"}, "", "unknown token 1: bogus"},
        {{"--nonsense"}, "", "unknown option: --nonsense"},
        {{"#65536"}, "", "(#N takes N from 0 to 65535)"},
        {{"#-1"}, "", "unknown token 1: #-1"},
        {{"kb:9"}, "", "(kb:N takes N from 0 to 8)"},
        {{"2", "key:13"}, "", "unknown token 2: key:13 (key:N takes N from 1 to 12)"},
        {{"const:"}, "", "(const:N takes N from 0 to 32)"},
        {{"const:-1"}, "", "(const:N takes N from 0 to 32)"},
        {{"1", "sinn", "2"}, "", "unknown token 2: sinn (did you mean: sin, asin, bin)"},
        {{"swpa"}, "", "(did you mean: swap)"},
        {{"X^3"}, "", ""},  // an alias, in any case: no error
        {{}, "1 +\n3 sqrtt +\n", "unknown token 4 (line 2, column 3): sqrtt (did you mean: sqrt)"},
        // A malformed formula: the character where it goes wrong.
        {{"2+*3"}, "", "bad formula in token 1: 2+*3: at character 3, a number, a name or ( is missing"},
        {{"2+3*"}, "", "2+3*: at character 5, a number, a name or ( is missing at the end"},
        {{"sqrt(2"}, "", "at character 5, this ( is not closed"},
        {{"(1+2))"}, "", "at character 6, this ) closes no ("},
        {{"2(3)"}, "", "at character 2, an operator is missing here"},
        {{"foo(2)"}, "", "at character 1, no key is named foo"},
        {{"1+e"}, "", "at character 3, the key e takes no part in formulas"},
        {{"mod(7)"}, "", "at character 1, mod takes two values in parentheses"},
        {{"pi(1)"}, "", "at character 1, pi takes no value"},
        {{"1+2#"}, "", "at character 4, this character cannot stand in a formula"},
        {{std::string(200, '(') + "1" + std::string(200, ')')}, "", "the formula nests too deeply"},
        {{}, "rpn 1\n2 3+*4\n", "bad formula in token 4 (line 2, column 3): 3+*4: at character 3"},
        {{}, "rpn 2 enter Undoo\n", "unknown token 4 (column 13): Undoo (did you mean: undo)"},
        {{"qqqqqqq"}, "", "unknown token 1: qqqqqqq\n"},
        {{std::string(100000, '7') + "x"}, "", "unknown token 1: 777"},
        {{"--pref", "7=1"}, "", "bad --pref value"},
        {{"--now", "2020-13-01 00:00:00"}, "", "bad --now value"},
        {{"--now", "2024-02-30 10:00:00"}, "", "bad --now value"},
        {{"--now", "2023-02-29 10:00:00"}, "", "bad --now value"},
        {{"--now", "2024-02-29 10:00:00"}, "", ""},
        {{"--db"}, "", "option needs a value: --db"},
        {{"--json=yes"}, "", "option takes no value: --json=yes"},
        {{"--seed=x"}, "", "bad --seed value: x"},
        {{"--completion=tcsh"}, "", "(want bash, zsh or fish)"},
        {{"--", "--json"}, "", "token 1: --json"},  // after "--", a token (here a formula)
    };
    for (const Bad& b : bad) {
        std::vector<std::string> args = {"--memory"};
        args.insert(args.end(), b.args.begin(), b.args.end());
        SCOPED_TRACE(args.back().substr(0, 20));
        const RunResult r = RunCli(args, b.input);
        if (b.says.empty()) {
            EXPECT_EQ(r.exitCode, 0) << r.err;
            continue;
        }
        EXPECT_EQ(r.exitCode, 2);
        EXPECT_TRUE(r.out.empty());
        EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
        EXPECT_NE(r.err.find(b.says), std::string::npos) << r.err;
    }
}

// An answer that cannot be written (here to a full disk) is a failed run, whatever printed it.
TEST(Cli, OutputThatCannotBeWrittenFailsTheRun) {
    TempFolder folder;
    for (const std::string args : {"--help", "--memory --list-keys", "--memory --json 2 enter 3 +", "--memory 5"}) {
        SCOPED_TRACE(args);
        const std::string err = (folder.path() / "err").string();
        const int status = std::system(("'" BRINTO_CLI_PATH "' " + args + " >/dev/full 2>'" + err + "'").c_str());
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1) << status;
        EXPECT_EQ(ReadFile(err), "brinto-cli: cannot write standard output: No space left on device\n");
    }
}

TEST(Cli, BinaryJunkOnStandardInputIsRefused) {
    std::string junk;
    for (int i = 0; i < 4096; ++i) junk += static_cast<char>((i * 37 + 11) % 256);
    const RunResult r = RunCli({"--memory"}, junk);
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1);
}

TEST(Cli, PreferencesFromTheCommandLineHoldForOneRun) {
    char folder[] = "/tmp/brinto-cli-test-XXXXXX";
    ASSERT_NE(mkdtemp(folder), nullptr);
    const std::string db = std::string(folder) + "/brinto.db";
    ASSERT_EQ(RunCli({"--db", db, "--pref", "6=1", "5", "enter"}).exitCode, 0);
    const RunResult second = RunCli({"--db", db, "--json"});
    const auto json = ParseJson(second.out);
    ASSERT_TRUE(json.has_value()) << second.err;
    EXPECT_EQ(Compact(*Find(*json, "prefs.6")), "0");
    EXPECT_EQ(Compact(*Find(*json, "stack.0.value")), "5");  // the calculator itself was kept
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace brinto::test
