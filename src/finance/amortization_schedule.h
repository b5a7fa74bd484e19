#pragma once
// The amortization schedule: every payment of the loan in the TVM registers with its interest,
// principal and balance, and the totals of each year, as a printed schedule lists them. Each
// amount is the one the amortization keys give for that payment (the same rounding to the
// display's places, the same payment timing), and building the schedule changes nothing in the
// calculator: the Start, End and balance of the amortization keys stay as they are.
#include <string>
#include <vector>

#include "engine/engine.h"

namespace brinto {

// The highest payment number the amortization keys can reach; a longer loan is listed up to it.
inline constexpr int kMostSchedulePayments = 32767;

struct ScheduleRow {
    int payment;  // 1-based
    double interest;
    double principal;
    double balance;  // after this payment
};

// The payments of one year: P/YR payments from payment 1 on (the last year may be shorter).
struct ScheduleYear {
    int year;  // 1-based
    int firstPayment;
    int lastPayment;
    double interest;   // what the amortization keys give for Start = firstPayment, End = lastPayment
    double principal;
    double balance;    // after the year's last payment
};

struct AmortizationSchedule {
    std::vector<ScheduleRow> payments;
    std::vector<ScheduleYear> years;
    int places = -1;  // the decimals amounts are rounded to; -1: all digits
};

// The schedule of the loan in force: payments 1 to N's integer part (none when N is below 1),
// years of P/YR's integer part payments (one payment when P/YR is below 1).
AmortizationSchedule MakeAmortizationSchedule(const Engine& e);

// The schedule as CSV text, one line per payment and after each year's last payment that year's
// totals:
//   Year,Payment,Interest,Principal,Balance
//   1,1,-500.00,-99.55,99900.45
//   ...
//   1,Total,-5966.59,-1228.01,98771.99
// Amounts carry the schedule's places (all digits when it has none); an amount that is not a
// number (a P/YR of 0) reads "error", as the display shows it. Lines end in "\n".
std::string ScheduleCsv(const AmortizationSchedule& schedule);

}  // namespace brinto
