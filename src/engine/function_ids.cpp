#include "engine/function_ids.h"

#include <array>

namespace brinto {

namespace {

struct CategoryRun {
    ValueTag first;
    ValueTag last;
    TagCategory category;
};
// Runs of tags with a category; every tag outside them has none.
constexpr std::array kCategoryRuns = {
    CategoryRun{ValueTag::Hms, ValueTag::Hms, TagCategory::Duration},
    CategoryRun{ValueTag::Date, ValueTag::DateTime, TagCategory::Calendar},
    CategoryRun{ValueTag::Years, ValueTag::Frames, TagCategory::Duration},
    CategoryRun{ValueTag::Inches, ValueTag::Meters, TagCategory::Length},
    CategoryRun{ValueTag::Pounds, ValueTag::Grams, TagCategory::Mass},
    CategoryRun{ValueTag::InchesPerSecond, ValueTag::CmPerSecond, TagCategory::Speed},
    CategoryRun{ValueTag::SqInches, ValueTag::SqMeters, TagCategory::Area},
    CategoryRun{ValueTag::Gallons, ValueTag::FluidOunces, TagCategory::Volume},
    CategoryRun{ValueTag::DegC, ValueTag::DegF, TagCategory::Temperature},
    CategoryRun{ValueTag::U8, ValueTag::S32, TagCategory::IntegerFormat},
    CategoryRun{ValueTag::Centimeters, ValueTag::NauticalMiles, TagCategory::Length},
    CategoryRun{ValueTag::SqMillimeters, ValueTag::Acres, TagCategory::Area},
    CategoryRun{ValueTag::Tons, ValueTag::Milligrams, TagCategory::Mass},
    CategoryRun{ValueTag::Knots, ValueTag::Knots, TagCategory::Speed},
    CategoryRun{ValueTag::CubicMeters, ValueTag::FluidOuncesUk, TagCategory::Volume},
};

consteval bool RunsAscendAndDoNotOverlap() {
    for (std::size_t i = 0; i < kCategoryRuns.size(); ++i) {
        if (kCategoryRuns[i].last < kCategoryRuns[i].first) return false;
        if (i > 0 && !(kCategoryRuns[i - 1].last < kCategoryRuns[i].first)) return false;
    }
    return true;
}
static_assert(RunsAscendAndDoNotOverlap(), "tag category runs overlap or are out of order");

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

TagCategory CategoryOf(ValueTag tag) {
    for (const CategoryRun& run : kCategoryRuns) {
        if (tag >= run.first && tag <= run.last) return run.category;
    }
    return TagCategory::None;
}

bool IsArithmeticOperator(FunctionId id) {
    return (id >= fid::Add && id <= fid::Divide) || (id >= fid::IntegerAdd && id <= fid::IntegerDivide);
}

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
