#include "session/number_reader.h"

#include <charconv>
#include <cmath>

namespace brinto {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view Trimmed(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    return text;
}

// The digits before the radix: plain, or grouped as 1 to 3 digits and then groups of exactly 3
// ("1,000,000"); "1,2,3" and "10,00" are not a number, so they cannot be misread.
std::optional<std::string> WholePart(std::string_view text, char grouping) {
    if (text.find(grouping) == std::string_view::npos) {
        for (const char c : text) {
            if (!IsDigit(c)) return std::nullopt;
        }
        return std::string(text);
    }
    std::string digits;
    std::size_t groupLength = 0;
    bool first = true;
    for (const char c : text) {
        if (c == grouping) {
            if (groupLength == 0 || groupLength > 3 || (!first && groupLength != 3)) return std::nullopt;
            first = false;
            groupLength = 0;
        } else if (IsDigit(c)) {
            digits += c;
            ++groupLength;
        } else {
            return std::nullopt;
        }
    }
    if (groupLength != 3) return std::nullopt;
    return digits;
}

}  // namespace

NumberSyntax SyntaxOf(const Preferences& prefs) {
    return prefs.CommaRadix() ? NumberSyntax{',', '.'} : NumberSyntax{'.', ','};
}

std::string NumberParts::Plain() const {
    std::string text = negative ? "-" : "";
    text += mantissa;
    if (hasExponent) text += (exponentNegative ? "e-" : "e") + exponent;
    return text;
}

std::optional<NumberParts> SplitNumber(std::string_view text, NumberSyntax syntax) {
    text = Trimmed(text);
    NumberParts parts;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        parts.negative = text[0] == '-';
        text.remove_prefix(1);
    }
    const std::size_t e = text.find_first_of("eE");
    std::string_view mantissa = text.substr(0, e);
    const std::size_t radix = mantissa.find(syntax.radix);
    const auto whole = WholePart(mantissa.substr(0, radix), syntax.grouping);
    if (!whole) return std::nullopt;
    parts.mantissa = *whole;
    if (radix != std::string_view::npos) {
        const std::string_view fraction = mantissa.substr(radix + 1);
        for (const char c : fraction) {
            if (!IsDigit(c)) return std::nullopt;
        }
        parts.mantissa += '.';
        parts.mantissa += fraction;
    }
    if (parts.mantissa.find_first_of("0123456789") == std::string::npos) return std::nullopt;
    if (e == std::string_view::npos) return parts;
    std::string_view exponent = text.substr(e + 1);
    parts.hasExponent = true;
    if (!exponent.empty() && (exponent[0] == '-' || exponent[0] == '+')) {
        parts.exponentNegative = exponent[0] == '-';
        exponent.remove_prefix(1);
    }
    if (exponent.empty()) return std::nullopt;
    for (const char c : exponent) {
        if (!IsDigit(c)) return std::nullopt;
    }
    parts.exponent = exponent;
    return parts;
}

FieldReading ReadField(std::string_view text, NumberSyntax syntax, FieldKind kind) {
    const auto parts = SplitNumber(text, syntax);
    if (!parts) return {std::nullopt, "Not a number"};
    const std::string plain = parts->Plain();
    double value = 0.0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    // Too large for a double, or so small that it would be stored as 0: neither is what was typed.
    if (error != std::errc{} || end != plain.data() + plain.size() || !std::isfinite(value)) {
        return {std::nullopt, "Out of range"};
    }
    const bool whole = std::trunc(value) == value;
    switch (kind) {
        case FieldKind::Value: break;
        case FieldKind::Positive:
            if (!(value > 0)) return {std::nullopt, "Must be above 0"};
            break;
        case FieldKind::Payment:
            if (!whole || value < 1 || value > 32767) return {std::nullopt, "A whole number from 1 to 32767"};
            break;
        case FieldKind::GroupCount:
            if (!whole || value < 1 || value > 2147483647.0) return {std::nullopt, "A whole number from 1 up"};
            break;
    }
    return {value, {}};
}

}  // namespace brinto
