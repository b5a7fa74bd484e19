#pragma once
// A whole calculator: the engine with every family of keys, in the one order Dispatch offers a key
// to them. Whoever makes an engine that takes keys (the session, benchmarks, fuzzers, tests) makes
// it with these.
#include "engine/families.h"

namespace brinto {

const KeyFamilies& CalculatorFamilies();

}  // namespace brinto
