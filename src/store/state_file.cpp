#include "store/state_file.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <system_error>

namespace brinto {

namespace {

namespace fs = std::filesystem;

constexpr const char* kCompanions[] = {"-wal", "-journal", "-shm"};

fs::path HomeFolder(const char* home) {
    if (home && *home) return home;
    // No $HOME (a service, a stripped environment): the account's own home folder.
    if (const passwd* account = getpwuid(getuid()); account && account->pw_dir) return account->pw_dir;
    return ".";
}

fs::path BaseFolder(const char* variable, const char* home, const char* fallback) {
    if (variable && *variable && fs::path(variable).is_absolute()) return variable;
    return HomeFolder(home) / fallback;
}

std::string Stamp() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[32];
    std::strftime(text, sizeof text, "%Y%m%d-%H%M%S", &local);
    return text;
}

bool Exists(const fs::path& path) {
    std::error_code ec;
    return fs::exists(fs::symlink_status(path, ec));
}

}  // namespace

StateLocations LocationsFrom(const char* xdgDataHome, const char* xdgConfigHome, const char* home) {
    return {BaseFolder(xdgDataHome, home, ".local/share") / "brinto" / "brinto.db",
            BaseFolder(xdgConfigHome, home, ".config") / "brinto" / "Brinto.reg"};
}

StateLocations DefaultLocations() {
    return LocationsFrom(std::getenv("XDG_DATA_HOME"), std::getenv("XDG_CONFIG_HOME"), std::getenv("HOME"));
}

fs::path MoveAside(const fs::path& path) {
    const std::string base = path.string() + ".damaged-" + Stamp();
    std::string aside = base;
    for (int n = 2; Exists(aside) && n < 1000; ++n) aside = base + "-" + std::to_string(n);
    std::error_code ec;
    fs::rename(path, aside, ec);
    if (ec) return {};
    // The journal belongs to the damaged file: left behind, SQLite would replay it into the
    // fresh database that takes the old name.
    for (const char* suffix : kCompanions) {
        const fs::path companion = path.string() + suffix;
        if (Exists(companion)) fs::rename(companion, aside + suffix, ec);
    }
    return aside;
}

OpenResult OpenStateFile(RecordStore& store, const fs::path& path, std::string& warning) {
    warning.clear();
    const OpenResult result = store.Open(path.string());
    switch (result) {
        case OpenResult::Opened: return result;
        case OpenResult::Busy:
            warning = Notice("%1 is locked by another program; the calculator runs in memory and nothing will be saved",
                             {path.string()});
            return result;
        case OpenResult::Foreign:
            warning = Notice("%1 is not a Brinto database; it was left as it is; the calculator runs in memory and "
                             "nothing will be saved",
                             {path.string()});
            return result;
        case OpenResult::Unavailable:
        case OpenResult::Refused:
            warning = Notice("%1; the calculator runs in memory and nothing will be saved", {store.LastError()});
            return result;
        case OpenResult::Damaged: break;
    }
    const std::string reason = store.LastError();
    const fs::path aside = MoveAside(path);
    if (aside.empty()) {
        warning = Notice("%1 is damaged (%2) and cannot be moved aside; the calculator runs in memory and nothing "
                         "will be saved",
                         {path.string(), reason});
        return result;
    }
    const OpenResult fresh = store.Open(path.string());
    warning = fresh == OpenResult::Opened
                  ? Notice("%1 was damaged (%2); kept it as %3; starting on defaults",
                           {path.string(), reason, aside.string()})
                  : Notice("%1 was damaged (%2); kept it as %3; the calculator runs in memory and nothing will "
                           "be saved",
                           {path.string(), reason, aside.string()});
    return fresh;
}

}  // namespace brinto
