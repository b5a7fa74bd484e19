#pragma once
// brinto-cli: the calculator session without a window, for scripts and for people at a terminal.
#include <iosfwd>
#include <string>
#include <vector>

namespace brinto {

// Runs brinto-cli with its arguments (without the program name). Tokens come from the arguments,
// else from `in`: a script when it is not a terminal, an interactive session when it is.
// The calculator is loaded from the database file at start (--db PATH, else the default file the
// desktop program uses too; --memory for none) and saved at the end of the run.
// Returns the exit status: 0; 1 when --import-legacy imported nothing; 2 for an unknown option or
// token, in which case nothing is saved.
int RunCli(const std::vector<std::string>& args, std::istream& in, bool inIsTerminal, std::ostream& out,
           std::ostream& err);

}  // namespace brinto
