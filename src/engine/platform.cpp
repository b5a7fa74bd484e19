#include "engine/platform.h"

#include <array>
#include <cstdio>

namespace brinto {

std::string FixedPlatform::DateText(const DateFields& d, bool longForm) const {
    static constexpr std::array<const char*, 7> kDays = {"Sunday", "Monday", "Tuesday", "Wednesday",
                                                         "Thursday", "Friday", "Saturday"};
    static constexpr std::array<const char*, 12> kMonths = {
        "January", "February", "March", "April", "May", "June", "July",
        "August", "September", "October", "November", "December"};
    char text[96];
    if (longForm && d.month >= 1 && d.month <= 12 && d.dayOfWeek >= 0 && d.dayOfWeek <= 6) {
        std::snprintf(text, sizeof text, "%s, %d %s %04d", kDays[d.dayOfWeek], d.day,
                      kMonths[d.month - 1], d.year);
    } else {
        std::snprintf(text, sizeof text, "%04d-%02d-%02d", d.year, d.month, d.day);
    }
    return text;
}

std::string FixedPlatform::TimeText(const DateFields& t) const {
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d", t.hour, t.minute);
    return text;
}

const Platform& DefaultPlatform() {
    static const FixedPlatform platform;
    return platform;
}

}  // namespace brinto
