#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <random>
#include <string>

#include "finance/amortization.h"
#include "finance/result_labels.h"
#include "finance_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;
using test::SetPlaces;
using test::Store;
using test::Type;

TEST(RoundToPlaces, RoundsTheShortestDigitsHalfUp) {
    const struct {
        double value;
        int places;
        double rounded;
    } cases[] = {
        {0.125, 2, 0.13},      // an exact binary tie goes up
        {1.005, 2, 1.01},      // the double lies below 1.005, its digits do not
        {2.675, 2, 2.68},      {-1.005, 2, -1.01},  // half away from zero
        {0.0049, 2, 0.0},      {0.005, 2, 0.01},      {0.0009, 2, 0.0},  // far below half a cent
        {999.995, 2, 1000.0},  {-599.550525, 2, -599.55}, {123.456, 0, 123.0},
        {0.5, 0, 1.0},         {1e20, 2, 1e20},        {1.23456789, 14, 1.23456789},
        {0.1 + 0.2, 2, 0.3},   {45.5, -1, 45.5},  // no rounding with the "All" digit field
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.value << " to " << c.places);
        EXPECT_EQ(RoundToPlaces(c.value, c.places), c.rounded);
        EXPECT_EQ(RoundToPlacesByDigits(c.value, c.places), c.rounded);
    }
    EXPECT_TRUE(std::isnan(RoundToPlaces(std::nan(""), 2)));
    EXPECT_EQ(RoundToPlaces(-kErrorValue, 2), -kErrorValue);
}

TEST(RoundToPlaces, ShortcutAgreesWithTheDigitsEverywhere) {
    std::mt19937_64 random(20240607);
    std::uniform_real_distribution<double> magnitude(-6.0, 13.0);
    std::uniform_int_distribution<int> places(0, 14);
    std::uniform_int_distribution<long long> cents(0, 99999999999LL);
    for (int n = 0; n < 200000; ++n) {
        const int p = places(random);
        double value = std::pow(10.0, magnitude(random)) * (n % 2 ? -1.0 : 1.0);
        if (n % 3 == 0) {
            // A decimal tie: k.5 units of the last place, written and read as text.
            const std::string text = std::to_string(cents(random)) + "5e-" + std::to_string(p + 1);
            std::from_chars(text.data(), text.data() + text.size(), value);
        }
        ASSERT_EQ(RoundToPlaces(value, p), RoundToPlacesByDigits(value, p)) << value << " to " << p;
    }
}

class Amortization : public ::testing::Test {
protected:
    Engine e = MakeEngine(InputMethod::Rpn);
    void SetUp() override {
        SetPlaces(e, 2);
        Store(e, "360", fid::N);
        Store(e, "6", fid::IYr);
        Store(e, "100000", fid::PV);
        Store(e, "-599.55", fid::PMT);
        Store(e, "12", fid::PYr);
    }
    void Range(const char* start, const char* end) {
        Type(e, start);
        e.Dispatch(fid::Enter);
        Type(e, end);
        e.Dispatch(fid::Amortize);
    }
    struct Results {
        double interest, principal, balance;
    };
    Results Shown() const { return {e.state.stack[0], e.state.stack[1], e.state.stack[2]}; }
};

TEST_F(Amortization, FirstPaymentSplitsIntoInterestAndPrincipal) {
    Range("1", "1");
    EXPECT_EQ(e.X(), -500.0);
    EXPECT_EQ(e.Y(), -99.55);
    EXPECT_EQ(e.state.stack[2], 99900.45);
    EXPECT_EQ(e.state.tags[0], label::Interest);
    EXPECT_EQ(e.state.tags[1], label::Principal);
    EXPECT_EQ(e.state.tags[2], label::Balance);
    EXPECT_EQ(e.state.tags[3], label::Start);  // the typed End was replaced by Bal
    EXPECT_EQ(e.state.stack[3], 1.0);
}

TEST_F(Amortization, BeginModeFirstPaymentIsAllPrincipal) {
    e.Dispatch(fid::BeginEnd);
    Range("1", "1");
    EXPECT_EQ(e.X(), 0.0);
    EXPECT_EQ(e.Y(), -599.55);
    EXPECT_EQ(e.state.stack[2], 99400.45);
    // The next block goes on from that balance and does owe interest on its first payment.
    e.Dispatch(fid::AmortizeNext);
    EXPECT_EQ(e.X(), -497.0);  // 99400.45 x 0.5% = 497.00225
    EXPECT_EQ(e.state.stack[2], 99297.9);
}

TEST_F(Amortization, BlocksAddUpToTheWholeRange) {
    Range("1", "12");
    const Results first = Shown();
    Range("13", "24");
    const Results second = Shown();
    Range("1", "24");
    const Results both = Shown();
    const auto cents = [](double v) { return RoundToPlaces(v, 2); };
    EXPECT_EQ(cents(first.interest + second.interest), both.interest);
    EXPECT_EQ(cents(first.principal + second.principal), both.principal);
    EXPECT_EQ(second.balance, both.balance);
    EXPECT_EQ(cents(first.balance + second.principal), second.balance);
    EXPECT_EQ(cents(100000 + first.principal), first.balance);
    // Each payment is its interest and principal: twelve payments of 599.55.
    EXPECT_EQ(cents(second.interest + second.principal), -7194.6);
}

