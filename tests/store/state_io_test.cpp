// Loading and saving the calculator: every repair of a missing, short or outdated record, the
// stack-depth clamp, the changed flags, and what reaches the file.
#include "store/state_io.h"

#include <cstring>
#include <vector>

#include "engine/function_ids.h"
#include "store_test_support.h"

namespace brinto::test {
namespace {

constexpr u32 kKinds[] = {kind::Preferences, kind::Registers, kind::UserKeys, kind::Macro, kind::CalcState};

// One record kind's image in the engine, and its changed flag.
struct RecordRef {
    u8* bytes;
    std::size_t size;
    bool& dirty;
};

RecordRef Ref(Engine& e, UserKeyMap& keys, u32 recordKind) {
    const auto ref = [](auto& record, bool& dirty) {
        return RecordRef{reinterpret_cast<u8*>(&record), sizeof record, dirty};
    };
    switch (recordKind) {
        case kind::Preferences: return ref(e.prefs, e.dirty.preferences);
        case kind::Registers: return ref(e.registers, e.dirty.registers);
        case kind::UserKeys: return ref(keys, e.dirty.userKeys);
        case kind::Macro: return ref(e.macro, e.dirty.macro);
        default: return ref(e.state, e.dirty.state);
    }
}

// Every record of `e` and `keys` made to differ from the defaults.
void FillRecords(Engine& e, UserKeyMap& keys) {
    e.prefs.SetMethod(InputMethod::Precedence);
    e.prefs.SetStackDepth(16);
    e.prefs.SetCommaRadix(true);
    for (int r = 0; r < kRegisterCount; ++r) e.registers.values[r] = 1.0 / (r + 1);
    e.macro.macroLength = 5;
    for (u32 i = 0; i < 5; ++i) e.macro.macroKeys[i] = FunctionIdFrom(40 + i);  // any keys
    e.SetX(6.25);
    e.state.lastX = -2.0;
    keys = EmptyUserKeyMap();
    keys.keys[3] = fid::Add;
    keys.keys[23] = fid::SquareRoot;
}

class StateIoTest : public StoreFileTest {
protected:
    bool Load() { return LoadState(e, keys, store); }

