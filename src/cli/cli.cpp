#include "cli/cli.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <functional>
#include <iostream>
#include <iterator>
#include <optional>
#include <sstream>
#include <span>

#include "calculator/assembly.h"
#include "cli/completion.h"
#include "cli/formula.h"
#include "cli/json_report.h"
#include "cli/key_listing.h"
#include "cli/line_source.h"
#include "cli/locale_platform.h"
#include "cli/options.h"
#include "cli/tokens.h"
#include "display/display_text.h"
#include "engine/key_table.h"
#include "engine/keyboards.h"
#include "engine/value_tags.h"
#include "finance/amortization_schedule.h"
#include "ops/constants.h"
#include "session/session_store.h"

namespace brinto {

namespace {

// Collects what the session raises, for the report; confirms Clear All without asking, answers
// the first run's question with "Simple" without a word, and says at once on standard error when
// the calculator cannot be loaded or saved.
class CliHost : public Host {
public:
    explicit CliHost(std::ostream& err) : m_err(err) {}

    Report report;
    std::ostream* echo = nullptr;  // where messages are shown at once, if anywhere
    LocalePlatform platform;

    DateFields Now() const override { return platform.Now(); }
    std::string DateText(const DateFields& date, bool longForm) const override {
        return platform.DateText(date, longForm);
    }
    std::string TimeText(const DateFields& time) const override { return platform.TimeText(time); }
    void ReportTrouble(std::string_view text) override { m_err << "brinto-cli: " << text << '\n'; }

    void ShowMessage(std::string_view caption, std::string_view text) override {
        report.messages.push_back({std::string(caption), std::string(text)});
        if (echo) *echo << caption << ": " << text << '\n';
    }
    bool Confirm(std::string_view, std::string_view) override { return true; }
    void PutOnClipboard(std::string_view text) override { report.clipboard = std::string(text); }
    std::optional<std::string> ClipboardText() override { return report.clipboard; }

private:
    std::ostream& m_err;
};

struct Options {
    bool json = false;
    bool memory = false;
    bool listKeys = false;
    bool help = false;
    bool version = false;
    bool schedule = false;
    bool tape = false;
    bool clearTape = false;
    std::optional<std::string> db;
    std::optional<std::string> importLegacy;
    std::vector<std::pair<int, u16>> prefs;
    std::optional<DateFields> now;
    std::optional<u32> seed;
    std::optional<Shell> completion;
    std::vector<std::string> tokens;
};

std::optional<unsigned long> ParseUnsigned(std::string_view text, unsigned long max) {
    int base = 10;
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        text.remove_prefix(2);
        base = 16;
    }
    unsigned long value = 0;
    const auto r = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (text.empty() || r.ec != std::errc{} || r.ptr != text.data() + text.size() || value > max) return std::nullopt;
    return value;
}

// Reads the value of one option into `o`; on a bad value names it in `error`.
bool TakeValue(Options& o, std::string_view name, const std::string& v, std::string& error) {
    if (name == "--db") {
        o.db = v;
    } else if (name == "--import-legacy") {
        o.importLegacy = v;
    } else if (name == "--pref") {
        const std::size_t eq = v.find('=');
        const auto word = eq == std::string::npos ? std::nullopt : ParseUnsigned(std::string_view(v).substr(0, eq), 6);
        const auto value = eq == std::string::npos ? std::nullopt : ParseUnsigned(std::string_view(v).substr(eq + 1), 0xFFFF);
        if (!word || !value) {
            error = "bad --pref value: " + v;
            return false;
        }
        o.prefs.emplace_back(static_cast<int>(*word), static_cast<u16>(*value));
    } else if (name == "--now") {
        o.now = ParseDateTime(v);
        if (!o.now) error = "bad --now value (want \"YYYY-MM-DD HH:MM:SS\"): " + v;
    } else if (name == "--seed") {
        const auto seed = ParseUnsigned(v, 0xFFFFFFFFul);
        if (seed) o.seed = static_cast<u32>(*seed);
        if (!seed) error = "bad --seed value: " + v;
    } else if (name == "--completion") {
        o.completion = ShellByName(v);
        if (!o.completion) error = "bad --completion value (want bash, zsh or fish): " + v;
    }
    return error.empty();
}

bool& FlagOf(Options& o, std::string_view name) {
    if (name == "--json") return o.json;
    if (name == "--memory") return o.memory;
    if (name == "--list-keys") return o.listKeys;
    if (name == "--version") return o.version;
    if (name == "--schedule") return o.schedule;
    if (name == "--tape") return o.tape;
    if (name == "--clear-tape") return o.clearTape;
    return o.help;
}

// Reads the options; on a bad one names it in `error`. An option's value is the next argument or
// follows an "=" ("--db=PATH"); after "--" every argument is a token, even one that starts "--".
std::optional<Options> ParseOptions(const std::vector<std::string>& args, std::string& error) {
    Options o;
    bool tokensOnly = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (tokensOnly || !(a.starts_with("--") || a == "-h")) {
            o.tokens.push_back(a);
            continue;
        }
        if (a == "--") {
            tokensOnly = true;
            continue;
        }
        const std::size_t eq = a.find('=');
        const std::string_view name = std::string_view(a).substr(0, eq);
        const CliOption* option = FindOption(name);
        if (!option) {
            error = "unknown option: " + std::string(name);
            return std::nullopt;
        }
        if (option->value.empty()) {
            if (eq != std::string::npos) {
                error = "option takes no value: " + a;
                return std::nullopt;
            }
            FlagOf(o, option->name) = true;
        } else if (eq == std::string::npos && i + 1 == args.size()) {
            error = "option needs a value: " + a;
            return std::nullopt;
        } else if (!TakeValue(o, option->name, eq == std::string::npos ? args[++i] : a.substr(eq + 1), error)) {
            return std::nullopt;
        }
    }
    return o;
}

