#include "session/persistence.h"

#include <system_error>

#include "store/legacy_import.h"
#include "store/state_io.h"

namespace brinto {

bool LoadSession(Session& session, RecordStore& store, const std::filesystem::path& legacyFile,
                 std::string& warning) {
    warning.clear();
    const auto migrate = [&](RecordStore& into) {
        std::error_code ec;
        if (legacyFile.empty() || !std::filesystem::exists(legacyFile, ec)) return false;
        const LegacyImport outcome = ImportLegacyFile(into, legacyFile);
        if (!outcome.imported) warning = "legacy settings not imported: " + outcome.reason;
        return outcome.imported;
    };
    return LoadState(session.engine(), session.userKeys, store, migrate);
}

bool SaveSession(Session& session, RecordStore& store) {
    return SaveState(session.engine(), session.userKeys, store);
}

}  // namespace brinto
