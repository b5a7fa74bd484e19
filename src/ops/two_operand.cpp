#include "ops/two_operand.h"

#include <cmath>
#include <optional>

#include "engine/numeric/decimal_digits.h"
#include "ops/date_time.h"
#include "ops/integer_ops.h"
#include "ops/key_handlers.h"
#include "ops/units.h"

namespace brinto {

double Factorial(double x) {
    if (!(x >= 0.0 && x <= 170.0) || RoundTo14(x - std::trunc(x)) != 0.0) return kErrorValue;
    double product = 1.0;
    for (int k = 2; static_cast<double>(k) <= x; ++k) product *= k;
    return product;
}

namespace {

// The factorial of Y - X for combinations and permutations. With whole Y below X there is no
// way to choose more items than there are: the formula's (Y - X)! of a negative number is the
// error value, infinity, and dividing by it gives 0, which is also the count. Any argument that
// is no factorial argument itself (negative, fractional, over 170) stays an error.
double FactorialOfDifference(double y, double x) {
    const double difference = RoundTo14(y - x);
    return difference < 0.0 ? kErrorValue : Factorial(difference);
}

double Combinations(double y, double x) {
    const double top = Factorial(y), bottom = Factorial(x);
    if (IsErrorValue(top) || IsErrorValue(bottom)) return kErrorValue;
    return top / (bottom * FactorialOfDifference(y, x));
}

double Permutations(double y, double x) {
    const double top = Factorial(y);
    if (IsErrorValue(top) || IsErrorValue(Factorial(x))) return kErrorValue;
    return top / FactorialOfDifference(y, x);
}

bool IsDateKind(const TaggedValue& v) { return TagCategory(v.tag) == Category::Calendar; }

// Add and subtract (plain or integer) of a date, time or date-time follow the date rules;
// multiply and divide have no meaning for them.
TaggedValue DateArithmetic(FunctionId op, TaggedValue y, TaggedValue x) {
    if (op == fid::Add || op == fid::IntegerAdd) return DateSum(y, x);
    if (op == fid::Subtract || op == fid::IntegerSubtract) return DateDifference(y, x);
    return {kErrorValue, ValueTag::None};
}

TaggedValue HmsAsHours(TaggedValue v) { return v.tag == ValueTag::Hms ? TaggedValue{HmsToHours(v.value), ValueTag::Hours} : v; }

// The four basic operations on doubles: the units decide the tag and convert an operand into the
// unit the arithmetic needs; a result in an integer format loses it (a float operation on
// integers gives a plain number).
TaggedValue BasicArithmetic(const Engine& e, FunctionId op, TaggedValue y, TaggedValue x) {
    y = HmsAsHours(y);
    x = HmsAsHours(x);
    ValueTag tag = ArithmeticResultTag(op, y, x, DurationSettingsOf(e));
    if (TagCategory(tag) == Category::IntegerFormat) tag = ValueTag::None;
    switch (op) {
        case fid::Add: return {y.value + x.value, tag};
        case fid::Subtract: return {RoundTo14(y.value - x.value), tag};  // so that 0.3 - 0.1 is 0.2
        case fid::Multiply: return {y.value * x.value, tag};
        default: return {y.value / x.value, tag};
    }
}

std::optional<TaggedValue> Evaluate(const Engine& e, FunctionId op, TaggedValue y, TaggedValue x) {
    const double a = y.value, b = x.value;
    switch (op) {
        case fid::Add: case fid::Subtract: case fid::Multiply: case fid::Divide:
            if (IsDateKind(y) || IsDateKind(x)) return DateArithmetic(op, y, x);
            return BasicArithmetic(e, op, y, x);
        case fid::IntegerAdd: case fid::IntegerSubtract: case fid::IntegerMultiply: case fid::IntegerDivide:
            if (IsDateKind(y) || IsDateKind(x)) return DateArithmetic(op, y, x);
            return IntegerOperation(e.prefs, op, y, x);
        case fid::PercentTotal: return TaggedValue{b / a * 100.0, ValueTag::None};
        case fid::PercentChange: return TaggedValue{RoundTo14(b - a) / a * 100.0, ValueTag::None};
        case fid::Power: return TaggedValue{std::pow(a, b), ValueTag::None};
        case fid::Modulo: return TaggedValue{std::fmod(a, b), ValueTag::None};
        case fid::Combinations: return TaggedValue{Combinations(a, b), ValueTag::None};
        case fid::Permutations: return TaggedValue{Permutations(a, b), ValueTag::None};
        case fid::XRoot: return TaggedValue{std::pow(a, 1.0 / b), ValueTag::None};
        default: return IntegerOperation(e.prefs, op, y, x);  // AND .. rotate, or nothing
    }
}

}  // namespace

bool EvaluateTwoOperand(Engine& e, FunctionId op) {
    const std::optional<TaggedValue> result = Evaluate(e, op, {e.Y(), e.YTag()}, {e.X(), e.XTag()});
    if (!result) return false;
    e.SaveLastX();
    // Percent of total and percent change keep the total in Y under RPN.
    const bool keepsY = e.IsRpn() && (op == fid::PercentTotal || op == fid::PercentChange);
    if (!keepsY) e.Drop();
    e.SetX(result->value);
    e.SetXTag(result->tag);
    return true;
}

}  // namespace brinto
