// brinto-cli explains itself: its key listing, the interactive help and status, and the manual
// pages that must say what --help says.
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "cli/cli.h"
#include "cli_runner.h"
#include "engine/key_table.h"
#include "engine/keyboards.h"
#include "temp_folder.h"

namespace brinto::test {
namespace {

std::string NameOf(FunctionId id) {
    for (const KeyInfo& k : kKeyTable) {
        if (k.id == id) return std::string(k.name);
    }
    return "#" + std::to_string(ToNumber(id));
}

std::string FirstWord(const std::string& line) { return line.substr(0, line.find(' ')); }

// Every key is listed, and each built-in keyboard's section reads as its block does. (How a line
// reads is in the transcripts.)
TEST(Cli, ListKeysShowsEveryKeyAsTheKeyboardsDo) {
    const RunResult r = RunCli({"--list-keys"});
    ASSERT_EQ(r.exitCode, 0);
    std::vector<std::pair<std::string, std::vector<std::string>>> sections;  // heading, its lines
    std::set<std::string> names;
    std::istringstream in(r.out);
    for (std::string line; std::getline(in, line);) {
        if (line.rfind("# ", 0) == 0) {
            sections.push_back({line.substr(2), {}});
            continue;
        }
        ASSERT_FALSE(sections.empty()) << line;
        sections.back().second.push_back(line);
        names.insert(FirstWord(line));
    }
    for (const KeyInfo& k : kKeyTable) EXPECT_TRUE(names.contains(std::string(k.name))) << k.name;
    ASSERT_GE(sections.size(), 2 * kBuiltInKeyboards.size());
    for (std::size_t k = 0; k < kBuiltInKeyboards.size(); ++k) {
        for (const bool shifted : {false, true}) {
            const auto& [heading, lines] = sections[2 * k + shifted];
            EXPECT_EQ(heading, std::string(kBuiltInKeyboards[k].name) + (shifted ? ", shifted" : ""));
            const KeyBlock& block = shifted ? kBuiltInKeyboards[k].shifted : kBuiltInKeyboards[k].unshifted;
            ASSERT_EQ(lines.size(), block.size()) << heading;
            for (std::size_t i = 0; i < block.size(); ++i) EXPECT_EQ(FirstWord(lines[i]), NameOf(block[i])) << heading;
        }
    }
}

// At the prompt: a bad line runs nothing and says where the mistake is, the session goes on,
// "status" and "help NAME" answer, a long number is cut with a warning, and the end of input
// leaves on a fresh line.
TEST(Cli, InteractiveCalculatorExplainsItself) {
    std::istringstream in(
        "rpn 2 enter 3 +\n"
        "4 sinn\n"
        "status\n"
        "help sqrt x^2 const:7\n"
        "help nosuch\n"
        "1 status\n"
        "kb:4 rad 123456789012345 enter\n"
        "status\n");
    std::ostringstream out, err;
    EXPECT_EQ(brinto::RunCli({"--memory"}, in, true, out, err), 0);
    const std::string o = out.str(), e = err.str();
    // The stack is shown at the start and after the two lines that ran, not after the bad one.
    std::size_t shown = 0;
    for (std::size_t at = o.find("\nX: "); at != std::string::npos; at = o.find("\nX: ", at + 1)) ++shown;
    EXPECT_EQ(shown, 3u) << o;
    EXPECT_NE(o.find("X: 5.\n> > Input method: RPN   Keyboard: General   Angles: Degrees   Entry base: Decimal\n"),
              std::string::npos) << o;
    EXPECT_NE(o.find("sqrt (√x): Square root\n  key code 60\n  on the keyboards: General key:10\n"), std::string::npos)
        << o;
    EXPECT_NE(o.find("sq (x²): Square\n  key code 61\n  also typed as: x^2\n"), std::string::npos) << o;
    EXPECT_NE(o.find("const:7: Speed of light"), std::string::npos) << o;
    EXPECT_NE(o.find("Input method: RPN   Keyboard: Programmer   Angles: Radians   Entry base: Decimal\n"),
              std::string::npos) << o;
    EXPECT_EQ(o.substr(o.size() - 3), "> \n");
    EXPECT_EQ(e,
              "unknown token 2 (column 3): sinn (did you mean: sin, asin, bin)\n"
              "no key, command or constant is named nosuch\n"
              "unknown token 2 (column 3): status (it takes a line of its own)\n"
              "token 3 (column 10): entry took 12 of the 15 digits of 123456789012345\n");
}

// brinto-cli at a real terminal: a typed line runs, Ctrl-C abandons one, Ctrl-D leaves on a fresh line, and
// the next session recalls the line with the Up arrow from the history beside the database.
class Terminal {
public:
    explicit Terminal(const std::string& db) {
        m_pid = forkpty(&m_fd, nullptr, nullptr, nullptr);
        if (m_pid == 0) {
            setenv("TERM", "xterm", 1);
            execl(BRINTO_CLI_PATH, BRINTO_CLI_PATH, "--db", db.c_str(), nullptr);
            _exit(127);
        }
    }
    ~Terminal() {
        if (m_pid > 0 && waitpid(m_pid, nullptr, WNOHANG) == 0) kill(m_pid, SIGKILL), waitpid(m_pid, nullptr, 0);
        if (m_fd >= 0) close(m_fd);
    }
    // Reads until `text` has arrived after what was read before (or 5 s pass); true if it came.
    bool Await(const std::string& text) {
        const std::size_t from = m_seen;
        while (m_output.find(text, from) == std::string::npos) {
            pollfd p{m_fd, POLLIN, 0};
            char buffer[4096];
            if (poll(&p, 1, 5000) <= 0) return false;
            const ssize_t n = read(m_fd, buffer, sizeof buffer);
            if (n <= 0) return false;
            m_output.append(buffer, static_cast<std::size_t>(n));
        }
        m_seen = m_output.find(text, from) + text.size();
        return true;
    }
    // Keys typed before the line editor has the terminal would reach it as a cooked line (Ctrl-D
    // as a line end), so the keys wait until the terminal leaves canonical mode.
    void Type(const std::string& keys) {
        termios mode{};
        for (int i = 0; i < 500 && tcgetattr(m_fd, &mode) == 0 && (mode.c_lflag & ICANON); ++i) usleep(10000);
        ASSERT_EQ(write(m_fd, keys.data(), keys.size()), ssize_t(keys.size()));
    }
    // The exit status, once the program has left (within 5 s); -1 if it has not.
    int Exit() {
        Await("\n\n");  // drains what is left until the terminal closes
        int status = 0;
        for (int tries = 0; tries < 50 && waitpid(m_pid, &status, WNOHANG) == 0; ++tries) usleep(100000);
        if (!WIFEXITED(status)) return -1;
        m_pid = -1;
        return WEXITSTATUS(status);
    }
    const std::string& Output() const { return m_output; }

private:
    int m_fd = -1;
    pid_t m_pid = -1;
    std::string m_output;
    std::size_t m_seen = 0;
};

TEST(Cli, TerminalSessionEditsAndRemembersLines) {
    char folder[] = "/tmp/brinto-cli-tty-XXXXXX";
    ASSERT_NE(mkdtemp(folder), nullptr);
    const std::string db = std::string(folder) + "/brinto.db";
    const std::string history = std::string(folder) + "/brinto-cli.history";
    // A history name that leads to another file: the file is never written through the link.
    WriteFile(std::string(folder) + "/victim", "someone's file\n");
    std::filesystem::create_symlink(std::string(folder) + "/victim", history);
    {
        Terminal t(db);
        ASSERT_TRUE(t.Await("> ")) << t.Output();
        t.Type("rpn 7 +\r");
        ASSERT_TRUE(t.Await("X: 7.")) << t.Output();
        ASSERT_TRUE(t.Await("> "));
        t.Type("9 9 +\x03");  // Ctrl-C: nothing of the line runs, and the prompt comes back
        ASSERT_TRUE(t.Await("> ")) << t.Output();
        t.Type("2 +\r");
        ASSERT_TRUE(t.Await("X: 9.")) << t.Output();
        ASSERT_TRUE(t.Await("> "));
        t.Type("\x04");
        EXPECT_EQ(t.Exit(), 0) << t.Output();
        EXPECT_TRUE(t.Output().ends_with("\r\n")) << t.Output();  // the shell's prompt starts on a line of its own
    }
    EXPECT_NE(ReadFile(history).find("rpn"), std::string::npos);
    EXPECT_EQ(ReadFile(std::string(folder) + "/victim"), "someone's file\n");
    struct stat info {};
    ASSERT_EQ(lstat(history.c_str(), &info), 0);
    EXPECT_TRUE(S_ISREG(info.st_mode) && (info.st_mode & 0777) == 0600) << std::oct << info.st_mode;
    {
        Terminal t(db);
        ASSERT_TRUE(t.Await("X: 9.")) << t.Output();  // the saved calculator
        ASSERT_TRUE(t.Await("> "));
        t.Type("\x1b[A\x1b[A\r");  // Up twice, past "2 +": "rpn 7 +" again, so 9 + 7
        EXPECT_TRUE(t.Await("X: 16.")) << t.Output();
        ASSERT_TRUE(t.Await("> "));
        t.Type("quit\r");
        EXPECT_EQ(t.Exit(), 0) << t.Output();
    }
    std::filesystem::remove_all(folder);
}

// The options --help names, for each program: brinto-cli's as it prints them, brinto's from its source.
std::set<std::string> Options(const std::string& help) {
    std::set<std::string> options;
    const std::regex option("(^|[^\\w-])(--?[a-z][a-z-]*)");
    for (std::sregex_iterator it(help.begin(), help.end(), option), end; it != end; ++it) options.insert((*it)[2]);
    return options;
}

std::string DesktopHelp() {
    const std::string source = ReadFile(std::filesystem::path(BRINTO_SOURCE_DIR) / "src/app/run_app.cpp");
    const std::size_t start = source.find("kHelp =");
    std::string help;
    const std::regex literal("\"((?:[^\"\\\\]|\\\\.)*)\"");
    const std::string text = source.substr(start, source.find(';', start) - start);
    for (std::sregex_iterator it(text.begin(), text.end(), literal), end; it != end; ++it) help += (*it)[1];
    return help;
}

TEST(Cli, ManualPagesNameEveryOptionOfHelp) {
    const RunResult cli = RunCli({"--help"});
    ASSERT_EQ(cli.exitCode, 0);
    const std::pair<std::string, std::string> programs[] = {{"brinto-cli", cli.out}, {"brinto", DesktopHelp()}};
    for (const auto& [program, help] : programs) {
        SCOPED_TRACE(program);
        const std::filesystem::path page = std::filesystem::path(BRINTO_SOURCE_DIR) / "docs/man" / (program + ".1");
        // In roff a minus sign is written "\-".
        const std::string manual = std::regex_replace(ReadFile(page), std::regex("\\\\-"), "-");
        ASSERT_NE(manual.find(".TH " + std::string(program == "brinto" ? "BRINTO" : "BRINTO-CLI") + " 1"),
                  std::string::npos);
        const std::set<std::string> options = Options(help);
        EXPECT_TRUE(options.count("--help") && options.count("--version") && options.count("--db")) << help;
        const std::set<std::string> documented = Options(manual);
        for (const std::string& o : options) EXPECT_TRUE(documented.count(o)) << o << " is not in " << page;
        // The page renders without a warning where groff is at hand.
        if (std::filesystem::exists("/usr/bin/groff")) {
            const std::string command = "groff -man -ww -z '" + page.string() + "' 2>&1";
            FILE* pipe = popen(command.c_str(), "r");
            ASSERT_NE(pipe, nullptr);
            std::string warnings;
            for (char buffer[256]; fgets(buffer, sizeof buffer, pipe);) warnings += buffer;
            EXPECT_EQ(pclose(pipe), 0);
            EXPECT_EQ(warnings, "");
        }
    }
}

}  // namespace
}  // namespace brinto::test
