// Every example the calculator's documents and transcripts show, run through brinto-cli by one
// runner. Each source is read into cases of a command and the checks on what it printed:
//
// - tests/cli/transcripts/*.txt, data files of cases:
//     $ TOKENS...        run `brinto-cli --json --memory TOKENS` ($! runs the arguments as given;
//                        "double quotes" hold an argument with blanks)
//     < TEXT             a line of standard input
//     exit = N           the exit status (default 0); a refused run (2) prints nothing on standard
//                        output and one line on standard error, whatever it is checked for
//     stderr ~ TEXT      standard error contains TEXT
//     stdout = TEXT      standard output, without its last newline
//     stdout ~ TEXT      standard output contains TEXT
//     PATH = VALUE       a field of the JSON report ("stack.0.text = 5."), arrays as [1,2]
//     stderr lines = N   standard error has N lines
//     {dir}/FILE = present, or absent
//   A transcript's runs share a fresh folder, {dir} in their arguments and checks, that is their
//   home and holds their XDG folders: runs on the default file or one named with --db keep their
//   calculator from one to the next, and no real home is touched. {source} is the source tree.
// - the README's tour: an indented "$ COMMAND" line that mentions brinto-cli and the indented lines
//   it prints (standard output and error as a terminal shows them). The commands run one after the
//   other under /bin/sh with a fresh home folder, so the tour's calculator carries over.
// - the user guide's worked examples, marked up as
//     <pre class="example" data-args="rpn 2 enter 3 +" data-expect="5.">
//     Keys:    RPN 2 ENTER 3 +
//     Display: 5.
//     </pre>
//   data-args are brinto-cli's tokens (run with --memory), data-expect its printed line; the Keys
//   line must be the faces of those keys, so the keys a reader presses are the keys tested.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>

#include "cli_runner.h"
#include "engine/key_table.h"
#include "engine/keyboards.h"
#include "guide/guide_sections.h"
#include "session/key_legends.h"
#include "temp_folder.h"

namespace brinto::test {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = BRINTO_SOURCE_DIR;

struct Case {
    std::string where;
    std::vector<std::string> argv;  // brinto-cli's arguments, or a shell line's
    std::string input;
    std::vector<std::pair<std::string, std::string>> checks;
};

// Words split at blanks; "double quotes" keep blanks within one.
std::vector<std::string> Words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string w; in >> std::quoted(w);) words.push_back(w);
    return words;
}

std::string Trim(const std::string& s) {
    const auto b = s.find_first_not_of(' ');
    return b == std::string::npos ? "" : s.substr(b, s.find_last_not_of(' ') - b + 1);
}

std::vector<Case> ReadTranscript(const fs::path& file) {
    std::ifstream in(file);
    std::vector<Case> cases;
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        if (line.empty() || line[0] == '#') continue;
        const std::string where = file.filename().string() + ":" + std::to_string(number);
        if (line[0] == '$') {
            const bool asGiven = line.rfind("$!", 0) == 0;
            cases.push_back({where, asGiven ? std::vector<std::string>{} : std::vector<std::string>{"--json", "--memory"}, {}, {}});
            for (const std::string& w : Words(line.substr(asGiven ? 2 : 1))) cases.back().argv.push_back(w);
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

void RunCase(const Case& c, const RunResult& r) {
    SCOPED_TRACE(c.where);
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
        } else if (path == "stderr lines") {
            EXPECT_EQ(std::to_string(std::count(r.err.begin(), r.err.end(), '\n')), value) << r.err;
        } else if (path.starts_with("/")) {
            EXPECT_EQ(fs::exists(path) ? "present" : "absent", value) << path;
        } else {
            if (!json) json = ParseJson(r.out);
            ASSERT_TRUE(json.has_value()) << "not JSON: " << r.out << r.err;
            const Json* node = Find(*json, path);
            ASSERT_NE(node, nullptr) << "no field " << path;
            EXPECT_EQ(Compact(*node), value) << path;
        }
    }
    EXPECT_EQ(r.exitCode, expectedExit) << r.err;
    if (expectedExit == 2) {  // a refused run: one line that says why, and no answer
        EXPECT_EQ(r.out, "");
        EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
    }
}

std::string Placed(std::string text, const std::string& dir) {
    const std::pair<std::string, std::string> places[] = {{"{dir}", dir}, {"{source}", kSource.string()}};
    for (const auto& [name, place] : places) {
        for (std::size_t at; (at = text.find(name)) != std::string::npos;) text.replace(at, name.size(), place);
    }
    return text;
}

TEST(Examples, EveryTranscriptCaseHolds) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(kSource / "tests/cli/transcripts")) {
        if (entry.path().extension() != ".txt") continue;
        const TempFolder folder;
        const std::string dir = folder.path().string();
        const std::vector<std::string> environment = {"HOME=" + dir + "/home", "XDG_DATA_HOME=" + dir + "/data",
                                                      "XDG_CONFIG_HOME=" + dir + "/config"};
        for (Case c : ReadTranscript(entry.path())) {
            for (std::string& a : c.argv) a = Placed(a, dir);
            for (auto& check : c.checks) check.first = Placed(check.first, dir);
            RunCase(c, RunCli(c.argv, c.input, environment));
            ++count;
        }
    }
    EXPECT_GT(count, 100);
}

