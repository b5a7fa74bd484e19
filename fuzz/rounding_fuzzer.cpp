// Rounding to a count of places, as the amortization keys round each amount the way the display
// shows it: the shortcut RoundToPlaces must decide as the digit string does, and both as the
// display shows the value in Fixed. The input is a double (eight bytes, little-endian) and a
// count of places; the seeds hold decimal ties and the doubles beside them.
#include <cmath>
#include <cstdint>
#include <cstring>

#include "display/number_format.h"
#include "engine/numeric/decimal_digits.h"
#include "fuzz_check.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brinto;
    brinto::fuzz::ByteReader in(data, size);
    const std::uint64_t bits = in.U32() | (std::uint64_t{in.U32()} << 32);
    double value;
    std::memcpy(&value, &bits, sizeof value);
    const int places = in.U8() % 15;
    if (!std::isfinite(value)) return 0;
    const double rounded = RoundToPlaces(value, places);
    FUZZ_CHECK(rounded == RoundToPlacesByDigits(value, places), "the shortcut rounds otherwise than the digits");
    // The display's digit field holds at most nine decimals, and Fixed at most 12 digits.
    FormattedText shown;
    if (places > 9 || std::fabs(value) >= 1e12 || FormatDecimal(value, NumberFormat::Fixed, places + 1, shown)) return 0;
    FUZZ_CHECK(ParseDecimal(shown.View()) == rounded, "rounded otherwise than the display shows it");
    return 0;
}
