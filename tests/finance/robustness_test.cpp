#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "display/display_text.h"
#include "finance_test_support.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Type;

// Every key of the financial and statistical keyboards, both shift states, and the result keys
// that share the scientific family's place.
const std::vector<FunctionId> kKeys = {
    fid::N,       fid::IYr,      fid::PV,           fid::PMT,        fid::FV,          fid::PYr,
    fid::Nom,     fid::Eff,      fid::TimesPYr,     fid::DividePYr,  fid::Cost,        fid::Price,
    fid::Margin,  fid::Markup,   fid::Amortize,     fid::AmortizeNext, fid::CashFlow,  fid::GroupCount,
    fid::Npv,     fid::Irr,      fid::SigmaPlus,    fid::SigmaMinus, fid::RecallSumX,  fid::RecallSumX2,
    fid::RecallSumY, fid::RecallSumY2, fid::RecallSumXY, fid::RecallN, fid::MeanX,     fid::WeightedMean,
    fid::MeanY,   fid::EstimateX, fid::EstimateY,   fid::SampleDeviation, fid::PopulationDeviation,
    fid::Amortize2, fid::Equals, fid::ClearFinancial, fid::ClearStatistics, fid::BeginEnd,
};

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kHuge = std::numeric_limits<double>::max();

struct Contents {
    const char* name;
    std::function<void(Engine&)> set;
};

void FillFinancial(Engine& e, double value) {
    for (int r = 0; r < kRegisterCount; ++r) e.registers.values[r] = value;
}

const std::vector<Contents> kContents = {
    {"reset", [](Engine&) {}},
    {"zeroPerYear", [](Engine& e) { e.registers.values[reg::PYr] = 0.0; }},
    {"allNan", [](Engine& e) { FillFinancial(e, kNan); }},
    {"allInfinite", [](Engine& e) { FillFinancial(e, kErrorValue); }},
    {"allNegativeInfinite", [](Engine& e) { FillFinancial(e, -kErrorValue); }},
    {"allHuge", [](Engine& e) { FillFinancial(e, kHuge); }},
    {"zeroPeriods", [](Engine& e) { e.registers.values[reg::N] = 0.0; e.registers.values[reg::PV] = 1000; }},
    {"negativePeriods", [](Engine& e) { e.registers.values[reg::N] = -5.5; e.registers.values[reg::PMT] = -10; }},
    {"farNegativePeriods", [](Engine& e) { e.registers.values[reg::N] = -1e300; e.state.amortStart = 3; }},
    {"manyPeriods",
     [](Engine& e) {
         e.registers.values[reg::N] = 1e300;
         e.registers.values[reg::PV] = 1e6;
         e.registers.values[reg::IYr] = 5;
         e.state.amortStart = 32767;
         e.state.amortEnd = 32767;
     }},
    {"fullList",
     [](Engine& e) {
         e.registers.cashFlowCount = 99;
         for (int j = 0; j < kUserRegisters; ++j) {
             e.registers.aux[j] = 0x7FFFFFFF;
             e.registers.values[j] = j % 2 ? 1e3 : -1e3;
         }
     }},
    {"negativeGroups",
     [](Engine& e) {
         e.registers.cashFlowCount = 5;
         for (int j = 0; j < kUserRegisters; ++j) e.registers.aux[j] = 0x80000000u;
     }},
    {"damagedCount", [](Engine& e) { e.registers.cashFlowCount = 300; }},
    {"damagedNegativeCount", [](Engine& e) { e.registers.cashFlowCount = -300; }},
    {"damagedAmortization",
     [](Engine& e) {
         e.state.amortStep = 7;
         e.state.amortStart = -32768;
         e.state.amortEnd = 32767;
         e.state.amortBalance = kNan;
         e.state.repeatOperator = fid::Amortize;
         e.registers.values[reg::N] = 40;
     }},
};

const std::vector<double> kXValues = {0.0, kNan, kErrorValue, -kErrorValue, -kHuge, 1e9, -2.5};

TEST(FinanceRobustness, NoKeyFailsOnAnyRegisterContents) {
    for (const Contents& c : kContents) {
        for (const bool typed : {false, true}) {
            for (const double x : kXValues) {
                SCOPED_TRACE(testing::Message() << c.name << (typed ? " typed" : "") << " x=" << x);
                Engine e = MakeEngine(InputMethod::Rpn);
                e.prefs.SetDigitField(3);
                c.set(e);
                e.SetX(x);
                e.SetLevel(1, {x, 0, kNoAux});
                for (const FunctionId key : kKeys) {
                    if (typed) Type(e, "12");
                    e.Dispatch(key);
                    // The display must be able to show whatever the key left.
                    for (int level = 0; level < 4; ++level) DisplayLevel(e, level);
                }
            }
        }
    }
}

TEST(FinanceRobustness, DamagedCashFlowCountRefusesTheEntryKeys) {
    for (const i16 count : {i16{100}, i16{300}, i16{-2}, i16{-300}}) {
        SCOPED_TRACE(count);
        Engine e = MakeEngine(InputMethod::Rpn);
        e.registers.cashFlowCount = count;
        Type(e, "5");
        EXPECT_EQ(e.Dispatch(fid::CashFlow), 0u);
        EXPECT_EQ(e.Dispatch(fid::GroupCount), 0u);
        EXPECT_EQ(e.registers.cashFlowCount, count);
    }
}

}  // namespace
}  // namespace brinto
