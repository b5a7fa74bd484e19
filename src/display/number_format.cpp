#include "display/number_format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string>

#include "engine/engine.h"
#include "engine/function_ids.h"
#include "engine/numeric/date_fields.h"
#include "engine/numeric/decimal_digits.h"
#include "engine/numeric/integer_format.h"

namespace brinto {

namespace {

// Appends text to a FormattedText, never past its buffer.
class TextWriter {
public:
    explicit TextWriter(FormattedText& out) : m_out(out) { m_out.length = 0; m_out.text[0] = '\0'; }
    ~TextWriter() { m_out.text[m_out.length] = '\0'; }
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    void Put(char c) {
        if (m_out.length < kCapacity) m_out.text[m_out.length++] = c;
    }
    void Put(const char* begin, int count) {
        for (int i = 0; i < count; ++i) Put(begin[i]);
    }
    void Put(std::string_view text) { Put(text.data(), static_cast<int>(text.size())); }
    void PutInt(int value) {
        char text[16];
        const auto result = std::to_chars(text, text + sizeof text, value);
        Put(text, static_cast<int>(result.ptr - text));
    }

private:
    static constexpr int kCapacity = static_cast<int>(sizeof(FormattedText::text)) - 1;
    FormattedText& m_out;
};

// Scientific and Engineering: one digit (Engineering: one to three, making the exponent a
// multiple of three) before the point, the rest after it, then the exponent.
void WriteExponentForm(DigitString& s, bool engineering, int d, FormattedText& out) {
    if (d > 0) {
        d = std::min(d, kMostShownDigits);
        RoundDigits(s.digits, s.decpt, d);
    }
    const int lead = engineering ? ((s.decpt - 1) % 3 + 3) % 3 + 1 : 1;
    s.PadTo(lead);
    s.PadTo(d);
    const int length = s.Length();

    TextWriter w(out);
    if (s.negative) w.Put('-');
    w.Put(s.digits, lead);
    w.Put('.');
    w.Put(s.digits + lead, length - lead);
    w.Put('e');
    w.PutInt(s.decpt - lead);
}

// Standard and Fixed: all digits before the point, with d - 1 decimals when a digit count is set.
void WritePositionalForm(DigitString& s, bool fixed, int d, FormattedText& out) {
    if (d > 0) {
        if (s.decpt + d - 1 >= 13) d = 13 - s.decpt;  // at most 12 digits before and after
        RoundDigits(s.digits, s.decpt, s.decpt + d - 1);
    } else if (fixed) {
        RoundDigits(s.digits, s.decpt, s.decpt + kMostShownDigits);
    }
    const int underflowLimit = d > 0 ? 1 - d : s.Length() - 13;
    if (s.decpt <= underflowLimit) {
        std::strcpy(s.digits, "0");
        s.decpt = 1;
    }

    TextWriter w(out);
    if (s.negative) w.Put('-');
    int decimals = 0;
    if (s.decpt < 1) {
        w.Put('0');
        w.Put('.');
        for (int i = s.decpt; i < 0; ++i, ++decimals) w.Put('0');
        w.Put(s.digits, s.Length());
        decimals += s.Length();
    } else {
        s.PadTo(s.decpt);
        const int length = s.Length();
        w.Put(s.digits, s.decpt);
        w.Put('.');
        w.Put(s.digits + s.decpt, length - s.decpt);
        decimals = length - s.decpt;
    }
    for (; decimals < d - 1; ++decimals) w.Put('0');
}

// Date and time tags: the platform writes the fields in the user's way.
u32 FormatDateTime(const Engine& e, double value, ValueTag tag, FormattedText& out) {
    if (!IsDateInRange(value)) return 1;
    const DateFields fields = SplitDate(value);
    TextWriter w(out);
    if (tag != fid::TagTime) w.Put(e.platform().DateText(fields, e.prefs.LongDate()));
    if (tag == fid::TagDateTime) w.Put(' ');
    if (tag != fid::TagDate) w.Put(e.platform().TimeText(fields));
    return 0;
}

// Binary, octal and hexadecimal: the value as a whole number of its integer format, showing
// the format's bits (so -1 in s8 is FF).
u32 FormatInteger(const Engine& e, double value, ValueTag tag, bool noPoint, FormattedText& out) {
    // The error value has no integer form; showing it as 0 would hide the failure.
    if (!std::isfinite(value)) return 1;
    ValueTag format = IntegerFormatOf(e.prefs, tag);
    if (format == ValueTag::None) format = ValueTag::S32;
    u32 bits = NarrowBits(value, tag, format);

    const int bitsPerDigit = e.EntryBase() == status::BaseBinary ? 1 : e.EntryBase() == status::BaseOctal ? 3 : 4;
    const u32 digitMask = (u32{1} << bitsPerDigit) - 1;
    char reversed[33];
    int count = 0;
    do {
        reversed[count++] = "0123456789ABCDEF"[bits & digitMask];
        bits >>= bitsPerDigit;
    } while (bits != 0);

    TextWriter w(out);
    while (count > 0) w.Put(reversed[--count]);
    if (!noPoint) w.Put('.');
    return 0;
}

bool IsDecimalNumberCharacter(char c) {
    return (c >= '0' && c <= '9') || c == '.' || c == 'e' || c == 'E' || c == '-' || c == '+';
}

// The value of a decimal text too large or too small for a double: +-infinity or +-0, decided
// by the decimal magnitude of mantissa and exponent.
double OutOfRangeValue(std::string_view text) {
    const bool negative = !text.empty() && text.front() == '-';
    const std::size_t mark = text.find_first_of("eE");
    double mantissa = 0;
    std::from_chars(text.data() + (negative ? 1 : 0), text.data() + std::min(mark, text.size()),
                    mantissa);
    long exponent = 0;
    if (mark != std::string_view::npos) {
        const char* p = text.data() + mark + 1;
        const bool negativeExponent = *p == '-';
        if (*p == '-' || *p == '+') ++p;
        std::from_chars(p, text.data() + text.size(), exponent);
        if (negativeExponent) exponent = -exponent;
    }
    const bool huge = mantissa != 0 && std::log10(mantissa) + static_cast<double>(exponent) > 0;
    const double magnitude = huge ? HUGE_VAL : 0.0;
    return negative ? -magnitude : magnitude;
}

}  // namespace

u32 FormatDecimal(double value, NumberFormat format, int digitField, FormattedText& out) {
    if (!std::isfinite(value)) {
        const auto result = std::to_chars(out.text, out.text + sizeof out.text - 1, value);
        out.length = static_cast<int>(result.ptr - out.text);
        out.text[out.length] = '\0';
        return 1;
    }
    const int d = std::max(digitField, 0);
    DigitString s = ShortestDigits(value);
    RoundDigits(s.digits, s.decpt, kMostShownDigits);

    const bool standard = format == NumberFormat::Standard;
    bool exponentForm = format == NumberFormat::Scientific || format == NumberFormat::Engineering;
    if (!exponentForm) {
        // Too large for twelve digits before the point, or (Standard) too small to show its
        // digits after it.
        exponentForm = s.decpt >= 13 || (standard && d == 0 && s.decpt <= s.Length() - 13) ||
                       (standard && d > 0 && s.decpt <= 1 - d);
    }
    if (exponentForm) {
        WriteExponentForm(s, format == NumberFormat::Engineering, d, out);
    } else {
        WritePositionalForm(s, format == NumberFormat::Fixed, d, out);
    }
    return 0;
}

u32 FormatValue(const Engine& e, double value, ValueTag tag, bool noPoint, FormattedText& out) {
    const bool fullDisplay = e.state.status & status::FullDisplay;
    if (TagCategory(tag) == Category::Calendar) {
        if (fullDisplay) return FormatDecimal(value, e.prefs.Format(), 0, out);
        return FormatDateTime(e, value, tag, out);
    }
    if (e.EntryBase() != 0) return FormatInteger(e, value, tag, noPoint, out);
    return FormatDecimal(value, e.prefs.Format(), fullDisplay ? 0 : e.prefs.DigitField(), out);
}

std::optional<double> ParseDecimal(std::string_view text) {
    // Only sign, digits, point and exponent: "inf" and "nan" are not typed numbers.
    if (text.empty() || !std::all_of(text.begin(), text.end(), IsDecimalNumberCharacter)) {
        return std::nullopt;
    }
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (end != text.data() + text.size()) return std::nullopt;
    if (error == std::errc::result_out_of_range) return OutOfRangeValue(text);
    if (error != std::errc{}) return std::nullopt;
    return value;
}

}  // namespace brinto