// What --help prints; docs/man/brinto-cli.1 says the same at more length.
constexpr std::string_view kUsage =
    "Usage: brinto-cli [OPTIONS] [--] [TOKEN ...]\n"
    "Runs the tokens left to right and prints X as the display shows it. With no tokens, reads them\n"
    "from standard input, or is an interactive calculator at a terminal (\"help\" there says more).\n"
    "The tokens are keys pressed on the calculator the last run left (its input method, keyboard\n"
    "and stack), so a command can answer differently from one run to the next: scripts that want a\n"
    "calculator of their own pass --memory.\n"
    "\n"
    "Options (a value also as --OPTION=VALUE; after \"--\" every argument is a token):\n";
constexpr std::string_view kUsageTokens =
    "\n"
    "Tokens:\n"
    "  #N                     a tap of the key with code N (0..65535), exactly that key\n"
    "  12  -1.5e-3  1,234.5   a number, typed as keys (1.234,5 with Comma Radix on); in RPN a number\n"
    "                         after a number pushes the first, in Simple and Precedence it is refused\n"
    "  2+3*5  sqrt(2)  (1+2)*3^2\n"
    "                         a formula, worked out with precedence by typing the keys of the input\n"
    "                         method in force; functions are the keys (sqrt, ln, sin, sq, mod(7,3)),\n"
    "                         pi is pi and ^ is y^x\n"
    "  NAME                   the key of that name or alias, any case (enter, +, sqrt, x^2, pv;\n"
    "                         see --list-keys); a unit key also by its face (mi, ft, in, m)\n"
    "  to                     before a unit key: convert X to that unit (10 km to mi)\n"
    "  keys:TEXT              each character of TEXT as a key (keys:2+3*5=)\n"
    "  kb:N                   select keyboard N:";
constexpr std::string_view kUsageMiddle =
    "  key:K                  key K (1..12) of the current keyboard's variable block\n"
    "  undo  redo  copy  cut  the Edit commands\n"
    "  paste:TEXT             paste TEXT\n"
    "  basic  advanced        the view commands\n"
    "  const:N                recall physical constant N (see --list-keys)\n"
    "At the interactive prompt also: help, help NAME, status, and quit (or Ctrl-D); Ctrl-C abandons\n"
    "the line being typed.\n"
    "\n"
    "Database: $XDG_DATA_HOME/brinto/brinto.db, by default ~/.local/share/brinto/brinto.db,\n"
    "shared with the desktop program; here ";
