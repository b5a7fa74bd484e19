#include "session/keypad.h"

#include <algorithm>
#include <optional>

#include "engine/engine.h"

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
