#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

#include "finance/result_labels.h"
#include "finance/statistics.h"
#include "finance_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;
using test::Type;

// Enters a point as a user does: y, Enter, x, Σ+.
void AddPoint(Engine& e, const char* x, const char* y) {
    Type(e, y);
    e.Dispatch(fid::Enter);
    Type(e, x);
    e.Dispatch(fid::SigmaPlus);
}

class Statistics : public ::testing::Test {
protected:
    Engine e = MakeEngine(InputMethod::Rpn);
    void Line() {
        AddPoint(e, "1", "2");
        AddPoint(e, "2", "4");
        AddPoint(e, "3", "6");
    }
    double Key(FunctionId id) {
        e.Dispatch(id);
        return e.X();
    }
};

TEST_F(Statistics, PointsOnALine) {
    Line();
    EXPECT_EQ(Key(fid::MeanX), 2.0);
    EXPECT_EQ(e.XTag(), label::MeanX);
    EXPECT_EQ(Key(fid::MeanY), 4.0);
    EXPECT_EQ(e.XTag(), label::MeanY);
    EXPECT_EQ(Key(fid::SampleDeviation), 1.0);
    EXPECT_EQ(e.XTag(), label::SampleDeviationX);
    EXPECT_EQ(e.Y(), 2.0);
    EXPECT_EQ(e.YTag(), label::SampleDeviationY);
    EXPECT_NEAR(Key(fid::PopulationDeviation), 0.8165, 5e-5);
    EXPECT_EQ(e.XTag(), label::PopulationDeviationX);
    EXPECT_EQ(e.YTag(), label::PopulationDeviationY);

    Press(e, {4, fid::EstimateY});
    EXPECT_EQ(e.X(), 8.0);
    EXPECT_EQ(e.XTag(), label::EstimateY);
    EXPECT_EQ(e.Y(), 2.0);
    EXPECT_EQ(e.YTag(), label::Slope);
    Press(e, {1, 0, fid::EstimateX});
    EXPECT_EQ(e.X(), 5.0);
    EXPECT_EQ(e.XTag(), label::EstimateX);
    EXPECT_EQ(e.Y(), 1.0);
    EXPECT_EQ(e.YTag(), label::Correlation);
}

TEST_F(Statistics, RegressionAgreesWithTwoPassSums) {
    const std::vector<std::pair<const char*, const char*>> points = {
        {"1.5", "12.25"}, {"2.75", "9.5"}, {"4", "8.125"}, {"6.5", "3.75"}, {"7.25", "3.5"}, {"9", "-0.5"}};
    long double mx = 0, my = 0;
    for (const auto& [x, y] : points) {
        AddPoint(e, x, y);
        mx += std::stold(x);
        my += std::stold(y);
    }
    const long double n = points.size();
    mx /= n;
    my /= n;
    long double sxx = 0, syy = 0, sxy = 0;
    for (const auto& [x, y] : points) {
        const long double dx = std::stold(x) - mx, dy = std::stold(y) - my;
        sxx += dx * dx;
        syy += dy * dy;
        sxy += dx * dy;
    }
    const long double m = sxy / sxx, b = my - m * mx;
    EXPECT_NEAR(Key(fid::SampleDeviation), static_cast<double>(std::sqrt(sxx / (n - 1))), 1e-12);
    EXPECT_NEAR(e.Y(), static_cast<double>(std::sqrt(syy / (n - 1))), 1e-12);
    Press(e, {5, fid::EstimateY});
    EXPECT_NEAR(e.X(), static_cast<double>(5 * m + b), 1e-12);
    EXPECT_NEAR(e.Y(), static_cast<double>(m), 1e-12);
    Press(e, {5, fid::EstimateX});
    EXPECT_NEAR(e.X(), static_cast<double>((5 - b) / m), 1e-12);
    EXPECT_NEAR(e.Y(), static_cast<double>(sxy / std::sqrt(sxx * syy)), 1e-12);
}

TEST_F(Statistics, EqualValuesHaveExactlyZeroDeviation) {
    for (int k = 0; k < 3; ++k) AddPoint(e, "0.3", "0.7");
    const StatisticsSums s = SumsFromRegisters(e);
    // Without the cleaning the centred sums would be rounding residues, not zero.
    EXPECT_NE(s.sumX2 - (s.sumX / s.count) * s.sumX, 0.0);
    EXPECT_NE(s.sumY2 - (s.sumY / s.count) * s.sumY, 0.0);
    EXPECT_EQ(Key(fid::SampleDeviation), 0.0);
    EXPECT_EQ(e.Y(), 0.0);
    EXPECT_EQ(Key(fid::PopulationDeviation), 0.0);
}

