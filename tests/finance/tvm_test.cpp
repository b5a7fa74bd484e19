#include <gtest/gtest.h>

#include <cmath>

#include "finance/result_labels.h"
#include "finance/tvm.h"
#include "finance_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;
using test::Store;
using test::Type;

// The account a loan runs through, period by period in long double: it opens with PV, each
// period earns interest and takes the payment (before the interest in Begin mode), and FV
// closes it. The TVM equation holds when the closing balance is zero; this walks it instead
// of using the annuity formulas.
long double ClosingBalance(const TvmProblem& p, int periods) {
    const long double i = static_cast<long double>(p.yearlyRate) / p.perYear / 100.0L;
    long double balance = p.presentValue;
    for (int t = 0; t < periods; ++t) {
        if (p.begin) balance += p.payment;
        balance *= 1.0L + i;
        if (!p.begin) balance += p.payment;
    }
    return balance;
}

// Problems whose cash flows change sign once (one rate solves them) and whose FV is not a
// small difference of large terms.
struct Loan {
    const char* name;
    TvmProblem p;  // futureValue is filled in from the walk
};

std::vector<Loan> Loans() {
    std::vector<Loan> loans = {
        {"balloon", {360, 6.0, 100000, -550, 0, 12, false}},
        {"balloonBegin", {360, 6.0, 100000, -550, 0, 12, true}},
        {"savings", {40, 3.25, -2500, -150, 0, 4, false}},
        {"savingsBegin", {40, 3.25, -2500, -150, 0, 4, true}},
        {"lease", {48, 9.9, 32000, -640, 0, 12, true}},
        {"yearly", {10, 11.0, -10000, 1500, 0, 1, false}},
        {"weekly", {104, 4.5, 5000, -40, 0, 52, false}},
    };
    for (Loan& l : loans) {
        l.p.futureValue = static_cast<double>(-ClosingBalance(l.p, static_cast<int>(l.p.periods)));
    }
    return loans;
}

void ExpectClose(double actual, long double expected, const char* what) {
    SCOPED_TRACE(what);
    const long double scale = std::fmax(1.0L, std::fabs(expected));
    EXPECT_LE(std::fabs(actual - expected) / scale, 1e-11L) << actual << " vs " << static_cast<double>(expected);
}

TEST(TvmClosedForms, AgreeWithThePeriodByPeriodAccount) {
    for (const Loan& l : Loans()) {
        SCOPED_TRACE(l.name);
        const TvmProblem& p = l.p;
        ExpectClose(SolveFutureValue(p), -ClosingBalance(p, static_cast<int>(p.periods)), "FV");

        // The closing balance is linear in PV and in PMT: two walks give the root of each.
        TvmProblem q = p;
        q.presentValue = 0;
        const long double withoutPv = ClosingBalance(q, static_cast<int>(p.periods)) + p.futureValue;
        q.presentValue = 1;
        const long double perPv = ClosingBalance(q, static_cast<int>(p.periods)) + p.futureValue - withoutPv;
        ExpectClose(SolvePresentValue(p), -withoutPv / perPv, "PV");

        q = p;
        q.payment = 0;
        const long double withoutPmt = ClosingBalance(q, static_cast<int>(p.periods)) + p.futureValue;
        q.payment = 1;
        const long double perPmt = ClosingBalance(q, static_cast<int>(p.periods)) + p.futureValue - withoutPmt;
        ExpectClose(SolvePayment(p), -withoutPmt / perPmt, "PMT");

        ExpectClose(SolvePeriods(p), p.periods, "N");

        q = p;
        q.yearlyRate = 1.0;  // a poor guess
        ExpectClose(SolveYearlyRate(q), p.yearlyRate, "I/YR");
    }
}

TEST(TvmClosedForms, ZeroRateUsesTheStraightLineForms) {
    // No interest: the payments simply add up. 24 payments of -50 against PV 1000 leave FV 200.
    for (const bool begin : {false, true}) {
        SCOPED_TRACE(begin ? "Begin" : "End");
        const TvmProblem p{24, 0.0, 1000, -50, 200, 12, begin};
        EXPECT_EQ(SolvePeriods(p), 24.0);
        EXPECT_EQ(SolvePresentValue(p), 1000.0);
        EXPECT_DOUBLE_EQ(SolvePayment(p), -50.0);
        EXPECT_EQ(SolveFutureValue(p), 200.0);
    }
    // A zero denominator gives what the arithmetic gives.
    EXPECT_TRUE(std::isinf(SolvePeriods({0, 0.0, 1000, 0, 0, 12, false})));
    EXPECT_TRUE(std::isnan(SolvePayment({0, 0.0, 0, 0, 0, 12, false})));
}

