#include "cli/cli.h"

#include <cctype>
#include <charconv>
#include <functional>
#include <iostream>
#include <iterator>
#include <optional>
#include <sstream>

#include "cli/json_report.h"
#include "cli/locale_platform.h"
#include "cli/tokens.h"
#include "display/display_text.h"
#include "engine/key_table.h"
#include "engine/keyboards.h"
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
    bool schedule = false;
    std::optional<std::string> db;
    std::optional<std::string> importLegacy;
    std::vector<std::pair<int, u16>> prefs;
    std::optional<DateFields> now;
    std::optional<u32> seed;
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

// Reads the options; on a bad one names it in `error`.
std::optional<Options> ParseOptions(const std::vector<std::string>& args, std::string& error) {
    Options o;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool hasValue = i + 1 < args.size();
        if (a == "--json") {
            o.json = true;
        } else if (a == "--memory") {
            o.memory = true;
        } else if (a == "--list-keys") {
            o.listKeys = true;
        } else if (a == "--help" || a == "-h") {
            o.help = true;
        } else if (a == "--schedule") {
            o.schedule = true;
        } else if (a == "--db" && hasValue) {
            o.db = args[++i];
        } else if (a == "--import-legacy" && hasValue) {
            o.importLegacy = args[++i];
        } else if (a == "--pref" && hasValue) {
            const std::string& v = args[++i];
            const std::size_t eq = v.find('=');
            const auto word = eq == std::string::npos ? std::nullopt : ParseUnsigned(std::string_view(v).substr(0, eq), 6);
            const auto value = eq == std::string::npos ? std::nullopt : ParseUnsigned(std::string_view(v).substr(eq + 1), 0xFFFF);
            if (!word || !value) {
                error = "bad --pref value: " + v;
                return std::nullopt;
            }
            o.prefs.emplace_back(static_cast<int>(*word), static_cast<u16>(*value));
        } else if (a == "--now" && hasValue) {
            o.now = ParseDateTime(args[++i]);
            if (!o.now) {
                error = "bad --now value (want \"YYYY-MM-DD HH:MM:SS\"): " + args[i];
                return std::nullopt;
            }
        } else if (a == "--seed" && hasValue) {
            const auto seed = ParseUnsigned(args[++i], 0xFFFFFFFFul);
            if (!seed) {
                error = "bad --seed value: " + args[i];
                return std::nullopt;
            }
            o.seed = static_cast<u32>(*seed);
        } else if (a.size() > 2 && a[0] == '-' && a[1] == '-') {
            const bool needsValue =
                a == "--db" || a == "--import-legacy" || a == "--pref" || a == "--now" || a == "--seed";
            error = needsValue ? "option needs a value: " + a : "unknown option: " + a;
            return std::nullopt;
        } else {
            o.tokens.push_back(a);
        }
    }
    return o;
}

// What --help prints: every option and every kind of token, in the README's words, shortened.
constexpr std::string_view kUsage =
    "Usage: brinto-cli [OPTIONS] [TOKEN ...]\n"
    "Runs the tokens left to right and prints X as the display shows it. With no tokens, reads them\n"
    "from standard input, or is an interactive calculator at a terminal (\"quit\" leaves it).\n"
    "\n"
    "Options:\n"
    "  --json                 after the last token, print the whole state as one JSON object\n"
    "  --memory               start from the defaults of a first run; read and write no database\n"
    "  --db PATH              use the database file at PATH instead of the default one\n"
    "  --import-legacy FILE   first bring in the handheld release's settings from a registry export\n"
    "  --pref W=V             set preference word W (0..6) to V (decimal or 0x hex) for this run\n"
    "  --now \"YYYY-MM-DD HH:MM:SS\"  the local date and time that the \"now\" key reads\n"
    "  --seed N               the stored random seed before the first token\n"
    "  --schedule             after the last token, print the amortization schedule as CSV\n"
    "  --list-keys            print every key name with its key code and exit\n"
    "  -h, --help             print this text and exit\n"
    "\n"
    "Tokens:\n"
    "  #N                     a tap of the key with code N (0..65535), exactly that key\n"
    "  12  -1.5e-3  .5        a number, typed as keys\n"
    "  NAME                   the key of that name, any case (enter, +, sin, pv; see --list-keys)\n"
    "  keys:TEXT              each character of TEXT as a key (keys:2+3*5=)\n"
    "  kb:N                   select keyboard N:";
constexpr std::string_view kUsageEnd =
    "  key:K                  key K (1..12) of the current keyboard's variable block\n"
    "  undo  redo  copy  cut  the Edit commands\n"
    "  paste:TEXT             paste TEXT\n"
    "  basic  advanced        the view commands\n"
    "  const:N                recall physical constant N (see --list-keys)\n"
    "\n"
    "Exit status: 0; 1 when the calculator could not be loaded, saved or imported; 2 for an\n"
    "unknown option or token (nothing is saved then).\n";

