#include <unistd.h>

#include <clocale>
#include <iostream>
#include <string>
#include <vector>

#include "cli/cli.h"

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    // Dates and times are written the way the user's locale writes them; numbers never are.
    std::setlocale(LC_TIME, "");
    const std::vector<std::string> args(argv + 1, argv + argc);
    return brinto::RunCli(args, std::cin, isatty(0) != 0, std::cout, std::cerr);
}
