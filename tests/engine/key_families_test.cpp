#include <gtest/gtest.h>

#include "engine_test_support.h"

namespace brinto {
namespace {

// Each key's row names the family that acts on it: offered to the calculator's chain in a plain
// state, the key is taken by the family its row names, and a key no family takes is one of the
// dispatcher's own.
TEST(KeyTable, EachRowNamesTheFamilyThatTakesItsKey) {
    for (const KeyInfo& k : kKeyTable) {
        Engine e = test::MakeEngine(InputMethod::Rpn);
        e.SetX(2);
        e.SetY(3);
        e.registers.cashFlowCount = 0;  // a cash flow to give a count (Nj)
        KeyFamily taker = kf::BuiltIn;
        for (const Family& family : e.families().chain) {
            if (family.handle(e, k.id)) {
                taker = family.family;
                break;
            }
        }
        const bool dispatchers = k.family == kf::Entry || k.family == kf::Shift || k.family == kf::Macro;
        EXPECT_EQ(FamilyName(taker), FamilyName(dispatchers ? kf::BuiltIn : k.family)) << k.name;
    }
}

}  // namespace
}  // namespace brinto
