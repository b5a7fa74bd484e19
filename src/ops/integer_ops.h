#pragma once
// The programmer keyboard's two-operand operations: AND, OR, XOR, the integer add, subtract,
// multiply and divide, the shifts and the rotate. Operands are narrowed to an integer format
// (see integer_format.h), the operation wraps around in that width, and the result comes back as
// the whole number of the format, tagged with it.
#include <optional>

#include "engine/preferences.h"
#include "ops/tagged_value.h"

namespace brinto {

// Y op X for AND, OR, XOR, the shifts, the rotate and the integer arithmetic keys; nothing for
// any other key. Dates are not
// handled here (the caller routes integer add and subtract of a date to the date rules).
// Division by a divisor that narrows to 0 gives the error value.
std::optional<TaggedValue> IntegerOperation(const Preferences& prefs, FunctionId op, TaggedValue y, TaggedValue x);

}  // namespace brinto
