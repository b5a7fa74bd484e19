#include "guide/guide_sections.h"

#include <array>
#include <charconv>
#include <span>
#include <string>

#include "display/labels.h"
#include "ops/constants.h"
#include "session/appearance.h"
#include "session/key_legends.h"
#include "engine/keyboards.h"
#include "session/keypad.h"

namespace brinto {

namespace {

// Tables with borders drawn by attributes, which the help viewer honours where it ignores CSS.
constexpr std::string_view kGrid =
    "<table class=\"grid\" border=\"1\" cellspacing=\"0\" cellpadding=\"4\">\n";
constexpr std::string_view kKeys =
    "<table class=\"keys\" border=\"1\" cellspacing=\"0\" cellpadding=\"3\">\n";

std::string Escape(std::string_view text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

std::string Face(FunctionId id) {
    const KeyLegend* legend = FindLegend(id);
    return legend ? Escape(legend->legend) : "";
}

std::string Meaning(FunctionId id) {
    const KeyLegend* legend = FindLegend(id);
    return legend ? Escape(legend->fullName) : "";
}

// A grid cell: the unshifted face, and the shifted one below it when it differs.
std::string Cell(FunctionId unshifted, FunctionId shifted) {
    std::string cell = "<td class=\"key\"><b>" + Face(unshifted) + "</b>";
    if (shifted != unshifted) cell += "<br><span class=\"shifted\">" + Face(shifted) + "</span>";
    return cell + "</td>";
}

// Face and meaning, one row per key.
std::string MeaningRow(FunctionId unshifted, FunctionId shifted) {
    std::string row =
        "<tr><td class=\"face\">" + Face(unshifted) + "</td><td>" + Meaning(unshifted) + "</td>";
    if (shifted != unshifted) {
        row += "<td class=\"face\">" + Face(shifted) + "</td><td>" + Meaning(shifted) + "</td>";
    } else {
        row += "<td></td><td>(the same key)</td>";
    }
    return row + "</tr>\n";
}

constexpr std::string_view kMeaningHeader =
    "<tr><th>Key</th><th>Function</th><th>Shifted</th><th>Function</th></tr>\n";

std::string BlockSection(int keyboard) {
    const UserKeyMap none = EmptyUserKeyMap();
    const KeyBlock plain = KeyLayout(keyboard, 0, none);
    const KeyBlock shifted = KeyLayout(keyboard, 1, none);
    std::string html = "<h3>" + Escape(kKeyboardNames[keyboard]) + "</h3>\n" + std::string(kGrid);
    for (int row = 0; row < 2; ++row) {
        html += "<tr>";
        for (int column = 0; column < 6; ++column) {
            const int k = row * 6 + column;
            html += Cell(plain[k], shifted[k]);
        }
        html += "</tr>\n";
    }
    html += "</table>\n";
    html += kKeys;
    html += kMeaningHeader;
    for (int k = 0; k < kBlockKeys; ++k)
        html += MeaningRow(plain[k], shifted[k]);
    return html + "</table>\n";
}

std::string KeypadSection() {
    std::string html = "<h3>The shared keypad</h3>\n" + std::string(kGrid);
    for (const KeypadRow& row : SharedKeypad()) {
        html += "<tr>";
        for (const KeypadKey& key : row) html += Cell(key.unshifted, key.shifted);
        html += "</tr>\n";
    }
    html += "</table>\n";
    html += kKeys;
    html += kMeaningHeader;
    for (const KeypadRow& row : SharedKeypad()) {
        for (const KeypadKey& key : row) html += MeaningRow(key.unshifted, key.shifted);
    }
    return html + "</table>\n";
}

std::string BasicSection() {
    std::string html = "<h3>The Basic view</h3>\n" + std::string(kGrid);
    const auto infix = BasicKeys(InputMethod::Simple);
    const auto rpn = BasicKeys(InputMethod::Rpn);
    for (std::size_t r = 0; r < infix.size(); ++r) {
        html += "<tr>";
        for (std::size_t c = 0; c < infix[r].size(); ++c) {
            html += "<td class=\"key\"><b>" + Face(infix[r][c]) + "</b>";
            if (rpn[r][c] != infix[r][c])
                html += "<br><span class=\"shifted\">RPN: " + Face(rpn[r][c]) + "</span>";
            html += "</td>";
        }
        html += "</tr>\n";
    }
    return html + "</table>\n";
}

std::string KeyboardsSection() {
    std::string html = KeypadSection();
    for (int keyboard = 0; keyboard < kUserKeyboard; ++keyboard) html += BlockSection(keyboard);
    return html + BasicSection();
}

std::string HardwareKeysSection() {
    std::string html = std::string(kKeys) + "<tr><th>Keyboard key</th><th>Key</th><th>Function</th></tr>\n";
    for (const KeyLegend& legend : AllLegends()) {
        if (legend.hardwareKey.empty()) continue;
        html += "<tr><td>" + Escape(legend.hardwareKey) + "</td><td class=\"face\">" + Escape(legend.legend) +
                "</td><td>" + Escape(legend.fullName) + "</td></tr>\n";
    }
    return html + "</table>\n";
}

std::string ConstantsSection() {
    std::string html = std::string(kKeys) + "<tr><th>Constant</th><th>Value</th><th>Unit</th></tr>\n";
    for (const PhysicalConstant& constant : kPhysicalConstants) {
        std::array<char, 32> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), constant.value).ptr;
        html += "<tr><td>" + Escape(LabelText(constant.name)) + "</td><td>" +
                std::string(digits.data(), end) + "</td><td>" +
                (constant.tag != ValueTag::None ? Escape(LabelText(constant.tag)) : std::string()) + "</td></tr>\n";
    }
    return html + "</table>\n";
}

// One group of rows per preference, its caption spanning them. A check box ("Basic also") is a
// group of one row without a list entry: its caption spans the entry column too.
std::string AppearanceSection() {
    std::string html =
        std::string(kKeys) + "<tr><th>Choice</th><th>Value</th><th>On screen</th></tr>\n";
    const std::span<const GuideRow> rows = AppearanceGuide();
    for (std::size_t first = 0; first < rows.size();) {
        std::size_t end = first + 1;
        while (end < rows.size() && rows[end].field == rows[first].field) ++end;
        const bool checkBox = end - first == 1 && rows[first].choice.empty();
        html += checkBox ? "<tr><td colspan=\"2\">"
                         : "<tr><td rowspan=\"" + std::to_string(end - first) + "\" valign=\"top\">";
        html += "<b>" + Escape(rows[first].field) + "</b></td>";
        for (std::size_t r = first; r < end; ++r) {
            if (r > first) html += "<tr>";
            if (!checkBox) html += "<td>" + Escape(rows[r].choice) + "</td>";
            html += "<td>" + Escape(rows[r].meaning) + "</td></tr>\n";
        }
        first = end;
    }
    return html + "</table>\n";
}

}  // namespace

