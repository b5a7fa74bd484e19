// The user guide, docs/Brinto.htm: its generated sections match the calculator's tables, every
// help anchor exists, and every worked example, run through brinto-cli, prints what the guide says.
//
// A worked example is marked up as
//   <pre class="example" data-args="rpn 2 enter 3 +" data-expect="5.">
//   Keys:    RPN 2 ENTER 3 +
//   Display: 5.
//   </pre>
// data-args are brinto-cli's tokens (the test adds --memory), data-expect its printed line; the
// Keys line must be the faces of those keys, so the keys a reader presses are the keys tested.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli_runner.h"
#include "engine/key_table.h"
#include "guide/guide_sections.h"
#include "session/key_legends.h"
#include "engine/keyboards.h"

namespace brinto::test {
namespace {

const std::filesystem::path kGuide = std::filesystem::path(BRINTO_SOURCE_DIR) / "docs/Brinto.htm";

std::string ReadGuide() {
    std::ifstream in(kGuide, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::string Unescape(std::string text) {
    const std::pair<std::string_view, std::string_view> entities[] = {
        {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}};
    for (const auto& [entity, plain] : entities) {
        for (std::size_t at; (at = text.find(entity)) != std::string::npos;)
            text.replace(at, entity.size(), plain);
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

std::vector<std::string> Words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string w; in >> w;) words.push_back(w);
    return words;
}

struct Example {
    int line;
    std::vector<std::string> args;
    std::string expect;
    std::string body;
};

std::vector<Example> Examples(const std::string& guide) {
    std::vector<Example> examples;
    constexpr std::string_view kOpen = "<pre class=\"example\"";
    for (std::size_t at = 0; (at = guide.find(kOpen, at)) != std::string::npos;) {
        const std::size_t tagEnd = guide.find('>', at);
        const std::size_t close = guide.find("</pre>", tagEnd);
        const std::string tag = guide.substr(at, tagEnd - at);
        const int line = 1 + static_cast<int>(std::count(guide.begin(), guide.begin() + at, '\n'));
        examples.push_back({line, Words(Attribute(tag, "data-args")), Attribute(tag, "data-expect"),
                            Unescape(guide.substr(tagEnd + 1, close - tagEnd - 1))});
        at = close;
    }
    return examples;
}

bool IsNumber(const std::string& token) {
    const std::size_t first = token[0] == '-' ? 1 : 0;
    return first < token.size() &&
           (std::isdigit(static_cast<unsigned char>(token[first])) || token[first] == '.');
}

// What the reader presses for brinto-cli's tokens: key faces, typed numbers, keyboard changes.
std::string KeysOf(const std::vector<std::string>& args) {
    std::string keys;
    for (std::size_t i = 0; i < args.size(); ++i) {
        std::string shown;
        if (args[i] == "--pref") {
            ++i;
            continue;
        } else if (args[i].rfind("kb:", 0) == 0) {
            shown = "[" + std::string(kKeyboardNames.at(std::stoi(args[i].substr(3)))) + "]";
        } else if (IsNumber(args[i])) {
            shown = args[i];
        } else if (const auto id = KeyByName(args[i]); id && FindLegend(*id)) {
            shown = std::string(FindLegend(*id)->legend);
        } else {
            shown = "?" + args[i] + "?";
        }
        keys += (keys.empty() ? "" : " ") + shown;
    }
    return keys;
}

TEST(Guide, GeneratedSectionsAndAnchorsAreCurrent) {
    const std::string guide = ReadGuide();
    ASSERT_FALSE(guide.empty()) << kGuide;
    std::string problem;
    const auto refreshed = RefreshGuide(guide, &problem);
    ASSERT_TRUE(refreshed.has_value()) << problem;
    EXPECT_TRUE(*refreshed == guide) << "docs/Brinto.htm differs from the key tables: run `make guide`";
    for (const char* section : {"keyboards", "hardware-keys", "constants", "appearance"}) {
        EXPECT_NE(guide.find(std::string("<!-- generated:") + section + " -->"), std::string::npos)
            << section;
    }
    // The anchors that the help commands of the program's windows open.
    for (const char* anchor : {"Main_Contents", "about", "amortization", "cashflow", "constants", "keyboard",
                               "prefs", "rpnstack", "statistical", "tvm", "userregisters", "comparison",
                               "enterdate", "durations", "schedule", "colors"}) {
        EXPECT_NE(guide.find(std::string("<a name=\"") + anchor + "\""), std::string::npos) << anchor;
    }
    EXPECT_NE(guide.find(">Comparison of Input Methods<"), std::string::npos);
}

TEST(Guide, EveryWorkedExamplePrintsWhatTheGuideSays) {
    const std::vector<Example> examples = Examples(ReadGuide());
    EXPECT_GE(examples.size(), 12u);
    for (const Example& example : examples) {
        SCOPED_TRACE("docs/Brinto.htm:" + std::to_string(example.line));
        ASSERT_FALSE(example.args.empty());
        std::vector<std::string> args = {"--memory"};
        args.insert(args.end(), example.args.begin(), example.args.end());
        const RunResult run = RunCli(args);
        EXPECT_EQ(run.exitCode, 0) << run.err;
        EXPECT_EQ(run.out, example.expect + "\n");
        EXPECT_NE(example.body.find("Keys:    " + KeysOf(example.args) + "\n"), std::string::npos)
            << "expected the line: Keys:    " << KeysOf(example.args);
        EXPECT_NE(example.body.find("Display: " + example.expect + "\n"), std::string::npos);
    }
}

}  // namespace
}  // namespace brinto::test
