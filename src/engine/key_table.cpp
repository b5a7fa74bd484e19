#include "engine/key_table.h"

namespace brinto {

std::optional<FunctionId> KeyByName(std::string_view name) {
    for (const KeyInfo& k : kKeyTable) {
        if (SameName(k.name, name)) return k.id;
    }
    for (const KeyAlias& a : kKeyAliases) {
        if (SameName(a.name, name)) return a.id;
    }
    return std::nullopt;
}

}  // namespace brinto
