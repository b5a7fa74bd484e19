#pragma once
// Date values and their calendar fields.
//
// A date value counts seconds since 1904-01-01 00:00:00 local time, from 0 to kMaxDateValue
// (2031-12-31 23:59:59). Within that range every fourth year is a leap year, so one table of
// cumulative day counts for a four-year cycle starting with a leap year serves both directions.
#include <array>

#include "engine/platform.h"
#include "engine/types.h"

namespace brinto {

inline constexpr u32 kMaxDateValue = 4039372799u;
inline constexpr int kDateEpochYear = 1904;
inline constexpr u32 kSecondsPerDay = 86400;
inline constexpr u32 kDaysPerCycle = 1461;  // four years, the first a leap year

// Days from the start of a four-year cycle to the first of each of its 48 months, and the
// cycle's length as the closing entry.
inline constexpr std::array<u16, 49> kFourYearTable = {
    0,    31,   60,   91,   121,  152,  182,  213,  244,  274,  305,  335,   // leap year
    366,  397,  425,  456,  486,  517,  547,  578,  609,  639,  670,  700,   //
    731,  762,  790,  821,  851,  882,  912,  943,  974,  1004, 1035, 1065,  //
    1096, 1127, 1155, 1186, 1216, 1247, 1277, 1308, 1339, 1369, 1400, 1430,  //
    1461};

constexpr bool IsDateInRange(double value) { return value >= 0 && value <= kMaxDateValue; }

// Whole seconds of a date value, held within the date range: NaN and negative values give 0,
// values above the range (and +infinity) give kMaxDateValue, fractions are cut off.
constexpr u32 DateSeconds(double value) {
    if (!(value > 0)) return 0;  // also NaN
    if (value >= kMaxDateValue) return kMaxDateValue;
    return static_cast<u32>(value);
}

// The calendar fields of a date value (taken through DateSeconds), including the day of week.
DateFields SplitDate(double value);

// The date value of calendar fields (dayOfWeek is ignored). A month beyond 12 rolls into the
// following years and a day beyond the month's length into the following months, so date entry
// can pass what the user typed. Within the date range this is the usual unsigned sum; it is
// formed in 64 bits and not capped, so fields before 1904-01-01 give a negative value and fields
// after 2031 a value above kMaxDateValue, which callers reject.
double ComposeDate(const DateFields& fields);

}  // namespace brinto
