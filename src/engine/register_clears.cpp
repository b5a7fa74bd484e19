#include "engine/register_clears.h"

namespace brinto {

namespace {
void ZeroRange(Engine& e, int first, int last) {
    for (int r = first; r <= last; ++r) e.registers.values[r] = 0.0;
    e.dirty.registers = true;
}

void ResetPaymentsPerYear(Engine& e) {
    if (e.registers.values[reg::PYr] == 0.0) e.registers.values[reg::PYr] = 12.0;
}

void EmptyCashFlowList(Engine& e) {
    for (int j = 0; j < kUserRegisters; ++j) {
        e.registers.tags[j] = ValueTag::None;
        e.registers.aux[j] = 0;
    }
    e.registers.cashFlowCount = -1;
}
}  // namespace

void ClearUserRegisters(Engine& e) {
    ZeroRange(e, 0, kUserRegisters - 1);
    EmptyCashFlowList(e);
}

void ClearTvmRegisters(Engine& e) {
    const double paymentsPerYear = e.registers.values[reg::PYr];
    ZeroRange(e, reg::N, reg::Margin);
    e.registers.values[reg::PYr] = paymentsPerYear;
    ResetPaymentsPerYear(e);
}

void ClearFinancial(Engine& e) {
    const double paymentsPerYear = e.registers.values[reg::PYr];
    ZeroRange(e, 0, reg::StatN);
    e.registers.values[reg::PYr] = paymentsPerYear;
    ResetPaymentsPerYear(e);
    EmptyCashFlowList(e);
}

void ClearStatistics(Engine& e) { ZeroRange(e, reg::SumX, reg::SumX + 9); }

void ClearDateGroup(Engine& e) {
    ZeroRange(e, reg::DateFirst, reg::DaysPerYear - 1);
    for (int i = 0; i < 5; ++i) e.registers.values[reg::DaysPerYear + i] = kDurationDefaults[i];
}

void ClearAllRegisters(Engine& e) {
    e.registers.financeWords[0] = 0;
    e.registers.financeWords[1] = 0;
    ClearUserRegisters(e);
    ClearFinancial(e);
    ClearStatistics(e);
    ClearDateGroup(e);
}

}  // namespace brinto