constexpr std::string_view kUsageEnd =
    "Every run and every open brinto window on one database are one calculator: a run reads it, runs\n"
    "its tokens and saves what changed in one transaction, so runs at the same time take turns and\n"
    "none loses another's work. A file that is not a Brinto database is refused and left as it is.\n"
    "The interactive calculator keeps the lines typed in brinto-cli.history beside the database.\n"
    "\n"
    "Exit status:\n"
    "  0  the tokens ran; also when a number had more digits than entry takes (standard error\n"
    "     says how many it took, and X holds those) or a key is left waiting for its digits\n"
    "  1  the calculator could not be loaded, saved or imported, or the output could not be\n"
    "     written (standard error says why)\n"
    "  2  an unknown option or token, a malformed formula (the error gives the character), two\n"
    "     numbers in a row in Simple or Precedence, a \"to\" that converts nothing: nothing is saved\n"
    "\n"
    "Examples:\n"
    "  brinto-cli --memory 2 + 3 '*' 5 =                prints 25. (Simple, the first-run method)\n"
    "  brinto-cli --memory rpn 2 enter 3 x^2 +          prints 11.\n"
    "  brinto-cli --memory '(1+2)*3^2'                  prints 27.\n"
    "  brinto-cli --memory rpn 2 3 +                    prints 5.\n"
    "  echo 'rpn 100000 pv 6 i/yr 360 n 0 fv pmt' | brinto-cli --memory\n"
    "                                                   prints -599.550525153  PMT\n";

// The options and the keyboards are listed from their own tables, so a renamed one cannot go
// stale here.
void PrintUsage(std::ostream& out) {
    out << kUsage;
    for (const CliOption& option : kCliOptions) {
        std::string left = "  ";
        if (!option.shortName.empty()) left += std::string(option.shortName) + ", ";
        left += option.name;
        if (!option.value.empty()) left += " " + std::string(option.value);
        left.resize(std::max<std::size_t>(left.size() + 2, 25), ' ');
        out << left << option.help << '\n';
    }
    out << kUsageTokens;
    for (int k = 0; k < kKeyboardCount; ++k) {
        const std::string_view gap = k == 0 ? " " : k % 3 == 0 ? ",\n                         " : ", ";
        out << gap << k << ' ' << kKeyboardNames[k];
    }
    out << '\n' << kUsageMiddle << StoreLocation::DefaultFile().string() << ".\n" << kUsageEnd;
}

constexpr std::string_view kInteractiveHelp =
    "Type tokens separated by blanks; each line runs as a whole and the stack is shown after it.\n"
    "  2 enter 3 +     keys by name (brinto-cli --list-keys lists them), numbers, #CODE, keys:TEXT,\n"
    "                  kb:N, key:K, const:N, paste:TEXT, undo, redo, copy, cut, basic, advanced\n"
    "  (1+2)*3^2       a formula, worked out with precedence: sqrt(2), 2*pi, sin(30), mod(7,3)\n"
    "  10 km to mi     a unit key, also by its face (mi, ft, in, m), converts a value in a unit\n"
    "  help NAME       what a key, command or constant does and where it sits (help sqrt, help const:7)\n"
    "  status          the input method, keyboard, angle unit and entry base\n"
    "  quit            leave (Ctrl-D too); the calculator is saved after every line\n"
    "Every operation and its result go on the history tape: brinto-cli --tape prints it.\n"
    "A line with an unknown token runs nothing; the error names the token and its column.\n";

// The words the interactive prompt takes besides the tokens.
constexpr std::string_view kPromptWords[] = {"help", "status", "quit"};

std::string Printable(std::string_view text) {
    // Unprintable bytes are shown as "?", and a huge token is cut short.
    std::string out;
    for (const char c : text.substr(0, 60)) {
        out += (static_cast<unsigned char>(c) < 0x20 || static_cast<unsigned char>(c) >= 0x7F) ? '?' : c;
    }
    if (text.size() > 60) out += "...";
    return out;
}

constexpr bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// Calls `each` with every whitespace-separated word of `text` and where it starts.
template <typename F>
void ForEachWord(std::string_view text, F&& each) {
    std::size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && IsSpace(text[i])) ++i;
        const std::size_t start = i;
        while (i < text.size() && !IsSpace(text[i])) ++i;
        if (i > start && !each(text.substr(start, i - start), start)) return;
    }
}

constexpr std::size_t kArgument = std::string_view::npos;  // a word that is a whole argument

