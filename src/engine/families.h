#pragma once
// The family handlers that Dispatch offers a key to, in this order; the first that accepts it
// ends the chain. Each answers true when the key was its own and it acted on it.
#include "engine/engine.h"

namespace brinto {

using FamilyHandler = bool (*)(Engine&, FunctionId);

bool HandleRegisterKey(Engine& e, FunctionId id);    // store, recall, exchange with a register
bool HandleFormatPrefix(Engine& e, FunctionId id);   // display-format keys and their digit
bool HandleModeKey(Engine& e, FunctionId id);        // Begin/End, angle units, entry bases
bool HandleFinancialKey(Engine& e, FunctionId id);   // TVM, margins, NOM%/EFF%, CFj, Nj
bool HandleScientificFamily(Engine& e, FunctionId id);
bool HandleConversionKey(Engine& e, FunctionId id);  // unit keys and the time keys
bool HandleOperator(Engine& e, FunctionId id);       // binary operators of every input method

// The scientific family's place in the chain is shared with keys of other calculators: the
// one-operand functions, then statistics, amortization and NPV/IRR, then dates and times, then
// integer formats.
bool HandleScientificKey(Engine& e, FunctionId id);
bool HandleFinanceResultKey(Engine& e, FunctionId id);
bool HandleDateKey(Engine& e, FunctionId id);
bool HandleIntegerKey(Engine& e, FunctionId id);

// Applies a two-operand function to Y and X: saves Last X, drops the stack (except where the
// function says otherwise) and leaves the result in X. False for an id that is not one.
bool EvaluateTwoOperand(Engine& e, FunctionId op);

// "=" pressed while the results of an amortization are being shown (repeatOperator 83).
void AmortizationRepeat(Engine& e);

// A base change on the programmer keyboard re-derives the tag of X for the new base.
void RederiveIntegerTag(Engine& e);

}  // namespace brinto