// The keyboards are listed from their own table, so a renamed one cannot go stale here.
void PrintUsage(std::ostream& out) {
    out << kUsage;
    for (int k = 0; k < kKeyboardCount; ++k) {
        const std::string_view gap = k == 0 ? " " : k % 3 == 0 ? ",\n                         " : ", ";
        out << gap << k << ' ' << kKeyboardNames[k];
    }
    out << '\n' << kUsageEnd;
}

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

// Calls `each` with every whitespace-separated word of `text`.
template <typename F>
void ForEachWord(std::string_view text, F&& each) {
    std::size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && IsSpace(text[i])) ++i;
        const std::size_t start = i;
        while (i < text.size() && !IsSpace(text[i])) ++i;
        if (i > start && !each(text.substr(start, i - start))) return;
    }
}

// Checks every word before any runs; on a bad one names it in `error`.
template <typename Words>
bool CheckTokens(const Words& words, std::string& error) {
    bool ok = true;
    words([&](std::string_view word) {
        if (ParseToken(word)) return true;
        error = "unknown token: " + Printable(word);
        ok = false;
        return false;
    });
    return ok;
}

// Runs one token; false when a key of it was not accepted.
bool RunToken(Session& session, const Token& t) {
    switch (t.kind) {
        case TokenKind::Key: return session.TapKey(t.id);
        case TokenKind::ExactKey: return session.Tap(t.id);
        case TokenKind::Number: {
            bool accepted = true;
            TypeNumber(t.text, [&](FunctionId id) { accepted = session.TapKey(id) && accepted; });
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
    }
    return true;
}

// Runs every word as a token; the indices of tokens with a refused key go to `rejected`. Stops at
// a word that is no token and names it in `error`: nothing has been shown or saved by then, so
// the run ends as if it had not started.
template <typename Words>
bool RunTokens(Session& session, const Words& words, std::vector<int>& rejected, std::string& error) {
    int index = 0;
    bool ok = true;
    words([&](std::string_view word) {
        const auto token = ParseToken(word);
        if (!token) {
            error = "unknown token: " + Printable(word);
            ok = false;
            return false;
        }
        if (!RunToken(session, *token)) rejected.push_back(index);
        ++index;
        return true;
    });
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
class PreferenceOverrides {
public:
    PreferenceOverrides(Session& session, const std::vector<std::pair<int, u16>>& words)
        : m_session(session), m_loaded(session.engine().prefs) {
        Preferences given = m_loaded;
        for (const auto& [word, value] : words) given.words[word] = value;
        m_given = given;
        if (!words.empty()) m_session.OverridePreferences(given);
    }
    bool Save(SessionStore& store) {
        if (m_session.engine().prefs.words != m_given.words) return store.Save();
        m_session.OverridePreferences(m_loaded);
        const bool saved = store.Save();
        m_session.OverridePreferences(m_given);
        return saved;
    }

private:
    Session& m_session;
    Preferences m_loaded;
    Preferences m_given{};
};

void Interactive(Session& session, CliHost& host, std::istream& in, std::ostream& out, std::ostream& err,
                 const std::function<void()>& save) {
    host.echo = &out;
    out << "Brinto. Type keys (2 enter 3 +), \"quit\" to leave.\n";
    PrintStack(out, session.engine());
    std::string line;
    while (out << "> " << std::flush, std::getline(in, line)) {
        const auto words = [&](auto&& each) { ForEachWord(line, each); };
        bool quit = false;
        words([&](std::string_view w) { return !(quit = (w == "quit")); });
        if (quit) break;
        std::string error;
        if (!CheckTokens(words, error)) {
            err << error << '\n';
            continue;
        }
        std::vector<int> rejected;
        RunTokens(session, words, rejected, error);
        // Each line is as far as the desktop program's deactivation: an interrupted session
        // loses at most the line being typed.
        save();
        PrintStack(out, session.engine());
    }
    save();
}

}  // namespace

int RunCli(const std::vector<std::string>& args, std::istream& in, bool inIsTerminal, std::ostream& out,
           std::ostream& err) {
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
    if (options->listKeys) {
        for (const KeyInfo& k : kKeyTable) out << k.name << ' ' << ToNumber(k.id) << '\n';
        for (int i = 0; i < kConstantCount; ++i) out << "const:" << i << ' ' << ConstantName(i) << '\n';
        return 0;
    }
    const bool interactive = options->tokens.empty() && inIsTerminal && !options->json && !options->schedule;
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
            if (!each(std::string_view(t))) return;
        }
    };

    CliHost host(err);
    host.platform.pinnedNow = options->now;
    Engine engine;
    Session session(engine, host);
    SessionStore store(session);
    if (!LoadCalculator(*options, store, err)) return 1;
    PreferenceOverrides overrides(session, options->prefs);
    const auto save = [&] { overrides.Save(store); };
    if (options->seed) session.SetRandomSeed(*options->seed);

    if (interactive) {
        Interactive(session, host, in, out, err, save);
        return store.HadTrouble() ? 1 : 0;
    }
    if (!RunTokens(session, words, host.report.rejected, error)) {
        err << "brinto-cli: " << error << '\n';
        return 2;  // nothing is saved: the run ends as if it had not started
    }
    save();
    if (options->json && !options->schedule) {
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
