#include "engine/algebraic.h"

namespace brinto {

namespace {

enum class Level { None, Additive, Multiplicative, Highest };

Level LevelOf(FunctionId id) {
    switch (id) {
        case fid::Add: case fid::Subtract: case fid::IntegerAdd: case fid::IntegerSubtract:
            return Level::Additive;
        case fid::Multiply: case fid::Divide: case fid::IntegerMultiply: case fid::IntegerDivide:
            return Level::Multiplicative;
        case fid::PercentTotal: case fid::PercentChange: case fid::Power: case fid::Modulo: case fid::XRoot:
        case fid::Combinations: case fid::Permutations:
        case fid::And: case fid::Or: case fid::Xor:
        case fid::ShiftLeft: case fid::ShiftRight: case fid::ArithmeticShiftRight: case fid::RotateRight:
            return Level::Highest;
        default:
            return Level::None;
    }
}

void PopAndApply(Engine& e) { ApplyBinary(e, e.PopPending()); }

// Precedence: an operator first applies the pending operators that bind more tightly.
void ApplyTighter(Engine& e, Level level) {
    while (true) {
        const Level top = LevelOf(e.PendingTop());
        const bool tighter = (level == Level::Additive && (top == Level::Multiplicative || top == Level::Highest)) ||
                             (level == Level::Multiplicative && top == Level::Highest);
        if (!tighter) return;
        PopAndApply(e);
    }
}

bool Defer(Engine& e, FunctionId op) {
    if (e.state.pendingCount >= kMaxPending) return false;
    e.Lift();
    e.DisableLift();  // the next number overwrites X
    e.PushPending(op);
    e.state.engineFlags |= flags::OperatorLast;
    return true;
}

}  // namespace

bool IsBinaryOperator(FunctionId id) { return LevelOf(id) != Level::None; }

void ApplyBinary(Engine& e, FunctionId op) {
    if (IsBinaryOperator(op)) e.families().evaluateTwoOperand(e, op);
}

void EvaluatePending(Engine& e, PendingScope scope) {
    CalcState& s = e.state;
    if (scope == PendingScope::All) {
        while (s.pendingCount > 0 && e.PendingTop() != fid::Enter) {
            const FunctionId op = e.PopPending();
            if (IsBinaryOperator(op)) s.repeatOperator = op;
            ApplyBinary(e, op);
        }
        return;
    }
    while (s.pendingCount > 0) {
        const FunctionId op = e.PopPending();
        ApplyBinary(e, op);
        if (scope == PendingScope::One || op == fid::OpenParen) return;
    }
}

bool OpenParen(Engine& e) {
    if (!e.LiftEnabled()) {
        if (!e.PushPending(fid::OpenParen)) return false;
        e.DisableLift();
    }
    ++e.state.parenDepth;
    return true;
}

void CloseParen(Engine& e) {
    if (e.PendingTop() != fid::Enter) EvaluatePending(e, PendingScope::ToParen);
    if (e.state.parenDepth > 0) --e.state.parenDepth;
}

bool HandleOperator(Engine& e, FunctionId op) {
    CalcState& s = e.state;
    const Level level = LevelOf(op);
    if (level == Level::None) {
        ClearBits(s.engineFlags, flags::OperatorLast);
        return false;
    }
    if (e.IsRpn()) {
        ApplyBinary(e, op);
        return true;
    }
    const bool precedence = e.IsPrecedence();
    // Refuse an operator that would have to wait when the pending stack is full, before any change.
    const bool appliesAtOnce = e.PendingTop() == fid::Enter || (s.engineFlags & flags::OperatorLast);
    if (!appliesAtOnce && s.pendingCount >= kMaxPending) return false;
    if (precedence) ApplyTighter(e, level);
    const Level top = LevelOf(e.PendingTop());
    if (!(precedence && level == Level::Multiplicative && top == Level::Additive)) {
        if (e.PendingTop() == fid::Enter) {
            // "2 Enter 3 +" works in the algebraic methods too.
            ApplyBinary(e, op);
            e.PopPending();
            ClearBits(s.engineFlags, flags::OperatorLast);
            return true;
        }
        if (s.engineFlags & flags::OperatorLast) {
            // Two operators in a row: the second replaces the first.
            e.PopPending();
            e.PushPending(op);
            e.DisableLift();
            return true;
        }
        if (e.PendingTop() != fid::OpenParen && s.pendingCount > 0) {
            if (!precedence || level == Level::Additive || level == Level::Multiplicative) PopAndApply(e);
        }
    }
    return Defer(e, op);
}

}  // namespace brinto
