#pragma once
// Dates, clock times and h.mmss durations as stack values.
//
// A date value counts seconds since 1904-01-01 00:00:00 local time (see date_fields.h) and is
// tagged "date" (midnight of a day), "time" (seconds since midnight) or "dt" (a date and time).
// "h.mmss" packs hours, minutes and seconds into one number: 1.3015 is 1 hour 30 minutes 15
// seconds. Every function here is defined for every double: what has no answer gives the error
// value.
#include "ops/tagged_value.h"

namespace brinto {

// The fractional part, cleaned to 14 digits so that the digits typed after the point come back
// as typed (5.0315 gives 0.0315, not 0.03149999...).
double Fraction(double v);

// Decimal hours to h.mmss (1.5 gives 1.3) and back (2.5959 gives 2.99972...).
double HoursToHms(double hours);
double HmsToHours(double hms);

// A number typed as Y.MMDD read as a date: years below 32 are 20YY, 32..99 are 19YY, anything
// before 1904 is 1904, months and days below 1 are 1, and months or days beyond their end roll
// over into the following months. The error value when the date falls outside the date range.
double DateFromEntry(double yearMonthDay);

// A number typed as H.MMSS read as seconds since midnight (no wrap at 24 hours).
double TimeFromEntry(double hoursMinutesSeconds);

// The midnight of a date value, and its seconds since midnight; the error value outside the range.
double DatePartOf(double value);
double TimePartOf(double value);

// Y + X and Y - X when either operand is a date, time or date-time: the other operand is a
// duration in its own unit, or in days (hours next to a time) when it has none. Disallowed pairs
// and results outside the date range give the error value, untagged.
TaggedValue DateSum(TaggedValue y, TaggedValue x);
TaggedValue DateDifference(TaggedValue y, TaggedValue x);

}  // namespace brinto
