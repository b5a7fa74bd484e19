#include "store/state_io.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace brinto {

namespace {

// The records in load order, which is also the order of FileRecords::images.
constexpr u32 kKinds[FileRecords::kCount] = {kind::Preferences, kind::Registers, kind::UserKeys, kind::Macro,
                                             kind::CalcState};
enum Slot { kPreferences, kRegisters, kUserKeys, kMacro, kCalcState };
constexpr std::size_t kLargestRecord = sizeof(RegisterBank);

using Image = std::optional<std::vector<std::byte>>;

// Copies a stored record into a zeroed T, as a read with a buffer of T's size would: bytes the
// file does not hold stay zero. Answers how many bytes that read would deliver.
template <class T>
std::size_t ReadImage(const Image& stored, T& image) {
    image = T{};
    if (!stored) return 0;
    const std::size_t size = std::min(stored->size(), sizeof(T));
    if (size > 0) std::memcpy(&image, stored->data(), size);
    return size;
}

template <class T>
bool SameBytes(const Image& stored, const T& record) {
    return stored && stored->size() == sizeof(T) && std::memcmp(stored->data(), &record, sizeof(T)) == 0;
}

template <class T>
Image ImageOf(const T& record) {
    const auto* bytes = reinterpret_cast<const std::byte*>(&record);
    return std::vector<std::byte>(bytes, bytes + sizeof(T));
}

void LoadPreferences(Engine& e, const Image& stored) {
    Preferences prefs;
    ReadImage(stored, prefs);
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

void LoadRegisters(Engine& e, const Image& stored) {
    RegisterBank registers;
    ReadImage(stored, registers);  // a short record is zero-filled and accepted
    if (registers.version == kRegisterBankVersion) {
        e.registers = registers;
    } else {
        e.ResetRegisters();
    }
}

void LoadUserKeys(Engine& e, UserKeyMap& userKeys, const Image& stored) {
    UserKeyMap keys;
    if (ReadImage(stored, keys) == sizeof keys) {
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
    // The engine counts the exponent's digits to stop at three: the count must be the text's.
    return points <= 1 && exponents <= 1 && exponentDigits <= 3 && exponentDigits == s.exponentDigits;
}

bool UsableCalcState(const CalcState& s) {
    return s.pendingCount <= kMaxPending && UsableEntryText(s) && s.entryDigits <= 32 && s.exponentDigits <= 3;
}

void LoadMacro(Engine& e, const Image& stored) {
    MacroRecord macro;
    if (ReadImage(stored, macro) == sizeof macro && UsableMacro(macro)) {
        e.macro = macro;
    } else {
        e.ResetMacro();
    }
}

void LoadCalcState(Engine& e, const Image& stored) {
    CalcState state;
    if (ReadImage(stored, state) == sizeof state && state.version == kCalcStateVersion &&
        UsableCalcState(state)) {
        e.state = state;
    } else {
        e.ResetState();  // needs the preferences loaded first: it takes the input method from them
    }
}

// The engine's records with the version words a save gives them.
void StampVersions(Engine& e) {
    e.prefs.words[0] = kPreferencesVersion;
    e.registers.version = kRegisterBankVersion;
    e.macro.macroVersion = kMacroVersion;
    e.state.version = kCalcStateVersion;
}

void StampVersion(Engine& e, int slot) {
    switch (slot) {
        case kPreferences: e.prefs.words[0] = kPreferencesVersion; break;
        case kRegisters: e.registers.version = kRegisterBankVersion; break;
        case kMacro: e.macro.macroVersion = kMacroVersion; break;
        case kCalcState: e.state.version = kCalcStateVersion; break;
        default: break;
    }
}

// Whether the engine's record in `slot` is byte for byte what `stored` holds.
bool Same(const Engine& e, const UserKeyMap& userKeys, int slot, const Image& stored) {
    switch (slot) {
        case kPreferences: return SameBytes(stored, e.prefs);
        case kRegisters: return SameBytes(stored, e.registers);
        case kUserKeys: return SameBytes(stored, userKeys);
        case kMacro: return SameBytes(stored, e.macro);
        default: return SameBytes(stored, e.state);
    }
}

bool WriteSlot(Engine& e, const UserKeyMap& userKeys, int slot, RecordStore& store) {
    switch (slot) {
        case kPreferences: return store.WriteRecord(kind::Preferences, &e.prefs, sizeof e.prefs);
        case kRegisters: return store.WriteRecord(kind::Registers, &e.registers, sizeof e.registers);
        case kUserKeys: return store.WriteRecord(kind::UserKeys, &userKeys, sizeof userKeys);
        case kMacro: return store.WriteRecord(kind::Macro, &e.macro, sizeof e.macro);
        default: return store.WriteRecord(kind::CalcState, &e.state, sizeof e.state);
    }
}

Image EngineImage(const Engine& e, const UserKeyMap& userKeys, int slot) {
    switch (slot) {
        case kPreferences: return ImageOf(e.prefs);
        case kRegisters: return ImageOf(e.registers);
        case kUserKeys: return ImageOf(userKeys);
        case kMacro: return ImageOf(e.macro);
        default: return ImageOf(e.state);
    }
}

}  // namespace

FileRecords ReadFileRecords(RecordStore& store) {
    FileRecords file;
    StoreTransaction snapshot(store, StoreTransaction::Kind::Read);
    file.dataVersion = store.DataVersion();
    for (int slot = 0; slot < FileRecords::kCount; ++slot) {
        std::vector<std::byte> bytes(kLargestRecord + 1);
        std::size_t size = bytes.size();
        if (store.ReadRecord(kKinds[slot], bytes.data(), size)) {
            bytes.resize(size);
            file.images[slot] = std::move(bytes);
        }
    }
    snapshot.Commit();
    return file;
}

bool LoadState(Engine& e, UserKeyMap& userKeys, RecordStore& store, const LegacyMigration& migrate,
               FileRecords* fileOut) {
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
    const FileRecords file = ReadFileRecords(store);
    snapshot->Commit();
    LoadPreferences(e, file.images[kPreferences]);
    LoadRegisters(e, file.images[kRegisters]);
    LoadUserKeys(e, userKeys, file.images[kUserKeys]);
    LoadMacro(e, file.images[kMacro]);
    LoadCalcState(e, file.images[kCalcState]);
    e.history.Init(&e.Records());
    if (fileOut) *fileOut = file;
    return result;
}

bool SaveState(Engine& e, const UserKeyMap& userKeys, RecordStore& store, FileRecords* file) {
    StoreTransaction transaction(store, StoreTransaction::Kind::Write);
    // Without the transaction each record would be written on its own: a save is all or nothing.
    bool saved = transaction.Started();
    // With the file's records to compare with, every record carries today's version, and one that
    // did not is then written; without them, only the records written get it.
    if (file) StampVersions(e);
    const bool changed[FileRecords::kCount] = {e.dirty.preferences, e.dirty.registers, e.dirty.userKeys,
                                               e.dirty.macro, true};
    bool written[FileRecords::kCount] = {};
    for (int slot = 0; saved && slot < FileRecords::kCount; ++slot) {
        written[slot] = file ? !Same(e, userKeys, slot, file->images[slot]) : changed[slot];
        if (written[slot] && !file) StampVersion(e, slot);
        if (written[slot]) saved = WriteSlot(e, userKeys, slot, store);
    }
    saved = saved && transaction.Commit();
    // A save that did not reach the file keeps its flags, so the next save tries those records again.
    if (!saved) return false;
    e.dirty = DirtyFlags{};
    if (file) {
        for (int slot = 0; slot < FileRecords::kCount; ++slot) {
            if (written[slot]) file->images[slot] = EngineImage(e, userKeys, slot);
        }
    }
    return true;
}

bool DiffersFromFile(Engine& e, const UserKeyMap& userKeys, const FileRecords& file) {
    StampVersions(e);
    for (int slot = 0; slot < FileRecords::kCount; ++slot) {
        if (!Same(e, userKeys, slot, file.images[slot])) return true;
    }
    return false;
}

FileRecords ImagesOf(Engine& e, const UserKeyMap& userKeys) {
    StampVersions(e);
    FileRecords images;
    for (int slot = 0; slot < FileRecords::kCount; ++slot) images.images[slot] = EngineImage(e, userKeys, slot);
    return images;
}

PickedUp PickUp(Engine& e, UserKeyMap& userKeys, FileRecords& file, const FileRecords& base,
                const FileRecords& now) {
    StampVersions(e);
    bool take[FileRecords::kCount] = {};
    for (int slot = 0; slot < FileRecords::kCount; ++slot) {
        take[slot] = now.images[slot] != file.images[slot] && Same(e, userKeys, slot, base.images[slot]);
    }
    // In load order: a CalcState that must be repaired takes the input method from the preferences.
    if (take[kPreferences]) LoadPreferences(e, now.images[kPreferences]);
    if (take[kRegisters]) LoadRegisters(e, now.images[kRegisters]);
    if (take[kUserKeys]) LoadUserKeys(e, userKeys, now.images[kUserKeys]);
    if (take[kMacro]) LoadMacro(e, now.images[kMacro]);
    if (take[kCalcState]) LoadCalcState(e, now.images[kCalcState]);
    file = now;
    return {take[kPreferences], take[kRegisters] || take[kMacro] || take[kCalcState], take[kUserKeys]};
}

}  // namespace brinto
