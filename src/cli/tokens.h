#pragma once
// The tokens of brinto-cli. Every token is checked before anything runs, so that a bad one
// changes nothing; tokens are views into the caller's text and allocate nothing.
#include <optional>
#include <span>
#include <string_view>

#include "engine/function_ids.h"

namespace brinto {

// Key: a named key, remapped as the keyboard remaps it; ExactKey: `#N`, dispatched as it is.
// Formula: "2+3*5", typed as keys (cli/formula.h). To: "to" before a unit key.
enum class TokenKind { Key, ExactKey, Number, Characters, Keyboard, BlockKey, Undo, Redo, Copy, Cut, Paste,
                       Basic, Advanced, Constant, Formula, To };

struct Token {
    TokenKind kind;
    FunctionId id = kNoKey;  // Key and ExactKey
    std::string_view text;  // Number, Characters, Paste and Formula
    int number = 0;         // Keyboard, BlockKey, Constant
};

// The words that are commands rather than keys, with what each does.
struct CommandInfo {
    std::string_view name;
    TokenKind kind;
    std::string_view meaning;
};
std::span<const CommandInfo> Commands();

// The tokens that are a prefix and a whole number (#N, kb:N, key:K, const:N), and the numbers each takes.
struct NumberedForm {
    std::string_view prefix;
    TokenKind kind;
    int low, high;
};
std::span<const NumberedForm> NumberedForms();

// Nothing when the token is not one brinto-cli knows.
std::optional<Token> ParseToken(std::string_view text);

// The unit key whose face is `text` ("mi", "ft", "in", "m", "lb"), ignoring case, when no other
// key has that face.
std::optional<FunctionId> UnitKeyByFace(std::string_view text);

// A decimal number such as "12", ".5", "-3" or "-1.5e-3".
bool IsNumberToken(std::string_view text);

// Types a number token as keys: the mantissa digits and point, change sign if the mantissa is
// negative, then the exponent key if an exponent follows, change sign if the exponent is negative,
// and the exponent digits.
template <typename Tap>
void TypeNumber(std::string_view t, Tap&& tap) {
    const bool negative = !t.empty() && t[0] == '-';
    std::size_t i = negative ? 1 : 0;
    for (; i < t.size() && t[i] != 'e' && t[i] != 'E'; ++i) tap(t[i] == '.' ? fid::Point : DigitKey(t[i] - '0'));
    if (negative) tap(fid::ChangeSign);
    if (i == t.size()) return;
    tap(fid::Exponent);
    ++i;
    if (t[i] == '-' || t[i] == '+') {
        if (t[i] == '-') tap(fid::ChangeSign);
        ++i;
    }
    for (; i < t.size(); ++i) tap(DigitKey(t[i] - '0'));
}

}  // namespace brinto
