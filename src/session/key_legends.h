#pragma once
// What is printed on each key: its face in the calculator's own notation, the full name shown in
// tooltips and in the user guide, and the keyboard key that does the same. Every key that brinto-cli
// can name has a row, also the variants that the keyboard layer sends in place of another key, so a
// User key or a macro step always has something to show.
//
// Faces are UTF-8 and short: at most six characters, so that they fit a key about 56 pixels wide.
#include <span>
#include <string_view>

#include "engine/function_ids.h"

namespace brinto {

struct KeyLegend {
    FunctionId id;
    std::string_view legend;       // the key face, e.g. "√x"
    std::string_view fullName;     // e.g. "Square root"
    std::string_view hardwareKey;  // the keyboard key that does the same, "" when none
};

// Every legend, in ascending id order.
std::span<const KeyLegend> AllLegends();

// The legend of a key; nullptr for an id that is no key (255 "no function", a value tag).
const KeyLegend* FindLegend(FunctionId id);

}  // namespace brinto