// Where words start in the text they were read from: " (line L, column C)" in a script of several
// lines, " (column C)" in one line; nothing for a command-line argument, which its number names.
// Lines are counted on from the last word asked about, so a long script with a warning on every
// line costs no more than reading it once.
class Positions {
public:
    explicit Positions(std::string_view text) : m_text(text) {
        const std::size_t newline = text.find('\n');
        m_severalLines = newline != std::string_view::npos && newline + 1 < text.size();
    }
    std::string At(std::size_t offset) {
        if (offset == kArgument) return {};
        if (offset < m_counted) *this = Positions(m_text);  // asked about an earlier word: count afresh
        for (; m_counted < offset; ++m_counted) {
            if (m_text[m_counted] != '\n') continue;
            ++m_line;
            m_lineStart = m_counted + 1;
        }
        const std::size_t column = offset - m_lineStart + 1;
        if (!m_severalLines) return " (column " + std::to_string(column) + ")";
        return " (line " + std::to_string(m_line) + ", column " + std::to_string(column) + ")";
    }

private:
    std::string_view m_text;
    bool m_severalLines = false;
    std::size_t m_counted = 0;    // offsets before this one are counted
    std::size_t m_line = 1;       // the line of m_counted
    std::size_t m_lineStart = 0;  // where that line starts
};

// What a token that takes a number accepts, when `word` is one with a number out of range.
std::optional<std::string> RangeOf(std::string_view word) {
    for (const NumberedForm& f : NumberedForms()) {
        if (word.substr(0, f.prefix.size()) == f.prefix) {
            return std::string(f.prefix) + "N takes N from " + std::to_string(f.low) + " to " + std::to_string(f.high);
        }
    }
    return std::nullopt;
}

// " (did you mean: a, b, c)", or nothing when nothing is near.
std::string Suggestions(const std::vector<std::string_view>& names) {
    std::string text;
    for (const std::string_view name : names) {
        text += text.empty() ? " (did you mean: " : ", ";
        text += name;
    }
    return text.empty() ? text : text + ")";
}

// The one line on a word that is no token: its number among the tokens, its position, and what
// was probably meant; for a malformed formula, the character where it goes wrong and why.
std::string UnknownToken(std::string_view word, int number, const std::string& position,
                         std::span<const std::string_view> extra = {}) {
    const auto range = RangeOf(word);
    if (!range && LooksLikeFormula(word)) {
        if (const auto error = KeysOfFormula(word, FormulaMethod::Postfix).error) {
            return "bad formula in token " + std::to_string(number) + position + ": " + Printable(word) +
                   ": at character " + std::to_string(error->position + 1) + ", " + error->message;
        }
    }
    std::string text = "unknown token " + std::to_string(number) + position + ": " + Printable(word);
    if (range) return text + " (" + *range + ")";
    if (std::find(extra.begin(), extra.end(), word) != extra.end()) return text + " (it takes a line of its own)";
    const std::vector<std::string_view> near = NearestNames(word, extra);
    return text + Suggestions(near);
}

// Checks every word of one line before any runs; on a bad one names it in `error`.
template <typename Words>
bool CheckTokens(const Words& words, std::string_view line, NumberSyntax syntax, std::string& error) {
    bool ok = true;
    int number = 0;
    words([&](std::string_view word, std::size_t offset) {
        ++number;
        if (ParseToken(word, syntax)) return true;
        error = UnknownToken(word, number, Positions(line).At(offset), kPromptWords);
        ok = false;
        return false;
    });
    return ok;
}

// Of the keys a number token taps, the digits.
bool IsDigitKey(FunctionId id) { return id != fid::Point && id != fid::ChangeSign && id != fid::Exponent; }

// Types a formula as the keys of the input method in force. In RPN a number that follows a number
// still being typed is pushed first, as Enter does.
bool TypeFormula(Session& session, std::string_view text) {
    const Engine& e = session.engine();
    const FormulaKeys keys = KeysOfFormula(text, e.IsRpn() ? FormulaMethod::Postfix : FormulaMethod::Infix);
    bool accepted = true;
    for (const FormulaStep& step : keys.steps) {
        if (step.key != kNoKey) {
            accepted = session.TapKey(step.key) && accepted;
            continue;
        }
        if (e.IsRpn() && e.EntryOpen()) accepted = session.TapKey(fid::Enter) && accepted;
        // A formula's numbers always take the point: its commas part a function's arguments.
        const auto parts = SplitNumber(step.number, NumberSyntax{'.', '\0'});
        if (!parts) return false;
        TypeNumber(*parts, [&](FunctionId id) { accepted = session.TapKey(id) && accepted; });
    }
    return accepted;
}

