#include "session/tape.h"

#include <algorithm>
#include <cstdio>

#include "display/display_text.h"
#include "engine/calc_state.h"

namespace brinto {

namespace {

// A key that leaves something waiting for the next keys: a register key for its register, a
// display format for its places, HYP for its function.
bool Waits(const Engine& e) {
    const CalcState& s = e.state;
    return s.pendingArgument != kNoPendingArgument || s.pendingFormat != kNoKey || (s.status & status::Hyperbolic);
}

std::string TimeText(const DateFields& t) {
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", t.year, t.month, t.day, t.hour, t.minute,
                  t.second);
    return text;
}

void AppendCsvField(std::string& out, std::string_view field) {
    const bool quote = field.find_first_of(",\"\n") != std::string_view::npos;
    if (!quote) {
        out += field;
        return;
    }
    out += '"';
    for (const char c : field) {
        if (c == '"') out += '"';
        out += c;
    }
    out += '"';
}

}  // namespace

void TapeWriter::BeforeKey(const Engine& e) { m_typed = e.EntryOpen() ? DisplayLevel(e, 0).text : std::string(); }

void TapeWriter::AfterKey(const Engine& e, std::string_view face, bool accepted, bool shiftKey) {
    // Typing a number, and the shift latch, make no line: the key they lead to does. A register
    // key may keep the number open while it waits for its register, so waiting is asked first.
    if (!accepted || shiftKey || face.empty()) return;
    if (Waits(e)) {
        if (m_waiting.empty() && !m_typed.empty()) m_waiting.push_back(m_typed);
        m_waiting.emplace_back(face);
        return;
    }
    if (e.EntryOpen()) return;
    std::string keys;
    const auto add = [&keys](std::string_view word) {
        if (!keys.empty()) keys += ' ';
        keys += word;
    };
    if (m_waiting.empty()) add(m_typed);
    for (const std::string& waiting : m_waiting) add(waiting);
    add(face);
    m_waiting.clear();
    Line(e, std::move(keys));
}

void TapeWriter::Command(const Engine& e, std::string_view name) {
    m_waiting.clear();
    Line(e, std::string(name));
}

void TapeWriter::Line(const Engine& e, std::string keys) {
    const DisplayLine x = DisplayLevel(e, 0);
    m_lines.push_back({TimeText(e.platform().Now()), std::move(keys), e.X(), e.XTag(), x.text, x.label});
}

std::vector<TapeLine> TapeWriter::Take() {
    std::vector<TapeLine> lines;
    lines.swap(m_lines);
    return lines;
}

std::string TapeText(const TapeLine& line) {
    std::string text = line.keys;
    constexpr std::size_t kKeysWidth = 24;
    // Columns are characters, not bytes: "×" and "√" are one each.
    const auto width = static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
    text.append(width < kKeysWidth ? kKeysWidth - width : 1, ' ');
    text += "= " + line.result;
    if (!line.label.empty()) text += "  " + line.label;
    return text;
}

std::string TapeCsv(const std::vector<TapeLine>& lines) {
    std::string out = "Time,Keys,Result,Label,Value\n";
    for (const TapeLine& line : lines) {
        char value[32];
        std::snprintf(value, sizeof value, "%.17g", line.value);
        for (const std::string_view field : {std::string_view(line.time), std::string_view(line.keys),
                                             std::string_view(line.result), std::string_view(line.label)}) {
            AppendCsvField(out, field);
            out += ',';
        }
        out += value;
        out += '\n';
    }
    return out;
}

}  // namespace brinto
