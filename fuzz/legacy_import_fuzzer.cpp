// A registry export from the handheld release, as a user hands it over: any bytes. It is parsed,
// migrated into an in-memory store and loaded; the loaded calculator must hold the engine's
// invariants. The conversions of the single values get the raw bytes too.
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "calculator/assembly.h"
#include "engine/engine.h"
#include "engine_invariants.h"
#include "fuzz_check.h"
#include "store/legacy_import.h"
#include "store/record_store.h"
#include "store/registry_export.h"
#include "store/state_io.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brinto;
    const std::span<const u8> bytes(data, size);
    (void)ConvertLegacyPreferences(bytes);
    (void)ConvertLegacyRegisters(bytes);
    (void)ConvertLegacyUserKeys(bytes);
    (void)ConvertLegacyMacro(bytes);

    const RegistryExport parsed = ParseRegistryExport(std::string_view(reinterpret_cast<const char*>(data), size));
    FUZZ_CHECK(parsed.values.has_value() || !parsed.error.empty(), "a refused export without a reason");
    if (!parsed.values) return 0;

    RecordStore store;
    if (store.Open(std::string(RecordStore::kInMemory)) != OpenResult::Opened) return 0;
    const bool migrated = MigrateLegacy(store, *parsed.values);
    FUZZ_CHECK(!migrated || parsed.values->slots.count(0), "migrated without a preferences value");

    auto engine = std::make_unique<Engine>(CalculatorFamilies());
    UserKeyMap userKeys = EmptyUserKeyMap();
    LoadState(*engine, userKeys, store);
    brinto::fuzz::CheckEngineInvariants(*engine);
    constexpr FunctionId kProbeKeys[] = {fid::Digit1,   fid::Enter,     fid::Digit2,    fid::Add,
                                         fid::RollDown, fid::MacroPlay, fid::MacroStop, fid::Recall,
                                         fid::Digit9,   fid::Backspace};
    for (const FunctionId id : kProbeKeys) {
        engine->Dispatch(id);
        brinto::fuzz::CheckEngineInvariants(*engine);
    }
    return 0;
}
