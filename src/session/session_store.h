#pragma once
// SessionStore: keeping a session's calculator between runs, and sharing it with every other
// program that opens the same file. It owns the whole start-up (opening or creating the database,
// moving a damaged file aside, the first-run migration of the handheld release's settings, loading
// every record with its repairs, the first run's "Input Method" question) and the saving of what
// changed; what front ends must tell the user arrives through the Host or the outcome.
//
// One calculator, many doors: the desktop program keeps every command as it is made and picks up
// what others saved before its next command, at activation and while idle (KeepEachCommand,
// Refresh); brinto-cli does its whole run between BeginRun and EndRun, during which no other
// program saves, so parallel runs take turns and each builds on the one before. Only records that
// changed are written. A record that two programs changed at the same moment keeps the version of
// the one that saved last; everything else of both is kept.
//
// Damage and trouble are told apart. A damaged Brinto database is moved aside and the run starts
// on defaults in a fresh file. A file that is not a Brinto database is never touched. Trouble (no
// right to the file, a read-only file, an I/O error, a lock held by another program beyond a few
// seconds, a path that is no regular file or names someone else's file) never moves nor changes
// anything: the host hears of it once (Host::ReportTrouble) and the run goes on in memory. Every
// save that fails is told (Host::ReportSaveFailure) and tried again at the next save.
#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "session/session.h"

namespace brinto {

// Where the calculator is kept.
struct StoreLocation {
    enum class Kind { Default, File, Memory };
    Kind kind = Kind::Default;
    std::filesystem::path file;  // for Kind::File

    // The file shared by every front end, $XDG_DATA_HOME/brinto/brinto.db, its folder created when
    // missing; a first run there takes over the export $XDG_CONFIG_HOME/brinto/Brinto.reg.
    static StoreLocation Default() { return {}; }
    // Where that file is, from this process's environment.
    static std::filesystem::path DefaultFile();
    // A given file; its folder must exist. A first run takes over the same export.
    static StoreLocation File(std::filesystem::path path) { return {Kind::File, std::move(path)}; }
    // Nothing read, nothing written: a very first run that lasts one run.
    static StoreLocation Memory() { return {Kind::Memory, {}}; }
};

struct StartOutcome {
    bool firstRun = false;         // no preferences were saved yet: the input method was asked
    bool openPreferences = false;  // and the answer asked for the "Preferences" sheet next
    bool trouble = false;          // the calculator could not be loaded; it was reported
    // Facts to show once, one line each: a damaged file kept aside, an export that could not be
    // taken over.
    std::vector<std::string> notices;
};

class SessionStore {
public:
    explicit SessionStore(Session& session);
    ~SessionStore();
    SessionStore(const SessionStore&) = delete;
    SessionStore& operator=(const SessionStore&) = delete;

    // Opens the store at `where` and loads the session from it; on a first run asks the host for
    // the input method and applies the answer as the dialog's OK does.
    StartOutcome Start(const StoreLocation& where);
    // Replaces the preferences, registers, user keyboard and macro with those of a legacy export
    // and reloads the session from them. On failure nothing changes and the answer says why in
    // one line.
    std::optional<std::string> ImportLegacy(const std::filesystem::path& exportFile);

    // Writes the records that differ from the file and the changed front-end settings as one
    // transaction, after picking up what another program saved meanwhile. True at once when
    // nothing changed. False when it did not reach the file; every such failure is reported to the
    // host, the file keeps its last save and the changes are kept for the next try.
    bool Save();
    // Takes over what another program saved since this one last read or wrote the file, as one
    // undoable step, and tells the host. Costs a look at a counter when nothing changed; does
    // nothing while a command is being carried out. True when something was taken over.
    bool Refresh();
    // Every command of the session is kept as it is made: before it, what others saved is picked
    // up; after it, what changed is saved. For a program that stays open beside others.
    void KeepEachCommand();
    // From BeginRun to EndRun no other program can save, and the calculator is the latest one in
    // the file: a run of keys in between is one read-modify-write. EndRun saves and lets others
    // in; false when that save failed. BeginRun reports a file locked for too long and the run
    // then saves at EndRun as Save does.
    bool BeginRun();
    bool EndRun();
    // The history tape as the file keeps it, oldest line first (the newest kTapeLines of them), and
    // its own Clear. Lines reach the file with the save of the command that made them; the host
    // hears of new lines, its own or another program's (Host::TapeChanged).
    std::vector<TapeLine> Tape();
    bool ClearTape();

    // Ends the use of the file: nothing is read or written afterwards, whatever is called.
    void Finish();
    bool Finished() const;

    // Whether any trouble was reported during this run.
    bool HadTrouble() const;

    // A front end's own setting (the desktop program's window geometry), kept beside the
    // calculator's records; nothing when none is stored. Names are 1..32 ASCII characters, values
    // at most kMaxFrontEndSetting bytes.
    static constexpr std::size_t kMaxFrontEndSetting = 4096;
    std::optional<std::vector<std::byte>> FrontEndSetting(std::string_view name) const;
    // Kept with the next Save; false for a name or a value out of bounds.
    bool SetFrontEndSetting(std::string_view name, std::span<const std::byte> value);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

}  // namespace brinto
