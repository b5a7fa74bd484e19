#pragma once
// Number entry: the text being typed lives in CalcState::entryText and is parsed into X after
// every editing key, so X always holds the value shown.
#include "engine/engine.h"

namespace brinto {

// Digits 0..15, points 16 and 17, exponent 18, change sign 19 and 178, backspace 20.
// Returns 1 when the key was accepted, 0 when it was refused (the text is then unchanged).
bool EditEntry(Engine& e, FunctionId id);

// The value of an entry text in an entry base (0 decimal, 0x10 binary, 0x20 octal, 0x30 hex).
// Integer bases read the digits as a 32-bit word and take it as signed; an empty text is 0.
double ParseEntryText(const char* text, u16 base);

// Most mantissa digits for an entry base.
int MantissaLimit(u16 base);

}  // namespace brinto
