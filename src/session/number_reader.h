#pragma once
// Reading a number written as text. Every number field of the desktop program's windows and
// brinto-cli's number tokens read through here, so "6,5" or "1.000,50" means one thing (or is
// refused) wherever it is typed: the radix is the one the "Comma Radix" preference chooses, the
// other character is digit grouping and is taken only in its correct form (groups of three
// before the radix), and an exponent may follow ("1.5e-3").
#include <optional>
#include <string>
#include <string_view>

#include "engine/preferences.h"

namespace brinto {

// The radix character in force and the grouping character that goes with it.
struct NumberSyntax {
    char radix = '.';
    char grouping = ',';
};
NumberSyntax SyntaxOf(const Preferences& prefs);

// A number as the keypad types it: its sign, the mantissa's digits with at most one "." (always
// "." here, whatever the radix was), and the exponent's sign and digits when there is one.
struct NumberParts {
    bool negative = false;
    std::string mantissa;
    bool hasExponent = false;
    bool exponentNegative = false;
    std::string exponent;

    // "-12.5e-3": the form the C++ number parser reads.
    std::string Plain() const;
};

// Nothing when `text` (blanks around it allowed) is not one number in `syntax`: a sign, digits
// with at most one radix and grouping only in its correct form, then "e" or "E", a sign and
// digits. At least one mantissa digit is needed.
std::optional<NumberParts> SplitNumber(std::string_view text, NumberSyntax syntax);

// What a field takes.
enum class FieldKind {
    Value,       // any number a register can hold
    Positive,    // a number above 0 (the duration settings)
    Payment,     // a whole payment number from 1 to 32767 (amortization Start and End)
    GroupCount,  // a whole count of at least 1 (a cash flow's Nj)
};

// A field's text read as its kind: the value, or why it is refused, in a few words for the user.
struct FieldReading {
    std::optional<double> value;
    std::string_view problem;
};
FieldReading ReadField(std::string_view text, NumberSyntax syntax, FieldKind kind);

}  // namespace brinto
