#include "session/session_store.h"

#include <map>
#include <system_error>

#include "store/legacy_import.h"
#include "store/record_store.h"
#include "store/state_file.h"
#include "store/state_io.h"

namespace brinto {

namespace {


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

struct SessionStore::Impl : CommandObserver {
    explicit Impl(Session& s) : session(s) {}

    Session& session;
    RecordStore store;
    std::string where;            // the file, for messages; empty in memory
    FileRecords file;             // what the file held when last read or written
    FileRecords base;             // the calculator as it was then: what differs is this program's work
    bool loadReported = false;
    bool saveFailed = false;      // the last save did not reach the file
    bool anySaveFailed = false;
    bool finished = false;
    std::optional<StoreTransaction> run;  // between BeginRun and EndRun
    std::map<std::u16string, std::vector<std::byte>> pendingSettings;
    std::vector<TapeRow> pendingTape;  // tape lines not yet in the file
    long long lastTapeRow = 0;         // the newest tape line seen in the file

    Engine& engine() { return session.m_engine; }
    UserKeyMap& userKeys() { return session.m_userKeys; }

    // Each command of a window is a run of its own: no other program saves in between, so the
    // command acts on the latest calculator and what it did is kept at once. A message box or the
    // clipboard within a command lets the others in while it waits.
    void BeforeCommand() override { BeginRun(); }
    void AfterCommand() override { EndRun(); }
    void PauseCommand() override { EndRun(); }
    void ResumeCommand() override { BeginRun(); }
    bool BeginRun();
    bool EndRun();

    void ReportLoad(const std::string& text) {
        if (loadReported) return;
        loadReported = true;
        session.host().ReportTrouble(text);
    }
    // Goes on with a store in memory: whatever the file holds stays as it is.
    void ToMemory() {
        run.reset();
        store.Open(std::string(RecordStore::kInMemory));
        where.clear();
        file = base = FileRecords{};
    }
    std::filesystem::path Open(const StoreLocation& location, StartOutcome& out);
    bool OpenFile(const std::filesystem::path& path, StartOutcome& out) {
        std::string warning;
        OpenStateFile(store, path, warning);
        if (!store.IsOpen()) {
            ReportLoad(warning);
            ToMemory();
            return false;
        }
        if (!warning.empty()) out.notices.push_back(warning);
        where = path.string();
        return true;
    }

    // Takes over `now` where this program kept the file's records as they were (an undoable step),
    // and shows what others added to the tape.
    void TakeOver(const FileRecords& now) {
        Engine& e = engine();
        const EngineRecords before = e.Records();
        const PickedUp picked = PickUp(e, userKeys(), file, base, now);
        base = ImagesOf(e, userKeys());
        if (picked.engineRecords) {
            e.history.TakeSnapshot(before);
            e.history.Commit(e.Records());
        }
        if (picked.Any()) session.host().PickedUp(picked.preferences);
        NoticeTape();  // the others' tape lines, also when they came with no change of the records
    }
    // Whether another program saved since this one last looked; reading the counter is cheap.
    bool OthersSaved() {
        const std::optional<long long> version = store.DataVersion();
        return version && version != file.dataVersion;
    }
    bool Refresh() {
        if (finished || where.empty() || session.InCommand() || !OthersSaved()) return false;
        store.ClearFailure();
        const FileRecords now = ReadFileRecords(store);
        if (store.Failed()) return false;  // read again at the next look
        TakeOver(now);
        return true;
    }
    // Tells the host when the tape in the file has lines it has not shown.
    void NoticeTape() {
        const long long last = store.LastTapeRow();
        if (last == lastTapeRow) return;
        lastTapeRow = last;
        session.host().TapeChanged();
    }
    bool Save();
};

bool SessionStore::Impl::Save() {
    if (finished) return false;
    Engine& e = engine();
    for (TapeLine& line : session.TakeTapeLines()) {
        pendingTape.push_back({std::move(line.time), std::move(line.keys), std::move(line.result),
                               std::move(line.label), line.value, ToNumber(line.tag)});
    }
    if (!DiffersFromFile(e, userKeys(), file) && pendingSettings.empty() && pendingTape.empty()) return true;
    const DirtyFlags before = e.dirty;
    store.ClearFailure();
    bool saved = false;
    {
        StoreTransaction transaction(store, StoreTransaction::Kind::Write);
        saved = transaction.Started();
        // Within the write transaction nobody else can save: what others saved until now is taken
        // over first, so that this save builds on it instead of undoing it.
        if (saved && !where.empty() && OthersSaved()) {
            const FileRecords now = ReadFileRecords(store);
            saved = !store.Failed();
            if (saved) TakeOver(now);
        }
        saved = saved && store.AppendTape(pendingTape, kTapeLines);
        for (const auto& [name, value] : pendingSettings) {
            saved = saved && store.WriteRecord(kind::FrontEndSetting, value.data(), value.size(), name);
        }
        FileRecords written = file;
        saved = saved && SaveState(e, userKeys(), store, &written) && transaction.Commit();
        if (saved) {
            file.images = written.images;
            base = ImagesOf(e, userKeys());
        }
    }
    if (!saved) {
        e.dirty = before;
        saveFailed = anySaveFailed = true;
        session.host().ReportSaveFailure(Notice("cannot save the calculator to %1 (%2); the file keeps its last save",
                                                {where.empty() ? std::string("memory") : where, store.LastError()}));
        return false;
    }
    pendingSettings.clear();
    if (!pendingTape.empty()) {
        pendingTape.clear();
        NoticeTape();
    }
    if (saveFailed) {
        saveFailed = false;
        session.host().SaveRecovered();
    }
    return true;
}

std::filesystem::path StoreLocation::DefaultFile() { return DefaultLocations().database; }

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
            ReportLoad(Notice("cannot create the folder %1: %2; the calculator runs in memory and nothing will be saved",
                              {database.parent_path().string(), ec.message()}));
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
        if (!outcome.imported) out.notices.push_back(Notice("legacy settings not imported: %1", {outcome.reason}));
        return outcome.imported;
    };
    m.store.ClearFailure();
    const bool loaded = LoadState(m.engine(), m.userKeys(), m.store, migrate, &m.file);
    if (m.store.Failed() && !m.where.empty()) {
        m.ReportLoad(Notice("cannot load the calculator from %1 (%2); the calculator runs in memory and nothing will "
                            "be saved",
                            {m.where, m.store.LastError()}));
        m.ToMemory();
        out.trouble = true;
        LoadState(m.engine(), m.userKeys(), m.store, {}, &m.file);
    } else if (m.store.ReadOnly()) {
        // The calculator is there to use; only its saving is impossible.
        m.ReportLoad(Notice("%1 is read-only; the calculator runs in memory and nothing will be saved", {m.where}));
        m.ToMemory();
        out.trouble = true;
    }
    out.firstRun = !loaded && !out.trouble;
    if (out.firstRun) {
        const InputMethodChoice choice = m.session.host().AskInputMethod();
        m.session.ChooseInputMethod(choice.method);
        out.openPreferences = choice.openPreferences;
    }
    // The calculator as loaded (and set up by a first run) is the base against which this
    // program's own work is told from what others save.
    m.base = ImagesOf(m.engine(), m.userKeys());
    return out;
}

