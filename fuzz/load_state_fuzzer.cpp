// Whatever a damaged or hostile database holds: records of every kind, of any size and any bytes,
// are put in an in-memory store and loaded. The loaded calculator must then hold the engine's
// invariants and take keys, and saving and loading it again must give the same records (the
// repairs of the first load are complete). The seeds load values no calculation should produce
// (NaN, infinities, huge and denormal numbers, dates beyond the range, damaged cash-flow lists and
// amortization ranges) under every kind of tag and press every key of every family on them.
#include <cstdint>
#include <cstring>
#include <iterator>
#include <memory>
#include <vector>

#include "calculator/assembly.h"
#include "display/display_text.h"
#include "engine/engine.h"
#include "engine_invariants.h"
#include "fuzz_check.h"
#include "fuzz_input.h"
#include "store/record_store.h"
#include "store/state_io.h"

namespace {

using namespace brinto;

// The records a store file can hold; kind 0 and kinds above 5 are no record the calculator reads,
// but a file may hold them all the same.
void FillStore(brinto::fuzz::ByteReader& in, RecordStore& store) {
    const int records = 1 + in.U8() % 8;
    for (int r = 0; r < records && !in.Done(); ++r) {
        const std::uint8_t head = in.U8();
        const u32 kind = head % 8;
        const u16 index = (head & 0x80) ? in.U8() : 0;
        const std::size_t wanted = in.U16() % 2048;
        const std::size_t size = wanted < in.Remaining() ? wanted : in.Remaining();
        std::vector<std::uint8_t> payload(size);
        for (std::uint8_t& b : payload) b = in.U8();
        store.WriteRecord(kind, payload.data(), payload.size(), index);
    }
}

bool SameCalculator(const Engine& a, const UserKeyMap& aKeys, const Engine& b, const UserKeyMap& bKeys) {
    return std::memcmp(&a.Records(), &b.Records(), sizeof(EngineRecords)) == 0 && a.prefs.words == b.prefs.words &&
           std::memcmp(&aKeys, &bKeys, sizeof aKeys) == 0;
}

// Keys that read every part of the loaded state: the stack, the pending operators, the registers
// and the macro, and undo of what they did.
constexpr FunctionId kProbeKeys[] = {fid::Digit1,     fid::Enter,     fid::Add,        fid::Equals,
                                     fid::CloseParen, fid::RollDown,  fid::RollUp,     fid::Recall,
                                     fid::Digit7,     fid::MacroPlay, fid::MacroPause, fid::MacroPlay,
                                     fid::MacroStop,  fid::Backspace, fid::LastX,      fid::Amortize,
                                     fid::SigmaPlus,  fid::Npv,       fid::Irr};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brinto::fuzz::ByteReader in(data, size);
    RecordStore store;
    if (store.Open(std::string(RecordStore::kInMemory)) != OpenResult::Opened) return 0;
    FillStore(in, store);

    auto engine = std::make_unique<Engine>(CalculatorFamilies());
    UserKeyMap userKeys = EmptyUserKeyMap();
    LoadState(*engine, userKeys, store);
    brinto::fuzz::CheckEngineInvariants(*engine);
    for (int level = 0; level < kStackLevels; ++level) (void)DisplayLevel(*engine, level);

    // Saved and loaded again, the repaired calculator comes back as it was.
    SaveState(*engine, userKeys, store);
    auto again = std::make_unique<Engine>(CalculatorFamilies());
    UserKeyMap againKeys = EmptyUserKeyMap();
    LoadState(*again, againKeys, store);
    FUZZ_CHECK(SameCalculator(*engine, userKeys, *again, againKeys), "a saved and reloaded state differs");

    // The bytes after the records are keys, one id each; without any, the probe keys.
    std::vector<FunctionId> keys(std::begin(kProbeKeys), std::end(kProbeKeys));
    if (!in.Done()) keys.clear();
    while (!in.Done()) keys.push_back(FunctionIdFrom(in.U8()));
    for (const FunctionId id : keys) {
        const bool ownKey = engine->state.pendingArgument == kNoPendingArgument;  // no register prefix takes it
        const bool accepted = engine->Dispatch(id);
        brinto::fuzz::CheckEngineInvariants(*engine);
        brinto::fuzz::CheckKeyResult(*engine, id, accepted && ownKey);
    }
    engine->history.Undo(engine->Records(), false);
    brinto::fuzz::CheckEngineInvariants(*engine);
    return 0;
}
