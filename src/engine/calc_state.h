#pragma once
// CalcState: the one engine record. It is saved as a 576-byte image, so the field order, widths
// and signedness are fixed; reserved space stays zero.
#include <cstddef>
#include <type_traits>

#include "engine/function_ids.h"

namespace brinto {

inline constexpr int kStackLevels = 20;
inline constexpr int kMaxPending = 40;
inline constexpr int kEntryCapacity = 40;  // 32 binary digits, sign, point, "e", sign, 3 digits, NUL
inline constexpr u16 kCalcStateVersion = 7;

// pendingArgument when no register prefix waits for its register.
inline constexpr u32 kNoPendingArgument = ToNumber(kNoKey);

// Bits of CalcState::status.
namespace status {
inline constexpr u16 KeyboardMask = 0x000F;  // number of the keyboard on show
inline constexpr u16 BaseMask = 0x0030;      // base of digit entry
inline constexpr u16 BaseBinary = 0x0010;
inline constexpr u16 BaseOctal = 0x0020;
inline constexpr u16 BaseHex = 0x0030;
inline constexpr u16 FirstShift = 0x0040;
inline constexpr u16 FullDisplay = 0x0080;   // display toggle: all digits, dates as numbers
inline constexpr u16 Entry = 0x0100;         // a number is being typed
inline constexpr u16 Exponent = 0x0200;      // its exponent is being typed
inline constexpr u16 KeepEntry = 0x0400;     // the entry stays open across a prefix key
inline constexpr u16 LiftEnabled = 0x0800;
inline constexpr u16 NoLift = 0x1000;        // the key just handled disables lift
inline constexpr u16 KeepLift = 0x2000;      // the key just handled leaves lift as it was
inline constexpr u16 Hyperbolic = 0x4000;
inline constexpr u16 Markup = 0x8000;        // register 109 holds a markup, not a margin
}  // namespace status

// Bits of CalcState::viewFlags.
namespace view {
inline constexpr u16 ModeMask = 0x0003;  // 0 Advanced, bit 0 Basic
inline constexpr u16 Basic = 0x0001;
inline constexpr u16 SecondShift = 0x0004;
inline constexpr u16 ShiftHeld = 0x0008;
inline constexpr u16 ShiftKeyboardMask = 0x0030;
}  // namespace view

// Bits of CalcState::engineFlags.
namespace flags {
inline constexpr u16 OperatorLast = 0x0001;  // the last key was a deferred binary operator
inline constexpr u16 Rpn = 0x0020;
inline constexpr u16 Precedence = 0x0040;
inline constexpr u16 MethodMask = 0x0060;
inline constexpr u16 Recording = 0x0080;
inline constexpr u16 Playing = 0x0100;
inline constexpr u16 Paused = 0x0200;
inline constexpr u16 UndoSuspended = 0x0400;
inline constexpr u16 Cleared = 0x0800;
inline constexpr u16 Redraw = 0x1000;
inline constexpr u16 Begin = 0x2000;  // Begin/End: payments at the start of each period
inline constexpr u16 AngleMask = 0xC000;
inline constexpr int AngleShift = 14;
}  // namespace flags

enum class AngleUnit : u16 { Degrees = 0, Radians = 1, Grads = 2 };

struct CalcState {
    u16 version;
    u16 status;
    u16 reserved0;
    u16 viewFlags;
    u16 engineFlags;
    u8 entryDigits;
    u8 exponentDigits;
    char entryText[kEntryCapacity];
    double stack[kStackLevels];
    ValueTag tags[kStackLevels];
    u16 aux[kStackLevels];
    u16 pendingCount;
    u32 pendingArgument;
    FunctionId pendingFormat;
    FunctionId pendingOps[kMaxPending];
    FunctionId repeatOperator;
    double lastX;
    ValueTag lastXTag;
    u16 lastXAux;
    double amortInterest;
    double amortPrincipal;
    double amortBalance;
    i16 amortStart;
    i16 amortEnd;
    u16 amortStep;
    u16 macroPosition;
    FunctionId macroSavedMethod;
    u16 parenDepth;
    FunctionId lastKey;
    FunctionId lastCommand;
    u32 randomSeed;        // state of the random-number generator
    u16 constantsTopRow;   // first visible row of the "Constants" list
    u16 lastView;          // the last dialog view opened, for the "Open last form" action
    u8 reserved1[32];
};

static_assert(sizeof(FunctionId) == 4 && sizeof(ValueTag) == 2, "keys and tags keep their saved widths");
static_assert(std::is_trivially_copyable_v<CalcState>);
static_assert(sizeof(CalcState) == 576);
static_assert(offsetof(CalcState, version) == 0);
static_assert(offsetof(CalcState, status) == 2);
static_assert(offsetof(CalcState, viewFlags) == 6);
static_assert(offsetof(CalcState, engineFlags) == 8);
static_assert(offsetof(CalcState, entryText) == 12);
static_assert(offsetof(CalcState, stack) == 56);
static_assert(offsetof(CalcState, tags) == 216);
static_assert(offsetof(CalcState, aux) == 256);
static_assert(offsetof(CalcState, pendingCount) == 296);
static_assert(offsetof(CalcState, pendingOps) == 308);
static_assert(offsetof(CalcState, lastX) == 472);
static_assert(offsetof(CalcState, amortInterest) == 488);
static_assert(offsetof(CalcState, amortStart) == 512);
static_assert(offsetof(CalcState, macroPosition) == 518);
static_assert(offsetof(CalcState, lastKey) == 528);
static_assert(offsetof(CalcState, randomSeed) == 536);
static_assert(offsetof(CalcState, constantsTopRow) == 540);
static_assert(offsetof(CalcState, lastView) == 542);

}  // namespace brinto
