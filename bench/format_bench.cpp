// FormatDecimal runs for every visible stack level on every repaint; it must stay well under a
// microsecond and must not allocate.
#include <benchmark/benchmark.h>

#include "display/number_format.h"
#include "engine/numeric/decimal_digits.h"

namespace brinto {
namespace {

void FormatOne(benchmark::State& state, double value, NumberFormat format, int digitField) {
    FormattedText out;
    for (auto _ : state) {
        benchmark::DoNotOptimize(FormatDecimal(value, format, digitField, out));
        benchmark::DoNotOptimize(out);
    }
}

BENCHMARK_CAPTURE(FormatOne, third, 1.0 / 3.0, NumberFormat::Standard, 0);
BENCHMARK_CAPTURE(FormatOne, whole, 1234567.0, NumberFormat::Standard, 0);
BENCHMARK_CAPTURE(FormatOne, money, 1234.5, NumberFormat::Fixed, 3);
BENCHMARK_CAPTURE(FormatOne, tiny, 1.602176634e-19, NumberFormat::Standard, 0);
BENCHMARK_CAPTURE(FormatOne, engineering, 6.0221367e23, NumberFormat::Engineering, 4);

void RoundTo14Sum(benchmark::State& state) {
    double value = 0.3 - 0.1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(RoundTo14(value));
    }
}
BENCHMARK(RoundTo14Sum);

}  // namespace
}  // namespace brinto
