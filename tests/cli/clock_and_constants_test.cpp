// brinto-cli's pinned clock and the constants it lists (arguments with blanks, which the
// transcripts cannot hold).
#include <gtest/gtest.h>

#include "cli/tokens.h"
#include "cli_runner.h"

namespace brinto::test {
namespace {

TEST(Cli, NowReadsThePinnedClock) {
    const RunResult r = RunCli({"--json", "--memory", "--now", "2024-02-29 13:45:10", "rpn", "now", "now", "years",
                                "swap", "minutes"});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    const auto json = ParseJson(r.out);
    ASSERT_TRUE(json.has_value());
    EXPECT_EQ(json->Find("stack.1.value")->Compact(), "2024");
    EXPECT_EQ(json->Find("stack.0.value")->Compact(), "45");

    const RunResult shown = RunCli({"--memory", "--now", "2024-02-29 13:45:10", "now"});
    EXPECT_EQ(shown.out, "02/29/24 13:45  dt\n");
}

TEST(Cli, ListKeysNamesTheConstants) {
    const RunResult r = RunCli({"--list-keys"});
    ASSERT_EQ(r.exitCode, 0);
    EXPECT_NE(r.out.find("\nconst:0 Avogadro's number, NA\n"), std::string::npos);
    EXPECT_NE(r.out.find("\nconst:32 Reference intensity, I0\n"), std::string::npos);
    EXPECT_FALSE(ParseToken("const:-1").has_value());
    EXPECT_FALSE(ParseToken("const:").has_value());
    EXPECT_FALSE(ParseToken("const:33").has_value());
    EXPECT_EQ(ParseToken("const:32").value().number, 32);
}

}  // namespace
}  // namespace brinto::test
