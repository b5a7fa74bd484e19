#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <streambuf>
#include <clocale>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "cli/cli.h"
#include "cli/line_source.h"

namespace {

// Standard output, written to its descriptor through a buffer of its own that remembers why a
// write failed (a full disk, a closed descriptor): a script must not take an empty answer for a
// result.
class OutputBuffer : public std::streambuf {
public:
    OutputBuffer() { setp(m_buffer, m_buffer + sizeof m_buffer); }
    int error = 0;  // the errno of the first failed write; 0 while all went out

protected:
    int_type overflow(int_type c) override {
        if (sync() != 0) return traits_type::eof();
        if (!traits_type::eq_int_type(c, traits_type::eof())) sputc(traits_type::to_char_type(c));
        return traits_type::not_eof(c);
    }
    int sync() override {
        for (const char* p = pbase(); p < pptr() && error == 0;) {
            const ssize_t n = write(1, p, static_cast<std::size_t>(pptr() - p));
            if (n < 0 && errno != EINTR) error = errno;
            if (n > 0) p += n;
        }
        setp(m_buffer, m_buffer + sizeof m_buffer);
        return error == 0 ? 0 : -1;
    }

private:
    char m_buffer[8192];
};

// A run whose output could not be written fails, said on standard error; with standard error gone
// too, the status alone says so.
int Finish(int status, OutputBuffer& output) {
    std::cout.flush();
    if (output.error != 0) {
        std::cerr << "brinto-cli: cannot write standard output: " << std::strerror(output.error) << std::endl;
        return 1;
    }
    std::cerr.flush();
    return std::cerr.fail() ? 1 : status;
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    OutputBuffer output;
    std::cout.rdbuf(&output);
    // Dates and times are written the way the user's locale writes them; numbers never are.
    std::setlocale(LC_TIME, "");
    // A write beyond the file-size limit fails like a full disk (and is reported as such) instead of
    // ending the program before it can say so.
    std::signal(SIGXFSZ, SIG_IGN);
    const std::vector<std::string> args(argv + 1, argv + argc);
    const bool terminal = isatty(0) != 0;
    // Line editing only where a person types; the editor reads nothing until a line is asked for.
    const std::unique_ptr<brinto::LineSource> lines = terminal ? brinto::TerminalLines() : nullptr;
    const int status = Finish(brinto::RunCli(args, std::cin, terminal, std::cout, std::cerr, lines.get()), output);
    std::cout.rdbuf(nullptr);  // the buffer ends with main; nothing may write through it later
    return status;
}