// Runs one token; false when a key of it was not accepted. A number counts the digits entry took.
bool RunToken(Session& session, const Token& t, int& digitsTaken) {
    switch (t.kind) {
        case TokenKind::Key: return session.TapKey(t.id);
        case TokenKind::ExactKey: return session.Tap(t.id);
        case TokenKind::Number: {
            bool accepted = true;
            const auto parts = SplitNumber(t.text, SyntaxOf(session.engine().prefs));
            if (!parts) return false;
            TypeNumber(*parts, [&](FunctionId id) {
                const bool took = session.TapKey(id);
                if (took && IsDigitKey(id)) ++digitsTaken;
                accepted = took && accepted;
            });
            return accepted;
        }
        case TokenKind::Characters: {
            bool accepted = true;
            for (const char c : t.text) accepted = session.CharacterKey(static_cast<unsigned char>(c)) && accepted;
            return accepted;
        }
        case TokenKind::Keyboard: session.SelectKeyboard(t.number); return true;
        case TokenKind::BlockKey: return session.TapBlockKey(t.number);
        case TokenKind::Undo: session.Undo(); return true;
        case TokenKind::Redo: session.Redo(); return true;
        case TokenKind::Copy: session.Copy(); return true;
        case TokenKind::Cut: session.Cut(); return true;
        case TokenKind::Paste: session.PasteText(t.text); return true;
        case TokenKind::Basic: session.Basic(); return true;
        case TokenKind::Advanced: session.Advanced(); return true;
        case TokenKind::Constant:
            // No list is scrolled here, so the remembered list position stays as it is.
            return session.RecallConstant(t.number, session.engine().state.constantsTopRow);
        case TokenKind::Formula: return TypeFormula(session, t.text);
        case TokenKind::To: return true;  // RunTokens checks the unit key after it
    }
    return true;
}

// What a token left in X for the next one to meet: a number still being typed or a formula's
// result (Value), or anything else.
enum class Left { Value, Other };

// Whether the digits just typed went into X rather than to a key waiting for them (STO 0 7).
bool TypedIntoX(const Engine& e) {
    return e.EntryOpen() && e.state.pendingArgument == kNoPendingArgument && e.state.pendingFormat == kNoKey;
}

// Before a number or a formula that follows one: in RPN the first is pushed, as a space does in
// dc; in Simple and Precedence the two would run together ("2 3" typed as 23), so the run stops.
// Nothing when the token may run.
std::optional<std::string> MeetValue(Session& session, Left left, const Token& t, std::string_view word) {
    const bool value = t.kind == TokenKind::Number || t.kind == TokenKind::Formula;
    if (!value || left != Left::Value) return std::nullopt;
    const Engine& e = session.engine();
    if (!e.IsRpn()) {
        return Printable(word) + " follows another value in " + (e.IsPrecedence() ? "Precedence" : "Simple") +
               ": put an operator between them, or use rpn";
    }
    if (e.EntryOpen()) session.TapKey(fid::Enter);
    return std::nullopt;
}

// "to" asks for a conversion: the unit key after it must take X from a unit of its own kind.
// Nothing when it did; else what went wrong (X keeps what the key made of it).
std::optional<std::string> CheckConversion(ValueTag before, ValueTag after, std::string_view unit) {
    const Category from = TagCategory(before);
    const bool unitKind = from != Category::None && from != Category::IntegerFormat && from != Category::Calendar;
    if (unitKind && TagCategory(after) == from) return std::nullopt;
    return "to " + Printable(unit) + ": X holds no value in a unit that converts to " + Printable(unit);
}

