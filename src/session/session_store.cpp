#include "session/session_store.h"

#include <map>
#include <system_error>

#include "store/legacy_import.h"
#include "store/record_store.h"
#include "store/state_file.h"
#include "store/state_io.h"

namespace brinto {

namespace {

constexpr const char* kInMemoryNow = "; the calculator runs in memory and nothing will be saved";

enum class TroubleKind { Load, Save };

std::optional<std::u16string> SettingName(std::string_view name) {
    if (name.empty() || name.size() > kMaxRecordName) return std::nullopt;
    std::u16string wide;
    for (const char c : name) {
        if (static_cast<unsigned char>(c) < 0x20 || static_cast<unsigned char>(c) > 0x7E) return std::nullopt;
        wide += static_cast<char16_t>(c);
    }
    return wide;
}

}  // namespace

struct SessionStore::Impl {
    explicit Impl(Session& s) : session(s) {}

    Session& session;
    RecordStore store;
    std::string where;            // the file, for messages; empty in memory
    bool reported[2] = {false, false};
    std::map<std::u16string, std::vector<std::byte>> pendingSettings;

    Engine& engine() { return session.m_engine; }
    UserKeyMap& userKeys() { return session.m_userKeys; }

    void Report(TroubleKind kind, const std::string& text) {
        bool& once = reported[static_cast<int>(kind)];
        if (once) return;
        once = true;
        session.host().ReportTrouble(text);
    }
    // Goes on with a store in memory: whatever the file holds stays as it is.
    void ToMemory() {
        store.Open(std::string(RecordStore::kInMemory));
        where.clear();
    }
    std::filesystem::path Open(const StoreLocation& location, StartOutcome& out);
    bool OpenFile(const std::filesystem::path& path, StartOutcome& out) {
        std::string warning;
        OpenStateFile(store, path, warning);
        if (!store.IsOpen()) {
            Report(TroubleKind::Load, warning);
            ToMemory();
            return false;
        }
        if (!warning.empty()) out.notices.push_back(warning);
        where = path.string();
        return true;
    }
};

SessionStore::SessionStore(Session& session) : m_impl(std::make_unique<Impl>(session)) {}

SessionStore::~SessionStore() = default;

// Opens the store at `location`, or one in memory after trouble; answers where a first run looks
// for the handheld release's export.
std::filesystem::path SessionStore::Impl::Open(const StoreLocation& location, StartOutcome& out) {
    switch (location.kind) {
        case StoreLocation::Kind::Memory: ToMemory(); return {};
        case StoreLocation::Kind::File: out.trouble = !OpenFile(location.file, out); break;
        case StoreLocation::Kind::Default: {
            const std::filesystem::path database = DefaultLocations().database;
            std::error_code ec;
            std::filesystem::create_directories(database.parent_path(), ec);
            if (!ec) {
                out.trouble = !OpenFile(database, out);
                break;
            }
            Report(TroubleKind::Load,
                   "cannot create the folder " + database.parent_path().string() + ": " + ec.message() + kInMemoryNow);
            ToMemory();
            out.trouble = true;
            break;
        }
    }
    return DefaultLocations().legacyFile;
}

StartOutcome SessionStore::Start(const StoreLocation& location) {
    Impl& m = *m_impl;
    StartOutcome out;
    const std::filesystem::path legacy = m.Open(location, out);
    // After trouble the user's calculator may well exist: no migration and no first-run question.
    const auto migrate = [&](RecordStore& into) {
        std::error_code ec;
        if (out.trouble || legacy.empty() || !std::filesystem::exists(legacy, ec)) return false;
        const LegacyImport outcome = ImportLegacyFile(into, legacy);
        if (!outcome.imported) out.notices.push_back("legacy settings not imported: " + outcome.reason);
        return outcome.imported;
    };
    m.store.ClearFailure();
    const bool loaded = LoadState(m.engine(), m.userKeys(), m.store, migrate);
    if (m.store.Failed() && !m.where.empty()) {
        m.Report(TroubleKind::Load, "cannot load the calculator from " + m.where + " (" + m.store.LastError() + ")" +
                                        kInMemoryNow);
        m.ToMemory();
        out.trouble = true;
        LoadState(m.engine(), m.userKeys(), m.store);
    } else if (m.store.ReadOnly()) {
        // The calculator is there to use; only its saving is impossible.
        m.Report(TroubleKind::Load, m.where + " is read-only" + kInMemoryNow);
        m.ToMemory();
        out.trouble = true;
    }
    out.firstRun = !loaded && !out.trouble;
    if (out.firstRun) {
        const InputMethodChoice choice = m.session.host().AskInputMethod();
        m.session.ChooseInputMethod(choice.method);
        out.openPreferences = choice.openPreferences;
    }
    return out;
}

std::optional<std::string> SessionStore::ImportLegacy(const std::filesystem::path& exportFile) {
    Impl& m = *m_impl;
    const LegacyImport outcome = ImportLegacyFile(m.store, exportFile);
    if (!outcome.imported) return outcome.reason;
    LoadState(m.engine(), m.userKeys(), m.store);
    return std::nullopt;
}

bool SessionStore::Save() {
    Impl& m = *m_impl;
    Engine& e = m.engine();
    const DirtyFlags before = e.dirty;
    m.store.ClearFailure();
    bool saved = false;
    {
        StoreTransaction transaction(m.store, StoreTransaction::Kind::Write);
        saved = transaction.Started();
        for (const auto& [name, value] : m.pendingSettings) {
            saved = saved && m.store.WriteRecord(kind::FrontEndSetting, value.data(), value.size(), name);
        }
        saved = saved && SaveState(e, m.userKeys(), m.store) && transaction.Commit();
    }
    if (!saved) {
        e.dirty = before;
        m.Report(TroubleKind::Save, "cannot save the calculator to " + m.where + " (" + m.store.LastError() +
                                        "); the file keeps its last save");
        return false;
    }
    m.pendingSettings.clear();
    return true;
}

bool SessionStore::HadTrouble() const { return m_impl->reported[0] || m_impl->reported[1]; }

std::optional<std::vector<std::byte>> SessionStore::FrontEndSetting(std::string_view name) const {
    const auto wide = SettingName(name);
    if (!wide) return std::nullopt;
    if (const auto it = m_impl->pendingSettings.find(*wide); it != m_impl->pendingSettings.end()) return it->second;
    std::vector<std::byte> value(kMaxFrontEndSetting + 1);
    std::size_t size = value.size();
    if (!m_impl->store.ReadRecord(kind::FrontEndSetting, value.data(), size, *wide) || size > kMaxFrontEndSetting) {
        return std::nullopt;
    }
    value.resize(size);
    return value;
}

bool SessionStore::SetFrontEndSetting(std::string_view name, std::span<const std::byte> value) {
    const auto wide = SettingName(name);
    if (!wide || value.size() > kMaxFrontEndSetting) return false;
    m_impl->pendingSettings[*wide].assign(value.begin(), value.end());
    return true;
}

}  // namespace brinto
