#pragma once
// The parts of the user guide that are written from the calculator's own tables: the keyboards
// (each key's face and meaning, from the same legends the keys are drawn with), the keyboard keys,
// the physical constants, and what each appearance preference looks like on screen. The guide, docs/Brinto.htm, holds each between a pair of markers
//   <!-- generated:NAME --> ... <!-- end generated:NAME -->
// and brinto-guide-gen rewrites what lies between them, so the guide cannot drift from the keys.
#include <optional>
#include <string>
#include <string_view>

namespace brinto {

// The generated text of one section ("keyboards", "hardware-keys", "constants", "appearance");
// nothing for a name the generator does not know (such a section is left as written).
std::optional<std::string> GeneratedSection(std::string_view name);

// The guide with every known generated section refreshed. Nothing when a marker is unpaired;
// `problem` then says which.
std::optional<std::string> RefreshGuide(std::string_view guide, std::string* problem = nullptr);

}  // namespace brinto
