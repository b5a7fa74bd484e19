#include "engine/engine.h"

#include <cmath>
#include <cstring>

namespace brinto {

Engine::Engine(const KeyFamilies& families, const Platform* platform)
    : m_families(&families), m_platform(platform ? platform : &DefaultPlatform()) {
    prefs = DefaultPreferences();
    ResetAll();
    history.Init(&Records());
}

void Engine::SetPlatform(const Platform* platform) {
    m_platform = platform ? platform : &DefaultPlatform();
}

void Engine::ResetState() {
    std::memset(&state, 0, sizeof state);
    state.version = kCalcStateVersion;
    for (int k = 0; k < kStackLevels; ++k) state.aux[k] = kNoAux;
    state.lastXAux = kNoAux;
    state.pendingArgument = kNoPendingArgument;
    state.pendingFormat = kNoKey;
    state.repeatOperator = kNoKey;
    state.lastKey = kNoKey;
    state.lastCommand = kNoKey;
    state.randomSeed = 1;  // the generator's own start, as if never seeded
    ClearStack();
    state.macroSavedMethod = MethodKey();
    dirty.state = true;
}

void Engine::ResetRegisters() {
    std::memset(&registers, 0, sizeof registers);
    registers.version = kRegisterBankVersion;
    registers.cashFlowCount = -1;
    registers.values[reg::PYr] = 12.0;
    for (int i = 0; i < 5; ++i) registers.values[reg::DaysPerYear + i] = kDurationDefaults[i];
    dirty.registers = true;
}

void Engine::ResetMacro() {
    std::memset(&macro, 0, sizeof macro);
    macro.macroVersion = kMacroVersion;
    dirty.macro = true;
}

void Engine::ResetAll() {
    ResetRegisters();
    ResetMacro();
    ResetState();
}

void Engine::SetLevel(int k, const StackEntry& entry) {
    state.stack[k] = entry.value;
    state.tags[k] = entry.tag;
    state.aux[k] = entry.aux;
}

void Engine::SetX(double value) {
    state.stack[0] = value;
    state.tags[0] = ValueTag::None;
    state.aux[0] = kNoAux;
}

void Engine::SetXTag(ValueTag tag) { state.tags[0] = tag; }

void Engine::SetY(double value) {
    state.stack[1] = value;
    state.tags[1] = ValueTag::None;
}

void Engine::SetYTag(ValueTag tag) { state.tags[1] = tag; }

void Engine::SaveLastX() {
    state.lastX = state.stack[0];
    state.lastXTag = state.tags[0];
    state.lastXAux = state.aux[0];
}

void Engine::RecallLastX() {
    state.stack[0] = state.lastX;
    state.tags[0] = state.lastXTag;
    state.aux[0] = state.lastXAux;
}

int Engine::RollDepth() const {
    const int depth = prefs.StackDepth();
    return depth < 1 ? 1 : (depth > kStackLevels ? kStackLevels : depth);
}

int Engine::StackDepth() const { return IsRpn() ? RollDepth() : kStackLevels; }

namespace {
// Moves levels [from, from + count) to [to, to + count), values, tags and aux codes together.
void MoveLevels(CalcState& s, int to, int from, int count) {
    if (count <= 0) return;
    std::memmove(&s.stack[to], &s.stack[from], sizeof(double) * count);
    std::memmove(&s.tags[to], &s.tags[from], sizeof(u16) * count);
    std::memmove(&s.aux[to], &s.aux[from], sizeof(u16) * count);
}
}  // namespace

void Engine::Lift() { MoveLevels(state, 1, 0, StackDepth() - 1); }

void Engine::Drop() { MoveLevels(state, 0, 1, StackDepth() - 1); }

void Engine::RollDown() {
    const int depth = RollDepth();
    const StackEntry x = Level(0);
    MoveLevels(state, 0, 1, depth - 1);
    SetLevel(depth - 1, x);
}

void Engine::RollUp() {
    const int depth = RollDepth();
    const StackEntry top = Level(depth - 1);
    MoveLevels(state, 1, 0, depth - 1);
    SetLevel(0, top);
}

void Engine::FillWithX() {
    const StackEntry x = Level(0);
    for (int k = 1; k < StackDepth(); ++k) SetLevel(k, x);
}

void Engine::Swap() {
    const StackEntry x = Level(0);
    SetLevel(0, Level(1));
    SetLevel(1, x);
}

void Engine::Rotate3() {
    const StackEntry x = Level(0), y = Level(1), z = Level(2);
    SetLevel(0, z);
    SetLevel(1, x);
    SetLevel(2, y);
}

void Engine::Over() {
    Lift();
    SetLevel(0, Level(2));
}

void Engine::ClearX() {
    SetX(0.0);
    DisableLift();
}

void Engine::ClearStack() {
    for (int k = 0; k < kStackLevels; ++k) SetLevel(k, StackEntry{});
    state.engineFlags = static_cast<u16>((state.engineFlags & ~flags::MethodMask) |
                                         ((prefs.words[2] & 0x3) << 5));
    state.pendingCount = 0;
    state.status &= 0x0FFF | status::Markup;
    state.pendingArgument = kNoPendingArgument;
    state.pendingFormat = kNoKey;
    state.lastX = 0.0;
    state.lastXTag = ValueTag::None;
    state.lastXAux = kNoAux;
    state.repeatOperator = kNoKey;
    state.parenDepth = 0;
    ClearBits(state.engineFlags, flags::OperatorLast);
    state.engineFlags |= flags::Cleared | flags::Redraw;
}

void Engine::RecallLift() {
    if (LiftEnabled() || (IsRpn() && EntryOpen())) Lift();
}

InputMethod Engine::Method() const {
    if (IsRpn()) return InputMethod::Rpn;
    if (state.engineFlags & flags::Precedence) return InputMethod::Precedence;
    return InputMethod::Simple;
}

FunctionId Engine::MethodKey() const {
    switch (Method()) {
        case InputMethod::Simple: return fid::MethodSimple;
        case InputMethod::Precedence: return fid::MethodPrecedence;
        case InputMethod::Rpn: return fid::MethodRpn;
    }
    return fid::MethodSimple;
}

bool Engine::IntegerEntryAllowed() const {
    if (state.viewFlags & view::ModeMask) return false;
    const int keyboard = Keyboard();
    return keyboard == 4 || (keyboard == 8 && prefs.IntegerUserKeys());
}

bool Engine::PushPending(FunctionId id) {
    if (state.pendingCount >= kMaxPending) return false;
    state.pendingOps[state.pendingCount++] = id;
    return true;
}

FunctionId Engine::PopPending() {
    if (state.pendingCount == 0) return kNoKey;
    return state.pendingOps[--state.pendingCount];
}

double Engine::DurationSetting(int registerNumber) const {
    const double v = registers.values[registerNumber];
    if (v == 0.0 || !std::isfinite(v)) return kDurationDefaults[registerNumber - reg::DaysPerYear];
    return v;
}

}  // namespace brinto
