#include "finance/amortization_schedule.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "engine/numeric/decimal_digits.h"
#include "finance/amortization.h"

namespace brinto {

namespace {

// N's integer part, held to what the amortization keys can reach.
int PaymentCount(double periods) {
    if (!(periods >= 1.0)) return 0;  // NaN too
    return static_cast<int>(std::min(std::trunc(periods), static_cast<double>(kMostSchedulePayments)));
}

int PaymentsPerYear(double perYear) {
    if (!(perYear >= 1.0)) return 1;
    return static_cast<int>(std::min(std::trunc(perYear), static_cast<double>(kMostSchedulePayments)));
}

void AppendAmount(std::string& line, double value, int places) {
    line += ',';
    if (!std::isfinite(value)) {
        line += "error";
        return;
    }
    if (value == 0.0) value = 0.0;  // a balance paid off from below shows 0, not -0
    char text[400];                 // the widest double in fixed notation
    const auto written = places >= 0 ? std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, places)
                                     : std::to_chars(text, text + sizeof text, value);
    line.append(text, written.ptr);
}

}  // namespace

AmortizationSchedule MakeAmortizationSchedule(const Engine& e) {
    const AmortizationTerms terms = TermsInForce(e);
    const int count = PaymentCount(e.registers.values[reg::N]);
    const int perYear = PaymentsPerYear(e.registers.values[reg::PYr]);
    AmortizationSchedule schedule;
    schedule.places = terms.places;
    schedule.payments.reserve(static_cast<std::size_t>(count));
    double balance = terms.presentValue, interest = 0.0, principal = 0.0;
    for (int k = 1; k <= count; ++k) {
        const PaymentSplit split = AmortizePayment(terms, balance, k == 1);
        balance = split.balance;
        schedule.payments.push_back({k, split.interest, split.principal, balance});
        // Summed and rounded as the amortization keys sum a range.
        interest += split.interest;
        principal += split.principal;
        if (k % perYear == 0 || k == count) {
            const int year = (k - 1) / perYear + 1;
            schedule.years.push_back({year, (year - 1) * perYear + 1, k, RoundToPlaces(interest, terms.places),
                                      RoundToPlaces(principal, terms.places), balance});
            interest = principal = 0.0;
        }
    }
    return schedule;
}

std::string ScheduleCsv(const AmortizationSchedule& schedule) {
    std::string csv = "Year,Payment,Interest,Principal,Balance\n";
    auto year = schedule.years.begin();
    for (const ScheduleRow& row : schedule.payments) {
        while (year != schedule.years.end() && year->lastPayment < row.payment) ++year;
        const int yearNumber = year != schedule.years.end() ? year->year : 0;
        csv += std::to_string(yearNumber) + ',' + std::to_string(row.payment);
        AppendAmount(csv, row.interest, schedule.places);
        AppendAmount(csv, row.principal, schedule.places);
        AppendAmount(csv, row.balance, schedule.places);
        csv += '\n';
        if (year != schedule.years.end() && year->lastPayment == row.payment) {
            csv += std::to_string(year->year) + ",Total";
            AppendAmount(csv, year->interest, schedule.places);
            AppendAmount(csv, year->principal, schedule.places);
            AppendAmount(csv, year->balance, schedule.places);
            csv += '\n';
        }
    }
    return csv;
}

}  // namespace brinto
