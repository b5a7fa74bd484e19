#include "store/registry_export.h"

#include <charconv>

namespace brinto {

namespace {

constexpr std::string_view kHeader4 = "REGEDIT4";
constexpr std::string_view kHeader5 = "Windows Registry Editor Version 5.00";
constexpr std::string_view kSlotPrefix = "saved_";

char Lower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (Lower(a[i]) != Lower(b[i])) return false;
    }
    return true;
}

bool StartsIgnoringCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && EqualsIgnoringCase(text.substr(0, prefix.size()), prefix);
}

std::string_view TrimLeft(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    return s;
}

std::string_view TrimRight(std::string_view s) {
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.remove_suffix(1);
    return s;
}

std::string_view Trim(std::string_view s) { return TrimLeft(TrimRight(s)); }

// The file as 8-bit text. Characters outside ASCII only ever occur in names we skip, so they
// become '?' instead of being decoded.
std::optional<std::string> DecodeText(std::string_view bytes, std::string& error) {
    if (bytes.size() >= 2 && static_cast<u8>(bytes[0]) == 0xFF && static_cast<u8>(bytes[1]) == 0xFE) {
        if (bytes.size() % 2 != 0) {
            error = "the UTF-16 text ends in the middle of a character";
            return std::nullopt;
        }
        std::string text;
        text.reserve(bytes.size() / 2);
        for (std::size_t i = 2; i < bytes.size(); i += 2) {
            const unsigned unit = static_cast<u8>(bytes[i]) | static_cast<u8>(bytes[i + 1]) << 8;
            text += unit < 0x80 ? static_cast<char>(unit) : '?';
        }
        return text;
    }
    if (bytes.size() >= 3 && bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.remove_prefix(3);
    return std::string(bytes);
}

// Lines with their numbers; a line ending in a backslash continues on the next one.
struct Line {
    int number;
    std::string text;
};

std::vector<Line> LogicalLines(std::string_view text) {
    std::vector<Line> lines;
    int number = 0;
    bool continuing = false;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view raw = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        ++number;
        raw = TrimRight(raw);
        const bool continues = !raw.empty() && raw.back() == '\\';
        if (continues) raw.remove_suffix(1);
        if (continuing) {
            lines.back().text += TrimLeft(raw);
        } else {
            lines.push_back({number, std::string(raw)});
        }
        continuing = continues;
    }
    return lines;
}

// A quoted value name with its escapes, or "@" for the default value; `rest` gets what follows.
std::optional<std::string> ValueName(std::string_view line, std::string_view& rest) {
    if (line.front() == '@') {
        rest = line.substr(1);
        return std::string("@");
    }
    std::string name;
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (line[i] == '\\' && i + 1 < line.size()) {
            name += line[++i];
        } else if (line[i] == '"') {
            rest = line.substr(i + 1);
            return name;
        } else {
            name += line[i];
        }
    }
    return std::nullopt;
}

// The slot number of "saved_N", written as the program wrote it: decimal without leading zeros.
std::optional<int> SlotOf(std::string_view name) {
    if (!StartsIgnoringCase(name, kSlotPrefix)) return std::nullopt;
    const std::string_view digits = name.substr(kSlotPrefix.size());
    if (digits.empty() || (digits.size() > 1 && digits[0] == '0')) return std::nullopt;
    int slot = 0;
    const auto r = std::from_chars(digits.data(), digits.data() + digits.size(), slot);
    if (r.ec != std::errc{} || r.ptr != digits.data() + digits.size()) return std::nullopt;
    return slot;
}

// "hex:0a,ff,..." (or "hex(3):", the same binary type spelled out) into bytes.
std::optional<std::vector<u8>> HexBytes(std::string_view data) {
    std::string_view list;
    if (StartsIgnoringCase(data, "hex:")) {
        list = data.substr(4);
    } else if (StartsIgnoringCase(data, "hex(3):")) {
        list = data.substr(7);
    } else {
        return std::nullopt;
    }
    std::vector<u8> bytes;
    list = Trim(list);
    while (!list.empty()) {
        const std::size_t comma = list.find(',');
        const std::string_view item = Trim(list.substr(0, comma));
        unsigned value = 0;
        const auto r = std::from_chars(item.data(), item.data() + item.size(), value, 16);
        if (item.empty() || item.size() > 2 || r.ptr != item.data() + item.size()) return std::nullopt;
        bytes.push_back(static_cast<u8>(value));
        if (comma == std::string_view::npos) break;
        list = list.substr(comma + 1);
        if (Trim(list).empty()) return std::nullopt;  // a trailing comma: the data was cut short
    }
    return bytes;
}

// One value line of the calculator's key; false with `error` set when it cannot be read.
bool TakeValue(int number, std::string_view line, LegacyValues& values, std::string& error) {
    std::string_view rest;
    const std::optional<std::string> name = ValueName(line, rest);
    rest = TrimLeft(rest);
    if (!name || rest.empty() || rest.front() != '=') {
        error = "line " + std::to_string(number) + ": not a value";
        return false;
    }
    const std::optional<int> slot = SlotOf(*name);
    if (!slot) return true;
    rest = Trim(rest.substr(1));
    if (rest == "-") {  // a deletion line removes the value
        values.slots.erase(*slot);
        return true;
    }
    std::optional<std::vector<u8>> bytes = HexBytes(rest);
    if (!bytes) {
        error = "line " + std::to_string(number) + ": \"" + *name + "\" is not binary data written as hex:..";
        return false;
    }
    values.slots[*slot] = std::move(*bytes);
    return true;
}

}  // namespace

RegistryExport ParseRegistryExport(std::string_view bytes) {
    RegistryExport result;
    const std::optional<std::string> text = DecodeText(bytes, result.error);
    if (!text) return result;
    const std::vector<Line> lines = LogicalLines(*text);
    if (lines.empty() || (Trim(lines[0].text) != kHeader4 && Trim(lines[0].text) != kHeader5)) {
        result.error = "not a registry export: the first line is neither \"REGEDIT4\" nor \"Windows "
                       "Registry Editor Version 5.00\"";
        return result;
    }
    LegacyValues values;
    bool inKey = false;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const std::string_view line = Trim(lines[i].text);
        if (line.empty() || line.front() == ';') continue;
        if (line.front() == '[') {
            // "[-KEY]" deletes a key: it names another key than ours.
            inKey = line.back() == ']' && EqualsIgnoringCase(line.substr(1, line.size() - 2), kLegacyKey);
            values.keyFound = values.keyFound || inKey;
            continue;
        }
        if (!inKey) continue;
        if ((line.front() != '"' && line.front() != '@') || !TakeValue(lines[i].number, line, values, result.error)) {
            if (result.error.empty()) result.error = "line " + std::to_string(lines[i].number) + ": not a value";
            return result;
        }
    }
    result.values = std::move(values);
    return result;
}

}  // namespace brinto
