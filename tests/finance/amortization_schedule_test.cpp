#include "finance/amortization_schedule.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tuple>
#include <vector>

#include "finance_test_support.h"

namespace brinto {
namespace {

using namespace test;

struct Loan {
    const char* name;
    std::vector<std::pair<const char*, FunctionId>> registers;  // typed, then stored by the key
    int decimals;                                               // -1: the display shows all digits
    bool begin;
};

Engine LoanEngine(const Loan& loan) {
    Engine e = MakeEngine(InputMethod::Rpn);
    for (const auto& [number, key] : loan.registers) Store(e, number, key);
    if (loan.decimals >= 0) Press(e, {fid::FormatFixed, DigitKey(loan.decimals)});
    if (loan.begin) e.Dispatch(fid::BeginEnd);
    return e;
}

// Int, Prin and Bal as the amortization keys give them for payments start..end.
std::tuple<double, double, double> ByTheKeys(Engine& e, int start, int end) {
    Store(e, std::to_string(start), fid::Enter);
    Store(e, std::to_string(end), fid::Amortize);
    return {e.X(), e.Y(), e.state.stack[2]};
}

TEST(AmortizationSchedule, RowsAndYearsAreWhatTheAmortizationKeysGive) {
    const Loan loans[] = {
        {"mortgage, cents", {{"360", fid::N}, {"6", fid::IYr}, {"100000", fid::PV}, {"-599.55", fid::PMT}}, 2, false},
        {"ties at three decimals",
         {{"219", fid::N}, {"8.2", fid::IYr}, {"393543", fid::PV}, {"-3470.2", fid::PMT}}, 3, false},
        {"quarterly in Begin mode, a short last year",
         {{"4", fid::PYr}, {"10", fid::N}, {"7.5", fid::IYr}, {"-20000", fid::PV}, {"2300", fid::PMT}}, 0, true},
        {"all digits, N not whole", {{"14.7", fid::N}, {"5", fid::IYr}, {"1000", fid::PV}, {"-100", fid::PMT}}, -1, false},
    };
    for (const Loan& loan : loans) {
        SCOPED_TRACE(loan.name);
        Engine e = LoanEngine(loan);
        const CalcState before = e.state;
        const AmortizationSchedule schedule = MakeAmortizationSchedule(e);
        EXPECT_EQ(std::memcmp(&before, &e.state, sizeof before), 0);  // the keys' range and balance untouched

        const int count = static_cast<int>(e.registers.values[reg::N]);
        ASSERT_EQ(schedule.payments.size(), static_cast<std::size_t>(count));
        for (const ScheduleRow& row : schedule.payments) {
            SCOPED_TRACE(row.payment);
            EXPECT_EQ(std::tuple(row.interest, row.principal, row.balance), ByTheKeys(e, row.payment, row.payment));
        }
        const int perYear = static_cast<int>(e.registers.values[reg::PYr]);
        ASSERT_EQ(schedule.years.size(), static_cast<std::size_t>((count + perYear - 1) / perYear));
        for (const ScheduleYear& year : schedule.years) {
            SCOPED_TRACE(year.year);
            EXPECT_EQ(year.firstPayment, (year.year - 1) * perYear + 1);
            EXPECT_EQ(year.lastPayment, std::min(year.year * perYear, count));
            EXPECT_EQ(std::tuple(year.interest, year.principal, year.balance),
                      ByTheKeys(e, year.firstPayment, year.lastPayment));
        }
    }
}

TEST(AmortizationSchedule, CsvListsPaymentsAndYearTotals) {
    // 1% a period; P/YR 2 makes a year of two payments.
    Engine e = LoanEngine({"", {{"2", fid::PYr}, {"3", fid::N}, {"2", fid::IYr}, {"1000", fid::PV}, {"-340", fid::PMT}}, 2, false});
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
