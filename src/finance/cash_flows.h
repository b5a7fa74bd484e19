#pragma once
// The cash-flow list: CF0 at time 0 and up to 99 groups, each an amount repeated for a whole
// number of consecutive periods (Nj). Amounts are the user registers 0..99; the list's count,
// labels and group counts sit beside them in the register record. The valuations walk the
// groups from 1 upward and stop at the first group count below 1; they never read the count.
#include "engine/engine.h"

namespace brinto {

inline constexpr int kMostCashFlows = kUserRegisters;  // CF0..CF99

// The value at time 0 of the list at a yearly rate in percent (P/YR periods a year). Each group
// is an annuity whose first payment falls one period after the previous group ends. NaN at a
// rate of zero.
double NetPresentValue(const RegisterBank& registers, double yearlyRate);

// The yearly rate at which the net present value is zero, by the secant solver from `guess`;
// the error value when it finds none.
double InternalRateOfReturn(const RegisterBank& registers, double guess);

// CFj: appends X as the next entry; false (the key is not taken) when the list is full.
bool AppendCashFlow(Engine& e);
// Nj: the group count of the last entry, from X; false when the list is empty.
bool SetGroupCount(Engine& e);
// NPV into X and PV; IRR/YR into X and I/YR.
void NetPresentValueKey(Engine& e);
void InternalRateKey(Engine& e);

}  // namespace brinto
