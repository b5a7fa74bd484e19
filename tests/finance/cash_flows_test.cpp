#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "display/display_text.h"
#include "finance/cash_flows.h"
#include "finance/result_labels.h"
#include "finance_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Press;
using test::Store;
using test::Type;

struct Group {
    const char* amount;
    const char* count;  // nullptr: leave the count at 1
};

void Enter(Engine& e, const std::vector<Group>& groups) {
    for (const Group& g : groups) {
        Store(e, g.amount, fid::CashFlow);
        if (g.count) Store(e, g.count, fid::GroupCount);
    }
}

// The present value of the flows written out period by period, discounted by repeated
// division in long double.
long double FlatPresentValue(const std::vector<double>& perPeriod, long double i) {
    long double sum = 0.0L;
    long double discount = 1.0L;
    for (const double amount : perPeriod) {
        sum += amount * discount;
        discount /= 1.0L + i;
    }
    return sum;
}

class CashFlows : public ::testing::Test {
protected:
    Engine e = MakeEngine(InputMethod::Rpn);
};

TEST_F(CashFlows, GroupedFlowsAreValuedAsTheFlowsWrittenOut) {
    Store(e, "12", fid::PYr);
    Enter(e, {{"-5000", nullptr}, {"200", "3"}, {"-100", "2"}, {"1500", "5"}, {"40", nullptr}});
    const std::vector<double> flat = {-5000, 200, 200, 200, -100, -100, 1500, 1500, 1500, 1500, 1500, 40};
    for (const char* rate : {"8", "-3.5", "150"}) {
        SCOPED_TRACE(rate);
        Store(e, rate, fid::IYr);
        e.Dispatch(fid::Npv);
        const long double i = e.registers.values[reg::IYr] / 1200.0L;
        EXPECT_NEAR(e.X(), static_cast<double>(FlatPresentValue(flat, i)), 1e-9);
        EXPECT_EQ(e.XTag(), label::NetPresentValue);
        EXPECT_EQ(e.registers.values[reg::PV], e.X());
    }
}

TEST_F(CashFlows, ReturnRateOfAnEvenSeries) {
    Store(e, "1", fid::PYr);
    Enter(e, {{"-1000", nullptr}, {"300", "4"}});
    e.Dispatch(fid::Irr);
    // 300 a year for four years repays 1000 at r where the flows discount to zero; bisect it.
    long double low = 0.0L, high = 1.0L;
    for (int k = 0; k < 200; ++k) {
        const long double mid = (low + high) / 2;
        (FlatPresentValue({-1000, 300, 300, 300, 300}, mid) > 0 ? low : high) = mid;
    }
    EXPECT_NEAR(e.X(), static_cast<double>(low * 100), 1e-9);
    EXPECT_NEAR(e.X(), 7.71, 0.005);
    EXPECT_EQ(e.XTag(), label::ReturnRate);
    EXPECT_EQ(e.registers.values[reg::IYr], e.X());
}

TEST_F(CashFlows, TypedGuessIsStoredThenReplacedByTheRate) {
    Store(e, "1", fid::PYr);
    Enter(e, {{"-1000", nullptr}, {"300", "4"}});
    Store(e, "50", fid::Irr);
    EXPECT_NEAR(e.X(), 7.7138, 1e-4);
    EXPECT_EQ(e.registers.values[reg::IYr], e.X());
    e.Dispatch(fid::ClearFinancial);
    Enter(e, {{"100", nullptr}, {"50", "3"}});  // money that only comes in has no rate of return
    e.Dispatch(fid::Irr);
    EXPECT_EQ(e.X(), kErrorValue);
    EXPECT_EQ(e.registers.values[reg::IYr], kErrorValue);
}

TEST_F(CashFlows, ZeroGroupCountEndsTheSeries) {
    Store(e, "6", fid::IYr);
    Enter(e, {{"-900", nullptr}, {"100", "10"}});
    e.Dispatch(fid::Npv);
    const double shortSeries = e.X();
    e.Dispatch(fid::Irr);
    const double shortRate = e.X();
    Enter(e, {{"5000", "0"}, {"7000", nullptr}});
    EXPECT_EQ(e.registers.cashFlowCount, 3);  // the later entries stay in the list
    Store(e, "6", fid::IYr);
    e.Dispatch(fid::Npv);
    EXPECT_EQ(e.X(), shortSeries);
    e.Dispatch(fid::Irr);
    EXPECT_EQ(e.X(), shortRate);
}