// A key left waiting for what follows it (STO 1, FIX 4, HYP SIN): the next run's first keys go
// to it, which is seldom what a script meant.
void WarnOfWaitingKey(const Engine& e, std::ostream& warnings, std::string_view prefix) {
    const CalcState& s = e.state;
    std::string waiting;
    if (s.pendingArgument != kNoPendingArgument) {
        // The prefix as typed: "sto", not the register variant the keyboard sent ("sto.100").
        const std::string name = KeyName(FunctionIdFrom(s.pendingArgument & 0xFF));
        waiting = name.substr(0, name.find('.')) + " waits for its register";
    } else if (s.pendingFormat != kNoKey) {
        waiting = KeyName(s.pendingFormat) + " waits for its number of places";
    } else if (s.status & status::Hyperbolic) {
        waiting = "hyp waits for its function";
    }
    if (!waiting.empty()) warnings << prefix << waiting << ": the next keys typed go to it\n";
}

// Runs every word as a token; the indices of tokens with a refused key go to `rejected`, and a
// number whose digits entry did not all take is told on `warnings` (X holds what it took), as is a
// key left waiting for its digits at the end. Stops at a word that is no token, at two values in a
// row in Simple or Precedence and at a "to" that converts nothing, and names it in `error`: nothing
// has been shown or saved by then, so the run ends as if it had not started.
template <typename Words>
bool RunTokens(Session& session, const Words& words, std::string_view text, std::vector<int>& rejected,
               std::string& error, std::ostream& warnings, std::string_view prefix) {
    int index = 0;
    bool ok = true;
    Positions positions(text);
    Left left = Left::Other;
    std::optional<std::string_view> to;  // the "to" before this token
    words([&](std::string_view word, std::size_t offset) {
        const auto token = ParseToken(word, SyntaxOf(session.engine().prefs));
        const auto stop = [&](const std::string& why) {
            error = (why.empty() ? UnknownToken(word, index + 1, positions.At(offset))
                                 : "token " + std::to_string(index + 1) + positions.At(offset) + ": " + why);
            ok = false;
            return false;
        };
        if (!token) return stop({});
        if (to && token->kind != TokenKind::Key) return stop("to needs a unit key after it, not " + Printable(word));
        if (const auto refused = MeetValue(session, left, *token, word)) return stop(*refused);
        const ValueTag before = session.engine().XTag();
        int digitsTaken = 0;
        if (!RunToken(session, *token, digitsTaken)) rejected.push_back(index);
        if (to) {
            if (const auto refused = CheckConversion(before, session.engine().XTag(), word)) return stop(*refused);
        }
        to = token->kind == TokenKind::To ? std::optional(word) : std::nullopt;
        left = token->kind == TokenKind::Formula || (token->kind == TokenKind::Number && TypedIntoX(session.engine()))
                   ? Left::Value
                   : Left::Other;
        if (token->kind == TokenKind::Number) {
            const auto digits = std::count_if(word.begin(), word.end(), [](char c) { return c >= '0' && c <= '9'; });
            if (digitsTaken < digits) {
                warnings << prefix << "token " << index + 1 << positions.At(offset) << ": entry took " << digitsTaken
                         << " of the " << digits << " digits of " << Printable(word) << '\n';
            }
        }
        ++index;
        return true;
    });
    if (ok && to) {
        error = "token " + std::to_string(index) + ": to needs a unit key after it";
        ok = false;
    }
    if (ok) WarnOfWaitingKey(session.engine(), warnings, prefix);
    return ok;
}

void PrintLine(std::ostream& out, const Engine& e, int level, std::string_view name) {
    const DisplayLine line = DisplayLevel(e, level);
    out << name << line.text;
    if (!line.label.empty()) out << "  " << line.label;
    out << '\n';
}

void PrintStack(std::ostream& out, const Engine& e) {
    static constexpr std::string_view kNames[] = {"X: ", "Y: ", "Z: ", "T: "};
    for (int level = 3; level >= 0; --level) PrintLine(out, e, level, kNames[level]);
}

// Opens and loads the calculator this run works on: the database file (--db, else the default one
// shared with the desktop program), or one in memory with --memory; then an --import-legacy.
// False, after saying why, when that import failed.
bool LoadCalculator(const Options& o, SessionStore& store, std::ostream& err) {
    const StoreLocation where = o.memory ? StoreLocation::Memory()
                                : o.db   ? StoreLocation::File(*o.db)
                                         : StoreLocation::Default();
    for (const std::string& notice : store.Start(where).notices) err << "brinto-cli: " << notice << '\n';
    if (!o.importLegacy) return true;
    if (const auto failure = store.ImportLegacy(*o.importLegacy)) {
        err << "brinto-cli: " << *failure << '\n';
        return false;
    }
    return true;
}

