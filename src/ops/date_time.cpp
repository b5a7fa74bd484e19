// The Date & Time keyboard: date and time entry, now, date and time parts, the h.mmss
// conversions, fraction to the next unit and the duration settings; and the date rules of add
// and subtract.
#include "ops/date_time.h"

#include <array>
#include <cmath>

#include "engine/numeric/date_fields.h"
#include "engine/numeric/decimal_digits.h"
#include "ops/key_handlers.h"
#include "ops/units.h"

namespace brinto {

namespace {

constexpr double kSecondsPerHour = 3600.0;

bool IsDateKind(ValueTag t) { return TagCategory(t) == Category::Calendar; }

TaggedValue Error() { return {kErrorValue, ValueTag::None}; }

// The whole part and the next two digits of a packed number (Y.MMDD, H.MMSS): the two digits come
// from the fraction, cleaned and nudged by 0.0005 so that 3.15 typed reads as 3 and 15 however
// the binary value falls.
struct Packed {
    double whole;
    double first;   // MM
    double second;  // DD or SS
};

Packed Unpack(double v) {
    const double m = RoundTo14(Fraction(v) * 100.0) + 0.0005;
    return {std::trunc(v), std::trunc(m), std::trunc(Fraction(m) * 100.0)};
}

// A duration operand in seconds: its own unit when it has one (h.mmss as hours), else the unit
// the date kind implies.
double DurationSeconds(TaggedValue d, ValueTag defaultUnit) {
    if (d.tag == ValueTag::Hms) return HmsToHours(d.value) * SecondsPerTimeUnit(ValueTag::Hours);
    const ValueTag unit = TagCategory(d.tag) == Category::Duration ? d.tag : defaultUnit;
    return d.value * SecondsPerTimeUnit(unit);
}

ValueTag DefaultUnitBeside(ValueTag kind) { return kind == ValueTag::Time ? ValueTag::Hours : ValueTag::Days; }

TaggedValue InRange(double value, ValueTag kind) {
    return IsDateInRange(value) ? TaggedValue{value, kind} : Error();
}

// The next smaller unit for "fraction to next unit"; frames and h.mmss keep their own.
ValueTag NextSmallerUnit(ValueTag t) {
    switch (t) {
        case ValueTag::Years: return ValueTag::Months;
        case ValueTag::Months:
        case ValueTag::Weeks: return ValueTag::Days;
        case ValueTag::Days: return ValueTag::Hours;
        case ValueTag::Hours: return ValueTag::Minutes;
        case ValueTag::Minutes: return ValueTag::Seconds;
        case ValueTag::Seconds: return ValueTag::Frames;
        default: return t;
    }
}

void SetResult(Engine& e, double value, ValueTag t) {
    e.SetX(value);
    if (!IsErrorValue(value)) e.SetXTag(t);
}

void Now(Engine& e) {
    if (e.LiftEnabled()) e.Lift();  // only the lift flag: "now" is not a recall
    const DateFields now = e.platform().Now();
    // Fields far outside the calendar (a broken clock) must not reach the arithmetic as huge ints.
    const bool sane = now.year >= 1000 && now.year <= 9999 && now.month >= 1 && now.month <= 12 &&
                      now.day >= 1 && now.day <= 31 && now.hour >= 0 && now.hour < 24 && now.minute >= 0 &&
                      now.minute < 60 && now.second >= 0 && now.second < 62;
    const double value = sane ? ComposeDate(now) : kErrorValue;
    SetResult(e, IsDateInRange(value) ? value : kErrorValue, ValueTag::DateTime);
}

// The date and time keys: a typed number becomes a date or a time; a date kind is reduced to its date
// or time of day; a value already of the key's kind is left alone.
void DateOrTimeKey(Engine& e, ValueTag kind) {
    if (e.XTag() == kind) return;
    const double x = e.X();
    double value;
    if (IsDateKind(e.XTag())) {
        value = kind == ValueTag::Date ? DatePartOf(x) : TimePartOf(x);
    } else {
        value = kind == ValueTag::Date ? DateFromEntry(x) : TimeFromEntry(x);
    }
    SetResult(e, value, kind);
}

void PartKey(Engine& e, ValueTag kind) {
    if (!IsDateKind(e.XTag())) {
        e.SetXError();
        return;
    }
    e.SaveLastX();
    SetResult(e, kind == ValueTag::Date ? DatePartOf(e.X()) : TimePartOf(e.X()), kind);
}

void ToHmsKey(Engine& e) {
    e.SaveLastX();
    double hours = e.X();
    const ValueTag t = e.XTag();
    if (TagCategory(t) == Category::Duration && t != ValueTag::Hours) hours = ConvertDuration(hours, t, ValueTag::Hours, DurationSettingsOf(e));
    SetResult(e, HoursToHms(hours), ValueTag::Hms);
}

void FractionKey(Engine& e) {
    e.SaveLastX();
    const ValueTag t = e.XTag();
    if (TagCategory(t) != Category::Duration) {
        e.SetXError();
        return;
    }
    const double fraction = Fraction(e.X());
    const ValueTag next = NextSmallerUnit(t);
    SetResult(e, next == t ? fraction : ConvertDuration(fraction, t, next, DurationSettingsOf(e)), next);
}

struct DurationSetting {
    FunctionId key;
    int registerNumber;
    ValueTag label;
};
constexpr std::array kDurationSettings = {
    DurationSetting{fid::DaysPerYear, reg::DaysPerYear, label::DaysPerYear},
    DurationSetting{fid::DaysPerMonth, reg::DaysPerMonth, label::DaysPerMonth},
    DurationSetting{fid::DaysPerWeek, reg::DaysPerWeek, label::DaysPerWeek},
    DurationSetting{fid::HoursPerDay, reg::HoursPerDay, label::HoursPerDay},
    DurationSetting{fid::FramesPerSecond, reg::FramesPerSecond, label::FramesPerSecond},
};

// dpy, dpm, dpw, hpd, fps: a number being typed is stored; otherwise the setting is recalled.
bool DurationSettingKey(Engine& e, FunctionId id) {
    const DurationSetting* key = nullptr;
    for (const DurationSetting& row : kDurationSettings) {
        if (row.key == id) key = &row;
    }
    if (!key) return false;
    double& setting = e.registers.values[key->registerNumber];
    if (e.EntryOpen()) {
        e.FinishEntry();
        e.DisableLift();
        setting = e.X();
    } else {
        if (e.LiftEnabled()) e.Lift();
        e.SetX(setting);
    }
    e.SetXTag(key->label);
    e.dirty.registers = true;
    return true;
}

}  // namespace

double Fraction(double v) { return RoundTo14(v - std::trunc(v)); }

double HoursToHms(double hours) {
    const double minutes = RoundTo14(Fraction(hours) * 60.0);
    return std::trunc(hours) + std::trunc(minutes) * 0.01 + RoundTo14(minutes - std::trunc(minutes)) * 0.006;
}

double HmsToHours(double hms) {
    const double minutes = RoundTo14(Fraction(hms) * 100.0);  // MM.SS
    return std::trunc(hms) + std::trunc(minutes) * 0.016666666666666666 +
           RoundTo14(minutes - std::trunc(minutes)) * 0.027777777777777776;
}

double DateFromEntry(double x) {
    if (!std::isfinite(x)) return kErrorValue;
    const Packed p = Unpack(x);
    double year = p.whole;
    if (year < 32) {
        year += 2000;
    } else if (year < 100) {
        year += 1900;
    }
    if (year < kDateEpochYear) year = kDateEpochYear;
    if (year > 2031) return kErrorValue;  // beyond the range whatever the month and day
    DateFields f;
    f.year = static_cast<int>(year);
    f.month = p.first < 1 ? 1 : static_cast<int>(p.first);  // at most 100: two digits of a fraction
    f.day = p.second < 1 ? 1 : static_cast<int>(p.second);
    f.hour = f.minute = f.second = 0;
    const double value = ComposeDate(f);
    return IsDateInRange(value) ? value : kErrorValue;
}

double TimeFromEntry(double x) {
    if (!std::isfinite(x)) return kErrorValue;
    const Packed p = Unpack(x);
    return p.second + p.first * 60.0 + p.whole * kSecondsPerHour;
}

double DatePartOf(double value) {
    if (!IsDateInRange(value)) return kErrorValue;
    DateFields f = SplitDate(value);
    f.hour = f.minute = f.second = 0;
    return ComposeDate(f);
}

double TimePartOf(double value) {
    if (!IsDateInRange(value)) return kErrorValue;
    const DateFields f = SplitDate(value);
    return f.hour * kSecondsPerHour + f.minute * 60.0 + f.second;
}

TaggedValue DateSum(TaggedValue y, TaggedValue x) {
    if (IsDateKind(y.tag) && IsDateKind(x.tag)) {
        const bool dateAndTime = (y.tag == ValueTag::Date && x.tag == ValueTag::Time) || (y.tag == ValueTag::Time && x.tag == ValueTag::Date);
        return dateAndTime ? InRange(y.value + x.value, ValueTag::DateTime) : Error();
    }
    const TaggedValue& moment = IsDateKind(y.tag) ? y : x;
    const TaggedValue& duration = IsDateKind(y.tag) ? x : y;
    return InRange(moment.value + DurationSeconds(duration, DefaultUnitBeside(moment.tag)), moment.tag);
}

TaggedValue DateDifference(TaggedValue y, TaggedValue x) {
    if (IsDateKind(y.tag) && IsDateKind(x.tag)) {
        const double seconds = y.value - x.value;  // may be negative
        if (y.tag == ValueTag::Date && x.tag == ValueTag::Date) return {seconds / 86400.0, ValueTag::Days};
        if (y.tag == ValueTag::DateTime && x.tag == ValueTag::Date) return {seconds / 86400.0, ValueTag::Days};
        if (y.tag == x.tag) return {seconds / kSecondsPerHour, ValueTag::Hours};  // time - time, dt - dt
        return Error();
    }
    if (!IsDateKind(y.tag)) return Error();  // a duration minus a date means nothing
    const double value = y.value - DurationSeconds(x, DefaultUnitBeside(y.tag));
    if (y.tag == ValueTag::Date) return InRange(DatePartOf(value), ValueTag::Date);
    return InRange(value, y.tag);
}

bool HandleDateKey(Engine& e, FunctionId id) {
    switch (id) {
        case fid::Now: Now(e); return true;
        case fid::Date: DateOrTimeKey(e, ValueTag::Date); return true;
        case fid::Time: DateOrTimeKey(e, ValueTag::Time); return true;
        case fid::DatePart: PartKey(e, ValueTag::Date); return true;
        case fid::TimePart: PartKey(e, ValueTag::Time); return true;
        case fid::ToHms: ToHmsKey(e); return true;
        case fid::ToHours:
            e.SaveLastX();
            SetResult(e, HmsToHours(e.X()), ValueTag::Hours);
            return true;
        case fid::HmsToFrames:
            e.SaveLastX();
            SetResult(e, ConvertDuration(HmsToHours(e.X()), ValueTag::Hours, ValueTag::Frames, DurationSettingsOf(e)), ValueTag::Frames);
            return true;
        case fid::FractionToNextUnit: FractionKey(e); return true;
        default: return DurationSettingKey(e, id);
    }
}

}  // namespace brinto
