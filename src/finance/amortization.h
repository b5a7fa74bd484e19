#pragma once
// Amortization: splits the payments Start..End of the loan in the TVM registers into interest
// and principal and gives the balance after them. Every periodic amount is rounded to the
// display's decimal places, so that the figures add up as on a printed schedule. The results
// go onto the stack as Int (X), Prin (Y) and Bal (Z); "=" then steps through them.
#include "engine/engine.h"
#include "engine/numeric/decimal_digits.h"  // RoundToPlaces

namespace brinto {

// The decimal places amounts are rounded to: the display's digit field less one, or -1 (no
// rounding) while the display shows all digits.
int AmortizationPlaces(const Preferences& prefs);

enum class Continuation { FromStart, NextBlock };

// Amortizes Start..End from payment 1, or (NextBlock) a block of the same length from the
// balance already reached, and shows the results.
void Amortize(Engine& e, Continuation continuation);

// AMORT: Start in Y and End in X when they are being typed, else the stored range.
void AmortizeKey(Engine& e);

}  // namespace brinto
