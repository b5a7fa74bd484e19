#include "finance/cash_flows.h"

#include <cmath>
#include <limits>

#include "engine/value_tags.h"
#include "finance/solver.h"
#include "finance/tvm.h"

namespace brinto {

namespace {

i32 GroupCountOf(const RegisterBank& registers, int j) { return static_cast<i32>(registers.aux[j]); }

// X as a group count: truncated toward zero; beyond the range of a 32-bit count it saturates,
// and a value that is not a number counts as zero (which ends the series).
i32 TruncatedCount(double x) {
    if (std::isnan(x)) return 0;
    const double t = std::trunc(x);
    if (t >= 2147483647.0) return std::numeric_limits<i32>::max();
    if (t <= -2147483648.0) return std::numeric_limits<i32>::min();
    return static_cast<i32>(t);
}

}  // namespace

double NetPresentValue(const RegisterBank& registers, double yearlyRate) {
    const double i = PeriodicRate(yearlyRate, registers.values[reg::PYr]);
    double sum = registers.values[0];
    double elapsed = 0.0;  // periods before the group starts; a double, as counts may be huge
    // Groups of the same length share their annuity factor: pow of the same arguments is the
    // same number, so keeping it changes no result.
    i32 lastCount = 0;
    double lastFactor = 0.0;
    for (int j = 1; j < kMostCashFlows; ++j) {
        const i32 count = GroupCountOf(registers, j);
        if (count < 1) break;
        if (count != lastCount) {
            lastCount = count;
            lastFactor = (1.0 - std::pow(1.0 + i, -static_cast<double>(count))) / i;
        }
        sum = sum + lastFactor * registers.values[j] * std::pow(1.0 + i, -elapsed);
        elapsed += count;
    }
    return sum;
}

double InternalRateOfReturn(const RegisterBank& registers, double guess) {
    return SolveFromGuess([&registers](double rate) { return NetPresentValue(registers, rate); }, guess);
}

bool AppendCashFlow(Engine& e) {
    RegisterBank& r = e.registers;
    // Full, or a count no key could have left (a damaged record): nothing to append to.
    if (r.cashFlowCount + 1 >= kMostCashFlows || r.cashFlowCount < -1) return false;
    if (e.EntryOpen()) {
        e.FinishEntry();
        e.DisableLift();
    }
    const int j = ++r.cashFlowCount;
    r.values[j] = e.X();
    r.tags[j] = label::CashFlow;
    r.aux[j] = 1;
    e.SetXTag(label::CashFlow);
    e.state.aux[0] = static_cast<u16>(j);  // the display names the entry
    e.dirty.registers = true;
    return true;
}

bool SetGroupCount(Engine& e) {
    RegisterBank& r = e.registers;
    if (r.cashFlowCount < 0 || r.cashFlowCount >= kMostCashFlows) return false;
    if (e.EntryOpen()) {
        e.FinishEntry();
        e.DisableLift();
    }
    const int j = r.cashFlowCount;
    r.aux[j] = static_cast<u32>(TruncatedCount(e.X()));
    e.SetXTag(label::GroupCount);
    e.state.aux[0] = static_cast<u16>(j);
    // The changed flag is left alone on purpose: the count is saved with the next change that
    // sets it, as it always has been.
    return true;
}

void NetPresentValueKey(Engine& e) {
    e.RecallLift();
    e.FinishEntry();  // a number being typed is not taken as the rate
    e.SetX(NetPresentValue(e.registers, e.registers.values[reg::IYr]));
    e.SetXTag(label::NetPresentValue);
    e.registers.values[reg::PV] = e.X();
    e.dirty.registers = true;
}

void InternalRateKey(Engine& e) {
    double& rate = e.registers.values[reg::IYr];
    if (e.EntryOpen()) {
        e.FinishEntry();
        e.DisableLift();
        rate = e.X();  // the typed number is the starting guess
    } else if (e.LiftEnabled()) {
        e.Lift();
    }
    e.SetX(InternalRateOfReturn(e.registers, rate));
    e.SetXTag(label::ReturnRate);
    rate = e.X();
    e.dirty.registers = true;
}

}  // namespace brinto
