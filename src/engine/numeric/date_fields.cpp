#include "engine/numeric/date_fields.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <limits>

namespace brinto {

namespace {

consteval bool Ascending(const auto& table) {
    for (std::size_t i = 1; i < table.size(); ++i) {
        if (!(table[i - 1] < table[i])) return false;
    }
    return true;
}
static_assert(Ascending(kFourYearTable) && kFourYearTable.back() == kDaysPerCycle);

// Each month of the cycle 1904..1907 starts on the day the civil calendar gives, and the first day
// is a Friday. Within 1904..2031 every fourth year is a leap year in both (2000 too), so the one
// cycle stands for the whole range.
consteval bool TableIsTheCivilCalendar() {
    namespace chr = std::chrono;
    const chr::sys_days epoch = chr::year{kDateEpochYear} / chr::January / 1;
    for (int m = 0; m < 48; ++m) {
        const chr::sys_days first = chr::year{kDateEpochYear + m / 12} / chr::month(m % 12 + 1) / 1;
        if ((first - epoch).count() != kFourYearTable[m]) return false;
    }
    return chr::weekday{epoch} == chr::Friday;
}
static_assert(TableIsTheCivilCalendar());

// Fractions are cut off; what lies outside the range, NaN and infinity too, is held at its ends
// (2^32 + 7 would wrap into the range as a u32).
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN(), kInf = std::numeric_limits<double>::infinity();
static_assert(DateSeconds(12.7) == 12 && DateSeconds(-5) == 0 && DateSeconds(kNaN) == 0 && DateSeconds(-kInf) == 0);
static_assert(DateSeconds(4294967296.0 + 7) == kMaxDateValue && DateSeconds(kInf) == kMaxDateValue &&
              DateSeconds(kMaxDateValue + 0.5) == kMaxDateValue && DateSeconds(1e10) == kMaxDateValue);

constexpr std::int64_t FloorDivide(std::int64_t a, std::int64_t b) {
    return a / b - (a % b != 0 && (a < 0) != (b < 0) ? 1 : 0);
}

}  // namespace

DateFields SplitDate(double value) {
    const u32 seconds = DateSeconds(value);
    const u32 days = seconds / kSecondsPerDay;
    const u32 rest = seconds % kSecondsPerDay;
    const u32 dayInCycle = days % kDaysPerCycle;
    // The month whose first day is the last one not after dayInCycle (index 0..47).
    const auto next = std::upper_bound(kFourYearTable.begin(), kFourYearTable.end() - 1, dayInCycle);
    const int month = static_cast<int>(next - kFourYearTable.begin()) - 1;

    DateFields f;
    f.year = kDateEpochYear + 4 * static_cast<int>(days / kDaysPerCycle) + month / 12;
    f.month = month % 12 + 1;
    f.day = static_cast<int>(dayInCycle - kFourYearTable[month]) + 1;
    f.hour = static_cast<int>(rest / 3600);
    f.minute = static_cast<int>(rest % 3600 / 60);
    f.second = static_cast<int>(rest % 60);
    f.dayOfWeek = static_cast<int>((days + 5) % 7);  // 1904-01-01 was a Friday
    return f;
}

double ComposeDate(const DateFields& fields) {
    // Months beyond the year carry into the year first; the table itself only reaches the first
    // month after its cycle. Floor division keeps fields before the epoch before it.
    using i64 = std::int64_t;
    const i64 monthIndex = i64{fields.month} - 1;
    const i64 carry = FloorDivide(monthIndex, 12);
    const i64 year = fields.year + carry;
    const i64 month = monthIndex - 12 * carry;  // 0..11
    const i64 cycles = FloorDivide(year - kDateEpochYear, 4);
    const i64 yearInCycle = year - kDateEpochYear - 4 * cycles;  // 0 is the leap year

    const i64 days = cycles * kDaysPerCycle + kFourYearTable[yearInCycle * 12 + month] + fields.day - 1;
    const i64 seconds = ((days * 24 + fields.hour) * 60 + fields.minute) * 60 + fields.second;
    return static_cast<double>(seconds);
}

}  // namespace brinto
