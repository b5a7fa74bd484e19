#pragma once
// brinto-cli: the calculator session without a window, for scripts and for people at a terminal.
#include <iosfwd>
#include <string>
#include <vector>

namespace brinto {

class LineSource;

// Runs brinto-cli with its arguments (without the program name). Tokens come from the arguments,
// else from `in`: a script when it is not a terminal, an interactive session when it is.
// The calculator is loaded from the database file at start (--db PATH, else the default file the
// desktop program uses too; --memory for none) and saved at the end of the run.
// Returns the exit status: 0, also when a number had more digits than entry takes (said on `err`);
// 1 when the calculator could not be loaded, saved or imported; 2 for an unknown option or token,
// in which case nothing is saved.
// At a terminal the interactive calculator reads its lines from `terminal` (line editing and
// history) when given, else from `in`.
int RunCli(const std::vector<std::string>& args, std::istream& in, bool inIsTerminal, std::ostream& out,
           std::ostream& err, LineSource* terminal = nullptr);

}  // namespace brinto
