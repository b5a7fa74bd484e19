#include "engine/macro.h"

namespace brinto {

namespace {

void RunMacro(Engine& e) {
    CalcState& s = e.state;
    if (s.macroPosition > e.macro.macroLength) return;
    s.engineFlags |= flags::Playing | flags::UndoSuspended;
    ClearBits(s.engineFlags, flags::Paused);
    while (!(s.engineFlags & flags::Paused) && s.macroPosition < e.macro.macroLength &&
           s.macroPosition < kMacroSlots) {
        const FunctionId key = e.macro.macroKeys[s.macroPosition++];
        e.Dispatch(key);
        if (IsErrorValue(e.X())) MacroStop(e);
        if (!(s.engineFlags & flags::Playing)) break;
    }
    ClearBits(s.engineFlags, flags::UndoSuspended);
}

}  // namespace

bool MacroRecordKey(Engine& e, FunctionId id) {
    MacroRecord& m = e.macro;
    if (m.macroLength >= kMacroKeyLimit) {
        if (id == fid::MacroStop && m.macroLength < kMacroSlots) {
            m.macroKeys[m.macroLength++] = id;
            e.dirty.macro = true;
            return true;
        }
        MacroStop(e);
        return false;
    }
    if (e.IntegerEntryAllowed()) id = IntegerVariant(id);
    m.macroKeys[m.macroLength++] = id;
    e.dirty.macro = true;
    return true;
}

void MacroStartRecording(Engine& e) {
    u16& f = e.state.engineFlags;
    if (!(f & flags::Recording)) {
        f |= flags::Recording;
        ClearBits(f, flags::Playing | flags::Paused | flags::UndoSuspended);
        e.macro.macroLength = 0;
        MacroRecordKey(e, e.MethodKey());
    } else if (f & flags::Paused) {
        ClearBits(f, flags::Paused);
    }
}

void MacroPlay(Engine& e) {
    CalcState& s = e.state;
    if (s.engineFlags & flags::Recording) MacroStop(e);
    if (s.engineFlags & flags::Playing) {
        if (s.engineFlags & flags::Paused) {
            ClearBits(s.engineFlags, flags::Paused);
            RunMacro(e);
        }
        return;
    }
    if (e.macro.macroLength < kMinimumMacroLength) return;  // the session says "No Macro"
    s.macroPosition = 0;
    s.macroSavedMethod = e.MethodKey();
    RunMacro(e);
}

void MacroPause(Engine& e) {
    CalcState& s = e.state;
    if (s.engineFlags & flags::Paused) {
        ClearBits(s.engineFlags, flags::Paused);
        if (s.engineFlags & flags::Playing) RunMacro(e);
        return;
    }
    s.engineFlags |= flags::Paused;
    if (s.engineFlags & flags::Recording) MacroRecordKey(e, fid::MacroPause);
}

void MacroStop(Engine& e) {
    CalcState& s = e.state;
    if (s.engineFlags & flags::Recording) {
        ClearBits(s.engineFlags, flags::Recording);  // first, so a full macro cannot recurse
        MacroRecordKey(e, fid::MacroStop);
    }
    if (s.engineFlags & flags::Playing) {
        ClearBits(s.engineFlags, flags::Playing);
        e.Dispatch(s.macroSavedMethod);
    }
    ClearBits(s.engineFlags, flags::Paused | flags::UndoSuspended);
}

}  // namespace brinto
