// Random well-conditioned TVM and IRR problems, solved as the keys solve them and again in long
// double from the same inputs; the twelve digits the display shows must agree. The shares that
// agree, and each difference, are printed (bench/README.md reports them).
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <random>

#include "display/number_format.h"
#include "finance/cash_flows.h"
#include "finance/tvm.h"

namespace brinto {
namespace {

using Real = long double;

struct Tally {
    int agree = 0, total = 0;
    void Count(double engine, Real reference, const char* what) {
        FormattedText a, b;
        FormatDecimal(engine, NumberFormat::Standard, 0, a);
        FormatDecimal(static_cast<double>(reference), NumberFormat::Standard, 0, b);
        const bool same = a.View() == b.View();
        agree += same, ++total;
        if (!same) std::printf("  differs: %s engine %.17g reference %.17Lg\n", what, engine, reference);
    }
    bool Report(const char* what) const {
        std::printf("%s: %d of %d show the reference's 12 digits (%.1f%%)\n", what, agree, total, 100.0 * agree / total);
        return agree >= total * 98 / 100;
    }
};

// A root by bisection between two rates where f has opposite signs.
template <class F>
Real Bisect(F f, Real low, Real high) {
    const bool lowNegative = f(low) < 0;
    for (int k = 0; k < 200; ++k) ((f((low + high) / 2) < 0) == lowNegative ? low : high) = (low + high) / 2;
    return low;
}

double Random(std::mt19937_64& random, double low, double high, double step) {
    return std::round(std::uniform_real_distribution<double>(low, high)(random) / step) * step;
}

TEST(FinanceAccuracy, TvmAndIrrShowTheDigitsOfALongDoubleReference) {
    std::mt19937_64 random(7301);
    Tally tvm, irr;
    for (int n = 0; n < 300; ++n) {
        // Up to 40 years and 480 payments, 0.5 to 25% a year, amounts in cents.
        TvmProblem p{0, Random(random, 0.5, 25, 1e-4), Random(random, 1e3, 1e6, 0.01) * (n % 3 ? 1 : -1), 0, 0,
                     std::array{1.0, 2.0, 4.0, 12.0, 52.0}[n % 5], n % 2 == 1};
        p.periods = std::uniform_int_distribution<int>(1, std::min(40, static_cast<int>(480 / p.perYear)))(random) * p.perYear;
        const Real i = p.yearlyRate / p.perYear / 100;
        const auto v = [&p](Real i) { return std::pow(1 + i, -static_cast<Real>(p.periods)); };
        const auto annuity = [&](Real i) { return (1 - v(i)) / i * (1 + (p.begin ? i : 0)); };
        // A payment of a tenth to nine tenths of the repaying one: FV is a balloon, not a small
        // difference of large amounts.
        p.payment = std::round(static_cast<double>(-p.presentValue / annuity(i)) * Random(random, 0.1, 0.9, 1e-3) * 100) / 100;
        p.futureValue = std::round(static_cast<double>((-p.presentValue - annuity(i) * p.payment) / v(i)) * 100) / 100;
        const Real a = p.payment * (1 + (p.begin ? i : 0));
        tvm.Count(SolvePresentValue(p), -annuity(i) * p.payment - v(i) * p.futureValue, "PV");
        tvm.Count(SolvePayment(p), (-p.presentValue - v(i) * p.futureValue) / annuity(i), "PMT");
        tvm.Count(SolveFutureValue(p), (-p.presentValue - annuity(i) * p.payment) / v(i), "FV");
        tvm.Count(SolvePeriods(p), std::log((p.futureValue * i - a) / (-p.presentValue * i - a)) / std::log1p(i), "N");
        const auto residual = [&](Real rate) {
            const Real r = rate / p.perYear / 100;
            return p.presentValue + p.payment * annuity(r) + p.futureValue * v(r);
        };
        TvmProblem guessed = p;
        guessed.yearlyRate = n % 2 ? 0.0 : 10.0;
        tvm.Count(SolveYearlyRate(guessed), Bisect(residual, p.yearlyRate / 2, p.yearlyRate * 2), "I/YR");

        // CF0 and 1 to 12 groups over up to 40 years; the outlay a third to nine tenths of what
        // comes back, so the flows change sign once and the rate is positive.
        RegisterBank bank{};
        bank.values[reg::PYr] = p.perYear == 52 ? 12 : p.perYear;
        const int groups = 1 + static_cast<int>(random() % 12);
        const int longest = std::max(1, std::min(480, 40 * static_cast<int>(bank.values[reg::PYr])) / groups);
        double inflow = 0;
        for (int j = 1; j <= groups; ++j) {
            bank.values[j] = Random(random, 10, 5000, 0.01);
            bank.aux[j] = 1 + static_cast<u32>(random() % longest);
            inflow += bank.values[j] * bank.aux[j];
        }
        bank.values[0] = -std::round(inflow * Random(random, 0.33, 0.9, 1e-3));
        const auto npv = [&bank](Real rate) {
            const Real r = rate / bank.values[reg::PYr] / 100;
            Real sum = bank.values[0], elapsed = 0;
            for (int j = 1; bank.aux[j] >= 1; elapsed += bank.aux[j++]) {
                sum += (1 - std::pow(1 + r, -static_cast<Real>(bank.aux[j]))) / r * bank.values[j] * std::pow(1 + r, -elapsed);
            }
            return sum;
        };
        irr.Count(InternalRateOfReturn(bank, n % 2 ? 0.0 : 10.0), Bisect(npv, 1e-9L, 1e5L), "IRR");
    }
    EXPECT_TRUE(tvm.Report("TVM"));
    EXPECT_TRUE(irr.Report("IRR/YR"));
}

}  // namespace
}  // namespace brinto
