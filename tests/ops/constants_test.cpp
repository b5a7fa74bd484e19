#include "ops/constants.h"

#include <gtest/gtest.h>

#include <string>

#include "cli/tokens.h"
#include "ops_test_support.h"
#include "session/session.h"

namespace brinto {
namespace {

using namespace test;

constexpr int kSpeedOfLight = 7, kPlanck = 12, kElectronMass = 15;

class SilentHost : public Host {
public:
    void ShowMessage(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
    void PutOnClipboard(std::string_view) override {}
    std::optional<std::string> ClipboardText() override { return std::nullopt; }
};

TEST(Constants, EveryRowHasTheNameTheListShows) {
    for (int i = 0; i < kConstantCount; ++i) {
        SCOPED_TRACE(i);
        EXPECT_FALSE(ConstantName(i).empty());
    }
    EXPECT_EQ(ConstantName(kSpeedOfLight), "Speed of light in vacuum, c");
    EXPECT_EQ(ConstantName(32), "Reference intensity, I0");
    EXPECT_TRUE(ConstantName(33).empty());
    EXPECT_TRUE(ConstantName(-1).empty());
}

TEST(Constants, RecallGivesTheValueWithItsUnitAndLeavesLastXAlone) {
    Engine e = Holding({{5, 0}});
    e.state.lastX = 9;
    ASSERT_TRUE(RecallConstant(e, kSpeedOfLight, 4));
    EXPECT_EQ(e.X(), 299792458.0);
    EXPECT_EQ(XLabel(e), "m/s");
    EXPECT_EQ(e.Y(), 5.0);
    EXPECT_EQ(e.state.lastX, 9.0);
    EXPECT_EQ(e.state.constantsTopRow, 4);

    e.Dispatch(158);  // km/h: the tagged constants convert
    EXPECT_NEAR(e.X(), 1079252848.8, 1e-3);

    ASSERT_TRUE(RecallConstant(e, kPlanck, 10));
    EXPECT_EQ(e.X(), 6.6260755e-34);
    EXPECT_EQ(e.XTag(), 0);
    EXPECT_EQ(e.state.aux[0], kNoAux);
    ASSERT_TRUE(RecallConstant(e, kElectronMass, 10));
    EXPECT_EQ(XLabel(e), "kg");
}

TEST(Constants, RecallingTwiceInRpnKeepsBothCopies) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {2, fid::Enter});  // lift disabled: the first recall replaces the copy of 2
    RecallConstant(e, kPlanck, 0);
    RecallConstant(e, kPlanck, 0);
    EXPECT_EQ(e.X(), 6.6260755e-34);
    EXPECT_EQ(e.Y(), 6.6260755e-34);
    EXPECT_EQ(e.Level(2).value, 2.0);
    Press(e, {3});  // a number typed after a recall lifts it
    EXPECT_EQ(e.Y(), 6.6260755e-34);
}

TEST(Constants, ANumberBeingTypedIsClosedAndKeptInRpn) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {1, 2});
    RecallConstant(e, kSpeedOfLight, 0);
    EXPECT_FALSE(e.EntryOpen());
    EXPECT_EQ(e.Y(), 12.0);
    EXPECT_EQ(e.X(), 299792458.0);
}

TEST(Constants, AfterAnOperatorTheRecallIsItsOperand) {
    Engine e = MakeEngine(InputMethod::Simple);
    Press(e, {2, fid::Multiply});
    RecallConstant(e, kSpeedOfLight, 0);
    Press(e, {fid::Add, 1, fid::Equals});  // + does not replace x: the recall came between
    EXPECT_EQ(e.X(), 599584917.0);
}

TEST(Constants, AnIndexOutsideTheListChangesNothing) {
    Engine e = Holding({{5, 0}});
    EXPECT_FALSE(RecallConstant(e, 33, 3));
    EXPECT_FALSE(RecallConstant(e, -1, 3));
    EXPECT_EQ(e.X(), 5.0);
    EXPECT_EQ(e.state.constantsTopRow, 0);
}

TEST(Constants, TheSessionsRecallIsOneUndoableStep) {
    Engine e = MakeEngine(InputMethod::Rpn);
    SilentHost host;
    Session session(e, host);
    session.Tap(4);
    session.Tap(fid::Enter);
    ASSERT_TRUE(session.RecallConstant(kSpeedOfLight, 2));
    EXPECT_EQ(e.X(), 299792458.0);
    session.Undo();
    EXPECT_EQ(e.X(), 4.0);
    EXPECT_EQ(e.XTag(), 0);
    EXPECT_FALSE(session.RecallConstant(40, 0));
}

TEST(Constants, CliToken) {
    const auto token = ParseToken("const:32");
    ASSERT_TRUE(token.has_value());
    EXPECT_EQ(token->kind, TokenKind::Constant);
    EXPECT_EQ(token->number, 32);
    EXPECT_FALSE(ParseToken("const:33").has_value());
    EXPECT_FALSE(ParseToken("const:-1").has_value());
    EXPECT_FALSE(ParseToken("const:").has_value());
}

}  // namespace
}  // namespace brinto
