#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>

#include "engine/value_tags.h"
#include "engine/engine_test_support.h"

namespace brinto {
namespace {

using namespace test;

class Statistics : public ::testing::Test {
protected:
    Engine e = MakeEngine(InputMethod::Rpn);
    void Add(const std::string& x, const std::string& y, FunctionId key = fid::SigmaPlus) {
        Store(e, y, fid::Enter);
        Store(e, x, key);
    }
    void ExpectX(FunctionId key, double x, ValueTag label) {
        e.Dispatch(key);
        EXPECT_EQ(std::pair(e.X(), e.XTag()), std::pair(x, label)) << key;
    }
};

TEST_F(Statistics, PointsOnALineAndTheSigmaKeys) {
    for (const char* x : {"1", "2", "3"}) Add(x, std::to_string(2 * std::stoi(x) + 1));  // y = 2x + 1
    ExpectX(fid::MeanX, 2, label::MeanX);
    ExpectX(fid::MeanY, 5, label::MeanY);
    ExpectX(fid::WeightedMean, 34.0 / 15, label::WeightedMean);  // sum xy / sum y
    ExpectX(fid::SampleDeviation, 1, label::SampleDeviationX);
    EXPECT_EQ(std::tuple(e.Y(), e.YTag(), e.state.stack[2]), std::tuple(2.0, label::SampleDeviationY, 34.0 / 15));
    ExpectX(fid::PopulationDeviation, std::sqrt(2.0 / 3), label::PopulationDeviationX);
    Type(e, "4");
    ExpectX(fid::EstimateY, 9, label::EstimateY);
    EXPECT_EQ(e.Y(), 2.0);
    Type(e, "11");
    ExpectX(fid::EstimateX, 5, label::EstimateX);
    EXPECT_EQ(std::tuple(e.Y(), e.YTag()), std::tuple(1.0, label::Correlation));
    // Three 0.7s leave sum y2 - (sum y / n) sum y = 4.4e-16 in doubles; cleaned, it is 0.
    e.Dispatch(fid::ClearStatistics);
    for (int k = 0; k < 3; ++k) Add("0.3", "0.7");
    ExpectX(fid::SampleDeviation, 0, label::SampleDeviationX);
    EXPECT_EQ(e.Y(), 0.0);
    e.Dispatch(fid::ClearStatistics);
    ExpectX(fid::SigmaMinus, kErrorValue, ValueTag::None);  // nothing to remove
    Add("3", "8");
    EXPECT_EQ(std::tuple(e.X(), e.Y()), std::tuple(1.0, 8.0));
    Type(e, "5");  // the next x replaces the count
    EXPECT_EQ(e.Y(), 8.0);
    e.Dispatch(fid::SigmaPlus);
    Add("5", "8", fid::SigmaMinus);
    ExpectX(fid::RecallN, 1, label::Count);
    const struct { FunctionId key; double value; ValueTag label; } recalls[] = {
        {fid::RecallSumX, 3, label::SumX}, {fid::RecallSumX2, 9, label::SumX2}, {fid::RecallSumY, 8, label::SumY},
        {fid::RecallSumY2, 64, label::SumY2}, {fid::RecallSumXY, 24, label::SumXY}};
    for (const auto& r : recalls) {
        const double before = e.X();
        ExpectX(r.key, r.value, r.label);
        EXPECT_EQ(e.Y(), before);  // recalls lift
    }
    e.Dispatch(fid::ClearStatistics);
    ExpectX(fid::RecallN, 0, label::Count);
}

TEST(InterestAndMargins, ConversionsAndRetailRelations) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Store(e, "12", fid::Nom);
    e.Dispatch(fid::Eff);
    EXPECT_EQ(e.X(), 12.682503013197);  // 1.01^12 - 1, cleaned to 14 digits
    Store(e, "0", fid::IYr);
    e.Dispatch(fid::Nom);
    EXPECT_NEAR(e.registers.values[reg::IYr], 12.0, 1e-12);
    Store(e, "4", fid::PYr);
    Store(e, "8", fid::Eff);
    e.Dispatch(fid::Nom);
    EXPECT_NEAR(e.X(), static_cast<double>((std::pow(1.08L, 0.25L) - 1) * 400), 1e-11);

    const struct { FunctionId percentKey; const char* percent; FunctionId known; const char* value; FunctionId solved;
                   double expected; } cases[] = {
        {fid::Margin, "20", fid::Cost, "80", fid::Price, 100}, {fid::Margin, "20", fid::Price, "100", fid::Cost, 80},
        {fid::Markup, "25", fid::Price, "100", fid::Cost, 80}, {fid::Markup, "25", fid::Cost, "80", fid::Price, 100},
        {fid::Margin, "33.3", fid::Price, "1", fid::Cost, 0.667}};
    for (const auto& c : cases) {
        Store(e, c.percent, c.percentKey);
        Store(e, c.value, c.known);
        e.Dispatch(c.solved);
        EXPECT_EQ(e.X(), c.expected) << c.percent;
    }
    Store(e, "80", fid::Cost);
    Store(e, "100", fid::Price);
    Press(e, {fid::Margin, fid::Markup});
    EXPECT_EQ(e.X(), 25.0);
    EXPECT_TRUE(e.state.status & status::Markup);
    Press(e, {fid::Recall, fid::Margin});
    EXPECT_EQ(e.XTag(), label::Markup);  // register 109 is read as a markup now
    Press(e, {fid::Margin});
    EXPECT_EQ(e.X(), 20.0);
    EXPECT_FALSE(e.state.status & status::Markup);
}

}  // namespace
}  // namespace brinto
