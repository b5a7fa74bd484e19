#pragma once
// The shell completions of brinto-cli, written from the tables the program itself reads: its
// options, every key name and alias with the key's meaning, the commands and the numbered tokens.
// The build writes them once for each shell and installs them; `--completion SHELL` prints them.
#include <iosfwd>
#include <optional>
#include <string_view>

namespace brinto {

enum class Shell { Bash, Zsh, Fish };

// The shell of that name ("bash", "zsh", "fish"); nothing for another.
std::optional<Shell> ShellByName(std::string_view name);

void WriteCompletion(Shell shell, std::ostream& out);

}  // namespace brinto
