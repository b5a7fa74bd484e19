#include "engine/numeric/integer_format.h"

#include <cmath>

namespace brinto {

namespace {

constexpr double kTwoTo32 = 4294967296.0;

bool IsUnsignedFormatTag(ValueTag tag) { return IsIntegerFormatTag(tag) && !FormatOfTag(tag).isSigned; }
bool IsSignedFormatTag(ValueTag tag) { return IsIntegerFormatTag(tag) && FormatOfTag(tag).isSigned; }

// Which conversion reads the source value. A u32 target always reads unsigned. Otherwise a value
// already in an unsigned format is read unsigned and one in a signed format signed; any other
// value is read signed for a signed target and by its own sign for an unsigned one. With
// wrap-around both conversions agree on the low 32 bits, so the choice only matters if the
// conversions ever stop wrapping; it is kept so that the rule lives in one place.
bool ReadsUnsigned(double x, ValueTag sourceTag, IntegerFormat target) {
    if (target.bits == 32 && !target.isSigned) return true;
    if (IsUnsignedFormatTag(sourceTag)) return true;
    if (IsSignedFormatTag(sourceTag) || target.isSigned) return false;
    return x >= 0;
}

}  // namespace

ValueTag DefaultIntegerFormatTag(const Preferences& prefs) {
    // The preference holds the format's place in the list; past its end it selects none.
    const int field = prefs.IntegerFormat();
    return field >= 0 && field < static_cast<int>(kIntegerFormats.size()) ? kIntegerFormats[field].tag
                                                                          : ValueTag::None;
}

ValueTag IntegerFormatOf(const Preferences& prefs, ValueTag tag) {
    return IsIntegerFormatTag(tag) ? tag : DefaultIntegerFormatTag(prefs);
}

u32 ToUnsigned32(double x) {
    if (!std::isfinite(x)) return 0;
    // fmod is exact, so the remainder is a whole number of magnitude below 2^32 and the cast
    // below is always in range.
    double wrapped = std::fmod(std::trunc(x), kTwoTo32);
    if (wrapped < 0) wrapped += kTwoTo32;
    return static_cast<u32>(wrapped);
}

i32 ToSigned32(double x) {
    // Conversion of an unsigned value to a signed type is modulo 2^32 in C++20.
    return static_cast<i32>(ToUnsigned32(x));
}

u32 NarrowBits(double x, ValueTag sourceTag, ValueTag targetFormatTag) {
    const IntegerFormat target = FormatOfTag(targetFormatTag);
    const u32 word = ReadsUnsigned(x, sourceTag, target) ? ToUnsigned32(x)
                                                         : static_cast<u32>(ToSigned32(x));
    return word & WidthMask(target);
}

double Narrow(double x, ValueTag sourceTag, ValueTag targetFormatTag) {
    return ValueOfBits(NarrowBits(x, sourceTag, targetFormatTag), FormatOfTag(targetFormatTag));
}

double ValueOfBits(u32 bits, IntegerFormat format) {
    const u32 value = bits & WidthMask(format);
    const u32 signBit = u32{1} << (format.bits - 1);
    if (format.isSigned && (value & signBit)) {
        return static_cast<double>(value) - static_cast<double>(WidthMask(format)) - 1.0;
    }
    return static_cast<double>(value);
}

}  // namespace brinto
