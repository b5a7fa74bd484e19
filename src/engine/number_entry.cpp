#include "engine/number_entry.h"

#include <charconv>
#include <cstring>
#include <limits>

namespace brinto {

namespace {

constexpr int kExponentLimit = 3;

void Append(CalcState& s, char c) {
    const std::size_t n = std::strlen(s.entryText);
    if (n + 1 < sizeof s.entryText) {
        s.entryText[n] = c;
        s.entryText[n + 1] = '\0';
    }
}


}  // namespace

int MantissaLimit(u16 base) {
    switch (base & status::BaseMask) {
        case status::BaseBinary: return 32;
        case status::BaseOctal: return 11;
        case status::BaseHex: return 8;
        default: return 12;
    }
}

double ParseEntryText(const char* text, u16 base) {
    base &= status::BaseMask;
    if (base != 0) {
        const unsigned radix = base == status::BaseBinary ? 2 : base == status::BaseOctal ? 8 : 16;
        bool negative = false;
        std::uint64_t word = 0;
        for (const char* p = text; *p; ++p) {
            if (*p == '-') {
                negative = !negative;
                continue;
            }
            const unsigned digit = (*p >= 'A') ? static_cast<unsigned>(*p - 'A' + 10)
                                               : static_cast<unsigned>(*p - '0');
            word = (word * radix + digit) & 0xFFFFFFFFull;  // wider texts wrap to 32 bits
        }
        const double value = static_cast<double>(static_cast<i32>(static_cast<u32>(word)));
        return negative ? -value : value;
    }
    // Decimal: a bare "e", "e-", "-" or "." on the way to a number reads as what precedes it.
    char clean[kEntryCapacity + 2];
    std::size_t n = 0;
    bool mantissaDigit = false;
    const char* exponent = std::strchr(text, 'e');
    const std::size_t mantissaLength = exponent ? static_cast<std::size_t>(exponent - text) : std::strlen(text);
    for (std::size_t i = 0; i < mantissaLength && n < kEntryCapacity; ++i) {
        clean[n++] = text[i];
        if (text[i] >= '0' && text[i] <= '9') mantissaDigit = true;
    }
    if (!mantissaDigit) return (n > 0 && clean[0] == '-') ? -0.0 : 0.0;
    if (exponent) {
        const char* digits = exponent + 1;
        if (*digits == '-') ++digits;
        if (*digits) {
            for (const char* p = exponent; *p && n < kEntryCapacity; ++p) clean[n++] = *p;
        }
    }
    double value = 0.0;
    if (std::from_chars(clean, clean + n, value).ec == std::errc::result_out_of_range) {
        // Beyond the range of a double: too large reads as infinity, too small as zero.
        const bool tiny = std::strstr(clean, "e-") != nullptr;
        const bool negative = clean[0] == '-';
        value = tiny ? 0.0 : std::numeric_limits<double>::infinity();
        if (negative) value = -value;
    }
    return value;
}

bool EditEntry(Engine& e, FunctionId id) {
    CalcState& s = e.state;
    if (!(s.status & status::Entry)) {
        if (s.status & status::LiftEnabled) e.Lift();
        ClearBits(s.status, status::Exponent);
        s.status |= status::Entry;
        s.entryText[0] = '\0';
        s.entryDigits = 0;
        s.exponentDigits = 0;
    }
    bool accepted = true;
    const bool inExponent = s.status & status::Exponent;
    u8& count = inExponent ? s.exponentDigits : s.entryDigits;
    const int baseLimit = MantissaLimit(s.status);
    if (IsDecimalDigit(id)) {
        const int limit = inExponent ? kExponentLimit : baseLimit;
        if (count >= limit) {
            accepted = false;
        } else {
            Append(s, static_cast<char>('0' + DigitValue(id)));
            ++count;
        }
    } else if (IsHexLetter(id)) {
        if (count >= baseLimit) {
            accepted = false;
        } else {
            Append(s, static_cast<char>('A' + (DigitValue(id) - 10)));
            ++count;
        }
    } else if (id == fid::Point || id == fid::SecondPoint) {
        if (!std::strchr(s.entryText, '.') && !std::strchr(s.entryText, 'e')) Append(s, '.');
    } else if (id == fid::Exponent) {
        if (inExponent) {
            accepted = false;
        } else {
            if (s.entryText[0] == '\0') Append(s, '1');  // a bare exponent means 1 x 10^n
            Append(s, 'e');
            s.status |= status::Exponent;
        }
    } else if (id == fid::Backspace) {
        const std::size_t n = std::strlen(s.entryText);
        if (n > 0) {
            const char last = s.entryText[n - 1];
            // A hexadecimal letter does not lower the count; this asymmetry is kept on purpose.
            if (last >= '0' && last <= '9' && count > 0) --count;
            if (last == 'e') ClearBits(s.status, status::Exponent);
            s.entryText[n - 1] = '\0';
        }
        if (s.entryText[0] == '\0') ClearBits(s.status, status::Entry);
    } else if (id == fid::ChangeSign || id == fid::IntegerNegate) {
        char* place = std::strchr(s.entryText, 'e');
        place = place ? place + 1 : s.entryText;
        if (*place == '-') {
            std::memmove(place, place + 1, std::strlen(place + 1) + 1);
        } else if (std::strlen(s.entryText) + 1 < sizeof s.entryText) {
            std::memmove(place + 1, place, std::strlen(place) + 1);
            *place = '-';
        }
    } else {
        accepted = false;
    }
    e.SetX(ParseEntryText(s.entryText, s.status));
    return accepted;
}

}  // namespace brinto
