// The financial family: the keys that store into a financial register or, when no number is
// being typed, solve for it (TVM, P/YR, NOM% and EFF%, cost, price, margin and markup), the
// P/YR conversions, and the cash-flow entry keys. Also the financial and statistical results
// that share the scientific family's place in the chain: amortization, NPV, IRR/YR, statistics.
#include <algorithm>
#include <array>

#include "engine/value_tags.h"
#include "finance/amortization.h"
#include "finance/cash_flows.h"
#include "finance/interest_and_margins.h"
#include "finance/key_handlers.h"
#include "finance/statistics.h"
#include "finance/tvm.h"

namespace brinto {

namespace {

// Storing a new loan quantity invalidates the balance an amortization has reached.
enum class Balance { Keep, Restart };
// What the key says about the meaning of register 109.
enum class Percent { AsBefore, IsMargin, IsMarkup };

struct RegisterKey {
    FunctionId id;
    int registerNumber;
    double (*compute)(Engine&);  // the value when no number is being typed
    ValueTag label;              // N's label instead follows P/YR
    Balance balance;
    Percent percent;
};

MarginMeaning MeaningOf(const Engine& e) {
    return (e.state.status & status::Markup) ? MarginMeaning::Markup : MarginMeaning::Margin;
}

double Register(const Engine& e, int r) { return e.registers.values[r]; }

double ComputeYearlyRate(Engine& e) {
    // A failed solve leaves the error value in I/YR; it is no guess to start from.
    double& rate = e.registers.values[reg::IYr];
    if (IsErrorValue(rate)) rate = 0.0;
    return SolveYearlyRate(TvmFromRegisters(e));
}

constexpr std::array kRegisterKeys = {
    RegisterKey{fid::N, reg::N, [](Engine& e) { return SolvePeriods(TvmFromRegisters(e)); },
                label::Periods, Balance::Keep, Percent::AsBefore},
    RegisterKey{fid::IYr, reg::IYr, ComputeYearlyRate, label::YearlyRate, Balance::Restart, Percent::AsBefore},
    RegisterKey{fid::PV, reg::PV, [](Engine& e) { return SolvePresentValue(TvmFromRegisters(e)); },
                label::PresentValue, Balance::Restart, Percent::AsBefore},
    RegisterKey{fid::PMT, reg::PMT, [](Engine& e) { return SolvePayment(TvmFromRegisters(e)); },
                label::Payment, Balance::Restart, Percent::AsBefore},
    RegisterKey{fid::FV, reg::FV, [](Engine& e) { return SolveFutureValue(TvmFromRegisters(e)); },
                label::FutureValue, Balance::Keep, Percent::AsBefore},
    RegisterKey{fid::PYr, reg::PYr, [](Engine& e) { return Register(e, reg::PYr); },  // only recalls
                label::PerYear, Balance::Restart, Percent::AsBefore},
    RegisterKey{fid::Nom, reg::IYr,
                [](Engine& e) { return NominalRate(Register(e, reg::Eff), Register(e, reg::PYr)); },
                label::Nominal, Balance::Restart, Percent::AsBefore},
    RegisterKey{fid::Eff, reg::Eff,
                [](Engine& e) { return EffectiveRate(Register(e, reg::IYr), Register(e, reg::PYr)); },
                label::Effective, Balance::Keep, Percent::AsBefore},
    RegisterKey{fid::Cost, reg::Cost,
                [](Engine& e) { return CostFromPrice(Register(e, reg::Price), Register(e, reg::Margin), MeaningOf(e)); },
                label::Cost, Balance::Keep, Percent::AsBefore},
    RegisterKey{fid::Price, reg::Price,
                [](Engine& e) { return PriceFromCost(Register(e, reg::Cost), Register(e, reg::Margin), MeaningOf(e)); },
                label::Price, Balance::Keep, Percent::AsBefore},
    RegisterKey{fid::Margin, reg::Margin,
                [](Engine& e) { return MarginOf(Register(e, reg::Cost), Register(e, reg::Price)); },
                label::Margin, Balance::Keep, Percent::IsMargin},
    RegisterKey{fid::Markup, reg::Margin,
                [](Engine& e) { return MarkupOf(Register(e, reg::Cost), Register(e, reg::Price)); },
                label::Markup, Balance::Keep, Percent::IsMarkup},
};

consteval bool DistinctKeys(const auto& table) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        for (std::size_t j = i + 1; j < table.size(); ++j) {
            if (table[i].id == table[j].id) return false;
        }
    }
    return true;
}
static_assert(DistinctKeys(kRegisterKeys), "a financial key appears twice");
// An amortization's balance rests on the rate, the loan, the payment and their period only.
static_assert(std::ranges::all_of(kRegisterKeys, [](const RegisterKey& key) {
    const int r = key.registerNumber;
    return (key.balance == Balance::Restart) == (r == reg::IYr || r == reg::PV || r == reg::PMT || r == reg::PYr);
}));

// Store or solve: the choice rests only on whether a number is being typed. A typed number is
// stored and the next number replaces it; otherwise the register is computed from the others,
// shown in X (lifted in when lift is enabled) and stored too.
void StoreOrSolve(Engine& e, const RegisterKey& key) {
    if (e.EntryOpen()) {
        e.FinishEntry();
        e.DisableLift();
    } else {
        if (e.LiftEnabled()) e.Lift();
        e.SetX(key.compute(e));
    }
    e.registers.values[key.registerNumber] = e.X();
    if (key.percent == Percent::IsMargin) ClearBits(e.state.status, status::Markup);
    if (key.percent == Percent::IsMarkup) e.state.status |= status::Markup;
    e.SetXTag(key.registerNumber == reg::N ? PeriodsLabel(Register(e, reg::PYr)) : key.label);
    if (key.balance == Balance::Restart) e.state.amortBalance = 0.0;
    e.dirty.registers = true;
}

}  // namespace

bool HandleFinancialKey(Engine& e, FunctionId id) {
    for (const RegisterKey& key : kRegisterKeys) {
        if (key.id == id) {
            StoreOrSolve(e, key);
            return true;
        }
    }
    switch (id) {
        case fid::TimesPYr: TimesPerYearKey(e); return true;
        case fid::DividePYr: DividePerYearKey(e); return true;
        case fid::CashFlow: return AppendCashFlow(e);
        case fid::GroupCount: return SetGroupCount(e);
        default: return false;
    }
}

bool HandleFinanceResultKey(Engine& e, FunctionId id) {
    switch (id) {
        case fid::Amortize:
        case fid::SecondAmortize: AmortizeKey(e); return true;
        case fid::AmortizeNext:
            e.FinishEntry();
            Amortize(e, Continuation::NextBlock);
            return true;
        case fid::Npv: NetPresentValueKey(e); return true;
        case fid::Irr: InternalRateKey(e); return true;
        default: return false;
    }
}

}  // namespace brinto
