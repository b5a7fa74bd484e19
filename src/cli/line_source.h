#pragma once
// Where the interactive calculator reads its lines: line editing and history at a terminal,
// plain lines from a stream otherwise (and in tests).
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace brinto {

class LineSource {
public:
    virtual ~LineSource() = default;
    // Shows `prompt` and reads one line, without its newline; nothing at the end of input
    // (Ctrl-D at a terminal).
    virtual std::optional<std::string> ReadLine(std::string_view prompt) = 0;
    // Keeps the lines typed in `file` across runs, where the source has a history. A file that
    // cannot be read or written only means no history.
    virtual void KeepHistoryIn(const std::filesystem::path& file) { (void)file; }
};

// Lines from a stream; the prompt goes to `prompt`.
class StreamLines : public LineSource {
public:
    StreamLines(std::istream& in, std::ostream& prompt) : m_in(in), m_prompt(prompt) {}
    std::optional<std::string> ReadLine(std::string_view prompt) override;

private:
    std::istream& m_in;
    std::ostream& m_prompt;
};

// Lines typed at the terminal on standard input, with line editing and history (plain lines where
// the line editor's library is missing).
std::unique_ptr<LineSource> TerminalLines();

}  // namespace brinto
