#include "cli/tokens.h"

#include <charconv>

#include "engine/function_ids.h"
#include "engine/key_table.h"

namespace brinto {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::optional<int> WholeNumber(std::string_view text, int low, int high) {
    if (text.empty() || text.size() > 6) return std::nullopt;
    int value = 0;
    const auto r = std::from_chars(text.data(), text.data() + text.size(), value);
    if (r.ec != std::errc{} || r.ptr != text.data() + text.size() || value < low || value > high) return std::nullopt;
    return value;
}

bool StartsWith(std::string_view text, std::string_view prefix) { return text.substr(0, prefix.size()) == prefix; }

}  // namespace

std::optional<std::vector<FunctionId>> NumberKeys(std::string_view t) {
    std::vector<FunctionId> keys;
    std::size_t i = 0;
    const bool negative = i < t.size() && t[i] == '-';
    if (negative) ++i;
    bool digits = false, point = false;
    for (; i < t.size(); ++i) {
        if (IsDigit(t[i])) {
            keys.push_back(static_cast<FunctionId>(t[i] - '0'));
            digits = true;
        } else if (t[i] == '.' && !point) {
            keys.push_back(fid::Point);
            point = true;
        } else {
            break;
        }
    }
    if (!digits) return std::nullopt;
    if (negative) keys.push_back(fid::ChangeSign);
    if (i < t.size()) {
        if (t[i] != 'e' && t[i] != 'E') return std::nullopt;
        ++i;
        bool exponentNegative = false;
        if (i < t.size() && (t[i] == '-' || t[i] == '+')) exponentNegative = t[i++] == '-';
        if (i == t.size()) return std::nullopt;
        keys.push_back(fid::Exponent);
        if (exponentNegative) keys.push_back(fid::ChangeSign);
        for (; i < t.size(); ++i) {
            if (!IsDigit(t[i])) return std::nullopt;
            keys.push_back(static_cast<FunctionId>(t[i] - '0'));
        }
    }
    return keys;
}

std::optional<Token> ParseToken(std::string_view text) {
    if (text.empty()) return std::nullopt;
    if (text[0] == '#') {
        const auto id = WholeNumber(text.substr(1), 0, 65535);
        if (!id) return std::nullopt;
        return Token{TokenKind::Keys, {static_cast<FunctionId>(*id)}, {}, 0};
    }
    if (auto keys = NumberKeys(text)) return Token{TokenKind::Keys, std::move(*keys), {}, 0};
    if (StartsWith(text, "keys:")) return Token{TokenKind::Characters, {}, std::string(text.substr(5)), 0};
    if (StartsWith(text, "paste:")) return Token{TokenKind::Paste, {}, std::string(text.substr(6)), 0};
    if (StartsWith(text, "kb:")) {
        const auto n = WholeNumber(text.substr(3), 0, 8);
        if (!n) return std::nullopt;
        return Token{TokenKind::Keyboard, {}, {}, *n};
    }
    if (StartsWith(text, "key:")) {
        const auto n = WholeNumber(text.substr(4), 1, 12);
        if (!n) return std::nullopt;
        return Token{TokenKind::BlockKey, {}, {}, *n};
    }
    struct Command {
        std::string_view name;
        TokenKind kind;
    };
    static constexpr Command kCommands[] = {{"undo", TokenKind::Undo}, {"redo", TokenKind::Redo},
                                            {"copy", TokenKind::Copy}, {"cut", TokenKind::Cut},
                                            {"basic", TokenKind::Basic}, {"advanced", TokenKind::Advanced}};
    for (const Command& c : kCommands) {
        if (text == c.name) return Token{c.kind, {}, {}, 0};
    }
    if (const auto id = KeyByName(text)) return Token{TokenKind::Keys, {*id}, {}, 0};
    return std::nullopt;
}

}  // namespace brinto
