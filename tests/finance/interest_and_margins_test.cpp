#include <gtest/gtest.h>

#include <cmath>

#include "display/display_text.h"
#include "finance/result_labels.h"
#include "finance_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;
using test::Store;

class InterestAndMargins : public ::testing::Test {
protected:
    Engine e = MakeEngine(InputMethod::Rpn);
};

TEST_F(InterestAndMargins, EffectiveAndNominalRatesConvertBothWays) {
    Store(e, "12", fid::PYr);
    Store(e, "12", fid::Nom);
    e.Dispatch(fid::Eff);
    // 1% a month for twelve months, compounded: 1.01^12 - 1, to 14 digits.
    EXPECT_EQ(e.X(), 12.682503013197);
    EXPECT_EQ(e.XTag(), label::Effective);
    EXPECT_EQ(DisplayLevel(e, 0).text, "12.6825030132");
    EXPECT_EQ(e.registers.values[reg::Eff], e.X());
    Store(e, "0", fid::IYr);
    e.Dispatch(fid::Nom);
    EXPECT_NEAR(e.X(), 12.0, 1e-12);
    EXPECT_EQ(e.XTag(), label::Nominal);
    EXPECT_EQ(e.registers.values[reg::IYr], e.X());  // NOM% is I/YR
    // Quarterly compounding against the closed form in long double.
    Store(e, "4", fid::PYr);
    Store(e, "8", fid::Eff);
    e.Dispatch(fid::Nom);
    EXPECT_NEAR(e.X(), static_cast<double>((std::pow(1.08L, 0.25L) - 1) * 400), 1e-11);
}

TEST_F(InterestAndMargins, StoringNominalRateWritesIYr) {
    Store(e, "7.5", fid::Nom);
    EXPECT_EQ(e.registers.values[reg::IYr], 7.5);
    EXPECT_EQ(e.XTag(), label::Nominal);
}

TEST_F(InterestAndMargins, MarginAndMarkupFromCostAndPrice) {
    Store(e, "80", fid::Cost);
    Store(e, "100", fid::Price);
    e.Dispatch(fid::Margin);
    EXPECT_EQ(e.X(), 20.0);
    EXPECT_EQ(e.XTag(), label::Margin);
    EXPECT_FALSE(e.state.status & status::Markup);
    e.Dispatch(fid::Markup);
    EXPECT_EQ(e.X(), 25.0);
    EXPECT_EQ(e.XTag(), label::Markup);
    EXPECT_TRUE(e.state.status & status::Markup);
    // Register 109 is now read as a markup: a recall says so.
    Press(e, {fid::Recall, fid::Margin});
    EXPECT_EQ(e.XTag(), label::Markup);
}

TEST_F(InterestAndMargins, CostAndPriceFollowTheMeaningOfTheLastPercentKey) {
    const struct {
        const char* name;
        FunctionId percentKey;
        const char* percent;
        FunctionId known;
        const char* value;
        FunctionId solved;
        double expected;
    } cases[] = {
        {"priceFromMargin", fid::Margin, "20", fid::Cost, "80", fid::Price, 100.0},
        {"costFromMargin", fid::Margin, "20", fid::Price, "100", fid::Cost, 80.0},
        {"costFromMarkup", fid::Markup, "25", fid::Price, "100", fid::Cost, 80.0},
        {"priceFromMarkup", fid::Markup, "25", fid::Cost, "80", fid::Price, 100.0},
        {"cleanDifference", fid::Margin, "33.3", fid::Price, "1", fid::Cost, 0.667},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Store(e, c.percent, c.percentKey);
        Store(e, c.value, c.known);
        e.Dispatch(c.solved);
        EXPECT_EQ(e.X(), c.expected);
        EXPECT_EQ(e.registers.values[c.solved == fid::Cost ? reg::Cost : reg::Price], c.expected);
    }
}

TEST_F(InterestAndMargins, DegenerateInputsGiveWhatTheArithmeticGives) {
    Store(e, "0", fid::Price);
    e.Dispatch(fid::Margin);
    EXPECT_TRUE(std::isnan(e.X()));  // 0 / 0
    Store(e, "100", fid::Margin);
    Store(e, "50", fid::Cost);
    e.Dispatch(fid::Price);
    EXPECT_TRUE(std::isinf(e.X()));
    Store(e, "8", fid::Eff);
    Store(e, "0", fid::PYr);
    e.Dispatch(fid::Nom);
    EXPECT_TRUE(std::isnan(e.X()));  // 1.08^inf x 0
}

}  // namespace
}  // namespace brinto
