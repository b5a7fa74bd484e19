#pragma once
// Typing numbers into an engine as a user does, for the financial and statistical tests.
#include <string_view>

#include "engine/engine_test_support.h"

namespace brinto::test {

// Digits, point and exponent; a leading minus is the change-sign key pressed after the digits.
inline void Type(Engine& e, std::string_view number) {
    const bool negative = !number.empty() && number.front() == '-';
    for (const char c : number.substr(negative ? 1 : 0)) {
        e.Dispatch(c == '.' ? fid::Point : c == 'e' ? fid::Exponent : DigitKey(c - '0'));
    }
    if (negative) e.Dispatch(fid::ChangeSign);
}

// Types a number and presses the key that stores it.
inline void Store(Engine& e, std::string_view number, FunctionId key) {
    Type(e, number);
    e.Dispatch(key);
}

}  // namespace brinto::test
