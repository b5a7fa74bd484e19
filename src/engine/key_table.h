#pragma once
// One row per key: the name brinto-cli accepts (case-insensitive) and --list-keys prints, and the
// family whose handler acts on the key; kKeyAliases below adds the other spellings people type.
#include <array>
#include <optional>
#include <string_view>

#include "engine/function_ids.h"

namespace brinto {

// Who acts on a key. The first eleven are the handlers Dispatch offers a key to, in the order of the
// calculator's chain (engine/families.h); the last four are the dispatcher's own keys. Two
// prefixes take other families' keys while they wait: a register prefix its digits, arithmetic
// keys and the keys that name a register, a display-format key its digit; the row still names
// the key's own family.
enum class KeyFamily : u8 {
    Register,       // store, recall and exchange with a register (engine/register_keys.cpp)
    Format,         // the display formats (engine/dispatch.cpp)
    Mode,           // Begin/End, angle units, entry bases (engine/dispatch.cpp)
    Financial,      // TVM, margins, NOM%/EFF%, CFj, Nj (finance/financial_keys.cpp)
    Scientific,     // one-operand functions (ops/scientific.cpp)
    FinanceResult,  // amortization and NPV/IRR (finance/financial_keys.cpp)
    Statistics,     // sums, means, deviations, estimates (finance/statistics.cpp)
    Date,           // dates, times and the duration settings (ops/date_time.cpp)
    Integer,        // integer formats and NOT (ops/integer_ops.cpp)
    Conversion,     // units and durations (ops/units.cpp)
    Operator,       // binary operators of every input method (engine/algebraic.cpp)
    Entry,          // digits and the keys that edit the number being typed
    Shift,          // the shift keys
    Macro,          // record, play, pause and stop
    BuiltIn,        // the stack, clears, "=", parentheses, HYP and the input methods
    None,           // a code with no key
};

}  // namespace brinto

// Families are spelled kf::Register, kf::Entry, ... in the table.
namespace brinto::kf {
using enum KeyFamily;
}  // namespace brinto::kf