TEST(TvmClosedForms, PeriodsNeedPAndQOfOneSign) {
    // Money only comes in: no number of periods balances it.
    EXPECT_EQ(SolvePeriods({0, 5.0, 1000, 10, 10000, 12, false}), kErrorValue);
    // Both sides negative is the mirror of both positive: same N.
    const TvmProblem loan{0, 6.0, 100000, -599.55052515275, 0, 12, false};
    TvmProblem mirrored = loan;
    mirrored.presentValue = -loan.presentValue;
    mirrored.payment = -loan.payment;
    EXPECT_NEAR(SolvePeriods(loan), 360.0, 1e-9);
    EXPECT_NEAR(SolvePeriods(mirrored), 360.0, 1e-9);
    // A payment that only covers the interest never pays the loan off: ln 0 gives infinity.
    EXPECT_TRUE(std::isinf(SolvePeriods({0, 12.0, 1000, -10, 0, 12, false})));
}

TEST(TvmYearlyRate, ConvergesFromPoorGuessesAndFailsWithoutARoot) {
    const TvmProblem loan{360, 0.0, 100000, -599.550525152752, 0, 12, false};
    for (const double guess : {0.0, -5.0, 40.0, 6.0, 1e-3}) {
        SCOPED_TRACE(guess);
        TvmProblem p = loan;
        p.yearlyRate = guess;
        EXPECT_NEAR(SolveYearlyRate(p), 6.0, 1e-10);
    }
    TvmProblem noRoot = loan;
    noRoot.payment = 599.55;  // all money flows one way
    EXPECT_EQ(SolveYearlyRate(noRoot), kErrorValue);
    for (const double n : {0.0, -12.0, std::nan("")}) {
        TvmProblem p = loan;
        p.periods = n;
        EXPECT_EQ(SolveYearlyRate(p), kErrorValue);
    }
}

class TvmKeys : public ::testing::Test {
protected:
    Engine e = MakeEngine(InputMethod::Rpn);
    void Mortgage() {
        Store(e, "360", fid::N);
        Store(e, "6", fid::IYr);
        Store(e, "100000", fid::PV);
        Store(e, "0", fid::FV);
    }
};

TEST_F(TvmKeys, MortgagePaymentThenRateBack) {
    Mortgage();
    e.Dispatch(fid::PMT);
    EXPECT_NEAR(e.X(), -599.550525152752, 1e-9);
    EXPECT_EQ(e.XTag(), label::Payment);
    EXPECT_EQ(e.registers.values[reg::PMT], e.X());
    Store(e, "0", fid::IYr);  // the guess
    e.Dispatch(fid::IYr);
    EXPECT_NEAR(e.X(), 6.0, 1e-10);
    EXPECT_EQ(e.XTag(), label::YearlyRate);
    EXPECT_EQ(e.registers.values[reg::IYr], e.X());
}

TEST_F(TvmKeys, TypedNumberStoresAndTheNextNumberReplacesIt) {
    Store(e, "12", fid::PYr);
    EXPECT_EQ(e.registers.values[reg::PYr], 12.0);
    EXPECT_EQ(e.XTag(), label::PerYear);
    Type(e, "7");
    EXPECT_EQ(e.X(), 7.0);
    EXPECT_EQ(e.Y(), 0.0);  // 12 was replaced, not lifted
}

TEST_F(TvmKeys, PerYearWithoutTypingRecallsWithALift) {
    Store(e, "4", fid::PYr);
    Press(e, {5, fid::Enter, 4, fid::Add});  // 5 + 4: lift is enabled after it
    e.Dispatch(fid::PYr);
    EXPECT_EQ(e.X(), 4.0);
    EXPECT_EQ(e.Y(), 9.0);
    EXPECT_EQ(e.XTag(), label::PerYear);
}

TEST_F(TvmKeys, AfterEnterTheKeySolvesAlthoughXIsFresh) {
    Mortgage();
    e.Dispatch(fid::PMT);
    Press(e, {5, fid::Enter});  // no entry open now; X = 5 is not stored
    e.Dispatch(fid::N);
    EXPECT_NEAR(e.X(), 360.0, 1e-6);
    EXPECT_EQ(e.Y(), 5.0);  // lift was disabled by Enter: the 5 copy in X was replaced
    EXPECT_EQ(e.registers.values[reg::N], e.X());
}

