// Every key of the Financial and Statistical 12-key blocks, in both shift states, reaches its
// function: the key is accepted and leaves its result's label on X.
#include <gtest/gtest.h>

#include <optional>

#include "finance/result_labels.h"
#include "finance_test_support.h"
#include "session/keyboards.h"

namespace brinto {
namespace {

using test::MakeEngine;
using test::Store;

// The label a key leaves on X, or nullopt for keys that label nothing (prefixes, modes, clears)
// and for the scientific keys that share the Statistical keyboard.
std::optional<ValueTag> LabelAfter(FunctionId key) {
    switch (key) {
        case fid::N: case fid::TimesPYr: return label::Months;
        case fid::IYr: return label::YearlyRate;
        case fid::PV: return label::PresentValue;
        case fid::PMT: return label::Payment;
        case fid::FV: return label::FutureValue;
        case fid::PYr: case fid::ClearFinancial: return label::PerYear;
        case fid::Nom: return label::Nominal;
        case fid::Eff: return label::Effective;
        case fid::DividePYr: return 0;  // X is labelled "n" here, which is no number of periods
        case fid::Cost: return label::Cost;
        case fid::Price: return label::Price;
        case fid::Margin: return label::Margin;
        case fid::Markup: return label::Markup;
        case fid::Amortize: case fid::AmortizeNext: return label::Interest;
        case fid::CashFlow: return label::CashFlow;
        case fid::GroupCount: return label::GroupCount;
        case fid::Npv: return label::NetPresentValue;
        case fid::Irr: return label::ReturnRate;
        case fid::SigmaPlus: case fid::SigmaMinus: case fid::RecallN: return label::Count;
        case fid::RecallSumX: return label::SumX;
        case fid::RecallSumX2: return label::SumX2;
        case fid::RecallSumY: return label::SumY;
        case fid::RecallSumY2: return label::SumY2;
        case fid::RecallSumXY: return label::SumXY;
        case fid::MeanX: return label::MeanX;
        case fid::WeightedMean: return label::WeightedMean;
        case fid::MeanY: return label::MeanY;
        case fid::EstimateX: return label::EstimateX;
        case fid::EstimateY: return label::EstimateY;
        case fid::SampleDeviation: return label::SampleDeviationX;
        case fid::PopulationDeviation: return label::PopulationDeviationX;
        default: return std::nullopt;
    }
}

bool IsScientific(FunctionId key) {
    return key == fid::Random || key == fid::Factorial || key == fid::LogGamma || key == fid::Combinations ||
           key == fid::Permutations;
}

// A loan, a cash-flow list and two data points, so that every key has something to work on.
Engine Loaded() {
    Engine e = MakeEngine(InputMethod::Rpn);
    Store(e, "360", fid::N);
    Store(e, "6", fid::IYr);
    Store(e, "100000", fid::PV);
    e.Dispatch(fid::PMT);
    Store(e, "-1000", fid::CashFlow);
    Store(e, "300", fid::CashFlow);
    Store(e, "4", fid::GroupCount);
    Store(e, "80", fid::Cost);
    Store(e, "100", fid::Price);
    Store(e, "1", fid::Margin);
    for (const char* x : {"1", "3"}) {
        Store(e, "2", fid::Enter);
        Store(e, x, fid::SigmaPlus);
    }
    e.state.amortStart = 1;
    e.state.amortEnd = 12;
    return e;
}

TEST(KeyboardKeys, FinancialAndStatisticalBlocksReachTheirFunctions) {
    const UserKeyMap noUserKeys{};
    for (const int keyboard : {1, 3}) {
        for (const int shift : {0, 1}) {
            for (const u32 key : KeyLayout(keyboard, shift, noUserKeys)) {
                SCOPED_TRACE(testing::Message() << "keyboard " << keyboard << " shift " << shift << " key " << key);
                if (IsScientific(key)) continue;
                Engine e = Loaded();
                e.Dispatch(fid::Enter);  // nothing typed: every key computes or recalls
                EXPECT_NE(e.Dispatch(key), 0u);
                const std::optional<ValueTag> label = LabelAfter(key);
                if (label) {
                    EXPECT_EQ(e.XTag(), *label);
                }
            }
        }
    }
}

}  // namespace
}  // namespace brinto
