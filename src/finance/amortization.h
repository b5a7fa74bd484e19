#pragma once
// Amortization: splits the payments Start..End of the loan in the TVM registers into interest
// and principal and gives the balance after them. Every periodic amount is rounded to the
// display's decimal places, so that the figures add up as on a printed schedule. The results
// go onto the stack as Int (X), Prin (Y) and Bal (Z); "=" then steps through them.
#include "engine/engine.h"

namespace brinto {

// `value` rounded to `places` decimals as the display rounds it: its shortest decimal digits cut to
// the display's 12 significant digits, then rounded half-up to the decimals. So 0.125 goes to 0.13
// although its double lies just below it, and 2689.2104999999998 (shown 2689.2105) to 2689.211.
// A negative `places`, or a value that is not finite, leaves it unchanged.
double RoundToPlaces(double value, int places);
// The same by way of the digit string every time; RoundToPlaces takes a shortcut where the
// decision is clear from the double alone.
double RoundToPlacesByDigits(double value, int places);

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
