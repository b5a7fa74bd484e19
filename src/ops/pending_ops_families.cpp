// Families whose keys are not built yet decline them, so that such keys are simply not accepted.
#include "engine/families.h"

namespace brinto {

bool HandleScientificKey(Engine&, FunctionId) { return false; }
bool HandleDateKey(Engine&, FunctionId) { return false; }
bool HandleIntegerKey(Engine&, FunctionId) { return false; }
bool HandleConversionKey(Engine&, FunctionId) { return false; }
void RederiveIntegerTag(Engine&) {}

}  // namespace brinto
