#pragma once
// Units on stack values: the conversion tables, the duration chain and the tag rules of the four
// basic operations.
//
// A unit is a tag of a length, area, volume, speed or mass, or a duration. Each of the categories length,
// area, volume, speed, mass and time has one table giving, for each unit, its key and how many
// base units one unit is. Durations are converted through an adjustable chain instead (days per
// year, month and week, hours per day, frames per second), except where a speed meets a time.
#include "engine/engine.h"
#include "ops/tagged_value.h"

namespace brinto {

// The five duration settings as they are used (a register holding zero or a value that is not
// finite reads as its default).
struct DurationSettings {
    double daysPerYear = kDurationDefaults[0];
    double daysPerMonth = kDurationDefaults[1];
    double daysPerWeek = kDurationDefaults[2];
    double hoursPerDay = kDurationDefaults[3];
    double framesPerSecond = kDurationDefaults[4];
};

DurationSettings DurationSettingsOf(const Engine& e);

// A key that gives X a unit, converting a value already in a unit of its kind: the length, area,
// volume, speed and mass keys, the temperature keys and the time keys (years .. frames).
bool IsUnitKey(FunctionId id);

// Converts v from unit `from` to unit `to` with the table of `to`'s category: multiplied by the
// factor of `from` when `from` is in that table, then divided by the factor of `to` when `to` is.
// A tag missing from the table skips its step, so mixing categories never fails loudly.
double ConvertUnit(double v, ValueTag from, ValueTag to);

// Converts a duration between two time tags (h.mmss, years .. frames) through the chain of settings.
// The error value when there is no path (minutes to h.mmss has none, deliberately).
double ConvertDuration(double v, ValueTag from, ValueTag to, const DurationSettings& settings);

// Seconds in one unit of a time tag (years .. frames) by the fixed table (a year is 365.25 days, a
// frame 1/30 second); 0 for any other tag.
double SecondsPerTimeUnit(ValueTag tag);

// The maps between categories; none where a unit has no counterpart.
ValueTag LengthToArea(ValueTag tag);    // also volume -> its area; an area maps to itself
ValueTag ToLength(ValueTag tag);        // area, speed or volume -> its length; a length to itself
ValueTag ToVolume(ValueTag tag);        // length or area -> its volume; a volume to itself
ValueTag LengthToSpeed(ValueTag tag);   // a speed maps to itself
ValueTag SpeedTimeBase(ValueTag tag);   // hours or seconds; a time tag maps to itself

// The tag of Y op X for the four basic operations, converting X (or, for time times
// speed, Y) in place into the unit the arithmetic needs. Neither operand may be "h.mmss" or a
// date: the caller turns h.mmss into hours and routes dates elsewhere first. An integer format
// may come back; the caller removes it.
ValueTag ArithmeticResultTag(FunctionId op, TaggedValue& y, TaggedValue& x, const DurationSettings& settings);

}  // namespace brinto
