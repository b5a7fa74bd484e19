// The Date & Time keyboard: date and time entry, now, date and time parts, the h.mmss
// conversions, fraction to the next unit and the duration settings; and the date rules of add
// and subtract.
#include "ops/date_time.h"

#include <cmath>

#include "engine/families.h"
#include "engine/numeric/date_fields.h"
#include "engine/numeric/decimal_digits.h"
#include "ops/units.h"

namespace brinto {

namespace {

constexpr ValueTag kHms = 1800, kDate = 1801, kTime = 1802, kDateTime = 1803;
constexpr ValueTag kDays = 1807, kHours = 1808, kFrames = 1811;
constexpr ValueTag kYears = 1804, kMonths = 1805, kWeeks = 1806, kMinutes = 1809, kSeconds = 1810;

constexpr double kSecondsPerHour = 3600.0;

bool IsDateKind(ValueTag t) { return TagCategory(t) == 9; }

TaggedValue Error() { return {kErrorValue, 0}; }

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
    if (d.tag == kHms) return HmsToHours(d.value) * SecondsPerTimeUnit(kHours);
    const ValueTag unit = TagCategory(d.tag) == 8 ? d.tag : defaultUnit;
    return d.value * SecondsPerTimeUnit(unit);
}

ValueTag DefaultUnitBeside(ValueTag kind) { return kind == kTime ? kHours : kDays; }

TaggedValue InRange(double value, ValueTag kind) {
    return IsDateInRange(value) ? TaggedValue{value, kind} : Error();
}

// The next smaller unit for "fraction to next unit"; frames and h.mmss keep their own.
ValueTag NextSmallerUnit(ValueTag t) {
    switch (t) {
        case kYears: return kMonths;
        case kMonths:
        case kWeeks: return kDays;
        case kDays: return kHours;
        case kHours: return kMinutes;
        case kMinutes: return kSeconds;
        case kSeconds: return kFrames;
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
    SetResult(e, IsDateInRange(value) ? value : kErrorValue, kDateTime);
}

// Keys 187 and 188: a typed number becomes a date or a time; a date kind is reduced to its date
// or time of day; a value already of the key's kind is left alone.
void DateOrTimeKey(Engine& e, ValueTag kind) {
    if (e.XTag() == kind) return;
    const double x = e.X();
    double value;
    if (IsDateKind(e.XTag())) {
        value = kind == kDate ? DatePartOf(x) : TimePartOf(x);
    } else {
        value = kind == kDate ? DateFromEntry(x) : TimeFromEntry(x);
    }
    SetResult(e, value, kind);
}

void PartKey(Engine& e, ValueTag kind) {
    if (!IsDateKind(e.XTag())) {
        e.SetXError();
        return;
    }
    e.SaveLastX();
    SetResult(e, kind == kDate ? DatePartOf(e.X()) : TimePartOf(e.X()), kind);
}

void ToHmsKey(Engine& e) {
    e.SaveLastX();
    double hours = e.X();
    const ValueTag t = e.XTag();
    if (TagCategory(t) == 8 && t != kHours) hours = ConvertDuration(hours, t, kHours, DurationSettingsOf(e));
    SetResult(e, HoursToHms(hours), kHms);
}

void FractionKey(Engine& e) {
    e.SaveLastX();
    const ValueTag t = e.XTag();
    if (TagCategory(t) != 8) {
        e.SetXError();
        return;
    }
    const double fraction = Fraction(e.X());
    const ValueTag next = NextSmallerUnit(t);
    SetResult(e, next == t ? fraction : ConvertDuration(fraction, t, next, DurationSettingsOf(e)), next);
}

// dpy, dpm, dpw, hpd, fps: a number being typed is stored; otherwise the setting is recalled.
void DurationSettingKey(Engine& e, FunctionId id) {
    const int offset = static_cast<int>(id - fid::DaysPerYear);
    double& setting = e.registers.values[reg::DaysPerYear + offset];
    if (e.EntryOpen()) {
        e.FinishEntry();
        e.DisableLift();
        setting = e.X();
    } else {
        if (e.LiftEnabled()) e.Lift();
        e.SetX(setting);
    }
    e.SetXTag(static_cast<ValueTag>(fid::TagDpy + offset));
    e.dirty.registers = true;
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
        const bool dateAndTime = (y.tag == kDate && x.tag == kTime) || (y.tag == kTime && x.tag == kDate);
        return dateAndTime ? InRange(y.value + x.value, kDateTime) : Error();
    }
    const TaggedValue& moment = IsDateKind(y.tag) ? y : x;
    const TaggedValue& duration = IsDateKind(y.tag) ? x : y;
    return InRange(moment.value + DurationSeconds(duration, DefaultUnitBeside(moment.tag)), moment.tag);
}

TaggedValue DateDifference(TaggedValue y, TaggedValue x) {
    if (IsDateKind(y.tag) && IsDateKind(x.tag)) {
        const double seconds = y.value - x.value;  // may be negative
        if (y.tag == kDate && x.tag == kDate) return {seconds / 86400.0, kDays};
        if (y.tag == kDateTime && x.tag == kDate) return {seconds / 86400.0, kDays};
        if (y.tag == x.tag) return {seconds / kSecondsPerHour, kHours};  // time - time, dt - dt
        return Error();
    }
    if (!IsDateKind(y.tag)) return Error();  // a duration minus a date means nothing
    const double value = y.value - DurationSeconds(x, DefaultUnitBeside(y.tag));
    if (y.tag == kDate) return InRange(DatePartOf(value), kDate);
    return InRange(value, y.tag);
}

bool HandleDateKey(Engine& e, FunctionId id) {
    switch (id) {
        case fid::Now: Now(e); return true;
        case fid::Date: DateOrTimeKey(e, kDate); return true;
        case fid::Time: DateOrTimeKey(e, kTime); return true;
        case fid::DatePart: PartKey(e, kDate); return true;
        case fid::TimePart: PartKey(e, kTime); return true;
        case fid::ToHms: ToHmsKey(e); return true;
        case fid::ToHours:
            e.SaveLastX();
            SetResult(e, HmsToHours(e.X()), kHours);
            return true;
        case fid::HmsToFrames:
            e.SaveLastX();
            SetResult(e, ConvertDuration(HmsToHours(e.X()), kHours, kFrames, DurationSettingsOf(e)), kFrames);
            return true;
        case fid::FractionToNextUnit: FractionKey(e); return true;
        case 198: case 199: case 200: case 201: case 202: DurationSettingKey(e, id); return true;
        default: return false;
    }
}

}  // namespace brinto
