#include "cli/line_source.h"

#include <dlfcn.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
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

// The line editor's functions. A run with its keys on the command line or a script on standard
// input never edits a line, so the editor (and the terminal libraries it needs) is loaded only
// when a prompt is shown at a terminal: a scripted run starts without them.
struct LineEditor {
    decltype(&::readline) readline;
    decltype(&::using_history) using_history;
    decltype(&::add_history) add_history;
    decltype(&::stifle_history) stifle_history;
    decltype(&::read_history) read_history;
    decltype(&::write_history) write_history;
};

#ifdef BRINTO_LINKED_LINE_EDITOR
const LineEditor* LoadLineEditor() {
    static const LineEditor linked{::readline,       ::using_history, ::add_history,
                                   ::stifle_history, ::read_history,  ::write_history};
    return &linked;
}
#else
template <typename F>
void Find(void* library, F& function, const char* name, bool& found) {
    function = reinterpret_cast<F>(dlsym(library, name));
    found = found && function != nullptr;
}

const LineEditor* LoadLineEditor() {
    static const LineEditor* const loaded = []() -> const LineEditor* {
        void* library = dlopen(BRINTO_LINE_EDITOR_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        if (!library) return nullptr;
        static LineEditor editor{};
        bool found = true;
        Find(library, editor.readline, "readline", found);
        Find(library, editor.using_history, "using_history", found);
        Find(library, editor.add_history, "add_history", found);
        Find(library, editor.stifle_history, "stifle_history", found);
        Find(library, editor.read_history, "read_history", found);
        Find(library, editor.write_history, "write_history", found);
        return found ? &editor : nullptr;
    }();
    return loaded;
}
#endif

// The line editor keeps its state in the library; there is one terminal, so one source at a time.
// Without the editor's library the prompt still works, on plain lines.
class EditLines : public LineSource {
public:
    std::optional<std::string> ReadLine(std::string_view prompt) override {
        if (!Ready()) return m_plain.ReadLine(prompt);
        const std::string text(prompt);
        char* line = nullptr;
        while (true) {
            g_interrupted = 0;
            line = m_editor->readline(text.c_str());
            if (line || !g_interrupted) break;
            std::fputs("\n", stdout);
            std::fflush(stdout);
        }
        if (!line) return std::nullopt;
        std::string result(line);
        std::free(line);
        if (result.find_first_not_of(" \t") != std::string::npos) {
            m_editor->add_history(result.c_str());
            // Written at once: a terminal closed without "quit" keeps what was typed.
            if (!m_history.empty()) WriteHistory();
        }
        return result;
    }

    void KeepHistoryIn(const std::filesystem::path& file) override {
        if (!Ready()) return;
        m_history = file.string();
        m_editor->stifle_history(kHistoryLines);
        m_editor->read_history(m_history.c_str());  // none yet, or unreadable: an empty history
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
        if (m_editor->write_history(temporary.c_str()) != 0 || std::rename(temporary.c_str(), m_history.c_str()) != 0) {
            std::remove(temporary.c_str());
        }
    }

    // Loads the editor at the first prompt; Ctrl-C from then on abandons the line being typed.
    bool Ready() {
        if (m_tried) return m_editor != nullptr;
        m_tried = true;
        m_editor = LoadLineEditor();
        if (!m_editor) return false;
        m_editor->using_history();
        struct sigaction action {};
        action.sa_handler = OnInterrupt;
        sigemptyset(&action.sa_mask);
        sigaction(SIGINT, &action, nullptr);
        return true;
    }

    static constexpr int kHistoryLines = 500;
    bool m_tried = false;
    const LineEditor* m_editor = nullptr;
    StreamLines m_plain{std::cin, std::cout};
    std::string m_history;
};

}  // namespace

std::unique_ptr<LineSource> TerminalLines() { return std::make_unique<EditLines>(); }

}  // namespace brinto
