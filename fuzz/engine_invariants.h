#pragma once
// What must hold after every key, whatever keys came before: the bounds of the pending-operator
// stack, the number being typed, the stack depth, the macro and the undo history.
#include "engine/engine.h"

namespace brinto::fuzz {

// True when `text` (within `capacity` bytes) is NUL-terminated and reads as an entry: an optional
// "-", digits "0"-"9" and "A"-"F" with at most one ".", then at most one "e" followed by an
// optional "-" and up to three decimal digits.
bool WellFormedEntryText(const char* text, std::size_t capacity);

// Aborts with a message naming the first invariant that does not hold.
void CheckEngineInvariants(const Engine& e);

}  // namespace brinto::fuzz
