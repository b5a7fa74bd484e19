#include "finance/amortization.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <tuple>
#include <vector>

#include "engine/value_tags.h"
#include "finance/amortization_schedule.h"
#include "engine/engine_test_support.h"

namespace brinto {
namespace {

using namespace test;

using Registers = std::vector<std::pair<const char*, FunctionId>>;  // typed, then stored by the key
const Registers kMortgage = {{"360", fid::N}, {"6", fid::IYr}, {"100000", fid::PV}, {"-599.55", fid::PMT}};

// An engine holding a loan, showing `decimals` places in Fixed (-1: all digits).
Engine Loan(const Registers& registers, int decimals = 2, bool begin = false) {
    Engine e = MakeEngine(InputMethod::Rpn);
    for (const auto& [number, key] : registers) Store(e, number, key);
    if (decimals >= 0) Press(e, {fid::FormatFixed, DigitKey(decimals)});
    if (begin) e.Dispatch(fid::BeginEnd);
    return e;
}

// Int, Prin and Bal as the amortization keys give them for payments start..end.
std::tuple<double, double, double> Range(Engine& e, int start, int end) {
    Store(e, std::to_string(start), fid::Enter);
    Store(e, std::to_string(end), fid::Amortize);
    return {e.X(), e.Y(), e.state.stack[2]};
}
double Balance(Engine& e, int start, int end) { return std::get<2>(Range(e, start, end)); }

// "=" shows Prin, then Bal, then amortizes the next block of the same length; the second key
// with nothing typed amortizes the stored range from payment 1. In Begin mode the first payment
// comes before any interest. On the lender's side the balance is negative, and the next block
// starts again from it.
TEST(Amortization, FirstPaymentInBothTimingsAndTheKeysThatContinue) {
    Engine e = Loan(kMortgage);
    EXPECT_EQ(Range(e, 1, 1), std::tuple(-500.0, -99.55, 99900.45));
    const ValueTag labels[] = {label::Interest, label::Principal, label::Balance, label::Start};
    EXPECT_TRUE(std::equal(labels, labels + 4, e.state.tags));  // the typed End gave way to Bal
    const auto first = Range(e, 1, 12), second = Range(e, 13, 24);
    Range(e, 1, 12);
    Press(e, {fid::Equals, fid::Equals, fid::Equals});
    EXPECT_EQ(std::tuple(e.X(), e.state.stack[2]), std::tuple(std::get<0>(second), std::get<2>(second)));
    Press(e, {fid::ClearX, fid::SecondAmortize});
    EXPECT_EQ(e.X(), std::get<0>(first));
    e.Dispatch(fid::BeginEnd);
    EXPECT_EQ(Range(e, 1, 1), std::tuple(0.0, -599.55, 99400.45));
    e.Dispatch(fid::AmortizeNext);  // a continued block is never the loan's first payment
    EXPECT_EQ(std::tuple(e.X(), e.state.stack[2]), std::tuple(-497.0, 99297.9));  // 99400.45 x 0.5% = 497.00225

    e = Loan({{"360", fid::N}, {"6", fid::IYr}, {"-100000", fid::PV}, {"599.55", fid::PMT}});
    const auto [interest, principal, balance] = Range(e, 1, 12);
    EXPECT_GT(interest, 0.0);
    EXPECT_EQ((e.Dispatch(fid::AmortizeNext), e.state.stack[2]), balance);
}

TEST(Amortization, RangeIsCutToNAndRoundedToTheDisplay) {
    Engine e = Loan(kMortgage);
    Store(e, "24", fid::N);
    const double whole = Balance(e, 1, 24);
    EXPECT_EQ(Balance(e, 1, 400), whole);
    EXPECT_EQ(e.state.amortEnd, 24);
    Range(e, 30, 40);
    EXPECT_EQ(e.state.amortStart, 24);
    Store(e, "0", fid::N);
    EXPECT_EQ(Balance(e, 1, 12), 100000.0);  // no payments at all

    Store(e, "360", fid::N);
    Press(e, {fid::FormatFixed, 0});
    EXPECT_EQ(std::get<1>(Range(e, 1, 1)), -100.0);  // the payment is rounded to 600 too
    e.prefs.SetDigitField(0);                          // all digits: nothing is rounded
    Store(e, "-599.550525", fid::PMT);
    EXPECT_EQ(std::get<1>(Range(e, 1, 1)), 500.0 + -599.550525);
}

TEST(AmortizationSchedule, RowsAndYearsAreWhatTheAmortizationKeysGive) {
    const struct { const char* name; Registers registers; int decimals; bool begin; } loans[] = {
        {"mortgage, cents", kMortgage, 2, false},
        {"ties at three decimals",
         {{"219", fid::N}, {"8.2", fid::IYr}, {"393543", fid::PV}, {"-3470.2", fid::PMT}}, 3, false},
        {"quarterly in Begin mode, a short last year",
         {{"4", fid::PYr}, {"10", fid::N}, {"7.5", fid::IYr}, {"-20000", fid::PV}, {"2300", fid::PMT}}, 0, true},
        {"all digits, N not whole", {{"14.7", fid::N}, {"5", fid::IYr}, {"1000", fid::PV}, {"-100", fid::PMT}}, -1, false},
    };
    for (const auto& loan : loans) {
        SCOPED_TRACE(loan.name);
        Engine e = Loan(loan.registers, loan.decimals, loan.begin);
        const CalcState before = e.state;
        const AmortizationSchedule schedule = MakeAmortizationSchedule(e);
        EXPECT_EQ(std::memcmp(&before, &e.state, sizeof before), 0);  // the keys' range and balance untouched

        const int count = static_cast<int>(e.registers.values[reg::N]);
        ASSERT_EQ(schedule.payments.size(), static_cast<std::size_t>(count));
        for (const ScheduleRow& row : schedule.payments) {
            SCOPED_TRACE(row.payment);
            EXPECT_EQ(std::tuple(row.interest, row.principal, row.balance), Range(e, row.payment, row.payment));
        }
        const int perYear = static_cast<int>(e.registers.values[reg::PYr]);
        ASSERT_EQ(schedule.years.size(), static_cast<std::size_t>((count + perYear - 1) / perYear));
        for (const ScheduleYear& year : schedule.years) {
            SCOPED_TRACE(year.year);
            EXPECT_EQ(std::pair(year.firstPayment, year.lastPayment),
                      std::pair((year.year - 1) * perYear + 1, std::min(year.year * perYear, count)));
            EXPECT_EQ(std::tuple(year.interest, year.principal, year.balance),
                      Range(e, year.firstPayment, year.lastPayment));
        }
    }
}

TEST(AmortizationSchedule, CsvListsPaymentsAndYearTotals) {
    // 1% a period; P/YR 2 makes a year of two payments.
    Engine e = Loan({{"2", fid::PYr}, {"3", fid::N}, {"2", fid::IYr}, {"1000", fid::PV}, {"-340", fid::PMT}});
    EXPECT_EQ(ScheduleCsv(MakeAmortizationSchedule(e)),
              "Year,Payment,Interest,Principal,Balance\n"
              "1,1,-10.00,-330.00,670.00\n"
              "1,2,-6.70,-333.30,336.70\n"
              "1,Total,-16.70,-663.30,336.70\n"
              "2,3,-3.37,-336.63,0.07\n"  // 3.367 of interest
              "2,Total,-3.37,-336.63,0.07\n");
    Store(e, "0", fid::PYr);  // no periodic rate: the amounts are no numbers
    EXPECT_NE(ScheduleCsv(MakeAmortizationSchedule(e)).find("\n1,1,error,error,error\n1,Total,error,error,error\n2,2,"),
              std::string::npos);
    Store(e, "0", fid::N);
    EXPECT_EQ(ScheduleCsv(MakeAmortizationSchedule(e)), "Year,Payment,Interest,Principal,Balance\n");
}

}  // namespace
}  // namespace brinto
