#pragma once
// The text and label the display view draws for a stack level, and the clipboard form of X.
//
// The formatter gives a plain decimal text with "." as its point; this adds what only the
// display does: the "Comma Radix" preference, stripping of trailing zeros, a leading "0" before
// a bare point, digit grouping, the number being typed, and the label with its decorations.
// Colours, fonts and layout are left to the front end.
#include <optional>
#include <string>
#include <string_view>

#include "engine/types.h"

namespace brinto {

class Engine;

struct DisplayLine {
    std::string text;   // "error" when the value cannot be shown
    std::string label;  // empty when the tag has none
    bool error = false;
};

// Whether the line shows the progress of an amortization being computed.
enum class Amortizing { No, Yes };

// The line for stack level `level` (0 is X). With Amortizing::Yes the label is the progress text
// with the first and last period of the run instead of the tag's label.
DisplayLine DisplayLevel(const Engine& e, int level, Amortizing amortizing = Amortizing::No);

// A formatter text (or the number being typed) after the display rules: the radix character,
// trailing zeros, a leading zero and digit grouping, as they apply to a value tagged `tag` in the
// engine's present state. Dialogs that show numbers use it too.
std::string DisplayText(const Engine& e, std::string_view formatted, ValueTag tag);

// X as the clipboard receives it: the formatted value with the user's radix character but
// without grouping and without a point that ends the mantissa; nullopt when X cannot be shown.
std::optional<std::string> ClipboardText(const Engine& e);

}  // namespace brinto
