#include "session/money_charts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "calculator/assembly.h"
#include "finance/cash_flows.h"

namespace brinto {
namespace {

void Type(Engine& e, std::string_view number) {
    const bool negative = number.front() == '-';
    for (const char c : number.substr(negative ? 1 : 0)) e.Dispatch(c == '.' ? fid::Point : DigitKey(c - '0'));
    if (negative) e.Dispatch(fid::ChangeSign);
}

Engine WithKeys(const std::vector<std::pair<std::string_view, FunctionId>>& typed) {
    Engine e(CalculatorFamilies());
    e.prefs.SetMethod(InputMethod::Rpn);
    e.ResetState();
    for (const auto& [number, key] : typed) {
        if (!number.empty()) Type(e, number);
        e.Dispatch(key);
    }
    return e;
}

// The points drawn are the schedule's own rows: a balance per payment after the loan's PV, and
// a bar per payment, or per year once a loan is too long for a bar a payment.
TEST(MoneyCharts, ScheduleChartPointsAreTheScheduleRows) {
    struct Case {
        const char* name;
        const char* payments;
        bool byYear;
        const char* description;
    };
    const Case cases[] = {
        {"two years", "24", false, "Balance falls from 100,000 to 0 over 24 payments"},
        {"longest by payment", "60", false, "Balance falls from 100,000 to 0 over 60 payments"},
        {"thirty years", "360", true, "Balance falls from 100,000 to 0 over 360 payments"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = WithKeys({{"", fid::FormatFixed}, {"", DigitKey(2)}, {"12", fid::PYr}, {c.payments, fid::N},
                             {"6", fid::IYr}, {"100000", fid::PV}, {"0", fid::FV}, {"", fid::PMT}});
        const AmortizationSchedule schedule = MakeAmortizationSchedule(e);
        const ScheduleChart chart = MakeScheduleChart(schedule, e.registers.values[reg::PV], false);
        ASSERT_EQ(chart.balance.size(), schedule.payments.size() + 1);
        EXPECT_EQ(std::pair(chart.balance[0].payment, chart.balance[0].balance), std::pair(0, 100000.0));
        for (std::size_t i = 0; i < schedule.payments.size(); ++i) {
            EXPECT_EQ(chart.balance[i + 1].payment, schedule.payments[i].payment);
            EXPECT_EQ(chart.balance[i + 1].balance, schedule.payments[i].balance);
        }
        EXPECT_EQ(chart.byYear, c.byYear);
        ASSERT_EQ(chart.bars.size(), c.byYear ? schedule.years.size() : schedule.payments.size());
        // The bars cover every payment once, and carry all the interest and principal.
        double interest = 0, principal = 0, barInterest = 0, barPrincipal = 0;
        for (const ScheduleRow& row : schedule.payments) {
            interest += row.interest;
            principal += row.principal;
        }
        for (std::size_t i = 0; i < chart.bars.size(); ++i) {
            EXPECT_EQ(chart.bars[i].first, i == 0 ? 1 : chart.bars[i - 1].last + 1);
            barInterest += chart.bars[i].interest;
            barPrincipal += chart.bars[i].principal;
        }
        EXPECT_EQ(chart.bars.back().last, schedule.payments.back().payment);
        EXPECT_NEAR(barInterest, interest, 1e-6);
        EXPECT_NEAR(barPrincipal, principal, 1e-6);
        EXPECT_EQ(chart.description, c.description);
    }
}

// The diagram's arrows are the flows: CF0 at period 0, then each group for its Nj periods right
// after the one before, up to the first entry with no count; NPV and IRR/YR as the keys give them.
TEST(MoneyCharts, CashFlowArrowsAreTheFlows) {
    Engine e = WithKeys({{"1", fid::PYr}, {"-15000", fid::CashFlow}, {"4000", fid::CashFlow},
                         {"5500", fid::CashFlow}, {"3", fid::GroupCount}, {"7000", fid::CashFlow},
                         {"10", fid::IYr}});
    const CashFlowDiagram d = MakeCashFlowDiagram(e);
    const std::vector<FlowGroup> expected = {{0, 0, 1, -15000.0}, {1, 1, 1, 4000.0}, {2, 2, 3, 5500.0},
                                             {3, 5, 1, 7000.0}};
    ASSERT_EQ(d.groups.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(d.groups[i].entry, expected[i].entry);
        EXPECT_EQ(d.groups[i].firstPeriod, expected[i].firstPeriod);
        EXPECT_EQ(d.groups[i].count, expected[i].count);
        EXPECT_EQ(d.groups[i].amount, expected[i].amount);
    }
    EXPECT_EQ(d.periods, 5);
    EXPECT_EQ(d.description, "Cash flows over periods 0 to 5: 15,000 paid, 27,500 received");
    e.Dispatch(fid::Npv);
    ASSERT_TRUE(d.npv.has_value());
    EXPECT_EQ(*d.npv, e.X());
    e.Dispatch(fid::Irr);
    ASSERT_TRUE(d.irr.has_value());
    EXPECT_NEAR(*d.irr, e.X(), 1e-9);

    // Flows of one sign have no rate of return; a list of CF0 alone has neither figure.
    EXPECT_FALSE(MakeCashFlowDiagram(WithKeys({{"100", fid::CashFlow}, {"5", fid::CashFlow}})).irr.has_value());
    const CashFlowDiagram alone = MakeCashFlowDiagram(WithKeys({{"10", fid::IYr}, {"-100", fid::CashFlow}}));
    EXPECT_EQ(alone.groups.size(), 1u);
    EXPECT_FALSE(alone.npv.has_value());
    EXPECT_FALSE(alone.irr.has_value());
}

TEST(MoneyCharts, AmountTextGroupsWholeAmounts) {
    const std::tuple<double, bool, const char*> cases[] = {
        {100000.0, false, "100,000"}, {100000.0, true, "100.000"}, {-1234567.4, false, "1,234,567"},
        {999.5, false, "1,000"},      {12.5, false, "12.50"},      {0.07, true, "0,07"},
        {0.0, false, "0"},            {100.0, false, "100"},       {INFINITY, false, "error"},
    };
    for (const auto& [value, comma, text] : cases) {
        SCOPED_TRACE(text);
        EXPECT_EQ(AmountText(value, comma), text);
    }
}

}  // namespace
}  // namespace brinto