TEST_F(CashFlows, GroupCountIsTruncatedTowardZero) {
    Enter(e, {{"10", "2.9"}});
    EXPECT_EQ(e.registers.aux[0], 2u);
    Enter(e, {{"10", "-3.7"}});
    EXPECT_EQ(static_cast<i32>(e.registers.aux[1]), -3);
    Enter(e, {{"10", "1e30"}});
    EXPECT_EQ(static_cast<i32>(e.registers.aux[2]), 2147483647);
}

TEST_F(CashFlows, EntryKeysStoreWithoutMovingTheStack) {
    Press(e, {7, fid::Enter, 2, 5, 0, fid::Enter});  // nothing typed: X itself is appended
    e.Dispatch(fid::CashFlow);
    EXPECT_EQ(e.registers.cashFlowCount, 0);
    EXPECT_EQ(e.registers.values[0], 250.0);
    EXPECT_EQ(e.registers.tags[0], label::CashFlow);
    EXPECT_EQ(e.registers.aux[0], 1u);
    EXPECT_EQ(e.X(), 250.0);
    EXPECT_EQ(e.Y(), 250.0);
    EXPECT_EQ(e.state.stack[2], 7.0);
    EXPECT_EQ(e.XTag(), label::CashFlow);
    EXPECT_EQ(e.state.aux[0], 0);

    Store(e, "-40", fid::CashFlow);
    Store(e, "6", fid::GroupCount);
    EXPECT_EQ(e.XTag(), label::GroupCount);
    EXPECT_EQ(e.state.aux[0], 1);
    EXPECT_EQ(DisplayLevel(e, 0).label, "Nj 1");
    Type(e, "3");  // the stored count is replaced, not lifted
    EXPECT_EQ(e.Y(), 250.0);
}

TEST_F(CashFlows, ListHoldsOneHundredEntries) {
    for (int j = 0; j < kMostCashFlows; ++j) Store(e, "1", fid::CashFlow);
    EXPECT_EQ(e.registers.cashFlowCount, 99);
    Type(e, "2");
    EXPECT_EQ(e.Dispatch(fid::CashFlow), 0u);
    EXPECT_EQ(e.registers.cashFlowCount, 99);
    EXPECT_EQ(e.registers.values[99], 1.0);
    EXPECT_EQ(e.Dispatch(fid::GroupCount), 1u);  // the last entry still takes a count
    EXPECT_EQ(e.registers.aux[99], 2u);
}

TEST_F(CashFlows, GroupCountNeedsAnEntryAndLeavesTheChangedFlag) {
    Type(e, "3");
    EXPECT_EQ(e.Dispatch(fid::GroupCount), 0u);
    Store(e, "100", fid::CashFlow);
    EXPECT_TRUE(e.dirty.registers);
    e.dirty.registers = false;
    Store(e, "3", fid::GroupCount);
    EXPECT_EQ(e.registers.aux[0], 3u);
    EXPECT_FALSE(e.dirty.registers);
}

TEST_F(CashFlows, NetPresentValueLiftsAndIsUndefinedAtZeroRate) {
    Enter(e, {{"-100", nullptr}, {"60", "2"}});
    Store(e, "10", fid::IYr);
    Press(e, {4, fid::Enter, 4, fid::Add});
    e.Dispatch(fid::Npv);
    EXPECT_EQ(e.Y(), 8.0);
    Store(e, "0", fid::IYr);
    e.Dispatch(fid::Npv);
    EXPECT_TRUE(std::isnan(e.X()));
    EXPECT_EQ(DisplayLevel(e, 0).text, "error");
}

TEST_F(CashFlows, ClearFinancialEmptiesTheListAndKeepsPaymentsPerYear) {
    Store(e, "4", fid::PYr);
    Enter(e, {{"-100", nullptr}, {"60", "2"}});
    Store(e, "5", fid::FV);
    Press(e, {1, fid::Enter, fid::SigmaPlus});
    e.Dispatch(fid::ClearFinancial);
    EXPECT_EQ(e.registers.cashFlowCount, -1);
    EXPECT_EQ(e.registers.tags[1], 0);
    EXPECT_EQ(e.registers.aux[1], 0u);
    for (int r = 0; r <= reg::StatN; ++r) {
        if (r != reg::PYr) {
            EXPECT_EQ(e.registers.values[r], 0.0) << "register " << r;
        }
    }
    EXPECT_EQ(e.X(), 4.0);
    EXPECT_EQ(e.XTag(), label::PerYear);
    EXPECT_EQ(e.Dispatch(fid::GroupCount), 0u);
}

}  // namespace
}  // namespace brinto
