#pragma once
// What the engine cannot know by itself: the local date and time, the user's way of writing dates
// and times, and the beep. Front ends inject their own; the defaults are fixed for tests.
#include <string>

#include "engine/types.h"

namespace brinto {

// The fields of a local date and time. dayOfWeek: 0 Sunday .. 6 Saturday.
struct DateFields {
    int year = 1904;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int dayOfWeek = 5;
};

class Platform {
public:
    virtual ~Platform() = default;
    virtual DateFields Now() const = 0;
    // A date as the user's locale writes it, in its long or short form.
    virtual std::string DateText(const DateFields& date, bool longForm) const = 0;
    // A clock time as the user's locale writes it, without seconds.
    virtual std::string TimeText(const DateFields& time) const = 0;
    virtual void Beep() const {}
};

// Deterministic platform: "now" is a fixed moment (2000-01-01 00:00:00 unless set), dates are
// written "2005-03-15" (long: "Tuesday, 15 March 2005") and times "14:05".
class FixedPlatform : public Platform {
public:
    DateFields now{2000, 1, 1, 0, 0, 0, 6};
    DateFields Now() const override { return now; }
    std::string DateText(const DateFields& date, bool longForm) const override;
    std::string TimeText(const DateFields& time) const override;
};

const Platform& DefaultPlatform();

}  // namespace brinto
