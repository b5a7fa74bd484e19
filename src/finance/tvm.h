#pragma once
// Time value of money: the five loan quantities N, I/YR, PV, PMT and FV with P/YR and the
// payment timing, tied by
//     PV + PMT (1 + b i) (1 - (1 + i)^-N) / i + FV (1 + i)^-N = 0,
// where i is the periodic rate and b is 1 for payments at the start of each period (Begin).
// Each solve takes the other four from the registers; failures give the error value or the
// infinity or NaN of the arithmetic, never an exception.
#include "engine/engine.h"

namespace brinto {

struct TvmProblem {
    double periods = 0.0;      // N
    double yearlyRate = 0.0;   // I/YR, percent per year
    double presentValue = 0.0;
    double payment = 0.0;
    double futureValue = 0.0;
    double perYear = 12.0;     // P/YR
    bool begin = false;        // payments at the start of each period
};

TvmProblem TvmFromRegisters(const Engine& e);

// The periodic rate of a yearly percentage: divided by P/YR first, then by 100.
inline double PeriodicRate(double yearlyRate, double perYear) { return (yearlyRate / perYear) * 0.01; }

double SolvePeriods(const TvmProblem& p);  // the error value when no N can balance the signs
double SolvePresentValue(const TvmProblem& p);
double SolvePayment(const TvmProblem& p);
double SolveFutureValue(const TvmProblem& p);
// The left side of the equation for a trial yearly rate; undefined (NaN) at a rate of zero.
double TvmResidual(const TvmProblem& p, double yearlyRate);
// I/YR by the secant solver from the problem's yearlyRate as the guess; the error value when N
// is not positive or the solver finds no root.
double SolveYearlyRate(const TvmProblem& p);

// The label of a number of periods: "years" with one payment a year, "months" with twelve.
ValueTag PeriodsLabel(double perYear);

// Keys ×P/YR (N from years) and ÷P/YR (years from N).
void TimesPerYearKey(Engine& e);
void DividePerYearKey(Engine& e);

}  // namespace brinto
