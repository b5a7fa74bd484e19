#include <gtest/gtest.h>

#include <cmath>

#include "engine/types.h"
#include "finance/clean_difference.h"

namespace brinto {
namespace {

TEST(CleanDifference, RoundsToFourteenDigitsAndDropsResidues) {
    const struct {
        const char* name;
        double a, b, difference;
    } cases[] = {
        {"tidy", 0.3, 0.1, 0.2},
        {"residueOfEqualValues", 1.4699999999999998, 1.4699999999999993, 0.0},
        {"residueOfLargeValues", 3e12 + 0.00048828125, 3e12, 0.0},
        {"lastDigitKept", 1.0000000000001, 1.0, 9.9920072216264e-14},
        {"exact", 100.0, 20.0, 80.0},
        {"negative", 0.1, 0.3, -0.2},
        {"zeroOperand", 0.0, 1e-300, -1e-300},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(CleanDifference(c.a, c.b), c.difference);
    }
    EXPECT_EQ(CleanDifference(kErrorValue, 1.0), kErrorValue);
    EXPECT_TRUE(std::isnan(CleanDifference(kErrorValue, kErrorValue)));
}

}  // namespace
}  // namespace brinto
