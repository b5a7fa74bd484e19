#include "engine/key_table.h"

namespace brinto {

std::string_view FamilyName(KeyFamily family) {
    switch (family) {
        case kf::Register: return "Register";
        case kf::Format: return "Format";
        case kf::Mode: return "Mode";
        case kf::Financial: return "Financial";
        case kf::Scientific: return "Scientific";
        case kf::FinanceResult: return "FinanceResult";
        case kf::Statistics: return "Statistics";
        case kf::Date: return "Date";
        case kf::Integer: return "Integer";
        case kf::Conversion: return "Conversion";
        case kf::Operator: return "Operator";
        case kf::Entry: return "Entry";
        case kf::Shift: return "Shift";
        case kf::Macro: return "Macro";
        case kf::BuiltIn: return "BuiltIn";
        case kf::None: break;
    }
    return "-";
}

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