namespace brinto {

struct KeyInfo {
    FunctionId id;
    std::string_view name;
    KeyFamily family;
};

inline constexpr std::array<KeyInfo, 245> kKeyTable = {{
    {fid::Digit0, "0", kf::Entry},
    {fid::Digit1, "1", kf::Entry},
    {fid::Digit2, "2", kf::Entry},
    {fid::Digit3, "3", kf::Entry},
    {fid::Digit4, "4", kf::Entry},
    {fid::Digit5, "5", kf::Entry},
    {fid::Digit6, "6", kf::Entry},
    {fid::Digit7, "7", kf::Entry},
    {fid::Digit8, "8", kf::Entry},
    {fid::Digit9, "9", kf::Entry},
    {fid::HexA, "a", kf::Entry},
    {fid::HexB, "b", kf::Entry},
    {fid::HexC, "c", kf::Entry},
    {fid::HexD, "d", kf::Entry},
    {fid::HexE, "e", kf::Entry},
    {fid::HexF, "f", kf::Entry},
    {fid::Point, ".", kf::Entry},
    {fid::SecondPoint, "point2", kf::Entry},
    {fid::Exponent, "eex", kf::Entry},
    {fid::ChangeSign, "chs", kf::Entry},
    {fid::Backspace, "bksp", kf::Entry},
    {fid::Enter, "enter", kf::BuiltIn},
    {fid::Add, "+", kf::Operator},
    {fid::Subtract, "-", kf::Operator},
    {fid::Multiply, "*", kf::Operator},
    {fid::Divide, "/", kf::Operator},
    {fid::Equals, "=", kf::BuiltIn},
    {fid::Shift, "shift", kf::Shift},
    {fid::DisplayToggle, "toggle", kf::BuiltIn},
    {fid::ClearAll, "clrall", kf::BuiltIn},
    {fid::ClearStack, "clrstk", kf::BuiltIn},
    {fid::ClearX, "clx", kf::BuiltIn},
    {fid::SecondClearAll, "clrall2", kf::BuiltIn},
    {fid::SecondClearStack, "clrstk2", kf::BuiltIn},
    {fid::SecondClearX, "clx2", kf::BuiltIn},
    {fid::ClearRegisters, "clrreg", kf::BuiltIn},
    {fid::ClearFinancial, "clrfin", kf::BuiltIn},
    {fid::ClearStatistics, "clrstat", kf::BuiltIn},
    {fid::RollDown, "rdn", kf::BuiltIn},
    {fid::RollUp, "rup", kf::BuiltIn},
    {fid::Drop, "drop", kf::BuiltIn},
    {fid::Fill, "fill", kf::BuiltIn},
    {fid::Swap, "swap", kf::BuiltIn},
    {fid::Store, "sto", kf::Register},
    {fid::LastX, "lastx", kf::BuiltIn},
    {fid::Recall, "rcl", kf::Register},
    {fid::Exchange, "xchg", kf::Register},
    {fid::OpenParen, "(", kf::BuiltIn},
    {fid::CloseParen, ")", kf::BuiltIn},
    {fid::PercentTotal, "%t", kf::Operator},
    {fid::PercentChange, "%ch", kf::Operator},
    {fid::Percent, "%", kf::Scientific},
    {fid::RoundToDisplay, "rnd", kf::Scientific},
    {fid::IntegerPart, "ip", kf::Scientific},
    {fid::Abs, "abs", kf::Scientific},
    {fid::SquareRoot, "sqrt", kf::Scientific},
    {fid::Square, "sq", kf::Scientific},
    {fid::CubeRoot, "cbrt", kf::Scientific},
    {fid::Cube, "cube", kf::Scientific},
    {fid::Power, "y^x", kf::Operator},
    {fid::Reciprocal, "1/x", kf::Scientific},
    {fid::FractionalPart, "fp", kf::Scientific},
    {fid::Modulo, "mod", kf::Operator},
    {fid::BeginEnd, "beg", kf::Mode},
    {fid::N, "n", kf::Financial},
    {fid::IYr, "i/yr", kf::Financial},
    {fid::PV, "pv", kf::Financial},
    {fid::PMT, "pmt", kf::Financial},
    {fid::FV, "fv", kf::Financial},
    {fid::PYr, "p/yr", kf::Financial},
    {fid::Nom, "nom%", kf::Financial},
    {fid::Eff, "eff%", kf::Financial},
    {fid::TimesPYr, "xp/yr", kf::Financial},
    {fid::DividePYr, "/p/yr", kf::Financial},
    {fid::Cost, "cost", kf::Financial},
    {fid::Price, "price", kf::Financial},
    {fid::Margin, "margin", kf::Financial},
    {fid::Markup, "markup", kf::Financial},
    {fid::Amortize, "amort", kf::FinanceResult},
    {fid::AmortizeNext, "amortnext", kf::FinanceResult},
    {fid::CashFlow, "cfj", kf::Financial},
    {fid::GroupCount, "nj", kf::Financial},
    {fid::Npv, "npv", kf::FinanceResult},
    {fid::Irr, "irr/yr", kf::FinanceResult},
    {fid::Sin, "sin", kf::Scientific},
    {fid::Cos, "cos", kf::Scientific},
    {fid::Tan, "tan", kf::Scientific},
    {fid::Asin, "asin", kf::Scientific},
    {fid::Acos, "acos", kf::Scientific},
    {fid::Atan, "atan", kf::Scientific},
    {fid::Pi, "pi", kf::Scientific},
    {fid::Hyperbolic, "hyp", kf::BuiltIn},
    {fid::Ln, "ln", kf::Scientific},
    {fid::Log10, "log", kf::Scientific},
    {fid::Exp, "exp", kf::Scientific},
    {fid::PowerOf10, "10^x", kf::Scientific},
    {fid::Degrees, "deg", kf::Mode},
    {fid::Radians, "rad", kf::Mode},
    {fid::Grads, "grad", kf::Mode},
    {fid::RadToDeg, "r>d", kf::Scientific},
    {fid::DegToRad, "d>r", kf::Scientific},
    {fid::PolarToRect, "p>r", kf::Scientific},
    {fid::RectToPolar, "r>p", kf::Scientific},
    {fid::ToHms, ">h.mmss", kf::Date},
    {fid::ToHours, ">hours", kf::Date},
    {fid::SigmaPlus, "s+", kf::Statistics},
    {fid::SigmaMinus, "s-", kf::Statistics},
    {fid::RecallSumX, "sumx", kf::Statistics},
    {fid::RecallSumX2, "sumx2", kf::Statistics},
    {fid::RecallSumY, "sumy", kf::Statistics},
    {fid::RecallSumY2, "sumy2", kf::Statistics},
    {fid::RecallSumXY, "sumxy", kf::Statistics},
    {fid::RecallN, "count", kf::Statistics},
    {fid::MeanX, "meanx", kf::Statistics},
    {fid::WeightedMean, "meanxw", kf::Statistics},
    {fid::MeanY, "meany", kf::Statistics},
    {fid::EstimateX, "estx", kf::Statistics},
    {fid::EstimateY, "esty", kf::Statistics},
    {fid::Random, "rand", kf::Scientific},
    {fid::Factorial, "n!", kf::Scientific},
    {fid::LogGamma, "lngamma", kf::Scientific},
    {fid::SampleDeviation, "sdev", kf::Statistics},
    {fid::PopulationDeviation, "popsdev", kf::Statistics},
    {fid::Combinations, "ncr", kf::Operator},
    {fid::Permutations, "npr", kf::Operator},
    {fid::BaseBinary, "bin", kf::Mode},
    {fid::BaseOctal, "oct", kf::Mode},
    {fid::BaseDecimal, "dec", kf::Mode},
    {fid::BaseHex, "hex", kf::Mode},
    {fid::And, "and", kf::Operator},
    {fid::Or, "or", kf::Operator},
    {fid::Xor, "xor", kf::Operator},
    {fid::Not, "not", kf::Integer},
    {fid::ShiftLeft, "sl", kf::Operator},
    {fid::ShiftRight, "sr", kf::Operator},
    {fid::ArithmeticShiftRight, "asr", kf::Operator},
    {fid::RotateRight, "rr", kf::Operator},
    {fid::Inches, "inches", kf::Conversion},
    {fid::Feet, "feet", kf::Conversion},
    {fid::Miles, "miles", kf::Conversion},
    {fid::Meters, "meters", kf::Conversion},
    {fid::SquareInches, "sqinches", kf::Conversion},
    {fid::SquareFeet, "sqfeet", kf::Conversion},
    {fid::SquareMiles, "sqmiles", kf::Conversion},
    {fid::SquareMeters, "sqmeters", kf::Conversion},
    {fid::Pounds, "pounds", kf::Conversion},
    {fid::Ounces, "ounces", kf::Conversion},
    {fid::Kilograms, "kg", kf::Conversion},
    {fid::Grams, "grams", kf::Conversion},
    {fid::InchesPerSecond, "in/s", kf::Conversion},
    {fid::FeetPerSecond, "ft/s", kf::Conversion},
    {fid::MetersPerSecond, "m/s", kf::Conversion},
    {fid::MilesPerHour, "mi/h", kf::Conversion},
    {fid::KilometersPerHour, "km/h", kf::Conversion},
    {fid::CentimetersPerSecond, "cm/s", kf::Conversion},
    {fid::Gallons, "gallons", kf::Conversion},
    {fid::Milliliters, "ml", kf::Conversion},
    {fid::Liters, "liters", kf::Conversion},
    {fid::FluidOunces, "floz", kf::Conversion},
    {fid::DegC, "degc", kf::Conversion},
    {fid::DegF, "degf", kf::Conversion},
    {fid::XRoot, "xroot", kf::Operator},
    {fid::FormatU8, "u8", kf::Integer},
    {fid::FormatS8, "s8", kf::Integer},
    {fid::FormatU16, "u16", kf::Integer},
    {fid::FormatS16, "s16", kf::Integer},
    {fid::FormatU32, "u32", kf::Integer},
    {fid::FormatS32, "s32", kf::Integer},
    {fid::FormatStandard, "std", kf::Format},
    {fid::FormatScientific, "sci", kf::Format},
    {fid::FormatEngineering, "eng", kf::Format},
    {fid::Floor, "floor", kf::Scientific},
    {fid::Ceiling, "ceil", kf::Scientific},
    {fid::IntegerNegate, "ineg", kf::BuiltIn},
    {fid::ToDefaultFormat, "int", kf::Integer},
    {fid::IntegerAdd, "i+", kf::Operator},
    {fid::IntegerSubtract, "i-", kf::Operator},
    {fid::IntegerMultiply, "i*", kf::Operator},
    {fid::IntegerDivide, "i/", kf::Operator},
    {fid::FormatFixed, "fix", kf::Format},
    {fid::ClearDate, "clrdate", kf::BuiltIn},
    {fid::Now, "now", kf::Date},
    {fid::Date, "date", kf::Date},
    {fid::Time, "time", kf::Date},
    {fid::Years, "years", kf::Conversion},
    {fid::Months, "months", kf::Conversion},
    {fid::Weeks, "weeks", kf::Conversion},
    {fid::Days, "days", kf::Conversion},
    {fid::Hours, "hours", kf::Conversion},
    {fid::Minutes, "minutes", kf::Conversion},
    {fid::Seconds, "seconds", kf::Conversion},
    {fid::Frames, "frames", kf::Conversion},
    {fid::HmsToFrames, "h.mmss>frames", kf::Date},
    {fid::DaysPerYear, "dpy", kf::Date},
    {fid::DaysPerMonth, "dpm", kf::Date},
    {fid::DaysPerWeek, "dpw", kf::Date},
    {fid::HoursPerDay, "hpd", kf::Date},
    {fid::FramesPerSecond, "fps", kf::Date},
    {fid::DatePart, "datepart", kf::Date},
    {fid::TimePart, "timepart", kf::Date},
    {fid::FractionToNextUnit, "fraction", kf::Date},
    {fid::SecondEnter, "enter2", kf::BuiltIn},
    {fid::Rotate3, "rot3", kf::BuiltIn},
    {fid::Over, "over", kf::BuiltIn},
    {fid::MethodSimple, "simple", kf::BuiltIn},
    {fid::MethodPrecedence, "precedence", kf::BuiltIn},
    {fid::MethodRpn, "rpn", kf::BuiltIn},
    {fid::MacroRecord, "record", kf::Macro},
    {fid::MacroPlay, "play", kf::Macro},
    {fid::MacroPause, "pause", kf::Macro},
    {fid::MacroStop, "stop", kf::Macro},
    {fid::Centimeters, "cm", kf::Conversion},
    {fid::Millimeters, "mm", kf::Conversion},
    {fid::Yards, "yards", kf::Conversion},
    {fid::Kilometers, "km", kf::Conversion},
    {fid::NauticalMiles, "nmi", kf::Conversion},
    {fid::SquareMillimeters, "sqmm", kf::Conversion},
    {fid::SquareCentimeters, "sqcm", kf::Conversion},
    {fid::SquareKilometers, "sqkm", kf::Conversion},
    {fid::SquareYards, "sqyards", kf::Conversion},
    {fid::Acres, "acres", kf::Conversion},
    {fid::Tons, "tons", kf::Conversion},
    {fid::Milligrams, "mg", kf::Conversion},
    {fid::Knots, "knots", kf::Conversion},
    {fid::CubicMeters, "cubicm", kf::Conversion},
    {fid::CubicCentimeters, "cubiccm", kf::Conversion},
    {fid::CubicYards, "cubicyd", kf::Conversion},
    {fid::CubicFeet, "cubicft", kf::Conversion},
    {fid::CubicInches, "cubicin", kf::Conversion},
    {fid::Quarts, "quarts", kf::Conversion},
    {fid::Pints, "pints", kf::Conversion},
    {fid::Cups, "cups", kf::Conversion},
    {fid::Tablespoons, "tbsp", kf::Conversion},
    {fid::Teaspoons, "tsp", kf::Conversion},
    {fid::GallonsUk, "gallonsuk", kf::Conversion},
    {fid::FluidOuncesUk, "flozuk", kf::Conversion},
    {fid::SecondAmortize, "amort2", kf::FinanceResult},
    {fid::RecallVariant, "rcl.1", kf::Register},
    {fid::RecallLarge, "rcl.100", kf::Register},
    {fid::ExchangeVariant, "xchg.1", kf::Register},
    {fid::ExchangeLarge, "xchg.100", kf::Register},
    {fid::StoreVariant, "sto.1", kf::Register},
    {fid::StoreLarge, "sto.100", kf::Register},
    {fid::FirstShift, "shift1", kf::Shift},
    {fid::SecondShift, "shift2", kf::Shift},
}};

consteval bool AscendingUnique(const auto& table) {
    for (std::size_t i = 1; i < table.size(); ++i) {
        if (!(table[i - 1].id < table[i].id)) return false;
    }
    return true;
}
static_assert(AscendingUnique(kKeyTable), "key table out of order or duplicated");

consteval bool EveryRowHasFamily(const auto& table) {
    for (const KeyInfo& k : table) {
        if (k.family == KeyFamily::None) return false;
    }
    return true;
}
static_assert(EveryRowHasFamily(kKeyTable), "a key without a family");

// The rows' families by key code, for a lookup without a search.
inline constexpr std::array<KeyFamily, 256> kFamilyByCode = [] {
    std::array<KeyFamily, 256> families{};
    families.fill(KeyFamily::None);
    for (const KeyInfo& k : kKeyTable) families[ToNumber(k.id)] = k.family;
    return families;
}();

// The family of a key; kf::None for a code with no row.
constexpr KeyFamily FamilyOf(FunctionId id) {
    return ToNumber(id) < kFamilyByCode.size() ? kFamilyByCode[ToNumber(id)] : KeyFamily::None;
}

// The family's name as the code spells it, for --list-keys.
std::string_view FamilyName(KeyFamily family);

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
