#include <unistd.h>

#include <csignal>
#include <clocale>
#include <iostream>
#include <string>
#include <vector>

#include "cli/cli.h"

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    // Dates and times are written the way the user's locale writes them; numbers never are.
    std::setlocale(LC_TIME, "");
    // A write beyond the file-size limit fails like a full disk (and is reported as such) instead of
    // ending the program before it can say so.
    std::signal(SIGXFSZ, SIG_IGN);
    const std::vector<std::string> args(argv + 1, argv + argc);
    return brinto::RunCli(args, std::cin, isatty(0) != 0, std::cout, std::cerr);
}
