#pragma once
// Reading pasted text as a number.
#include <optional>
#include <string_view>

#include "engine/types.h"

namespace brinto {

// The text from its first decimal digit on, at most 47 characters: signs and points before the
// first digit are dropped on purpose, so "-12.5" pastes as 12.5.
std::string_view PasteSpan(std::string_view text);

// The number at the start of `text`: in decimal, digits with "." or "," as the radix and an
// optional exponent; in an integer base (0x10, 0x20, 0x30), digits of that base read as a 32-bit
// word. Nothing when no digit is read.
std::optional<double> ParsePasted(std::string_view text, u16 base);

}  // namespace brinto
