#include "cli/key_listing.h"

#include <algorithm>
#include <cctype>
#include <ostream>
#include <string>

#include "cli/tokens.h"
#include "engine/key_table.h"
#include "engine/keyboards.h"
#include "ops/constants.h"
#include "session/key_legends.h"
#include "session/keypad.h"

namespace brinto {

namespace {

std::string Aliases(FunctionId id) {
    std::string out;
    for (const KeyAlias& a : kKeyAliases) {
        if (a.id != id) continue;
        if (!out.empty()) out += ' ';
        out += a.name;
    }
    return out;
}

// Columns on a terminal: UTF-8 continuation bytes and combining marks (U+0300..U+036F) take none.
std::size_t Columns(std::string_view text) {
    std::size_t columns = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if ((c & 0xC0) == 0x80) continue;
        const bool combining =
            c == 0xCC || (c == 0xCD && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xB0);
        if (!combining) ++columns;
    }
    return columns;
}

void Padded(std::ostream& out, std::string_view text, std::size_t width) {
    out << text;
    for (std::size_t n = Columns(text); n < width; ++n) out << ' ';
    out << ' ';
}

void Line(std::ostream& out, std::string_view name, std::string_view code, std::string_view family,
          std::string_view legend, std::string_view meaning, std::string_view aliases = {}) {
    Padded(out, name, 13);
    Padded(out, code, 5);
    Padded(out, family, 13);
    Padded(out, legend, 6);
    out << meaning;
    if (!aliases.empty()) out << " (also " << aliases << ')';
    out << '\n';
}

void KeyLine(std::ostream& out, FunctionId id) {
    const KeyLegend* legend = FindLegend(id);
    Line(out, KeyName(id), std::to_string(ToNumber(id)), FamilyName(FamilyOf(id)),
         legend ? legend->legend : "?", legend ? legend->fullName : "", Aliases(id));
}

// Where a key sits: "General key:10", "Scientific shifted key:3", "keypad", "keypad shifted".
std::vector<std::string> Places(FunctionId id) {
    std::vector<std::string> places;
    for (const KeyboardLayout& k : kBuiltInKeyboards) {
        for (int i = 0; i < kBlockKeys; ++i) {
            if (k.unshifted[i] == id) places.push_back(std::string(k.name) + " key:" + std::to_string(i + 1));
            if (k.shifted[i] == id) places.push_back(std::string(k.name) + " shifted key:" + std::to_string(i + 1));
        }
    }
    bool plain = false, shifted = false;
    for (const KeypadRow& row : SharedKeypad()) {
        for (const KeypadKey& key : row) {
            plain = plain || key.unshifted == id;
            shifted = shifted || (key.shifted == id && key.unshifted != id);
        }
    }
    if (plain) places.push_back("keypad");
    if (shifted) places.push_back("keypad shifted");
    return places;
}

char Lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

// Edits (insert, delete, replace, swap two neighbours) that turn a into b, ignoring case.
std::size_t EditDistance(std::string_view a, std::string_view b) {
    std::vector<std::vector<std::size_t>> d(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) d[i][0] = i;
    for (std::size_t j = 0; j <= b.size(); ++j) d[0][j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t cost = Lower(a[i - 1]) == Lower(b[j - 1]) ? 0 : 1;
            d[i][j] = std::min({d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + cost});
            if (i > 1 && j > 1 && Lower(a[i - 1]) == Lower(b[j - 2]) && Lower(a[i - 2]) == Lower(b[j - 1])) {
                d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
            }
        }
    }
    return d[a.size()][b.size()];
}

}  // namespace

std::string KeyName(FunctionId id) {
    const auto it = std::lower_bound(kKeyTable.begin(), kKeyTable.end(), id,
                                     [](const KeyInfo& k, FunctionId wanted) { return k.id < wanted; });
    if (it != kKeyTable.end() && it->id == id) return std::string(it->name);
    return "#" + std::to_string(ToNumber(id));
}

void ListKeys(std::ostream& out) {
    // A key on several keyboards is listed under each, so that every section reads as the keyboard does.
    for (const KeyboardLayout& k : kBuiltInKeyboards) {
        out << "# " << k.name << '\n';
        for (const FunctionId id : k.unshifted) KeyLine(out, id);
        out << "# " << k.name << ", shifted\n";
        for (const FunctionId id : k.shifted) KeyLine(out, id);
    }
    out << "# Keypad (under every keyboard)\n";
    for (const KeypadRow& row : SharedKeypad()) {
        for (const KeypadKey& key : row) KeyLine(out, key.unshifted);
    }
    out << "# Keypad, shifted\n";
    for (const KeypadRow& row : SharedKeypad()) {
        for (const KeypadKey& key : row) {
            if (key.shifted != key.unshifted) KeyLine(out, key.shifted);
        }
    }
    out << "# Other keys (on no keyboard)\n";
    for (const KeyInfo& k : kKeyTable) {
        if (Places(k.id).empty()) KeyLine(out, k.id);
    }
    out << "# Commands\n";
    for (const CommandInfo& c : Commands()) Line(out, c.name, "-", "-", "-", c.meaning);
    out << "# Constants (recalled into X)\n";
    for (int i = 0; i < kConstantCount; ++i) Line(out, "const:" + std::to_string(i), "-", "-", "-", ConstantName(i));
}

bool DescribeName(std::string_view name, std::ostream& out) {
    if (const auto id = KeyByName(name)) {
        const KeyLegend* legend = FindLegend(*id);
        out << KeyName(*id) << " (" << (legend ? legend->legend : "?") << "): " << (legend ? legend->fullName : "")
            << "\n  key code " << ToNumber(*id) << '\n';
        if (const std::string aliases = Aliases(*id); !aliases.empty()) out << "  also typed as: " << aliases << '\n';
        const std::vector<std::string> places = Places(*id);
        out << "  on the keyboards: ";
        for (std::size_t i = 0; i < places.size(); ++i) out << (i ? ", " : "") << places[i];
        if (places.empty()) out << "none (type its name)";
        out << '\n';
        if (legend && !legend->hardwareKey.empty()) out << "  in the desktop program also: " << legend->hardwareKey << '\n';
        return true;
    }
    for (const CommandInfo& c : Commands()) {
        if (c.name == name) {
            out << c.name << ": " << c.meaning << '\n';
            return true;
        }
    }
    if (const auto token = ParseToken(name); token && token->kind == TokenKind::Constant) {
        out << "const:" << token->number << ": " << ConstantName(token->number) << ", recalled into X\n";
        return true;
    }
    return false;
}

std::vector<std::string_view> NearestNames(std::string_view word, std::span<const std::string_view> extra) {
    std::vector<std::pair<std::size_t, std::string_view>> near;
    if (word.empty() || word.size() > 24) return {};
    const std::size_t reach = word.size() <= 3 ? 1 : 2;
    const auto consider = [&](std::string_view name) {
        const std::size_t d = EditDistance(word, name);
        // A distance as long as both words says nothing about what was meant ("x" is not "a").
        if (d <= reach && d < std::max(word.size(), name.size())) near.emplace_back(d, name);
    };
    for (const KeyInfo& k : kKeyTable) consider(k.name);
    for (const KeyAlias& a : kKeyAliases) consider(a.name);
    for (const CommandInfo& c : Commands()) consider(c.name);
    for (const std::string_view e : extra) consider(e);
    std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string_view> names;
    for (const auto& [distance, name] : near) {
        if (names.size() == 3) break;
        names.push_back(name);
    }
    return names;
}

}  // namespace brinto
