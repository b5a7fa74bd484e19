// The financial solves a user waits for: I/YR, IRR/YR and NPV over a full cash-flow list, and an
// amortization of a whole 30-year schedule.
#include <benchmark/benchmark.h>

#include "calculator/assembly.h"
#include "engine/engine.h"
#include "finance/amortization.h"
#include "finance/amortization_schedule.h"
#include "finance/cash_flows.h"
#include "finance/tvm.h"

namespace brinto {
namespace {

void BM_SolveYearlyRate(benchmark::State& state) {
    // The 30-year mortgage at 6%, solved from a guess of 0.
    const TvmProblem p{360, 0.0, 100000, -599.55, 0, 12, false};
    for (auto _ : state) benchmark::DoNotOptimize(SolveYearlyRate(p));
}
BENCHMARK(BM_SolveYearlyRate)->Unit(benchmark::kMicrosecond);

// CF0 and 99 groups of 12 monthly amounts, the fullest list there is. An outlay of 150,000
// returns about 8% a year; one of 1,000,000 only about 0.5%, far from the guess of 10.
RegisterBank FullCashFlowList(double outlay) {
    RegisterBank bank{};
    bank.values[reg::PYr] = 12;
    bank.values[0] = -outlay;
    for (int j = 1; j < kMostCashFlows; ++j) {
        bank.values[j] = 1000.0 + 10.0 * (j % 17);
        bank.aux[j] = 12;
    }
    bank.cashFlowCount = kMostCashFlows - 1;
    return bank;
}

void BM_InternalRate99Groups(benchmark::State& state) {
    const RegisterBank bank = FullCashFlowList(static_cast<double>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(InternalRateOfReturn(bank, 10.0));
}
BENCHMARK(BM_InternalRate99Groups)->Arg(150'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

void BM_NetPresentValue99Groups(benchmark::State& state) {
    const RegisterBank bank = FullCashFlowList(150'000);
    for (auto _ : state) benchmark::DoNotOptimize(NetPresentValue(bank, 7.5));
}
BENCHMARK(BM_NetPresentValue99Groups)->Unit(benchmark::kMicrosecond);

// The argument is the number of decimal places: with more of them, more interest amounts lie
// near enough to a decimal tie to be rounded by their digit string.
void BM_Amortize360Payments(benchmark::State& state) {
    Engine e(CalculatorFamilies());
    e.prefs.SetDigitField(static_cast<int>(state.range(0)) + 1);
    e.registers.values[reg::N] = 360;
    e.registers.values[reg::IYr] = 6;
    e.registers.values[reg::PV] = 100000;
    e.registers.values[reg::PMT] = -599.55;
    for (auto _ : state) {
        e.state.amortStart = 1;
        e.state.amortEnd = 360;
        Amortize(e, Continuation::FromStart);
        benchmark::DoNotOptimize(e.state.amortBalance);
    }
}
BENCHMARK(BM_Amortize360Payments)->Arg(2)->Arg(4)->Unit(benchmark::kMicrosecond);

// Every payment of the same loan listed, each with its interest, principal and balance.
void BM_AmortizationSchedule360Payments(benchmark::State& state) {
    Engine e(CalculatorFamilies());
    e.prefs.SetDigitField(3);  // two decimal places
    e.registers.values[reg::N] = 360;
    e.registers.values[reg::IYr] = 6;
    e.registers.values[reg::PV] = 100000;
    e.registers.values[reg::PMT] = -599.55;
    for (auto _ : state) benchmark::DoNotOptimize(MakeAmortizationSchedule(e));
}
BENCHMARK(BM_AmortizationSchedule360Payments)->Unit(benchmark::kMicrosecond);

// One periodic interest amount rounded to cents: the shortcut, and the digit string it stands for.
void BM_RoundToCents(benchmark::State& state) {
    double interest = 499.50225;
    for (auto _ : state) {
        benchmark::DoNotOptimize(interest);
        benchmark::DoNotOptimize(RoundToPlaces(interest, 2));
    }
}
BENCHMARK(BM_RoundToCents);

void BM_RoundToCentsByDigits(benchmark::State& state) {
    double interest = 499.50225;
    for (auto _ : state) {
        benchmark::DoNotOptimize(interest);
        benchmark::DoNotOptimize(RoundToPlacesByDigits(interest, 2));
    }
}
BENCHMARK(BM_RoundToCentsByDigits);

}  // namespace
}  // namespace brinto
