#pragma once
// The two-operand functions of Y and X, shared by every input method.
#include "engine/engine.h"

namespace brinto {

// X! for whole numbers 0..170 (to 14 digits), by multiplication; the error value otherwise.
double Factorial(double x);

}  // namespace brinto