std::optional<std::string> GeneratedSection(std::string_view name) {
    if (name == "keyboards") return KeyboardsSection();
    if (name == "hardware-keys") return HardwareKeysSection();
    if (name == "constants") return ConstantsSection();
    if (name == "appearance") return AppearanceSection();
    return std::nullopt;
}

std::optional<std::string> RefreshGuide(std::string_view guide, std::string* problem) {
    constexpr std::string_view kOpen = "<!-- generated:";
    constexpr std::string_view kClose = "<!-- end generated:";
    std::string out;
    std::size_t at = 0;
    for (;;) {
        const std::size_t open = guide.find(kOpen, at);
        if (open == std::string_view::npos) break;
        const std::size_t nameEnd = guide.find(" -->", open);
        if (nameEnd == std::string_view::npos) {
            if (problem) *problem = "an unterminated generated-section marker";
            return std::nullopt;
        }
        const std::string name(guide.substr(open + kOpen.size(), nameEnd - open - kOpen.size()));
        const std::string closeMarker = std::string(kClose) + name + " -->";
        const std::size_t close = guide.find(closeMarker, nameEnd);
        if (close == std::string_view::npos) {
            if (problem) *problem = "no end marker for the generated section " + name;
            return std::nullopt;
        }
        const std::size_t bodyStart = nameEnd + 4;
        out += guide.substr(at, bodyStart - at);
        if (const auto generated = GeneratedSection(name)) {
            out += "\n" + *generated;
        } else {
            out += guide.substr(bodyStart, close - bodyStart);
        }
        out += closeMarker;
        at = close + closeMarker.size();
    }
    out += guide.substr(at);
    return out;
}

}  // namespace brinto
