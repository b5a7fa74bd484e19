#include "session/money_charts.h"

#include <cmath>

#include "finance/cash_flows.h"

namespace brinto {

namespace {

std::string Plural(int count, const char* one, const char* many) {
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

std::string BalanceDescription(ScheduleChart& chart, int payments, bool commaRadix) {
    chart.payments = payments;
    if (payments == 0) return "No payments to chart";
    double start = std::fabs(chart.balance.front().balance);
    double end = std::fabs(chart.balance.back().balance);
    // A summary of a large loan needs no cents: the 0.45 that a rounded payment leaves is 0.
    if (std::fmax(start, end) >= 1000.0) {
        start = std::round(start);
        end = std::round(end);
    }
    // Compared as shown, so that a balance left at 0.004 does not "fall" to 0 from 0.
    const std::string from = AmountText(start, commaRadix), to = AmountText(end, commaRadix);
    const char* verb = from == to ? "stays at " : end < start ? "falls from " : "grows from ";
    chart.trend = from == to ? BalanceTrend::Stays : end < start ? BalanceTrend::Falls : BalanceTrend::Grows;
    chart.from = from;
    chart.to = to;
    std::string text = std::string("Balance ") + verb + from;
    if (from != to) text += " to " + to;
    return text + " over " + Plural(payments, "payment", "payments");
}

}  // namespace

std::string AmountText(double value, bool commaRadix) {
    if (!std::isfinite(value)) return "error";
    value = std::fabs(value);
    const bool cents = value < 100.0 && std::round(value) != value;
    const double hundredths = std::round(value * (cents ? 100.0 : 1.0));
    std::string digits = std::to_string(static_cast<long long>(hundredths));
    std::string decimals;
    if (cents) {
        digits.insert(0, std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0'));
        decimals = std::string(1, commaRadix ? ',' : '.') + digits.substr(digits.size() - 2);
        digits.erase(digits.size() - 2);
    }
    for (int at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3) {
        digits.insert(static_cast<std::size_t>(at), 1, commaRadix ? '.' : ',');
    }
    return digits + decimals;
}

ScheduleChart MakeScheduleChart(const AmortizationSchedule& schedule, double startBalance, bool commaRadix) {
    ScheduleChart chart;
    chart.balance.push_back({0, startBalance});
    for (const ScheduleRow& row : schedule.payments) chart.balance.push_back({row.payment, row.balance});
    const int payments = static_cast<int>(schedule.payments.size());
    chart.byYear = payments > kMostPaymentBars;
    if (chart.byYear) {
        for (const ScheduleYear& y : schedule.years) {
            chart.bars.push_back({y.firstPayment, y.lastPayment, y.interest, y.principal});
        }
    } else {
        for (const ScheduleRow& row : schedule.payments) {
            chart.bars.push_back({row.payment, row.payment, row.interest, row.principal});
        }
    }
    chart.description = BalanceDescription(chart, payments, commaRadix);
    return chart;
}

CashFlowDiagram MakeCashFlowDiagram(const Engine& e) {
    CashFlowDiagram d;
    const RegisterBank& r = e.registers;
    double paid = 0.0, received = 0.0;
    for (int j = 0; j < kMostCashFlows && r.aux[j] >= 1; ++j) {
        const int count = j == 0 ? 1 : static_cast<int>(r.aux[j]);
        const int first = j == 0 ? 0 : d.periods + 1;
        d.groups.push_back({j, first, count, r.values[j]});
        d.periods = first + count - 1;
        (r.values[j] < 0 ? paid : received) += std::fabs(r.values[j]) * count;
    }
    const double rate = r.values[reg::IYr];
    const double npv = NetPresentValue(r, rate);
    if (std::isfinite(npv) && d.groups.size() > 1) d.npv = npv;
    const double irr = InternalRateOfReturn(r, std::isfinite(rate) ? rate : 0.0);
    if (std::isfinite(irr) && d.groups.size() > 1) d.irr = irr;

    const bool comma = e.prefs.CommaRadix();
    const std::string span = d.periods == 0 ? "at period 0" : "over periods 0 to " + std::to_string(d.periods);
    d.paid = AmountText(paid, comma);
    d.received = AmountText(received, comma);
    d.description = "Cash flows " + span + ": " + d.paid + " paid, " + d.received + " received";
    return d;
}

}  // namespace brinto
