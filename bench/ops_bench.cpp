// One representative key of each calculator family of the Scientific, Programmer, Conversion and
// Date & Time keyboards, through Engine::Dispatch with its undo snapshot and commit. Each key must
// stay under a microsecond. The stacks are set up so that every repetition takes the same path.
#include <benchmark/benchmark.h>

#include "calculator/assembly.h"
#include "engine/engine.h"
#include "ops/constants.h"
#include "session/session.h"

namespace brinto {
namespace {

struct Level {
    double value;
    ValueTag tag;
};

// Y and X are put back before every key, so that each repetition takes the same path; the rest of
// the stack holds zeros.
void KeyOn(benchmark::State& state, Level y, Level x, FunctionId key) {
    Engine e(CalculatorFamilies());
    e.prefs.SetMethod(InputMethod::Rpn);
    e.prefs.SetStackDepth(4);
    e.ClearStack();
    e.state.status |= status::LiftEnabled;
    for (auto _ : state) {
        e.SetLevel(1, StackEntry{y.value, y.tag, kNoAux});
        e.SetLevel(0, StackEntry{x.value, x.tag, kNoAux});
        benchmark::DoNotOptimize(e.Dispatch(key));
    }
}

// Scientific: sine in degrees (exact-zero tests, conversion to radians); rectangular to polar.
BENCHMARK_CAPTURE(KeyOn, sine, Level{0, ValueTag::None}, Level{30, ValueTag::None}, fid::Sin);
BENCHMARK_CAPTURE(KeyOn, rectangularToPolar, Level{1, ValueTag::None}, Level{-1, ValueTag::None}, fid::RectToPolar);
BENCHMARK_CAPTURE(KeyOn, factorial170, Level{0, ValueTag::None}, Level{170, ValueTag::None}, fid::Factorial);

// Programmer: NOT of a u16 value; rotate right of an 8-bit value through the evaluator.
BENCHMARK_CAPTURE(KeyOn, bitwiseNot, Level{0, ValueTag::None}, Level{1234, ValueTag::U16}, fid::Not);
BENCHMARK_CAPTURE(KeyOn, rotateRight, Level{3, ValueTag::U8}, Level{-1, ValueTag::None}, fid::RotateRight);

// Conversion: a unit key converting inches to feet; meters plus centimetres (X converted into
// Y's unit); 100 km / 50 mi/h.
BENCHMARK_CAPTURE(KeyOn, inchesToFeet, Level{0, ValueTag::None}, Level{12, ValueTag::Inches}, fid::Feet);
BENCHMARK_CAPTURE(KeyOn, metersPlusCm, Level{2, ValueTag::Meters}, Level{50, ValueTag::Centimeters}, fid::Add);
BENCHMARK_CAPTURE(KeyOn, kmPerMph, Level{100, ValueTag::Kilometers}, Level{50, ValueTag::MilesPerHour}, fid::Divide);

// Date & Time: Y.MMDD to a date; decimal hours to h.mmss; a date-time plus one day; 90 minutes
// to hours through the duration chain.
BENCHMARK_CAPTURE(KeyOn, dateEntry, Level{0, ValueTag::None}, Level{5.0315, ValueTag::None}, fid::Date);
BENCHMARK_CAPTURE(KeyOn, hoursToHms, Level{0, ValueTag::None}, Level{1.5125, ValueTag::Hours}, fid::ToHms);
BENCHMARK_CAPTURE(KeyOn, dateTimePlusDay, Level{3193739130.0, ValueTag::DateTime}, Level{1, ValueTag::None}, fid::Add);
BENCHMARK_CAPTURE(KeyOn, minutesToHours, Level{0, ValueTag::None}, Level{90, ValueTag::Minutes}, fid::Hours);

// Constants: the list's OK through the session, with its undo step.
class NoHost : public Host {
public:
    void ShowMessage(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
    void PutOnClipboard(std::string_view) override {}
    std::optional<std::string> ClipboardText() override { return std::nullopt; }
    void ReportTrouble(std::string_view) override {}
    DateFields Now() const override { return DefaultPlatform().Now(); }
    std::string DateText(const DateFields& d, bool longForm) const override { return DefaultPlatform().DateText(d, longForm); }
    std::string TimeText(const DateFields& t) const override { return DefaultPlatform().TimeText(t); }
};

void RecallConstantThroughSession(benchmark::State& state) {
    Engine e(CalculatorFamilies());
    e.prefs.SetMethod(InputMethod::Rpn);
    e.ClearStack();
    NoHost host;
    Session session(e, host);
    for (auto _ : state) benchmark::DoNotOptimize(session.RecallConstant(7, 0));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(RecallConstantThroughSession);

}  // namespace
}  // namespace brinto
