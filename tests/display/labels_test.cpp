#include "display/labels.h"

#include <gtest/gtest.h>

namespace brinto {
namespace {

TEST(LabelText, FindsRowsAcrossTheTable) {
    struct Case { u32 code; std::string_view text; };
    const Case cases[] = {
        {1200, "error"},  {1420, "Nj"},       {1811, "frames"},      {1929, "s32"},
        {2504, "fps"},    {1930, "cm"},       {1954, "fl. oz UK"},   {3632, "Reference intensity, I0"},
        {1421, ""},       {1955, ""},         {0x10000 + 1200, ""},  // codes are 16 bits wide
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.code);
        EXPECT_EQ(LabelText(c.code), c.text);
    }
}

}  // namespace
}  // namespace brinto
