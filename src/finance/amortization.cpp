#include "finance/amortization.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "display/number_format.h"
#include "engine/families.h"
#include "engine/value_tags.h"
#include "finance/tvm.h"

namespace brinto {

namespace {

constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr int kMostPlaces = 15;  // a four-bit digit field less one
// Below this the scaled value keeps a binary fraction fine enough (2^-10) to tell the rounding.
constexpr double kShortcutLimit = 1099511627776.0;  // 2^40
// How far the scaled fraction must be from one half for the shortcut to decide as the digits do.
constexpr double kShortcutMargin = 1e-3;

// A payment number typed for Start or End: truncated, then taken as an unsigned 16-bit number
// (modulo 65536) and stored in the signed field, where anything below 1 becomes 1.
i16 PaymentNumber(double x) {
    if (!std::isfinite(x)) return 0;
    double wrapped = std::fmod(std::trunc(x), 65536.0);
    if (wrapped < 0.0) wrapped += 65536.0;
    return static_cast<i16>(static_cast<u16>(wrapped));
}

// N's integer part for the clamps, which only apply when it is below a payment number.
i16 TruncatedPeriods(double n) { return n <= -32768.0 ? i16{-32768} : static_cast<i16>(std::trunc(n)); }

void Show(Engine& e, double value, ValueTag tag) {
    e.SetX(value);
    e.SetXTag(tag);
}

}  // namespace

double RoundToPlacesByDigits(double value, int places) {
    if (places < 0 || !std::isfinite(value)) return value;
    char text[40];
    const auto written = std::to_chars(text, text + sizeof text, std::fabs(value), std::chars_format::scientific);
    // "d.ddde+x": the digits without the point, and the exponent.
    char digits[48] = {};
    int count = 0;
    const char* p = text;
    for (; p < written.ptr && *p != 'e'; ++p) {
        if (*p != '.') digits[count++] = *p;
    }
    int exponent = 0;
    std::from_chars(p + (p[1] == '+' ? 2 : 1), written.ptr, exponent);
    int decpt = exponent + 1;
    const int significant = decpt + places;
    if (significant < 0) return std::copysign(0.0, value);  // below half a unit of the last place
    RoundDigits(digits, decpt, significant);

    char rounded[64];
    const int length = static_cast<int>(std::strlen(digits));
    std::memcpy(rounded, digits, static_cast<std::size_t>(length));
    char* end = rounded + length;
    *end++ = 'e';
    end = std::to_chars(end, rounded + sizeof rounded, decpt - length).ptr;
    double result = 0.0;
    std::from_chars(rounded, end, result);
    return std::copysign(result, value);
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
            if (std::fabs(fraction - 0.5) > kShortcutMargin) {
                const double k = fraction > 0.5 ? whole + 1.0 : whole;
                return std::copysign(k / scale, value);
            }
        }
    }
    return RoundToPlacesByDigits(value, places);
}

int AmortizationPlaces(const Preferences& prefs) { return prefs.DigitField() - 1; }

namespace {

// Start and End cut to 1..N (N's integer part, which wins when N is below 1). A block starting
// beyond N cannot continue: the result is whether continuing is still allowed.
bool ClampRange(CalcState& s, double periods, bool next) {
    if (s.amortStart < 1) s.amortStart = 1;
    if (s.amortStart > periods) {
        s.amortStart = TruncatedPeriods(periods);
        next = false;
    }
    if (s.amortEnd < 1) s.amortEnd = 1;
    if (s.amortEnd > periods) s.amortEnd = TruncatedPeriods(periods);
    return next;
}

// X Int, Y Prin, Z Bal; "=" then steps through Prin and Bal.
void ShowResults(Engine& e) {
    CalcState& s = e.state;
    if (e.LiftEnabled()) e.Lift();
    Show(e, s.amortBalance, label::Balance);
    e.Lift();
    Show(e, s.amortPrincipal, label::Principal);
    e.Lift();
    Show(e, s.amortInterest, label::Interest);
    s.repeatOperator = fid::Amortize;
    s.amortStep = 2;
}

}  // namespace

void Amortize(Engine& e, Continuation continuation) {
    CalcState& s = e.state;
    const double* r = e.registers.values;
    const bool next = ClampRange(
        s, r[reg::N], continuation == Continuation::NextBlock && s.amortStart >= 1 && s.amortBalance > 0.0);
    const int places = AmortizationPlaces(e.prefs);
    const double i = PeriodicRate(r[reg::IYr], r[reg::PYr]);
    const double payment = RoundToPlaces(r[reg::PMT], places);
    const bool begin = s.engineFlags & flags::Begin;
    if (!next) s.amortBalance = RoundToPlaces(r[reg::PV], places);
    s.amortInterest = 0.0;
    s.amortPrincipal = 0.0;

    // Sums of amounts already at the display's places are rounded again only to shed the binary
    // residue of the addition: the balance reads 99900.45, not 99900.450000000012.
    const auto add = [places](double a, double b) { return RoundToPlaces(a + b, places); };
    for (int k = next ? s.amortStart - 1 : 0; k < s.amortEnd;) {
        double interest = RoundToPlaces(s.amortBalance * i, places);
        // In Begin mode the loan's first payment falls before any interest is due; a block
        // continued from a balance is never the loan's first.
        if (k == 0 && begin && !next) interest = 0.0;
        const double principal = add(interest, payment);  // the change of the balance, with its sign
        // Interest is reported with the sign of the payment.
        const double shown = payment < 0.0 ? -std::fabs(interest) : std::fabs(interest);
        // The same sum as balance + principal (every term is a whole number of the last place),
        // without waiting for the principal's rounding.
        s.amortBalance = add(s.amortBalance + interest, payment);
        ++k;
        if (s.amortStart <= k && k <= s.amortEnd) {
            s.amortInterest += shown;
            s.amortPrincipal += principal;
        }
    }
    // The totals' residue is far below half a unit of the last place: one rounding at the end
    // gives what rounding every partial sum would.
    s.amortInterest = RoundToPlaces(s.amortInterest, places);
    s.amortPrincipal = RoundToPlaces(s.amortPrincipal, places);
    ShowResults(e);
}

void AmortizeKey(Engine& e) {
    CalcState& s = e.state;
    if (e.EntryOpen()) {
        e.FinishEntry();
        s.amortStart = PaymentNumber(e.Y());
        s.amortEnd = PaymentNumber(e.X());
        e.SetYTag(label::Start);
        e.SetXTag(label::End);
    } else if (e.LiftEnabled()) {
        e.Lift();
    }
    Amortize(e, Continuation::FromStart);
}

void AmortizationRepeat(Engine& e) {
    CalcState& s = e.state;
    switch (s.amortStep) {
        case 2: Show(e, s.amortPrincipal, label::Principal); break;
        case 1: Show(e, s.amortBalance, label::Balance); break;
        default: Amortize(e, Continuation::NextBlock); return;
    }
    --s.amortStep;
}

}  // namespace brinto
