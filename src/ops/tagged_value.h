#pragma once
// A stack value together with its tag, as the two-operand rules pass operands around.
#include "engine/value_tags.h"

namespace brinto {

struct TaggedValue {
    double value = 0.0;
    ValueTag tag = ValueTag::None;
};

}  // namespace brinto
