#pragma once
// brinto-cli's options, one row each: --help lists them and the shell completions offer them from
// this table, so neither can miss one.
#include <array>
#include <string_view>

namespace brinto {

// What the completions offer after an option that takes a value.
enum class ValueKind { None, File, Word };

struct CliOption {
    std::string_view name;       // "--db"
    std::string_view shortName;  // "-h", or empty
    std::string_view value;      // what the value is called in --help ("PATH"); empty: a flag
    ValueKind kind;
    std::string_view help;       // one line of --help
};

inline constexpr std::array kCliOptions = {
    CliOption{"--json", "", "", ValueKind::None, "after the last token, print the whole state as one JSON object"},
    CliOption{"--memory", "", "", ValueKind::None, "start from the defaults of a first run; read and write no database"},
    CliOption{"--db", "", "PATH", ValueKind::File, "use the database file at PATH instead of the default one"},
    CliOption{"--import-legacy", "", "FILE", ValueKind::File,
              "first bring in the handheld release's settings from a registry export"},
    CliOption{"--pref", "", "W=V", ValueKind::Word, "set preference word W (0..6) to V (decimal or 0x hex) for this run"},
    CliOption{"--now", "", "\"YYYY-MM-DD HH:MM:SS\"", ValueKind::Word, "the local date and time that the \"now\" key reads"},
    CliOption{"--seed", "", "N", ValueKind::Word, "the stored random seed before the first token"},
    CliOption{"--schedule", "", "", ValueKind::None, "after the last token, print the amortization schedule as CSV"},
    CliOption{"--tape", "", "", ValueKind::None, "after the last token, print the history tape (with --json, as JSON)"},
    CliOption{"--clear-tape", "", "", ValueKind::None, "clear the history tape before the first token"},
    CliOption{"--list-keys", "", "", ValueKind::None,
              "list every key by keyboard (name, code, family, legend, meaning) and exit"},
    CliOption{"--completion", "", "SHELL", ValueKind::Word,
              "print the completion script for SHELL (bash, zsh or fish) and exit"},
    CliOption{"--help", "-h", "", ValueKind::None, "print this text and exit"},
    CliOption{"--version", "", "", ValueKind::None, "print the version and exit"},
};

// The option of that long or short name; nothing for none.
constexpr const CliOption* FindOption(std::string_view name) {
    for (const CliOption& option : kCliOptions) {
        if (option.name == name || (!option.shortName.empty() && option.shortName == name)) return &option;
    }
    return nullptr;
}

}  // namespace brinto
