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

// Aborts when X, just after `key`, shows nothing, or when an integer key that acted (`acted`:
// accepted, and not taken as a register prefix's argument) left a value that is no whole number
// of the integer format it is tagged with.
void CheckKeyResult(const Engine& e, FunctionId key, bool acted);

}  // namespace brinto::fuzz
