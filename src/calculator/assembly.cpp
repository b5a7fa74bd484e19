#include "calculator/assembly.h"

#include <array>

#include "finance/key_handlers.h"
#include "ops/key_handlers.h"

namespace brinto {

namespace {

// A register prefix waiting for its register comes first, then a display-format key waiting for its
// digit: each takes keys of other families while it waits.
constexpr std::array kChain = {
    Family{kf::Register, HandleRegisterKey, true},
    Family{kf::Format, HandleFormatPrefix, true},
    Family{kf::Mode, HandleModeKey, true},
    Family{kf::Financial, HandleFinancialKey, true},
    Family{kf::Scientific, HandleScientificKey, true},
    Family{kf::FinanceResult, HandleFinanceResultKey, true},
    Family{kf::Statistics, HandleStatisticsKey, true},
    Family{kf::Date, HandleDateKey, true},
    Family{kf::Integer, HandleIntegerKey, true},
    Family{kf::Conversion, HandleConversionKey, true},
    Family{kf::Operator, HandleOperator, false},
};

constexpr KeyFamilies kCalculator{kChain, EvaluateTwoOperand, AmortizationRepeat, RederiveIntegerTag};

}  // namespace

const KeyFamilies& CalculatorFamilies() { return kCalculator; }

}  // namespace brinto
