#include "ops/two_operand.h"

#include <cmath>

#include "display/number_format.h"
#include "engine/families.h"

namespace brinto {

double Factorial(double x) {
    if (!(x >= 0.0 && x <= 170.0) || RoundTo14(x - std::trunc(x)) != 0.0) return kErrorValue;
    double product = 1.0;
    for (int k = 2; static_cast<double>(k) <= x; ++k) product *= k;
    return product;
}

namespace {

double Combinations(double y, double x) {
    const double top = Factorial(y), bottom = Factorial(x), rest = Factorial(RoundTo14(y - x));
    if (IsErrorValue(top) || IsErrorValue(bottom) || IsErrorValue(rest)) return kErrorValue;
    return top / (bottom * rest);
}

double Permutations(double y, double x) {
    const double top = Factorial(y), rest = Factorial(RoundTo14(y - x));
    if (IsErrorValue(top) || IsErrorValue(rest)) return kErrorValue;
    return top / rest;
}

}  // namespace

bool EvaluateTwoOperand(Engine& e, FunctionId op) {
    const double y = e.Y();
    const double x = e.X();
    double result;
    switch (op) {
        case fid::Add: result = y + x; break;
        case fid::Subtract: result = RoundTo14(y - x); break;  // so that 0.3 - 0.1 is 0.2
        case fid::Multiply: result = y * x; break;
        case fid::Divide: result = y / x; break;
        case fid::PercentTotal: result = x / y * 100.0; break;
        case fid::PercentChange: result = RoundTo14(x - y) / y * 100.0; break;
        case fid::Power: result = std::pow(y, x); break;
        case fid::Modulo: result = std::fmod(y, x); break;
        case fid::Combinations: result = Combinations(y, x); break;
        case fid::Permutations: result = Permutations(y, x); break;
        case fid::XRoot: result = std::pow(y, 1.0 / x); break;
        default: return false;
    }
    e.SaveLastX();
    // Percent of total and percent change keep the total in Y under RPN.
    const bool keepsY = e.IsRpn() && (op == fid::PercentTotal || op == fid::PercentChange);
    if (!keepsY) e.Drop();
    e.SetX(result);
    return true;
}

}  // namespace brinto
