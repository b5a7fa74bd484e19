#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "engine/types.h"
#include "finance/solver.h"

namespace brinto {
namespace {

// A residual that remembers where it was evaluated.
struct Probe {
    double (*f)(double);
    mutable std::vector<double> at;
    double operator()(double x) const {
        at.push_back(x);
        return f(x);
    }
};

TEST(SecantRun, FindsARootAndKeepsTheBetterPointFirst) {
    const Probe p{[](double x) { return x * x - 2.0; }, {}};
    const SecantOutcome out = SecantRun(p, 3.0, 1.0, 1e-12);
    EXPECT_TRUE(out.converged);
    EXPECT_NEAR(out.root, std::sqrt(2.0), 1e-12);
}

TEST(SecantRun, StepIsLimitedToTenTimesTheLastStep) {
    // Through (0, 1) and (1, 0.99) the secant would land at 100; the step is cut to 10.
    const Probe p{[](double x) { return x == 0.0 ? 1.0 : x == 1.0 ? 0.99 : 0.5; }, {}};
    SecantRun(p, 0.0, 1.0, 1e-12);
    ASSERT_GE(p.at.size(), 3u);
    EXPECT_EQ(p.at[2], 11.0);
}

TEST(SecantRun, PointWithoutAResidualIsNudgedOnce) {
    // The secant through (0, 2) and (1, 1) reaches 2, where the residual is undefined.
    const Probe p{[](double x) { return x == 2.0 ? std::nan("") : 2.0 - x; }, {}};
    SecantRun(p, 0.0, 1.0, 1e-12);
    ASSERT_GE(p.at.size(), 4u);
    EXPECT_EQ(p.at[2], 2.0);
    EXPECT_EQ(p.at[3], 2.0 + 1e-15);
}

TEST(SecantRun, StagnationEndsTheRunWithTheRootOrTheError) {
    // From (1.1, 1e14) and (1, r) the step is far below the spacing of doubles at 1: x2 = x1.
    const struct {
        const char* name;
        double residual;
        double root;
    } cases[] = {{"smallResidual", 1e-6, 1.0}, {"largeResidual", 1e-4, kErrorValue}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const double r = c.residual;
        const auto f = [r](double x) { return x == 1.0 ? r : 1e14; };
        const SecantOutcome out = SecantRun(f, 1.1, 1.0, 1e-12);
        EXPECT_TRUE(out.converged);
        EXPECT_EQ(out.root, c.root);
        // The driver hands the stagnated answer back without another run.
        int calls = 0;
        const auto counted = [&](double x) { return ++calls, f(x); };
        EXPECT_EQ(SolveSecant(counted, 1.1, 1.0), c.root);
        EXPECT_EQ(calls, 3);
    }
}

TEST(SolveSecant, MakesSixRunsOfFiftyStepsBeforeGivingUp) {
    // A level residual: every step is cut by the step limit and never converges.
    int calls = 0;
    const auto level = [&calls](double) { return ++calls, 1.0; };
    EXPECT_EQ(SolveSecant(level, 0.0, 0.1), kErrorValue);
    EXPECT_EQ(calls, 6 * (2 + 50));
}

TEST(SolveSecant, SixthRunAcceptsWhatOnlyTheLoosestToleranceAllows) {
    // The residual never drops below 5e-8: only a run with tolerance near 1e-7 accepts it,
    // once two points are within that of each other.
    int calls = 0;
    const auto floor = [&calls](double x) { return ++calls, 5e-8 + (x - 1.0) * (x - 1.0); };
    const double root = SolveSecant(floor, 1.0 - 4e-8, 1.0 + 4e-8);
    EXPECT_NEAR(root, 1.0, 1e-7);
    EXPECT_GT(calls, 5 * 52);  // five runs failed first
}

TEST(SolveFromGuess, StartsOneTenthEitherSideWithACleanLowerPoint) {
    std::vector<double> at;
    const auto f = [&at](double x) { return at.push_back(x), x - 0.3; };
    EXPECT_NEAR(SolveFromGuess(f, 0.4), 0.3, 1e-12);
    ASSERT_GE(at.size(), 2u);
    EXPECT_EQ(at[0], 0.3);  // 0.4 - 0.1 is 0.30000000000000004 before cleaning
    EXPECT_EQ(at[1], 0.4 + 0.1);
}

}  // namespace
}  // namespace brinto
