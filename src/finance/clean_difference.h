#pragma once
// The clean difference of the financial and statistical formulas: a - b rounded to 14
// significant digits, so that 0.3 - 0.1 is 0.2 and not 0.19999999999999998.
//
// Rounding the difference on its own digits cannot make a rounding residue vanish: three points
// of 0.7 leave sum y2 - (sum y / n) sum y = 4.4e-16, which RoundTo14 keeps. The operands only
// carry 14 digits that mean anything, so a difference below half a unit of the larger operand's
// 14th digit is nothing but that residue, and is zero; this is what makes equal values give a
// deviation of exactly zero.
namespace brinto {

double CleanDifference(double a, double b);

}  // namespace brinto