TEST_F(TvmKeys, PeriodsLabelFollowsPaymentsPerYear) {
    const struct {
        const char* perYear;
        ValueTag label;
    } cases[] = {{"12", label::Months}, {"1", label::Years}, {"4", label::Periods}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.perYear);
        Store(e, c.perYear, fid::PYr);
        Store(e, "30", fid::N);
        EXPECT_EQ(e.XTag(), c.label);
        e.Dispatch(fid::N);  // solved (here from zeros, which gives whatever it gives)
        EXPECT_EQ(e.XTag(), c.label);
    }
}

TEST_F(TvmKeys, FailedRateSolveStoresTheErrorAndTheNextSolveStartsFromZero) {
    Mortgage();
    e.Dispatch(fid::PMT);
    Store(e, "0", fid::N);
    e.Dispatch(fid::IYr);
    EXPECT_EQ(e.X(), kErrorValue);
    EXPECT_EQ(e.registers.values[reg::IYr], kErrorValue);
    Store(e, "360", fid::N);
    e.Dispatch(fid::IYr);
    EXPECT_NEAR(e.X(), 6.0, 1e-10);
}

TEST_F(TvmKeys, StoringLoanQuantitiesRestartsTheAmortizationBalance) {
    const struct {
        FunctionId key;
        bool restarts;
    } cases[] = {{fid::N, false}, {fid::IYr, true}, {fid::PV, true}, {fid::PMT, true}, {fid::FV, false},
                 {fid::PYr, true}, {fid::Nom, true}, {fid::Eff, false}, {fid::Cost, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.key);
        e.state.amortBalance = 1234.5;
        Store(e, "12", c.key);
        EXPECT_EQ(e.state.amortBalance == 0.0, c.restarts);
        e.state.amortBalance = 1234.5;
        e.Dispatch(c.key);  // solving counts as storing
        EXPECT_EQ(e.state.amortBalance == 0.0, c.restarts);
    }
}

TEST_F(TvmKeys, EveryKeyButDividePerYearMarksTheRegistersChanged) {
    for (const FunctionId key : {fid::N, fid::IYr, fid::PV, fid::PMT, fid::FV, fid::PYr, fid::Nom, fid::Eff,
                                 fid::TimesPYr, fid::Cost, fid::Price, fid::Margin, fid::Markup}) {
        SCOPED_TRACE(key);
        e.dirty.registers = false;
        Store(e, "2", key);
        EXPECT_TRUE(e.dirty.registers);
    }
    e.dirty.registers = false;
    Store(e, "24", fid::DividePYr);
    EXPECT_FALSE(e.dirty.registers);
}

TEST_F(TvmKeys, TimesPerYearMakesMonthsOfYearsIntoN) {
    Store(e, "12", fid::PYr);
    Press(e, {3, 0, fid::TimesPYr});
    EXPECT_EQ(e.X(), 360.0);
    EXPECT_EQ(e.registers.values[reg::N], 360.0);
    EXPECT_EQ(e.XTag(), label::Months);
    Type(e, "5");  // lift is disabled: 5 replaces 360
    EXPECT_EQ(e.X(), 5.0);
    EXPECT_EQ(e.Y(), 0.0);
}

TEST_F(TvmKeys, DividePerYearLabelsYearsOnlyForPlainOrMatchingValues) {
    const struct {
        const char* name;
        double perYear;
        ValueTag before;
        ValueTag after;
    } cases[] = {
        {"plain", 12, 0, label::Years},           {"monthsMonthly", 12, label::Months, label::Years},
        {"monthsQuarterly", 4, label::Months, 0}, {"yearsYearly", 1, label::Years, label::Years},
        {"yearsMonthly", 12, label::Years, 0},    {"otherLabel", 12, label::PresentValue, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        e.registers.values[reg::PYr] = c.perYear;
        e.SetX(360);
        e.SetXTag(c.before);
        e.Dispatch(fid::DividePYr);
        EXPECT_EQ(e.X(), 360 / c.perYear);
        EXPECT_EQ(e.XTag(), c.after);
    }
}

}  // namespace
}  // namespace brinto
