#include <gtest/gtest.h>

#include <limits>
#include <string_view>
#include <tuple>

#include "engine_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;

// Levels X, Y, Z, T and the fifth hold 1..5, each with its own tag and aux code; the stack keys
// move the three together and never touch a level beyond the depth.
TEST(Stack, KeysMoveValuesTagsAndAuxCodesWithinTheDepth) {
    constexpr ValueTag kTags[] = {ValueTag::Meters, ValueTag::Hours, ValueTag::U8, ValueTag::Date, ValueTag::Feet};
    struct Case { FunctionId key; int depth; double levels[5]; };
    const Case cases[] = {
        {fid::RollDown, 4, {2, 3, 4, 1, 5}}, {fid::RollUp, 4, {4, 1, 2, 3, 5}},  {fid::Swap, 4, {2, 1, 3, 4, 5}},
        {fid::Rotate3, 4, {3, 1, 2, 4, 5}},  {fid::Over, 4, {2, 1, 2, 3, 5}},    {fid::Drop, 4, {2, 3, 4, 4, 5}},
        {fid::Fill, 4, {1, 1, 1, 1, 5}},     {fid::Enter, 4, {1, 1, 2, 3, 5}},   {fid::RollDown, 5, {2, 3, 4, 5, 1}},
        {fid::RollDown, 1, {1, 2, 3, 4, 5}}, {fid::Drop, 1, {1, 2, 3, 4, 5}},    {fid::Enter, 1, {1, 2, 3, 4, 5}},
        {fid::ClearStack, 4, {0, 0, 0, 0, 0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.key << " depth " << c.depth);
        Engine e = MakeEngine(InputMethod::Rpn);
        e.prefs.SetStackDepth(c.depth);
        for (int k = 0; k < 5; ++k) e.SetLevel(k, {k + 1.0, kTags[k], static_cast<u16>(k)});
        e.Dispatch(c.key);
        for (int k = 0; k < 5; ++k) {
            const int from = static_cast<int>(c.levels[k]) - 1;
            const StackEntry expected = from < 0 ? StackEntry{} : StackEntry{from + 1.0, kTags[from], static_cast<u16>(from)};
            EXPECT_EQ(std::tuple(e.Level(k).value, e.Level(k).tag, e.Level(k).aux),
                      std::tuple(expected.value, expected.tag, expected.aux)) << "level " << k;
        }
    }
}

// The keys build the text being typed and X, on the programmer keyboard, where a letter A-F
// switches decimal entry to hexadecimal. A decimal number that already holds a point or an
// exponent cannot be read in hexadecimal, so there the letter must be refused instead of turning
// "85.5e" into the text "85.5eA" and X into nonsense. A digit that a smaller base lacks switches
// the entry back to decimal.
TEST(NumberEntry, KeysBuildTheTextXAndBase) {
    struct Case {
        std::string_view name;
        std::vector<test::Key> keys;
        std::string_view text;
        double x;
        u16 base = 0;
        bool open = true;
    };
    const Case cases[] = {
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
        {"backspace over the last character closes it", {5, fid::Backspace}, "", 0, 0, false},
        {"plainDigitsSwitch", {8, 5, fid::HexA}, "85A", 0x85A, status::BaseHex},
        {"negativeDigitsSwitch", {8, 5, fid::ChangeSign, fid::HexA}, "-85A", -0x85A, status::BaseHex},
        {"pointRefused", {8, 5, fid::Point, 5, fid::HexA}, "85.5", 85.5},
        {"exponentRefused", {8, 5, fid::Point, 5, fid::Exponent, fid::HexA}, "85.5e", 85.5},
        {"bareExponentRefused", {fid::Exponent, 2, fid::HexF}, "1e2", 100.0},
        {"freshEntrySwitches", {fid::HexA, fid::HexB}, "AB", 0xAB, status::BaseHex},
        {"eightLeavesOctal", {fid::BaseOctal, 7, 8}, "78", 78},
        {"twoLeavesBinary", {fid::BaseBinary, 1, 2}, "12", 12},
        // A 32-bit word reads as signed; more octal digits than 32 bits wrap.
        {"hexWordIsSigned", {fid::BaseHex, fid::HexF, fid::HexF, fid::HexF, fid::HexF, fid::HexF, fid::HexF, fid::HexF, fid::HexF}, "FFFFFFFF", -1, status::BaseHex},
        {"octalWraps", {fid::BaseOctal, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7}, "77777777777", -1, status::BaseOctal},
        {"binary", {fid::BaseBinary, 1, 0, 1}, "101", 5, status::BaseBinary},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = MakeEngine(InputMethod::Rpn);
        e.state.status = static_cast<u16>((e.state.status & ~status::KeyboardMask) | 4);  // programmer
        Press(e, c.keys);
        EXPECT_EQ(std::string_view(e.state.entryText), c.text);
        EXPECT_EQ(e.X(), c.x);
        EXPECT_EQ(e.EntryBase(), c.base);
        EXPECT_EQ(e.EntryOpen(), c.open);
    }
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
