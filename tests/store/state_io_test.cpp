// Loading and saving the calculator: every repair of a missing, short or outdated record, the
// stack-depth clamp, the changed flags, and what reaches the file.
#include "store/state_io.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "engine/function_ids.h"
#include "store_test_support.h"

namespace brinto {
namespace {

using test::Sql;
using test::TempFolder;

// A store on a fresh file in a temporary folder, with helpers to plant raw records.
class StateIoTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(store.Open(path), OpenResult::Opened); }

    template <class T>
    void Plant(u32 recordKind, const T& record, std::size_t size = sizeof(T)) {
        std::vector<unsigned char> bytes(size, 0);
        if (size > 0) std::memcpy(bytes.data(), &record, size < sizeof(T) ? size : sizeof(T));
        ASSERT_TRUE(store.WriteRecord(recordKind, bytes.data(), bytes.size()));
    }
    void PlantDefaults() {
        Engine fresh;
        UserKeyMap keys = EmptyUserKeyMap();
        fresh.dirty = {true, true, true, true, true};
        ASSERT_TRUE(SaveState(fresh, keys, store));
    }
    bool Load() { return LoadState(e, keys, store); }

    TempFolder folder;
    std::filesystem::path path = folder / "brinto.db";
    RecordStore store;
    Engine e;
    UserKeyMap keys{};
};

bool SameBytes(const auto& a, const auto& b) {
    static_assert(sizeof a == sizeof b);
    return std::memcmp(&a, &b, sizeof a) == 0;
}

TEST_F(StateIoTest, FirstRunStartsOnDefaultsAndTheSaveLeavesFiveRecords) {
    e.prefs.SetMethod(InputMethod::Rpn);  // whatever the engine held before is replaced
    e.registers.values[3] = 42.0;
    EXPECT_FALSE(Load());
    Engine fresh;
    EXPECT_TRUE(SameBytes(e.prefs, DefaultPreferences()));
    EXPECT_TRUE(SameBytes(e.registers, fresh.registers));
    EXPECT_TRUE(SameBytes(e.macro, fresh.macro));
    EXPECT_TRUE(SameBytes(e.state, fresh.state));
    EXPECT_TRUE(SameBytes(keys, EmptyUserKeyMap()));
    EXPECT_TRUE(e.dirty.preferences && e.dirty.registers && e.dirty.userKeys && e.dirty.macro);

    EXPECT_EQ(store.CountRecords(), 0);
    ASSERT_TRUE(SaveState(e, keys, store));
    EXPECT_EQ(store.CountRecords(), 5);
    // The order of the writes shows in the order of the rows: registers, keys, macro, state.
    EXPECT_EQ(Sql(path, "SELECT group_concat(hex(substr(header, 9, 1)), ',') FROM (SELECT header FROM "
                        "BrintoState ORDER BY id)"),
              "03,05,04,02");

    Engine again;
    UserKeyMap againKeys{};
    EXPECT_TRUE(LoadState(again, againKeys, store));
    EXPECT_FALSE(again.dirty.preferences || again.dirty.registers || again.dirty.userKeys ||
                 again.dirty.macro || again.dirty.state);
}

TEST_F(StateIoTest, StackDepthOutsideFourToTwentyIsClamped) {
    struct Case {
        int stored;
        int loaded;
    };
    const Case cases[] = {{0, 4}, {3, 4}, {4, 4}, {5, 5}, {8, 8}, {20, 20}, {21, 20}, {24, 20}, {31, 20}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.stored);
        Preferences prefs = DefaultPreferences();
        prefs.SetMethod(InputMethod::Rpn);
        prefs.SetFormat(NumberFormat::Fixed);
        prefs.SetStackDepth(c.stored);
        Plant(kind::Preferences, prefs);
        EXPECT_TRUE(Load());
        EXPECT_EQ(e.prefs.StackDepth(), c.loaded);
        EXPECT_EQ(e.dirty.preferences, c.loaded != c.stored);
        // The clamp touches the depth field only.
        EXPECT_EQ(e.prefs.words[2] & ~0x7C, prefs.words[2] & ~0x7C);
    }
}

TEST_F(StateIoTest, PreferencesOfAnotherVersionBecomeTheDefaults) {
    Preferences prefs = DefaultPreferences();
    prefs.SetMethod(InputMethod::Rpn);
    prefs.words[0] = 6;
    Plant(kind::Preferences, prefs);
    EXPECT_TRUE(Load());  // a record existed: not a first run
    EXPECT_TRUE(SameBytes(e.prefs, DefaultPreferences()));
    EXPECT_TRUE(e.dirty.preferences);
}

TEST_F(StateIoTest, AShortPreferencesRecordIsZeroFilled) {
    Preferences prefs = DefaultPreferences();
    prefs.SetCommaRadix(true);    // word 6: beyond the 12 bytes stored
    prefs.SetStackDepth(12);
    Plant(kind::Preferences, prefs, 12);
    EXPECT_TRUE(Load());
    EXPECT_EQ(e.prefs.StackDepth(), 12);
    EXPECT_FALSE(e.prefs.CommaRadix());
    EXPECT_FALSE(e.dirty.preferences);
}

