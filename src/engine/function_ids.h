#pragma once
// Every key by name. The numbers are part of the saved state, the macro record and the user key
// map, so they never change.
#include "engine/types.h"
#include "engine/value_tags.h"

namespace brinto {

enum class FunctionId : u32 {
    // Digits and entry.
    Digit0 = 0,
    Digit1 = 1,
    Digit2 = 2,
    Digit3 = 3,
    Digit4 = 4,
    Digit5 = 5,
    Digit6 = 6,
    Digit7 = 7,
    Digit8 = 8,
    Digit9 = 9,
    HexA = 10,
    HexB = 11,
    HexC = 12,
    HexD = 13,
    HexE = 14,
    HexF = 15,
    Point = 16,
    SecondPoint = 17,           // a second point key, acting as Point
    Exponent = 18,
    ChangeSign = 19,
    Backspace = 20,
    Enter = 21,                 // also the Enter marker on the pending stack

    // Arithmetic, shift and clears.
    Add = 22,
    Subtract = 23,
    Multiply = 24,
    Divide = 25,
    Equals = 26,
    Shift = 27,
    DisplayToggle = 28,
    ClearAll = 29,
    ClearStack = 30,
    ClearX = 31,
    SecondClearAll = 32,        // second keys of the three clears, acting as them
    SecondClearStack = 33,
    SecondClearX = 34,
    ClearRegisters = 35,
    ClearFinancial = 36,
    ClearStatistics = 37,

    // Stack and registers.
    RollDown = 38,
    RollUp = 39,
    Drop = 40,
    Fill = 41,
    Swap = 42,
    Store = 43,
    LastX = 44,
    Recall = 45,
    Exchange = 46,
    OpenParen = 47,             // also the "(" marker on the pending stack
    CloseParen = 48,

    // Keys with no function of their own; the programmer keyboard still remaps them.
    Spare50 = 50,
    Spare51 = 51,

    // Scientific and two-operand functions.
    PercentTotal = 54,
    PercentChange = 55,
    Percent = 56,
    RoundToDisplay = 57,
    IntegerPart = 58,
    Abs = 59,
    SquareRoot = 60,
    Square = 61,
    CubeRoot = 62,
    Cube = 63,
    Power = 64,
    Reciprocal = 65,
    FractionalPart = 66,
    Modulo = 67,

    // Financial.
    BeginEnd = 68,
    N = 69,
    IYr = 70,
    PV = 71,
    PMT = 72,
    FV = 73,
    PYr = 74,
    Nom = 75,
    Eff = 76,
    TimesPYr = 77,
    DividePYr = 78,
    Cost = 79,
    Price = 80,
    Margin = 81,
    Markup = 82,
    Amortize = 83,
    AmortizeNext = 84,
    CashFlow = 85,              // with a register prefix: the next register
    GroupCount = 86,
    Npv = 87,
    Irr = 88,

    // Scientific.
    Sin = 89,
    Cos = 90,
    Tan = 91,
    Asin = 92,
    Acos = 93,
    Atan = 94,
    Pi = 95,
    Hyperbolic = 96,
    Ln = 97,
    Log10 = 98,
    Exp = 99,
    PowerOf10 = 100,
    Degrees = 101,
    Radians = 102,
    Grads = 103,
    RadToDeg = 104,
    DegToRad = 105,
    PolarToRect = 106,
    RectToPolar = 107,
    ToHms = 108,
    ToHours = 109,

    // Statistics.
    SigmaPlus = 110,
    SigmaMinus = 111,
    RecallSumX = 112,
    RecallSumX2 = 113,
    RecallSumY = 114,
    RecallSumY2 = 115,
    RecallSumXY = 116,
    RecallN = 117,
    MeanX = 118,
    WeightedMean = 119,
    MeanY = 120,
    EstimateX = 121,
    EstimateY = 122,
    Random = 123,
    Factorial = 124,
    LogGamma = 125,
    SampleDeviation = 126,
    PopulationDeviation = 127,
    Combinations = 128,
    Permutations = 129,

    // Programmer.
    BaseBinary = 130,
    BaseOctal = 131,
    BaseDecimal = 132,
    BaseHex = 133,
    And = 134,
    Or = 135,
    Xor = 136,
    Not = 137,
    ShiftLeft = 138,
    ShiftRight = 139,
    ArithmeticShiftRight = 140,
    RotateRight = 141,

    // Units of the Conversion keyboards, temperatures and the integer formats.
    Inches = 142,
    Feet = 143,
    Miles = 144,
    Meters = 145,
    SquareInches = 146,
    SquareFeet = 147,
    SquareMiles = 148,
    SquareMeters = 149,
    Pounds = 150,
    Ounces = 151,
    Kilograms = 152,
    Grams = 153,
    InchesPerSecond = 154,
    FeetPerSecond = 155,
    MetersPerSecond = 156,
    MilesPerHour = 157,
    KilometersPerHour = 158,
    CentimetersPerSecond = 159,
    Gallons = 160,
    Milliliters = 161,
    Liters = 162,
    FluidOunces = 163,
    DegC = 164,
    DegF = 165,
    XRoot = 166,
    FormatU8 = 167,
    FormatS8 = 168,
    FormatU16 = 169,
    FormatS16 = 170,
    FormatU32 = 171,
    FormatS32 = 172,

