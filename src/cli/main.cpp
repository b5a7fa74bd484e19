#include <unistd.h>

#include <csignal>
#include <clocale>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "cli/cli.h"
#include "cli/line_source.h"

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    // Dates and times are written the way the user's locale writes them; numbers never are.
    std::setlocale(LC_TIME, "");
    // A write beyond the file-size limit fails like a full disk (and is reported as such) instead of
    // ending the program before it can say so.
    std::signal(SIGXFSZ, SIG_IGN);
    const std::vector<std::string> args(argv + 1, argv + argc);
    const bool terminal = isatty(0) != 0;
    // Line editing only where a person types; the editor reads nothing until a line is asked for.
    const std::unique_ptr<brinto::LineSource> lines = terminal ? brinto::TerminalLines() : nullptr;
    return brinto::RunCli(args, std::cin, terminal, std::cout, std::cerr, lines.get());
}
