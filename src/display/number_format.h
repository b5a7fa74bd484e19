#pragma once
// Turning values into the text the display shows, and decimal text back into values.
// All decimal formatting works on the shortest round-trip digit string of the double and then
// rounds that string, so that 0.1 + 0.2 shows as 0.3.
#include <optional>
#include <string_view>

#include "engine/preferences.h"
#include "engine/types.h"

namespace brinto {

class Engine;

// Text produced by the formatter; long enough for a date, a blank and a time.
struct FormattedText {
    char text[208] = {};
    int length = 0;
    std::string_view View() const { return {text, static_cast<std::size_t>(length)}; }
};

// The decimal forms. digitField: 0 for no fixed count, else digits + 1. Nonzero when the value
// is not finite (out then holds "inf" or "nan").
u32 FormatDecimal(double value, NumberFormat format, int digitField, FormattedText& out);

// The text of a stack value as the formatter gives it (before the display's radix, grouping and
// trailing-zero rules). Nonzero when the value cannot be shown.
u32 FormatValue(const Engine& e, double value, ValueTag tag, bool noPoint, FormattedText& out);

// Correctly rounded decimal parse of the whole text; nullopt when it is not a number.
std::optional<double> ParseDecimal(std::string_view text);

}  // namespace brinto
