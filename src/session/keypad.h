#pragma once
// The keys around the 12-key block: the shared keypad of the Advanced view, the same under every
// keyboard, and the short keypad of the Basic view.
//
// In the Advanced view the keyboard's 12-key block (2 rows of 6) sits on top and the shared keypad
// below it, 5 rows of 6. Each keypad key has a shifted face: the stack and clear keys that the
// blocks leave out live there, so that every key the calculator has can be reached by tapping.
#include <array>
#include <span>

#include "engine/function_ids.h"
#include "engine/preferences.h"

namespace brinto {

class Engine;

struct KeypadKey {
    FunctionId unshifted;
    FunctionId shifted;  // the same as unshifted where the key has no second function
};

inline constexpr int kKeypadColumns = 6;
inline constexpr int kBasicColumns = 4;

using KeypadRow = std::array<KeypadKey, kKeypadColumns>;
using BasicRow = std::array<FunctionId, kBasicColumns>;

// The shared keypad, top row first.
std::span<const KeypadRow> SharedKeypad();

// The Basic view's keys, top row first: digits, point, the four operators, change sign,
// backspace, clear, percent, and "=" (ENTER under RPN) in the corner.
std::span<const BasicRow> BasicKeys(InputMethod method);

// Keys that turn a state on which stays until another key changes it: the shift latch, HYP,
// BEG, macro recording, and the angle unit, entry base and input method that a key chooses.
// Screen readers show them as toggles, checked while the state is on.
bool IsLatchKey(FunctionId id);
bool LatchOn(const Engine& engine, FunctionId id);

}  // namespace brinto
