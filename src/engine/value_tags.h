#pragma once
// Every value tag by name, and the category that decides which conversions and displays apply
// to a tag. The numbers are saved with the stack and the registers, so they never change.
#include <array>

#include "engine/types.h"

namespace brinto {

enum class ValueTag : u16 {
    // No tag: a plain number.
    None = 0,

    Error = 1200,

    // Statistical results.
    Count = 1300,
    SumX = 1301,
    SumX2 = 1302,
    SumY = 1303,
    SumY2 = 1304,
    SumXY = 1305,
    MeanX = 1306,
    WeightedMean = 1307,
    MeanY = 1308,
    SampleDeviationX = 1309,
    SampleDeviationY = 1310,
    PopulationDeviationX = 1311,
    PopulationDeviationY = 1312,
    EstimateX = 1313,
    EstimateY = 1314,
    Correlation = 1315,
    Slope = 1316,

    // Financial results.
    Cost = 1400,
    Price = 1401,
    Margin = 1402,
    Markup = 1403,
    PerYear = 1404,
    Nominal = 1405,
    Effective = 1406,
    Periods = 1407,
    YearlyRate = 1408,
    Payment = 1409,
    PresentValue = 1410,
    FutureValue = 1411,
    Interest = 1412,
    Principal = 1413,
    Balance = 1414,
    ReturnRate = 1415,
    Start = 1416,
    End = 1417,
    NetPresentValue = 1418,
    CashFlow = 1419,
    GroupCount = 1420,

    // Status labels.
    Calculating = 1500,
    Memory = 1600,

    // Durations (h.mmss and years .. frames) and dates and clock times.
    Hms = 1800,
    Date = 1801,
    Time = 1802,
    DateTime = 1803,
    Years = 1804,
    Months = 1805,
    Weeks = 1806,
    Days = 1807,
    Hours = 1808,
    Minutes = 1809,
    Seconds = 1810,
    Frames = 1811,

    // Units, temperatures and the integer formats u8, s8, u16, s16, u32, s32.
    Inches = 1900,
    Feet = 1901,
    Miles = 1902,
    Meters = 1903,
    Pounds = 1904,
    Ounces = 1905,
    Kilograms = 1906,
    Grams = 1907,
    InchesPerSecond = 1908,
    FeetPerSecond = 1909,
    MetersPerSecond = 1910,
    MilesPerHour = 1911,
    KilometersPerHour = 1912,
    CentimetersPerSecond = 1913,
    SquareInches = 1914,
    SquareFeet = 1915,
    SquareMiles = 1916,
    SquareMeters = 1917,
    Gallons = 1918,
    Milliliters = 1919,
    Liters = 1920,
    FluidOunces = 1921,
    DegC = 1922,
    DegF = 1923,
    U8 = 1924,
    S8 = 1925,
    U16 = 1926,
    S16 = 1927,
    U32 = 1928,
    S32 = 1929,

    // Units of the second run.
    Centimeters = 1930,
    Millimeters = 1931,
    Yards = 1932,
    Kilometers = 1933,
    NauticalMiles = 1934,
    SquareMillimeters = 1935,
    SquareCentimeters = 1936,
    SquareKilometers = 1937,
    SquareYards = 1938,
    Acres = 1939,
    Tons = 1940,
    Milligrams = 1941,
    Knots = 1942,
    CubicMeters = 1943,
    CubicCentimeters = 1944,
    CubicYards = 1945,
    CubicFeet = 1946,
    CubicInches = 1947,
    Quarts = 1948,
    Pints = 1949,
    Cups = 1950,
    Tablespoons = 1951,
    Teaspoons = 1952,
    GallonsUk = 1953,
    FluidOuncesUk = 1954,

    // The duration settings dpy, dpm, dpw, hpd, fps.
    DaysPerYear = 2500,
    DaysPerMonth = 2501,
    DaysPerWeek = 2502,
    HoursPerDay = 2503,
    FramesPerSecond = 2504,

