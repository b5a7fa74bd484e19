#pragma once
// Bringing a user's calculator over from the registry-based handheld release. Its values
// "saved_0" (preferences, layout versions 1..6), "saved_1" (registers), "saved_3" (user keys) and
// "saved_4" (macro) become records of kinds 1, 3, 5 and 4. The conversions are pure functions of
// the saved bytes; MigrateLegacy writes their results.
#include <filesystem>
#include <span>
#include <string>

#include "engine/macro_record.h"
#include "engine/preferences.h"
#include "engine/register_bank.h"
#include "engine/user_key_map.h"
#include "store/record_store.h"
#include "store/registry_export.h"

namespace brinto {

// Sizes of the buffers the old release read its values into; a longer value cannot be read.
inline constexpr std::size_t kLegacyPreferencesSize = 160;
inline constexpr std::size_t kLegacyRegistersSize = 1616;
inline constexpr std::size_t kLegacyUserKeysSize = 96;
inline constexpr std::size_t kLegacyMacroSize = 256;

// The fields of the old preferences value that carry over.
struct LegacyPreferences {
    u16 version = 0;
    u16 a = 0;      // offset 2
    u8 depth = 0;   // offset 4: the stack depth
    u16 b = 0;      // offset 12
    u16 c = 0;      // offset 14
};

LegacyPreferences ReadLegacyPreferences(std::span<const u8> saved);
// One upgrade step, from `p.version` to the next version (1..5); other versions are returned as
// they are.
LegacyPreferences UpgradeLegacyPreferencesStep(LegacyPreferences p);
// The version-6 fields packed into today's record. Words not named stay 0.
Preferences PackLegacyPreferences(const LegacyPreferences& p);
// All of it: read, upgrade to version 6 when at least the version word was saved, pack.
Preferences ConvertLegacyPreferences(std::span<const u8> saved);

RegisterBank ConvertLegacyRegisters(std::span<const u8> saved);
UserKeyMap ConvertLegacyUserKeys(std::span<const u8> saved);
MacroRecord ConvertLegacyMacro(std::span<const u8> saved);

// Writes the converted records (kinds 1, 3, 5, 4) in one transaction. Nothing is migrated unless
// the preferences value can be read; the answer says whether it could.
bool MigrateLegacy(RecordStore& store, const LegacyValues& values);

struct LegacyImport {
    bool imported = false;
    std::string reason;  // when nothing was imported: why, in one line
};

// Reads an export file and migrates it into `store`. A file that cannot be read or parsed, that
// lacks the calculator's key or its preferences value, imports nothing.
LegacyImport ImportLegacyFile(RecordStore& store, const std::filesystem::path& file);

}  // namespace brinto
