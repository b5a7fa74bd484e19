#include "session/keypad.h"

#include <algorithm>
#include <optional>

#include "engine/engine.h"
#include "engine/key_table.h"
#include "engine/keyboards.h"

namespace brinto {

namespace {

// A key whose face is the same shifted and unshifted.
constexpr KeypadKey Plain(FunctionId id) { return {id, id}; }

// Column 5 holds the operators and column 6 the keys that end or clear an entry, as on a desk
// calculator. The shifted faces carry what no 12-key block has room for; 4 shifted is in/s, the
// one speed unit left off the conversion keyboards.
// Two lines per row of keys, so that the table reads like the keypad.
// clang-format off
constexpr std::array<KeypadRow, 5> kSharedKeypad = {{
    {{Plain(fid::Shift), {fid::OpenParen, fid::Rotate3}, {fid::CloseParen, fid::Over},
      {fid::RollDown, fid::RollUp}, {fid::Swap, fid::Fill}, {fid::Backspace, fid::Drop}}},
    {{{fid::Store, fid::Exchange}, {fid::Digit7, fid::CubeRoot}, {fid::Digit8, fid::Cube},
      {fid::Digit9, fid::RoundToDisplay}, Plain(fid::Divide), {fid::ClearX, fid::ClearRegisters}}},
    {{Plain(fid::Recall), {fid::Digit4, fid::InchesPerSecond}, Plain(fid::Digit5),
      Plain(fid::Digit6), Plain(fid::Multiply), Plain(fid::LastX)}},
    {{{fid::Exponent, fid::DisplayToggle}, Plain(fid::Digit1), Plain(fid::Digit2),
      Plain(fid::Digit3), Plain(fid::Subtract), Plain(fid::Enter)}},
    {{Plain(fid::ChangeSign), {fid::Digit0, fid::MacroPlay}, Plain(fid::Point),
      {fid::ClearStack, fid::ClearAll}, Plain(fid::Add), Plain(fid::Equals)}},
}};
// clang-format on

// Under RPN the corner key is ENTER; the infix methods complete a calculation with "=".
constexpr std::array<BasicRow, 5> BasicLayout(FunctionId corner) {
    return {{
        {fid::ClearStack, fid::Backspace, fid::Percent, fid::Divide},
        {fid::Digit7, fid::Digit8, fid::Digit9, fid::Multiply},
        {fid::Digit4, fid::Digit5, fid::Digit6, fid::Subtract},
        {fid::Digit1, fid::Digit2, fid::Digit3, fid::Add},
        {fid::ChangeSign, fid::Digit0, fid::Point, corner},
    }};
}
constexpr auto kBasicInfix = BasicLayout(fid::Equals);
constexpr auto kBasicRpn = BasicLayout(fid::Enter);

// Every key the calculator has can be tapped: it is on a built-in keyboard's block or on the shared
// keypad, shifted or not. Keys that need no face of their own: second keys of the same function,
// the second and third shift, and the variants the keyboard sends in place of the key the user taps.
constexpr std::array kNoFaceNeeded = {
    fid::SecondPoint,     fid::SecondClearAll,  fid::SecondClearStack, fid::SecondClearX,
    fid::SecondEnter,     fid::SecondAmortize,  fid::FirstShift,       fid::SecondShift,
    fid::IntegerNegate,   fid::ToDefaultFormat, fid::IntegerAdd,       fid::IntegerSubtract,
    fid::IntegerMultiply, fid::IntegerDivide,   fid::RecallVariant,    fid::RecallLarge,
    fid::ExchangeVariant, fid::ExchangeLarge,   fid::StoreVariant,     fid::StoreLarge};

consteval bool OnAFace(FunctionId id) {
    for (const KeyboardLayout& k : kBuiltInKeyboards) {
        if (std::ranges::find(k.unshifted, id) != k.unshifted.end()) return true;
        if (std::ranges::find(k.shifted, id) != k.shifted.end()) return true;
    }
    for (const KeypadRow& row : kSharedKeypad) {
        for (const KeypadKey& key : row) {
            if (key.unshifted == id || key.shifted == id) return true;
        }
    }
    return false;
}

consteval bool EveryKeyCanBeTapped() {
    for (const KeyInfo& k : kKeyTable) {
        if (!OnAFace(k.id) && std::ranges::find(kNoFaceNeeded, k.id) == kNoFaceNeeded.end()) return false;
    }
    return true;
}
static_assert(EveryKeyCanBeTapped(), "a key that no face sends");

// A face drawn on screen that is no key of the table would have no legend and no name in brinto-cli.
consteval bool EveryFaceIsAKey() {
    const auto known = [](FunctionId id) {
        return std::ranges::find(kKeyTable, id, &KeyInfo::id) != kKeyTable.end();
    };
    for (const KeyboardLayout& k : kBuiltInKeyboards) {
        if (!std::ranges::all_of(k.unshifted, known) || !std::ranges::all_of(k.shifted, known)) return false;
    }
    for (const KeypadRow& row : kSharedKeypad) {
        for (const KeypadKey& key : row) {
            if (!known(key.unshifted) || !known(key.shifted)) return false;
        }
    }
    return true;
}
static_assert(EveryFaceIsAKey(), "a face that is no key");

// Two faces with one function would waste a key; a shifted face may repeat its own key.
consteval bool EachFaceOnceOnTheSharedKeypad() {
    std::array<FunctionId, 2 * kKeypadColumns * 5> seen{};
    std::size_t count = 0;
    for (const KeypadRow& row : kSharedKeypad) {
        for (const KeypadKey& key : row) {
            seen[count++] = key.unshifted;
            if (key.shifted != key.unshifted) seen[count++] = key.shifted;
        }
    }
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t j = i + 1; j < count; ++j) {
            if (seen[i] == seen[j]) return false;
        }
    }
    return true;
}
static_assert(EachFaceOnceOnTheSharedKeypad(), "one function on two faces of the shared keypad");

}  // namespace

