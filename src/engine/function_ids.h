#pragma once
// Every FunctionId by name. The numbers are part of the saved state, the macro record and the
// value tags, so they never change.
#include "engine/types.h"

namespace brinto::fid {

// Digits and entry.
inline constexpr FunctionId Digit0 = 0;        // digits 0..9 are 0..9
inline constexpr FunctionId Digit9 = 9;
inline constexpr FunctionId HexA = 10;         // hexadecimal digits A..F are 10..15
inline constexpr FunctionId HexF = 15;
inline constexpr FunctionId Point = 16;
inline constexpr FunctionId Point2 = 17;
inline constexpr FunctionId Exponent = 18;
inline constexpr FunctionId ChangeSign = 19;
inline constexpr FunctionId Backspace = 20;
inline constexpr FunctionId Enter = 21;        // also the Enter marker on the pending stack
inline constexpr FunctionId Add = 22;
inline constexpr FunctionId Subtract = 23;
inline constexpr FunctionId Multiply = 24;
inline constexpr FunctionId Divide = 25;
inline constexpr FunctionId Equals = 26;
inline constexpr FunctionId Shift = 27;
inline constexpr FunctionId DisplayToggle = 28;
inline constexpr FunctionId ClearAll = 29;
inline constexpr FunctionId ClearStack = 30;
inline constexpr FunctionId ClearX = 31;
inline constexpr FunctionId ClearAll2 = 32;
inline constexpr FunctionId ClearStack2 = 33;
inline constexpr FunctionId ClearX2 = 34;
inline constexpr FunctionId ClearRegisters = 35;
inline constexpr FunctionId ClearFinancial = 36;
inline constexpr FunctionId ClearStatistics = 37;
inline constexpr FunctionId RollDown = 38;
inline constexpr FunctionId RollUp = 39;
inline constexpr FunctionId Drop = 40;
inline constexpr FunctionId Fill = 41;
inline constexpr FunctionId Swap = 42;
inline constexpr FunctionId Store = 43;
inline constexpr FunctionId LastX = 44;
inline constexpr FunctionId Recall = 45;
inline constexpr FunctionId Exchange = 46;
inline constexpr FunctionId OpenParen = 47;    // also the "(" marker on the pending stack
inline constexpr FunctionId CloseParen = 48;

// Scientific and two-operand functions.
inline constexpr FunctionId PercentTotal = 54;
inline constexpr FunctionId PercentChange = 55;
inline constexpr FunctionId Percent = 56;
inline constexpr FunctionId RoundToDisplay = 57;
inline constexpr FunctionId IntegerPart = 58;
inline constexpr FunctionId Abs = 59;
inline constexpr FunctionId SquareRoot = 60;
inline constexpr FunctionId Square = 61;
inline constexpr FunctionId CubeRoot = 62;
inline constexpr FunctionId Cube = 63;
inline constexpr FunctionId Power = 64;
inline constexpr FunctionId Reciprocal = 65;
inline constexpr FunctionId FractionalPart = 66;
inline constexpr FunctionId Modulo = 67;

// Financial.
inline constexpr FunctionId BeginEnd = 68;
inline constexpr FunctionId N = 69;
inline constexpr FunctionId IYr = 70;
inline constexpr FunctionId PV = 71;
inline constexpr FunctionId PMT = 72;
inline constexpr FunctionId FV = 73;
inline constexpr FunctionId PYr = 74;
inline constexpr FunctionId Nom = 75;
inline constexpr FunctionId Eff = 76;
inline constexpr FunctionId TimesPYr = 77;
inline constexpr FunctionId DividePYr = 78;
inline constexpr FunctionId Cost = 79;
inline constexpr FunctionId Price = 80;
inline constexpr FunctionId Margin = 81;
inline constexpr FunctionId Markup = 82;
inline constexpr FunctionId Amortize = 83;
inline constexpr FunctionId AmortizeNext = 84;
inline constexpr FunctionId CashFlow = 85;     // with a register prefix: the next register
inline constexpr FunctionId GroupCount = 86;
inline constexpr FunctionId Npv = 87;
inline constexpr FunctionId Irr = 88;

inline constexpr FunctionId Sin = 89;
inline constexpr FunctionId Cos = 90;
inline constexpr FunctionId Tan = 91;
inline constexpr FunctionId Asin = 92;
inline constexpr FunctionId Acos = 93;
inline constexpr FunctionId Atan = 94;
inline constexpr FunctionId Pi = 95;
inline constexpr FunctionId Hyperbolic = 96;
inline constexpr FunctionId Ln = 97;
inline constexpr FunctionId Log10 = 98;
inline constexpr FunctionId Exp = 99;
inline constexpr FunctionId PowerOf10 = 100;
inline constexpr FunctionId Degrees = 101;
inline constexpr FunctionId Radians = 102;
inline constexpr FunctionId Grads = 103;
inline constexpr FunctionId RadToDeg = 104;
inline constexpr FunctionId DegToRad = 105;
inline constexpr FunctionId PolarToRect = 106;
inline constexpr FunctionId RectToPolar = 107;
inline constexpr FunctionId ToHms = 108;
inline constexpr FunctionId ToHours = 109;

// Statistics.
inline constexpr FunctionId SigmaPlus = 110;
inline constexpr FunctionId SigmaMinus = 111;
inline constexpr FunctionId RecallSumX = 112;
inline constexpr FunctionId RecallSumX2 = 113;
inline constexpr FunctionId RecallSumY = 114;
inline constexpr FunctionId RecallSumY2 = 115;
inline constexpr FunctionId RecallSumXY = 116;
inline constexpr FunctionId RecallN = 117;
inline constexpr FunctionId MeanX = 118;
inline constexpr FunctionId WeightedMean = 119;
inline constexpr FunctionId MeanY = 120;
inline constexpr FunctionId EstimateX = 121;
inline constexpr FunctionId EstimateY = 122;
inline constexpr FunctionId Random = 123;
inline constexpr FunctionId Factorial = 124;
inline constexpr FunctionId LogGamma = 125;
inline constexpr FunctionId SampleDeviation = 126;
inline constexpr FunctionId PopulationDeviation = 127;
inline constexpr FunctionId Combinations = 128;
inline constexpr FunctionId Permutations = 129;

// Programmer.
inline constexpr FunctionId BaseBinary = 130;
inline constexpr FunctionId BaseOctal = 131;
inline constexpr FunctionId BaseDecimal = 132;
inline constexpr FunctionId BaseHex = 133;
inline constexpr FunctionId And = 134;
inline constexpr FunctionId Or = 135;
inline constexpr FunctionId Xor = 136;
inline constexpr FunctionId Not = 137;
inline constexpr FunctionId ShiftLeft = 138;
inline constexpr FunctionId ShiftRight = 139;
inline constexpr FunctionId ArithmeticShiftRight = 140;
inline constexpr FunctionId RotateRight = 141;

// Unit keys: 142..165 and 216..240 (the tables of units name each one).
inline constexpr FunctionId Inches = 142;
inline constexpr FunctionId DegC = 164;
inline constexpr FunctionId DegF = 165;
inline constexpr FunctionId XRoot = 166;
inline constexpr FunctionId FormatU8 = 167;    // 167..172: u8, s8, u16, s16, u32, s32
inline constexpr FunctionId FormatS32 = 172;
inline constexpr FunctionId FormatStandard = 173;
inline constexpr FunctionId FormatScientific = 174;
inline constexpr FunctionId FormatEngineering = 175;
inline constexpr FunctionId Floor = 176;
inline constexpr FunctionId Ceiling = 177;
inline constexpr FunctionId IntegerNegate = 178;
inline constexpr FunctionId ToDefaultFormat = 179;
inline constexpr FunctionId IntegerAdd = 180;
inline constexpr FunctionId IntegerSubtract = 181;
inline constexpr FunctionId IntegerMultiply = 182;
inline constexpr FunctionId IntegerDivide = 183;
inline constexpr FunctionId FormatFixed = 184;

// Date and time.
inline constexpr FunctionId ClearDate = 185;
inline constexpr FunctionId Now = 186;
inline constexpr FunctionId Date = 187;
inline constexpr FunctionId Time = 188;
inline constexpr FunctionId Years = 189;       // 189..196: years .. frames
inline constexpr FunctionId Frames = 196;
inline constexpr FunctionId HmsToFrames = 197;
inline constexpr FunctionId DaysPerYear = 198;  // 198..202: dpy, dpm, dpw, hpd, fps
inline constexpr FunctionId FramesPerSecond = 202;
inline constexpr FunctionId DatePart = 203;
inline constexpr FunctionId TimePart = 204;
inline constexpr FunctionId FractionToNextUnit = 205;

// Stack and modes.
inline constexpr FunctionId Enter2 = 206;
inline constexpr FunctionId Rotate3 = 207;
inline constexpr FunctionId Over = 208;
inline constexpr FunctionId MethodSimple = 209;
inline constexpr FunctionId MethodPrecedence = 210;
inline constexpr FunctionId MethodRpn = 211;
inline constexpr FunctionId MacroRecord = 212;
inline constexpr FunctionId MacroPlay = 213;
inline constexpr FunctionId MacroPause = 214;
inline constexpr FunctionId MacroStop = 215;
inline constexpr FunctionId Amortize2 = 241;
inline constexpr FunctionId RecallVariant = 244;     // 244, 245: recall
inline constexpr FunctionId RecallLarge = 245;
inline constexpr FunctionId ExchangeVariant = 246;   // 246, 247: exchange
inline constexpr FunctionId ExchangeLarge = 247;
inline constexpr FunctionId StoreVariant = 248;      // 248, 249: store
inline constexpr FunctionId StoreLarge = 249;
inline constexpr FunctionId FirstShift = 250;
inline constexpr FunctionId SecondShift = 251;

// Keys named for the keypad, the key legends and the user guide. Brace-initialised so that they
// read the same whether FunctionId is an integer or an enumeration.
inline constexpr FunctionId Digit1{1};
inline constexpr FunctionId Digit2{2};
inline constexpr FunctionId Digit3{3};
inline constexpr FunctionId Digit4{4};
inline constexpr FunctionId Digit5{5};
inline constexpr FunctionId Digit6{6};
inline constexpr FunctionId Digit7{7};
inline constexpr FunctionId Digit8{8};
inline constexpr FunctionId HexB{11};
inline constexpr FunctionId HexC{12};
inline constexpr FunctionId HexD{13};
inline constexpr FunctionId HexE{14};
inline constexpr FunctionId Feet{143};
inline constexpr FunctionId Miles{144};
inline constexpr FunctionId Meters{145};
inline constexpr FunctionId SquareInches{146};
inline constexpr FunctionId SquareFeet{147};
inline constexpr FunctionId SquareMiles{148};
inline constexpr FunctionId SquareMeters{149};
inline constexpr FunctionId Pounds{150};
inline constexpr FunctionId Ounces{151};
inline constexpr FunctionId Kilograms{152};
inline constexpr FunctionId Grams{153};
inline constexpr FunctionId InchesPerSecond{154};
inline constexpr FunctionId FeetPerSecond{155};
inline constexpr FunctionId MetersPerSecond{156};
inline constexpr FunctionId MilesPerHour{157};
inline constexpr FunctionId KilometersPerHour{158};
inline constexpr FunctionId CentimetersPerSecond{159};
inline constexpr FunctionId Gallons{160};
inline constexpr FunctionId Milliliters{161};
inline constexpr FunctionId Liters{162};
inline constexpr FunctionId FluidOunces{163};
inline constexpr FunctionId FormatS8{168};
inline constexpr FunctionId FormatU16{169};
inline constexpr FunctionId FormatS16{170};
inline constexpr FunctionId FormatU32{171};
inline constexpr FunctionId Months{190};
inline constexpr FunctionId Weeks{191};
inline constexpr FunctionId Days{192};
inline constexpr FunctionId Hours{193};
inline constexpr FunctionId Minutes{194};
inline constexpr FunctionId Seconds{195};
inline constexpr FunctionId DaysPerMonth{199};
inline constexpr FunctionId DaysPerWeek{200};
inline constexpr FunctionId HoursPerDay{201};
inline constexpr FunctionId Centimeters{216};
inline constexpr FunctionId Millimeters{217};
inline constexpr FunctionId Yards{218};
inline constexpr FunctionId Kilometers{219};
inline constexpr FunctionId NauticalMiles{220};
inline constexpr FunctionId SquareMillimeters{221};
inline constexpr FunctionId SquareCentimeters{222};
inline constexpr FunctionId SquareKilometers{223};
inline constexpr FunctionId SquareYards{224};
inline constexpr FunctionId Acres{225};
inline constexpr FunctionId Tons{226};
inline constexpr FunctionId Milligrams{227};
inline constexpr FunctionId Knots{228};
inline constexpr FunctionId CubicMeters{229};
inline constexpr FunctionId CubicCentimeters{230};
inline constexpr FunctionId CubicYards{231};
inline constexpr FunctionId CubicFeet{232};
inline constexpr FunctionId CubicInches{233};
inline constexpr FunctionId Quarts{234};
inline constexpr FunctionId Pints{235};
inline constexpr FunctionId Cups{236};
inline constexpr FunctionId Tablespoons{237};
inline constexpr FunctionId Teaspoons{238};
inline constexpr FunctionId GallonsUk{239};
inline constexpr FunctionId FluidOuncesUk{240};

// Tags that are not keys.
inline constexpr ValueTag TagError = 1200;
inline constexpr ValueTag TagHms = 1800;
inline constexpr ValueTag TagDate = 1801;
inline constexpr ValueTag TagTime = 1802;
inline constexpr ValueTag TagDateTime = 1803;
inline constexpr ValueTag TagYears = 1804;
inline constexpr ValueTag TagMonths = 1805;
inline constexpr ValueTag TagDays = 1807;
inline constexpr ValueTag TagHours = 1808;
inline constexpr ValueTag TagFrames = 1811;
inline constexpr ValueTag TagU8 = 1924;  // 1924..1929: u8, s8, u16, s16, u32, s32
inline constexpr ValueTag TagS32 = 1929;
inline constexpr ValueTag TagCalculating = 1500;
inline constexpr ValueTag TagMemory = 1600;
inline constexpr ValueTag TagCashFlow = 1419;
inline constexpr ValueTag TagGroupCount = 1420;
inline constexpr ValueTag TagDpy = 2500;  // 2500..2504: dpy, dpm, dpw, hpd, fps

}  // namespace brinto::fid

namespace brinto {

// The category of a value tag: 0 none, 1 length, 2 area, 3 volume, 4 speed, 5 mass,
// 6 temperature, 7 integer format, 8 time duration, 9 date and clock time.
u32 TagCategory(u32 tag);

// True for the four arithmetic operators and their integer variants.
bool IsArithmeticOperator(FunctionId id);

// The programmer keyboard's variant of a key (19->178, 22..25->180..183, 50->242, 51->243,
// 57->179); every other id unchanged.
FunctionId IntegerVariant(FunctionId id);

// The register key as sent with the chosen register set: 43 -> 248/249, 45 -> 244/245,
// 46 -> 246/247 (the second of each pair with "100 Registers").
FunctionId RegisterVariant(FunctionId id, bool hundredRegisters);

// The inverse of RegisterVariant; every other id passes through.
FunctionId RegisterBase(FunctionId id);

}  // namespace brinto
