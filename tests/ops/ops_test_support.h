#pragma once
// Helpers for the calculator families: an engine holding tagged operands.
#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

#include "engine/engine_test_support.h"
#include "ops/tagged_value.h"

namespace brinto::test {

// An engine in `method` holding the given levels, the first listed deepest and the last in X,
// with lift enabled and no number being typed, as after a calculation.
inline Engine Holding(std::initializer_list<TaggedValue> levels, InputMethod method = InputMethod::Rpn) {
    Engine e = MakeEngine(method);
    int k = static_cast<int>(levels.size()) - 1;
    for (const TaggedValue& v : levels) e.SetLevel(k--, StackEntry{v.value, v.tag, kNoAux});
    e.state.status |= status::LiftEnabled;
    return e;
}

// The engine after `key` on the given levels.
inline Engine After(std::initializer_list<TaggedValue> levels, FunctionId key) {
    Engine e = Holding(levels);
    e.Dispatch(key);
    return e;
}

// X with its tag, compared as one.
using Tagged = std::pair<double, ValueTag>;
inline Tagged XOf(const Engine& e) { return {e.X(), e.XTag()}; }
inline Tagged Of(TaggedValue v) { return {v.value, v.tag}; }

// A key pressed on `x` (and `y` below it for an operator), and the X it must leave.
struct KeyCase { FunctionId key; TaggedValue x, result; };
struct OperatorCase { FunctionId key; TaggedValue y, x, result; };

inline void ExpectX(const Engine& e, TaggedValue result) {
    EXPECT_DOUBLE_EQ(e.X(), result.value);
    EXPECT_EQ(e.XTag(), result.tag);
}

inline void CheckKeys(std::initializer_list<KeyCase> cases) {
    for (const KeyCase& c : cases) {
        SCOPED_TRACE(testing::Message() << "key " << c.key << " on " << c.x.value << " tag " << c.x.tag);
        ExpectX(After({c.x}, c.key), c.result);
    }
}

inline void CheckOperators(std::initializer_list<OperatorCase> cases) {
    for (const OperatorCase& c : cases) {
        SCOPED_TRACE(testing::Message() << "key " << c.key << " on " << c.y.value << " tag " << c.y.tag << ", "
                                        << c.x.value << " tag " << c.x.tag);
        ExpectX(After({c.y, c.x}, c.key), c.result);
    }
}

}  // namespace brinto::test
