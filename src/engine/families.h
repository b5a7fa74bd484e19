#pragma once
// The families of keys. Dispatch offers a key to the family handlers of its calculator in their
// order; the first that accepts it ends the chain, and the dispatcher's own keys come after. The
// engine names no handler of another library: whoever assembles a calculator hands the chain over
// (calculator/assembly.cpp), with the few functions of other libraries the engine's own keys need.
#include <span>

#include "engine/key_table.h"

namespace brinto {

class Engine;

// Each answers true when the key was its own and it acted on it.
using FamilyHandler = bool (*)(Engine&, FunctionId);

struct Family {
    KeyFamily family;  // the family named in the key table's rows of the keys it takes
    FamilyHandler handle;
    // Whether taking a key ends a run of deferred operators; the operator handler keeps that
    // flag itself.
    bool endsOperatorRun;
};

struct KeyFamilies {
    std::span<const Family> chain;
    // Applies a two-operand function to Y and X: saves Last X, drops the stack (except where the
    // function says otherwise) and leaves the result in X. False for an id that is not one.
    bool (*evaluateTwoOperand)(Engine& e, FunctionId op);
    // "=" pressed while the results of an amortization are being shown (repeatOperator 83).
    void (*amortizationRepeat)(Engine& e);
    // A base change on the programmer keyboard re-derives the tag of X for the new base.
    void (*rederiveIntegerTag)(Engine& e);
};

// No family at all: an engine that only holds records (the store's tests and benchmarks) takes
// the dispatcher's own keys and refuses every other.
const KeyFamilies& NoFamilies();

// The engine's own families.
bool HandleRegisterKey(Engine& e, FunctionId id);    // store, recall, exchange with a register
bool HandleFormatPrefix(Engine& e, FunctionId id);   // display-format keys and their digit
bool HandleModeKey(Engine& e, FunctionId id);        // Begin/End, angle units, entry bases
bool HandleOperator(Engine& e, FunctionId id);       // binary operators of every input method

}  // namespace brinto
