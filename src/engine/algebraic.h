#pragma once
// The binary operators of the three input methods. RPN applies an operator to Y and X at once;
// Simple and Precedence defer it on the pending-operator stack with the markers of Enter and "(".
#include "engine/engine.h"

namespace brinto {

enum class PendingScope { One, All, ToParen };

// Applies op to Y and X when it is a two-operand function; markers and other ids do nothing.
void ApplyBinary(Engine& e, FunctionId op);
// All: every pending operator down to an Enter marker (each stored as the one "=" repeats).
// One: one entry. ToParen: entries until a "(" marker has been popped.
void EvaluatePending(Engine& e, PendingScope scope);
// "(": false when the pending stack is full.
bool OpenParen(Engine& e);
void CloseParen(Engine& e);

bool IsBinaryOperator(FunctionId id);

}  // namespace brinto
