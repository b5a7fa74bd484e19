#include "display/display_text.h"

#include <algorithm>

#include "display/labels.h"
#include "display/number_format.h"
#include "engine/engine.h"
#include "engine/function_ids.h"
#include "engine/numeric/integer_format.h"

namespace brinto {

namespace {

constexpr std::string_view kErrorText = "error";

// End of the mantissa: the exponent mark, or the end of the text.
std::size_t MantissaEnd(std::string_view text) {
    const std::size_t mark = text.find_first_of("eE");
    return mark == std::string_view::npos ? text.size() : mark;
}

// Trailing zeros of the mantissa go, one by one, but never its first character. Only a mantissa
// with a radix character has decimals to lose; "100" must stay 100.
void StripTrailingZeros(std::string& text, char radix) {
    const std::size_t end = MantissaEnd(text);
    if (text.find(radix) >= end) return;
    std::size_t keep = end;
    while (keep > 1 && text[keep - 1] == '0') --keep;
    text.erase(keep, end - keep);
}

void InsertLeadingZero(std::string& text, char radix) {
    const std::size_t start = !text.empty() && text[0] == '-' ? 1 : 0;
    if (start < text.size() && text[start] == radix) text.insert(start, 1, '0');
}

// A separator before every third digit left of the radix character (or the exponent, or the
// end), while digits remain before it: 1234567.5 becomes 1,234,567.5.
void GroupDigits(std::string& text, char radix, char separator) {
    const std::size_t start = !text.empty() && text[0] == '-' ? 1 : 0;
    const std::size_t end = std::min(text.find(radix), MantissaEnd(text));
    for (std::size_t at = end; at >= start + 4; at -= 3) text.insert(at - 3, 1, separator);
}

// A date or time shown by the platform is the user's own way of writing it, not a number.
bool ShowsDateText(const Engine& e, ValueTag tag) {
    return TagCategory(tag) == Category::Calendar && !(e.state.status & status::FullDisplay);
}

void UseRadix(std::string& text, char radix) {
    const std::size_t point = text.find('.');
    if (point != std::string::npos) text[point] = radix;
}

std::string LevelLabel(const Engine& e, const StackEntry& entry, Amortizing amortizing) {
    if (amortizing == Amortizing::Yes) {
        std::string label(LabelText(fid::TagCalculating));
        label.append("  ").append(std::to_string(e.state.amortStart));
        label.append("-").append(std::to_string(e.state.amortEnd));
        return label;
    }
    std::string label(LabelText(entry.tag));
    // Cash-flow values carry their entry number in the aux code while the list holds entries;
    // an amount repeated in a group also shows how many times.
    const bool cashFlowEntry = entry.tag == fid::TagCashFlow || entry.tag == fid::TagGroupCount;
    if (cashFlowEntry && e.registers.cashFlowCount >= 0 && entry.aux != kNoAux) {
        label.append(" ").append(std::to_string(entry.aux));
        if (entry.tag == fid::TagCashFlow && entry.aux < kUserRegisters && e.registers.aux[entry.aux] > 1) {
            label.append(" x").append(std::to_string(e.registers.aux[entry.aux]));
        }
    }
    return label;
}

}  // namespace

std::string DisplayText(const Engine& e, std::string_view formatted, ValueTag tag) {
    const bool commaRadix = e.prefs.CommaRadix();
    const char radix = commaRadix ? ',' : '.';
    std::string text(formatted);
    if (commaRadix && !ShowsDateText(e, tag)) UseRadix(text, radix);
    if (e.EntryBase() != 0 || TagCategory(tag) == Category::Calendar) return text;

    // With a digit count set, the zeros that fill it are meant to be seen; integer values and the
    // full display show only the digits they have.
    const bool fullDisplay = e.state.status & status::FullDisplay;
    const bool keepZeros = e.EntryOpen() || (e.prefs.DigitField() != 0 && !fullDisplay && !IsIntegerFormatTag(tag));
    if (!keepZeros) StripTrailingZeros(text, radix);
    InsertLeadingZero(text, radix);
    GroupDigits(text, radix, commaRadix ? '.' : ',');
    return text;
}

DisplayLine DisplayLevel(const Engine& e, int level, Amortizing amortizing) {
    if (level < 0 || level >= kStackLevels) return {};
    const StackEntry entry = e.Level(level);
    DisplayLine line;
    line.label = LevelLabel(e, entry, amortizing);
    // A sign changed away from an otherwise empty entry leaves nothing typed: X (zero) is shown.
    if (level == 0 && e.EntryOpen() && e.state.entryText[0] != '\0') {
        line.text = DisplayText(e, e.state.entryText, entry.tag);
        return line;
    }
    FormattedText formatted;
    if (FormatValue(e, entry.value, entry.tag, false, formatted) != 0) {
        line.text = kErrorText;
        line.error = true;
        return line;
    }
    line.text = DisplayText(e, formatted.View(), entry.tag);
    return line;
}

std::optional<std::string> ClipboardText(const Engine& e) {
    const ValueTag tag = e.XTag();
    const bool integerForm = e.EntryBase() != 0 && TagCategory(tag) != Category::Calendar;
    FormattedText formatted;
    if (FormatValue(e, e.X(), tag, integerForm, formatted) != 0) return std::nullopt;
    std::string text(formatted.View());
    if (integerForm || ShowsDateText(e, tag)) return text;

    // "12." is the display's way of saying "a number"; elsewhere it is just 12.
    const std::size_t end = MantissaEnd(text);
    if (end > 0 && text[end - 1] == '.') text.erase(end - 1, 1);
    if (e.prefs.CommaRadix()) UseRadix(text, ',');
    return text;
}

}  // namespace brinto
