// The number being typed can be edited down to nothing while the entry stays open: typing 1,
// changing its sign, then erasing the digit and the sign. X is then zero, and the display must
// show that zero rather than a blank line.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "display/display_text.h"
#include "engine/engine.h"
#include "engine/function_ids.h"

namespace brinto {
namespace {

TEST(EmptyEntry, AnEntryEditedToNothingShowsZero) {
    struct Case { const char* name; std::vector<FunctionId> keys; };
    const Case cases[] = {
        {"signRemovedLast", {1, fid::ChangeSign, 4, fid::Backspace, fid::Backspace, fid::ChangeSign}},
        {"afterAnOperator", {2, fid::Add, 5, fid::ChangeSign, fid::Backspace, fid::ChangeSign}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        auto e = std::make_unique<Engine>();
        for (const FunctionId id : c.keys) e->Dispatch(id);
        const DisplayLine line = DisplayLevel(*e, 0);
        EXPECT_FALSE(line.text.empty());
        EXPECT_EQ(e->X(), 0.0);
        auto fresh = std::make_unique<Engine>();
        EXPECT_EQ(line.text, DisplayLevel(*fresh, 0).text);  // the same zero a cleared X shows
    }
}

}  // namespace
}  // namespace brinto
