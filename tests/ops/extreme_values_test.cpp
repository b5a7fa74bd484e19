// Every key of the Scientific, Programmer, Conversion and Date & Time keyboards, and the
// arithmetic keys, on values no calculation should produce: nothing may crash (the sanitizer run
// checks for undefined behaviour too), and what an integer operation stores must be a whole
// number of its format.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "engine/algebraic.h"
#include "engine/numeric/integer_format.h"
#include "ops_test_support.h"
#include "engine/keyboards.h"

namespace brinto {
namespace {

using namespace test;

std::vector<FunctionId> KeysUnderTest() {
    std::vector<FunctionId> keys = {fid::Add, fid::Subtract, fid::Multiply, fid::Divide, fid::ChangeSign,
                                    fid::Percent, fid::RoundToDisplay, fid::Floor, fid::Ceiling,
                                    fid::ClearDate, fid::PercentTotal, fid::PercentChange};
    const UserKeyMap none = EmptyUserKeyMap();
    for (const int keyboard : {0, 2, 4, 5, 6, 7}) {
        for (const int shift : {0, 1}) {
            for (const FunctionId id : KeyLayout(keyboard, shift, none)) {
                if (id == kNoKey || (id >= fid::MacroRecord && id <= fid::MacroStop)) continue;
                keys.push_back(keyboard == 4 ? IntegerVariant(id) : id);
            }
        }
    }
    for (const FunctionId id : {fid::IntegerNegate, fid::ToDefaultFormat, fid::IntegerAdd, fid::IntegerSubtract,
                                fid::IntegerMultiply, fid::IntegerDivide}) {
        keys.push_back(id);
    }
    return keys;
}

bool IsIntegerResult(FunctionId id) {
    return id == fid::Not || (id >= fid::And && id <= fid::Xor) || (id >= fid::ShiftLeft && id <= fid::RotateRight) ||
           (id >= fid::FormatU8 && id <= fid::FormatS32) || id == fid::ToDefaultFormat ||
           (id >= fid::IntegerNegate && id <= fid::IntegerDivide);
}

TEST(ExtremeValues, EveryKeyOnEveryKindOfValue) {
    const double inf = std::numeric_limits<double>::infinity();
    const double values[] = {std::nan(""), inf, -inf, std::numeric_limits<double>::denorm_min(), -0.0,
                             1e300, -1e300, 4294967296.0 * 3 + 5, -2147483649.0, 4039372800.0, 0.5, 170.0};
    const ValueTag tags[] = {ValueTag::None, ValueTag::Meters, ValueTag::SquareFeet, ValueTag::Gallons, ValueTag::MetersPerSecond, ValueTag::Pounds, ValueTag::DegC, ValueTag::U8, ValueTag::S8, ValueTag::U32, ValueTag::S32,
                             ValueTag::Hms, ValueTag::Date, ValueTag::Time, ValueTag::DateTime, ValueTag::Years, ValueTag::Hours, ValueTag::Frames, ValueTag::PerYear};
    const FunctionId angles[] = {fid::Degrees, fid::Radians, fid::Grads};
    const std::vector<FunctionId> keys = KeysUnderTest();
    constexpr int kValues = sizeof values / sizeof values[0], kTags = sizeof tags / sizeof tags[0];

    int round = 0;
    for (const FunctionId key : keys) {
        for (int v = 0; v < kValues; ++v) {
            for (int t = 0; t < kTags; ++t, ++round) {
                const TaggedValue y{values[(v + t + 3) % kValues], tags[(t * 7 + v) % kTags]};
                const TaggedValue x{values[v], tags[t]};
                Engine e = Holding({{values[(v + 1) % kValues], tags[(t + 1) % kTags]}, y, x},
                                   round % 3 == 0 ? InputMethod::Simple : InputMethod::Rpn);
                e.Dispatch(angles[round % 3]);
                e.state.status |= 4;  // programmer keyboard: integer variants and bases apply
                e.prefs.SetIntegerFormat(round % 8);  // 6 and 7: no default format
                if (round % 5 == 0) e.Dispatch(fid::Hyperbolic);
                if (round % 4 == 1) e.Dispatch(fid::Enter);
                if (round % 7 == 2) e.Dispatch(fid::BaseHex);
                if (round % 11 == 3) e.registers.values[reg::DaysPerYear + round % 5] = values[v];
                e.Dispatch(key);

                ASSERT_FALSE(DisplayLevel(e, 0).text.empty()) << "key " << key;
                ASSERT_LE(e.state.pendingCount, kMaxPending);
                // (In Simple a two-operand key only waits on the pending stack.)
                const bool evaluated = e.IsRpn() || !IsBinaryOperator(key);
                if (evaluated && IsIntegerResult(key) && IsIntegerFormatTag(e.XTag()) && std::isfinite(e.X())) {
                    ASSERT_EQ(Narrow(e.X(), e.XTag(), e.XTag()), e.X())
                        << "key " << key << " x " << x.value << " tag " << x.tag << " y " << y.value << " tag " << y.tag;
                }
            }
        }
    }
}

}  // namespace
}  // namespace brinto