TEST_F(StateIoTest, RegisterRecordsByLengthAndVersion) {
    Engine source;
    for (int r = 0; r < kRegisterCount; ++r) source.registers.values[r] = r + 0.5;
    source.registers.tags[7] = 1419;
    struct Case {
        const char* name;
        u16 version;
        std::size_t size;
        bool kept;
    };
    const Case cases[] = {
        {"whole", 7, 1616, true},
        {"1600 bytes: padded with zeros", 7, 1600, true},
        {"longer than the record", 7, 2000, true},
        {"version 6", 6, 1616, false},
        {"only the version word", 7, 2, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        RegisterBank bank = source.registers;
        bank.version = c.version;
        Plant(kind::Registers, bank, c.size);
        e.registers.values[5] = -1.0;
        Load();
        EXPECT_EQ(e.dirty.registers, !c.kept);
        if (!c.kept) {
            EXPECT_TRUE(SameBytes(e.registers, Engine().registers));  // the engine's own reset
            continue;
        }
        const std::size_t kept = c.size < sizeof bank ? c.size : sizeof bank;
        RegisterBank expected{};
        std::memcpy(&expected, &bank, kept);
        EXPECT_TRUE(SameBytes(e.registers, expected));
    }
    // The 1600-byte record lost exactly the last two registers.
    Plant(kind::Registers, source.registers, 1600);
    Load();
    EXPECT_EQ(e.registers.values[121], 121.5);
    EXPECT_EQ(e.registers.values[122], 0.0);
    EXPECT_EQ(e.registers.values[123], 0.0);
}

TEST_F(StateIoTest, UserKeyMapMustBeWhole) {
    UserKeyMap map;
    for (u32 i = 0; i < 24; ++i) map.keys[i] = 100 + i;
    struct Case {
        std::size_t size;
        bool kept;
    };
    // A longer record delivers only the 96 bytes asked for, so it counts as whole.
    for (const Case c : {Case{96, true}, Case{95, false}, Case{0, false}, Case{120, true}}) {
        SCOPED_TRACE(c.size);
        Plant(kind::UserKeys, map, c.size);
        Load();
        EXPECT_TRUE(SameBytes(keys, c.kept ? map : EmptyUserKeyMap()));
        EXPECT_EQ(e.dirty.userKeys, !c.kept);
    }
}

TEST_F(StateIoTest, MacroMustBeWholeButItsVersionIsNotChecked) {
    MacroRecord macro{};
    macro.macroVersion = 1;
    macro.macroLength = 3;
    macro.macroKeys[0] = fid::Digit0 + 4;
    struct Case {
        std::size_t size;
        bool kept;
    };
    for (const Case c : {Case{256, true}, Case{255, false}, Case{4, false}}) {
        SCOPED_TRACE(c.size);
        Plant(kind::Macro, macro, c.size);
        Load();
        EXPECT_EQ(e.dirty.macro, !c.kept);
        EXPECT_EQ(e.macro.macroLength, c.kept ? 3 : 0);
        EXPECT_EQ(e.macro.macroVersion, c.kept ? 1 : kMacroVersion);
    }
}

TEST_F(StateIoTest, CalcStateMustBeWholeAndOfVersionSeven) {
    Engine source;
    source.SetX(123.0);
    struct Case {
        const char* name;
        u16 version;
        std::size_t size;
        bool kept;
    };
    const Case cases[] = {
        {"whole", 7, 576, true},
        {"short", 7, 575, false},
        {"version 6", 6, 576, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        CalcState state = source.state;
        state.version = c.version;
        Plant(kind::CalcState, state, c.size);
        Load();
        EXPECT_EQ(e.X(), c.kept ? 123.0 : 0.0);
        EXPECT_EQ(e.state.version, kCalcStateVersion);
    }
}

TEST_F(StateIoTest, AResetStateTakesTheInputMethodOfTheLoadedPreferences) {
    Preferences prefs = DefaultPreferences();
    prefs.SetMethod(InputMethod::Rpn);
    Plant(kind::Preferences, prefs);
    Load();  // no CalcState record: the full reset runs after the preferences are in
    EXPECT_TRUE(e.IsRpn());
    EXPECT_EQ(e.state.macroSavedMethod, fid::MethodRpn);
}

TEST_F(StateIoTest, EveryRecordRoundTripsThroughTheFile) {
    Engine source;
    UserKeyMap sourceKeys = EmptyUserKeyMap();
    source.prefs.SetMethod(InputMethod::Precedence);
    source.prefs.SetStackDepth(16);
    source.prefs.SetTap(TapArea::Right, TapTarget::Statistical);
    source.prefs.SetTheme(5);
    for (int r = 0; r < kRegisterCount; ++r) source.registers.values[r] = 1.0 / (r + 1);
    source.registers.cashFlowCount = 4;
    source.registers.aux[3] = 9;
    source.macro.macroLength = 5;
    for (int i = 0; i < 5; ++i) source.macro.macroKeys[i] = 40 + i;
    source.SetX(6.25);
    source.state.lastX = -2.0;
    std::strcpy(source.state.entryText, "12.5");
    sourceKeys.keys[3] = fid::Add;
    sourceKeys.keys[20] = fid::SquareRoot;
    source.dirty = {true, true, true, true, true};
    ASSERT_TRUE(SaveState(source, sourceKeys, store));
    store.Close();

    RecordStore reopened;
    ASSERT_EQ(reopened.Open(path), OpenResult::Opened);
    EXPECT_TRUE(LoadState(e, keys, reopened));
    EXPECT_TRUE(SameBytes(e.prefs, source.prefs));
    EXPECT_TRUE(SameBytes(e.registers, source.registers));
    EXPECT_TRUE(SameBytes(e.macro, source.macro));
    EXPECT_TRUE(SameBytes(e.state, source.state));
    EXPECT_TRUE(SameBytes(keys, sourceKeys));
}

TEST_F(StateIoTest, SaveWritesOnlyChangedRecordsButAlwaysTheState) {
    PlantDefaults();
    Load();
    e.prefs.SetTheme(3);          // changed without its flag: stays out of the file
    e.registers.values[0] = 9.0;  // changed with its flag
    e.dirty.registers = true;
    e.SetX(77.0);                 // CalcState has no flag to set
    ASSERT_TRUE(SaveState(e, keys, store));
    EXPECT_FALSE(e.dirty.registers || e.dirty.state);

    Engine loaded;
    UserKeyMap loadedKeys{};
    LoadState(loaded, loadedKeys, store);
    EXPECT_EQ(loaded.prefs.Theme(), 0);
    EXPECT_EQ(loaded.registers.values[0], 9.0);
    EXPECT_EQ(loaded.X(), 77.0);
}

TEST_F(StateIoTest, SaveStampsTheVersionWords) {
    e.dirty = {true, true, true, true, true};
    e.prefs.words[0] = 1;
    e.registers.version = 2;
    e.macro.macroVersion = 9;
    e.state.version = 3;
    ASSERT_TRUE(SaveState(e, keys, store));
    Engine loaded;
    UserKeyMap loadedKeys{};
    LoadState(loaded, loadedKeys, store);
    EXPECT_FALSE(loaded.dirty.preferences || loaded.dirty.registers || loaded.dirty.macro);
    EXPECT_EQ(loaded.macro.macroVersion, kMacroVersion);
}

TEST_F(StateIoTest, AFailedSaveStillClearsTheFlags) {
    store.Close();
    e.dirty = {true, true, true, true, true};
    EXPECT_FALSE(SaveState(e, keys, store));
    EXPECT_FALSE(e.dirty.preferences || e.dirty.registers || e.dirty.userKeys || e.dirty.macro || e.dirty.state);
}

TEST_F(StateIoTest, UndoHistoryStartsAfreshFromTheLoadedRecords) {
    Engine source;
    source.SetX(5.0);
    source.dirty = {true, true, true, true, true};
    UserKeyMap sourceKeys = EmptyUserKeyMap();
    SaveState(source, sourceKeys, store);

    e.Dispatch(fid::Digit0 + 1);
    e.Dispatch(fid::Enter);
    ASSERT_TRUE(e.history.CanUndo());
    Load();
    EXPECT_FALSE(e.history.CanUndo());
    EXPECT_FALSE(e.history.CanRedo());
    e.Dispatch(fid::ClearX);
    ASSERT_TRUE(e.history.Undo(e.Records(), false));
    EXPECT_EQ(e.X(), 5.0);  // undo goes back to the loaded state, not to the engine's old one
}

TEST_F(StateIoTest, MigrationRunsOnlyWhenThereAreNoPreferences) {
    int calls = 0;
    const LegacyMigration migrate = [&](RecordStore& into) {
        ++calls;
        Preferences prefs = DefaultPreferences();
        prefs.SetTheme(8);
        return into.WriteRecord(kind::Preferences, &prefs, sizeof prefs);
    };
    EXPECT_TRUE(LoadState(e, keys, store, migrate));
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(e.prefs.Theme(), 8);  // read again after the migration
    EXPECT_FALSE(e.dirty.preferences);
    EXPECT_TRUE(LoadState(e, keys, store, migrate));
    EXPECT_EQ(calls, 1);

    const LegacyMigration nothing = [](RecordStore&) { return false; };
    TempFolder other;
    RecordStore empty;
    ASSERT_EQ(empty.Open(other / "b.db"), OpenResult::Opened);
    EXPECT_FALSE(LoadState(e, keys, empty, nothing));
}

}  // namespace
}  // namespace brinto
