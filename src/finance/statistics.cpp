#include "finance/statistics.h"

#include <array>
#include <cmath>

#include "engine/register_keys.h"
#include "engine/value_tags.h"
#include "finance/clean_difference.h"
#include "finance/key_handlers.h"

namespace brinto {

namespace {

// Adds (sign +1) or removes (sign -1) the point (X, Y).
void Accumulate(Engine& e, double sign) {
    double* r = e.registers.values;
    const double x = e.X();
    const double y = e.Y();
    r[reg::SumX] += sign * x;
    r[reg::SumX2] += sign * (x * x);
    r[reg::SumY] += sign * y;
    r[reg::SumY2] += sign * (y * y);
    r[reg::SumXY] += sign * (y * x);
    r[reg::StatN] += sign;
    e.dirty.registers = true;
}

// The count replaces the point's x in X; the next number typed replaces the count, so that the
// next point's y (still in Y) stays in place.
void ShowCount(Engine& e) {
    e.SetX(e.registers.values[reg::StatN]);
    e.SetXTag(label::Count);
    e.DisableLift();
}

void AddPoint(Engine& e) {
    e.FinishEntry();
    Accumulate(e, 1.0);
    ShowCount(e);
}

void RemovePoint(Engine& e) {
    e.FinishEntry();
    if (!(e.registers.values[reg::StatN] > 0.0)) {
        e.SetXError();  // nothing to remove
        return;
    }
    Accumulate(e, -1.0);
    ShowCount(e);
}

struct SumRecall {
    FunctionId id;
    int registerNumber;
    ValueTag label;
};
constexpr std::array kSumRecalls = {
    SumRecall{fid::RecallSumX, reg::SumX, label::SumX},    SumRecall{fid::RecallSumX2, reg::SumX2, label::SumX2},
    SumRecall{fid::RecallSumY, reg::SumY, label::SumY},    SumRecall{fid::RecallSumY2, reg::SumY2, label::SumY2},
    SumRecall{fid::RecallSumXY, reg::SumXY, label::SumXY}, SumRecall{fid::RecallN, reg::StatN, label::Count},
};

struct MeanKey {
    FunctionId id;
    double (*compute)(const StatisticsSums&);
    ValueTag label;
};
constexpr std::array kMeans = {
    MeanKey{fid::MeanX, [](const StatisticsSums& s) { return s.sumX / s.count; }, label::MeanX},
    MeanKey{fid::WeightedMean, [](const StatisticsSums& s) { return s.sumXY / s.sumY; }, label::WeightedMean},
    MeanKey{fid::MeanY, [](const StatisticsSums& s) { return s.sumY / s.count; }, label::MeanY},
};

void ShowMean(Engine& e, const MeanKey& key) {
    e.RecallLift();
    e.FinishEntry();
    e.SetX(key.compute(SumsFromRegisters(e)));
    e.SetXTag(key.label);
}

// Both deviations at once: x's in X and y's in Y, two fresh levels.
void ShowDeviations(Engine& e, FunctionId id) {
    const bool sample = id == fid::SampleDeviation;
    const StatisticsSums sums = SumsFromRegisters(e);
    const CentredSums c = Centre(sums);
    const double divisor = sample ? sums.count - 1.0 : sums.count;
    e.RecallLift();
    e.FinishEntry();
    e.Lift();
    e.SetY(std::sqrt(c.yy / divisor));
    e.SetYTag(sample ? label::SampleDeviationY : label::PopulationDeviationY);
    e.SetX(std::sqrt(c.xx / divisor));
    e.SetXTag(sample ? label::SampleDeviationX : label::PopulationDeviationX);
}

// est x for the y in X (r in Y), or est y for the x in X (m in Y). The argument stays in Y
// through the lift until r or m replaces it.
void ShowEstimate(Engine& e, FunctionId id) {
    e.FinishEntry();
    e.Lift();
    const StatisticsSums s = SumsFromRegisters(e);
    const CentredSums c = Centre(s);
    const double slope = c.xy / c.xx;
    const double intercept = CleanDifference((1.0 / s.count) * s.sumY, (1.0 / s.count) * s.sumX * slope);
    if (id == fid::EstimateX) {
        const double correlation = c.xy / std::sqrt(c.yy * c.xx);
        e.SetX(CleanDifference(e.X(), intercept) / slope);
        e.SetXTag(label::EstimateX);
        e.SetY(correlation);
        e.SetYTag(label::Correlation);
    } else {
        e.SetX(e.X() * slope + intercept);
        e.SetXTag(label::EstimateY);
        e.SetY(slope);
        e.SetYTag(label::Slope);
    }
}

}  // namespace

StatisticsSums SumsFromRegisters(const Engine& e) {
    const double* r = e.registers.values;
    return {r[reg::SumX], r[reg::SumX2], r[reg::SumY], r[reg::SumY2], r[reg::SumXY], r[reg::StatN]};
}

CentredSums Centre(const StatisticsSums& s) {
    return {CleanDifference(s.sumX2, (s.sumX / s.count) * s.sumX), CleanDifference(s.sumY2, (s.sumY / s.count) * s.sumY),
            CleanDifference(s.sumXY, (s.sumX / s.count) * s.sumY)};
}

bool HandleStatisticsKey(Engine& e, FunctionId id) {
    switch (id) {
        case fid::SigmaPlus: AddPoint(e); return true;
        case fid::SigmaMinus: RemovePoint(e); return true;
        case fid::EstimateX:
        case fid::EstimateY: ShowEstimate(e, id); return true;
        case fid::SampleDeviation:
        case fid::PopulationDeviation: ShowDeviations(e, id); return true;
        default: break;
    }
    for (const SumRecall& recall : kSumRecalls) {
        if (recall.id == id) {
            RegisterOperation(e, fid::Recall, kNoKey, recall.registerNumber);
            e.SetXTag(recall.label);
            return true;
        }
    }
    for (const MeanKey& mean : kMeans) {
        if (mean.id == id) {
            ShowMean(e, mean);
            return true;
        }
    }
    return false;
}

}  // namespace brinto
