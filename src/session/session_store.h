#pragma once
// SessionStore: keeping a session's calculator between runs. It owns the whole start-up (opening or
// creating the database, moving a damaged file aside, the first-run migration of the handheld
// release's settings, loading every record with its repairs, the first run's "Input Method"
// question) and the saving of what changed. Front ends call Start once and Save at deactivation,
// at exit or on request; what they must tell the user arrives through the Host or the outcome.
//
// Damage and trouble are told apart. A damaged or foreign file is moved aside and the run starts
// on defaults in a fresh file. Trouble (no right to the file, a read-only file, a full disk, an I/O
// error, a lock held by another program beyond a few seconds, a path that is no regular file)
// never moves nor changes anything: the host hears of it once (Host::ReportTrouble) and the run
// goes on in memory.
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

    // Writes the changed records, CalcState and the changed front-end settings as one transaction.
    // False when that did not reach the file; the first such failure is reported to the host,
    // the saved state stays as it was and the records stay marked for the next try.
    bool Save();
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