TEST_F(Statistics, SigmaPlusLeavesCountInXAndYInPlace) {
    AddPoint(e, "3", "8");
    EXPECT_EQ(e.X(), 1.0);
    EXPECT_EQ(e.XTag(), label::Count);
    EXPECT_EQ(e.Y(), 8.0);
    Type(e, "5");  // the next x replaces the count
    EXPECT_EQ(e.X(), 5.0);
    EXPECT_EQ(e.Y(), 8.0);
    e.Dispatch(fid::SigmaPlus);
    EXPECT_EQ(e.X(), 2.0);
    EXPECT_EQ(e.registers.values[reg::SumXY], 3.0 * 8 + 5.0 * 8);
}

TEST_F(Statistics, SigmaMinusRemovesAPointOrShowsAnError) {
    Press(e, {2, fid::SigmaMinus});
    EXPECT_EQ(e.X(), kErrorValue);
    for (int r = reg::SumX; r <= reg::StatN; ++r) EXPECT_EQ(e.registers.values[r], 0.0);
    AddPoint(e, "3", "8");
    AddPoint(e, "5", "1");
    Type(e, "1");
    e.Dispatch(fid::Enter);
    Type(e, "5");
    e.Dispatch(fid::SigmaMinus);
    EXPECT_EQ(e.X(), 1.0);
    EXPECT_EQ(e.XTag(), label::Count);
    const struct {
        FunctionId key;
        double value;
        ValueTag label;
    } recalls[] = {{fid::RecallN, 1, label::Count},       {fid::RecallSumX, 3, label::SumX},
                   {fid::RecallSumX2, 9, label::SumX2},   {fid::RecallSumY, 8, label::SumY},
                   {fid::RecallSumY2, 64, label::SumY2},  {fid::RecallSumXY, 24, label::SumXY}};
    for (const auto& r : recalls) {
        SCOPED_TRACE(r.key);
        const double before = e.X();
        e.Dispatch(r.key);
        EXPECT_EQ(e.X(), r.value);
        EXPECT_EQ(e.XTag(), r.label);
        if (r.key != fid::RecallN) {
            EXPECT_EQ(e.Y(), before);  // a recall lifts like any other
        }
    }
}

TEST_F(Statistics, WeightedMeanWeighsXByY) {
    AddPoint(e, "10", "1");
    AddPoint(e, "20", "3");
    EXPECT_EQ(Key(fid::WeightedMean), 17.5);
    EXPECT_EQ(e.XTag(), label::WeightedMean);
}

TEST_F(Statistics, ResultsLiftWhenLiftIsEnabledOrRpnIsTyping) {
    AddPoint(e, "1", "2");
    AddPoint(e, "3", "4");
    Press(e, {9, fid::MeanX});  // RPN: the typed 9 is kept
    EXPECT_EQ(e.X(), 2.0);
    EXPECT_EQ(e.Y(), 9.0);
    e.Dispatch(fid::SampleDeviation);  // lift enabled: two fresh levels above the mean
    EXPECT_EQ(e.state.stack[2], 2.0);
    EXPECT_EQ(e.state.stack[3], 9.0);

    Engine simple = MakeEngine(InputMethod::Simple);
    AddPoint(simple, "1", "2");
    AddPoint(simple, "3", "4");
    Press(simple, {fid::ClearX, 9, fid::MeanX});  // Simple: the typed 9 is replaced
    EXPECT_EQ(simple.X(), 2.0);
    EXPECT_NE(simple.Y(), 9.0);
}

TEST_F(Statistics, ClearStatisticsClearsTheWideGroup) {
    AddPoint(e, "1", "2");
    for (int r = 116; r <= 119; ++r) e.registers.values[r] = 5.0;
    e.dirty.registers = false;
    e.Dispatch(fid::ClearStatistics);
    for (int r = reg::SumX; r <= 119; ++r) EXPECT_EQ(e.registers.values[r], 0.0) << r;
    EXPECT_EQ(e.registers.values[120], 30.4375);
    EXPECT_TRUE(e.dirty.registers);
}

}  // namespace
}  // namespace brinto
