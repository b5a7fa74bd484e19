#pragma once
// Conversion between the nominal and the effective yearly rate, and the retail relations of
// cost, price, margin (percent of price) and markup (percent of cost). Each difference is
// cleaned to 14 digits, so that round trips come back to the value typed.
namespace brinto {

double NominalRate(double effective, double perYear);  // NOM% from EFF%
double EffectiveRate(double nominal, double perYear);  // EFF% from NOM% (I/YR)

enum class MarginMeaning { Margin, Markup };  // how register 109 is read

double CostFromPrice(double price, double percent, MarginMeaning meaning);
double PriceFromCost(double cost, double percent, MarginMeaning meaning);
double MarginOf(double cost, double price);
double MarkupOf(double cost, double price);

}  // namespace brinto
