#include "cli/line_source.h"

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <istream>
#include <ostream>

#include <editline/readline.h>

namespace brinto {

std::optional<std::string> StreamLines::ReadLine(std::string_view prompt) {
    m_prompt << prompt << std::flush;
    std::string line;
    if (!std::getline(m_in, line)) return std::nullopt;
    return line;
}

namespace {

// Ctrl-C at the prompt abandons the line being typed, as in a shell; it interrupts the read.
volatile std::sig_atomic_t g_interrupted = 0;

void OnInterrupt(int) { g_interrupted = 1; }

// The line editor keeps its state in the library; there is one terminal, so one source at a time.
class EditLines : public LineSource {
public:
    EditLines() {
        using_history();
        struct sigaction action {};
        action.sa_handler = OnInterrupt;
        sigemptyset(&action.sa_mask);
        sigaction(SIGINT, &action, nullptr);
    }

    std::optional<std::string> ReadLine(std::string_view prompt) override {
        const std::string text(prompt);
        char* line = nullptr;
        while (true) {
            g_interrupted = 0;
            line = readline(text.c_str());
            if (line || !g_interrupted) break;
            std::fputs("\n", stdout);
            std::fflush(stdout);
        }
        if (!line) return std::nullopt;
        std::string result(line);
        std::free(line);
        if (result.find_first_not_of(" \t") != std::string::npos) {
            add_history(result.c_str());
            // Written at once: a terminal closed without "quit" keeps what was typed.
            if (!m_history.empty()) WriteHistory();
        }
        return result;
    }

    void KeepHistoryIn(const std::filesystem::path& file) override {
        m_history = file.string();
        stifle_history(kHistoryLines);
        read_history(m_history.c_str());  // none yet, or unreadable: an empty history
    }

private:
    // Into a new private file beside the history, which then takes the history's name: whatever
    // the name pointed at (a link to another file, say) is replaced, never written through, and
    // the lines typed are readable by the user alone.
    void WriteHistory() const {
        std::string temporary = m_history + ".XXXXXX";
        const int fd = mkstemp(temporary.data());  // mode 0600
        if (fd < 0) return;
        close(fd);
        if (write_history(temporary.c_str()) != 0 || std::rename(temporary.c_str(), m_history.c_str()) != 0) {
            std::remove(temporary.c_str());
        }
    }

    static constexpr int kHistoryLines = 500;
    std::string m_history;
};

}  // namespace

std::unique_ptr<LineSource> TerminalLines() { return std::make_unique<EditLines>(); }

}  // namespace brinto
