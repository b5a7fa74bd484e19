#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

#include "finance/cash_flows.h"
#include "engine/value_tags.h"
#include "engine/engine_test_support.h"

namespace brinto {
namespace {

using namespace test;

// Amounts with their group counts ("" leaves the count at 1).
void Enter(Engine& e, const std::vector<std::pair<const char*, const char*>>& groups) {
    for (const auto& [amount, count] : groups) {
        Store(e, amount, fid::CashFlow);
        if (*count) Store(e, count, fid::GroupCount);
    }
}

// The flows written out period by period, discounted by repeated division in long double.
long double FlatValue(const std::vector<double>& perPeriod, long double i) {
    long double sum = 0, discount = 1;
    for (const double amount : perPeriod) sum += amount * discount, discount /= 1 + i;
    return sum;
}

TEST(CashFlows, GroupsAreValuedAsTheFlowsWrittenOutUpToAZeroCount) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Enter(e, {{"-5000", ""}, {"200", "3"}, {"-100", "2"}, {"1500", "5"}, {"40", ""}});
    const std::vector<double> flat = {-5000, 200, 200, 200, -100, -100, 1500, 1500, 1500, 1500, 1500, 40};
    for (const char* rate : {"8", "-3.5", "150"}) {
        Store(e, rate, fid::IYr);
        e.Dispatch(fid::Npv);
        EXPECT_NEAR(e.X(), static_cast<double>(FlatValue(flat, std::stold(rate) / 1200)), 1e-9) << rate;
        EXPECT_EQ(e.registers.values[reg::PV], e.X());
    }
    Store(e, "10", fid::Irr);  // a typed guess
    const double rate = e.X();
    EXPECT_NEAR(static_cast<double>(FlatValue(flat, rate / 1200.0L)), 0.0, 1e-6);
    // A count of 0 ends the series there, although later entries stay in the list.
    Enter(e, {{"9000", "0"}, {"7000", ""}});
    EXPECT_EQ(e.registers.cashFlowCount, 6);
    Store(e, "10", fid::IYr);  // a stored guess
    e.Dispatch(fid::Irr);
    EXPECT_EQ(std::pair(e.X(), e.registers.values[reg::IYr]), std::pair(rate, rate));
    Store(e, "0", fid::IYr);
    e.Dispatch(fid::Npv);
    EXPECT_TRUE(std::isnan(e.X()));  // no rate: 0 / 0, which the display shows as an error
    e.Dispatch(fid::ClearFinancial);
    Enter(e, {{"100", ""}, {"50", "3"}});  // money only comes in: no rate
    e.Dispatch(fid::Irr);
    EXPECT_EQ(e.registers.values[reg::IYr], kErrorValue);
}

TEST(CashFlows, EntryKeysStoreAndLabelWithoutMovingTheStack) {
    Engine e = MakeEngine(InputMethod::Rpn);
    EXPECT_FALSE((Type(e, "3"), e.Dispatch(fid::GroupCount)));  // no entry to count
    Press(e, {7, fid::Enter, 2, 5, 0, fid::Enter, fid::CashFlow});  // nothing typed: X is appended
    EXPECT_EQ(std::tuple(e.registers.values[0], e.registers.tags[0], e.state.stack[2]),
              std::tuple(250.0, label::CashFlow, 7.0));
    Store(e, "-40", fid::CashFlow);
    e.dirty.registers = false;
    Store(e, "2.9", fid::GroupCount);
    EXPECT_EQ(e.registers.aux[1], 2u);
    EXPECT_FALSE(e.dirty.registers);  // left for the next change to save
    Type(e, "3");  // the count is replaced, not lifted
    EXPECT_EQ(e.Y(), 250.0);
    Store(e, "1e30", fid::GroupCount);
    EXPECT_EQ(e.registers.aux[1], 0x7FFFFFFFu);
    while (e.registers.cashFlowCount < 99) Store(e, "1", fid::CashFlow);
    EXPECT_FALSE((Type(e, "2"), e.Dispatch(fid::CashFlow)));  // the 101st entry is refused
    EXPECT_EQ(e.registers.cashFlowCount, 99);
}

}  // namespace
}  // namespace brinto
