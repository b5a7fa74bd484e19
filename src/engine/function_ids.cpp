#include "engine/function_ids.h"

#include <array>

namespace brinto {

namespace {

struct KeyPair {
    FunctionId plain;
    FunctionId variant;
};
// The programmer keyboard's integer variants.
constexpr std::array kIntegerVariants = {
    KeyPair{fid::ChangeSign, fid::IntegerNegate},     KeyPair{fid::Add, fid::IntegerAdd},
    KeyPair{fid::Subtract, fid::IntegerSubtract},     KeyPair{fid::Multiply, fid::IntegerMultiply},
    KeyPair{fid::Divide, fid::IntegerDivide},         KeyPair{fid::Spare50, fid::IntegerSpare50},
    KeyPair{fid::Spare51, fid::IntegerSpare51},       KeyPair{fid::RoundToDisplay, fid::ToDefaultFormat},
};

struct RegisterKey {
    FunctionId base;
    FunctionId small;  // one-digit register numbers
    FunctionId large;  // two-digit register numbers
};
constexpr std::array kRegisterKeys = {
    RegisterKey{fid::Store, fid::StoreVariant, fid::StoreLarge},
    RegisterKey{fid::Recall, fid::RecallVariant, fid::RecallLarge},
    RegisterKey{fid::Exchange, fid::ExchangeVariant, fid::ExchangeLarge},
};

}  // namespace

FunctionId IntegerVariant(FunctionId id) {
    for (const KeyPair& pair : kIntegerVariants) {
        if (pair.plain == id) return pair.variant;
    }
    return id;
}

FunctionId RegisterVariant(FunctionId id, RegisterSet set) {
    for (const RegisterKey& key : kRegisterKeys) {
        if (key.base == id) return set == RegisterSet::Large ? key.large : key.small;
    }
    return id;
}

FunctionId RegisterBase(FunctionId id) {
    for (const RegisterKey& key : kRegisterKeys) {
        if (id == key.small || id == key.large) return key.base;
    }
    return id;
}

}  // namespace brinto
