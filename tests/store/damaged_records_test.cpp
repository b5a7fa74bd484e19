// Records of the right size and version whose contents no save could have written (a damaged or
// foreign file): counts that run past their arrays, or a number being typed that is no number.
// The engine indexes with these counts, so such a record is replaced by its defaults on load, as
// a record of the wrong size is; a record the calculator could have saved is kept as it is.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

#include "engine/function_ids.h"
#include "store/record_header.h"
#include "store/record_store.h"
#include "store/state_io.h"

namespace brinto {
namespace {

class DamagedRecordsTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(store.Open(std::string(RecordStore::kInMemory)), OpenResult::Opened); }

    // A state the calculator could have saved: 7 in X, lift enabled.
    static CalcState SavedState() {
        auto source = std::make_unique<Engine>();
        source->SetX(7.0);
        source->state.status |= status::LiftEnabled;
        return source->state;
    }
    void Load() {
        e = std::make_unique<Engine>();
        UserKeyMap keys = EmptyUserKeyMap();
        LoadState(*e, keys, store);
    }

    RecordStore store;
    std::unique_ptr<Engine> e;
};

TEST_F(DamagedRecordsTest, CalcStateWithImpossibleCountsOrEntryTextIsReset) {
    struct Case {
        const char* name;
        void (*damage)(CalcState&);
        bool kept;
    };
    const Case cases[] = {
        {"asSaved", [](CalcState&) {}, true},
        {"fortyPending", [](CalcState& s) { s.pendingCount = kMaxPending; }, true},
        {"fortyOnePending", [](CalcState& s) { s.pendingCount = kMaxPending + 1; }, false},
        {"allOnesPending", [](CalcState& s) { s.pendingCount = 0xFFFF; }, false},
        {"typingANumber", [](CalcState& s) { std::strcpy(s.entryText, "-12.5e-3"); s.status |= status::Entry; }, true},
        {"hexadecimalText", [](CalcState& s) { std::strcpy(s.entryText, "-FF0A"); }, true},
        {"unterminatedText", [](CalcState& s) { std::memset(s.entryText, '1', sizeof s.entryText); }, false},
        {"foreignCharacter", [](CalcState& s) { std::strcpy(s.entryText, "12x"); }, false},
        {"twoPoints", [](CalcState& s) { std::strcpy(s.entryText, "1.2.3"); }, false},
        {"fourExponentDigits", [](CalcState& s) { std::strcpy(s.entryText, "1e1234"); }, false},
        {"signInTheMiddle", [](CalcState& s) { std::strcpy(s.entryText, "12-3"); }, false},
        {"tooManyDigitsCounted", [](CalcState& s) { s.entryDigits = 200; }, false},
        {"tooManyExponentDigitsCounted", [](CalcState& s) { s.exponentDigits = 4; }, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        CalcState state = SavedState();
        c.damage(state);
        ASSERT_TRUE(store.WriteRecord(kind::CalcState, &state, sizeof state));
        Load();
        EXPECT_EQ(e->X(), c.kept ? 7.0 : 0.0);
        EXPECT_EQ(e->dirty.state, !c.kept);
        EXPECT_LE(e->state.pendingCount, kMaxPending);
        // The loaded calculator takes keys that read the pending operators and the entry.
        for (const FunctionId id : {fid::Digit0 + 1, fid::Add, fid::Digit0 + 2, fid::Equals, fid::CloseParen}) {
            e->Dispatch(id);
        }
        EXPECT_LE(e->state.pendingCount, kMaxPending);
    }
}

TEST_F(DamagedRecordsTest, MacroLongerThanItsSlotsIsReset) {
    for (const u16 length : {u16{kMacroSlots}, u16{kMacroSlots + 1}, u16{0xFFFF}}) {
        SCOPED_TRACE(length);
        MacroRecord macro{};
        macro.macroVersion = kMacroVersion;
        macro.macroLength = length;
        for (u32& key : macro.macroKeys) key = fid::Digit0 + 1;
        ASSERT_TRUE(store.WriteRecord(kind::Macro, &macro, sizeof macro));
        Load();
        const bool kept = length <= kMacroSlots;
        EXPECT_EQ(e->macro.macroLength, kept ? length : 0);
        EXPECT_EQ(e->dirty.macro, !kept);
        e->Dispatch(fid::MacroPlay);  // playback reads every stored key
    }
}

}  // namespace
}  // namespace brinto
