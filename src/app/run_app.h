#pragma once
// The desktop program from its command line to its exit.
#include <optional>
#include <string>
#include <vector>

#include "app/calculator.h"

namespace brinto {

// The options, or nothing with `message` to print (the help or the version, with `exitCode` 0,
// or what was wrong, with 2).
std::optional<AppOptions> ParseAppOptions(const std::vector<std::string>& args, std::string& message, int& exitCode);

int RunApp(int argc, char** argv);

}  // namespace brinto
