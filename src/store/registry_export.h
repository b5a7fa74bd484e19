#pragma once
// Reading the registry export files that carry a user's settings over from the handheld release:
// "REGEDIT4" files in 8-bit text and "Windows Registry Editor Version 5.00" files in UTF-16LE with
// a byte-order mark or in UTF-8. Only the binary values "saved_N" under the calculator's key
// HKEY_CURRENT_USER\Software\ZEB\Brinto are taken; every other key and value is skipped.
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/types.h"

namespace brinto {

inline constexpr std::string_view kLegacyKey = "HKEY_CURRENT_USER\\Software\\ZEB\\Brinto";

// The calculator's values in an export: slot number N of "saved_N" to its bytes.
struct LegacyValues {
    bool keyFound = false;
    std::map<int, std::vector<u8>> slots;
};

struct RegistryExport {
    std::optional<LegacyValues> values;  // empty when the file is malformed
    std::string error;                   // then: why, in one line
};

// Parses the bytes of an export file. Registry names compare without regard to case, as the
// registry does; a value given twice keeps the later one, as importing the file would.
RegistryExport ParseRegistryExport(std::string_view bytes);

}  // namespace brinto