TEST_F(Amortization, NextBlockContinuesFromTheBalanceReached) {
    Range("1", "12");
    e.Dispatch(fid::AmortizeNext);
    const Results continued = Shown();
    Range("13", "24");
    const Results fresh = Shown();
    EXPECT_EQ(continued.interest, fresh.interest);
    EXPECT_EQ(continued.principal, fresh.principal);
    EXPECT_EQ(continued.balance, fresh.balance);
    EXPECT_EQ(e.state.amortStart, 13);
    EXPECT_EQ(e.state.amortEnd, 24);
}

TEST_F(Amortization, EqualsShowsPrincipalThenBalanceThenTheNextBlock) {
    Range("1", "12");
    const Results first = Shown();
    e.Dispatch(fid::Equals);
    EXPECT_EQ(e.X(), first.principal);
    EXPECT_EQ(e.XTag(), label::Principal);
    EXPECT_EQ(e.Y(), first.principal);  // replaced, not lifted
    e.Dispatch(fid::Equals);
    EXPECT_EQ(e.X(), first.balance);
    EXPECT_EQ(e.XTag(), label::Balance);
    e.Dispatch(fid::Equals);
    const Results continued = Shown();
    EXPECT_EQ(e.XTag(), label::Interest);
    Range("13", "24");
    EXPECT_EQ(continued.interest, e.X());
    EXPECT_EQ(continued.balance, e.state.stack[2]);
}

TEST_F(Amortization, StoredRangeIsUsedWhenNothingIsTyped) {
    Range("13", "24");
    const Results typed = Shown();
    Press(e, {fid::ClearX, fid::Amortize2});
    EXPECT_EQ(e.X(), typed.interest);
    EXPECT_EQ(e.Y(), typed.principal);
    EXPECT_EQ(e.state.stack[2], typed.balance);
}

TEST_F(Amortization, RangeIsCutToN) {
    Store(e, "24", fid::N);
    Range("1", "24");
    const Results whole = Shown();
    Range("1", "400");
    EXPECT_EQ(e.state.amortEnd, 24);
    EXPECT_EQ(e.X(), whole.interest);
    EXPECT_EQ(e.state.stack[2], whole.balance);
    Range("30", "40");  // both beyond N: the last payment alone
    EXPECT_EQ(e.state.amortStart, 24);
    EXPECT_EQ(e.state.amortEnd, 24);
    EXPECT_EQ(RoundToPlaces(e.X() + e.Y(), 2), -599.55);
}

TEST_F(Amortization, AmountsFollowTheDisplayPlaces) {
    SetPlaces(e, 0);
    Range("1", "1");
    EXPECT_EQ(e.X(), -500.0);
    EXPECT_EQ(e.Y(), -100.0);  // the payment is rounded to 600 too
    EXPECT_EQ(e.state.stack[2], 99900.0);

    e.prefs.SetDigitField(0);  // all digits: nothing is rounded
    Store(e, "-599.550525", fid::PMT);
    Range("1", "1");
    EXPECT_EQ(e.Y(), 500.0 + -599.550525);
}

TEST_F(Amortization, NextBlockRestartsWhenNoBalanceIsLeft) {
    // Seen from the lender the balance is negative: there is nothing to continue from.
    Store(e, "-100000", fid::PV);
    Store(e, "599.55", fid::PMT);
    Range("1", "12");
    const Results first = Shown();
    e.Dispatch(fid::AmortizeNext);
    EXPECT_EQ(e.X(), first.interest);
    EXPECT_EQ(e.state.stack[2], first.balance);
    EXPECT_GT(first.interest, 0.0);  // interest carries the payment's sign
}

TEST_F(Amortization, NoPeriodsLeavesTheBalanceAtPV) {
    Store(e, "0", fid::N);
    Range("1", "12");
    EXPECT_EQ(e.X(), 0.0);
    EXPECT_EQ(e.Y(), 0.0);
    EXPECT_EQ(e.state.stack[2], 100000.0);
}

TEST(AmortizationAlgebraic, EqualsStepsInSimpleInputWhenNothingIsPending) {
    Engine e = MakeEngine(InputMethod::Simple);
    SetPlaces(e, 2);
    Store(e, "360", fid::N);
    Store(e, "6", fid::IYr);
    Store(e, "100000", fid::PV);
    Store(e, "-599.55", fid::PMT);
    // A stored range: typing one would leave Enter's marker pending, which "=" would act on.
    e.state.amortStart = 1;
    e.state.amortEnd = 1;
    e.Dispatch(fid::Amortize);
    EXPECT_EQ(e.X(), -500.0);
    e.Dispatch(fid::Equals);
    EXPECT_EQ(e.X(), -99.55);
    e.Dispatch(fid::Equals);
    EXPECT_EQ(e.X(), 99900.45);
}

}  // namespace
}  // namespace brinto
