// Families whose keys are not built yet decline them, so that such keys are simply not accepted.
#include "engine/families.h"

namespace brinto {

bool HandleFinancialKey(Engine&, FunctionId) { return false; }
bool HandleFinanceResultKey(Engine&, FunctionId) { return false; }
void AmortizationRepeat(Engine&) {}

}  // namespace brinto
