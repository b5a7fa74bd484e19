#pragma once
// Two-variable statistics: six running sums of the points (x in X, y in Y) in registers
// 110..115, and what follows from them: means, a weighted mean, sample and population
// deviations, and the least-squares line y = m x + b with its correlation r.
#include "engine/engine.h"

namespace brinto {

struct StatisticsSums {
    double sumX = 0.0, sumX2 = 0.0, sumY = 0.0, sumY2 = 0.0, sumXY = 0.0, count = 0.0;
};

// The sums of squares and products about the means, each difference cleaned to 14 digits so
// that equal values give exactly zero.
struct CentredSums {
    double xx = 0.0, yy = 0.0, xy = 0.0;
};

StatisticsSums SumsFromRegisters(const Engine& e);
CentredSums Centre(const StatisticsSums& s);

}  // namespace brinto
