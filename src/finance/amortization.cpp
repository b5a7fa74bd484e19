#include "finance/amortization.h"

#include <cmath>

#include "engine/value_tags.h"
#include "finance/key_handlers.h"
#include "finance/tvm.h"

namespace brinto {

namespace {

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

AmortizationTerms TermsInForce(const Engine& e) {
    const double* r = e.registers.values;
    const int places = AmortizationPlaces(e.prefs);
    return {PeriodicRate(r[reg::IYr], r[reg::PYr]), RoundToPlaces(r[reg::PV], places),
            RoundToPlaces(r[reg::PMT], places), places, (e.state.engineFlags & flags::Begin) != 0};
}

PaymentSplit AmortizePayment(const AmortizationTerms& t, double balance, bool firstOfLoan) {
    // Sums of amounts already at the display's places are rounded again only to shed the binary
    // residue of the addition: the balance reads 99900.45, not 99900.450000000012.
    const auto add = [&t](double a, double b) { return RoundToPlaces(a + b, t.places); };
    // In Begin mode the loan's first payment falls before any interest is due.
    const double interest = firstOfLoan && t.begin ? 0.0 : RoundToPlaces(balance * t.rate, t.places);
    const double principal = add(interest, t.payment);  // the change of the balance, with its sign
    // Interest is reported with the sign of the payment.
    const double shown = t.payment < 0.0 ? -std::fabs(interest) : std::fabs(interest);
    // The same sum as balance + principal (every term is a whole number of the last place),
    // without waiting for the principal's rounding.
    return {shown, principal, add(balance + interest, t.payment)};
}

namespace {

// Start..End (cut to 1..N) from payment 1, or a block continued from the balance reached, into
// the amortization fields of `s`.
void AmortizeInto(CalcState& s, const AmortizationTerms& terms, double periods, bool continueBlock) {
    const bool next = ClampRange(s, periods, continueBlock && s.amortStart >= 1 && s.amortBalance > 0.0);
    if (!next) s.amortBalance = terms.presentValue;
    double interest = 0.0, principal = 0.0;
    // From payment 1 the payments before Start only move the balance; a block continued from a
    // balance is never the loan's first payment.
    for (int k = next ? s.amortStart - 1 : 0; k < s.amortEnd;) {
        const PaymentSplit payment = AmortizePayment(terms, s.amortBalance, k == 0 && !next);
        s.amortBalance = payment.balance;
        ++k;
        if (s.amortStart <= k && k <= s.amortEnd) {
            interest += payment.interest;
            principal += payment.principal;
        }
    }
    // The totals' residue is far below half a unit of the last place: one rounding at the end
    // gives what rounding every partial sum would.
    s.amortInterest = RoundToPlaces(interest, terms.places);
    s.amortPrincipal = RoundToPlaces(principal, terms.places);
}

}  // namespace

void Amortize(Engine& e, Continuation continuation) {
    AmortizeInto(e.state, TermsInForce(e), e.registers.values[reg::N], continuation == Continuation::NextBlock);
    ShowResults(e);
}

AmortizationResults AmortizeStoredRange(const Engine& e) {
    CalcState s = e.state;
    AmortizeInto(s, TermsInForce(e), e.registers.values[reg::N], false);
    return {s.amortStart, s.amortEnd, s.amortInterest, s.amortPrincipal, s.amortBalance};
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
