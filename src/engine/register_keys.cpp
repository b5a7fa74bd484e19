#include "engine/register_keys.h"

#include <array>

#include "engine/families.h"
#include "engine/numeric/decimal_digits.h"

namespace brinto {

namespace {

// pendingArgument holds the prefix key in its low byte, the arithmetic key chosen after it in the
// next byte, and the first of two register digits plus one in the third.
constexpr u32 KeyOf(u32 pending) { return pending & 0xFF; }
constexpr u32 OperatorOf(u32 pending) { return (pending >> 8) & 0xFF; }
constexpr int FirstDigitOf(u32 pending) { return static_cast<int>((pending >> 16) & 0xFF) - 1; }

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
    KeyRegister{198, reg::DaysPerYear},   KeyRegister{199, reg::DaysPerMonth},
    KeyRegister{200, reg::DaysPerWeek},   KeyRegister{201, reg::HoursPerDay},
    KeyRegister{202, reg::FramesPerSecond},
};

bool IsRegisterPrefix(FunctionId id) {
    const FunctionId base = RegisterBase(id);
    return base == fid::Store || base == fid::Recall || base == fid::Exchange;
}

// Two-digit register numbers with the large register set: its own key variants, or the plain
// keys while "100 Registers" is on.
bool TwoDigitArgument(const Engine& e, FunctionId prefix) {
    if (prefix == fid::RecallLarge || prefix == fid::ExchangeLarge || prefix == fid::StoreLarge) return true;
    if (prefix == fid::RecallVariant || prefix == fid::ExchangeVariant || prefix == fid::StoreVariant) return false;
    return e.prefs.HundredRegisters();
}

FunctionId PlainArithmetic(FunctionId id) {
    return (id >= fid::IntegerAdd && id <= fid::IntegerDivide) ? id - (fid::IntegerAdd - fid::Add) : id;
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
    e.state.pendingArgument = kNoKey;
    RegisterOperation(e, RegisterBase(KeyOf(pending)), OperatorOf(pending) ? OperatorOf(pending) : kNoKey,
                      registerNumber);
}

}  // namespace

ValueTag RegisterLabel(const Engine& e, int r) {
    if (r < kUserRegisters) return fid::TagCashFlow;
    switch (r) {
        case reg::N: {
            const double perYear = e.registers.values[reg::PYr];
            return perYear == 1.0 ? fid::TagYears : perYear == 12.0 ? fid::TagMonths : 1407;
        }
        case reg::IYr: return 1408;
        case reg::PV: return 1410;
        case reg::PMT: return 1409;
        case reg::FV: return 1411;
        case reg::Eff: return 1406;
        case reg::PYr: return 1404;
        case reg::Cost: return 1400;
        case reg::Price: return 1401;
        case reg::Margin: return (e.state.status & status::Markup) ? 1403 : 1402;
        case reg::SumX: return 1301;
        case reg::SumX2: return 1302;
        case reg::SumY: return 1303;
        case reg::SumY2: return 1304;
        case reg::SumXY: return 1305;
        case reg::StatN: return 1300;
        default:
            return r >= reg::DaysPerYear ? static_cast<ValueTag>(fid::TagDpy + (r - reg::DaysPerYear)) : 0;
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

bool HandleRegisterKey(Engine& e, FunctionId id) {
    CalcState& s = e.state;
    if (s.pendingArgument == kNoKey) {
        if (!IsRegisterPrefix(id)) return false;
        s.pendingArgument = id;
        return true;
    }
    // A register prefix is waiting for its argument.
    if (id == fid::Shift || id == fid::FirstShift || id == fid::SecondShift) return false;
    const u32 pending = s.pendingArgument;
    const FunctionId base = RegisterBase(KeyOf(pending));
    const int firstDigit = FirstDigitOf(pending);
    const FunctionId arithmetic = PlainArithmetic(id);
    if (id == fid::Backspace) {
        s.pendingArgument = kNoKey;
        return true;
    }
    if (arithmetic >= fid::Add && arithmetic <= fid::Divide && OperatorOf(pending) == 0 && firstDigit < 0 &&
        base != fid::Exchange) {
        s.pendingArgument = pending | (arithmetic << 8);
        return true;
    }
    if (id <= fid::Digit9) {
        if (TwoDigitArgument(e, KeyOf(pending)) && firstDigit < 0) {
            s.pendingArgument = pending | (static_cast<u32>(id + 1) << 16);
            return true;
        }
        Complete(e, firstDigit < 0 ? static_cast<int>(id) : firstDigit * 10 + static_cast<int>(id));
        return true;
    }
    if (firstDigit < 0 && id == fid::CashFlow) {
        const int next = e.registers.lastRegister + 1;
        if (next >= kUserRegisters) {
            s.pendingArgument = kNoKey;
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
    s.pendingArgument = kNoKey;
    return false;
}

}  // namespace brinto
