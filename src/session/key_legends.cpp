#include "session/key_legends.h"

#include <algorithm>
#include <array>

#include "engine/key_table.h"

namespace brinto {

namespace {

// One row per key of brinto-cli's key table, in the same order.
constexpr std::array kLegends = {
    // Digits and entry.
    KeyLegend{fid::Digit0, "0", "Digit 0", "0"},
    KeyLegend{fid::Digit1, "1", "Digit 1", "1"},
    KeyLegend{fid::Digit2, "2", "Digit 2", "2"},
    KeyLegend{fid::Digit3, "3", "Digit 3", "3"},
    KeyLegend{fid::Digit4, "4", "Digit 4", "4"},
    KeyLegend{fid::Digit5, "5", "Digit 5", "5"},
    KeyLegend{fid::Digit6, "6", "Digit 6", "6"},
    KeyLegend{fid::Digit7, "7", "Digit 7", "7"},
    KeyLegend{fid::Digit8, "8", "Digit 8", "8"},
    KeyLegend{fid::Digit9, "9", "Digit 9", "9"},
    KeyLegend{fid::HexA, "A", "Hexadecimal digit A (10)", "A"},
    KeyLegend{fid::HexB, "B", "Hexadecimal digit B (11)", "B"},
    KeyLegend{fid::HexC, "C", "Hexadecimal digit C (12)", "C"},
    KeyLegend{fid::HexD, "D", "Hexadecimal digit D (13)", "D"},
    KeyLegend{fid::HexE, "E", "Hexadecimal digit E (14)", "E (in an integer base)"},
    KeyLegend{fid::HexF, "F", "Hexadecimal digit F (15)", "F"},
    KeyLegend{fid::Point, ".", "Decimal point", ". or ,"},
    KeyLegend{fid::SecondPoint, ".", "Decimal point (second key)", ""},
    KeyLegend{fid::Exponent, "EEX", "Enter exponent", "E"},
    KeyLegend{fid::ChangeSign, "+/−", "Change sign", ""},
    KeyLegend{fid::Backspace, "←", "Backspace", "Backspace"},
    KeyLegend{fid::Enter, "ENTER", "Enter", "Enter (RPN)"},
    KeyLegend{fid::Add, "+", "Add", "+"},
    KeyLegend{fid::Subtract, "−", "Subtract", "-"},
    KeyLegend{fid::Multiply, "×", "Multiply", "* or X"},
    KeyLegend{fid::Divide, "÷", "Divide", "/"},
    KeyLegend{fid::Equals, "=", "Equals: complete the calculation", "= or Enter"},
    KeyLegend{fid::Shift, "SHIFT", "Shift: the keys' second functions", "F2"},
    KeyLegend{fid::DisplayToggle, "DISP", "Show all digits, dates as numbers (toggle)", ""},
    KeyLegend{fid::ClearAll, "CLALL", "Clear all: stack, registers and macro", ""},
    KeyLegend{fid::ClearStack, "CLST", "Clear stack", "Delete"},
    KeyLegend{fid::ClearX, "CLx", "Clear X", ""},
    KeyLegend{fid::SecondClearAll, "CLALL", "Clear all (second key)", ""},
    KeyLegend{fid::SecondClearStack, "CLST", "Clear stack (second key)", ""},
    KeyLegend{fid::SecondClearX, "CLx", "Clear X (second key)", ""},
    KeyLegend{fid::ClearRegisters, "CLREG", "Clear user, financial and statistical registers", ""},
    KeyLegend{fid::ClearFinancial, "CLFIN", "Clear the financial registers", ""},
    KeyLegend{fid::ClearStatistics, "CLΣ", "Clear the statistical sums", ""},
    KeyLegend{fid::RollDown, "R↓", "Roll the stack down", ""},
    KeyLegend{fid::RollUp, "R↑", "Roll the stack up", ""},
    KeyLegend{fid::Drop, "DROP", "Drop X", ""},
    KeyLegend{fid::Fill, "FILL", "Fill the stack with X", ""},
    KeyLegend{fid::Swap, "x≷y", "Exchange X and Y", ""},
    KeyLegend{fid::Store, "STO", "Store X in a register", ""},
    KeyLegend{fid::LastX, "LASTx", "Last X", ""},
    KeyLegend{fid::Recall, "RCL", "Recall a register", "S"},
    KeyLegend{fid::Exchange, "x≷R", "Exchange X with a register", "R"},
    KeyLegend{fid::OpenParen, "(", "Open parenthesis", "("},
    KeyLegend{fid::CloseParen, ")", "Close parenthesis", ")"},

    // Scientific and two-operand functions.
    KeyLegend{fid::PercentTotal, "%T", "Percent of total: X as a percentage of Y", ""},
    KeyLegend{fid::PercentChange, "%CH", "Percent change from Y to X", ""},
    KeyLegend{fid::Percent, "%", "Percent", "%"},
    KeyLegend{fid::RoundToDisplay, "RND", "Round X to the digits shown", ""},
    KeyLegend{fid::IntegerPart, "IP", "Integer part", ""},
    KeyLegend{fid::Abs, "ABS", "Absolute value", ""},
    KeyLegend{fid::SquareRoot, "√x", "Square root", ""},
    KeyLegend{fid::Square, "x²", "Square", ""},
    KeyLegend{fid::CubeRoot, "∛x", "Cube root", ""},
    KeyLegend{fid::Cube, "x³", "Cube", ""},
    KeyLegend{fid::Power, "yˣ", "Power: Y raised to X", ""},
    KeyLegend{fid::Reciprocal, "1/x", "Reciprocal", ""},
    KeyLegend{fid::FractionalPart, "FP", "Fractional part", ""},
    KeyLegend{fid::Modulo, "MOD", "Remainder of Y divided by X", ""},

    // Financial.
    KeyLegend{fid::BeginEnd, "BEG", "Payments at the beginning or end of periods (toggle)", ""},
    KeyLegend{fid::N, "N", "Number of payments", ""},
    KeyLegend{fid::IYr, "I/YR", "Nominal annual interest rate, percent", ""},
    KeyLegend{fid::PV, "PV", "Present value", ""},
    KeyLegend{fid::PMT, "PMT", "Payment per period", ""},
    KeyLegend{fid::FV, "FV", "Future value", ""},
    KeyLegend{fid::PYr, "P/YR", "Payments per year", ""},
    KeyLegend{fid::Nom, "NOM%", "Nominal annual interest rate", ""},
    KeyLegend{fid::Eff, "EFF%", "Effective annual interest rate", ""},
    KeyLegend{fid::TimesPYr, "×P/YR", "Years times payments per year, stored in N", ""},
    KeyLegend{fid::DividePYr, "÷P/YR", "Divide by payments per year", ""},
    KeyLegend{fid::Cost, "COST", "Cost", ""},
    KeyLegend{fid::Price, "PRICE", "Price", ""},
    KeyLegend{fid::Margin, "MARGIN", "Margin, percent of price", ""},
    KeyLegend{fid::Markup, "MARKUP", "Markup, percent of cost", ""},
    KeyLegend{fid::Amortize, "AMORT", "Amortize a range of payments", ""},
    KeyLegend{fid::AmortizeNext, "NEXT", "Amortize the next range of payments", ""},
    KeyLegend{fid::CashFlow, "CFj", "Cash flow: append X to the cash flows", ""},
    KeyLegend{fid::GroupCount, "Nj", "Times the last cash flow repeats", ""},
    KeyLegend{fid::Npv, "NPV", "Net present value", ""},
    KeyLegend{fid::Irr, "IRR/YR", "Internal rate of return per year", ""},

    KeyLegend{fid::Sin, "SIN", "Sine", ""},
    KeyLegend{fid::Cos, "COS", "Cosine", ""},
    KeyLegend{fid::Tan, "TAN", "Tangent", ""},
    KeyLegend{fid::Asin, "ASIN", "Arc sine", ""},
    KeyLegend{fid::Acos, "ACOS", "Arc cosine", ""},
    KeyLegend{fid::Atan, "ATAN", "Arc tangent", ""},
    KeyLegend{fid::Pi, "π", "Pi", ""},
    KeyLegend{fid::Hyperbolic, "HYP", "Hyperbolic prefix for the next function", ""},
    KeyLegend{fid::Ln, "LN", "Natural logarithm", ""},
    KeyLegend{fid::Log10, "LOG", "Common logarithm", ""},
    KeyLegend{fid::Exp, "eˣ", "Natural exponential", ""},
    KeyLegend{fid::PowerOf10, "10ˣ", "Power of ten", ""},
    KeyLegend{fid::Degrees, "DEG", "Angles in degrees", ""},
    KeyLegend{fid::Radians, "RAD", "Angles in radians", ""},
    KeyLegend{fid::Grads, "GRAD", "Angles in grads", ""},
    KeyLegend{fid::RadToDeg, "R▸D", "Radians to degrees", ""},
    KeyLegend{fid::DegToRad, "D▸R", "Degrees to radians", ""},
    KeyLegend{fid::PolarToRect, "P▸R", "Polar to rectangular", ""},
    KeyLegend{fid::RectToPolar, "R▸P", "Rectangular to polar", ""},
    KeyLegend{fid::ToHms, "▸HMS", "Hours to hours.minutes-seconds (h.mmss)", ""},
    KeyLegend{fid::ToHours, "▸H", "Hours.minutes-seconds (h.mmss) to hours", ""},

    // Statistics.
    KeyLegend{fid::SigmaPlus, "Σ+", "Add the point (X, Y) to the sums", ""},
    KeyLegend{fid::SigmaMinus, "Σ−", "Remove the point (X, Y) from the sums", ""},
    KeyLegend{fid::RecallSumX, "Σx", "Sum of x", ""},
    KeyLegend{fid::RecallSumX2, "Σx²", "Sum of x squared", ""},
    KeyLegend{fid::RecallSumY, "Σy", "Sum of y", ""},
    KeyLegend{fid::RecallSumY2, "Σy²", "Sum of y squared", ""},
    KeyLegend{fid::RecallSumXY, "Σxy", "Sum of the products xy", ""},
    KeyLegend{fid::RecallN, "n", "Number of points", ""},
    KeyLegend{fid::MeanX, "x̄", "Mean of x", ""},
    KeyLegend{fid::WeightedMean, "x̄w", "Mean of x weighted by y", ""},
    KeyLegend{fid::MeanY, "ȳ", "Mean of y", ""},
    KeyLegend{fid::EstimateX, "x̂", "Estimated x for the y in X; r in Y", ""},
    KeyLegend{fid::EstimateY, "ŷ", "Estimated y for the x in X; slope in Y", ""},
    KeyLegend{fid::Random, "RAND", "Random number", ""},
    KeyLegend{fid::Factorial, "n!", "Factorial", ""},
    KeyLegend{fid::LogGamma, "LNΓ", "Logarithm of the gamma function", ""},
    KeyLegend{fid::SampleDeviation, "s", "Sample standard deviation", ""},
    KeyLegend{fid::PopulationDeviation, "σ", "Population standard deviation", ""},
    KeyLegend{fid::Combinations, "nCr", "Combinations of X items from Y", ""},
    KeyLegend{fid::Permutations, "nPr", "Permutations of X items from Y", ""},

    // Programmer.
    KeyLegend{fid::BaseBinary, "BIN", "Binary entry and display", ""},
    KeyLegend{fid::BaseOctal, "OCT", "Octal entry and display", ""},
    KeyLegend{fid::BaseDecimal, "DEC", "Decimal integer entry and display", ""},
    KeyLegend{fid::BaseHex, "HEX", "Hexadecimal entry and display", ""},
    KeyLegend{fid::And, "AND", "Bitwise AND", ""},
    KeyLegend{fid::Or, "OR", "Bitwise OR", ""},
    KeyLegend{fid::Xor, "XOR", "Bitwise exclusive OR", ""},
    KeyLegend{fid::Not, "NOT", "Bitwise NOT", ""},
    KeyLegend{fid::ShiftLeft, "SL", "Shift Y left by X bits", ""},
    KeyLegend{fid::ShiftRight, "SR", "Shift Y right by X bits (logical)", ""},
    KeyLegend{fid::ArithmeticShiftRight, "ASR", "Arithmetic shift right, keeping the sign", ""},
    KeyLegend{fid::RotateRight, "RR", "Rotate Y right by X bits", ""},

    // Units, part one.
    KeyLegend{fid::Inches, "in", "Inches", ""},
    KeyLegend{fid::Feet, "ft", "Feet", ""},
    KeyLegend{fid::Miles, "mi", "Miles", ""},
    KeyLegend{fid::Meters, "m", "Meters", ""},
    KeyLegend{fid::SquareInches, "in²", "Square inches", ""},
    KeyLegend{fid::SquareFeet, "ft²", "Square feet", ""},
    KeyLegend{fid::SquareMiles, "mi²", "Square miles", ""},
    KeyLegend{fid::SquareMeters, "m²", "Square meters", ""},
    KeyLegend{fid::Pounds, "lb", "Pounds", ""},
    KeyLegend{fid::Ounces, "oz", "Ounces", ""},
    KeyLegend{fid::Kilograms, "kg", "Kilograms", ""},
    KeyLegend{fid::Grams, "g", "Grams", ""},
    KeyLegend{fid::InchesPerSecond, "in/s", "Inches per second", ""},
    KeyLegend{fid::FeetPerSecond, "ft/s", "Feet per second", ""},
    KeyLegend{fid::MetersPerSecond, "m/s", "Meters per second", ""},
    KeyLegend{fid::MilesPerHour, "mph", "Miles per hour", ""},
    KeyLegend{fid::KilometersPerHour, "km/h", "Kilometers per hour", ""},
    KeyLegend{fid::CentimetersPerSecond, "cm/s", "Centimeters per second", ""},
    KeyLegend{fid::Gallons, "gal", "US gallons", ""},
    KeyLegend{fid::Milliliters, "ml", "Milliliters", ""},
    KeyLegend{fid::Liters, "l", "Liters", ""},
    KeyLegend{fid::FluidOunces, "fl oz", "US fluid ounces", ""},
    KeyLegend{fid::DegC, "°C", "Degrees Celsius", ""},
    KeyLegend{fid::DegF, "°F", "Degrees Fahrenheit", ""},

    KeyLegend{fid::XRoot, "ˣ√y", "X-th root of Y", ""},
    KeyLegend{fid::FormatU8, "u8", "8-bit unsigned integer", ""},
    KeyLegend{fid::FormatS8, "s8", "8-bit signed integer", ""},
    KeyLegend{fid::FormatU16, "u16", "16-bit unsigned integer", ""},
    KeyLegend{fid::FormatS16, "s16", "16-bit signed integer", ""},
    KeyLegend{fid::FormatU32, "u32", "32-bit unsigned integer", ""},
    KeyLegend{fid::FormatS32, "s32", "32-bit signed integer", ""},
    KeyLegend{fid::FormatStandard, "STD", "Standard number format", ""},
    KeyLegend{fid::FormatScientific, "SCI", "Scientific format: digits follow", ""},
    KeyLegend{fid::FormatEngineering, "ENG", "Engineering format: digits follow", ""},
    KeyLegend{fid::Floor, "FLOOR", "Largest whole number not above X", ""},
    KeyLegend{fid::Ceiling, "CEIL", "Smallest whole number not below X", ""},
    KeyLegend{fid::IntegerNegate, "+/−", "Change sign of an integer", ""},
    KeyLegend{fid::ToDefaultFormat, "INT", "X as an integer of the default format", ""},
    KeyLegend{fid::IntegerAdd, "+", "Integer add", ""},
    KeyLegend{fid::IntegerSubtract, "−", "Integer subtract", ""},
    KeyLegend{fid::IntegerMultiply, "×", "Integer multiply", ""},
    KeyLegend{fid::IntegerDivide, "÷", "Integer divide", ""},
    KeyLegend{fid::FormatFixed, "FIX", "Fixed format: digits follow", ""},

    // Date and time.
    KeyLegend{fid::ClearDate, "CLDATE", "Clear the date registers and duration settings", ""},
    KeyLegend{fid::Now, "NOW", "The current date and time", ""},
    KeyLegend{fid::Date, "DATE", "Date: X typed as Y.MMDD becomes a date", ""},
    KeyLegend{fid::Time, "TIME", "Time: X typed as H.MMSS becomes a clock time", ""},
    KeyLegend{fid::Years, "years", "Years", ""},
    KeyLegend{fid::Months, "months", "Months", ""},
    KeyLegend{fid::Weeks, "weeks", "Weeks", ""},
    KeyLegend{fid::Days, "days", "Days", ""},
    KeyLegend{fid::Hours, "hours", "Hours", ""},
    KeyLegend{fid::Minutes, "min", "Minutes", ""},
    KeyLegend{fid::Seconds, "sec", "Seconds", ""},
    KeyLegend{fid::Frames, "frames", "Frames", ""},
    KeyLegend{fid::HmsToFrames, "HMS▸F", "Hours.minutes-seconds (h.mmss) to frames", ""},
    KeyLegend{fid::DaysPerYear, "DPY", "Days per year", ""},
    KeyLegend{fid::DaysPerMonth, "DPM", "Days per month", ""},
    KeyLegend{fid::DaysPerWeek, "DPW", "Days per week", ""},
    KeyLegend{fid::HoursPerDay, "HPD", "Hours per day", ""},
    KeyLegend{fid::FramesPerSecond, "FPS", "Frames per second", ""},
    KeyLegend{fid::DatePart, "▸DATE", "Date part of a date and time", ""},
    KeyLegend{fid::TimePart, "▸TIME", "Time part of a date and time", ""},
    KeyLegend{fid::FractionToNextUnit, "FRAC▸", "Fraction of a duration in the next smaller unit", ""},

    // Stack and modes.
    KeyLegend{fid::SecondEnter, "ENTER", "Enter (second key)", ""},
    KeyLegend{fid::Rotate3, "ROT3", "Rotate the three lowest levels", ""},
    KeyLegend{fid::Over, "OVER", "Over: a copy of Y onto the stack", ""},
    KeyLegend{fid::MethodSimple, "SIMPLE", "Simple input: in the order entered", ""},
    KeyLegend{fid::MethodPrecedence, "PREC", "Precedence input: × and ÷ before + and −", ""},
    KeyLegend{fid::MethodRpn, "RPN", "RPN input: operands first", ""},
    KeyLegend{fid::MacroRecord, "REC", "Record a macro", ""},
    KeyLegend{fid::MacroPlay, "PLAY", "Play the macro", ""},
    KeyLegend{fid::MacroPause, "PAUSE", "Pause the macro for input", ""},
    KeyLegend{fid::MacroStop, "STOP", "Stop recording", ""},

    // Units, part two.
    KeyLegend{fid::Centimeters, "cm", "Centimeters", ""},
    KeyLegend{fid::Millimeters, "mm", "Millimeters", ""},
    KeyLegend{fid::Yards, "yd", "Yards", ""},
    KeyLegend{fid::Kilometers, "km", "Kilometers", ""},
    KeyLegend{fid::NauticalMiles, "nmi", "Nautical miles", ""},
    KeyLegend{fid::SquareMillimeters, "mm²", "Square millimeters", ""},
    KeyLegend{fid::SquareCentimeters, "cm²", "Square centimeters", ""},
    KeyLegend{fid::SquareKilometers, "km²", "Square kilometers", ""},
    KeyLegend{fid::SquareYards, "yd²", "Square yards", ""},
    KeyLegend{fid::Acres, "acre", "Acres", ""},
    KeyLegend{fid::Tons, "ton", "Short tons (2,000 pounds)", ""},
    KeyLegend{fid::Milligrams, "mg", "Milligrams", ""},
    KeyLegend{fid::Knots, "knot", "Knots", ""},
    KeyLegend{fid::CubicMeters, "m³", "Cubic meters", ""},
    KeyLegend{fid::CubicCentimeters, "cm³", "Cubic centimeters", ""},
    KeyLegend{fid::CubicYards, "yd³", "Cubic yards", ""},
    KeyLegend{fid::CubicFeet, "ft³", "Cubic feet", ""},
    KeyLegend{fid::CubicInches, "in³", "Cubic inches", ""},
    KeyLegend{fid::Quarts, "qt", "US quarts", ""},
    KeyLegend{fid::Pints, "pt", "US pints", ""},
    KeyLegend{fid::Cups, "cup", "US cups", ""},
    KeyLegend{fid::Tablespoons, "tbsp", "Tablespoons", ""},
    KeyLegend{fid::Teaspoons, "tsp", "Teaspoons", ""},
    KeyLegend{fid::GallonsUk, "gal UK", "Imperial gallons", ""},
    KeyLegend{fid::FluidOuncesUk, "oz UK", "Imperial fluid ounces", ""},

    KeyLegend{fid::SecondAmortize, "AMORT", "Amortize a range of payments (second key)", ""},
    KeyLegend{fid::RecallVariant, "RCL", "Recall a register", ""},
    KeyLegend{fid::RecallLarge, "RCL", "Recall one of 100 registers", ""},
    KeyLegend{fid::ExchangeVariant, "x≷R", "Exchange X with a register", ""},
    KeyLegend{fid::ExchangeLarge, "x≷R", "Exchange X with one of 100 registers", ""},
    KeyLegend{fid::StoreVariant, "STO", "Store X in a register", ""},
    KeyLegend{fid::StoreLarge, "STO", "Store X in one of 100 registers", ""},
    KeyLegend{fid::FirstShift, "SHIFT1", "First shift", ""},
    KeyLegend{fid::SecondShift, "SHIFT2", "Second shift", ""},
};

static_assert(AscendingUnique(kLegends), "legends out of order or duplicated");
static_assert(kLegends.size() == kKeyTable.size(), "a key without a legend, or a legend without a key");

consteval bool SameIdsAsKeyTable() {
    for (std::size_t i = 0; i < kLegends.size(); ++i) {
        if (kLegends[i].id != kKeyTable[i].id) return false;
    }
    return true;
}
static_assert(SameIdsAsKeyTable(), "the legends name other keys than the key table");

// Characters as a reader counts them: combining marks (the bar of x̄, the hat of ŷ) add none.
consteval int VisibleLength(std::string_view utf8) {
    int count = 0;
    for (std::size_t i = 0; i < utf8.size();) {
        const unsigned char lead = static_cast<unsigned char>(utf8[i]);
        const int bytes = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t cp = bytes == 1 ? lead : lead & (0x3F >> (bytes - 1));
        for (int k = 1; k < bytes; ++k) cp = (cp << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        if (cp < 0x0300 || cp > 0x036F) ++count;
        i += bytes;
    }
    return count;
}

consteval bool EveryFaceFitsAKey() {
    for (const KeyLegend& l : kLegends) {
        const int length = VisibleLength(l.legend);
        if (length < 1 || length > 6 || l.fullName.empty()) return false;
    }
    return true;
}
static_assert(EveryFaceFitsAKey(), "a face of no or more than six characters, or a key without its full name");

}  // namespace

std::span<const KeyLegend> AllLegends() { return kLegends; }

const KeyLegend* FindLegend(FunctionId id) {
    const auto it = std::lower_bound(kLegends.begin(), kLegends.end(), id,
                                     [](const KeyLegend& row, FunctionId key) { return row.id < key; });
    return it != kLegends.end() && it->id == id ? &*it : nullptr;
}

}  // namespace brinto
