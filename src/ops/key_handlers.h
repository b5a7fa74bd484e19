#pragma once
// The families of keys that live here, and what the engine's own keys ask of them; the calculator
// is assembled from them in calculator/assembly.cpp.
#include "engine/engine.h"

namespace brinto {

bool HandleScientificKey(Engine& e, FunctionId id);  // one-operand functions
bool HandleDateKey(Engine& e, FunctionId id);        // dates, times and the duration settings
bool HandleIntegerKey(Engine& e, FunctionId id);     // integer formats and NOT
bool HandleConversionKey(Engine& e, FunctionId id);  // unit keys and the time keys

// Applies a two-operand function to Y and X: saves Last X, drops the stack (except where the
// function says otherwise) and leaves the result in X. False for an id that is not one.
bool EvaluateTwoOperand(Engine& e, FunctionId op);

// A base change on the programmer keyboard re-derives the tag of X for the new base.
void RederiveIntegerTag(Engine& e);

}  // namespace brinto
