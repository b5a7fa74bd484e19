#pragma once
// Formulas on brinto-cli's command line: "2+3*5", "sqrt(2)", "(1+2)*3^2", "2*pi". A formula is
// read with the usual precedence (^ binds tighter than a sign, which binds tighter than * and /,
// then + and -; ^ groups to the right) and then typed as the calculator's own keys, so that its
// result, tags and undo steps are those of the keys. Functions and constants are the keys of
// that name or alias that take one value from X (sqrt, ln, sin in the current angle unit), two
// values from Y and X (mod, pow, ncr) or none (pi, rand).
//
// The keys follow the input method in force, which the formula leaves as it is: in RPN the
// formula is typed in postfix order, numbers separated by Enter; in Simple and Precedence every
// operation that has another as an operand is typed inside parentheses, so both methods give
// the precedence of the formula, and the formula can stand as one operand of a longer calculation
// ("10 * '2+3' =").
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/function_ids.h"

namespace brinto {

// A token is taken for a formula when it holds a parenthesis or an operator between two
// operands. Such a token that is also a key name ("1/x", "y^x", "(") stays the key.
bool LooksLikeFormula(std::string_view text);

// Where a formula goes wrong: the 0-based character, and what was expected there.
struct FormulaError {
    std::size_t position;
    std::string message;
};

// One key, or a number typed as keys (the text of a number token, as TypeNumber takes it).
struct FormulaStep {
    FunctionId key = kNoKey;  // kNoKey: a number
    std::string_view number;  // a view into the formula's text
};

enum class FormulaMethod { Postfix, Infix };

// The keys of the formula in `text` for the given kind of input method, or where it is malformed.
// The steps view `text`, which must outlive them.
struct FormulaKeys {
    std::vector<FormulaStep> steps;
    std::optional<FormulaError> error;
};
FormulaKeys KeysOfFormula(std::string_view text, FormulaMethod method);

}  // namespace brinto
