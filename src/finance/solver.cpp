#include "finance/solver.h"

#include <cmath>
#include <utility>

#include "finance/clean_difference.h"
#include "engine/types.h"

namespace brinto {

namespace {
constexpr int kStepsPerRun = 50;
constexpr double kExactResidual = 1e-15;   // a residual this small is a root whatever the tolerance
constexpr double kStagnantStep = 1e-30;    // relative step below which the secant has stopped
constexpr double kStagnantResidual = 1e-5;
constexpr double kFirstTolerance = 1e-12;
constexpr double kLastTolerance = 1e-8;
constexpr double kNudge = 1e-15;           // away from a point where the residual is undefined
}  // namespace

SecantOutcome SecantRun(Residual f, double x0, double x1, double tolerance) {
    double fa = f(x0);
    double fb = f(x1);
    if (std::fabs(fb) > std::fabs(fa)) {  // x1 is the better of the two points
        std::swap(x0, x1);
        std::swap(fa, fb);
    }
    for (int count = 0;;) {
        if (std::fabs(fb) < kExactResidual) return {true, x1};
        if (std::fabs(fb) < tolerance && std::fabs(x1 - x0) < tolerance) return {true, x1};

        const double s = fb / fa;
        double x2 = x1 - (x0 - x1) * s / (1.0 - s);
        // A secant through two nearly level points can throw x2 far off: at most ten times
        // the last step.
        const double limit = 10.0 * std::fabs(x1 - x0);
        if (std::fabs(x2 - x1) > limit) x2 = x2 > x1 ? x1 + limit : x1 - limit;

        double f2 = f(x2);
        if (!std::isfinite(f2)) {
            x2 += kNudge;
            f2 = f(x2);
        }
        if (std::fabs(x1 - x2) < kStagnantStep * std::fabs(x2)) {
            return {true, std::fabs(f2) < kStagnantResidual ? x2 : kErrorValue};
        }
        if (std::fabs(f2) > std::fabs(fb)) {
            x0 = x2;
            fa = f2;
        } else {
            x0 = x1;
            fa = fb;
            x1 = x2;
            fb = f2;
        }
        if (++count >= kStepsPerRun) return {false, x1};
    }
}

double SolveSecant(Residual f, double x0, double x1) {
    double tolerance = kFirstTolerance;
    SecantOutcome outcome = SecantRun(f, x0, x1, tolerance);
    // The tolerance grows by repeated multiplication, so the fifth is a hair below 1e-8 and a
    // sixth run, near 1e-7, is still made.
    while (!outcome.converged && tolerance < kLastTolerance) {
        tolerance *= 10.0;
        outcome = SecantRun(f, x0, x1, tolerance);
    }
    return outcome.converged ? outcome.root : kErrorValue;
}

double SolveFromGuess(Residual f, double guess) {
    return SolveSecant(f, CleanDifference(guess, 0.1), guess + 0.1);
}

}  // namespace brinto
