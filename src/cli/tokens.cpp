#include "cli/tokens.h"

#include <algorithm>
#include <cctype>

#include "engine/key_table.h"

namespace brinto {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::optional<int> WholeNumber(std::string_view text, int low, int high) {
    if (text.empty() || text.size() > 6) return std::nullopt;
    int value = 0;
    for (const char c : text) {
        if (!IsDigit(c)) return std::nullopt;
        value = value * 10 + (c - '0');
    }
    if (value < low || value > high) return std::nullopt;
    return value;
}

bool StartsWith(std::string_view text, std::string_view prefix) { return text.substr(0, prefix.size()) == prefix; }

}  // namespace

std::span<const CommandInfo> Commands() {
    static constexpr CommandInfo kCommands[] = {
        {"undo", TokenKind::Undo, "Undo the last change (Edit menu)"},
        {"redo", TokenKind::Redo, "Redo what was undone (Edit menu)"},
        {"copy", TokenKind::Copy, "Copy X to the clipboard (Edit menu)"},
        {"cut", TokenKind::Cut, "Copy X to the clipboard and drop it (Edit menu)"},
        {"basic", TokenKind::Basic, "Basic view (View menu)"},
        {"advanced", TokenKind::Advanced, "Advanced view (View menu)"},
    };
    return kCommands;
}

std::optional<FunctionId> NamedKey(std::string_view name) {
    if (const auto id = KeyByName(name)) return id;
    for (const KeyAlias& a : kKeyAliases) {
        if (a.name.size() == name.size() &&
            std::equal(a.name.begin(), a.name.end(), name.begin(),
                       [](char x, char y) { return std::tolower(static_cast<unsigned char>(x)) ==
                                                   std::tolower(static_cast<unsigned char>(y)); })) {
            return a.id;
        }
    }
    return std::nullopt;
}

bool IsNumberToken(std::string_view t) {
    std::size_t i = (!t.empty() && t[0] == '-') ? 1 : 0;
    bool digits = false, point = false;
    for (; i < t.size(); ++i) {
        if (IsDigit(t[i])) {
            digits = true;
        } else if (t[i] == '.' && !point) {
            point = true;
        } else {
            break;
        }
    }
    if (!digits) return false;
    if (i == t.size()) return true;
    if (t[i] != 'e' && t[i] != 'E') return false;
    ++i;
    if (i < t.size() && (t[i] == '-' || t[i] == '+')) ++i;
    if (i == t.size()) return false;
    for (; i < t.size(); ++i) {
        if (!IsDigit(t[i])) return false;
    }
    return true;
}

std::optional<Token> ParseToken(std::string_view text) {
    if (text.empty()) return std::nullopt;
    if (text[0] == '#') {
        const auto id = WholeNumber(text.substr(1), 0, 65535);
        if (!id) return std::nullopt;
        return Token{TokenKind::ExactKey, FunctionIdFrom(static_cast<u32>(*id)), {}, 0};
    }
    if (IsNumberToken(text)) return Token{TokenKind::Number, kNoKey, text, 0};
    if (StartsWith(text, "keys:")) return Token{TokenKind::Characters, kNoKey, text.substr(5), 0};
    if (StartsWith(text, "paste:")) return Token{TokenKind::Paste, kNoKey, text.substr(6), 0};
    if (StartsWith(text, "kb:")) {
        const auto n = WholeNumber(text.substr(3), 0, 8);
        if (!n) return std::nullopt;
        return Token{TokenKind::Keyboard, kNoKey, {}, *n};
    }
    if (StartsWith(text, "key:")) {
        const auto n = WholeNumber(text.substr(4), 1, 12);
        if (!n) return std::nullopt;
        return Token{TokenKind::BlockKey, kNoKey, {}, *n};
    }
    if (StartsWith(text, "const:")) {
        const auto n = WholeNumber(text.substr(6), 0, 32);
        if (!n) return std::nullopt;
        return Token{TokenKind::Constant, kNoKey, {}, *n};
    }
    for (const CommandInfo& c : Commands()) {
        if (text == c.name) return Token{c.kind, kNoKey, {}, 0};
    }
    if (const auto id = NamedKey(text)) return Token{TokenKind::Key, *id, {}, 0};
    return std::nullopt;
}

}  // namespace brinto