    Engine e;
    UserKeyMap keys{};
};

// A first run starts on defaults with every record marked changed; a save writes the records
// marked changed, and the state whether marked or not; every record comes back as it was saved.
TEST_F(StateIoTest, FirstRunStartsOnDefaultsAndSavesWriteWhatChanged) {
    e.prefs.SetMethod(InputMethod::Rpn);  // whatever the engine held before is replaced
    e.registers.values[3] = 42.0;
    EXPECT_FALSE(Load());
    Engine fresh;
    UserKeyMap freshKeys = EmptyUserKeyMap();
    for (const u32 k : kKinds) {
        SCOPED_TRACE(k);
        const RecordRef got = Ref(e, keys, k);
        EXPECT_EQ(std::memcmp(got.bytes, Ref(fresh, freshKeys, k).bytes, got.size), 0);
        EXPECT_TRUE(got.dirty);
    }
    ASSERT_TRUE(SaveState(e, keys, store));
    EXPECT_EQ(RecordCount(path), "5");
    e.prefs.SetTheme(3);          // changed without its flag: stays out of the file
    e.registers.values[0] = 9.0;  // changed with its flag
    e.dirty.registers = true;
    e.SetX(77.0);                 // the state is written flagged or not
    ASSERT_TRUE(SaveState(e, keys, store));
    EXPECT_FALSE(e.dirty.registers || e.dirty.state);
    Engine loaded;
    UserKeyMap loadedKeys{};
    LoadState(loaded, loadedKeys, store);
    EXPECT_EQ(std::tuple(loaded.prefs.Theme(), loaded.registers.values[0], loaded.X()), std::tuple(0, 9.0, 77.0));

    // Every record comes back as saved; whatever version words the engine held, the save writes
    // the current ones.
    FillRecords(e, keys);
    e.prefs.words[0] = 1;
    e.registers.version = 2;
    e.macro.macroVersion = 9;
    e.state.version = 3;
    ASSERT_TRUE(SaveAll(e, keys, store));
    store.Close();
    ASSERT_EQ(store.Open(path), OpenResult::Opened);
    EXPECT_TRUE(LoadState(loaded, loadedKeys, store));
    for (const u32 k : kKinds) {
        SCOPED_TRACE(k);
        const RecordRef got = Ref(loaded, loadedKeys, k);
        EXPECT_EQ(std::memcmp(got.bytes, Ref(e, keys, k).bytes, got.size), 0);
        EXPECT_FALSE(got.dirty);
    }
    EXPECT_EQ(loaded.macro.macroVersion, kMacroVersion);
}

// A record is taken as stored (zero-filled when short) or replaced by what a first run gets and
// marked changed, so the repair reaches the file at the next save.
TEST_F(StateIoTest, EachRecordIsKeptOrRepairedByItsLengthAndVersion) {
    Engine source;
    UserKeyMap sourceKeys{};
    FillRecords(source, sourceKeys);
    Engine firstRun;
    UserKeyMap firstRunKeys{};
    LoadState(firstRun, firstRunKeys, store);
    const std::tuple<const char*, u32, std::size_t, u16, bool> cases[] = {  // version 0: the record's own
        {"preferences", kind::Preferences, 14, 0, true},
        {"preferences of 12 bytes", kind::Preferences, 12, 0, true},
        {"preferences of version 6", kind::Preferences, 14, 6, false},
        {"registers", kind::Registers, 1616, 0, true},
        {"registers of 1600 bytes", kind::Registers, 1600, 0, true},
        {"registers longer than the record", kind::Registers, 2000, 0, true},
        {"registers of only the version word", kind::Registers, 2, 0, true},
        {"registers of version 6", kind::Registers, 1616, 6, false},
        {"user keys", kind::UserKeys, 96, 0, true},
        {"user keys longer than the map", kind::UserKeys, 120, 0, true},
        {"user keys of 95 bytes", kind::UserKeys, 95, 0, false},
        {"user keys of no bytes", kind::UserKeys, 0, 0, false},
        {"macro of any version", kind::Macro, 256, 1, true},
        {"macro of 255 bytes", kind::Macro, 255, 0, false},
        {"state", kind::CalcState, 576, 0, true},
        {"state of 575 bytes", kind::CalcState, 575, 0, false},
        {"state of version 6", kind::CalcState, 576, 6, false},
    };
    for (const auto& [name, recordKind, size, version, kept] : cases) {
        SCOPED_TRACE(name);
        const RecordRef from = Ref(source, sourceKeys, recordKind);
        std::vector<u8> planted(size, 0xA5);
        std::copy_n(from.bytes, std::min(size, from.size), planted.begin());
        if (version != 0) std::memcpy(planted.data(), &version, sizeof version);
        RecordStore one;
        ASSERT_EQ(one.Open(std::string(RecordStore::kInMemory)), OpenResult::Opened);
        ASSERT_TRUE(one.WriteRecord(recordKind, planted.data(), planted.size()));

        Engine loaded;
        UserKeyMap loadedKeys{};
        EXPECT_EQ(LoadState(loaded, loadedKeys, one), recordKind == kind::Preferences);  // else a first run
        const RecordRef got = Ref(loaded, loadedKeys, recordKind);
        std::vector<u8> expected(Ref(firstRun, firstRunKeys, recordKind).bytes,
                                 Ref(firstRun, firstRunKeys, recordKind).bytes + got.size);
        if (kept) {
            std::fill(expected.begin(), expected.end(), 0);
            std::copy_n(planted.begin(), std::min(size, got.size), expected.begin());
        }
        EXPECT_TRUE(std::equal(expected.begin(), expected.end(), got.bytes));
        EXPECT_EQ(got.dirty, !kept);
    }
}

// A state or macro of the right size and version can still hold counts no save writes (a damaged
// or foreign file). The engine indexes with them, so such a record is reset as a short one is.
TEST_F(StateIoTest, RecordsWithImpossibleCountsOrEntryTextAreReset) {
    using Damage = void (*)(CalcState&);
    const std::tuple<const char*, Damage, bool> cases[] = {
        {"as saved", [](CalcState&) {}, true},
        {"forty pending", [](CalcState& s) { s.pendingCount = kMaxPending; }, true},
        {"forty-one pending", [](CalcState& s) { s.pendingCount = kMaxPending + 1; }, false},
        {"all ones pending", [](CalcState& s) { s.pendingCount = 0xFFFF; }, false},
        {"typing a number",
         [](CalcState& s) {
             std::strcpy(s.entryText, "-12.5e-3");
             s.exponentDigits = 1;
             s.status |= status::Entry | status::Exponent;
         },
         true},
        {"exponent digits miscounted",
         [](CalcState& s) {
             std::strcpy(s.entryText, "-12.5e-3");
             s.status |= status::Entry | status::Exponent;
         },
         false},
        {"hexadecimal text", [](CalcState& s) { std::strcpy(s.entryText, "-FF0A"); }, true},
        {"unterminated text", [](CalcState& s) { std::memset(s.entryText, '1', sizeof s.entryText); }, false},
        {"foreign character", [](CalcState& s) { std::strcpy(s.entryText, "12x"); }, false},
        {"two points", [](CalcState& s) { std::strcpy(s.entryText, "1.2.3"); }, false},
        {"four exponent digits", [](CalcState& s) { std::strcpy(s.entryText, "1e1234"); }, false},
        {"sign in the middle", [](CalcState& s) { std::strcpy(s.entryText, "12-3"); }, false},
        {"too many digits counted", [](CalcState& s) { s.entryDigits = 200; }, false},
        {"too many exponent digits counted", [](CalcState& s) { s.exponentDigits = 4; }, false},
    };
    for (const auto& [name, damage, kept] : cases) {
        SCOPED_TRACE(name);
        Engine source;
        source.SetX(7.0);
        source.state.status |= status::LiftEnabled;
        damage(source.state);
        ASSERT_TRUE(store.WriteRecord(kind::CalcState, &source.state, sizeof source.state));
        Engine loaded;
        LoadState(loaded, keys, store);
        EXPECT_EQ(loaded.X(), kept ? 7.0 : 0.0);
        EXPECT_EQ(loaded.dirty.state, !kept);
        // The loaded calculator takes keys that read the pending operators and the entry.
        const FunctionId typed[] = {fid::Digit1, fid::Add, fid::Digit2, fid::Equals, fid::CloseParen};
        for (const FunctionId key : typed) loaded.Dispatch(key);
        EXPECT_LE(loaded.state.pendingCount, kMaxPending);
    }
    for (const u16 length : {u16{kMacroSlots}, u16{kMacroSlots + 1}, u16{0xFFFF}}) {
        SCOPED_TRACE(length);
        MacroRecord macro{};
        macro.macroVersion = kMacroVersion;
        macro.macroLength = length;
        for (FunctionId& key : macro.macroKeys) key = fid::Digit1;
        ASSERT_TRUE(store.WriteRecord(kind::Macro, &macro, sizeof macro));
        Engine loaded;
        LoadState(loaded, keys, store);
        EXPECT_EQ(loaded.macro.macroLength, length <= kMacroSlots ? length : 0);
        EXPECT_EQ(loaded.dirty.macro, length > kMacroSlots);
        loaded.Dispatch(fid::MacroPlay);  // playback reads every stored key
    }
}

TEST_F(StateIoTest, StackDepthOutsideFourToTwentyIsClamped) {
    const std::pair<int, int> cases[] = {{0, 4},   {3, 4},   {4, 4},   {5, 5},
                                         {20, 20}, {21, 20}, {24, 20}, {31, 20}};
    for (const auto& [stored, loaded] : cases) {
        SCOPED_TRACE(stored);
        Preferences prefs = DefaultPreferences();
        prefs.SetMethod(InputMethod::Rpn);
        prefs.SetFormat(NumberFormat::Fixed);
        prefs.SetStackDepth(stored);
        ASSERT_TRUE(store.WriteRecord(kind::Preferences, &prefs, sizeof prefs));
        EXPECT_TRUE(Load());
        EXPECT_EQ(e.prefs.StackDepth(), loaded);
        EXPECT_EQ(e.dirty.preferences, loaded != stored);
        EXPECT_EQ(e.prefs.words[2] & ~0x7C, prefs.words[2] & ~0x7C);  // the clamp touches the depth only
        // No state was saved: the fresh one takes its input method from the loaded preferences.
        EXPECT_TRUE(e.IsRpn());
        EXPECT_EQ(e.state.macroSavedMethod, fid::MethodRpn);
    }
}

TEST_F(StateIoTest, UndoHistoryStartsAfreshFromTheLoadedRecords) {
    Engine source;
    source.SetX(5.0);
    ASSERT_TRUE(SaveAll(source, keys, store));
    e.Dispatch(fid::Digit1);
    e.Dispatch(fid::Enter);
    ASSERT_TRUE(e.history.CanUndo());
    Load();
    EXPECT_FALSE(e.history.CanUndo() || e.history.CanRedo());
    e.Dispatch(fid::ClearX);
    ASSERT_TRUE(e.history.Undo(e.Records(), false));
    EXPECT_EQ(e.X(), 5.0);  // back to the loaded state, not to the engine's old one
}

// A record another program saved is taken over only where this program kept it as it was when it
// last looked; one changed here meanwhile (its save failed, say) is kept, and the next save writes it.
TEST_F(StateIoTest, TakingOverKeepsWhatThisProgramChangedSinceItLastLooked) {
    FileRecords file = ImagesOf(e, keys);
    const FileRecords base = file;
    Engine other;
    other.registers.values[0] = 7.0;
    other.SetX(8.0);
    const FileRecords now = ImagesOf(other, keys);
    e.registers.values[1] = 3.0;
    const PickedUp picked = PickUp(e, keys, file, base, now);
    EXPECT_EQ(e.X(), 8.0);
    EXPECT_EQ(e.registers.values[0], 0.0);
    EXPECT_EQ(e.registers.values[1], 3.0);
    EXPECT_TRUE(picked.engineRecords && !picked.preferences && !picked.userKeys);
    EXPECT_EQ(file.images, now.images);
}

}  // namespace
}  // namespace brinto::test
