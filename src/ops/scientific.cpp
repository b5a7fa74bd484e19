// The scientific family: the one-operand functions of X (trigonometry with its hyperbolic prefix,
// logarithms, powers, roots, rounding, factorial, log-gamma), pi and random numbers, the angle
// and coordinate conversions, and percent.
#include <math.h>  // lgamma_r, which reports the sign of the gamma function

#include <algorithm>
#include <array>
#include <cmath>

#include "display/number_format.h"
#include "engine/numeric/decimal_digits.h"
#include "ops/key_handlers.h"
#include "ops/two_operand.h"
#include "ops/units.h"

namespace brinto {

namespace {

constexpr double kPi = 3.141592653589793;  // acos(-1.0), the double nearest pi

enum class SavesLastX { No, Yes };
enum class ResultTag { Untagged, Kept };  // Kept: X's tag survives when it is a unit or a kind

struct UnaryRow {
    FunctionId id;
    double (*f)(double);
    SavesLastX savesLastX;
    ResultTag tag;
};

// The functions that need nothing but X.
constexpr std::array kUnary = {
    UnaryRow{fid::IntegerPart, [](double x) { return std::trunc(x); }, SavesLastX::Yes, ResultTag::Kept},
    UnaryRow{fid::Abs, [](double x) { return std::fabs(x); }, SavesLastX::No, ResultTag::Kept},
    UnaryRow{fid::CubeRoot, [](double x) { return std::cbrt(x); }, SavesLastX::Yes, ResultTag::Untagged},
    UnaryRow{fid::Cube, [](double x) { return x * x * x; }, SavesLastX::Yes, ResultTag::Untagged},
    UnaryRow{fid::Reciprocal, [](double x) { return 1.0 / x; }, SavesLastX::Yes, ResultTag::Untagged},
    UnaryRow{fid::FractionalPart, [](double x) { return RoundTo14(x - std::trunc(x)); }, SavesLastX::Yes,
             ResultTag::Kept},
    UnaryRow{fid::Ln, [](double x) { return std::log(x); }, SavesLastX::Yes, ResultTag::Untagged},
    UnaryRow{fid::Log10, [](double x) { return std::log10(x); }, SavesLastX::Yes, ResultTag::Untagged},
    UnaryRow{fid::Exp, [](double x) { return std::exp(x); }, SavesLastX::Yes, ResultTag::Untagged},
    UnaryRow{fid::PowerOf10, [](double x) { return std::pow(10.0, x); }, SavesLastX::Yes, ResultTag::Untagged},
    UnaryRow{fid::RadToDeg, [](double x) { return 180.0 / kPi * x; }, SavesLastX::Yes, ResultTag::Untagged},
    UnaryRow{fid::DegToRad, [](double x) { return kPi * x * 0.005555555555555556; }, SavesLastX::Yes,
             ResultTag::Untagged},
    UnaryRow{fid::Factorial, [](double x) { return Factorial(x); }, SavesLastX::Yes, ResultTag::Untagged},
    UnaryRow{fid::LogGamma,
             [](double x) {
                 int sign = 1;
                 const double magnitude = lgamma_r(x, &sign);
                 return sign < 0 ? -magnitude : magnitude;  // ln|gamma(x)| carrying gamma's sign
             },
             SavesLastX::Yes, ResultTag::Untagged},
    UnaryRow{fid::Floor, [](double x) { return std::floor(x); }, SavesLastX::No, ResultTag::Kept},
    UnaryRow{fid::Ceiling, [](double x) { return std::ceil(x); }, SavesLastX::No, ResultTag::Kept},
};

// Of these functions only |x|, floor and ceiling leave Last X alone.
static_assert(std::ranges::all_of(kUnary, [](const UnaryRow& row) {
    return (row.savesLastX == SavesLastX::No) == (row.id == fid::Abs || row.id == fid::Floor || row.id == fid::Ceiling);
}));

void StoreResult(Engine& e, double result, ValueTag tag) {
    e.SetX(result);
    e.SetXTag(tag);
}

ValueTag KeptTag(ValueTag t) { return HasCategory(t) ? t : ValueTag::None; }

bool ApplyUnary(Engine& e, FunctionId id) {
    for (const UnaryRow& row : kUnary) {
        if (row.id != id) continue;
        const ValueTag tag = row.tag == ResultTag::Kept ? KeptTag(e.XTag()) : ValueTag::None;
        if (row.savesLastX == SavesLastX::Yes) e.SaveLastX();
        StoreResult(e, row.f(e.X()), tag);
        return true;
    }
    return false;
}

double ToRadians(double x, AngleUnit unit) {
    switch (unit) {
        case AngleUnit::Degrees: return x * kPi * 0.005555555555555556;
        case AngleUnit::Grads: return x * kPi * 0.005;
        case AngleUnit::Radians: return x;
    }
    return x;  // the unused fourth code of the angle field counts as radians
}

double FromRadians(double r, AngleUnit unit) {
    switch (unit) {
        case AngleUnit::Degrees: return r / kPi * 180.0;
        case AngleUnit::Grads: return r / kPi * 200.0;
        case AngleUnit::Radians: return r;
    }
    return r;
}

// A right angle in the unit, for the exact-zero tests; 0 in radians, where none are made.
double QuarterTurn(AngleUnit unit) {
    return unit == AngleUnit::Degrees ? 90.0 : unit == AngleUnit::Grads ? 100.0 : 0.0;
}

// In degrees and grads, sin of a multiple of a half turn and cos of an odd multiple of a quarter
// turn are exactly 0 (the library's sin(pi) is 1.2e-16, which would show).
bool SineIsZero(double x, AngleUnit unit) {
    const double q = QuarterTurn(unit);
    if (q == 0) return false;
    const double r = std::fmod(x, 4 * q);
    return r == 0 || r == 2 * q || r == -2 * q;
}

bool CosineIsZero(double x, AngleUnit unit) {
    const double q = QuarterTurn(unit);
    if (q == 0) return false;
    const double r = std::fmod(x, 4 * q);
    return r == q || r == 3 * q || r == -q || r == -3 * q;
}

double Trigonometric(FunctionId id, double x, AngleUnit unit) {
    switch (id) {
        case fid::Sin: return SineIsZero(x, unit) ? 0.0 : std::sin(ToRadians(x, unit));
        case fid::Cos: return CosineIsZero(x, unit) ? 0.0 : std::cos(ToRadians(x, unit));
        default:
            if (CosineIsZero(x, unit)) return kErrorValue;
            return SineIsZero(x, unit) ? 0.0 : std::tan(ToRadians(x, unit));
    }
}

double InverseTrigonometric(FunctionId id, double x, AngleUnit unit) {
    if (id == fid::Acos && x == 0) {
        return unit == AngleUnit::Degrees ? 90.0 : unit == AngleUnit::Grads ? 100.0 : kPi * 0.5;
    }
    const double r = id == fid::Asin ? std::asin(x) : id == fid::Acos ? std::acos(x) : std::atan(x);
    return FromRadians(r, unit);
}

double Hyperbolic(FunctionId id, double x) {
    switch (id) {
        case fid::Sin: return std::sinh(x);
        case fid::Cos: return std::cosh(x);
        case fid::Tan: return std::tanh(x);
        case fid::Asin: return std::asinh(x);
        case fid::Acos: return std::acosh(x);
        default: return std::atanh(x);
    }
}

void TrigonometricKey(Engine& e, FunctionId id) {
    e.SaveLastX();
    const double x = e.X();
    double result;
    if (e.state.status & status::Hyperbolic) {
        result = Hyperbolic(id, x);
    } else if (id <= fid::Tan) {
        result = Trigonometric(id, x, e.Angle());
    } else {
        result = InverseTrigonometric(id, x, e.Angle());
    }
    e.SetX(result);
}

// The conversions consume Y and X like a two-operand key without dropping the stack, so an Enter
// marker left for them by the algebraic methods is used up.
void PopEnterMarker(Engine& e) {
    if (e.PendingTop() == fid::Enter) e.PopPending();
}

void PolarToRectangular(Engine& e) {
    e.SaveLastX();
    const double r = e.X();
    const double theta = ToRadians(e.Y(), e.Angle());
    e.SetX(r * std::cos(theta));
    e.SetY(r * std::sin(theta));
    PopEnterMarker(e);
}

// The angle is the plain arctangent of y / x, without quadrant correction: x = -1, y = 1 gives
// -45 degrees. Kept as the calculator has always done it.
void RectangularToPolar(Engine& e) {
    e.SaveLastX();
    const double x = e.X(), y = e.Y();
    e.SetX(std::sqrt(y * y + x * x));
    e.SetY(FromRadians(std::atan(y / x), e.Angle()));
    PopEnterMarker(e);
}

// 200 + 10 % is 20 (a percentage of the running total); 200 x 10 % is 0.1.
void PercentKey(Engine& e) {
    e.SaveLastX();
    const FunctionId top = e.PendingTop();
    const bool ofTotal = e.IsRpn() || top == fid::Add || top == fid::Subtract || top == fid::IntegerAdd ||
                         top == fid::IntegerSubtract;
    e.SetX(ofTotal ? e.X() * 0.01 * e.Y() : e.X() * 0.01);
}

// X becomes what the display shows at the preferred number of places.
void RoundToDisplayKey(Engine& e) {
    e.SaveLastX();
    const ValueTag tag = KeptTag(e.XTag());
    double result = e.X();
    FormattedText text;
    if (FormatDecimal(result, e.prefs.Format(), e.prefs.DigitField(), text) == 0) {
        if (const auto parsed = ParseDecimal(text.View())) result = *parsed;
    }
    ClearBits(e.state.status, status::FullDisplay);
    StoreResult(e, result, tag);
}

// The generator of the handheld's C library, so that a seed gives the same numbers everywhere:
// a 15-bit value, which also becomes the next seed.
void RandomKey(Engine& e) {
    e.RecallLift();
    const u32 state = e.state.randomSeed * 214013u + 2531011u;
    const u32 value = (state >> 16) & 0x7FFF;
    e.state.randomSeed = value;
    e.SetX(value * (1.0 / 32767.0));
}

// sqrt of sq feet is feet and the square of feet is sq feet; other tags give a plain number.
void SquareRootKey(Engine& e) {
    e.SaveLastX();
    const ValueTag tag = TagCategory(e.XTag()) == Category::Area ? ToLength(e.XTag()) : ValueTag::None;
    StoreResult(e, std::sqrt(e.X()), tag);
}

void SquareKey(Engine& e) {
    e.SaveLastX();
    const ValueTag tag = TagCategory(e.XTag()) == Category::Length ? LengthToArea(e.XTag()) : ValueTag::None;
    StoreResult(e, e.X() * e.X(), tag);
}

}  // namespace

bool HandleScientificKey(Engine& e, FunctionId id) {
    if (ApplyUnary(e, id)) return true;
    switch (id) {
        case fid::Percent: PercentKey(e); return true;
        case fid::RoundToDisplay: RoundToDisplayKey(e); return true;
        case fid::SquareRoot: SquareRootKey(e); return true;
        case fid::Square: SquareKey(e); return true;
        case fid::Sin: case fid::Cos: case fid::Tan:
        case fid::Asin: case fid::Acos: case fid::Atan:
            TrigonometricKey(e, id);
            return true;
        case fid::Pi:
            e.RecallLift();
            e.SetX(kPi);
            return true;
        case fid::PolarToRect: PolarToRectangular(e); return true;
        case fid::RectToPolar: RectangularToPolar(e); return true;
        case fid::Random: RandomKey(e); return true;
        default: return false;
    }
}

}  // namespace brinto
