#include "finance/clean_difference.h"

#include <algorithm>
#include <cmath>

#include "engine/numeric/decimal_digits.h"

namespace brinto {

double CleanDifference(double a, double b) {
    const double difference = a - b;
    if (!std::isfinite(difference) || difference == 0.0) return difference;
    const double larger = std::max(std::fabs(a), std::fabs(b));
    // A unit of the 14th significant digit of the larger operand.
    const double unit = std::pow(10.0, std::floor(std::log10(larger)) - 13.0);
    if (std::fabs(difference) < 0.5 * unit) return 0.0;
    return RoundTo14(difference);
}

}  // namespace brinto
