#include "finance/interest_and_margins.h"

#include <cmath>

#include "finance/clean_difference.h"

namespace brinto {

double NominalRate(double effective, double perYear) {
    return CleanDifference(std::pow(effective * 0.01 + 1.0, 1.0 / perYear), 1.0) * perYear * 100.0;
}

double EffectiveRate(double nominal, double perYear) {
    return CleanDifference(std::pow((nominal / perYear) * 0.01 + 1.0, perYear), 1.0) * 100.0;
}

double CostFromPrice(double price, double percent, MarginMeaning meaning) {
    switch (meaning) {
        case MarginMeaning::Margin: return CleanDifference(100.0, percent) * price * 0.01;
        case MarginMeaning::Markup: return (price * 100.0) / (percent + 100.0);
    }
    return 0.0;
}

double PriceFromCost(double cost, double percent, MarginMeaning meaning) {
    switch (meaning) {
        case MarginMeaning::Margin: return (100.0 / CleanDifference(100.0, percent)) * cost;
        case MarginMeaning::Markup: return (percent + 100.0) * cost * 0.01;
    }
    return 0.0;
}

double MarginOf(double cost, double price) { return (CleanDifference(price, cost) / price) * 100.0; }

double MarkupOf(double cost, double price) { return (CleanDifference(price, cost) / cost) * 100.0; }

}  // namespace brinto
