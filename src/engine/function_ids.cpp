#include "engine/function_ids.h"

#include <array>

namespace brinto {

namespace {

struct CategoryRun {
    ValueTag first;
    ValueTag last;
    Category category;
};
// Runs of tags with a category; every tag outside them has none.
constexpr std::array kCategoryRuns = {
    CategoryRun{ValueTag::Hms, ValueTag::Hms, Category::Duration},
    CategoryRun{ValueTag::Date, ValueTag::DateTime, Category::Calendar},
    CategoryRun{ValueTag::Years, ValueTag::Frames, Category::Duration},
    CategoryRun{ValueTag::Inches, ValueTag::Meters, Category::Length},
    CategoryRun{ValueTag::Pounds, ValueTag::Grams, Category::Mass},
    CategoryRun{ValueTag::InchesPerSecond, ValueTag::CentimetersPerSecond, Category::Speed},
    CategoryRun{ValueTag::SquareInches, ValueTag::SquareMeters, Category::Area},
    CategoryRun{ValueTag::Gallons, ValueTag::FluidOunces, Category::Volume},
    CategoryRun{ValueTag::DegC, ValueTag::DegF, Category::Temperature},
    CategoryRun{ValueTag::U8, ValueTag::S32, Category::IntegerFormat},
    CategoryRun{ValueTag::Centimeters, ValueTag::NauticalMiles, Category::Length},
    CategoryRun{ValueTag::SquareMillimeters, ValueTag::Acres, Category::Area},
    CategoryRun{ValueTag::Tons, ValueTag::Milligrams, Category::Mass},
    CategoryRun{ValueTag::Knots, ValueTag::Knots, Category::Speed},
    CategoryRun{ValueTag::CubicMeters, ValueTag::FluidOuncesUk, Category::Volume},
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

Category TagCategory(ValueTag tag) {
    for (const CategoryRun& run : kCategoryRuns) {
        if (tag >= run.first && tag <= run.last) return run.category;
    }
    return Category::None;
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
