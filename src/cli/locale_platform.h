#pragma once
// The platform of brinto-cli: the system clock (or a time pinned by --now) and the C library's
// locale for writing dates and times.
#include <optional>

#include "engine/platform.h"

namespace brinto {

class LocalePlatform : public Platform {
public:
    std::optional<DateFields> pinnedNow;
    DateFields Now() const override;
    std::string DateText(const DateFields& date, bool longForm) const override;
    std::string TimeText(const DateFields& time) const override;
};

// "YYYY-MM-DD HH:MM:SS" to fields (day of week computed); nothing when malformed.
std::optional<DateFields> ParseDateTime(std::string_view text);

}  // namespace brinto
