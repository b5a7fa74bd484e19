#include "session/paste.h"

#include <charconv>
#include <string>

#include "engine/calc_state.h"

namespace brinto {

namespace {
constexpr std::size_t kPasteLimit = 47;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

int DigitValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return 99;
}
}  // namespace

std::string_view PasteSpan(std::string_view text) {
    std::size_t start = 0;
    while (start < text.size() && !IsDigit(text[start])) ++start;
    return text.substr(start, kPasteLimit);
}

std::optional<double> ParsePasted(std::string_view text, u16 base) {
    base &= status::BaseMask;
    if (base != 0) {
        const int radix = base == status::BaseBinary ? 2 : base == status::BaseOctal ? 8 : 16;
        std::uint64_t word = 0;
        std::size_t i = 0;
        for (; i < text.size() && DigitValue(text[i]) < radix; ++i) {
            word = (word * radix + static_cast<unsigned>(DigitValue(text[i]))) & 0xFFFFFFFFull;
        }
        if (i == 0) return std::nullopt;
        return static_cast<double>(static_cast<u32>(word));
    }
    std::string clean;
    std::size_t i = 0;
    while (i < text.size() && IsDigit(text[i])) clean += text[i++];
    if (clean.empty()) return std::nullopt;
    if (i < text.size() && (text[i] == '.' || text[i] == ',')) {
        clean += '.';
        ++i;
        while (i < text.size() && IsDigit(text[i])) clean += text[i++];
    }
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        std::string exponent = "e";
        if (j < text.size() && (text[j] == '-' || text[j] == '+')) exponent += text[j++];
        const std::size_t digitsStart = j;
        while (j < text.size() && IsDigit(text[j])) exponent += text[j++];
        if (j > digitsStart) clean += exponent;
    }
    double value = 0.0;
    const auto result = std::from_chars(clean.data(), clean.data() + clean.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // A number too large for a double is the error value; one too small is zero.
        return clean.find("e-") != std::string::npos ? 0.0 : kErrorValue;
    }
    return value;
}

}  // namespace brinto
