#include "engine/key_table.h"

#include <algorithm>

namespace brinto {

std::optional<FunctionId> KeyByName(std::string_view name) {
    for (const KeyInfo& k : kKeyTable) {
        if (k.name.size() == name.size() &&
            std::equal(k.name.begin(), k.name.end(), name.begin(), [](char a, char b) {
                const auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; };
                return lower(a) == lower(b);
            })) {
            return k.id;
        }
    }
    return std::nullopt;
}

}  // namespace brinto
