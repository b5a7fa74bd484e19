#pragma once
// Engine: one calculator. It owns CalcState, the register record, the macro record and the undo
// history, and reads Preferences. Every key reaches it through Dispatch; the display only reads it.
// Many engines can live side by side (tests do this); nothing here is global. An engine is given its
// families of keys when it is made: a whole calculator's come from calculator/assembly.h.
#include "engine/calc_state.h"
#include "engine/families.h"
#include "engine/function_ids.h"
#include "engine/history.h"
#include "engine/macro_record.h"
#include "engine/platform.h"
#include "engine/preferences.h"
#include "engine/register_bank.h"

namespace brinto {

// One level of the operating stack: a value with its tag and aux code; the three move together.
struct StackEntry {
    double value = 0.0;
    ValueTag tag = ValueTag::None;
    u16 aux = kNoAux;
};

// Changed flags of the persistent records: set by whoever changes a record, cleared by the save.
struct DirtyFlags {
    bool preferences = false;
    bool state = false;  // CalcState (always written, but a set flag asks for a prompt save)
    bool registers = false;
    bool macro = false;
    bool userKeys = false;
};

// The records (state, registers, macro) are the EngineRecords base, so an undo snapshot is one copy.
class Engine : public EngineRecords {
public:
    explicit Engine(const KeyFamilies& families, const Platform* platform = nullptr);
    // An engine that only holds records: the dispatcher's own keys and no family.
    explicit Engine(const Platform* platform = nullptr) : Engine(NoFamilies(), platform) {}

    EngineRecords& Records() { return *this; }
    const EngineRecords& Records() const { return *this; }

    Preferences prefs{};
    DirtyFlags dirty;
    History history;

    const Platform& platform() const { return *m_platform; }
    void SetPlatform(const Platform* platform);
    const KeyFamilies& families() const { return *m_families; }

    // True when the key was accepted.
    bool Dispatch(FunctionId id);

    // The reset values of each record. ResetState keeps nothing of the old CalcState but the
    // method bits derived from Preferences.
    void ResetState();
    void ResetRegisters();
    void ResetMacro();
    void ResetAll();

    // Stack access. Level 0 is X.
    double X() const { return state.stack[0]; }
    double Y() const { return state.stack[1]; }
    ValueTag XTag() const { return state.tags[0]; }
    ValueTag YTag() const { return state.tags[1]; }
    StackEntry Level(int k) const { return {state.stack[k], state.tags[k], state.aux[k]}; }
    void SetLevel(int k, const StackEntry& entry);

    void SetX(double value);     // tag 0, aux none
    void SetXTag(ValueTag tag);  // value and aux unchanged
    void SetY(double value);     // tag 0, aux unchanged
    void SetYTag(ValueTag tag);
    void SetXError() { SetX(kErrorValue); }
    void SaveLastX();
    void RecallLastX();

    // The depth in use: 20, or in RPN the depth from Preferences.
    int StackDepth() const;
    // The depth that the rolls use: always the one from Preferences.
    int RollDepth() const;
    void Lift();
    void Drop();
    void RollDown();
    void RollUp();
    void FillWithX();
    void Swap();
    void Rotate3();
    void Over();
    void ClearX();
    void ClearStack();

    // Lift for a recalled value (pi, random numbers, constants): when lift is enabled, or in RPN
    // while a number is being typed.
    void RecallLift();

    // Modes and state tests.
    bool IsRpn() const { return state.engineFlags & flags::Rpn; }
    bool IsPrecedence() const { return !IsRpn() && (state.engineFlags & flags::Precedence); }
    InputMethod Method() const;
    FunctionId MethodKey() const;  // the key of the current input method
    AngleUnit Angle() const { return static_cast<AngleUnit>((state.engineFlags & flags::AngleMask) >> flags::AngleShift); }
    bool EntryOpen() const { return state.status & status::Entry; }
    bool LiftEnabled() const { return state.status & status::LiftEnabled; }
    u16 EntryBase() const { return state.status & status::BaseMask; }
    int Keyboard() const { return state.status & status::KeyboardMask; }
    // Integer-base entry is allowed on the programmer keyboard (and on the User keyboard when its
    // "Integer" preference is set), in the Advanced view only.
    bool IntegerEntryAllowed() const;

    // Ends the number being typed; its value is already in X.
    void FinishEntry() { ClearBits(state.status, status::Entry | status::Exponent | status::KeepEntry); }
    void DisableLift() { state.status |= status::NoLift; }
    // Lift on for the next entry, as after a recalled value.
    void EnableLift() {
        state.status |= status::LiftEnabled;
        ClearBits(state.status, status::NoLift | status::KeepLift);
    }
    void KeepLiftState() { state.status |= status::KeepLift; }
    void RequestRedraw() { state.engineFlags |= flags::Redraw; }

    // Pending-operator stack (top is the last pushed; kNoKey when empty).
    FunctionId PendingTop() const { return state.pendingCount ? state.pendingOps[state.pendingCount - 1] : kNoKey; }
    bool PushPending(FunctionId id);  // false when the stack is full
    FunctionId PopPending();

    // A duration setting (dpy, dpm, dpw, hpd, fps), with its default when the register holds
    // zero or a value that is not finite.
    double DurationSetting(int registerNumber) const;

private:
    const KeyFamilies* m_families;
    const Platform* m_platform;
};

// Default values of the duration settings, registers 119..123.
inline constexpr double kDurationDefaults[5] = {365.25, 30.4375, 7.0, 24.0, 30.0};

}  // namespace brinto
