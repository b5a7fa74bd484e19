// brinto-cli's pinned clock (arguments with blanks, which the transcripts cannot hold).
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace brinto::test
