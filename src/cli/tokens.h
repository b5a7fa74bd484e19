#pragma once
// The tokens of brinto-cli, parsed before anything runs so that a bad one changes nothing.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/types.h"

namespace brinto {

enum class TokenKind { Keys, Characters, Keyboard, BlockKey, Undo, Redo, Copy, Cut, Paste, Basic, Advanced };

struct Token {
    TokenKind kind;
    std::vector<FunctionId> keys;  // Keys: the keys to tap, in order
    std::string text;              // Characters and Paste
    int number = 0;                // Keyboard, BlockKey
};

// Nothing when the token is not one brinto-cli knows.
std::optional<Token> ParseToken(std::string_view text);

// The keys that type a decimal number such as "-1.5e-3", or nothing when it is not one.
std::optional<std::vector<FunctionId>> NumberKeys(std::string_view text);

}  // namespace brinto