std::optional<std::string> SessionStore::ImportLegacy(const std::filesystem::path& exportFile) {
    Impl& m = *m_impl;
    if (m.finished) return "the calculator is closed";
    const LegacyImport outcome = ImportLegacyFile(m.store, exportFile);
    if (!outcome.imported) return outcome.reason;
    LoadState(m.engine(), m.userKeys(), m.store, {}, &m.file);
    m.base = ImagesOf(m.engine(), m.userKeys());
    return std::nullopt;
}

bool SessionStore::Save() { return m_impl->Save(); }

bool SessionStore::Refresh() { return m_impl->Refresh(); }

void SessionStore::KeepEachCommand() {
    m_impl->session.SetCommandObserver(m_impl.get());
    m_impl->Save();  // a first run's answer, or repairs made while loading, are kept at once
}

bool SessionStore::Impl::BeginRun() {
    if (finished || run || where.empty()) return false;
    store.ClearFailure();
    run.emplace(store, StoreTransaction::Kind::Write);
    if (!run->Started()) {
        run.reset();
        session.host().ReportSaveFailure(Notice("%1 is locked by another program (%2)", {where, store.LastError()}));
        return false;
    }
    if (OthersSaved()) {
        const FileRecords now = ReadFileRecords(store);
        if (!store.Failed()) TakeOver(now);
    }
    return true;
}

bool SessionStore::Impl::EndRun() {
    const FileRecords fileBefore = file, baseBefore = base;
    bool saved = Save();
    if (run) {
        // The save joined the run's transaction: the file has it only once this commits.
        saved = run->Commit() && saved;
        run.reset();
        if (!saved) {  // so that the next save writes those records again
            file = fileBefore;
            base = baseBefore;
        }
        if (!saved && !saveFailed) {
            saveFailed = anySaveFailed = true;
            session.host().ReportSaveFailure(Notice(
                "cannot save the calculator to %1 (%2); the file keeps its last save", {where, store.LastError()}));
        }
    }
    return saved;
}

bool SessionStore::BeginRun() { return m_impl->BeginRun(); }

bool SessionStore::EndRun() { return m_impl->EndRun(); }

void SessionStore::Finish() {
    Impl& m = *m_impl;
    m.session.SetCommandObserver(nullptr);
    m.run.reset();
    m.store.Close();
    m.finished = true;
}

bool SessionStore::Finished() const { return m_impl->finished; }

std::vector<TapeLine> SessionStore::Tape() {
    std::vector<TapeLine> lines;
    if (m_impl->finished) return lines;
    for (TapeRow& row : m_impl->store.ReadTape(kTapeLines)) {
        lines.push_back({std::move(row.time), std::move(row.keys), row.value, static_cast<ValueTag>(row.tag),
                         std::move(row.result), std::move(row.label)});
    }
    return lines;
}

bool SessionStore::ClearTape() {
    Impl& m = *m_impl;
    if (m.finished) return false;
    m.pendingTape.clear();
    m.session.TakeTapeLines();
    StoreTransaction transaction(m.store, StoreTransaction::Kind::Write);
    const bool cleared = transaction.Started() && m.store.ClearTape() && transaction.Commit();
    if (cleared) m.NoticeTape();
    return cleared;
}

bool SessionStore::HadTrouble() const { return m_impl->loadReported || m_impl->anySaveFailed; }

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
