#include "store/legacy_import.h"

#include <array>
#include <cstring>
#include <fstream>
#include <optional>
#include <system_error>

namespace brinto {

namespace {

// The old release read each value into a fixed buffer: a shorter value is zero-filled, a longer
// one cannot be read at all (and so counts as missing).
template <std::size_t N>
std::array<u8, N> ZeroFilled(std::span<const u8> saved) {
    std::array<u8, N> buffer{};
    if (!saved.empty()) std::memcpy(buffer.data(), saved.data(), saved.size() < N ? saved.size() : N);
    return buffer;
}

template <class T, std::size_t N>
T At(const std::array<u8, N>& bytes, std::size_t offset) {
    T value;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

u16 Bits(u16 word, int first, int count) { return static_cast<u16>((word >> first) & ((1u << count) - 1)); }

// Version 3 to 4: the three 4-bit fields of C at bits 2, 6 and 10 move up by 2 where non-zero.
u16 ShiftTapFields(u16 c) {
    for (const int first : {2, 6, 10}) {
        const u16 field = Bits(c, first, 4);
        if (field == 0) continue;
        c = static_cast<u16>((c & ~(0xF << first)) | (((field + 2) & 0xF) << first));
    }
    return c;
}

std::optional<std::span<const u8>> Readable(const LegacyValues& values, int slot, std::size_t capacity) {
    const auto it = values.slots.find(slot);
    if (it == values.slots.end() || it->second.size() > capacity) return std::nullopt;
    return std::span<const u8>(it->second);
}

}  // namespace

LegacyPreferences ReadLegacyPreferences(std::span<const u8> saved) {
    const auto bytes = ZeroFilled<kLegacyPreferencesSize>(saved);
    LegacyPreferences p;
    p.version = At<u16>(bytes, 0);
    p.a = At<u16>(bytes, 2);
    p.depth = bytes[4];
    p.b = At<u16>(bytes, 12);
    p.c = At<u16>(bytes, 14);
    return p;
}

LegacyPreferences UpgradeLegacyPreferencesStep(LegacyPreferences p) {
    switch (p.version) {
        case 1:
            if (p.a & 0x2000) p.c = static_cast<u16>((p.c & 0xFFC7) | 4);
            ClearBits(p.a, 0x2000);
            p.b = static_cast<u16>((p.b & ~0x20) | 0x50);
            break;
        case 2:
            p.c = static_cast<u16>((p.c & 0xC03F) | (p.c & 0x3C) << 4 | (p.c & 0x3C) << 8);
            p.depth = 4;
            p.a |= 0x4000;
            p.b = static_cast<u16>((p.b & ~0x20) | 0x51);
            break;
        case 3:
            p.c = ShiftTapFields(p.c);
            ClearBits(p.a, 0x1000);
            break;
        case 4: break;
        case 5:
            p.c = static_cast<u16>((p.b & 0x1C00) | (p.c & 0xC003) | (p.b & 0x0E) << 1 | (p.b & 0x380) >> 1);
            p.b &= 0xE071;
            break;
        default: return p;
    }
    ++p.version;
    return p;
}

Preferences PackLegacyPreferences(const LegacyPreferences& p) {
    Preferences prefs{};
    prefs.words[0] = kPreferencesVersion;
    prefs.words[2] = static_cast<u16>(Bits(p.a, 0, 1) | Bits(p.a, 13, 1) << 1 | (p.depth & 31) << 2 |
                                      Bits(p.b, 4, 3) << 7 | Bits(p.a, 3, 6) << 10);
    prefs.words[3] = static_cast<u16>(Bits(p.b, 15, 1) | Bits(p.b, 0, 1) << 1 | Bits(p.a, 2, 1) << 3);
    prefs.words[4] = static_cast<u16>(Bits(p.a, 14, 1) | Bits(p.c, 2, 4) << 1 | Bits(p.c, 6, 4) << 6 |
                                      Bits(p.c, 10, 4) << 11);
    prefs.words[6] = Bits(p.a, 1, 1);
    return prefs;
}

Preferences ConvertLegacyPreferences(std::span<const u8> saved) {
    LegacyPreferences p = ReadLegacyPreferences(saved);
    if (saved.size() >= 2) {
        while (p.version >= 1 && p.version <= 5) p = UpgradeLegacyPreferencesStep(p);
    }
    return PackLegacyPreferences(p);
}

// Layout versions 2..4 kept the registers in another order; the rest is today's image already.
RegisterBank ConvertLegacyRegisters(std::span<const u8> saved) {
    const auto old = ZeroFilled<kLegacyRegistersSize>(saved);
    RegisterBank bank;
    std::memcpy(&bank, old.data(), sizeof bank);
    const u16 version = bank.version;
    if (version >= 2 && version <= 4) {
        std::memset(&bank, 0, sizeof bank);
        bank.financeWords[0] = At<u32>(old, 8);
        bank.financeWords[1] = At<u32>(old, 12);
        bank.cashFlowCount = At<i16>(old, 16);
        std::memcpy(bank.tags, old.data() + 952, sizeof bank.tags);
        std::memcpy(bank.aux, old.data() + 1152, sizeof bank.aux);
        std::memcpy(bank.values, old.data() + 24, 116 * sizeof(double));
        // The statistics start afresh, as the clear-statistics key leaves them: the six sums and
        // the four registers after them.
        for (int r = reg::SumX; r < reg::SumX + 10; ++r) bank.values[r] = 0.0;
    }
    bank.version = kRegisterBankVersion;
    return bank;
}

UserKeyMap ConvertLegacyUserKeys(std::span<const u8> saved) {
    if (saved.size() != sizeof(UserKeyMap)) return EmptyUserKeyMap();
    UserKeyMap keys;
    std::memcpy(&keys, saved.data(), sizeof keys);
    return keys;
}

MacroRecord ConvertLegacyMacro(std::span<const u8> saved) {
    const auto old = ZeroFilled<kLegacyMacroSize>(saved);
    MacroRecord macro{};
    macro.macroVersion = kMacroVersion;
    const u16 count = At<u16>(old, 0);
    if (saved.size() > 2 && count != 0) {
        macro.macroLength = count < kMacroSlots ? count : static_cast<u16>(kMacroSlots);
        std::memcpy(macro.macroKeys, old.data() + 4, macro.macroLength * sizeof(u32));
    }
    return macro;
}

namespace {

enum class Migration { NoPreferences, Written, WriteFailed };

Migration WriteLegacy(RecordStore& store, const LegacyValues& values) {
    const auto preferences = Readable(values, 0, kLegacyPreferencesSize);
    if (!preferences) return Migration::NoPreferences;
    const std::span<const u8> none;
    const Preferences prefs = ConvertLegacyPreferences(*preferences);
    const RegisterBank registers = ConvertLegacyRegisters(Readable(values, 1, kLegacyRegistersSize).value_or(none));
    const UserKeyMap keys = ConvertLegacyUserKeys(Readable(values, 3, kLegacyUserKeysSize).value_or(none));
    const MacroRecord macro = ConvertLegacyMacro(Readable(values, 4, kLegacyMacroSize).value_or(none));
    StoreTransaction transaction(store, StoreTransaction::Kind::Write);
    const bool written = transaction.Started() && store.WriteRecord(kind::Preferences, &prefs, sizeof prefs) &&
                         store.WriteRecord(kind::Registers, &registers, sizeof registers) &&
                         store.WriteRecord(kind::UserKeys, &keys, sizeof keys) &&
                         store.WriteRecord(kind::Macro, &macro, sizeof macro) && transaction.Commit();
    return written ? Migration::Written : Migration::WriteFailed;
}

// The whole file, or nullopt with the reason when it cannot be read or is far too large.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& file, std::string& reason) {
    // An export of the one key is a few kilobytes; a file much larger is something else, and is
    // refused before it is read rather than parsed at many times its size in memory.
    constexpr std::uintmax_t kLargest = 1 << 20;
    std::error_code ec;
    const std::uintmax_t size = std::filesystem::file_size(file, ec);
    if (ec) {
        reason = "cannot read " + file.string() + ": " + ec.message();
        return std::nullopt;
    }
    if (size > kLargest) {
        reason = file.string() + " is too large for a registry export";
        return std::nullopt;
    }
    std::ifstream in(file, std::ios::binary);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (!in || !in.read(bytes.data(), static_cast<std::streamsize>(size))) {
        reason = "cannot read " + file.string();
        return std::nullopt;
    }
    return bytes;
}

}  // namespace

bool MigrateLegacy(RecordStore& store, const LegacyValues& values) {
    return WriteLegacy(store, values) != Migration::NoPreferences;
}

LegacyImport ImportLegacyFile(RecordStore& store, const std::filesystem::path& file) {
    LegacyImport result;
    const std::optional<std::string> bytes = ReadWholeFile(file, result.reason);
    if (!bytes) return result;
    const RegistryExport parsed = ParseRegistryExport(*bytes);
    const std::string name = file.string();
    if (!parsed.values) {
        result.reason = name + ": " + parsed.error;
    } else if (!parsed.values->keyFound) {
        result.reason = name + " has no [" + std::string(kLegacyKey) + "] key";
    } else if (!parsed.values->slots.contains(0)) {
        result.reason = name + " has no \"saved_0\" value (the preferences)";
    } else if (parsed.values->slots.at(0).size() > kLegacyPreferencesSize) {
        result.reason = name + ": \"saved_0\" is longer than " + std::to_string(kLegacyPreferencesSize) + " bytes";
    } else if (WriteLegacy(store, *parsed.values) != Migration::Written) {
        result.reason = "cannot write the imported records to the database";
    } else {
        result.imported = true;
    }
    return result;
}

}  // namespace brinto
