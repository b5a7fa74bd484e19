// Dispatch: every key of every keyboard ends here. Around the family chain it keeps the stack-lift
// state, the shift latches, macro recording, the undo history and the last-key words consistent.
#include <cstring>

#include "engine/algebraic.h"
#include "engine/built_in.h"
#include "engine/macro.h"
#include "engine/number_entry.h"
#include "engine/numeric/integer_format.h"
#include "engine/register_clears.h"
#include "engine/register_keys.h"

namespace brinto {

namespace {

bool IsShiftKey(FunctionId id) { return FamilyOf(id) == kf::Shift; }

bool IsMacroKey(FunctionId id) { return FamilyOf(id) == kf::Macro; }

// The keys that edit the number being typed leave it open.
bool IsEntryKey(FunctionId id) { return FamilyOf(id) == kf::Entry; }

// What an engine without families does where its own keys would ask another library: nothing.
bool NoOperand(Engine&, FunctionId) { return false; }
void NoStep(Engine&) {}

bool PrefixPending(const CalcState& s) {
    return s.pendingArgument != kNoPendingArgument || s.pendingFormat != kNoKey || (s.status & status::Hyperbolic);
}

void SetBase(CalcState& s, u16 base) {
    ReplaceBits(s.status, status::BaseMask, base);
}

// What a built-in key did, for the steps after it.
struct Outcome {
    bool accepted = true;
    FunctionId actedAs;     // the key whose after-steps apply (backspace can act as clear X, drop or hyp)
    bool endsEntry = false; // change sign outside an entry ends it, although it is an entry key
};

bool Digit(Engine& e, FunctionId id) {
    const u16 base = e.EntryBase();
    // A digit the base cannot hold switches the entry to decimal.
    const int digit = DigitValue(id);
    if (digit >= 2 && base == status::BaseBinary) SetBase(e.state, 0);
    if (digit >= 8 && base == status::BaseOctal) SetBase(e.state, 0);
    return EditEntry(e, id);
}

bool HexDigit(Engine& e, FunctionId id) {
    // A decimal number already holding a point or an exponent has no hexadecimal reading, so a
    // letter cannot switch it to hexadecimal: the key is refused and the number stays as typed.
    const bool decimalOnly = e.EntryOpen() && e.EntryBase() == 0 &&
                             (std::strchr(e.state.entryText, '.') || std::strchr(e.state.entryText, 'e'));
    if (decimalOnly) return false;
    if (e.IntegerEntryAllowed()) SetBase(e.state, status::BaseHex);
    if (e.EntryBase() != status::BaseHex) return false;
    return EditEntry(e, id);
}

// Change sign outside a decimal entry: a unit or date keeps its tag, any other tag is dropped.
void NegateX(Engine& e) {
    const Category category = TagCategory(e.XTag());
    e.state.stack[0] = -e.state.stack[0];
    if (category == Category::None || category == Category::IntegerFormat) {
        e.state.tags[0] = ValueTag::None;
        e.state.aux[0] = kNoAux;
    }
}

void NegateInteger(Engine& e) {
    const ValueTag format = IntegerFormatOf(e.prefs, e.XTag());
    const double value = Narrow(e.X(), e.XTag(), format);
    e.SetX(Narrow(-value, format, format));
    e.SetXTag(format);
}

// An operator is pending when "=" would apply one: a binary operator above the newest Enter
// marker. Markers alone are no operator, so "1 Enter 12 AMORT =" still steps through the results.
bool OperatorPending(const CalcState& s) {
    for (int i = s.pendingCount - 1; i >= 0 && s.pendingOps[i] != fid::Enter; --i) {
        if (IsBinaryOperator(s.pendingOps[i])) return true;
    }
    return false;
}

void Equals(Engine& e) {
    CalcState& s = e.state;
    if (!OperatorPending(s)) {
        if (s.repeatOperator == fid::Amortize) {
            e.families().amortizationRepeat(e);
        } else if (s.repeatOperator != kNoKey) {
            e.Lift();
            e.RecallLastX();
            e.PushPending(s.repeatOperator);
        }
    }
    EvaluatePending(e, PendingScope::All);
    s.parenDepth = 0;
}

void LastX(Engine& e) {
    const bool liftDisabled = !e.LiftEnabled();
    if (!(liftDisabled && (!e.IsRpn() || !e.EntryOpen()))) e.Lift();
    e.RecallLastX();
}

void SetMethod(Engine& e, u16 methodBits) {
    ReplaceBits(e.state.engineFlags, flags::MethodMask, methodBits);
    e.RequestRedraw();
}

void ClearAll(Engine& e) {
    ClearAllRegisters(e);
    e.ClearStack();
    e.ResetMacro();
    ClearBits(e.state.status, status::Entry);
    e.RequestRedraw();
}

// Clears a register group and shows one of its registers, labelled, in X.
void ClearAndShow(Engine& e, void (*clear)(Engine&), int registerNumber, ValueTag tag) {
    clear(e);
    RegisterOperation(e, fid::Recall, kNoKey, registerNumber);
    e.SetXTag(tag);
    e.DisableLift();
}

Outcome HandleBuiltIn(Engine& e, FunctionId id) {
    CalcState& s = e.state;
    Outcome out{true, id, false};
    switch (id) {
        case fid::Digit0: case fid::Digit1: case fid::Digit2: case fid::Digit3: case fid::Digit4:
        case fid::Digit5: case fid::Digit6: case fid::Digit7: case fid::Digit8: case fid::Digit9:
            out.accepted = Digit(e, id);
            break;
        case fid::HexA: case fid::HexB: case fid::HexC: case fid::HexD: case fid::HexE: case fid::HexF:
            out.accepted = HexDigit(e, id);
            break;
        case fid::Point: case fid::SecondPoint: case fid::Exponent:
            out.accepted = e.EntryBase() == 0 && EditEntry(e, id);
            break;
        case fid::ChangeSign:
        case fid::IntegerNegate:
            if (e.EntryOpen() && e.EntryBase() == 0) {
                out.accepted = EditEntry(e, id);
            } else {
                id == fid::ChangeSign ? NegateX(e) : NegateInteger(e);
                out.endsEntry = true;
            }
            break;
        case fid::Backspace:
            if (s.status & status::Hyperbolic) {
                out.accepted = false;
                out.actedAs = fid::Hyperbolic;  // the prefix is cancelled by the toggle below
            } else if (e.EntryOpen()) {
                out.accepted = EditEntry(e, id);
            } else if (e.prefs.BackspaceDrops()) {
                e.Drop();
                out.actedAs = fid::Drop;
            } else {
                e.ClearX();
                out.actedAs = fid::ClearX;
            }
            break;
        case fid::Enter:
            if (!e.IsRpn() && s.pendingCount >= kMaxPending) return {false, id, false};
            e.Lift();
            e.DisableLift();
            if (!e.IsRpn()) e.PushPending(fid::Enter);
            break;
        case fid::Equals: Equals(e); break;
        case fid::Shift: ShiftKey(e, 0); break;
        case fid::FirstShift: ShiftKey(e, 1); break;
        case fid::SecondShift: ShiftKey(e, 2); break;
        case fid::DisplayToggle: s.status ^= status::FullDisplay; break;
        case fid::ClearAll: case fid::SecondClearAll: ClearAll(e); break;
        case fid::ClearStack: case fid::SecondClearStack:
            if ((s.engineFlags & flags::Playing) && (s.engineFlags & flags::Paused)) MacroStop(e);
            e.ClearStack();
            break;
        case fid::ClearX: case fid::SecondClearX: e.ClearX(); break;
        case fid::ClearRegisters:
            ClearUserRegisters(e);
            ClearTvmRegisters(e);
            ClearStatistics(e);
            e.KeepLiftState();
            break;
        case fid::ClearFinancial: ClearAndShow(e, ClearFinancial, reg::PYr, label::PerYear); break;
        case fid::ClearDate: ClearAndShow(e, ClearDateGroup, reg::FramesPerSecond, label::FramesPerSecond); break;
        case fid::ClearStatistics: ClearStatistics(e); break;
        case fid::RollDown: e.RollDown(); break;
        case fid::RollUp: e.RollUp(); break;
        case fid::Drop: e.Drop(); break;
        case fid::Fill: e.FillWithX(); break;
        case fid::Swap: e.Swap(); break;
        case fid::LastX: LastX(e); break;
        case fid::OpenParen: out.accepted = OpenParen(e); break;
        case fid::CloseParen: CloseParen(e); break;
        case fid::Rotate3: e.Rotate3(); break;
        case fid::Over: e.Over(); break;
        case fid::MethodSimple: SetMethod(e, 0); break;
        case fid::MethodPrecedence: SetMethod(e, flags::Precedence); break;
        case fid::MethodRpn: SetMethod(e, flags::Rpn); break;
        case fid::MacroRecord: MacroStartRecording(e); break;
        case fid::MacroPlay: MacroPlay(e); break;
        case fid::MacroPause: MacroPause(e); break;
        case fid::MacroStop: MacroStop(e); break;
        default: out.accepted = false; break;
    }
    return out;
}

// Ends or keeps the entry and resolves the lift bits after a key.
bool EndKey(Engine& e, FunctionId id, const Outcome& out) {
    bool accepted = out.accepted;
    CalcState& s = e.state;
    if (s.pendingArgument != kNoPendingArgument) {
        s.status |= status::KeepEntry;
        return accepted;
    }
    if (IsMacroKey(id) || IsShiftKey(id)) return accepted;
    if (IsEntryKey(out.actedAs) && !(s.status & status::KeepEntry) && !out.endsEntry) return accepted;
    ClearBits(s.status, status::Entry | status::KeepEntry);
    if (out.actedAs == fid::Hyperbolic) {
        s.status ^= status::Hyperbolic;
        accepted = true;
    } else {
        ClearBits(s.status, status::Hyperbolic);
    }
    if (!(s.status & status::KeepLift)) {
        if (s.status & status::NoLift) {
            ClearBits(s.status, status::NoLift | status::LiftEnabled);
        } else {
            s.status |= status::LiftEnabled;
        }
    }
    ClearBits(s.status, status::KeepLift);
    return accepted;
}

}  // namespace

void ShiftKey(Engine& e, int mode) {
    CalcState& s = e.state;
    u16& v = s.viewFlags;
    const bool locking = e.prefs.LockingShift();
    const bool sticky = e.prefs.StickyShift();
    const bool first = s.status & status::FirstShift;
    const bool second = v & view::SecondShift;
    if (mode == 0) {
        if (!first && !second) {
            mode = 1;
        } else if (!first && second) {
            mode = 2;
        } else {
            mode = ((!locking || (v & view::ShiftHeld)) && (v & view::ShiftKeyboardMask) > 0x10) ? 2 : 1;
        }
    }
    if (mode != 1 && mode != 2) return;
    const u16 latchBit = mode == 1 ? status::FirstShift : view::SecondShift;
    u16& latchWord = mode == 1 ? s.status : v;
    const FunctionId ownKey = mode == 1 ? fid::FirstShift : fid::SecondShift;
    const bool latch = latchWord & latchBit;
    const bool held = v & view::ShiftHeld;
    if (locking && latch && !held && (s.lastKey == fid::Shift || s.lastKey == ownKey)) {
        v |= view::ShiftHeld;  // a second press in a row holds the shift
    } else {
        ClearBits(v, view::ShiftHeld);
        latchWord ^= latchBit;
    }
    if (latchWord & latchBit) {
        if (sticky) v |= view::ShiftHeld;
    } else {
        ClearBits(v, view::ShiftHeld);
    }
    if (mode == 1) {
        ClearBits(v, view::SecondShift);
    } else {
        ClearBits(s.status, status::FirstShift);
    }
    e.RequestRedraw();
}

bool HandleFormatPrefix(Engine& e, FunctionId id) {
    CalcState& s = e.state;
    if (id == fid::FormatStandard || id == fid::FormatScientific || id == fid::FormatEngineering ||
        id == fid::FormatFixed) {
        s.pendingFormat = id;
        e.KeepLiftState();
        return true;
    }
    if (s.pendingFormat == kNoKey) return false;
    // The prefix intercepts the key after it, whatever its family: a digit or point (entry keys)
    // completes the format, backspace cancels it, any other key cancels it and goes on as usual.
    const FunctionId prefix = s.pendingFormat;
    s.pendingFormat = kNoKey;
    if (id == fid::Backspace) return true;
    if (id > fid::Digit9 && id != fid::Point && id != fid::SecondPoint) return false;
    const u16 code = prefix == fid::FormatStandard ? 0 : prefix == fid::FormatScientific ? 1
                   : prefix == fid::FormatEngineering ? 2 : 3;
    e.prefs.SetFormat(static_cast<NumberFormat>(code));
    e.prefs.SetDigitField(IsDecimalDigit(id) ? DigitValue(id) + 1 : 0);
    e.dirty.preferences = true;
    e.dirty.state = true;
    e.RequestRedraw();
    return true;
}

bool HandleModeKey(Engine& e, FunctionId id) {
    CalcState& s = e.state;
    const auto setAngle = [&s](AngleUnit unit) {
        s.engineFlags = static_cast<u16>((s.engineFlags & ~flags::AngleMask) |
                                         (static_cast<u16>(unit) << flags::AngleShift));
    };
    bool baseChanged = false;
    switch (id) {
        case fid::BeginEnd: s.engineFlags ^= flags::Begin; break;
        case fid::Degrees: setAngle(AngleUnit::Degrees); break;
        case fid::Radians: setAngle(AngleUnit::Radians); break;
        case fid::Grads: setAngle(AngleUnit::Grads); break;
        case fid::BaseBinary: SetBase(s, status::BaseBinary), baseChanged = true; break;
        case fid::BaseOctal: SetBase(s, status::BaseOctal), baseChanged = true; break;
        case fid::BaseDecimal: SetBase(s, 0), baseChanged = true; break;
        case fid::BaseHex: SetBase(s, status::BaseHex), baseChanged = true; break;
        default: return false;
    }
    if (baseChanged) e.families().rederiveIntegerTag(e);
    e.dirty.state = true;
    e.KeepLiftState();
    e.RequestRedraw();
    return true;
}

const KeyFamilies& NoFamilies() {
    static constexpr KeyFamilies kNone{{}, NoOperand, NoStep, NoStep};
    return kNone;
}

bool Engine::Dispatch(FunctionId id) {
    if (id == fid::SecondEnter) id = fid::Enter;
    CalcState& s = state;
    const bool shiftKey = IsShiftKey(id);
    const bool capture = !PrefixPending(s) && !(s.engineFlags & flags::UndoSuspended) && !shiftKey;
    if (capture) history.TakeSnapshot(Records());
    if ((s.status & status::BaseMask) && !IntegerEntryAllowed()) SetBase(s, 0);
    const bool entryWasOpen = EntryOpen();

    Outcome out{false, id, false};
    bool taken = false;
    for (const Family& family : families().chain) {
        taken = family.handle(*this, id);
        if (!taken) continue;
        if (family.endsOperatorRun) ClearBits(s.engineFlags, flags::OperatorLast);
        break;
    }
    if (taken) {
        out.accepted = true;
        dirty.state = true;
    } else {
        out = HandleBuiltIn(*this, id);
        if (out.accepted) dirty.state = true;
    }

    bool accepted = EndKey(*this, id, out);
    if (accepted && !(s.viewFlags & view::ShiftHeld) && !shiftKey) {
        if ((s.status & status::FirstShift) || (s.viewFlags & view::SecondShift)) RequestRedraw();
        ClearBits(s.status, status::FirstShift);
        ClearBits(s.viewFlags, view::SecondShift);
    }
    if ((s.engineFlags & flags::Recording) && !(s.engineFlags & flags::Playing) && !IsMacroKey(id)) {
        if (!MacroRecordKey(*this, id)) accepted = false;
    }
    if (accepted && !shiftKey && !PrefixPending(s) && !(s.engineFlags & flags::UndoSuspended) &&
        !(entryWasOpen && EntryOpen())) {
        history.Commit(Records());
    }
    if (accepted) {
        s.lastKey = id;
        if (!shiftKey) s.lastCommand = id;
    }
    return accepted;
}

}  // namespace brinto
