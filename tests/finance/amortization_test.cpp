#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

#include "finance/amortization.h"
#include "engine/value_tags.h"
#include "finance_test_support.h"

namespace brinto {
namespace {

using namespace test;

class Amortization : public ::testing::Test {
protected:
    Engine e = MakeEngine(InputMethod::Rpn);
    struct Results { double interest, principal, balance; };
    void SetUp() override {
        Press(e, {fid::FormatFixed, 2});
        for (const auto& [number, key] : {std::pair{"360", fid::N}, {"6", fid::IYr}, {"100000", fid::PV}, {"-599.55", fid::PMT}}) {
            Store(e, number, key);
        }
    }
    Results Range(const char* start, const char* end) {
        Store(e, start, fid::Enter);
        Store(e, end, fid::Amortize);
        return {e.state.stack[0], e.state.stack[1], e.state.stack[2]};
    }
};

TEST_F(Amortization, FirstPaymentInBothTimings) {
    const Results end = Range("1", "1");
    EXPECT_EQ(std::tuple(end.interest, end.principal, end.balance), std::tuple(-500.0, -99.55, 99900.45));
    const ValueTag labels[] = {label::Interest, label::Principal, label::Balance, label::Start};
    EXPECT_TRUE(std::equal(labels, labels + 4, e.state.tags));  // the typed End gave way to Bal
    e.Dispatch(fid::BeginEnd);
    const Results begin = Range("1", "1");
    EXPECT_EQ(std::tuple(begin.interest, begin.balance), std::tuple(0.0, 99400.45));  // paid before any interest
    e.Dispatch(fid::AmortizeNext);  // a continued block is never the loan's first payment
    EXPECT_EQ(std::tuple(e.X(), e.state.stack[2]), std::tuple(-497.0, 99297.9));  // 99400.45 x 0.5% = 497.00225
}

TEST_F(Amortization, BlocksAddUpAndContinue) {
    const Results first = Range("1", "12"), second = Range("13", "24"), both = Range("1", "24");
    const auto cents = [](double v) { return RoundToPlaces(v, 2); };
    EXPECT_EQ(cents(first.interest + second.interest), both.interest);
    EXPECT_EQ(cents(first.principal + second.principal), both.principal);
    EXPECT_EQ(cents(first.balance + second.principal), second.balance);
    EXPECT_EQ(cents(second.interest + second.principal), -7194.6);  // twelve payments
    // "=" shows Prin, then Bal, then amortizes the next block of the same length.
    Range("1", "12");
    Press(e, {fid::Equals, fid::Equals, fid::Equals});
    EXPECT_EQ(std::tuple(e.X(), e.state.stack[2]), std::tuple(second.interest, second.balance));
    Press(e, {fid::ClearX, fid::SecondAmortize});  // nothing typed: the stored range, from payment 1
    EXPECT_EQ(e.X(), first.interest);
}

TEST_F(Amortization, RangeIsCutToNAndRoundedToTheDisplay) {
    Store(e, "24", fid::N);
    const Results whole = Range("1", "24");
    EXPECT_EQ(Range("1", "400").balance, whole.balance);
    EXPECT_EQ(e.state.amortEnd, 24);
    Range("30", "40");
    EXPECT_EQ(e.state.amortStart, 24);
    Store(e, "0", fid::N);
    EXPECT_EQ(Range("1", "12").balance, 100000.0);  // no payments at all

    Store(e, "360", fid::N);
    Press(e, {fid::FormatFixed, 0});
    EXPECT_EQ(Range("1", "1").principal, -100.0);  // the payment is rounded to 600 too
    e.prefs.SetDigitField(0);                      // all digits: nothing is rounded
    Store(e, "-599.550525", fid::PMT);
    EXPECT_EQ(Range("1", "1").principal, 500.0 + -599.550525);
}

TEST_F(Amortization, RoundsEachInterestAsTheDisplayShowsIt) {
    for (const auto& [number, key] : {std::pair{"219", fid::N}, {"8.2", fid::IYr}, {"393543", fid::PV}, {"-3470.2", fid::PMT}}) {
        Store(e, number, key);
    }
    Press(e, {fid::FormatFixed, 3});
    // 393543 x 0.082 / 12 = 2689.2105, whose double reads 2689.2104999999998.
    EXPECT_EQ(Range("1", "1").interest, -2689.211);
    EXPECT_EQ(Range("55", "57").balance, 339336.074);
}

TEST_F(Amortization, NextBlockRestartsWithoutAPositiveBalance) {
    Store(e, "-100000", fid::PV);  // the lender's side: the balance is negative
    Store(e, "599.55", fid::PMT);
    const Results first = Range("1", "12");
    EXPECT_GT(first.interest, 0.0);  // interest has the sign of the payment
    EXPECT_EQ((e.Dispatch(fid::AmortizeNext), e.state.stack[2]), first.balance);
}

}  // namespace
}  // namespace brinto
