#include "cli/completion.h"

#include <ostream>
#include <string>
#include <vector>

#include "cli/options.h"
#include "cli/tokens.h"
#include "engine/key_table.h"
#include "engine/keyboards.h"
#include "session/key_legends.h"

namespace brinto {

namespace {

// A word the completion offers where a token goes, and what it does.
struct Word {
    std::string text;
    std::string_view meaning;
};

std::string_view MeaningOf(FunctionId id) {
    const KeyLegend* legend = FindLegend(id);
    return legend ? legend->fullName : std::string_view{};
}

// Key names and aliases in the table's order, the commands, and the numbered tokens spelt out
// where there are few (keyboards, variable-block keys); constants and codes only as their prefix.
std::vector<Word> TokenWords() {
    std::vector<Word> words;
    for (const KeyInfo& key : kKeyTable) {
        // Digits and the point are typed as numbers, not completed.
        if (key.name.size() == 1 && (key.name[0] == '.' || (key.name[0] >= '0' && key.name[0] <= '9'))) continue;
        words.push_back({std::string(key.name), MeaningOf(key.id)});
    }
    for (const KeyAlias& alias : kKeyAliases) words.push_back({std::string(alias.name), MeaningOf(alias.id)});
    for (const CommandInfo& command : Commands()) words.push_back({std::string(command.name), command.meaning});
    for (int k = 0; k < kKeyboardCount; ++k) words.push_back({"kb:" + std::to_string(k), kKeyboardNames[k]});
    for (const NumberedForm& form : NumberedForms()) {
        if (form.kind == TokenKind::BlockKey) {
            for (int k = form.low; k <= form.high; ++k) {
                words.push_back({std::string(form.prefix) + std::to_string(k), "Key of the variable block"});
            }
        }
    }
    words.push_back({"const:", "Recall a physical constant (const:0 to const:32)"});
    words.push_back({"keys:", "Each character that follows as a key"});
    words.push_back({"paste:", "Paste the text that follows"});
    return words;
}

// `text` inside single quotes for a POSIX shell.
std::string Quoted(std::string_view text) {
    std::string out = "'";
    for (const char c : text) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return out + "'";
}

// `text` inside single quotes for fish, where \ and ' are escaped.
std::string FishQuoted(std::string_view text) {
    std::string out = "'";
    for (const char c : text) {
        if (c == '\'' || c == '\\') out += '\\';
        out += c;
    }
    return out + "'";
}

std::string OptionNames(ValueKind kind) {
    std::string names;
    for (const CliOption& o : kCliOptions) {
        if (o.kind == kind && o.name != "--completion") names += (names.empty() ? "" : "|") + std::string(o.name);
    }
    return names;
}

void WriteBash(std::ostream& out) {
    out << "# brinto-cli completion for bash, written from brinto-cli's option and key tables.\n"
           "_brinto_cli() {\n"
           // The words are taken from the line itself: bash's own split breaks "kb:3" and "--db=PATH".
           "    local line=${COMP_LINE:0:COMP_POINT}\n"
           "    local cur=${line##*[[:space:]]} before\n"
           "    before=${line%\"$cur\"}; before=${before%\"${before##*[![:space:]]}\"}\n"
           "    local prev=${before##*[[:space:]]}\n"
           "    if [[ $cur == --*=* ]]; then prev=${cur%%=*}; cur=${cur#*=}; fi\n"
           "    COMPREPLY=()\n"
           "    case $prev in\n"
           "        "
        << OptionNames(ValueKind::File)
        << ") COMPREPLY=($(compgen -f -- \"$cur\")); return ;;\n"
           "        --completion) COMPREPLY=($(compgen -W 'bash zsh fish' -- \"$cur\")); return ;;\n"
           "        "
        << OptionNames(ValueKind::Word)
        << ") return ;;\n"
           "    esac\n"
           "    local words\n"
           "    if [[ $cur == -* ]]; then\n"
           "        words=(";
    for (const CliOption& o : kCliOptions) out << ' ' << o.name << (o.shortName.empty() ? "" : " ") << o.shortName;
    out << " --)\n"
           "    else\n"
           "        words=(";
    for (const Word& w : TokenWords()) out << ' ' << Quoted(w.text);
    // Bash splits a word at ":" for completion: only what follows the last one is replaced.
    out << ")\n"
           "    fi\n"
           "    local w\n"
           "    for w in \"${words[@]}\"; do\n"
           "        [[ $w == \"$cur\"* ]] || continue\n"
           "        [[ $cur == *:* && $COMP_WORDBREAKS == *:* ]] && w=${w#\"${cur%:*}\":}\n"
           "        COMPREPLY+=(\"$(printf '%q' \"$w\")\")\n"
           "    done\n"
           "    [[ ${#COMPREPLY[@]} -eq 1 && $cur != *: && ${COMPREPLY[0]} == *: ]] && compopt -o nospace 2>/dev/null\n"
           "    return 0\n"
           "}\n"
           "complete -F _brinto_cli brinto-cli\n";
}

void WriteZsh(std::ostream& out) {
    out << "#compdef brinto-cli\n"
           "# brinto-cli completion for zsh, written from brinto-cli's option and key tables.\n"
           "local -a options tokens\n"
           "options=(\n";
    for (const CliOption& o : kCliOptions) {
        out << "  " << Quoted(std::string(o.name) + ":" + std::string(o.help)) << '\n';
        if (!o.shortName.empty()) out << "  " << Quoted(std::string(o.shortName) + ":" + std::string(o.help)) << '\n';
    }
    out << "  '--:every argument after it is a token'\n"
           ")\n"
           "tokens=(\n";
    for (const Word& w : TokenWords()) {
        std::string name;
        for (const char c : w.text) name += c == ':' ? std::string("\\:") : std::string(1, c);
        out << "  " << Quoted(name + ":" + std::string(w.meaning)) << '\n';
    }
    out << ")\n"
           "case ${words[CURRENT-1]} in\n"
           "  "
        << OptionNames(ValueKind::File)
        << ") _files; return ;;\n"
           "  --completion) compadd bash zsh fish; return ;;\n"
           "  "
        << OptionNames(ValueKind::Word)
        << ") _message value; return ;;\n"
           "esac\n"
           "if [[ $PREFIX == -* ]]; then\n"
           "  _describe -t options option options\n"
           "else\n"
           "  _describe -t tokens token tokens\n"
           "fi\n";
}

void WriteFish(std::ostream& out) {
    out << "# brinto-cli completion for fish, written from brinto-cli's option and key tables.\n"
           "complete -c brinto-cli -f\n";
    for (const CliOption& o : kCliOptions) {
        out << "complete -c brinto-cli -l " << o.name.substr(2);
        if (!o.shortName.empty()) out << " -s " << o.shortName.substr(1);
        switch (o.kind) {
            case ValueKind::None: break;
            case ValueKind::File: out << " -r -F"; break;
            case ValueKind::Word: out << (o.name == "--completion" ? " -x -a 'bash zsh fish'" : " -x"); break;
        }
        out << " -d " << FishQuoted(o.help) << '\n';
    }
    // A completion's word goes through fish's expansion once more, hence the quotes within quotes.
    for (const Word& w : TokenWords()) {
        out << "complete -c brinto-cli -a " << FishQuoted(FishQuoted(w.text)) << " -d " << FishQuoted(w.meaning) << '\n';
    }
}

}  // namespace

std::optional<Shell> ShellByName(std::string_view name) {
    if (name == "bash") return Shell::Bash;
    if (name == "zsh") return Shell::Zsh;
    if (name == "fish") return Shell::Fish;
    return std::nullopt;
}

void WriteCompletion(Shell shell, std::ostream& out) {
    switch (shell) {
        case Shell::Bash: WriteBash(out); break;
        case Shell::Zsh: WriteZsh(out); break;
        case Shell::Fish: WriteFish(out); break;
    }
}

}  // namespace brinto
