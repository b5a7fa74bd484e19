#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>
#include <string_view>

#include "engine/number_entry.h"
#include "engine_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;

TEST(Stack, LiftAndDropUseTheRpnDepth) {
    Engine e = MakeEngine(InputMethod::Rpn);  // default depth 4
    Press(e, {1, fid::Enter, 2, fid::Enter, 3, fid::Enter, 4, fid::Enter, 5});
    EXPECT_EQ(e.state.stack[3], 2.0);  // 1 was lost off the top by the last lift
    EXPECT_EQ(e.state.stack[4], 0.0);  // levels beyond the depth are never touched
    e.Drop();
    EXPECT_EQ(e.state.stack[2], 2.0);
    EXPECT_EQ(e.state.stack[3], 2.0);  // T is duplicated into Z
}

TEST(Stack, MovementsCarryTagsAndAuxCodes) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.SetLevel(0, {1.0, ValueTag::Meters, 7});
    e.SetLevel(1, {2.0, ValueTag::Hours, kNoAux});
    e.SetLevel(2, {3.0, ValueTag::None, kNoAux});
    e.Rotate3();  // X = old Z, Y = old X, Z = old Y
    EXPECT_EQ(e.Level(0).value, 3.0);
    EXPECT_EQ(e.Level(1).tag, ValueTag::Meters);
    EXPECT_EQ(e.Level(1).aux, 7);
    EXPECT_EQ(e.Level(2).tag, ValueTag::Hours);
    e.RollDown();
    EXPECT_EQ(e.Level(3).value, 3.0);
    EXPECT_EQ(e.Level(0).tag, ValueTag::Meters);
    e.RollUp();
    e.Swap();
    EXPECT_EQ(e.Level(0).tag, ValueTag::Meters);
    EXPECT_EQ(e.Level(1).value, 3.0);
}

TEST(Stack, OverAndRotate) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.SetLevel(0, {1.0}), e.SetLevel(1, {2.0}), e.SetLevel(2, {3.0}), e.SetLevel(3, {4.0});
    e.Over();
    EXPECT_EQ(e.X(), 2.0);
    EXPECT_EQ(e.Y(), 1.0);
    EXPECT_EQ(e.state.stack[2], 2.0);
}

TEST(Stack, DepthOneMakesMovementsIdle) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.prefs.SetStackDepth(1);
    e.SetLevel(0, {1.0}), e.SetLevel(1, {2.0});
    e.Lift(), e.Drop(), e.RollDown(), e.RollUp();
    EXPECT_EQ(e.X(), 1.0);
    EXPECT_EQ(e.Y(), 2.0);
}

TEST(Stack, ClearStackResetsAllTwentyLevels) {
    Engine e = MakeEngine(InputMethod::Rpn);
    for (int k = 0; k < kStackLevels; ++k) e.SetLevel(k, {double(k + 1), ValueTag::Meters, 3});
    e.Dispatch(fid::ClearStack);
    for (int k = 0; k < kStackLevels; ++k) {
        EXPECT_EQ(e.Level(k).value, 0.0);
        EXPECT_EQ(e.Level(k).tag, ValueTag::None);
        EXPECT_EQ(e.Level(k).aux, kNoAux);
    }
}

struct EntryCase {
    const char* name;
    std::vector<test::Key> keys;
    const char* text;
    double x;
};

TEST(NumberEntry, KeysBuildTheTextAndX) {
    const EntryCase cases[] = {
        {"thirteenth digit refused", {1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 1, 2, 3}, "123456789012", 123456789012.0},
        {"point is not a digit", {1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 1, 2, fid::Point, 3}, "123456789012.", 123456789012.0},
        {"bare exponent", {fid::Exponent}, "1e", 1.0},
        {"fourth exponent digit refused", {2, fid::Exponent, 1, 2, 3, 4}, "2e123", 2e123},
        {"second exponent refused", {2, fid::Exponent, 1, fid::Exponent}, "2e1", 20.0},
        {"second point ignored", {1, fid::Point, 5, fid::Point, 2}, "1.52", 1.52},
        {"point after e ignored", {1, fid::Exponent, fid::Point, 2}, "1e2", 100.0},
        {"exponent sign toggles", {1, fid::Exponent, 5, fid::ChangeSign}, "1e-5", 1e-5},
        {"exponent sign toggles back", {1, fid::Exponent, 5, fid::ChangeSign, fid::ChangeSign}, "1e5", 1e5},
        {"mantissa sign", {1, fid::ChangeSign, 2}, "-12", -12.0},
        {"backspace over e", {1, fid::Exponent, fid::Backspace, 2}, "12", 12.0},
        {"exponent beyond a double", {9, fid::Exponent, 9, 9, 9}, "9e999", std::numeric_limits<double>::infinity()},
    };
    for (const EntryCase& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = MakeEngine(InputMethod::Rpn);
        for (const test::Key k : c.keys) e.Dispatch(k.id);
        EXPECT_STREQ(e.state.entryText, c.text);
        EXPECT_EQ(e.X(), c.x);
        EXPECT_TRUE(e.EntryOpen());
    }
}

