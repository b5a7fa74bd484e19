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

// The loan as amortization reads it from the TVM registers, the payment timing and the display.
struct AmortizationTerms {
    double rate;          // per payment period: I/YR / P/YR / 100
    double presentValue;  // PV at the display's places: the balance before payment 1
    double payment;       // PMT at the display's places
    int places;           // AmortizationPlaces
    bool begin;           // payments at the start of each period
};
AmortizationTerms TermsInForce(const Engine& e);

// One payment split into interest and principal, each at the display's places: interest with
// the payment's sign, principal with the sign of the balance's change, and the balance after it.
struct PaymentSplit {
    double interest;
    double principal;
    double balance;
};
// The payment made on `balance`. On the loan's first payment (`firstOfLoan`) in Begin mode no
// interest is due yet.
PaymentSplit AmortizePayment(const AmortizationTerms& terms, double balance, bool firstOfLoan);

enum class Continuation { FromStart, NextBlock };

// Amortizes Start..End from payment 1, or (NextBlock) a block of the same length from the
// balance already reached, and shows the results.
void Amortize(Engine& e, Continuation continuation);

// What the amortization key gives for the stored Start and End (cut to 1..N as it cuts them),
// from payment 1, changing nothing: the Amortization view shows these beside the range it shows.
struct AmortizationResults {
    int start;
    int end;
    double interest;
    double principal;
    double balance;
};
AmortizationResults AmortizeStoredRange(const Engine& e);

// AMORT: Start in Y and End in X when they are being typed, else the stored range.
void AmortizeKey(Engine& e);

}  // namespace brinto
