#pragma once
// The labels that financial and statistical results carry as tags in X, so the display names
// the quantity beside its value.
#include "engine/types.h"

namespace brinto::label {

// Statistics.
inline constexpr ValueTag Count = 1300;  // "n"
inline constexpr ValueTag SumX = 1301;
inline constexpr ValueTag SumX2 = 1302;
inline constexpr ValueTag SumY = 1303;
inline constexpr ValueTag SumY2 = 1304;
inline constexpr ValueTag SumXY = 1305;
inline constexpr ValueTag MeanX = 1306;
inline constexpr ValueTag WeightedMean = 1307;  // "mean xw"
inline constexpr ValueTag MeanY = 1308;
inline constexpr ValueTag SampleDeviationX = 1309;  // "s x"
inline constexpr ValueTag SampleDeviationY = 1310;
inline constexpr ValueTag PopulationDeviationX = 1311;  // "pop s x"
inline constexpr ValueTag PopulationDeviationY = 1312;
inline constexpr ValueTag EstimateX = 1313;
inline constexpr ValueTag EstimateY = 1314;
inline constexpr ValueTag Correlation = 1315;  // "r"
inline constexpr ValueTag Slope = 1316;        // "m"

// Financial.
inline constexpr ValueTag Cost = 1400;
inline constexpr ValueTag Price = 1401;
inline constexpr ValueTag Margin = 1402;
inline constexpr ValueTag Markup = 1403;
inline constexpr ValueTag PerYear = 1404;  // "P/YR"
inline constexpr ValueTag Nominal = 1405;  // "NOM%"
inline constexpr ValueTag Effective = 1406;  // "EFF%"
inline constexpr ValueTag Periods = 1407;  // "N", when P/YR is neither 1 nor 12
inline constexpr ValueTag YearlyRate = 1408;  // "I/YR"
inline constexpr ValueTag Payment = 1409;
inline constexpr ValueTag PresentValue = 1410;
inline constexpr ValueTag FutureValue = 1411;
inline constexpr ValueTag Interest = 1412;   // "Int"
inline constexpr ValueTag Principal = 1413;  // "Prin"
inline constexpr ValueTag Balance = 1414;    // "Bal"
inline constexpr ValueTag ReturnRate = 1415;  // "IRR/YR"
inline constexpr ValueTag Start = 1416;
inline constexpr ValueTag End = 1417;
inline constexpr ValueTag NetPresentValue = 1418;
inline constexpr ValueTag CashFlow = 1419;    // "CFj"
inline constexpr ValueTag GroupCount = 1420;  // "Nj"
inline constexpr ValueTag Years = 1804;
inline constexpr ValueTag Months = 1805;

}  // namespace brinto::label