    // Names of the physical constants, in the order of the "Constants" list.
    Avogadro = 3600,
    Boltzmann = 3601,
    MolarVolume = 3602,
    GasConstant = 3603,
    StandardTemperature = 3604,
    StandardPressure = 3605,
    StefanBoltzmann = 3606,
    SpeedOfLight = 3607,
    Permittivity = 3608,
    Permeability = 3609,
    Gravity = 3610,
    GravitationalConstant = 3611,
    Planck = 3612,
    Dirac = 3613,
    ElectronCharge = 3614,
    ElectronMass = 3615,
    ChargeToMass = 3616,
    ProtonMass = 3617,
    ProtonElectronRatio = 3618,
    FineStructure = 3619,
    FluxQuantum = 3620,
    Faraday = 3621,
    Rydberg = 3622,
    BohrRadius = 3623,
    BohrMagneton = 3624,
    NuclearMagneton = 3625,
    PhotonWavelength = 3626,
    PhotonFrequency = 3627,
    ComptonWavelength = 3628,
    Wien = 3629,
    Dielectric = 3630,
    SiO2Dielectric = 3631,
    ReferenceIntensity = 3632,
};

constexpr u16 ToNumber(ValueTag tag) { return static_cast<u16>(tag); }
constexpr ValueTag ValueTagFrom(u16 number) { return static_cast<ValueTag>(number); }

// The category of a tag: what kind of quantity it names; None for plain numbers and result
// labels. (The lookup is the function TagCategory, so that a call can never be mistaken for a
// conversion between the two enumerations.)
enum class Category : u8 {
    None,
    Length,
    Area,
    Volume,
    Speed,
    Mass,
    Temperature,
    IntegerFormat,
    Duration,  // h.mmss and years .. frames
    Calendar,  // date, time, date and time
};

struct CategoryRun {
    ValueTag first;
    ValueTag last;
    Category category;
};
// Runs of tags with a category; every tag outside them has none.
inline constexpr std::array kCategoryRuns = {
    CategoryRun{ValueTag::Hms, ValueTag::Hms, Category::Duration},
    CategoryRun{ValueTag::Date, ValueTag::DateTime, Category::Calendar},
    CategoryRun{ValueTag::Years, ValueTag::Frames, Category::Duration},
    CategoryRun{ValueTag::Inches, ValueTag::Meters, Category::Length},
    CategoryRun{ValueTag::Pounds, ValueTag::Grams, Category::Mass},
    CategoryRun{ValueTag::InchesPerSecond, ValueTag::CentimetersPerSecond, Category::Speed},
    CategoryRun{ValueTag::SquareInches, ValueTag::SquareMeters, Category::Area},
    CategoryRun{ValueTag::Gallons, ValueTag::FluidOunces, Category::Volume},
    CategoryRun{ValueTag::DegC, ValueTag::DegF, Category::Temperature},
    CategoryRun{ValueTag::U8, ValueTag::S32, Category::IntegerFormat},
    CategoryRun{ValueTag::Centimeters, ValueTag::NauticalMiles, Category::Length},
    CategoryRun{ValueTag::SquareMillimeters, ValueTag::Acres, Category::Area},
    CategoryRun{ValueTag::Tons, ValueTag::Milligrams, Category::Mass},
    CategoryRun{ValueTag::Knots, ValueTag::Knots, Category::Speed},
    CategoryRun{ValueTag::CubicMeters, ValueTag::FluidOuncesUk, Category::Volume},
};

consteval bool RunsAscendAndDoNotOverlap() {
    for (std::size_t i = 0; i < kCategoryRuns.size(); ++i) {
        if (kCategoryRuns[i].last < kCategoryRuns[i].first) return false;
        if (i > 0 && !(kCategoryRuns[i - 1].last < kCategoryRuns[i].first)) return false;
    }
    return true;
}
static_assert(RunsAscendAndDoNotOverlap(), "tag category runs overlap or are out of order");

constexpr Category TagCategory(ValueTag tag) {
    for (const CategoryRun& run : kCategoryRuns) {
        if (tag >= run.first && tag <= run.last) return run.category;
    }
    return Category::None;
}

// A value that carries a unit, a duration, a date or an integer format.
constexpr bool HasCategory(ValueTag tag) { return TagCategory(tag) != Category::None; }

}  // namespace brinto

// The result labels are spelled label::Count, label::PresentValue, ...
namespace brinto::label {
using enum ValueTag;
}  // namespace brinto::label

// Spellings kept from when tags and keys shared one list; new code writes ValueTag::Date.
namespace brinto::fid {
inline constexpr ValueTag TagError = ValueTag::Error;
inline constexpr ValueTag TagHms = ValueTag::Hms;
inline constexpr ValueTag TagDate = ValueTag::Date;
inline constexpr ValueTag TagTime = ValueTag::Time;
inline constexpr ValueTag TagDateTime = ValueTag::DateTime;
inline constexpr ValueTag TagYears = ValueTag::Years;
inline constexpr ValueTag TagMonths = ValueTag::Months;
inline constexpr ValueTag TagDays = ValueTag::Days;
inline constexpr ValueTag TagHours = ValueTag::Hours;
inline constexpr ValueTag TagFrames = ValueTag::Frames;
inline constexpr ValueTag TagU8 = ValueTag::U8;
inline constexpr ValueTag TagS32 = ValueTag::S32;
inline constexpr ValueTag TagCalculating = ValueTag::Calculating;
inline constexpr ValueTag TagMemory = ValueTag::Memory;
inline constexpr ValueTag TagCashFlow = ValueTag::CashFlow;
inline constexpr ValueTag TagGroupCount = ValueTag::GroupCount;
inline constexpr ValueTag TagDpy = ValueTag::DaysPerYear;
}  // namespace brinto::fid