TEST(Examples, EveryReadmeExamplePrintsWhatTheReadmeShows) {
    std::ifstream in(kSource / "README.md");
    std::vector<Case> examples;
    bool open = false;  // the last example still takes output lines
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        const bool indented = line.rfind("    ", 0) == 0;
        if (line.rfind("    $ ", 0) == 0) {
            open = line.find("brinto-cli") != std::string::npos;
            if (open) examples.push_back({"README.md:" + std::to_string(number), {line.substr(6)}, {}, {{"stdout", ""}}});
        } else if (indented && open) {
            std::string& expect = examples.back().checks[0].second;
            expect += (expect.empty() ? "" : "\n") + line.substr(4);
        } else {
            open = false;
        }
    }
    ASSERT_GE(examples.size(), 10u) << "the README's examples were not found";
    TempFolder home;
    const std::string bin = fs::path(BRINTO_CLI_PATH).parent_path().string();
    for (const Case& e : examples) {
        // Only brinto-cli's folder before the system's on PATH, and nothing of this environment.
        const RunResult r = RunProgram({"/usr/bin/env", "-i", "HOME=" + home.path().string(),
                                 "XDG_DATA_HOME=" + (home / "data").string(),
                                 "XDG_CONFIG_HOME=" + (home / "config").string(), "LC_ALL=C",
                                 "PATH=" + bin + ":/usr/bin:/bin", "/bin/sh", "-c",
                                 "exec 2>&1; cd \"$HOME\" && " + e.argv[0]});
        // The tour shows what a run prints, whatever its status.
        RunCase(e, {0, r.out.substr(0, r.out.find_last_not_of('\n') + 1) + "\n", r.err});
    }
}

std::string Unescape(std::string text) {
    const std::pair<std::string_view, std::string_view> entities[] = {
        {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}};
    for (const auto& [entity, plain] : entities) {
        for (std::size_t at; (at = text.find(entity)) != std::string::npos;) text.replace(at, entity.size(), plain);
    }
    return text;
}

std::string Attribute(const std::string& tag, const std::string& name) {
    const std::string key = name + "=\"";
    const std::size_t start = tag.find(key);
    if (start == std::string::npos) return {};
    const std::size_t end = tag.find('"', start + key.size());
    return Unescape(tag.substr(start + key.size(), end - start - key.size()));
}

// What the reader presses for brinto-cli's tokens: key faces, typed numbers, keyboard changes.
std::string KeysOf(const std::vector<std::string>& args) {
    std::string keys;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const std::size_t digit = a[0] == '-' ? 1 : 0;
        std::string shown = "?" + a + "?";
        if (a == "--pref") {
            ++i;
            continue;
        } else if (a.rfind("kb:", 0) == 0) {
            shown = "[" + std::string(kKeyboardNames.at(std::stoi(a.substr(3)))) + "]";
        } else if (digit < a.size() && (std::isdigit(static_cast<unsigned char>(a[digit])) || a[digit] == '.')) {
            shown = a;
        } else if (const auto id = KeyByName(a); id && FindLegend(*id)) {
            shown = std::string(FindLegend(*id)->legend);
        }
        keys += (keys.empty() ? "" : " ") + shown;
    }
    return keys;
}

std::string ReadGuide() { return ReadFile(kSource / "docs/Brinto.htm"); }

TEST(Examples, EveryGuideExamplePrintsWhatTheGuideSays) {
    const std::string guide = ReadGuide();
    int count = 0;
    constexpr std::string_view kOpen = "<pre class=\"example\"";
    for (std::size_t at = 0; (at = guide.find(kOpen, at)) != std::string::npos; ++count) {
        const std::size_t tagEnd = guide.find('>', at);
        const std::size_t close = guide.find("</pre>", tagEnd);
        const std::string tag = guide.substr(at, tagEnd - at);
        const std::string body = Unescape(guide.substr(tagEnd + 1, close - tagEnd - 1));
        const std::vector<std::string> args = Words(Attribute(tag, "data-args"));
        const std::string expect = Attribute(tag, "data-expect");
        const Case example{"docs/Brinto.htm:" + std::to_string(1 + std::count(guide.begin(), guide.begin() + at, '\n')),
                           {}, {}, {{"stdout", expect}}};
        SCOPED_TRACE(example.where);
        ASSERT_FALSE(args.empty());
        std::vector<std::string> argv = {"--memory"};
        argv.insert(argv.end(), args.begin(), args.end());
        RunCase(example, RunCli(argv));
        EXPECT_NE(body.find("Keys:    " + KeysOf(args) + "\n"), std::string::npos)
            << "expected the line: Keys:    " << KeysOf(args);
        EXPECT_NE(body.find("Display: " + expect + "\n"), std::string::npos);
        at = close;
    }
    EXPECT_GE(count, 12);
}

TEST(Guide, GeneratedSectionsAndAnchorsAreCurrent) {
    const std::string guide = ReadGuide();
    ASSERT_FALSE(guide.empty());
    std::string problem;
    const auto refreshed = RefreshGuide(guide, &problem);
    ASSERT_TRUE(refreshed.has_value()) << problem;
    EXPECT_TRUE(*refreshed == guide) << "docs/Brinto.htm differs from the key tables: run `make guide`";
    for (const char* section : {"keyboards", "hardware-keys", "constants", "appearance"}) {
        EXPECT_NE(guide.find(std::string("<!-- generated:") + section + " -->"), std::string::npos) << section;
    }
    // The anchors that the help commands of the program's windows open.
    for (const char* anchor : {"Main_Contents", "about", "amortization", "cashflow", "constants", "keyboard", "prefs",
                               "rpnstack", "statistical", "tvm", "userregisters", "comparison", "enterdate",
                               "durations", "schedule", "colors"}) {
        EXPECT_NE(guide.find(std::string("<a name=\"") + anchor + "\""), std::string::npos) << anchor;
    }
    EXPECT_NE(guide.find(">Comparison of Input Methods<"), std::string::npos);
}

}  // namespace
}  // namespace brinto::test
