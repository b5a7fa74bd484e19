#include "engine/function_ids.h"

#include <array>

namespace brinto {

namespace {
struct CategoryRange {
    u32 first;
    u32 last;
    u32 category;
};
// Tag ranges with a category; every tag outside them has category 0.
inline constexpr std::array kCategoryRanges = {
    CategoryRange{1800, 1800, 8}, CategoryRange{1801, 1803, 9}, CategoryRange{1804, 1811, 8},
    CategoryRange{1900, 1903, 1}, CategoryRange{1904, 1907, 5}, CategoryRange{1908, 1913, 4},
    CategoryRange{1914, 1917, 2}, CategoryRange{1918, 1921, 3}, CategoryRange{1922, 1923, 6},
    CategoryRange{1924, 1929, 7}, CategoryRange{1930, 1934, 1}, CategoryRange{1935, 1939, 2},
    CategoryRange{1940, 1941, 5}, CategoryRange{1942, 1942, 4}, CategoryRange{1943, 1954, 3},
};
}  // namespace

u32 TagCategory(u32 tag) {
    if (tag < 1800 || tag > 1954) return 0;
    for (const CategoryRange& r : kCategoryRanges) {
        if (tag >= r.first && tag <= r.last) return r.category;
    }
    return 0;
}

bool IsArithmeticOperator(FunctionId id) {
    return (id >= fid::Add && id <= fid::Divide) || (id >= fid::IntegerAdd && id <= fid::IntegerDivide);
}

FunctionId IntegerVariant(FunctionId id) {
    switch (id) {
        case 19: return 178;
        case 22: return 180;
        case 23: return 181;
        case 24: return 182;
        case 25: return 183;
        case 50: return 242;
        case 51: return 243;
        case 57: return 179;
        default: return id;
    }
}

FunctionId RegisterVariant(FunctionId id, bool hundredRegisters) {
    const FunctionId large = hundredRegisters ? 1 : 0;
    switch (id) {
        case fid::Store: return fid::StoreVariant + large;
        case fid::Recall: return fid::RecallVariant + large;
        case fid::Exchange: return fid::ExchangeVariant + large;
        default: return id;
    }
}

FunctionId RegisterBase(FunctionId id) {
    if (id == 244 || id == 245) return fid::Recall;
    if (id == 246 || id == 247) return fid::Exchange;
    if (id == 248 || id == 249) return fid::Store;
    return id;
}

}  // namespace brinto
