#pragma once
// The history tape: like a printing calculator's paper tape, one line for each operation, with the
// number typed before it and the result it gave, as the display showed it. Keys that only begin
// something (a digit of a number, a register key waiting for its register, a latched shift) add to
// the next line instead of making one. The tape records what happened: Undo and Clear All add
// lines, and only the tape's own Clear empties it.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/engine.h"

namespace brinto {

struct TapeLine {
    std::string time;    // local time, "YYYY-MM-DD HH:MM:SS"
    std::string keys;    // the number typed and the keys: "3 +", "100000 PV", "77 STO 0 2", "Undo"
    double value = 0.0;  // X afterwards
    ValueTag tag = ValueTag::None;
    std::string result;  // X as the display shows it, "5."
    std::string label;   // its label, "hours", "PMT", or empty
};

// How many lines the tape keeps: the newest ones.
inline constexpr std::size_t kTapeLines = 1000;

// Builds the lines from the keys as they are handled.
class TapeWriter {
public:
    // Before a key: what was being typed, as the display shows it.
    void BeforeKey(const Engine& e);
    // After the key `face` (its legend) was handled; `accepted` as the dispatcher said.
    void AfterKey(const Engine& e, std::string_view face, bool accepted, bool shiftKey);
    // A command that is a line of its own ("Undo", "Paste", "Constant").
    void Command(const Engine& e, std::string_view name);

    // The lines made since the last call.
    std::vector<TapeLine> Take();

private:
    void Line(const Engine& e, std::string keys);

    std::string m_typed;               // the number being typed before the key
    std::vector<std::string> m_waiting;  // faces of keys that wait for more
    std::vector<TapeLine> m_lines;
};

// One line as text: the keys on the left, the result on the right ("    3 +        =  5.").
std::string TapeText(const TapeLine& line);
// The tape as CSV: a header, then time, keys, result, label and value on each line.
std::string TapeCsv(const std::vector<TapeLine>& lines);

}  // namespace brinto
