// brinto-cli's pinned clock (arguments with blanks, which the transcripts cannot hold), and the
// dates and times it spells in the user's locale.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "cli_runner.h"
#include "temp_folder.h"

namespace brinto::test {
namespace {

TEST(Cli, NowReadsThePinnedClock) {
    const RunResult r = RunCli({"--json", "--memory", "--now", "2024-02-29 13:45:10", "rpn", "now", "now", "years",
                                "swap", "minutes"});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    const auto json = ParseJson(r.out);
    ASSERT_TRUE(json.has_value());
    EXPECT_EQ(Compact(*Find(*json, "stack.1.value")), "2024");
    EXPECT_EQ(Compact(*Find(*json, "stack.0.value")), "45");

    const RunResult shown = RunCli({"--memory", "--now", "2024-02-29 13:45:10", "now"});
    EXPECT_EQ(shown.out, "02/29/24 13:45  dt\n");
}

// Month and day names come in the locale's own character set; the report is UTF-8 in any of them
// (the JSON reader refuses anything else) and spells them as the locale does.
TEST(Cli, JsonSpellsTheLocalesNamesInUtf8) {
    TempFolder locales;
    const std::pair<const char*, const char*> cases[] = {{"fr_FR.UTF-8", "UTF-8"}, {"fr_FR.ISO-8859-1", "ISO-8859-1"}};
    for (const auto& [name, charset] : cases) {
        SCOPED_TRACE(name);
        const std::string make = std::string("localedef -i fr_FR -f ") + charset + " '" +
                                 (locales.path() / name).string() + "' 2>/dev/null";
        if (std::system(make.c_str()) != 0) GTEST_SKIP() << "localedef cannot make " << name << " (package locales)";
        const RunResult r = RunCli({"--json", "--memory", "--pref", "3=1", "2024.0205", "date"}, "",
                                   // The C library keeps a little of a locale read from LOCPATH for good,
                                   // which the leak checker of the sanitizer builds would count.
                                   {"LOCPATH=" + locales.path().string(), std::string("LC_ALL=") + name,
                                    "ASAN_OPTIONS=detect_leaks=0"});
        ASSERT_EQ(r.exitCode, 0) << r.err;
        const auto json = nlohmann::json::parse(r.out, nullptr, false);
        ASSERT_FALSE(json.is_discarded()) << r.out.substr(0, 200);
        EXPECT_EQ(json["stack"][0]["text"], "lundi 5 février 2024");
    }
}

}  // namespace
}  // namespace brinto::test
