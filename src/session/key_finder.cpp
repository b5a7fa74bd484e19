#include "session/key_finder.h"

#include <algorithm>

#include "engine/key_table.h"
#include "session/key_legends.h"

namespace brinto {

namespace {

char Lower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool StartsWith(std::string_view text, std::string_view start) {
    return text.size() >= start.size() && SameName(text.substr(0, start.size()), start);
}

bool Holds(std::string_view text, std::string_view part) {
    const auto found = std::search(text.begin(), text.end(), part.begin(), part.end(),
                                   [](char a, char b) { return Lower(a) == Lower(b); });
    return found != text.end();
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

// How well a key answers the text typed; lower is better, nothing for no match.
std::optional<int> Rank(const KeyInfo& key, const KeyLegend& legend, std::string_view typed,
                        const std::string& shownName) {
    bool aliasStarts = false;
    for (const KeyAlias& alias : kKeyAliases) {
        if (alias.id != key.id) continue;
        if (SameName(alias.name, typed)) return 0;
        aliasStarts = aliasStarts || StartsWith(alias.name, typed);
    }
    if (SameName(key.name, typed) || SameName(legend.fullName, typed) || SameName(shownName, typed)) return 0;
    if (StartsWith(key.name, typed) || aliasStarts) return 1;
    if (StartsWith(legend.fullName, typed) || StartsWith(shownName, typed)) return 2;
    if (Holds(legend.fullName, typed) || Holds(shownName, typed)) return 3;
    return std::nullopt;
}

}  // namespace

std::optional<FunctionId> FindKey(std::string_view typed, const ShownMeaning& shown) {
    typed = Trimmed(typed);
    if (typed.empty()) return std::nullopt;
    if (const auto id = KeyByName(typed)) return id;
    const std::span<const KeyLegend> legends = AllLegends();
    for (const KeyLegend& legend : legends) {
        if (SameName(legend.fullName, typed) || (shown && SameName(shown(legend.fullName), typed)))
            return legend.id;
    }
    std::optional<FunctionId> worn;
    for (const KeyLegend& legend : legends) {
        if (!SameName(legend.legend, typed)) continue;
        if (worn) return std::nullopt;  // a face on two keys names neither
        worn = legend.id;
    }
    return worn;
}

std::vector<KeyChoice> OfferKeys(std::string_view typed, std::size_t limit, const ShownMeaning& shown) {
    typed = Trimmed(typed);
    if (typed.empty()) return {};
    struct Ranked {
        int rank;
        std::size_t order;
        KeyChoice choice;
    };
    std::vector<Ranked> found;
    for (std::size_t k = 0; k < kKeyTable.size(); ++k) {
        const KeyInfo& key = kKeyTable[k];
        const KeyLegend* legend = FindLegend(key.id);
        if (!legend) continue;
        const auto rank = Rank(key, *legend, typed, shown ? shown(legend->fullName) : std::string());
        if (!rank) continue;
        found.push_back({*rank, k, {key.id, key.name, legend->fullName, legend->legend}});
    }
    // A face that names one key exactly leads, as FindKey takes it.
    if (const auto exact = FindKey(typed, shown)) {
        for (Ranked& r : found) {
            if (r.choice.id == *exact) r.rank = -1;
        }
    }
    std::stable_sort(found.begin(), found.end(), [](const Ranked& a, const Ranked& b) {
        return a.rank != b.rank ? a.rank < b.rank : a.order < b.order;
    });
    std::vector<KeyChoice> offered;
    for (const Ranked& r : found) {
        if (offered.size() >= limit) break;
        offered.push_back(r.choice);
    }
    return offered;
}

}  // namespace brinto
