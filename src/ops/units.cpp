// The conversion family (the unit keys of the Conversion keyboards, the temperature keys and the
// time keys) and the unit rules that the basic operations apply to tagged operands.
#include "ops/units.h"

#include <array>
#include <initializer_list>
#include <span>

#include "engine/families.h"
#include "engine/numeric/date_fields.h"
#include "engine/numeric/decimal_digits.h"
#include "ops/date_time.h"

namespace brinto {

namespace {

// Time tags, in the order of their keys 189..196.
namespace tag {
constexpr ValueTag Hms = 1800, Date = 1801, Time = 1802, DateTime = 1803;
constexpr ValueTag Years = 1804, Months = 1805, Weeks = 1806, Days = 1807;
constexpr ValueTag Hours = 1808, Minutes = 1809, Seconds = 1810, Frames = 1811;
constexpr ValueTag DegC = 1922, DegF = 1923;
}  // namespace tag

struct UnitRow {
    FunctionId key;
    ValueTag tag;
    double factor;  // base units in one unit
};

// Rows in their stored order; lookups take the first match.
constexpr std::array kLength = {
    UnitRow{142, 1900, 0.0254},      // inches
    UnitRow{143, 1901, 0.3048},      // feet
    UnitRow{144, 1902, 1609.344},    // miles
    UnitRow{145, 1903, 1.0},         // meters: the base
    UnitRow{216, 1930, 0.01},        // cm
    UnitRow{217, 1931, 0.001},       // mm
    UnitRow{218, 1932, 0.9144},      // yards
    UnitRow{219, 1933, 1000.0},      // km
    UnitRow{220, 1934, 1852.0},      // nmi
};
constexpr std::array kArea = {
    UnitRow{146, 1914, 0.00064516},     // sq inches
    UnitRow{147, 1915, 0.09290304},     // sq feet
    UnitRow{148, 1916, 2589988.11034},  // sq miles
    UnitRow{149, 1917, 1.0},            // sq meters: the base
    UnitRow{221, 1935, 1e-06},          // sq mm
    UnitRow{222, 1936, 0.0001},         // sq cm
    UnitRow{223, 1937, 1000000.0},      // sq km
    UnitRow{224, 1938, 0.83612736},     // sq yards
    UnitRow{225, 1939, 4046.87260987},  // acres
};
constexpr std::array kVolume = {
    UnitRow{160, 1918, 0.003785411784},     // gallons
    UnitRow{161, 1919, 1e-06},              // ml
    UnitRow{162, 1920, 0.001},              // liters
    UnitRow{163, 1921, 2.95735295625e-05},  // fl. oz
    UnitRow{229, 1943, 1.0},                // cubic m: the base
    UnitRow{230, 1944, 1e-06},              // cubic cm
    UnitRow{231, 1945, 0.764554857984},     // cubic yd
    UnitRow{232, 1946, 0.028316846592},     // cubic ft
    UnitRow{233, 1947, 1.6387064e-05},      // cubic in
    UnitRow{234, 1948, 0.000946352946},     // quarts
    UnitRow{235, 1949, 0.000473176473},     // pints
    UnitRow{236, 1950, 0.0002365882365},    // cups
    UnitRow{237, 1951, 1.478676478125e-05}, // tbsp
    UnitRow{238, 1952, 4.92892159375e-06},  // tsp
    UnitRow{239, 1953, 0.004546092},        // gallons UK
    UnitRow{240, 1954, 2.8413075e-05},      // fl. oz UK
};
constexpr std::array kSpeed = {
    UnitRow{154, 1908, 0.0254},          // in/s
    UnitRow{155, 1909, 0.3048},          // ft/s
    UnitRow{157, 1911, 0.44704},         // mi/h (stored before m/s)
    UnitRow{156, 1910, 1.0},             // m/s: the base
    UnitRow{158, 1912, 0.277777777778},  // km/h
    UnitRow{159, 1913, 0.01},            // cm/s
    UnitRow{228, 1942, 0.514444444444},  // knots
};
constexpr std::array kMass = {
    UnitRow{150, 1904, 0.45359237},      // pounds
    UnitRow{151, 1905, 0.028349523125},  // ounces
    UnitRow{152, 1906, 1.0},             // kg: the base
    UnitRow{153, 1907, 0.001},           // grams
    UnitRow{226, 1940, 907.18474},       // tons
    UnitRow{227, 1941, 1e-06},           // mg
};
// Base day. The time keys convert through the duration chain; these fixed factors serve a speed
// meeting a time and the durations added to dates.
constexpr std::array kTime = {
    UnitRow{189, tag::Years, 365.25},
    UnitRow{190, tag::Months, 30.4375},
    UnitRow{191, tag::Weeks, 7.0},
    UnitRow{192, tag::Days, 1.0},
    UnitRow{193, tag::Hours, 1.0 / 24.0},
    UnitRow{194, tag::Minutes, 1.0 / 1440.0},
    UnitRow{195, tag::Seconds, 1.0 / 86400.0},
    UnitRow{196, tag::Frames, 3.8580246913580245e-07},  // 1 / (86400 x 30)
};

static_assert(kLength.size() == 9 && kArea.size() == 9 && kVolume.size() == 16 && kSpeed.size() == 7 &&
              kMass.size() == 6 && kTime.size() == 8);

consteval bool UniqueKeysAndTags() {
    const std::span<const UnitRow> tables[] = {kLength, kArea, kVolume, kSpeed, kMass, kTime};
    std::array<u32, 256 + 155> seen{};  // keys 0..255, then tags 1800..1954
    for (const auto& table : tables) {
        for (const UnitRow& row : table) {
            if (row.key > 255 || row.tag < 1800 || row.tag > 1954) return false;
            if (seen[row.key]++ || seen[256 + row.tag - 1800]++) return false;
        }
    }
    return true;
}
static_assert(UniqueKeysAndTags(), "a unit key or tag appears twice");

// The table of a category 1..5 or 8; empty for the others.
std::span<const UnitRow> TableOfCategory(u32 category) {
    switch (category) {
        case 1: return kLength;
        case 2: return kArea;
        case 3: return kVolume;
        case 4: return kSpeed;
        case 5: return kMass;
        case 8: return kTime;
        default: return {};
    }
}

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
    // Every other family's keys pass through here; only the two blocks of unit keys are looked up.
    const bool unitKey = (id >= fid::Inches && id <= 163) || (id >= 216 && id <= 240);
    if (!unitKey) return {};
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
    TagPair{1900, 1914}, TagPair{1901, 1915}, TagPair{1902, 1916}, TagPair{1903, 1917},  // in ft mi m
    TagPair{1930, 1936}, TagPair{1931, 1935}, TagPair{1932, 1938}, TagPair{1933, 1937},  // cm mm yd km
    TagPair{1943, 1917}, TagPair{1944, 1936}, TagPair{1945, 1938}, TagPair{1946, 1915},  // cubic m cm yd ft
    TagPair{1947, 1914},                                                                 // cubic in
};
constexpr std::array kToLength = {
    TagPair{1914, 1900}, TagPair{1915, 1901}, TagPair{1916, 1902}, TagPair{1917, 1903},  // square units
    TagPair{1935, 1931}, TagPair{1936, 1930}, TagPair{1937, 1933}, TagPair{1938, 1932},  //
    TagPair{1908, 1900}, TagPair{1909, 1901}, TagPair{1910, 1903}, TagPair{1911, 1902},  // speeds
    TagPair{1912, 1933}, TagPair{1913, 1930}, TagPair{1942, 1934},                       //
    TagPair{1943, 1903}, TagPair{1944, 1930}, TagPair{1945, 1932}, TagPair{1946, 1901},  // cubic units
    TagPair{1947, 1900},                                                                 // (acres: none)
};
constexpr std::array kToVolume = {
    TagPair{1900, 1947}, TagPair{1914, 1947}, TagPair{1901, 1946}, TagPair{1915, 1946},  // in, ft
    TagPair{1903, 1943}, TagPair{1917, 1943}, TagPair{1930, 1944}, TagPair{1936, 1944},  // m, cm
    TagPair{1932, 1945}, TagPair{1938, 1945},                                            // yd
};
constexpr std::array kLengthToSpeed = {
    TagPair{1900, 1908}, TagPair{1901, 1909}, TagPair{1902, 1911}, TagPair{1903, 1910},
    TagPair{1930, 1913}, TagPair{1933, 1912}, TagPair{1934, 1942},
};
constexpr std::array kSpeedTimeBase = {
    TagPair{1908, tag::Seconds}, TagPair{1909, tag::Seconds}, TagPair{1910, tag::Seconds},
    TagPair{1913, tag::Seconds}, TagPair{1911, tag::Hours}, TagPair{1912, tag::Hours},
    TagPair{1942, tag::Hours},
};

// A category's own units map to themselves; the others through the pairs.
ValueTag Map(std::span<const TagPair> pairs, u32 selfCategory, ValueTag t) {
    if (t != 0 && TagCategory(t) == selfCategory) return t;
    for (const TagPair& p : pairs) {
        if (p.from == t) return p.to;
    }
    return 0;
}

bool IsOneOf(ValueTag t, std::initializer_list<ValueTag> tags) {
    for (const ValueTag candidate : tags) {
        if (t == candidate) return true;
    }
    return false;
}

// Converts X into Y's unit for add and subtract: durations through the chain, the rest by table.
double ConvertLike(double v, ValueTag from, ValueTag to, const DurationSettings& settings) {
    return TagCategory(to) == 8 ? ConvertDuration(v, from, to, settings) : ConvertUnit(v, from, to);
}

ValueTag AdditiveTag(TaggedValue& y, TaggedValue& x, const DurationSettings& settings) {
    const u32 category = TagCategory(y.tag);
    if (category != TagCategory(x.tag) || category == 6) return 0;  // temperatures never add
    if (y.tag != x.tag) x.value = ConvertLike(x.value, x.tag, y.tag, settings);
    return y.tag;
}

// Converts `operand` into `unit` unless it is already in it.
void ConvertUnlessIn(TaggedValue& operand, ValueTag unit) {
    if (operand.tag != unit) operand.value = ConvertUnit(operand.value, operand.tag, unit);
}

// A product or quotient whose unit does not exist (sq miles x feet) is untagged and unconverted.
ValueTag MultiplyTag(TaggedValue& y, TaggedValue& x) {
    const u32 cy = TagCategory(y.tag), cx = TagCategory(x.tag);
    if (cy == 1 && cx == 1) {
        const ValueTag area = LengthToArea(y.tag);
        if (area != 0) ConvertUnlessIn(x, y.tag);
        return area;
    }
    if (cy == 2 && cx == 1) {
        const ValueTag volume = ToVolume(y.tag);
        if (volume != 0) ConvertUnlessIn(x, ToLength(volume));
        return volume;
    }
    if (cy == 1 && cx == 2) {
        const ValueTag volume = ToVolume(y.tag);
        // X is an area but is converted with the length table: only the division by the length's
        // factor applies. This is how products of a length and an area have always come out.
        if (volume != 0 && x.tag != LengthToArea(volume)) x.value = ConvertUnit(x.value, x.tag, ToLength(volume));
        return volume;
    }
    if (cy == 4 && cx == 8) {
        ConvertUnlessIn(x, SpeedTimeBase(y.tag));
        return ToLength(y.tag);
    }
    if (cy == 8 && cx == 4) {
        ConvertUnlessIn(y, SpeedTimeBase(x.tag));
        return ToLength(x.tag);
    }
    return 0;
}

ValueTag DivideTag(TaggedValue& y, TaggedValue& x) {
    const u32 cy = TagCategory(y.tag), cx = TagCategory(x.tag);
    if (cy == 2 && cx == 1) {
        const ValueTag length = ToLength(y.tag);
        if (length != 0) ConvertUnlessIn(x, length);
        return length;
    }
    if (cy == 3 && cx == 1) {
        const ValueTag area = LengthToArea(y.tag);
        if (area != 0) ConvertUnlessIn(x, ToLength(area));
        return area;
    }
    if (cy == 3 && cx == 2) {
        const ValueTag length = ToLength(y.tag);
        if (length != 0) ConvertUnlessIn(x, LengthToArea(length));
        return length;
    }
    if (cy == 1 && cx == 8) {
        const ValueTag speed = LengthToSpeed(y.tag);
        if (speed != 0) ConvertUnlessIn(x, SpeedTimeBase(speed));
        return speed;
    }
    if (cy == 1 && cx == 4) {
        // 100 km / 50 mi/h: the speed's miles are turned into km, so the quotient is in hours.
        x.value = ConvertUnit(x.value, ToLength(x.tag), y.tag);
        return SpeedTimeBase(x.tag);
    }
    return 0;
}

// Time keys on a date or clock time: the field of the key, or the error value where the value's
// kind has no such field.
double DateField(double value, ValueTag kind, FunctionId key) {
    if (!IsDateInRange(value)) return kErrorValue;
    const DateFields f = SplitDate(value);
    const bool hasDate = kind != tag::Time, hasTime = kind != tag::Date;
    switch (key) {
        case 189: return hasDate ? f.year : kErrorValue;
        case 190: return hasDate ? f.month : kErrorValue;
        case 192: return hasDate ? f.day : kErrorValue;
        case 193: return hasTime ? f.hour : kErrorValue;
        case 194: return hasTime ? f.minute : kErrorValue;
        case 195: return hasTime ? f.second : kErrorValue;
        default: return kErrorValue;  // weeks and frames are no field of a date
    }
}

void TimeKey(Engine& e, FunctionId id) {
    const ValueTag xTag = e.XTag();
    if (TagCategory(xTag) == 9) {
        e.SaveLastX();
        e.SetX(DateField(e.X(), xTag, id));
        return;
    }
    const ValueTag target = static_cast<ValueTag>(tag::Years + (id - fid::Years));
    if (TagCategory(xTag) == 8) e.SetX(ConvertDuration(e.X(), xTag, target, DurationSettingsOf(e)));
    e.SetXTag(target);
}

void TemperatureKey(Engine& e, FunctionId id) {
    if (id == fid::DegF && e.XTag() == tag::DegC) e.SetX(e.X() * 1.8 + 32.0);
    if (id == fid::DegC && e.XTag() == tag::DegF) e.SetX(RoundTo14(e.X() - 32.0) * 0.5555555555555556);
    e.SetXTag(id == fid::DegF ? tag::DegF : tag::DegC);
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
    using namespace tag;
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

ValueTag LengthToArea(ValueTag t) { return Map(kLengthToArea, 2, t); }
ValueTag ToLength(ValueTag t) { return Map(kToLength, 1, t); }
ValueTag ToVolume(ValueTag t) { return Map(kToVolume, 3, t); }
ValueTag LengthToSpeed(ValueTag t) { return Map(kLengthToSpeed, 4, t); }
ValueTag SpeedTimeBase(ValueTag t) { return t != tag::Hms ? Map(kSpeedTimeBase, 8, t) : 0; }

ValueTag ArithmeticResultTag(FunctionId op, TaggedValue& y, TaggedValue& x, const DurationSettings& settings) {
    const bool yTagged = TagCategory(y.tag) != 0, xTagged = TagCategory(x.tag) != 0;
    if (yTagged != xTagged) return yTagged ? y.tag : x.tag;  // 5 feet x 3 is 15 feet
    if (!yTagged) return 0;
    switch (op) {
        case fid::Add:
        case fid::Subtract: return AdditiveTag(y, x, settings);
        case fid::Multiply: return MultiplyTag(y, x);
        case fid::Divide: return DivideTag(y, x);
        default: return 0;
    }
}

bool HandleConversionKey(Engine& e, FunctionId id) {
    if (id >= fid::Years && id <= fid::Frames) {
        TimeKey(e, id);
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
