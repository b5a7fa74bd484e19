#pragma once
// The tokens of brinto-cli. Every token is checked before anything runs, so that a bad one
// changes nothing; tokens are views into the caller's text and allocate nothing.
#include <optional>
#include <string_view>

#include "engine/types.h"

namespace brinto {

// Key: a named key, remapped as the keyboard remaps it; ExactKey: `#N`, dispatched as it is.
enum class TokenKind { Key, ExactKey, Number, Characters, Keyboard, BlockKey, Undo, Redo, Copy, Cut, Paste,
                       Basic, Advanced, Constant };

struct Token {
    TokenKind kind;
    FunctionId id = 0;      // Key and ExactKey
    std::string_view text;  // Number, Characters and Paste
    int number = 0;         // Keyboard, BlockKey, Constant
};

// Nothing when the token is not one brinto-cli knows.
std::optional<Token> ParseToken(std::string_view text);

// A decimal number such as "12", ".5", "-3" or "-1.5e-3".
bool IsNumberToken(std::string_view text);

// Types a number token as keys: the mantissa digits and point, 19 if the mantissa is negative,
// then 18 if an exponent follows, 19 if the exponent is negative, and the exponent digits.
template <typename Tap>
void TypeNumber(std::string_view t, Tap&& tap) {
    const bool negative = !t.empty() && t[0] == '-';
    std::size_t i = negative ? 1 : 0;
    for (; i < t.size() && t[i] != 'e' && t[i] != 'E'; ++i) tap(t[i] == '.' ? FunctionId{16} : FunctionId(t[i] - '0'));
    if (negative) tap(FunctionId{19});
    if (i == t.size()) return;
    tap(FunctionId{18});
    ++i;
    if (t[i] == '-' || t[i] == '+') {
        if (t[i] == '-') tap(FunctionId{19});
        ++i;
    }
    for (; i < t.size(); ++i) tap(FunctionId(t[i] - '0'));
}

}  // namespace brinto
