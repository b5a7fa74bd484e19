#pragma once
// The register-group clears. Each sets the register record's changed flag.
#include "engine/engine.h"

namespace brinto {

// Registers 0..99 and the cash-flow list.
void ClearUserRegisters(Engine& e);
// The financial registers 100..109; P/YR keeps its value, or becomes 12 when it is 0.
void ClearTvmRegisters(Engine& e);
// Clear financial: registers 0..115 but P/YR (which becomes 12 when 0), and the cash-flow list.
void ClearFinancial(Engine& e);
// The wide statistics clear: the six sums and the four registers after them (110..119).
void ClearStatistics(Engine& e);
// The date registers 116..118 to 0 and the duration settings to their defaults.
void ClearDateGroup(Engine& e);
// Everything Clear All clears in the register record.
void ClearAllRegisters(Engine& e);

}  // namespace brinto
