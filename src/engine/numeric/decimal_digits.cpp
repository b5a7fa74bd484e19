#include "engine/numeric/decimal_digits.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace brinto {

namespace {

constexpr int kCleanDigits = 14;  // RoundTo14

constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr int kMostPlaces = 15;  // a four-bit digit field less one
// Below this the scaled value keeps a binary fraction fine enough (2^-10) to tell the rounding.
constexpr double kShortcutLimit = 1099511627776.0;  // 2^40
// How far the scaled fraction must be from one half for the shortcut to decide as the digits do,
// beyond what rounding to the display's 12 digits can move it.
constexpr double kShortcutMargin = 1e-3;
constexpr double kTwelveDigitShift = 1e-11;

}  // namespace

void DigitString::PadTo(int count) {
    const int length = Length();
    const int target = std::min(count, static_cast<int>(sizeof digits) - 1);
    if (length >= target) return;
    std::memset(digits + length, '0', static_cast<std::size_t>(target - length));
    digits[target] = '\0';
}

DigitString ShortestDigits(double value) {
    char text[32];
    const auto result = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific);
    DigitString s;
    const char* p = text;
    if (*p == '-') {
        s.negative = value != 0;  // -0 shows as 0
        ++p;
    }
    int count = 0;
    for (; p < result.ptr && *p != 'e'; ++p) {
        if (*p != '.') s.digits[count++] = *p;
    }
    s.digits[count] = '\0';
    // The exponent is "e+dd" or "e-ddd".
    int exponent = 0;
    if (p + 2 <= result.ptr) {
        const bool negativeExponent = p[1] == '-';
        std::from_chars(p + 2, result.ptr, exponent);
        if (negativeExponent) exponent = -exponent;
    }
    s.decpt = exponent + 1;
    return s;
}

double DigitsValue(const DigitString& s) {
    char text[64];
    char* p = text;
    if (s.negative) *p++ = '-';
    const int length = s.Length();
    std::memcpy(p, s.digits, static_cast<std::size_t>(length));
    p += length;
    *p++ = 'e';
    p = std::to_chars(p, text + sizeof text, s.decpt - length).ptr;
    double value = 0.0;
    std::from_chars(text, p, value);
    return value;
}

u32 RoundDigits(char* digits, int& decpt, int n) {
    n = std::max(n, 0);
    const int length = static_cast<int>(std::strlen(digits));
    if (length <= n) return 0;

    const bool roundUp = digits[n] >= '5';
    digits[n] = '\0';
    if (roundUp) {
        int i = n - 1;
        for (; i >= 0 && digits[i] == '9'; --i) digits[i] = '0';
        if (i >= 0) {
            ++digits[i];
        } else {
            // 999 -> 1000: a new leading digit; the kept digits are all zeros now.
            std::memmove(digits + 1, digits, static_cast<std::size_t>(n) + 1);
            digits[0] = '1';
            ++decpt;
        }
    }
    int kept = static_cast<int>(std::strlen(digits));
    while (kept > 1 && digits[kept - 1] == '0') digits[--kept] = '\0';
    if (kept == 0) {
        // Nothing kept and nothing carried: the value rounds to zero.
        digits[0] = '0';
        digits[1] = '\0';
    }
    return roundUp ? 1 : 0;
}

double RoundTo14(double value) {
    if (!std::isfinite(value)) return value;
    DigitString s = ShortestDigits(value);
    if (s.Length() <= kCleanDigits) return value;  // the shortest form already reads back exactly
    RoundDigits(s.digits, s.decpt, kCleanDigits);
    return DigitsValue(s);
}

double RoundToPlacesByDigits(double value, int places) {
    if (places < 0 || !std::isfinite(value)) return value;
    DigitString s = ShortestDigits(value);
    // As the display: at most 12 significant digits first, then the decimals; 2689.2104999999998
    // shows as 2689.2105 and so as 2689.211 with three decimals.
    RoundDigits(s.digits, s.decpt, kMostShownDigits);
    const int significant = s.decpt + places;
    if (significant < 0) return std::copysign(0.0, value);  // below half a unit of the last place
    RoundDigits(s.digits, s.decpt, significant);
    return std::copysign(DigitsValue(s), value);
}

double RoundToPlaces(double value, int places) {
    if (places < 0 || !std::isfinite(value)) return value;
    if (places <= kMostPlaces) {
        // k / 10^places, both exact, divides to the double nearest the decimal k x 10^-places,
        // which is what reading the rounded digits gives.
        const double scale = kPowersOfTen[places];
        const double scaled = std::fabs(value) * scale;
        if (scaled < kShortcutLimit) {
            // Truncation is the floor of a positive value, without a library call.
            const double whole = static_cast<double>(static_cast<long long>(scaled));
            const double fraction = scaled - whole;
            // Rounding to 12 significant digits first moves the value by at most half a unit of
            // its 12th digit, below 1e-11 of it: only a fraction that close to one half can
            // become a decimal tie, and those go by the digits.
            if (std::fabs(fraction - 0.5) > kShortcutMargin + scaled * kTwelveDigitShift) {
                const double k = fraction > 0.5 ? whole + 1.0 : whole;
                return std::copysign(k / scale, value);
            }
        }
    }
    return RoundToPlacesByDigits(value, places);
}

}  // namespace brinto
