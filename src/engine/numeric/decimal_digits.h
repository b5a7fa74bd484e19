#pragma once
// Decimal digits of doubles, and the roundings every part of the calculator shares: the display's
// rounding of a digit string, the 14-digit cleaning of computed differences, and amounts rounded
// to the display's decimals. All of them round the shortest round-trip digit string of the
// double half up, not its binary value, so that 0.1 + 0.2 is 0.3 and 1.005 rounds to 1.01.
#include <cstring>

#include "engine/types.h"

namespace brinto {

inline constexpr int kMostShownDigits = 12;  // the display never shows more significant digits

// A decimal digit string without point or sign: value = 0.d1d2... x 10^decpt. The buffer holds
// the 17 digits of a shortest form with room for padding to a fixed count.
struct DigitString {
    char digits[48] = {};
    int decpt = 0;
    bool negative = false;

    int Length() const { return static_cast<int>(std::strlen(digits)); }
    void PadTo(int count);
};

// The shortest digit string that reads back as `value` (which must be finite). Zero is "0" with
// decpt 1; -0 is not negative.
DigitString ShortestDigits(double value);

// The double nearest the decimal the digit string stands for.
double DigitsValue(const DigitString& s);

// Rounds the digit string `digits` (NUL-terminated, no point, value = 0.d1d2... x 10^decpt) to n
// significant digits, half up on the decimal digits; the buffer must have room for one more
// digit. Returns 1 when the cut digit rounded up.
u32 RoundDigits(char* digits, int& decpt, int n);

// The value rounded to 14 significant decimal digits; a value that is not finite is unchanged.
double RoundTo14(double value);

// `value` rounded to `places` decimals as the display rounds it: its shortest decimal digits cut to
// the display's 12 significant digits, then rounded half-up to the decimals. So 0.125 goes to 0.13
// although its double lies just below it, and 2689.2104999999998 (shown 2689.2105) to 2689.211.
// A negative `places`, or a value that is not finite, leaves it unchanged.
double RoundToPlaces(double value, int places);
// The same by way of the digit string every time; RoundToPlaces takes a shortcut where the
// decision is clear from the double alone.
double RoundToPlacesByDigits(double value, int places);

}  // namespace brinto
