#pragma once
// Helpers for driving an engine with keys, as a user does.
#include <initializer_list>
#include <ostream>
#include <string_view>
#include <vector>

#include "calculator/assembly.h"
#include "display/labels.h"
#include "engine/engine.h"
#include "engine/key_table.h"

namespace brinto {

// Keys and tags in test messages: the name and the number.
inline std::ostream& operator<<(std::ostream& os, FunctionId id) {
    for (const KeyInfo& k : kKeyTable) {
        if (k.id == id) return os << '"' << k.name << "\" (" << ToNumber(id) << ')';
    }
    return os << "key " << ToNumber(id);
}
inline std::ostream& operator<<(std::ostream& os, ValueTag tag) {
    const std::string_view text = LabelText(tag);
    if (text.empty()) return os << "tag " << ToNumber(tag);
    return os << '"' << text << "\" (" << ToNumber(tag) << ')';
}

}  // namespace brinto

namespace brinto::test {

inline Engine MakeEngine(InputMethod method) {
    Engine e(CalculatorFamilies());
    e.prefs.SetMethod(method);
    e.ClearStack();
    return e;
}

// A key in a test's key sequence: a named key, or a digit key written as its digit. Any other
// number does not compile.
struct Key {
    FunctionId id;
    constexpr Key(FunctionId key) : id(key) {}
    consteval Key(int digit) : id(DigitKey(digit)) {
        if (digit < 0 || digit > 9) throw "only the digits 0..9 are written as numbers";
    }
};

inline void Press(Engine& e, std::initializer_list<Key> keys) {
    for (const Key k : keys) e.Dispatch(k.id);
}
inline void Press(Engine& e, const std::vector<Key>& keys) {
    for (const Key k : keys) e.Dispatch(k.id);
}

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