    // Display formats and integer arithmetic.
    FormatStandard = 173,
    FormatScientific = 174,
    FormatEngineering = 175,
    Floor = 176,
    Ceiling = 177,
    IntegerNegate = 178,
    ToDefaultFormat = 179,
    IntegerAdd = 180,
    IntegerSubtract = 181,
    IntegerMultiply = 182,
    IntegerDivide = 183,
    FormatFixed = 184,

    // Date and time.
    ClearDate = 185,
    Now = 186,
    Date = 187,
    Time = 188,
    Years = 189,
    Months = 190,
    Weeks = 191,
    Days = 192,
    Hours = 193,
    Minutes = 194,
    Seconds = 195,
    Frames = 196,
    HmsToFrames = 197,
    DaysPerYear = 198,
    DaysPerMonth = 199,
    DaysPerWeek = 200,
    HoursPerDay = 201,
    FramesPerSecond = 202,
    DatePart = 203,
    TimePart = 204,
    FractionToNextUnit = 205,

    // Stack, input methods and macros.
    SecondEnter = 206,          // read as Enter
    Rotate3 = 207,
    Over = 208,
    MethodSimple = 209,
    MethodPrecedence = 210,
    MethodRpn = 211,
    MacroRecord = 212,
    MacroPlay = 213,
    MacroPause = 214,
    MacroStop = 215,

    // More units of the Conversion keyboards.
    Centimeters = 216,
    Millimeters = 217,
    Yards = 218,
    Kilometers = 219,
    NauticalMiles = 220,
    SquareMillimeters = 221,
    SquareCentimeters = 222,
    SquareKilometers = 223,
    SquareYards = 224,
    Acres = 225,
    Tons = 226,
    Milligrams = 227,
    Knots = 228,
    CubicMeters = 229,
    CubicCentimeters = 230,
    CubicYards = 231,
    CubicFeet = 232,
    CubicInches = 233,
    Quarts = 234,
    Pints = 235,
    Cups = 236,
    Tablespoons = 237,
    Teaspoons = 238,
    GallonsUk = 239,
    FluidOuncesUk = 240,

    // Variants chosen by the keyboard layer, and the shifts.
    SecondAmortize = 241,       // a second AMORT key, acting as Amortize
    IntegerSpare50 = 242,
    IntegerSpare51 = 243,
    RecallVariant = 244,        // recall with one-digit and two-digit register numbers
    RecallLarge = 245,
    ExchangeVariant = 246,      // exchange, likewise
    ExchangeLarge = 247,
    StoreVariant = 248,         // store, likewise
    StoreLarge = 249,
    FirstShift = 250,
    SecondShift = 251,
};

// The one way between a key and its number, for the records, the command line's #N and the
// register prefix's packed word.
constexpr u32 ToNumber(FunctionId id) { return static_cast<u32>(id); }
constexpr FunctionId FunctionIdFrom(u32 number) { return static_cast<FunctionId>(number); }

// "No key": the empty pending slots, an unassigned user key, no operator to repeat.
inline constexpr FunctionId kNoKey = FunctionIdFrom(255);

// The digit keys 0..9 and the hexadecimal digits A..F: the key of a digit value, and the digit
// value of a key (-1 for any other key).
constexpr FunctionId DigitKey(int value) { return FunctionIdFrom(static_cast<u32>(value)); }
constexpr int DigitValue(FunctionId id) {
    return id <= FunctionId::HexF ? static_cast<int>(ToNumber(id)) : -1;
}
constexpr bool IsDecimalDigit(FunctionId id) { return id <= FunctionId::Digit9; }
constexpr bool IsHexLetter(FunctionId id) { return id >= FunctionId::HexA && id <= FunctionId::HexF; }

}  // namespace brinto

// Keys are spelled fid::Enter, fid::Add, ... everywhere.
namespace brinto::fid {
using enum FunctionId;
}  // namespace brinto::fid

namespace brinto {

// The programmer keyboard's variant of a key (change sign, the four operators, rounding and the
// two spare keys); every other key unchanged.
FunctionId IntegerVariant(FunctionId id);

// Whether the register keys address the large register set ("100 Registers").
enum class RegisterSet : u8 { Small, Large };

// The register key as sent with the chosen register set: store, recall and exchange become their
// variant for that set.
FunctionId RegisterVariant(FunctionId id, RegisterSet set);

// The inverse of RegisterVariant; every other key passes through.
FunctionId RegisterBase(FunctionId id);

}  // namespace brinto
