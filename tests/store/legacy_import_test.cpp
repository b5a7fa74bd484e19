// The import of a handheld user's registry export: reading the file in its three encodings, and
// converting each saved value as the older layouts require.
#include "store/legacy_import.h"

#include <cstdio>
#include <cstring>

#include <filesystem>
#include "store_test_support.h"

namespace brinto::test {
namespace {

using Bytes = std::vector<u8>;
using Words = std::array<u16, 7>;

// A value line as the registry editors write it: 25 bytes a line, continued with a backslash.
std::string HexValue(const std::string& name, const Bytes& bytes) {
    std::string line = "\"" + name + "\"=hex:";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        char item[4];
        std::snprintf(item, sizeof item, "%02x", bytes[i]);
        line += item;
        if (i + 1 < bytes.size()) line += (i % 25 == 24) ? ",\\\r\n  " : ",";
    }
    return line + "\r\n";
}

std::string Utf16(const std::string& text) {
    std::string out = "\xFF\xFE";
    for (const char c : text) out += std::string{c, '\0'};
    return out;
}

template <class T>
void Put(Bytes& bytes, std::size_t offset, T value) {
    if (bytes.size() < offset + sizeof value) bytes.resize(offset + sizeof value);
    std::memcpy(bytes.data() + offset, &value, sizeof value);
}

const std::string kKeyLine = "[HKEY_CURRENT_USER\\Software\\ZEB\\Brinto]\r\n";
const std::string kHeadAndKey = "REGEDIT4\r\n" + kKeyLine;
const std::string kVersion5 = "Windows Registry Editor Version 5.00";

TEST(RegistryExport, NamesAndLinesFollowTheRegistrysRules) {
    const std::string file = "REGEDIT4\r\n"
                             "[hkey_current_user\\software\\zeb\\brinto]\r\n"
                             "\"SAVED_1\"=hex:01\r\n"           // names compare without case
                             "\"saved_01\"=hex:02\r\n"          // not how the program names slot 1
                             "\"unsaved_4\"=hex:03\r\n"         // never read
                             "\"saved_4\"=hex:04\r\n"
                             "\"saved_4\"=hex:05,06\r\n"        // the later value wins
                             "\"saved_3\"=hex:07\r\n"
                             "\"saved_3\"=-\r\n"                // removed again
                             "\"saved_0\"=hex(3):08\r\n"        // binary, spelled with its type
                             "\"saved_6\"=hex:01,02,\\\n   03,\\  \n\t04\n"  // continued lines
                             "[HKEY_CURRENT_USER\\Software\\ZEB\\Brinto\\Sub]\r\n"
                             "\"saved_2\"=hex:09\r\n"
                             "[-HKEY_CURRENT_USER\\Software\\ZEB\\Brinto]\r\n"
                             "\"saved_5\"=hex:0a\r\n";
    const RegistryExport parsed = ParseRegistryExport(file);
    ASSERT_TRUE(parsed.values) << parsed.error;
    const std::map<int, Bytes> expected = {{0, {8}}, {1, {1}}, {4, {5, 6}}, {6, {1, 2, 3, 4}}};
    EXPECT_EQ(parsed.values->slots, expected);
    // Garbage under other keys is not our business.
    EXPECT_TRUE(ParseRegistryExport("REGEDIT4\r\n[HKEY_LOCAL_MACHINE\\X]\r\nwhatever\r\n" + kKeyLine).values);
}

TEST(LegacyPreferences, EachUpgradeStep) {
    const std::pair<LegacyPreferences, LegacyPreferences> cases[] = {  // version, A, depth, B, C
        {{1, 0x2001, 9, 0x0020, 0x00F0}, {2, 0x0001, 9, 0x0050, 0x00C4}},  // Precedence bit set
        {{1, 0x0001, 9, 0x0001, 0x00F0}, {2, 0x0001, 9, 0x0051, 0x00F0}},
        {{2, 0x0000, 9, 0xFFFF, 0x0024}, {3, 0x4000, 4, 0xFFDF, 0x2664}},
        {{3, 0x1001, 9, 0x1234, 0xCC3F}, {4, 0x0001, 9, 0x1234, 0xD407}},
        {{4, 0x1234, 9, 0x5678, 0x9ABC}, {5, 0x1234, 9, 0x5678, 0x9ABC}},
        {{5, 0x0000, 9, 0x1CDF, 0xC0FF}, {6, 0x0000, 9, 0x0051, 0xDC5F}},
        {{6, 0x1234, 9, 0x5678, 0x9ABC}, {6, 0x1234, 9, 0x5678, 0x9ABC}},
        {{0, 0x1234, 9, 0x5678, 0x9ABC}, {0, 0x1234, 9, 0x5678, 0x9ABC}},
    };
    const auto fields = [](const LegacyPreferences& p) {
        return std::tuple{p.version, p.a, p.depth, p.b, p.c};
    };
    for (const auto& [in, out] : cases) {
        SCOPED_TRACE(::testing::Message() << "version " << in.version << ", A " << in.a);
        EXPECT_EQ(fields(UpgradeLegacyPreferencesStep(in)), fields(out));
    }
}

TEST(LegacyPreferences, ConvertedRecords) {
    Bytes six(20, 0);
    Put<u16>(six, 0, 6);
    Put<u16>(six, 2, 0x403F);  // RPN, comma radix, sticky shift, format and digits 7, quick switch
    six[4] = 12;
    Put<u16>(six, 12, 0x8031);  // long date, 100 registers, integer format 3
    Put<u16>(six, 14, 0x2548);  // tap fields 2, 5, 9
    Bytes one(160, 0);          // every upgrade step runs
    Put<u16>(one, 0, 1);
    Put<u16>(one, 2, 0x2000);
    const std::tuple<const char*, Bytes, Words> cases[] = {
        {"version 6, packed as it is", six, {7, 0, 0x1DB1, 0x000B, 0x4945, 0, 0x0001}},
        {"version 1", one, {7, 0, 0x0290, 0x0002, 0x0001, 0, 0}},
        // One byte of value 1 would read as version 1; with less than two bytes no step runs.
        {"one byte", {1}, {7, 0, 0, 0, 0, 0, 0}},
        {"no bytes", {}, {7, 0, 0, 0, 0, 0, 0}},
    };
    for (const auto& [name, saved, words] : cases) {
        SCOPED_TRACE(name);
        EXPECT_EQ(ConvertLegacyPreferences(saved).words, words);
    }
}

Bytes OldRegisters(u16 version, std::size_t size) {
    Bytes old(size, 0);
    Put<u16>(old, 0, version);
    Put<u32>(old, 8, 0x11111111);
    Put<u32>(old, 12, 0x22222222);
    Put<i16>(old, 16, 5);
    for (int i = 0; i < 116; ++i) Put<double>(old, 24 + 8 * i, i + 0.25);
    for (int i = 0; i < 100; ++i) Put<u16>(old, 952 + 2 * i, static_cast<u16>(1000 + i));
    for (int i = 0; i < 100; ++i) Put<u32>(old, 1152 + 4 * i, static_cast<u32>(3 * i));
    old.resize(size);
    return old;
}

TEST(LegacyRegisters, OldLayoutsAreRearranged) {
    for (const u16 version : {2, 3, 4}) {
        SCOPED_TRACE(version);
        const RegisterBank bank = ConvertLegacyRegisters(OldRegisters(version, 1616));
        EXPECT_EQ(bank.version, kRegisterBankVersion);
        EXPECT_EQ(bank.financeWords[0], 0x11111111u);
        EXPECT_EQ(bank.financeWords[1], 0x22222222u);
        EXPECT_EQ(bank.cashFlowCount, 5);
        EXPECT_EQ(bank.lastRegister, 0);
        EXPECT_EQ(ToNumber(bank.tags[0]), 1000);
        EXPECT_EQ(ToNumber(bank.tags[99]), 1099);
        EXPECT_EQ(bank.aux[99], 297u);
        EXPECT_EQ(bank.values[0], 0.25);
        EXPECT_EQ(bank.values[reg::Margin], 109.25);
        // The statistics start afresh; the date group was never saved in these layouts.
        for (int r = reg::SumX; r < kRegisterCount; ++r) EXPECT_EQ(bank.values[r], 0.0) << r;
    }
    // A short old record is zero-filled first.
    const RegisterBank shortBank = ConvertLegacyRegisters(OldRegisters(3, 960));
    EXPECT_EQ(shortBank.values[100], 100.25);
    EXPECT_EQ(shortBank.values[115], 0.0);
    EXPECT_EQ(ToNumber(shortBank.tags[0]), 1000);  // old offset 952..959 still inside
    EXPECT_EQ(ToNumber(shortBank.tags[4]), 0);

    // Other versions are taken as they are: the values stay where today's layout has them.
    const RegisterBank asIs = ConvertLegacyRegisters(OldRegisters(5, 1616));
    EXPECT_EQ(asIs.version, kRegisterBankVersion);
    EXPECT_EQ(asIs.values[0], 75.25);
}

// Whole values are converted in the import below; these are the ones cut short or overlong.
TEST(LegacyUserKeysAndMacro, PartialValues) {
    for (const FunctionId k : ConvertLegacyUserKeys(Bytes(95, 0)).keys) EXPECT_EQ(k, kNoKey);
    Bytes tooMany(256, 0);
    Put<u16>(tooMany, 0, 100);
    const std::tuple<const char*, Bytes, u16> cases[] = {
        {"count only", {3, 0}, 0},
        {"empty count", {0, 0, 5, 0}, 0},
        {"more than fit", tooMany, 63},
    };
    for (const auto& [name, saved, length] : cases) {
        SCOPED_TRACE(name);
        const MacroRecord macro = ConvertLegacyMacro(saved);
        EXPECT_EQ(macro.macroVersion, kMacroVersion);
        EXPECT_EQ(macro.macroLength, length);
    }
}

// An export whose values all carry over, after `head` (its first line); other keys, strings and
// comments lie around them.
std::string LegacyFile(const std::string& head) {
    Bytes prefs(14, 0);
    Put<u16>(prefs, 0, 6);
    Put<u16>(prefs, 2, 0x0001);  // RPN
    prefs[4] = 8;
    Bytes registers(1616, 0);  // 65 lines, continued
    Put<u16>(registers, 0, 7);
    Put<double>(registers, 624 + 8 * 12, 3.5);
    Bytes keys(96, 0xFF);
    Put<u32>(keys, 0, 61);
    return head + "\r\n[HKEY_CURRENT_USER\\Software\\Other]\r\n" + HexValue("saved_0", {1, 2}) + "\r\n" +
           kKeyLine + HexValue("saved_0", prefs) + "\"Name\"=\"text\"\r\n; a comment\r\n@=\"default\"\r\n" +
           HexValue("saved_1", registers) + HexValue("saved_3", keys) +
           HexValue("saved_4", {2, 0, 0, 0, 7, 0, 0, 0, 21, 0, 0, 0});
}

// An export is imported whole or not at all, and says why not in one line. (When a first run
// reads it is the session's business.)
TEST(LegacyImport, AnExportBecomesTheRecordsOrNothingAtAll) {
    TempFolder folder;
    const std::tuple<const char*, std::string, std::string> cases[] = {  // reason "": imported
        {"REGEDIT4 in 8-bit text", LegacyFile("REGEDIT4\r\n"), ""},
        {"UTF-16 with byte-order mark", Utf16(LegacyFile(kVersion5 + "\r\n")), ""},
        {"UTF-8 with byte-order mark", LegacyFile("\xEF\xBB\xBF" + kVersion5 + "\r\n"), ""},
        {"UTF-8, Unix lines", LegacyFile(kVersion5 + "\n"), ""},
        {"empty", "", "not a registry export"},
        {"another header", "REGEDIT5\r\n" + kKeyLine, "not a registry export"},
        {"text file", "hello\n", "not a registry export"},
        {"odd UTF-16", Utf16("REGEDIT4\r\n") + "x", "UTF-16"},
        {"no key", "REGEDIT4\r\n", "has no [HKEY_CURRENT_USER\\Software\\ZEB\\Brinto] key"},
        {"no saved_0", kHeadAndKey + HexValue("saved_1", {7, 0}), "has no \"saved_0\""},
        {"saved_0 too long", kHeadAndKey + HexValue("saved_0", Bytes(161, 0)), "longer than 160"},
        {"bad hex", kHeadAndKey + HexValue("saved_1", {7, 0}) + "\"saved_0\"=hex:01,zz\r\n", "line 4"},
        {"three digits", kHeadAndKey + "\"saved_0\"=hex:06\r\n\"saved_1\"=hex:100\r\n", "saved_1"},
        {"cut short", kHeadAndKey + "\"saved_1\"=hex:01,02,\\\r\n", "saved_1"},
        {"a string value", kHeadAndKey + "\"saved_0\"=\"06\"\r\n", "not binary data"},
        {"a number value", kHeadAndKey + "\"saved_0\"=dword:00000006\r\n", "not binary data"},
        {"garbage in the key", kHeadAndKey + "saved_0=hex:06\r\n", "line 3"},
        {"unclosed name", kHeadAndKey + "\"saved_0=hex:06\r\n", "line 3"},
        {"larger than any export", LegacyFile("REGEDIT4\r\n") + std::string((1 << 20) + 1, ';'), "too large"},
    };
    for (const auto& [name, file, reason] : cases) {
        SCOPED_TRACE(name);
        WriteFile(folder / "Brinto.reg", file);
        RecordStore store;
        ASSERT_EQ(store.Open(std::string(RecordStore::kInMemory)), OpenResult::Opened);
        const LegacyImport outcome = ImportLegacyFile(store, folder / "Brinto.reg");
        EXPECT_EQ(outcome.imported, reason.empty());
        EXPECT_NE(outcome.reason.find(reason), std::string::npos) << outcome.reason;
        EXPECT_EQ(outcome.reason.find('\n'), std::string::npos);
        EXPECT_EQ(outcome.reason.empty(), reason.empty());
        const auto& images = ReadFileRecords(store).images;  // the old release kept no CalcState
        EXPECT_EQ(std::count_if(images.begin(), images.end(), [](const auto& i) { return i.has_value(); }),
                  reason.empty() ? 4 : 0);
        Engine e;
        UserKeyMap keys = EmptyUserKeyMap();
        EXPECT_EQ(LoadState(e, keys, store), reason.empty());
        if (!reason.empty()) continue;
        EXPECT_FALSE(e.dirty.preferences || e.dirty.registers || e.dirty.userKeys || e.dirty.macro);
        EXPECT_EQ(e.prefs.Method(), InputMethod::Rpn);
        EXPECT_EQ(e.prefs.StackDepth(), 8);
        EXPECT_EQ(e.registers.values[12], 3.5);
        EXPECT_EQ(keys.keys[0], fid::Square);
        EXPECT_EQ(keys.keys[1], FunctionIdFrom(0xFFFFFFFF));
        EXPECT_EQ(e.macro.macroLength, 2);
        EXPECT_EQ(e.macro.macroKeys[1], fid::Enter);
    }
}

}  // namespace
}  // namespace brinto::test
