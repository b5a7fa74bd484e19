#include "cli/tokens.h"

#include "cli/formula.h"
#include "engine/key_table.h"
#include "engine/keyboards.h"
#include "ops/constants.h"
#include "ops/units.h"
#include "session/key_legends.h"

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
        {"to", TokenKind::To, "Before a unit key: X converted to that unit, or an error (10 km to mi)"},
    };
    return kCommands;
}

std::span<const NumberedForm> NumberedForms() {
    static constexpr NumberedForm kForms[] = {{"#", TokenKind::ExactKey, 0, 65535},
                                              {"kb:", TokenKind::Keyboard, 0, kKeyboardCount - 1},
                                              {"key:", TokenKind::BlockKey, 1, kBlockKeys},
                                              {"const:", TokenKind::Constant, 0, kConstantCount - 1}};
    return kForms;
}

std::optional<Token> ParseToken(std::string_view text, NumberSyntax syntax) {
    if (text.empty()) return std::nullopt;
    for (const NumberedForm& f : NumberedForms()) {
        if (!StartsWith(text, f.prefix)) continue;
        const auto n = WholeNumber(text.substr(f.prefix.size()), f.low, f.high);
        if (!n) return std::nullopt;
        if (f.kind == TokenKind::ExactKey) return Token{f.kind, FunctionIdFrom(static_cast<u32>(*n)), {}, 0};
        return Token{f.kind, kNoKey, {}, *n};
    }
    if (SplitNumber(text, syntax)) return Token{TokenKind::Number, kNoKey, text, 0};
    if (StartsWith(text, "keys:")) return Token{TokenKind::Characters, kNoKey, text.substr(5), 0};
    if (StartsWith(text, "paste:")) return Token{TokenKind::Paste, kNoKey, text.substr(6), 0};
    for (const CommandInfo& c : Commands()) {
        if (text == c.name) return Token{c.kind, kNoKey, {}, 0};
    }
    if (const auto id = KeyByName(text)) return Token{TokenKind::Key, *id, {}, 0};
    if (const auto id = UnitKeyByFace(text)) return Token{TokenKind::Key, *id, {}, 0};
    if (LooksLikeFormula(text) && !KeysOfFormula(text, FormulaMethod::Postfix).error) {
        return Token{TokenKind::Formula, kNoKey, text, 0};
    }
    return std::nullopt;
}

std::optional<FunctionId> UnitKeyByFace(std::string_view text) {
    std::optional<FunctionId> found;
    for (const KeyLegend& legend : AllLegends()) {
        if (!SameName(legend.legend, text)) continue;
        if (found || !IsUnitKey(legend.id)) return std::nullopt;  // a face on two keys names neither
        found = legend.id;
    }
    return found;
}

}  // namespace brinto
