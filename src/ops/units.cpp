// The conversion family (the unit keys of the Conversion keyboards, the temperature keys and the
// time keys) and the unit rules that the basic operations apply to tagged operands.
#include "ops/units.h"

#include <array>
#include <initializer_list>
#include <span>

#include "engine/numeric/date_fields.h"
#include "engine/numeric/decimal_digits.h"
#include "ops/date_time.h"
#include "ops/key_handlers.h"

namespace brinto {

namespace {

struct UnitRow {
    FunctionId key;
    ValueTag tag;
    double factor;  // base units in one unit
};

// Rows in their stored order; lookups take the first match.
constexpr std::array kLength = {
    UnitRow{fid::Inches, ValueTag::Inches, 0.0254},
    UnitRow{fid::Feet, ValueTag::Feet, 0.3048},
    UnitRow{fid::Miles, ValueTag::Miles, 1609.344},
    UnitRow{fid::Meters, ValueTag::Meters, 1.0},  // the base
    UnitRow{fid::Centimeters, ValueTag::Centimeters, 0.01},
    UnitRow{fid::Millimeters, ValueTag::Millimeters, 0.001},
    UnitRow{fid::Yards, ValueTag::Yards, 0.9144},
    UnitRow{fid::Kilometers, ValueTag::Kilometers, 1000.0},
    UnitRow{fid::NauticalMiles, ValueTag::NauticalMiles, 1852.0},
};
constexpr std::array kArea = {
    UnitRow{fid::SquareInches, ValueTag::SquareInches, 0.00064516},
    UnitRow{fid::SquareFeet, ValueTag::SquareFeet, 0.09290304},
    UnitRow{fid::SquareMiles, ValueTag::SquareMiles, 2589988.11034},
    UnitRow{fid::SquareMeters, ValueTag::SquareMeters, 1.0},  // the base
    UnitRow{fid::SquareMillimeters, ValueTag::SquareMillimeters, 1e-06},
    UnitRow{fid::SquareCentimeters, ValueTag::SquareCentimeters, 0.0001},
    UnitRow{fid::SquareKilometers, ValueTag::SquareKilometers, 1000000.0},
    UnitRow{fid::SquareYards, ValueTag::SquareYards, 0.83612736},
    UnitRow{fid::Acres, ValueTag::Acres, 4046.87260987},
};
constexpr std::array kVolume = {
    UnitRow{fid::Gallons, ValueTag::Gallons, 0.003785411784},
    UnitRow{fid::Milliliters, ValueTag::Milliliters, 1e-06},
    UnitRow{fid::Liters, ValueTag::Liters, 0.001},
    UnitRow{fid::FluidOunces, ValueTag::FluidOunces, 2.95735295625e-05},
    UnitRow{fid::CubicMeters, ValueTag::CubicMeters, 1.0},  // the base
    UnitRow{fid::CubicCentimeters, ValueTag::CubicCentimeters, 1e-06},
    UnitRow{fid::CubicYards, ValueTag::CubicYards, 0.764554857984},
    UnitRow{fid::CubicFeet, ValueTag::CubicFeet, 0.028316846592},
    UnitRow{fid::CubicInches, ValueTag::CubicInches, 1.6387064e-05},
    UnitRow{fid::Quarts, ValueTag::Quarts, 0.000946352946},
    UnitRow{fid::Pints, ValueTag::Pints, 0.000473176473},
    UnitRow{fid::Cups, ValueTag::Cups, 0.0002365882365},
    UnitRow{fid::Tablespoons, ValueTag::Tablespoons, 1.478676478125e-05},
    UnitRow{fid::Teaspoons, ValueTag::Teaspoons, 4.92892159375e-06},
    UnitRow{fid::GallonsUk, ValueTag::GallonsUk, 0.004546092},
    UnitRow{fid::FluidOuncesUk, ValueTag::FluidOuncesUk, 2.8413075e-05},
};
constexpr std::array kSpeed = {
    UnitRow{fid::InchesPerSecond, ValueTag::InchesPerSecond, 0.0254},
    UnitRow{fid::FeetPerSecond, ValueTag::FeetPerSecond, 0.3048},
    UnitRow{fid::MilesPerHour, ValueTag::MilesPerHour, 0.44704},  // stored before m/s
    UnitRow{fid::MetersPerSecond, ValueTag::MetersPerSecond, 1.0},  // m/s: the base
    UnitRow{fid::KilometersPerHour, ValueTag::KilometersPerHour, 0.277777777778},
    UnitRow{fid::CentimetersPerSecond, ValueTag::CentimetersPerSecond, 0.01},
    UnitRow{fid::Knots, ValueTag::Knots, 0.514444444444},
};
constexpr std::array kMass = {
    UnitRow{fid::Pounds, ValueTag::Pounds, 0.45359237},
    UnitRow{fid::Ounces, ValueTag::Ounces, 0.028349523125},
    UnitRow{fid::Kilograms, ValueTag::Kilograms, 1.0},  // the base
    UnitRow{fid::Grams, ValueTag::Grams, 0.001},
    UnitRow{fid::Tons, ValueTag::Tons, 907.18474},
    UnitRow{fid::Milligrams, ValueTag::Milligrams, 1e-06},
};
// Base day. The time keys convert through the duration chain; these fixed factors serve a speed
// meeting a time and the durations added to dates.
constexpr std::array kTime = {
    UnitRow{fid::Years, ValueTag::Years, 365.25},
    UnitRow{fid::Months, ValueTag::Months, 30.4375},
    UnitRow{fid::Weeks, ValueTag::Weeks, 7.0},
    UnitRow{fid::Days, ValueTag::Days, 1.0},
    UnitRow{fid::Hours, ValueTag::Hours, 1.0 / 24.0},
    UnitRow{fid::Minutes, ValueTag::Minutes, 1.0 / 1440.0},
    UnitRow{fid::Seconds, ValueTag::Seconds, 1.0 / 86400.0},
    UnitRow{fid::Frames, ValueTag::Frames, 3.8580246913580245e-07},  // 1 / (86400 x 30)
};

static_assert(kLength.size() == 9 && kArea.size() == 9 && kVolume.size() == 16 && kSpeed.size() == 7 &&
              kMass.size() == 6 && kTime.size() == 8);

// The table of a category; empty for the categories without conversion factors.
constexpr std::span<const UnitRow> TableOfCategory(Category category) {
    switch (category) {
        case Category::Length: return kLength;
        case Category::Area: return kArea;
        case Category::Volume: return kVolume;
        case Category::Speed: return kSpeed;
        case Category::Mass: return kMass;
        case Category::Duration: return kTime;
        case Category::None:
        case Category::Temperature:
        case Category::IntegerFormat:
        case Category::Calendar: return {};
    }
    return {};
}

// Each key and each tag in one row only, and each row in the table of its tag's category: a unit
// key converts into its table's base and back to where it started.
consteval bool UnitRowsAreConsistent() {
    const std::span<const UnitRow> tables[] = {kLength, kArea, kVolume, kSpeed, kMass, kTime};
    const Category categories[] = {Category::Length, Category::Area, Category::Volume,
                                      Category::Speed,  Category::Mass, Category::Duration};
    for (std::size_t t = 0; t < std::size(tables); ++t) {
        for (const UnitRow& row : tables[t]) {
            if (TableOfCategory(categories[t]).data() != tables[t].data()) return false;
            if (TagCategory(row.tag) != categories[t]) return false;
            for (std::size_t u = 0; u < std::size(tables); ++u) {
                for (const UnitRow& other : tables[u]) {
                    if (&other != &row && (other.key == row.key || other.tag == row.tag)) return false;
                }
            }
        }
    }
    return true;
}
static_assert(UnitRowsAreConsistent(), "a unit key or tag appears twice, or a row is not in its tag's table");

const UnitRow* FindTag(std::span<const UnitRow> table, ValueTag t) {
    for (const UnitRow& row : table) {
        if (row.tag == t) return &row;
    }
    return nullptr;
}

// The unit key's row and its table, among the five unit tables.
struct KeyRow {
    std::span<const UnitRow> table;
    const UnitRow* row = nullptr;
};

KeyRow FindUnitKey(FunctionId id) {
    const std::span<const UnitRow> tables[] = {kLength, kArea, kVolume, kSpeed, kMass};
    for (const auto& table : tables) {
        for (const UnitRow& row : table) {
            if (row.key == id) return {table, &row};
        }
    }
    return {};
}

struct TagPair {
    ValueTag from;
    ValueTag to;
};

constexpr std::array kLengthToArea = {
    TagPair{ValueTag::Inches, ValueTag::SquareInches}, TagPair{ValueTag::Feet, ValueTag::SquareFeet}, TagPair{ValueTag::Miles, ValueTag::SquareMiles}, TagPair{ValueTag::Meters, ValueTag::SquareMeters},  // in ft mi m
    TagPair{ValueTag::Centimeters, ValueTag::SquareCentimeters}, TagPair{ValueTag::Millimeters, ValueTag::SquareMillimeters}, TagPair{ValueTag::Yards, ValueTag::SquareYards}, TagPair{ValueTag::Kilometers, ValueTag::SquareKilometers},  // cm mm yd km
    TagPair{ValueTag::CubicMeters, ValueTag::SquareMeters}, TagPair{ValueTag::CubicCentimeters, ValueTag::SquareCentimeters}, TagPair{ValueTag::CubicYards, ValueTag::SquareYards}, TagPair{ValueTag::CubicFeet, ValueTag::SquareFeet},  // cubic m cm yd ft
    TagPair{ValueTag::CubicInches, ValueTag::SquareInches},                                                                 // cubic in
};
constexpr std::array kToLength = {
    TagPair{ValueTag::SquareInches, ValueTag::Inches}, TagPair{ValueTag::SquareFeet, ValueTag::Feet}, TagPair{ValueTag::SquareMiles, ValueTag::Miles}, TagPair{ValueTag::SquareMeters, ValueTag::Meters},  // square units
    TagPair{ValueTag::SquareMillimeters, ValueTag::Millimeters}, TagPair{ValueTag::SquareCentimeters, ValueTag::Centimeters}, TagPair{ValueTag::SquareKilometers, ValueTag::Kilometers}, TagPair{ValueTag::SquareYards, ValueTag::Yards},  //
    TagPair{ValueTag::InchesPerSecond, ValueTag::Inches}, TagPair{ValueTag::FeetPerSecond, ValueTag::Feet}, TagPair{ValueTag::MetersPerSecond, ValueTag::Meters}, TagPair{ValueTag::MilesPerHour, ValueTag::Miles},  // speeds
    TagPair{ValueTag::KilometersPerHour, ValueTag::Kilometers}, TagPair{ValueTag::CentimetersPerSecond, ValueTag::Centimeters}, TagPair{ValueTag::Knots, ValueTag::NauticalMiles},                       //
    TagPair{ValueTag::CubicMeters, ValueTag::Meters}, TagPair{ValueTag::CubicCentimeters, ValueTag::Centimeters}, TagPair{ValueTag::CubicYards, ValueTag::Yards}, TagPair{ValueTag::CubicFeet, ValueTag::Feet},  // cubic units
    TagPair{ValueTag::CubicInches, ValueTag::Inches},                                                                 // (acres: none)
};
constexpr std::array kToVolume = {
    TagPair{ValueTag::Inches, ValueTag::CubicInches}, TagPair{ValueTag::SquareInches, ValueTag::CubicInches}, TagPair{ValueTag::Feet, ValueTag::CubicFeet}, TagPair{ValueTag::SquareFeet, ValueTag::CubicFeet},  // in, ft
    TagPair{ValueTag::Meters, ValueTag::CubicMeters}, TagPair{ValueTag::SquareMeters, ValueTag::CubicMeters}, TagPair{ValueTag::Centimeters, ValueTag::CubicCentimeters}, TagPair{ValueTag::SquareCentimeters, ValueTag::CubicCentimeters},  // m, cm
    TagPair{ValueTag::Yards, ValueTag::CubicYards}, TagPair{ValueTag::SquareYards, ValueTag::CubicYards},                                            // yd
};
constexpr std::array kLengthToSpeed = {
    TagPair{ValueTag::Inches, ValueTag::InchesPerSecond}, TagPair{ValueTag::Feet, ValueTag::FeetPerSecond}, TagPair{ValueTag::Miles, ValueTag::MilesPerHour}, TagPair{ValueTag::Meters, ValueTag::MetersPerSecond},
    TagPair{ValueTag::Centimeters, ValueTag::CentimetersPerSecond}, TagPair{ValueTag::Kilometers, ValueTag::KilometersPerHour}, TagPair{ValueTag::NauticalMiles, ValueTag::Knots},
};
constexpr std::array kSpeedTimeBase = {
    TagPair{ValueTag::InchesPerSecond, ValueTag::Seconds}, TagPair{ValueTag::FeetPerSecond, ValueTag::Seconds}, TagPair{ValueTag::MetersPerSecond, ValueTag::Seconds},
    TagPair{ValueTag::CentimetersPerSecond, ValueTag::Seconds}, TagPair{ValueTag::MilesPerHour, ValueTag::Hours}, TagPair{ValueTag::KilometersPerHour, ValueTag::Hours},
    TagPair{ValueTag::Knots, ValueTag::Hours},
};

// A category's own units map to themselves; the others through the pairs.
ValueTag Map(std::span<const TagPair> pairs, Category selfCategory, ValueTag t) {
    if (t != ValueTag::None && TagCategory(t) == selfCategory) return t;
    for (const TagPair& p : pairs) {
        if (p.from == t) return p.to;
    }
    return ValueTag::None;
}

bool IsOneOf(ValueTag t, std::initializer_list<ValueTag> tags) {
    for (const ValueTag candidate : tags) {
        if (t == candidate) return true;
    }
    return false;
}

// Converts X into Y's unit for add and subtract: durations through the chain, the rest by table.
double ConvertLike(double v, ValueTag from, ValueTag to, const DurationSettings& settings) {
    return TagCategory(to) == Category::Duration ? ConvertDuration(v, from, to, settings) : ConvertUnit(v, from, to);
}

ValueTag AdditiveTag(TaggedValue& y, TaggedValue& x, const DurationSettings& settings) {
    const Category category = TagCategory(y.tag);
    if (category != TagCategory(x.tag) || category == Category::Temperature) return ValueTag::None;  // temperatures never add
    if (y.tag != x.tag) x.value = ConvertLike(x.value, x.tag, y.tag, settings);
    return y.tag;
}

// Converts `operand` into `unit` unless it is already in it.
void ConvertUnlessIn(TaggedValue& operand, ValueTag unit) {
    if (operand.tag != unit) operand.value = ConvertUnit(operand.value, operand.tag, unit);
}

// A product or quotient whose unit does not exist (sq miles x feet) is untagged and unconverted.
ValueTag MultiplyTag(TaggedValue& y, TaggedValue& x) {
    const Category cy = TagCategory(y.tag), cx = TagCategory(x.tag);
    if (cy == Category::Length && cx == Category::Length) {
        const ValueTag area = LengthToArea(y.tag);
        if (area != ValueTag::None) ConvertUnlessIn(x, y.tag);
        return area;
    }
    if (cy == Category::Area && cx == Category::Length) {
        const ValueTag volume = ToVolume(y.tag);
        if (volume != ValueTag::None) ConvertUnlessIn(x, ToLength(volume));
        return volume;
    }
    if (cy == Category::Length && cx == Category::Area) {
        const ValueTag volume = ToVolume(y.tag);
        // X is an area but is converted with the length table: only the division by the length's
        // factor applies. This is how products of a length and an area have always come out.
        if (volume != ValueTag::None && x.tag != LengthToArea(volume)) x.value = ConvertUnit(x.value, x.tag, ToLength(volume));
        return volume;
    }
    if (cy == Category::Speed && cx == Category::Duration) {
        ConvertUnlessIn(x, SpeedTimeBase(y.tag));
        return ToLength(y.tag);
    }
    if (cy == Category::Duration && cx == Category::Speed) {
        ConvertUnlessIn(y, SpeedTimeBase(x.tag));
        return ToLength(x.tag);
    }
    return ValueTag::None;
}

ValueTag DivideTag(TaggedValue& y, TaggedValue& x) {
    const Category cy = TagCategory(y.tag), cx = TagCategory(x.tag);
    if (cy == Category::Area && cx == Category::Length) {
        const ValueTag length = ToLength(y.tag);
        if (length != ValueTag::None) ConvertUnlessIn(x, length);
        return length;
    }
    if (cy == Category::Volume && cx == Category::Length) {
        const ValueTag area = LengthToArea(y.tag);
        if (area != ValueTag::None) ConvertUnlessIn(x, ToLength(area));
        return area;
    }
    if (cy == Category::Volume && cx == Category::Area) {
        const ValueTag length = ToLength(y.tag);
        if (length != ValueTag::None) ConvertUnlessIn(x, LengthToArea(length));
        return length;
    }
    if (cy == Category::Length && cx == Category::Duration) {
        const ValueTag speed = LengthToSpeed(y.tag);
        if (speed != ValueTag::None) ConvertUnlessIn(x, SpeedTimeBase(speed));
        return speed;
    }
    if (cy == Category::Length && cx == Category::Speed) {
        // 100 km / 50 mi/h: the speed's miles are turned into km, so the quotient is in hours.
        x.value = ConvertUnit(x.value, ToLength(x.tag), y.tag);
        return SpeedTimeBase(x.tag);
    }
    return ValueTag::None;
}

// Time keys on a date or clock time: the field of the key, or the error value where the value's
// kind has no such field.
double DateField(double value, ValueTag kind, FunctionId key) {
    if (!IsDateInRange(value)) return kErrorValue;
    const DateFields f = SplitDate(value);
    const bool hasDate = kind != ValueTag::Time, hasTime = kind != ValueTag::Date;
    switch (key) {
        case fid::Years: return hasDate ? f.year : kErrorValue;
        case fid::Months: return hasDate ? f.month : kErrorValue;
        case fid::Days: return hasDate ? f.day : kErrorValue;
        case fid::Hours: return hasTime ? f.hour : kErrorValue;
        case fid::Minutes: return hasTime ? f.minute : kErrorValue;
        case fid::Seconds: return hasTime ? f.second : kErrorValue;
        default: return kErrorValue;  // weeks and frames are no field of a date
    }
}

void TimeKey(Engine& e, const UnitRow& key) {
    const ValueTag xTag = e.XTag();
    if (TagCategory(xTag) == Category::Calendar) {
        e.SaveLastX();
        e.SetX(DateField(e.X(), xTag, key.key));
        return;
    }
    const ValueTag target = key.tag;
    if (TagCategory(xTag) == Category::Duration) e.SetX(ConvertDuration(e.X(), xTag, target, DurationSettingsOf(e)));
    e.SetXTag(target);
}

void TemperatureKey(Engine& e, FunctionId id) {
    if (id == fid::DegF && e.XTag() == ValueTag::DegC) e.SetX(e.X() * 1.8 + 32.0);
    if (id == fid::DegC && e.XTag() == ValueTag::DegF) e.SetX(RoundTo14(e.X() - 32.0) * 0.5555555555555556);
    e.SetXTag(id == fid::DegF ? ValueTag::DegF : ValueTag::DegC);
}

// A unit key converts a value already in a unit of its table, and only labels any other value
// (a value in pounds given "feet" keeps its number).
void UnitKey(Engine& e, const KeyRow& key) {
    const UnitRow* source = FindTag(key.table, e.XTag());
    if (source) {
        e.SaveLastX();
        e.SetX(e.X() * source->factor / key.row->factor);
    }
    e.SetXTag(key.row->tag);
}

}  // namespace

DurationSettings DurationSettingsOf(const Engine& e) {
    return {e.DurationSetting(reg::DaysPerYear), e.DurationSetting(reg::DaysPerMonth),
            e.DurationSetting(reg::DaysPerWeek), e.DurationSetting(reg::HoursPerDay),
            e.DurationSetting(reg::FramesPerSecond)};
}

double ConvertUnit(double v, ValueTag from, ValueTag to) {
    const std::span<const UnitRow> table = TableOfCategory(TagCategory(to));
    if (const UnitRow* source = FindTag(table, from)) v *= source->factor;
    if (const UnitRow* target = FindTag(table, to)) v /= target->factor;
    return v;
}

double ConvertDuration(double v, ValueTag s, ValueTag t, const DurationSettings& d) {
    using enum ValueTag;
    if (s == t) return v;
    if (s == Hms) {
        v = HmsToHours(v);
        s = Hours;
    }
    if (s == Weeks) {
        v *= d.daysPerWeek;
        s = Days;
    } else if (s == Months) {
        v *= d.daysPerMonth;
        s = Days;
    } else if (s == Years) {
        v *= d.daysPerYear;
        s = Days;
    }
    if (s == Days && IsOneOf(t, {Frames, Seconds, Minutes, Hours, Hms})) {
        v *= d.hoursPerDay;
        s = Hours;
    }
    if (s == Frames) {
        v /= d.framesPerSecond;
        s = Seconds;
    }
    if (s == Seconds && IsOneOf(t, {Hms, Hours, Days, Weeks, Months, Years})) {
        v *= 0.0002777777777777778;
        s = Hours;
    }
    // Minutes reach hours only on the way to a longer unit: minutes to h.mmss has no path.
    if (s == Minutes && IsOneOf(t, {Hours, Days, Weeks, Months, Years})) {
        v *= 0.016666666666666666;
        s = Hours;
    }
    if (s == Seconds && t == Minutes) {
        v *= 0.016666666666666666;
        s = Minutes;
    }
    if (s == Hours && t == Minutes) {
        v *= 60.0;
        s = Minutes;
    }
    if (s == Minutes && IsOneOf(t, {Frames, Seconds})) {
        v *= 60.0;
        s = Seconds;
    }
    if (s == Hours && IsOneOf(t, {Frames, Seconds})) {
        v *= 3600.0;
        s = Seconds;
    }
    if (s == Seconds && t == Frames) {
        v *= d.framesPerSecond;
        s = Frames;
    }
    if (s == Hours && IsOneOf(t, {Days, Weeks, Months, Years})) {
        v /= d.hoursPerDay;
        s = Days;
    }
    if (s == Days && IsOneOf(t, {Days, Weeks, Months, Years})) {
        if (t == Weeks) v /= d.daysPerWeek;
        if (t == Months) v /= d.daysPerMonth;
        if (t == Years) v /= d.daysPerYear;
        s = t;
    }
    if (s == Hours && t == Hms) {
        v = HoursToHms(v);
        s = Hms;
    }
    return s == t ? v : kErrorValue;
}

double SecondsPerTimeUnit(ValueTag t) {
    // factor x 86400 is exact for every row, so 2 hours are 7200 seconds, not 7199.999...
    const UnitRow* row = FindTag(kTime, t);
    return row ? row->factor * 86400.0 : 0.0;
}

ValueTag LengthToArea(ValueTag t) { return Map(kLengthToArea, Category::Area, t); }
ValueTag ToLength(ValueTag t) { return Map(kToLength, Category::Length, t); }
ValueTag ToVolume(ValueTag t) { return Map(kToVolume, Category::Volume, t); }
ValueTag LengthToSpeed(ValueTag t) { return Map(kLengthToSpeed, Category::Speed, t); }
ValueTag SpeedTimeBase(ValueTag t) { return t != ValueTag::Hms ? Map(kSpeedTimeBase, Category::Duration, t) : ValueTag::None; }

ValueTag ArithmeticResultTag(FunctionId op, TaggedValue& y, TaggedValue& x, const DurationSettings& settings) {
    const bool yTagged = HasCategory(y.tag), xTagged = HasCategory(x.tag);
    if (yTagged != xTagged) return yTagged ? y.tag : x.tag;  // 5 feet x 3 is 15 feet
    if (!yTagged) return ValueTag::None;
    switch (op) {
        case fid::Add:
        case fid::Subtract: return AdditiveTag(y, x, settings);
        case fid::Multiply: return MultiplyTag(y, x);
        case fid::Divide: return DivideTag(y, x);
        default: return ValueTag::None;
    }
}

bool IsUnitKey(FunctionId id) {
    for (const UnitRow& row : kTime) {
        if (row.key == id) return true;
    }
    return id == fid::DegC || id == fid::DegF || FindUnitKey(id).row != nullptr;
}

bool HandleConversionKey(Engine& e, FunctionId id) {
    for (const UnitRow& row : kTime) {
        if (row.key != id) continue;
        TimeKey(e, row);
        return true;
    }
    if (id == fid::DegC || id == fid::DegF) {
        TemperatureKey(e, id);
        return true;
    }
    const KeyRow key = FindUnitKey(id);
    if (!key.row) return false;
    UnitKey(e, key);
    return true;
}

}  // namespace brinto
