#pragma once
// Typing numbers and setting up loans for the financial and statistical tests.
#include <string_view>

#include "engine/engine_test_support.h"

namespace brinto::test {

// Types a decimal number as a user does: digits, point, exponent, and a leading minus as the
// change-sign key pressed after the digits.
inline void Type(Engine& e, std::string_view number) {
    const bool negative = !number.empty() && number.front() == '-';
    if (negative) number.remove_prefix(1);
    for (const char c : number) {
        if (c >= '0' && c <= '9') e.Dispatch(static_cast<FunctionId>(c - '0'));
        if (c == '.') e.Dispatch(fid::Point);
        if (c == 'e') e.Dispatch(fid::Exponent);
        if (c == '-') e.Dispatch(fid::ChangeSign);  // the exponent's sign
    }
    if (negative) e.Dispatch(fid::ChangeSign);
}

// Types a number and presses the key that stores it.
inline void Store(Engine& e, std::string_view number, FunctionId key) {
    Type(e, number);
    e.Dispatch(key);
}

// Display places for the amortization rounding: the Fixed format with `places` decimals.
inline void SetPlaces(Engine& e, int places) {
    e.Dispatch(fid::FormatFixed);
    e.Dispatch(static_cast<FunctionId>(places));
}

}  // namespace brinto::test
