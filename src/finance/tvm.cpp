#include "finance/tvm.h"

#include <cmath>

#include "engine/value_tags.h"
#include "finance/solver.h"

namespace brinto {

namespace {

double Timing(const TvmProblem& p) { return p.begin ? 1.0 : 0.0; }

// (1 - v) / i x (1 + b i): what a payment of one each period is worth now.
double AnnuityFactor(const TvmProblem& p, double i, double v) {
    return ((1.0 - v) / i) * (1.0 + Timing(p) * i);
}

}  // namespace

TvmProblem TvmFromRegisters(const Engine& e) {
    const double* r = e.registers.values;
    return {r[reg::N], r[reg::IYr], r[reg::PV], r[reg::PMT], r[reg::FV], r[reg::PYr],
            (e.state.engineFlags & flags::Begin) != 0};
}

double SolvePeriods(const TvmProblem& p) {
    const double i = PeriodicRate(p.yearlyRate, p.perYear);
    if (i == 0.0) return -(p.futureValue + p.presentValue) / p.payment;
    const double a = p.payment * (1.0 + Timing(p) * i);
    const double fvSide = p.futureValue * i - a;
    const double pvSide = -p.presentValue * i - a;
    if (fvSide >= 0.0 && pvSide >= 0.0) return (std::log(fvSide) - std::log(pvSide)) / std::log(1.0 + i);
    if (fvSide < 0.0 && pvSide < 0.0) return (std::log(-fvSide) - std::log(-pvSide)) / std::log(1.0 + i);
    return kErrorValue;  // (1 + i)^-N would have to be negative
}

double SolvePresentValue(const TvmProblem& p) {
    const double i = PeriodicRate(p.yearlyRate, p.perYear);
    if (i == 0.0) return -p.futureValue - p.periods * p.payment;
    const double v = std::pow(1.0 + i, -p.periods);
    return -((1.0 - v) / i) * (1.0 + Timing(p) * i) * p.payment - v * p.futureValue;
}

double SolvePayment(const TvmProblem& p) {
    const double i = PeriodicRate(p.yearlyRate, p.perYear);
    if (i == 0.0) return -(p.futureValue + p.presentValue) / p.periods;
    const double v = std::pow(1.0 + i, -p.periods);
    return (-p.presentValue - v * p.futureValue) / AnnuityFactor(p, i, v);
}

double SolveFutureValue(const TvmProblem& p) {
    const double i = PeriodicRate(p.yearlyRate, p.perYear);
    if (i == 0.0) return -p.presentValue - p.periods * p.payment;
    const double v = std::pow(1.0 + i, -p.periods);
    return (-p.presentValue - AnnuityFactor(p, i, v) * p.payment) / v;
}

double TvmResidual(const TvmProblem& p, double yearlyRate) {
    const double i = PeriodicRate(yearlyRate, p.perYear);
    const double v = std::pow(1.0 + i, -p.periods);
    return p.presentValue + p.payment * (1.0 + Timing(p) * i) * (1.0 - v) / i + p.futureValue * v;
}

double SolveYearlyRate(const TvmProblem& p) {
    if (!(p.periods > 0.0)) return kErrorValue;
    return SolveFromGuess([&p](double rate) { return TvmResidual(p, rate); }, p.yearlyRate);
}

ValueTag PeriodsLabel(double perYear) {
    if (perYear == 1.0) return label::Years;
    if (perYear == 12.0) return label::Months;
    return label::Periods;
}

void TimesPerYearKey(Engine& e) {
    e.FinishEntry();
    const double perYear = e.registers.values[reg::PYr];
    e.SetX(perYear * e.X());
    e.registers.values[reg::N] = e.X();
    e.SetXTag(PeriodsLabel(perYear));
    e.DisableLift();
    e.dirty.registers = true;
}

void DividePerYearKey(Engine& e) {
    e.FinishEntry();
    const double perYear = e.registers.values[reg::PYr];
    const ValueTag before = e.XTag();
    e.SetX(e.X() / perYear);
    // A count of periods becomes years; a value already labelled otherwise loses its label.
    const bool inYears = before == ValueTag::None || (before == label::Months && perYear == 12.0) ||
                         (before == label::Years && perYear == 1.0);
    e.SetXTag(inYears ? label::Years : ValueTag::None);
}

}  // namespace brinto
