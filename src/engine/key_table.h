#pragma once
// One row per key: the names brinto-cli accepts (case-insensitive) and --list-keys prints;
// kKeyAliases below adds the other spellings people type.
#include <array>
#include <optional>
#include <string_view>

#include "engine/function_ids.h"

namespace brinto {

struct KeyInfo {
    FunctionId id;
    std::string_view name;
};

inline constexpr std::array<KeyInfo, 245> kKeyTable = {{
    {fid::Digit0, "0"},
    {fid::Digit1, "1"},
    {fid::Digit2, "2"},
    {fid::Digit3, "3"},
    {fid::Digit4, "4"},
    {fid::Digit5, "5"},
    {fid::Digit6, "6"},
    {fid::Digit7, "7"},
    {fid::Digit8, "8"},
    {fid::Digit9, "9"},
    {fid::HexA, "a"},
    {fid::HexB, "b"},
    {fid::HexC, "c"},
    {fid::HexD, "d"},
    {fid::HexE, "e"},
    {fid::HexF, "f"},
    {fid::Point, "."},
    {fid::SecondPoint, "point2"},
    {fid::Exponent, "eex"},
    {fid::ChangeSign, "chs"},
    {fid::Backspace, "bksp"},
    {fid::Enter, "enter"},
    {fid::Add, "+"},
    {fid::Subtract, "-"},
    {fid::Multiply, "*"},
    {fid::Divide, "/"},
    {fid::Equals, "="},
    {fid::Shift, "shift"},
    {fid::DisplayToggle, "toggle"},
    {fid::ClearAll, "clrall"},
    {fid::ClearStack, "clrstk"},
    {fid::ClearX, "clx"},
    {fid::SecondClearAll, "clrall2"},
    {fid::SecondClearStack, "clrstk2"},
    {fid::SecondClearX, "clx2"},
    {fid::ClearRegisters, "clrreg"},
    {fid::ClearFinancial, "clrfin"},
    {fid::ClearStatistics, "clrstat"},
    {fid::RollDown, "rdn"},
    {fid::RollUp, "rup"},
    {fid::Drop, "drop"},
    {fid::Fill, "fill"},
    {fid::Swap, "swap"},
    {fid::Store, "sto"},
    {fid::LastX, "lastx"},
    {fid::Recall, "rcl"},
    {fid::Exchange, "xchg"},
    {fid::OpenParen, "("},
    {fid::CloseParen, ")"},
    {fid::PercentTotal, "%t"},
    {fid::PercentChange, "%ch"},
    {fid::Percent, "%"},
    {fid::RoundToDisplay, "rnd"},
    {fid::IntegerPart, "ip"},
    {fid::Abs, "abs"},
    {fid::SquareRoot, "sqrt"},
    {fid::Square, "sq"},
    {fid::CubeRoot, "cbrt"},
    {fid::Cube, "cube"},
    {fid::Power, "y^x"},
    {fid::Reciprocal, "1/x"},
    {fid::FractionalPart, "fp"},
    {fid::Modulo, "mod"},
    {fid::BeginEnd, "beg"},
    {fid::N, "n"},
    {fid::IYr, "i/yr"},
    {fid::PV, "pv"},
    {fid::PMT, "pmt"},
    {fid::FV, "fv"},
    {fid::PYr, "p/yr"},
    {fid::Nom, "nom%"},
    {fid::Eff, "eff%"},
    {fid::TimesPYr, "xp/yr"},
    {fid::DividePYr, "/p/yr"},
    {fid::Cost, "cost"},
    {fid::Price, "price"},
    {fid::Margin, "margin"},
    {fid::Markup, "markup"},
    {fid::Amortize, "amort"},
    {fid::AmortizeNext, "amortnext"},
    {fid::CashFlow, "cfj"},
    {fid::GroupCount, "nj"},
    {fid::Npv, "npv"},
    {fid::Irr, "irr/yr"},
    {fid::Sin, "sin"},
    {fid::Cos, "cos"},
    {fid::Tan, "tan"},
    {fid::Asin, "asin"},
    {fid::Acos, "acos"},
    {fid::Atan, "atan"},
    {fid::Pi, "pi"},
    {fid::Hyperbolic, "hyp"},
    {fid::Ln, "ln"},
    {fid::Log10, "log"},
    {fid::Exp, "exp"},
    {fid::PowerOf10, "10^x"},
    {fid::Degrees, "deg"},
    {fid::Radians, "rad"},
    {fid::Grads, "grad"},
    {fid::RadToDeg, "r>d"},
    {fid::DegToRad, "d>r"},
    {fid::PolarToRect, "p>r"},
    {fid::RectToPolar, "r>p"},
    {fid::ToHms, ">h.mmss"},
    {fid::ToHours, ">hours"},
    {fid::SigmaPlus, "s+"},
    {fid::SigmaMinus, "s-"},
    {fid::RecallSumX, "sumx"},
    {fid::RecallSumX2, "sumx2"},
    {fid::RecallSumY, "sumy"},
    {fid::RecallSumY2, "sumy2"},
    {fid::RecallSumXY, "sumxy"},
    {fid::RecallN, "count"},
    {fid::MeanX, "meanx"},
    {fid::WeightedMean, "meanxw"},
    {fid::MeanY, "meany"},
    {fid::EstimateX, "estx"},
    {fid::EstimateY, "esty"},
    {fid::Random, "rand"},
    {fid::Factorial, "n!"},
    {fid::LogGamma, "lngamma"},
    {fid::SampleDeviation, "sdev"},
    {fid::PopulationDeviation, "popsdev"},
    {fid::Combinations, "ncr"},
    {fid::Permutations, "npr"},
    {fid::BaseBinary, "bin"},
    {fid::BaseOctal, "oct"},
    {fid::BaseDecimal, "dec"},
    {fid::BaseHex, "hex"},
    {fid::And, "and"},
    {fid::Or, "or"},
    {fid::Xor, "xor"},
    {fid::Not, "not"},
    {fid::ShiftLeft, "sl"},
    {fid::ShiftRight, "sr"},
    {fid::ArithmeticShiftRight, "asr"},
    {fid::RotateRight, "rr"},
    {fid::Inches, "inches"},
    {fid::Feet, "feet"},
    {fid::Miles, "miles"},
    {fid::Meters, "meters"},
    {fid::SquareInches, "sqinches"},
    {fid::SquareFeet, "sqfeet"},
    {fid::SquareMiles, "sqmiles"},
    {fid::SquareMeters, "sqmeters"},
    {fid::Pounds, "pounds"},
    {fid::Ounces, "ounces"},
    {fid::Kilograms, "kg"},
    {fid::Grams, "grams"},
    {fid::InchesPerSecond, "in/s"},
    {fid::FeetPerSecond, "ft/s"},
    {fid::MetersPerSecond, "m/s"},
    {fid::MilesPerHour, "mi/h"},
    {fid::KilometersPerHour, "km/h"},
    {fid::CentimetersPerSecond, "cm/s"},
    {fid::Gallons, "gallons"},
    {fid::Milliliters, "ml"},
    {fid::Liters, "liters"},
    {fid::FluidOunces, "floz"},
    {fid::DegC, "degc"},
    {fid::DegF, "degf"},
    {fid::XRoot, "xroot"},
    {fid::FormatU8, "u8"},
    {fid::FormatS8, "s8"},
    {fid::FormatU16, "u16"},
    {fid::FormatS16, "s16"},
    {fid::FormatU32, "u32"},
    {fid::FormatS32, "s32"},
    {fid::FormatStandard, "std"},
    {fid::FormatScientific, "sci"},
    {fid::FormatEngineering, "eng"},
    {fid::Floor, "floor"},
    {fid::Ceiling, "ceil"},
    {fid::IntegerNegate, "ineg"},
    {fid::ToDefaultFormat, "int"},
    {fid::IntegerAdd, "i+"},
    {fid::IntegerSubtract, "i-"},
    {fid::IntegerMultiply, "i*"},
    {fid::IntegerDivide, "i/"},
    {fid::FormatFixed, "fix"},
    {fid::ClearDate, "clrdate"},
    {fid::Now, "now"},
    {fid::Date, "date"},
    {fid::Time, "time"},
    {fid::Years, "years"},
    {fid::Months, "months"},
    {fid::Weeks, "weeks"},
    {fid::Days, "days"},
    {fid::Hours, "hours"},
    {fid::Minutes, "minutes"},
    {fid::Seconds, "seconds"},
    {fid::Frames, "frames"},
    {fid::HmsToFrames, "h.mmss>frames"},
    {fid::DaysPerYear, "dpy"},
    {fid::DaysPerMonth, "dpm"},
    {fid::DaysPerWeek, "dpw"},
    {fid::HoursPerDay, "hpd"},
    {fid::FramesPerSecond, "fps"},
    {fid::DatePart, "datepart"},
    {fid::TimePart, "timepart"},
    {fid::FractionToNextUnit, "fraction"},
    {fid::SecondEnter, "enter2"},
    {fid::Rotate3, "rot3"},
    {fid::Over, "over"},
    {fid::MethodSimple, "simple"},
    {fid::MethodPrecedence, "precedence"},
    {fid::MethodRpn, "rpn"},
    {fid::MacroRecord, "record"},
    {fid::MacroPlay, "play"},
    {fid::MacroPause, "pause"},
    {fid::MacroStop, "stop"},
    {fid::Centimeters, "cm"},
    {fid::Millimeters, "mm"},
    {fid::Yards, "yards"},
    {fid::Kilometers, "km"},
    {fid::NauticalMiles, "nmi"},
    {fid::SquareMillimeters, "sqmm"},
    {fid::SquareCentimeters, "sqcm"},
    {fid::SquareKilometers, "sqkm"},
    {fid::SquareYards, "sqyards"},
    {fid::Acres, "acres"},
    {fid::Tons, "tons"},
    {fid::Milligrams, "mg"},
    {fid::Knots, "knots"},
    {fid::CubicMeters, "cubicm"},
    {fid::CubicCentimeters, "cubiccm"},
    {fid::CubicYards, "cubicyd"},
    {fid::CubicFeet, "cubicft"},
    {fid::CubicInches, "cubicin"},
    {fid::Quarts, "quarts"},
    {fid::Pints, "pints"},
    {fid::Cups, "cups"},
    {fid::Tablespoons, "tbsp"},
    {fid::Teaspoons, "tsp"},
    {fid::GallonsUk, "gallonsuk"},
    {fid::FluidOuncesUk, "flozuk"},
    {fid::SecondAmortize, "amort2"},
    {fid::RecallVariant, "rcl.1"},
    {fid::RecallLarge, "rcl.100"},
    {fid::ExchangeVariant, "xchg.1"},
    {fid::ExchangeLarge, "xchg.100"},
    {fid::StoreVariant, "sto.1"},
    {fid::StoreLarge, "sto.100"},
    {fid::FirstShift, "shift1"},
    {fid::SecondShift, "shift2"},
}};

consteval bool AscendingUnique(const auto& table) {
    for (std::size_t i = 1; i < table.size(); ++i) {
        if (!(table[i - 1].id < table[i].id)) return false;
    }
    return true;
}
static_assert(AscendingUnique(kKeyTable), "key table out of order or duplicated");

// Names are looked up ignoring case (ASCII only, so the lookup needs no locale).
constexpr bool SameName(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; };
    if (a.size() != b.size()) return false;
    for (std::size_t k = 0; k < a.size(); ++k) {
        if (lower(a[k]) != lower(b[k])) return false;
    }
    return true;
}

