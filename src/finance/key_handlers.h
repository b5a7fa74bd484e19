#pragma once
// The families of keys that live here, and what the engine's own keys ask of them; the calculator
// is assembled from them in calculator/assembly.cpp.
#include "engine/engine.h"

namespace brinto {

bool HandleFinancialKey(Engine& e, FunctionId id);      // TVM, margins, NOM%/EFF%, CFj, Nj
bool HandleFinanceResultKey(Engine& e, FunctionId id);  // amortization, NPV and IRR
bool HandleStatisticsKey(Engine& e, FunctionId id);     // sums, means, deviations, estimates

// "=" pressed while the results of an amortization are being shown (repeatOperator 83).
void AmortizationRepeat(Engine& e);

}  // namespace brinto