std::span<const KeypadRow> SharedKeypad() { return kSharedKeypad; }

std::span<const BasicRow> BasicKeys(InputMethod method) {
    return method == InputMethod::Rpn ? std::span<const BasicRow>(kBasicRpn)
                                      : std::span<const BasicRow>(kBasicInfix);
}

}  // namespace brinto

namespace brinto {

namespace {

// Each latch key with the state it shows.
struct Latch {
    FunctionId id;
    bool (*on)(const Engine&);
};

bool ShiftOn(const Engine& e) { return e.state.status & status::FirstShift; }

constexpr std::array kLatches = {
    Latch{fid::Shift, ShiftOn},
    Latch{fid::FirstShift, ShiftOn},
    Latch{fid::SecondShift, [](const Engine& e) -> bool { return e.state.viewFlags & view::SecondShift; }},
    Latch{fid::Hyperbolic, [](const Engine& e) -> bool { return e.state.status & status::Hyperbolic; }},
    Latch{fid::BeginEnd, [](const Engine& e) -> bool { return e.state.engineFlags & flags::Begin; }},
    Latch{fid::MacroRecord, [](const Engine& e) -> bool { return e.state.engineFlags & flags::Recording; }},
    Latch{fid::Degrees, [](const Engine& e) { return e.Angle() == AngleUnit::Degrees; }},
    Latch{fid::Radians, [](const Engine& e) { return e.Angle() == AngleUnit::Radians; }},
    Latch{fid::Grads, [](const Engine& e) { return e.Angle() == AngleUnit::Grads; }},
    Latch{fid::BaseBinary, [](const Engine& e) { return e.EntryBase() == status::BaseBinary; }},
    Latch{fid::BaseOctal, [](const Engine& e) { return e.EntryBase() == status::BaseOctal; }},
    Latch{fid::BaseDecimal, [](const Engine& e) { return e.EntryBase() == 0; }},
    Latch{fid::BaseHex, [](const Engine& e) { return e.EntryBase() == status::BaseHex; }},
    Latch{fid::MethodSimple, [](const Engine& e) { return e.Method() == InputMethod::Simple; }},
    Latch{fid::MethodPrecedence, [](const Engine& e) { return e.Method() == InputMethod::Precedence; }},
    Latch{fid::MethodRpn, [](const Engine& e) { return e.Method() == InputMethod::Rpn; }},
};

const Latch* FindLatch(FunctionId id) {
    const auto it = std::find_if(kLatches.begin(), kLatches.end(), [id](const Latch& l) { return l.id == id; });
    return it == kLatches.end() ? nullptr : &*it;
}

}  // namespace

bool IsLatchKey(FunctionId id) { return FindLatch(id) != nullptr; }

bool LatchOn(const Engine& engine, FunctionId id) {
    const Latch* latch = FindLatch(id);
    return latch && latch->on(engine);
}

}  // namespace brinto
