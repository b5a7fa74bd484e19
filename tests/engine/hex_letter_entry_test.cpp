// On the programmer keyboard a letter A-F switches decimal entry to hexadecimal. A decimal number
// that already holds a point or an exponent cannot be read in hexadecimal, so there the letter
// must be refused instead of turning "85.5e" into the text "85.5eA" and X into nonsense. A digit
// that a smaller base lacks switches the entry back to decimal.
#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "engine/function_ids.h"
#include "engine_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;

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

}  // namespace
}  // namespace brinto