// So no two names may differ by case alone.
consteval bool NamesUniqueIgnoringCase(const auto& table) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        for (std::size_t j = i + 1; j < table.size(); ++j) {
            if (table[i].name.empty() || SameName(table[i].name, table[j].name)) return false;
        }
    }
    return true;
}
static_assert(NamesUniqueIgnoringCase(kKeyTable), "two keys share a name");

// Other names people type for some keys, taken as tokens like the names above and listed beside
// them. Each adds a spelling; the key keeps its one name in the table above.
struct KeyAlias {
    std::string_view name;
    FunctionId id;
};

inline constexpr std::array<KeyAlias, 14> kKeyAliases = {{
    {"+/-", fid::ChangeSign},
    {"neg", fid::ChangeSign},
    {"backspace", fid::Backspace},
    {"x<>y", fid::Swap},
    {"x^2", fid::Square},
    {"x^3", fid::Cube},
    {"pow", fid::Power},
    {"recip", fid::Reciprocal},
    {"e^x", fid::Exp},
    {"log10", fid::Log10},
    {"sigma+", fid::SigmaPlus},
    {"sigma-", fid::SigmaMinus},
    {"mean", fid::MeanX},
    {"x!", fid::Factorial},
}};

// No alias may be spelt like a name or another alias, ignoring case.
consteval bool AliasesUnique() {
    for (const KeyAlias& a : kKeyAliases) {
        for (const KeyInfo& k : kKeyTable) {
            if (SameName(a.name, k.name)) return false;
        }
    }
    return NamesUniqueIgnoringCase(kKeyAliases);
}
static_assert(AliasesUnique(), "an alias repeats a key name or another alias");

// The key of a name or alias, ignoring case.
std::optional<FunctionId> KeyByName(std::string_view name);

}  // namespace brinto
