#include "ops/constants.h"

#include <gtest/gtest.h>

#include "cli/tokens.h"
#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;

constexpr int kSpeedOfLight = 7, kPlanck = 12, kElectronMass = 15;

TEST(Constants, EveryRowHasANameAndOnlyThoseRowsRecall) {
    for (int i = 0; i < kConstantCount; ++i) EXPECT_FALSE(ConstantName(i).empty()) << i;
    EXPECT_FALSE(ConstantName(32).empty());
    Engine e = Holding({{5, 0}});
    for (const int outside : {33, -1}) {
        EXPECT_TRUE(ConstantName(outside).empty());
        EXPECT_FALSE(RecallConstant(e, outside, 3));
    }
    EXPECT_EQ(e.X(), 5.0);
    EXPECT_EQ(e.state.constantsTopRow, 0);
    EXPECT_FALSE(ParseToken("const:-1").has_value());
    EXPECT_FALSE(ParseToken("const:").has_value());
    EXPECT_EQ(ParseToken("const:32").value().number, 32);
}

TEST(Constants, RecallLiftsLeavesLastXAloneAndKeepsTheListsScroll) {
    Engine e = Holding({{5, 0}});
    e.state.lastX = 9;
    ASSERT_TRUE(RecallConstant(e, kSpeedOfLight, 4));
    EXPECT_EQ(e.Y(), 5.0);
    EXPECT_EQ(e.state.lastX, 9.0);
    EXPECT_EQ(e.state.constantsTopRow, 4);
    e.Dispatch(158);  // km/h: the tagged constants convert
    EXPECT_NEAR(e.X(), 1079252848.8, 1e-3);
    ASSERT_TRUE(RecallConstant(e, kPlanck, 10));
    EXPECT_EQ(XOf(e), Tagged(6.6260755e-34, 0));
    EXPECT_EQ(e.state.aux[0], kNoAux);
    ASSERT_TRUE(RecallConstant(e, kElectronMass, 10));
    EXPECT_EQ(XLabel(e), "kg");
}

TEST(Constants, RecallFollowsTheLiftAndClosesANumberBeingTyped) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {2, fid::Enter});  // lift disabled: the recall replaces the copy of 2
    RecallConstant(e, kPlanck, 0);
    EXPECT_EQ(e.Y(), 2.0);
    Press(e, {3});  // a number typed after a recall lifts it
    EXPECT_EQ(e.Y(), 6.6260755e-34);
    Press(e, {1});
    RecallConstant(e, kSpeedOfLight, 0);
    EXPECT_FALSE(e.EntryOpen());
    EXPECT_EQ(e.Y(), 31.0);

    e = MakeEngine(InputMethod::Simple);
    Press(e, {2, fid::Multiply});
    RecallConstant(e, kSpeedOfLight, 0);
    Press(e, {fid::Add, 1, fid::Equals});  // + does not replace x: the recall came between
    EXPECT_EQ(e.X(), 599584917.0);
}

}  // namespace
}  // namespace brinto
