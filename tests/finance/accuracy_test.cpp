// Random well-conditioned TVM and IRR problems, solved as the keys solve them and again in long
// double; the twelve digits the display shows must agree. The share that agrees is printed.
#include <gtest/gtest.h>

#include <cmath>
#include <algorithm>
#include <cstdio>
#include <random>
#include <string>

#include "display/number_format.h"
#include "finance/cash_flows.h"
#include "finance/tvm.h"

namespace brinto {
namespace {

using Real = long double;

std::string Shown(double value) {
    FormattedText text;
    FormatDecimal(value, NumberFormat::Standard, 0, text);
    return std::string(text.View());
}

double Cents(std::mt19937_64& random, double low, double high) {
    return std::round(std::uniform_real_distribution<double>(low, high)(random) * 100.0) / 100.0;
}

// The TVM equation and its pieces in long double, from the same double inputs.
struct TvmReference {
    const TvmProblem& p;
    Real Rate(Real yearly) const { return yearly / p.perYear / 100; }
    Real V(Real i) const { return std::pow(1 + i, -static_cast<Real>(p.periods)); }
    Real Annuity(Real i) const { return (1 - V(i)) / i * (1 + (p.begin ? i : 0)); }
    Real Residual(Real yearly) const {
        const Real i = Rate(yearly);
        return p.presentValue + p.payment * Annuity(i) + p.futureValue * V(i);
    }
    Real PresentValue() const { const Real i = Rate(p.yearlyRate); return -Annuity(i) * p.payment - V(i) * p.futureValue; }
    Real Payment() const { const Real i = Rate(p.yearlyRate); return (-p.presentValue - V(i) * p.futureValue) / Annuity(i); }
    Real FutureValue() const { const Real i = Rate(p.yearlyRate); return (-p.presentValue - Annuity(i) * p.payment) / V(i); }
    Real Periods() const {
        const Real i = Rate(p.yearlyRate);
        const Real a = p.payment * (1 + (p.begin ? i : 0));
        return std::log((p.futureValue * i - a) / (-p.presentValue * i - a)) / std::log1p(i);
    }
};

// A root by bisection between rates where the function has opposite signs, in long double.
template <class F>
Real Bisect(F f, Real low, Real high) {
    Real fLow = f(low);
    for (int k = 0; k < 200; ++k) {
        const Real mid = (low + high) / 2;
        const Real fMid = f(mid);
        if ((fMid < 0) == (fLow < 0)) {
            low = mid;
            fLow = fMid;
        } else {
            high = mid;
        }
    }
    return (low + high) / 2;
}

struct Tally {
    int agree = 0;
    int total = 0;
    void Count(double engine, Real reference, const char* what) {
        ++total;
        if (Shown(engine) == Shown(static_cast<double>(reference))) {
            ++agree;
        } else {
            std::printf("  differs: %s engine %.17g reference %.17Lg\n", what, engine, reference);
        }
    }
};

TEST(FinanceAccuracy, TvmSolvesShowTheDigitsOfALongDoubleReference) {
    std::mt19937_64 random(7301);
    const double perYears[] = {1, 2, 4, 12, 52};
    Tally tally;
    for (int n = 0; n < 300; ++n) {
        TvmProblem p;
        p.perYear = perYears[n % 5];
        // Up to 40 years, and at most 480 payments.
        const int years = std::uniform_int_distribution<int>(1, std::min(40, static_cast<int>(480 / p.perYear)))(random);
        p.periods = years * p.perYear;
        p.yearlyRate = std::round(std::uniform_real_distribution<double>(0.5, 25.0)(random) * 1e4) / 1e4;
        p.presentValue = Cents(random, 1e3, 1e6) * (n % 3 ? 1 : -1);
        p.begin = n % 2;
        // A payment between a tenth and nine tenths of the one that repays the loan, so FV is a
        // balloon of the same sign as PV and not a small difference of large amounts.
        TvmProblem full = p;
        const Real repaying = TvmReference{full}.Payment();
        p.payment = std::round(static_cast<double>(repaying) * std::uniform_real_distribution<double>(0.1, 0.9)(random) * 100) / 100;
        p.futureValue = std::round(static_cast<double>(TvmReference{p}.FutureValue()) * 100) / 100;

        const TvmReference ref{p};
        tally.Count(SolvePresentValue(p), ref.PresentValue(), "PV");
        tally.Count(SolvePayment(p), ref.Payment(), "PMT");
        tally.Count(SolveFutureValue(p), ref.FutureValue(), "FV");
        tally.Count(SolvePeriods(p), ref.Periods(), "N");
        TvmProblem guessed = p;
        guessed.yearlyRate = n % 2 ? 0.0 : 10.0;
        const Real rate = Bisect([&ref](Real r) { return ref.Residual(r); }, p.yearlyRate / 2, p.yearlyRate * 2);
        tally.Count(SolveYearlyRate(guessed), rate, "I/YR");
    }
    std::printf("TVM: %d of %d solves show the reference's 12 digits (%.1f%%)\n", tally.agree, tally.total,
                100.0 * tally.agree / tally.total);
    EXPECT_GE(tally.agree, tally.total * 98 / 100);
}

TEST(FinanceAccuracy, IrrShowsTheDigitsOfALongDoubleReference) {
    std::mt19937_64 random(4417);
    const double perYears[] = {1, 4, 12};
    Tally tally;
    for (int n = 0; n < 300; ++n) {
        RegisterBank bank{};
        bank.values[reg::PYr] = perYears[n % 3];
        const int groups = std::uniform_int_distribution<int>(1, 12)(random);
        // Up to 40 years and 480 periods in all.
        const int periods = std::min(480, 40 * static_cast<int>(bank.values[reg::PYr]));
        double inflow = 0.0;
        for (int j = 1; j <= groups; ++j) {
            bank.values[j] = Cents(random, 10, 5000);
            bank.aux[j] = static_cast<u32>(std::uniform_int_distribution<int>(1, std::max(1, periods / groups))(random));
            inflow += bank.values[j] * bank.aux[j];
        }
        // An outlay between a third and nine tenths of what comes back: one sign change, a
        // positive rate.
        bank.values[0] = -std::round(inflow * std::uniform_real_distribution<double>(0.33, 0.9)(random));
        const auto npv = [&bank](Real rate) {
            const Real i = rate / bank.values[reg::PYr] / 100;
            Real sum = bank.values[0];
            Real elapsed = 0;
            for (int j = 1; j < 100 && bank.aux[j] >= 1; ++j) {
                sum += (1 - std::pow(1 + i, -static_cast<Real>(bank.aux[j]))) / i * bank.values[j] *
                       std::pow(1 + i, -elapsed);
                elapsed += bank.aux[j];
            }
            return sum;
        };
        const Real rate = Bisect(npv, 1e-9L, 1e5L);
        tally.Count(InternalRateOfReturn(bank, n % 2 ? 0.0 : 10.0), rate, "IRR");
    }
    std::printf("IRR: %d of %d solves show the reference's 12 digits (%.1f%%)\n", tally.agree, tally.total,
                100.0 * tally.agree / tally.total);
    EXPECT_GE(tally.agree, tally.total * 98 / 100);
}

}  // namespace
}  // namespace brinto