TEST(NumberEntry, RefusedDigitIsNotAccepted) {
    Engine e = MakeEngine(InputMethod::Rpn);
    for (int i = 0; i < 12; ++i) EXPECT_TRUE(e.Dispatch(fid::Digit9));
    EXPECT_FALSE(e.Dispatch(fid::Digit9));
}

TEST(NumberEntry, BackspaceOverTheLastCharacterClosesTheEntry) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {5, fid::Backspace});
    EXPECT_FALSE(e.EntryOpen());
    EXPECT_EQ(e.X(), 0.0);
}

TEST(NumberEntry, HexLettersAreNotCountedDownByBackspace) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.state.status |= 4;  // programmer keyboard
    Press(e, {fid::BaseHex, 1, fid::HexF, fid::HexF, fid::Backspace, fid::Backspace});
    EXPECT_STREQ(e.state.entryText, "1");
    EXPECT_EQ(e.state.entryDigits, 3);
    int accepted = 0;
    for (int i = 0; i < 8; ++i) accepted += e.Dispatch(fid::Digit1) ? 1 : 0;
    EXPECT_EQ(accepted, 5);
}

TEST(NumberEntry, IntegerBasesReadA32BitWordAsSigned) {
    EXPECT_EQ(ParseEntryText("FFFFFFFF", status::BaseHex), -1.0);
    EXPECT_EQ(ParseEntryText("7FFFFFFF", status::BaseHex), 2147483647.0);
    EXPECT_EQ(ParseEntryText("77777777777", status::BaseOctal), -1.0);  // 33 bits wrap to 32
    EXPECT_EQ(ParseEntryText("101", status::BaseBinary), 5.0);
    EXPECT_EQ(ParseEntryText("", status::BaseHex), 0.0);
    EXPECT_EQ(ParseEntryText("1e999", 0), std::numeric_limits<double>::infinity());
}

// On the programmer keyboard a letter A-F switches decimal entry to hexadecimal. A decimal number
// that already holds a point or an exponent cannot be read in hexadecimal, so there the letter
// must be refused instead of turning "85.5e" into the text "85.5eA" and X into nonsense. A digit
// that a smaller base lacks switches the entry back to decimal.
TEST(IntegerEntry, SwitchesOnlyNumbersThatHaveAReadingInTheNewBase) {
    struct Case {
        std::string_view name;
        std::vector<test::Key> keys;
        std::string_view text;
        double x;
        u16 base;
    };
    const Case cases[] = {
        {"plainDigitsSwitch", {8, 5, fid::HexA}, "85A", 0x85A, status::BaseHex},
        {"negativeDigitsSwitch", {8, 5, fid::ChangeSign, fid::HexA}, "-85A", -0x85A, status::BaseHex},
        {"pointRefused", {8, 5, fid::Point, 5, fid::HexA}, "85.5", 85.5, 0},
        {"exponentRefused", {8, 5, fid::Point, 5, fid::Exponent, fid::HexA}, "85.5e", 85.5, 0},
        {"bareExponentRefused", {fid::Exponent, 2, fid::HexF}, "1e2", 100.0, 0},
        {"freshEntrySwitches", {fid::HexA, fid::HexB}, "AB", 0xAB, status::BaseHex},
        {"eightLeavesOctal", {fid::BaseOctal, 7, 8}, "78", 78, 0},
        {"twoLeavesBinary", {fid::BaseBinary, 1, 2}, "12", 12, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = MakeEngine(InputMethod::Rpn);
        e.state.status = static_cast<u16>((e.state.status & ~status::KeyboardMask) | 4);  // programmer
        for (const test::Key k : c.keys) e.Dispatch(k.id);
        EXPECT_EQ(std::string_view(e.state.entryText), c.text);
        EXPECT_EQ(e.X(), c.x);
        EXPECT_EQ(e.EntryBase(), c.base);
    }
}

TEST(NumberEntry, IntegerBaseIsDroppedOffTheProgrammerKeyboard) {
    Engine e = MakeEngine(InputMethod::Rpn);
    e.state.status |= 4;
    e.Dispatch(fid::BaseHex);
    e.state.status &= static_cast<u16>(~status::KeyboardMask);  // General keyboard
    e.Dispatch(fid::Digit1);
    EXPECT_EQ(e.EntryBase(), 0);
    EXPECT_FALSE(e.Dispatch(fid::HexA));  // hex digits only in hexadecimal
}

}  // namespace
}  // namespace brinto
