#include "engine/register_keys.h"

#include <array>

#include "engine/families.h"
#include "engine/numeric/decimal_digits.h"

namespace brinto {

namespace {

// pendingArgument holds the prefix key in its low byte, the arithmetic key chosen after it in the
// next byte, and the first of two register digits plus one in the third.
constexpr FunctionId KeyOf(u32 pending) { return FunctionIdFrom(pending & 0xFF); }
constexpr bool HasOperator(u32 pending) { return ((pending >> 8) & 0xFF) != 0; }
constexpr FunctionId OperatorOf(u32 pending) {
    return HasOperator(pending) ? FunctionIdFrom((pending >> 8) & 0xFF) : kNoKey;
}
constexpr int FirstDigitOf(u32 pending) { return static_cast<int>((pending >> 16) & 0xFF) - 1; }
constexpr u32 WithOperator(u32 pending, FunctionId op) { return pending | (ToNumber(op) << 8); }
constexpr u32 WithFirstDigit(u32 pending, int digit) { return pending | (static_cast<u32>(digit + 1) << 16); }

struct KeyRegister {
    FunctionId key;
    int registerNumber;
};
// Keys that name their own register after a register prefix.
constexpr std::array kKeyRegisters = {
    KeyRegister{fid::N, reg::N},          KeyRegister{fid::IYr, reg::IYr},
    KeyRegister{fid::PV, reg::PV},        KeyRegister{fid::PMT, reg::PMT},
    KeyRegister{fid::FV, reg::FV},        KeyRegister{fid::PYr, reg::PYr},
    KeyRegister{fid::Nom, reg::IYr},      KeyRegister{fid::Eff, reg::Eff},
    KeyRegister{fid::Cost, reg::Cost},    KeyRegister{fid::Price, reg::Price},
    KeyRegister{fid::Margin, reg::Margin}, KeyRegister{fid::Markup, reg::Margin},
    KeyRegister{fid::RecallSumX, reg::SumX}, KeyRegister{fid::RecallSumX2, reg::SumX2},
    KeyRegister{fid::RecallSumY, reg::SumY}, KeyRegister{fid::RecallSumY2, reg::SumY2},
    KeyRegister{fid::RecallSumXY, reg::SumXY}, KeyRegister{fid::RecallN, reg::StatN},
    KeyRegister{fid::DaysPerYear, reg::DaysPerYear},   KeyRegister{fid::DaysPerMonth, reg::DaysPerMonth},
    KeyRegister{fid::DaysPerWeek, reg::DaysPerWeek},   KeyRegister{fid::HoursPerDay, reg::HoursPerDay},
    KeyRegister{fid::FramesPerSecond, reg::FramesPerSecond},
};

bool IsRegisterPrefix(FunctionId id) { return FamilyOf(id) == kf::Register; }

// Two-digit register numbers with the large register set: its own key variants, or the plain
// keys while "100 Registers" is on.
bool TwoDigitArgument(const Engine& e, FunctionId prefix) {
    if (prefix == fid::RecallLarge || prefix == fid::ExchangeLarge || prefix == fid::StoreLarge) return true;
    if (prefix == fid::RecallVariant || prefix == fid::ExchangeVariant || prefix == fid::StoreVariant) return false;
    return e.prefs.HundredRegisters();
}

// The arithmetic a register prefix takes: the four operators, their integer variants read as them;
// kNoKey for any other key.
FunctionId PlainArithmetic(FunctionId id) {
    switch (id) {
        case fid::Add: case fid::IntegerAdd: return fid::Add;
        case fid::Subtract: case fid::IntegerSubtract: return fid::Subtract;
        case fid::Multiply: case fid::IntegerMultiply: return fid::Multiply;
        case fid::Divide: case fid::IntegerDivide: return fid::Divide;
        default: return kNoKey;
    }
}

double Combine(double left, FunctionId op, double right) {
    switch (op) {
        case fid::Add: return left + right;
        case fid::Subtract: return RoundTo14(left - right);  // the clean difference
        case fid::Multiply: return left * right;
        case fid::Divide: return left / right;
        default: return right;
    }
}

void Complete(Engine& e, int registerNumber) {
    const u32 pending = e.state.pendingArgument;
    e.state.pendingArgument = kNoPendingArgument;
    RegisterOperation(e, RegisterBase(KeyOf(pending)), OperatorOf(pending), registerNumber);
}

}  // namespace

ValueTag RegisterLabel(const Engine& e, int r) {
    if (r < kUserRegisters) return label::CashFlow;
    switch (r) {
        case reg::N: {
            const double perYear = e.registers.values[reg::PYr];
            return perYear == 1.0 ? label::Years : perYear == 12.0 ? label::Months : label::Periods;
        }
        case reg::IYr: return label::YearlyRate;
        case reg::PV: return label::PresentValue;
        case reg::PMT: return label::Payment;
        case reg::FV: return label::FutureValue;
        case reg::Eff: return label::Effective;
        case reg::PYr: return label::PerYear;
        case reg::Cost: return label::Cost;
        case reg::Price: return label::Price;
        case reg::Margin: return (e.state.status & status::Markup) ? label::Markup : label::Margin;
        case reg::SumX: return label::SumX;
        case reg::SumX2: return label::SumX2;
        case reg::SumY: return label::SumY;
        case reg::SumY2: return label::SumY2;
        case reg::SumXY: return label::SumXY;
        case reg::StatN: return label::Count;
        case reg::DaysPerYear: return label::DaysPerYear;
        case reg::DaysPerMonth: return label::DaysPerMonth;
        case reg::DaysPerWeek: return label::DaysPerWeek;
        case reg::HoursPerDay: return label::HoursPerDay;
        case reg::FramesPerSecond: return label::FramesPerSecond;
        default: return ValueTag::None;
    }
}

int RegisterOfKey(FunctionId id) {
    for (const KeyRegister& k : kKeyRegisters) {
        if (k.key == id) return k.registerNumber;
    }
    return -1;
}

void RegisterOperation(Engine& e, FunctionId base, FunctionId op, int r) {
    if (r < 0 || r >= kRegisterCount) return;
    double& value = e.registers.values[r];
    switch (base) {
        case fid::Store:
            value = Combine(value, op, e.X());
            break;
        case fid::Recall:
            if (op != kNoKey) {
                e.SaveLastX();
                e.SetX(Combine(e.X(), op, value));
                break;
            }
            e.RecallLift();
            e.SetX(value);
            e.SetXTag(RegisterLabel(e, r));
            if (r < kUserRegisters) e.state.aux[0] = static_cast<u16>(r);
            break;
        case fid::Exchange: {
            const double x = e.X();
            e.SetX(value);
            e.SetXTag(RegisterLabel(e, r));
            if (r < kUserRegisters) e.state.aux[0] = static_cast<u16>(r);
            value = x;
            break;
        }
        default:
            return;
    }
    e.registers.lastRegister = static_cast<u16>(r);
    e.dirty.registers = true;
}

std::optional<PendingRegister> PendingRegisterOf(const Engine& e) {
    const u32 pending = e.state.pendingArgument;
    if (pending == kNoPendingArgument) return std::nullopt;
    return PendingRegister{KeyOf(pending), OperatorOf(pending), FirstDigitOf(pending)};
}

bool HandleRegisterKey(Engine& e, FunctionId id) {
    CalcState& s = e.state;
    if (s.pendingArgument == kNoPendingArgument) {
        if (!IsRegisterPrefix(id)) return false;
        s.pendingArgument = ToNumber(id);
        return true;
    }
    // A register prefix is waiting for its argument: it intercepts keys of other families (digits,
    // the arithmetic operators, CFj and the keys that name a register) before their own handlers.
    if (FamilyOf(id) == kf::Shift) return false;
    const u32 pending = s.pendingArgument;
    const FunctionId base = RegisterBase(KeyOf(pending));
    const int firstDigit = FirstDigitOf(pending);
    const FunctionId arithmetic = PlainArithmetic(id);
    if (id == fid::Backspace) {
        s.pendingArgument = kNoPendingArgument;
        return true;
    }
    if (arithmetic != kNoKey && !HasOperator(pending) && firstDigit < 0 && base != fid::Exchange) {
        s.pendingArgument = WithOperator(pending, arithmetic);
        return true;
    }
    if (IsDecimalDigit(id)) {
        const int digit = DigitValue(id);
        if (TwoDigitArgument(e, KeyOf(pending)) && firstDigit < 0) {
            s.pendingArgument = WithFirstDigit(pending, digit);
            return true;
        }
        Complete(e, firstDigit < 0 ? digit : firstDigit * 10 + digit);
        return true;
    }
    if (firstDigit < 0 && id == fid::CashFlow) {
        const int next = e.registers.lastRegister + 1;
        if (next >= kUserRegisters) {
            s.pendingArgument = kNoPendingArgument;
            return true;  // no register after the last one: the prefix is simply dropped
        }
        Complete(e, next);
        return true;
    }
    if (firstDigit < 0) {
        const int named = RegisterOfKey(id);
        if (named >= 0) {
            if (id == fid::Margin || id == fid::Markup) {
                // Naming the register with the margin or markup key also says how to read it.
                if (base != fid::Recall) {
                    s.status = static_cast<u16>(id == fid::Markup ? s.status | status::Markup
                                                                  : s.status & ~status::Markup);
                }
            }
            Complete(e, named);
            return true;
        }
    }
    // Any other key cancels the prefix and is dispatched as usual.
    s.pendingArgument = kNoPendingArgument;
    return false;
}

}  // namespace brinto
