#pragma once
// The secant solver that finds a yearly rate for I/YR and for IRR/YR. The unknown is a rate in
// percent per year; the residual is the money left over by that rate (zero at the answer).
#include <type_traits>

namespace brinto {

// A borrowed reference to a residual function f(rate); it must outlive the solve.
class Residual {
public:
    template <class F>
        requires(!std::is_same_v<std::remove_cvref_t<F>, Residual>)
    Residual(const F& f)  // NOLINT: implicit, so that a lambda can be passed as it is
        : m_object(&f), m_call([](const void* object, double x) { return (*static_cast<const F*>(object))(x); }) {}

    double operator()(double x) const { return m_call(m_object, x); }

private:
    const void* m_object;
    double (*m_call)(const void*, double);
};

struct SecantOutcome {
    bool converged = false;
    double root = 0.0;  // the error value when the run stagnated far from a root
};

// One run of at most 50 secant steps from x0 and x1, converging when the residual drops below
// 1e-15, or below `tolerance` with the last step also below it. A run that stops moving ends
// it too: its point is the answer when the residual there is below 1e-5, else the error value.
SecantOutcome SecantRun(Residual f, double x0, double x1, double tolerance);

// Runs the secant from the same two points with the tolerance 1e-12, relaxed tenfold after each
// failed run while it is below 1e-8: at most six runs, the last near 1e-7. The error value when
// every run fails.
double SolveSecant(Residual f, double x0, double x1);

// SolveSecant from a user's guess: the points are the guess less 0.1 (cleaned to 14 digits)
// and the guess plus 0.1.
double SolveFromGuess(Residual f, double guess);

}  // namespace brinto
