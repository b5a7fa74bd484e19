// The record store on a real file: where each kind goes, how records are found, what a read
// delivers, and that everything survives closing and reopening.
#include "store/record_store.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include "store_test_support.h"

namespace brinto {
namespace {

using test::Sql;
using test::TempFolder;


std::string ReadText(RecordStore& store, u32 recordKind, std::size_t capacity, u16 index = 0) {
    std::string buffer(capacity, '\0');
    std::size_t size = capacity;
    if (!store.ReadRecord(recordKind, buffer.data(), size, index)) return "<none>";
    buffer.resize(size);
    return buffer;
}

TEST(RecordStore, HeaderIsStoredByteForByte) {
    TempFolder folder;
    const auto path = folder / "b.db";
    {
        RecordStore store;
        ASSERT_EQ(store.Open(path), OpenResult::Opened);
        ASSERT_TRUE(store.WriteRecord(7, "abc", 3, 12));
        ASSERT_TRUE(store.WriteRecord(9, "x", 1, u"Ab"));
    }
    // size 80, format 1, reserved 0, kind, index, then the UTF-16 name and zeros to 80 bytes.
    const std::string expected7 = "500001000000000007000000" "0C00" + std::string(132, '0');
    EXPECT_EQ(Sql(path, "SELECT hex(header) FROM BrintoState WHERE CAST(payload AS TEXT) = 'abc'"), expected7);
    const std::string expected9 = "500001000000000009000000" "FFFF" "41006200" + std::string(124, '0');
    EXPECT_EQ(Sql(path, "SELECT hex(header) FROM BrintoState WHERE CAST(payload AS TEXT) = 'x'"), expected9);
}

TEST(RecordStore, KindOneGoesToTheConfigurationTableEverythingElseToTheState) {
    TempFolder folder;
    const auto path = folder / "b.db";
    {
        RecordStore store;
        ASSERT_EQ(store.Open(path), OpenResult::Opened);
        for (u32 k : {1u, 2u, 3u, 0u, 100000u}) ASSERT_TRUE(store.WriteRecord(k, "p", 1));
    }
    EXPECT_EQ(Sql(path, "SELECT count(*) FROM BrintoConfig"), "1");
    EXPECT_EQ(Sql(path, "SELECT hex(substr(header, 9, 4)) FROM BrintoConfig"), "01000000");
    EXPECT_EQ(Sql(path, "SELECT count(*) FROM BrintoState"), "4");
}

TEST(RecordStore, FindingMatchesKindIndexAndNameExactly) {
    TempFolder folder;
    RecordStore store;
    ASSERT_EQ(store.Open(folder / "b.db"), OpenResult::Opened);
    ASSERT_TRUE(store.WriteRecord(2, "index0", 6));
    ASSERT_TRUE(store.WriteRecord(2, "index1", 6, 1));
    ASSERT_TRUE(store.WriteRecord(2, "named", 5, u"Name"));
    ASSERT_TRUE(store.WriteRecord(3, "kind3", 5));

    struct Case {
        const char* name;
        u32 kind;
        u16 index;
        std::u16string_view recordName;
        bool byName;
        std::string expected;
    };
    const Case cases[] = {
        {"index 0", 2, 0, u"", false, "index0"},
        {"index 1", 2, 1, u"", false, "index1"},
        {"no index 2", 2, 2, u"", false, "<none>"},
        {"other kind", 3, 0, u"", false, "kind3"},
        {"missing kind", 4, 0, u"", false, "<none>"},
        {"by name", 2, 0, u"Name", true, "named"},
        {"name is case-sensitive", 2, 0, u"name", true, "<none>"},
        {"a prefix is not the name", 2, 0, u"Nam", true, "<none>"},
        // The named record has index 65535 but a name: an unnamed search never finds it.
        {"named record needs its name", 2, kNamedIndex, u"", false, "<none>"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::string buffer(16, '\0');
        std::size_t size = buffer.size();
        const bool found = c.byName ? store.ReadRecord(c.kind, buffer.data(), size, c.recordName)
                                    : store.ReadRecord(c.kind, buffer.data(), size, c.index);
        EXPECT_EQ(found, c.expected != "<none>");
        buffer.resize(size);
        EXPECT_EQ(found ? buffer : "<none>", c.expected);
    }
}

TEST(RecordStore, FirstMatchInInsertionOrderWins) {
    TempFolder folder;
    const auto path = folder / "b.db";
    {
        RecordStore store;
        ASSERT_EQ(store.Open(path), OpenResult::Opened);
        ASSERT_TRUE(store.WriteRecord(3, "first", 5));
    }
    // A second record with the same key, as another writer might have left: the older one counts,
    // and a write replaces the older one too.
    const std::string header = "X'500001000000000003000000" + std::string(136, '0') + "'";
    Sql(path, "INSERT INTO BrintoState(header, payload) VALUES(" + header + ", X'7365636F6E64')");
    RecordStore store;
    ASSERT_EQ(store.Open(path), OpenResult::Opened);
    EXPECT_EQ(ReadText(store, 3, 16), "first");
    ASSERT_TRUE(store.WriteRecord(3, "third", 5));
    EXPECT_EQ(ReadText(store, 3, 16), "third");
    EXPECT_EQ(store.CountRecords(), 2);
    store.Close();
    EXPECT_EQ(Sql(path, "SELECT group_concat(CAST(payload AS TEXT), ',') FROM BrintoState ORDER BY id"),
              "third,second");
}

TEST(RecordStore, ReadDeliversAtMostTheBufferAndReportsTheCount) {
    TempFolder folder;
    RecordStore store;
    ASSERT_EQ(store.Open(folder / "b.db"), OpenResult::Opened);
    ASSERT_TRUE(store.WriteRecord(4, "0123456789", 10));
    ASSERT_TRUE(store.WriteRecord(5, "", 0));
    EXPECT_EQ(ReadText(store, 4, 4), "0123");
    EXPECT_EQ(ReadText(store, 4, 64), "0123456789");
    EXPECT_EQ(ReadText(store, 5, 8), "");  // found, empty

    char untouched[4] = {'z', 'z', 'z', 'z'};
    std::size_t size = sizeof untouched;
    EXPECT_FALSE(store.ReadRecord(6, untouched, size));
    EXPECT_EQ(size, 0u);
    EXPECT_EQ(std::string(untouched, 4), "zzzz");
}

TEST(RecordStore, WriteReplacesInPlaceAndNeverAddsASecondRecord) {
    TempFolder folder;
    RecordStore store;
    ASSERT_EQ(store.Open(folder / "b.db"), OpenResult::Opened);
    for (int i = 0; i < 5; ++i) ASSERT_TRUE(store.WriteRecord(2, "abcdef", 6 - i));
    EXPECT_EQ(ReadText(store, 2, 16), "ab");
    EXPECT_EQ(store.CountRecords(), 1);
}

TEST(RecordStore, NamesLongerThanTheHeaderHoldsAreRefused) {
    TempFolder folder;
    RecordStore store;
    ASSERT_EQ(store.Open(folder / "b.db"), OpenResult::Opened);
    const std::u16string fits(kMaxRecordName, u'n');
    const std::u16string tooLong(kMaxRecordName + 1, u'n');
    EXPECT_TRUE(store.WriteRecord(2, "a", 1, fits));
    EXPECT_FALSE(store.WriteRecord(2, "b", 1, tooLong));
    char buffer[4];
    std::size_t size = sizeof buffer;
    EXPECT_TRUE(store.ReadRecord(2, buffer, size, fits));
    size = sizeof buffer;
    EXPECT_FALSE(store.ReadRecord(2, buffer, size, tooLong));
    EXPECT_EQ(store.CountRecords(), 1);
}

TEST(RecordStore, RecordsSurviveClosingAndReopening) {
    TempFolder folder;
    const auto path = folder / "b.db";
    std::array<unsigned char, 1616> big{};
    for (std::size_t i = 0; i < big.size(); ++i) big[i] = static_cast<unsigned char>(i * 7);
    {
        RecordStore store;
        ASSERT_EQ(store.Open(path), OpenResult::Opened);
        ASSERT_TRUE(store.WriteRecord(1, "prefs", 5));
        ASSERT_TRUE(store.WriteRecord(3, big.data(), big.size()));
    }
    RecordStore store;
    ASSERT_EQ(store.Open(path), OpenResult::Opened);
    EXPECT_EQ(ReadText(store, 1, 14), "prefs");
    std::array<unsigned char, 1616> back{};
    std::size_t size = back.size();
    ASSERT_TRUE(store.ReadRecord(3, back.data(), size));
    EXPECT_EQ(size, big.size());
    EXPECT_EQ(back, big);
}

TEST(RecordStore, AClosedStoreFindsNothingAndWritesNothing) {
    RecordStore store;
    char buffer[4];
    std::size_t size = sizeof buffer;
    EXPECT_FALSE(store.ReadRecord(1, buffer, size));
    EXPECT_EQ(size, 0u);
    EXPECT_FALSE(store.WriteRecord(1, "a", 1));
    StoreTransaction transaction(store, StoreTransaction::Kind::Write);
    EXPECT_FALSE(transaction.Started());
}

TEST(RecordStore, AMissingFolderMakesTheStoreUnavailable) {
    TempFolder folder;
    RecordStore store;
    EXPECT_EQ(store.Open(folder / "no-such-folder" / "b.db"), OpenResult::Unavailable);
    EXPECT_FALSE(store.IsOpen());
    EXPECT_FALSE(store.LastError().empty());
}

TEST(RecordStore, CreatingLeavesNoTemporaryFilesBehind) {
    TempFolder folder;
    {
        RecordStore store;
        ASSERT_EQ(store.Open(folder / "b.db"), OpenResult::Opened);
    }
    EXPECT_EQ(folder.Entries(), std::vector<std::string>{"b.db"});
}

TEST(RecordStore, AnUncommittedTransactionLeavesNoTrace) {
    TempFolder folder;
    RecordStore store;
    ASSERT_EQ(store.Open(folder / "b.db"), OpenResult::Opened);
    ASSERT_TRUE(store.WriteRecord(2, "old", 3));
    {
        StoreTransaction outer(store, StoreTransaction::Kind::Write);
        ASSERT_TRUE(outer.Started());
        ASSERT_TRUE(store.WriteRecord(2, "new", 3));
        ASSERT_TRUE(store.WriteRecord(3, "added", 5));
    }
    EXPECT_EQ(ReadText(store, 2, 8), "old");
    EXPECT_EQ(ReadText(store, 3, 8), "<none>");
}

TEST(RecordStore, AnInnerTransactionThatGivesUpSpoilsTheOuterOne) {
    TempFolder folder;
    RecordStore store;
    ASSERT_EQ(store.Open(folder / "b.db"), OpenResult::Opened);
    StoreTransaction outer(store, StoreTransaction::Kind::Write);
    ASSERT_TRUE(store.WriteRecord(2, "kept?", 5));
    {
        StoreTransaction inner(store, StoreTransaction::Kind::Write);
        ASSERT_TRUE(inner.Started());
    }
    EXPECT_FALSE(outer.Commit());
    EXPECT_EQ(ReadText(store, 2, 8), "<none>");
}

TEST(RecordStore, InMemoryStoreWorksWithoutAFile) {
    RecordStore store;
    ASSERT_EQ(store.Open(std::string(RecordStore::kInMemory)), OpenResult::Opened);
    ASSERT_TRUE(store.WriteRecord(1, "mem", 3));
    EXPECT_EQ(ReadText(store, 1, 8), "mem");
    EXPECT_FALSE(std::filesystem::exists(std::string(RecordStore::kInMemory)));
}

}  // namespace
}  // namespace brinto
