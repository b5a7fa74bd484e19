#pragma once
// The nine keyboards and the 12-key blocks that differ between them.
#include <array>
#include <string_view>

#include "engine/function_ids.h"
#include "engine/user_key_map.h"

namespace brinto {

inline constexpr int kKeyboardCount = 9;
inline constexpr int kUserKeyboard = 8;
inline constexpr int kProgrammerKeyboard = 4;
inline constexpr int kBlockKeys = 12;

inline constexpr std::array<std::string_view, kKeyboardCount> kKeyboardNames = {
    "General",      "Financial",    "Scientific",  "Statistical", "Programmer",
    "Conversion 1", "Conversion 2", "Date & Time", "User"};

using KeyBlock = std::array<FunctionId, kBlockKeys>;

// A built-in keyboard: its name and its 12-key block unshifted and shifted, each drawn as two
// rows of six keys.
struct KeyboardLayout {
    std::string_view name;
    KeyBlock unshifted;
    KeyBlock shifted;
};

inline constexpr std::array<KeyboardLayout, kUserKeyboard> kBuiltInKeyboards = {{
    KeyboardLayout{
        "General",
        {fid::PercentTotal, fid::PercentChange, fid::Percent, fid::IntegerPart, fid::FractionalPart, fid::Abs,
         fid::XRoot, fid::Power, fid::Reciprocal, fid::SquareRoot, fid::Square, fid::Modulo},
        {fid::MethodSimple, fid::MethodPrecedence, fid::MethodRpn, fid::FormatStandard, fid::FormatFixed,
         fid::Ceiling, fid::MacroRecord, fid::MacroPause, fid::MacroStop, fid::FormatScientific,
         fid::FormatEngineering, fid::Floor}},
    KeyboardLayout{"Financial",
                   {fid::N, fid::IYr, fid::PV, fid::PMT, fid::FV, fid::Recall, fid::ClearFinancial,
                    fid::CashFlow, fid::Cost, fid::Price, fid::Margin, fid::Exchange},
                   {fid::TimesPYr, fid::Nom, fid::Eff, fid::PYr, fid::Amortize, fid::AmortizeNext,
                    fid::DividePYr, fid::GroupCount, fid::Irr, fid::Npv, fid::Markup, fid::BeginEnd}},
    KeyboardLayout{"Scientific",
                   {fid::Sin, fid::Cos, fid::Tan, fid::Pi, fid::Ln, fid::Log10, fid::XRoot, fid::Power,
                    fid::Reciprocal, fid::Hyperbolic, fid::Exp, fid::PowerOf10},
                   {fid::Asin, fid::Acos, fid::Atan, fid::RadToDeg, fid::PolarToRect, fid::ToHms,
                    fid::Degrees, fid::Radians, fid::Grads, fid::DegToRad, fid::RectToPolar, fid::ToHours}},
    KeyboardLayout{"Statistical",
                   {fid::MeanX, fid::RecallSumX, fid::RecallSumX2, fid::WeightedMean, fid::RecallN,
                    fid::SigmaMinus, fid::ClearStatistics, fid::SampleDeviation, fid::EstimateX,
                    fid::Combinations, fid::Factorial, fid::SigmaPlus},
                   {fid::MeanY, fid::RecallSumY, fid::RecallSumY2, fid::RecallSumXY, fid::Random,
                    fid::SigmaMinus, fid::ClearStatistics, fid::PopulationDeviation, fid::EstimateY,
                    fid::Permutations, fid::LogGamma, fid::SigmaPlus}},
    KeyboardLayout{
        "Programmer",
        {fid::BaseBinary, fid::BaseOctal, fid::HexD, fid::HexE, fid::HexF, fid::And, fid::BaseDecimal,
         fid::BaseHex, fid::HexA, fid::HexB, fid::HexC, fid::Or},
        {fid::RotateRight, fid::ArithmeticShiftRight, fid::FormatU8, fid::FormatU16, fid::FormatU32, fid::Not,
         fid::ShiftLeft, fid::ShiftRight, fid::FormatS8, fid::FormatS16, fid::FormatS32, fid::Xor}},
    KeyboardLayout{
        "Conversion 1",
        {fid::Inches, fid::Feet, fid::Yards, fid::KilometersPerHour, fid::MilesPerHour, fid::Knots,
         fid::Millimeters, fid::Centimeters, fid::Meters, fid::Kilometers, fid::Miles, fid::NauticalMiles},
        {fid::SquareInches, fid::SquareFeet, fid::SquareYards, fid::MetersPerSecond,
         fid::CentimetersPerSecond, fid::FeetPerSecond, fid::SquareMillimeters, fid::SquareCentimeters,
         fid::SquareMeters, fid::SquareKilometers, fid::SquareMiles, fid::Acres}},
    KeyboardLayout{
        "Conversion 2",
        {fid::Tablespoons, fid::FluidOunces, fid::Cups, fid::Pints, fid::Quarts, fid::Gallons, fid::Teaspoons,
         fid::Milliliters, fid::Liters, fid::CubicInches, fid::CubicFeet, fid::CubicYards},
        {fid::Ounces, fid::Pounds, fid::Tons, fid::FluidOuncesUk, fid::GallonsUk, fid::DegF, fid::Milligrams,
         fid::Grams, fid::Kilograms, fid::CubicCentimeters, fid::CubicMeters, fid::DegC}},
    KeyboardLayout{
        "Date & Time",
        {fid::Date, fid::Time, fid::Years, fid::Weeks, fid::Hours, fid::Seconds, fid::ClearDate,
         fid::FractionToNextUnit, fid::Months, fid::Days, fid::Minutes, fid::Frames},
        {fid::DatePart, fid::TimePart, fid::DaysPerMonth, fid::HoursPerDay, fid::ToHms, fid::DaysPerYear,
         fid::Now, fid::IntegerPart, fid::DaysPerWeek, fid::FramesPerSecond, fid::ToHours, fid::HmsToFrames}},
}};

// The 12-key block of a keyboard in a shift state (a shift above 1 counts as 1, a keyboard of 9 or
// more as 0); the User keyboard's blocks come from its key map.
KeyBlock KeyLayout(int keyboard, int shift, const UserKeyMap& userKeys);

}  // namespace brinto
