#pragma once
// What the two pictures of money over time show, worked out without drawing: the amortization
// schedule's chart (the balance after each payment, and each period's interest and principal)
// and the cash-flow diagram of the Cash Flow Entries view (an arrow per flow on a time line, with
// NPV and IRR/YR when they are defined). The Qt program only draws these; reading them changes
// nothing in the calculator.
#include <optional>
#include <string>
#include <vector>

#include "engine/engine.h"
#include "finance/amortization_schedule.h"

namespace brinto {

// A loan of more payments than this shows its interest and principal by year, one bar a year.
inline constexpr int kMostPaymentBars = 60;

struct BalancePoint {
    int payment;  // 0: before the first payment
    double balance;
};

// One bar of the chart: a payment's, or a year's, interest and principal.
struct PeriodBar {
    int first, last;  // the payments it covers (first == last for one payment)
    double interest;
    double principal;
};

// Which way the balance goes over the schedule, as the description says it.
enum class BalanceTrend { NoPayments, Stays, Falls, Grows };

struct ScheduleChart {
    std::vector<BalancePoint> balance;  // the balance before payment 1, then one per schedule row
    std::vector<PeriodBar> bars;        // one per payment, or one per year past kMostPaymentBars
    bool byYear = false;
    std::string description;            // "Balance falls from 100,000 to 0 over 360 payments"
    // The description's parts, for a window that says it in another language.
    BalanceTrend trend = BalanceTrend::NoPayments;
    std::string from, to;  // the amounts as the description shows them
    int payments = 0;
};

// The chart of `schedule`, whose balance before the first payment is `startBalance` (PV).
// `commaRadix`: amounts in the description are grouped with points, as the display does then.
ScheduleChart MakeScheduleChart(const AmortizationSchedule& schedule, double startBalance, bool commaRadix);

// One cash-flow group: `count` equal flows, one a period from `firstPeriod` on. CF0 is the group
// at period 0 with a count of 1.
struct FlowGroup {
    int entry;  // 0 for CF0
    int firstPeriod;
    int count;
    double amount;  // above zero received, below zero paid
};

struct CashFlowDiagram {
    std::vector<FlowGroup> groups;
    int periods = 0;  // the last period with a flow
    std::optional<double> npv;  // at I/YR; none where it is not defined
    std::optional<double> irr;  // IRR/YR; none where there is no rate of return
    std::string description;    // "Cash flows over periods 0 to 5: 15,000 paid, 27,500 received"
    std::string paid, received;  // the description's amounts, for a window in another language
};

// The diagram of the cash-flow list in the registers: the entries with a group count of 1 or
// more, from CF0 on.
CashFlowDiagram MakeCashFlowDiagram(const Engine& e);

// A whole amount with groups of three (100,000; with `commaRadix`, 100.000); two decimals when
// it is smaller than 100 and not whole. No sign.
std::string AmountText(double value, bool commaRadix);

}  // namespace brinto
