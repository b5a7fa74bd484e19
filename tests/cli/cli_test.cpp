// What brinto-cli's runs cannot show in a transcript: an answer that cannot be written, bytes that
// are no text, and the dates it spells in the user's locale.
#include <gtest/gtest.h>

#include <cstdlib>

#include "cli_runner.h"
#include "temp_folder.h"

namespace brinto::test {
namespace {

// An answer that cannot be written (here to a full disk) is a failed run, whatever printed it.
TEST(Cli, OutputThatCannotBeWrittenFailsTheRun) {
    for (const std::vector<std::string>& args : std::vector<std::vector<std::string>>{
             {"--help"}, {"--memory", "--list-keys"}, {"--memory", "--json", "2", "enter", "3", "+"}, {"--memory", "5"}}) {
        SCOPED_TRACE(args.back());
        const RunResult r = RunCli(args, "", {}, "/dev/full");
        EXPECT_EQ(r.exitCode, 1);
        EXPECT_EQ(r.err, "brinto-cli: cannot write standard output: No space left on device\n");
    }
}

TEST(Cli, BinaryJunkOnStandardInputIsRefused) {
    std::string junk;
    for (int i = 0; i < 4096; ++i) junk += static_cast<char>((i * 37 + 11) % 256);
    const RunResult r = RunCli({"--memory"}, junk);
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1);
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