// Preferences given with --pref hold for the run and are not saved, unless a key or a command
// changes the preferences during the run: then the live record is saved, given words and all.

// Preferences given with --pref hold for the run and are not saved, unless a key or a command
// changes the preferences during the run: then the live record is saved, given words and all.
class PreferenceOverrides {
public:
    PreferenceOverrides(Session& session, const std::vector<std::pair<int, u16>>& words)
        : m_session(session), m_words(words) {
        Apply();
    }
    // After a run began: preferences another program saved meanwhile are the new saved ones, and
    // the given words lie over them again.
    void Apply() {
        if (m_session.engine().prefs.words == m_given.words) return;
        m_loaded = m_session.engine().prefs;
        m_given = m_loaded;
        for (const auto& [word, value] : m_words) m_given.words[word] = value;
        if (!m_words.empty()) m_session.OverridePreferences(m_given);
    }
    // Saves with `save` what the run changed, the given words only along with a change of its own.
    bool Save(const std::function<bool()>& save) {
        if (m_session.engine().prefs.words != m_given.words) return save();
        m_session.OverridePreferences(m_loaded);
        const bool saved = save();
        m_session.OverridePreferences(m_given);
        return saved;
    }

private:
    Session& m_session;
    std::vector<std::pair<int, u16>> m_words;
    Preferences m_loaded{};
    Preferences m_given{};
};

std::string_view MethodName(InputMethod method) {
    switch (method) {
        case InputMethod::Simple: return "Simple";
        case InputMethod::Precedence: return "Precedence";
        case InputMethod::Rpn: return "RPN";
    }
    return "?";
}

std::string_view AngleName(AngleUnit unit) {
    switch (unit) {
        case AngleUnit::Degrees: return "Degrees";
        case AngleUnit::Radians: return "Radians";
        case AngleUnit::Grads: return "Grads";
    }
    return "?";
}

std::string_view BaseName(u16 base) {
    switch (base) {
        case status::BaseBinary: return "Binary";
        case status::BaseOctal: return "Octal";
        case status::BaseHex: return "Hexadecimal";
        default: return "Decimal";
    }
}

void PrintStatus(std::ostream& out, const Engine& e) {
    const int keyboard = e.Keyboard();
    out << "Input method: " << MethodName(e.Method())
        << "   Keyboard: " << (keyboard < kKeyboardCount ? kKeyboardNames[keyboard] : "?")
        << "   Angles: " << AngleName(e.Angle()) << "   Entry base: " << BaseName(e.EntryBase()) << '\n';
}

// "help" alone, or "help NAME ...": one key, command or constant after another.
void PrintHelp(std::ostream& out, std::ostream& err, const std::vector<std::string_view>& names) {
    const auto promptWord = [](std::string_view name) {
        return std::find(std::begin(kPromptWords), std::end(kPromptWords), name) != std::end(kPromptWords);
    };
    if (names.empty() || std::any_of(names.begin(), names.end(), promptWord)) out << kInteractiveHelp;
    for (const std::string_view name : names) {
        if (promptWord(name) || DescribeName(name, out)) continue;
        err << "no key, command or constant is named " << Printable(name) << Suggestions(NearestNames(name)) << '\n';
    }
}

// Each line of keys is one run (SessionStore::BeginRun to EndRun), so the prompt always works on
// the calculator as the last program left it, and keeps each line at once.
void Interactive(Session& session, CliHost& host, LineSource& lines, std::ostream& out, std::ostream& err,
                 SessionStore& store, PreferenceOverrides& overrides) {
    host.echo = &out;
    out << "Brinto. Type keys (2 enter 3 +), \"help\" for help, \"quit\" to leave.\n";
    PrintStack(out, session.engine());
    std::optional<std::string> line;
    while (out << std::flush, line = lines.ReadLine("> ")) {
        std::vector<std::string_view> typed;
        ForEachWord(*line, [&](std::string_view w, std::size_t) {
            typed.push_back(w);
            return true;
        });
        if (!typed.empty() && typed[0] == "help") {
            PrintHelp(out, err, {typed.begin() + 1, typed.end()});
            continue;
        }
        if (std::find(typed.begin(), typed.end(), "quit") != typed.end()) break;
        if (typed.size() == 1 && typed[0] == "status") {
            store.Refresh();
            PrintStatus(out, session.engine());
            continue;
        }
        const auto words = [&](auto&& each) { ForEachWord(*line, each); };
        std::string error;
        if (!CheckTokens(words, *line, SyntaxOf(session.engine().prefs), error)) {
            err << error << '\n';
            continue;
        }
        std::vector<int> rejected;
        store.BeginRun();
        overrides.Apply();
        if (!RunTokens(session, words, *line, rejected, error, err, "")) err << error << '\n';
        overrides.Save([&] { return store.EndRun(); });
        PrintStack(out, session.engine());
    }
    if (!line) out << '\n';  // end of input (Ctrl-D): the shell's prompt starts on a line of its own
}

}  // namespace

