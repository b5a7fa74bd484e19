#include "store/state_io.h"

#include <cstring>
#include <optional>

namespace brinto {

namespace {

// Reads a record into a zeroed image of T: bytes the store does not deliver stay zero.
template <class T>
std::size_t ReadImage(RecordStore& store, u32 recordKind, T& image) {
    image = T{};
    std::size_t size = sizeof(T);
    store.ReadRecord(recordKind, &image, size);
    return size;
}

void LoadPreferences(Engine& e, RecordStore& store) {
    Preferences prefs;
    ReadImage(store, kind::Preferences, prefs);
    if (prefs.words[0] != kPreferencesVersion) {
        prefs = DefaultPreferences();
        e.dirty.preferences = true;
    }
    // Depths below 4 or above 20 come from damaged or foreign records; 4..20 are kept even when
    // they are not one of the listed choices.
    const int depth = prefs.StackDepth();
    if (depth < 4 || depth > 20) {
        prefs.SetStackDepth(depth < 4 ? 4 : 20);
        e.dirty.preferences = true;
    }
    e.prefs = prefs;
}

void LoadRegisters(Engine& e, RecordStore& store) {
    RegisterBank registers;
    ReadImage(store, kind::Registers, registers);  // a short record is zero-filled and accepted
    if (registers.version == kRegisterBankVersion) {
        e.registers = registers;
    } else {
        e.ResetRegisters();
    }
}

void LoadUserKeys(Engine& e, UserKeyMap& userKeys, RecordStore& store) {
    UserKeyMap keys;
    if (ReadImage(store, kind::UserKeys, keys) == sizeof keys) {
        userKeys = keys;
    } else {
        userKeys = EmptyUserKeyMap();
        e.dirty.userKeys = true;
    }
}

// The counts and texts the engine indexes with. A record of the right size and version can still
// hold anything (a damaged or foreign file); one whose counts run past their arrays, or whose
// number being typed is no number, is damaged and replaced whole, like a record of the wrong size.
bool UsableMacro(const MacroRecord& macro) { return macro.macroLength <= kMacroSlots; }

bool UsableEntryText(const CalcState& s) {
    const void* end = std::memchr(s.entryText, '\0', sizeof s.entryText);
    if (!end) return false;
    const std::size_t length = static_cast<const char*>(end) - s.entryText;
    int points = 0, exponents = 0, exponentDigits = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const char c = s.entryText[i];
        const bool digit = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F' && exponents == 0);
        if (c == '.' && exponents == 0) {
            ++points;
        } else if (c == 'e') {
            ++exponents;
        } else if (c == '-') {
            if (i != 0 && s.entryText[i - 1] != 'e') return false;
        } else if (!digit) {
            return false;
        } else if (exponents) {
            ++exponentDigits;
        }
    }
    return points <= 1 && exponents <= 1 && exponentDigits <= 3;
}

bool UsableCalcState(const CalcState& s) {
    return s.pendingCount <= kMaxPending && UsableEntryText(s) && s.entryDigits <= 32 && s.exponentDigits <= 3;
}

void LoadMacro(Engine& e, RecordStore& store) {
    MacroRecord macro;
    if (ReadImage(store, kind::Macro, macro) == sizeof macro && UsableMacro(macro)) {
        e.macro = macro;
    } else {
        e.ResetMacro();
    }
}

void LoadCalcState(Engine& e, RecordStore& store) {
    CalcState state;
    if (ReadImage(store, kind::CalcState, state) == sizeof state && state.version == kCalcStateVersion &&
        UsableCalcState(state)) {
        e.state = state;
    } else {
        e.ResetState();  // needs the preferences loaded first: it takes the input method from them
    }
}

}  // namespace

bool LoadState(Engine& e, UserKeyMap& userKeys, RecordStore& store, const LegacyMigration& migrate) {
    e.dirty = DirtyFlags{};
    bool result = true;
    std::optional<StoreTransaction> snapshot;
    snapshot.emplace(store, StoreTransaction::Kind::Read);
    Preferences probe;
    std::size_t size = sizeof probe;
    // A store that could not be read is no first run: nothing may be migrated into it.
    if (!store.ReadRecord(kind::Preferences, &probe, size) && !store.Failed()) {
        // The migration writes, so it runs outside the read snapshot; the load then starts afresh.
        snapshot.reset();
        result = migrate && migrate(store);
        snapshot.emplace(store, StoreTransaction::Kind::Read);
    }
    LoadPreferences(e, store);
    LoadRegisters(e, store);
    LoadUserKeys(e, userKeys, store);
    LoadMacro(e, store);
    LoadCalcState(e, store);
    snapshot->Commit();
    e.history.Init(&e.Records());
    return result;
}

bool SaveState(Engine& e, const UserKeyMap& userKeys, RecordStore& store) {
    StoreTransaction transaction(store, StoreTransaction::Kind::Write);
    // Without the transaction each record would be written on its own: a save is all or nothing.
    bool saved = transaction.Started();
    if (saved && e.dirty.preferences) {
        e.prefs.words[0] = kPreferencesVersion;
        saved = store.WriteRecord(kind::Preferences, &e.prefs, sizeof e.prefs);
    }
    if (saved && e.dirty.registers) {
        e.registers.version = kRegisterBankVersion;
        saved = store.WriteRecord(kind::Registers, &e.registers, sizeof e.registers);
    }
    if (saved && e.dirty.userKeys) saved = store.WriteRecord(kind::UserKeys, &userKeys, sizeof userKeys);
    if (saved && e.dirty.macro) {
        e.macro.macroVersion = kMacroVersion;
        saved = store.WriteRecord(kind::Macro, &e.macro, sizeof e.macro);
    }
    e.state.version = kCalcStateVersion;
    saved = saved && store.WriteRecord(kind::CalcState, &e.state, sizeof e.state);
    saved = saved && transaction.Commit();
    // A save that did not reach the file keeps its flags, so the next save tries those records again.
    if (saved) e.dirty = DirtyFlags{};
    return saved;
}

}  // namespace brinto