int RunCli(const std::vector<std::string>& args, std::istream& in, bool inIsTerminal, std::ostream& out,
           std::ostream& err, LineSource* terminal) {
    std::string error;
    auto options = ParseOptions(args, error);
    if (!options) {
        err << "brinto-cli: " << error << '\n';
        return 2;
    }
    if (options->help) {
        PrintUsage(out);
        return 0;
    }
    if (options->version) {
        out << "brinto-cli " << BRINTO_VERSION << '\n';
        return 0;
    }
    if (options->listKeys) {
        ListKeys(out);
        return 0;
    }
    if (options->completion) {
        WriteCompletion(*options->completion, out);
        return 0;
    }
    const bool interactive = options->tokens.empty() && inIsTerminal && !options->json && !options->schedule &&
                             !options->tape && !options->clearTape;
    std::string script;
    if (options->tokens.empty() && !inIsTerminal) {
        script.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    // The tokens: the arguments, or the words of the script.
    const auto words = [&](auto&& each) {
        if (options->tokens.empty()) {
            ForEachWord(script, each);
            return;
        }
        for (const std::string& t : options->tokens) {
            if (!each(std::string_view(t), kArgument)) return;
        }
    };

    CliHost host(err);
    host.platform.pinnedNow = options->now;
    Engine engine(CalculatorFamilies());
    Session session(engine, host);
    SessionStore store(session);
    if (!LoadCalculator(*options, store, err)) return 1;
    if (!interactive) store.BeginRun();  // parallel runs take turns, each on the latest calculator
    PreferenceOverrides overrides(session, options->prefs);
    const auto save = [&] { overrides.Save([&] { return store.EndRun(); }); };
    if (options->seed) session.SetRandomSeed(*options->seed);
    if (options->clearTape) store.ClearTape();

    if (interactive) {
        StreamLines streamLines(in, out);
        LineSource& lines = terminal ? *terminal : streamLines;
        if (terminal && !options->memory) {
            // Beside the database in use; with --memory the run leaves no trace.
            const std::filesystem::path database =
                options->db ? std::filesystem::path(*options->db) : StoreLocation::DefaultFile();
            lines.KeepHistoryIn(database.parent_path() / "brinto-cli.history");
        }
        Interactive(session, host, lines, out, err, store, overrides);
        return store.HadTrouble() ? 1 : 0;
    }
    if (!RunTokens(session, words, script, host.report.rejected, error, err, "brinto-cli: ")) {
        err << "brinto-cli: " << error << '\n';
        return 2;  // nothing is saved: the run ends as if it had not started
    }
    save();
    if (options->tape) {
        for (const ReportMessage& m : host.report.messages) err << m.caption << ": " << m.text << '\n';
        const std::vector<TapeLine> tape = store.Tape();
        if (options->json) {
            out << TapeJson(tape);
        } else {
            for (const TapeLine& line : tape) out << TapeText(line) << '\n';
        }
    } else if (options->json && !options->schedule) {
        out << JsonReport(session, host.report);
    } else {
        for (const ReportMessage& m : host.report.messages) err << m.caption << ": " << m.text << '\n';
        if (options->schedule) {
            out << ScheduleCsv(MakeAmortizationSchedule(engine));
        } else {
            PrintLine(out, engine, 0, "");
        }
    }
    // The calculator could not be loaded or saved: said on standard error when it happened.
    return store.HadTrouble() ? 1 : 0;
}

}  // namespace brinto
