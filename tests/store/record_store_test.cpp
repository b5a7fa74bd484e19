// The record store on a real file: the rows and headers it writes, how records are found, what a
// read delivers, and what an unfinished transaction leaves behind.
#include "store/record_store.h"

#include "store_test_support.h"

namespace brinto::test {
namespace {

class RecordStoreTest : public StoreFileTest {
protected:
    // The payload found by kind and index, or by name when one is given; "<none>" when none is.
    std::string Read(u32 recordKind, u16 index = 0, std::u16string_view name = {}, std::size_t size = 16) {
        std::string buffer(size, '\0');
        const bool found = name.empty() ? store.ReadRecord(recordKind, buffer.data(), size, index)
                                        : store.ReadRecord(recordKind, buffer.data(), size, name);
        buffer.resize(size);
        return found ? buffer : "<none>";
    }
};

TEST_F(RecordStoreTest, RowsAndHeadersOnDisk) {
    ASSERT_TRUE(store.WriteRecord(7, "abc", 3, 12));
    ASSERT_TRUE(store.WriteRecord(9, "x", 1, u"Ab"));
    for (u32 k : {1u, 2u, 0u}) ASSERT_TRUE(store.WriteRecord(k, "p", 1));
    store.Close();
    EXPECT_EQ(folder.Entries(), std::vector<std::string>{"brinto.db"});  // nothing temporary left behind
    // size 80, format 1, reserved 0, kind, index, then the UTF-16 name and zeros to 80 bytes.
    EXPECT_EQ(Sql(path, "SELECT hex(header) FROM BrintoState WHERE CAST(payload AS TEXT) = 'abc'"),
              "500001000000000007000000" "0C00" + std::string(132, '0'));
    EXPECT_EQ(Sql(path, "SELECT hex(header) FROM BrintoState WHERE CAST(payload AS TEXT) = 'x'"),
              "500001000000000009000000" "FFFF" "41006200" + std::string(124, '0'));
    // Kind 1 alone goes to the configuration table.
    EXPECT_EQ(Sql(path, "SELECT count(*) || ',' || hex(substr(header, 9, 4)) FROM BrintoConfig"),
              "1,01000000");
    EXPECT_EQ(Sql(path, "SELECT count(*) FROM BrintoState"), "4");
}

TEST_F(RecordStoreTest, FindingMatchesKindIndexAndNameExactly) {
    const std::u16string longest(kMaxRecordName, u'n');
    ASSERT_TRUE(store.WriteRecord(2, "index0", 6));
    ASSERT_TRUE(store.WriteRecord(2, "index1", 6, 1));
    ASSERT_TRUE(store.WriteRecord(2, "named", 5, u"Name"));
    ASSERT_TRUE(store.WriteRecord(2, "longest", 7, longest));
    ASSERT_TRUE(store.WriteRecord(3, "kind3", 5));
    EXPECT_FALSE(store.WriteRecord(2, "b", 1, longest + u'n'));  // more than the header holds
    EXPECT_EQ(Read(2), "index0");
    EXPECT_EQ(Read(2, 1), "index1");
    EXPECT_EQ(Read(2, 2), "<none>");
    EXPECT_EQ(Read(3), "kind3");
    EXPECT_EQ(Read(4), "<none>");
    EXPECT_EQ(Read(2, 0, u"Name"), "named");
    EXPECT_EQ(Read(2, 0, u"name"), "<none>");  // names are case-sensitive
    EXPECT_EQ(Read(2, 0, u"Nam"), "<none>");
    EXPECT_EQ(Read(2, 0, longest), "longest");
    EXPECT_EQ(Read(2, 0, longest + u'n'), "<none>");
    // A named record has index 65535 but a name: an unnamed search never finds it.
    EXPECT_EQ(Read(2, kNamedIndex), "<none>");
}

TEST_F(RecordStoreTest, ReadsDeliverAtMostTheBufferAndWritesReplace) {
    for (const std::size_t size : {12u, 11u, 10u}) ASSERT_TRUE(store.WriteRecord(4, "0123456789xy", size));
    ASSERT_TRUE(store.WriteRecord(5, "", 0));
    EXPECT_EQ(RecordCount(path), "2");
    EXPECT_EQ(Read(4, 0, {}, 4), "0123");
    EXPECT_EQ(Read(4, 0, {}, 64), "0123456789");
    EXPECT_EQ(Read(5), "");  // found, empty

    char untouched[4] = {'z', 'z', 'z', 'z'};
    std::size_t size = sizeof untouched;
    EXPECT_FALSE(store.ReadRecord(6, untouched, size));
    EXPECT_EQ(size, 0u);
    EXPECT_EQ(std::string(untouched, 4), "zzzz");
}

TEST_F(RecordStoreTest, FirstMatchInInsertionOrderWins) {
    ASSERT_TRUE(store.WriteRecord(3, "first", 5));
    store.Close();
    // A second record with the same key, as another writer might have left: the older one counts,
    // and a write replaces the older one too.
    const std::string header = "X'500001000000000003000000" + std::string(136, '0') + "'";
    Sql(path, "INSERT INTO BrintoState(header, payload) VALUES(" + header + ", X'7365636F6E64')");
    ASSERT_EQ(store.Open(path), OpenResult::Opened);
    EXPECT_EQ(Read(3), "first");
    ASSERT_TRUE(store.WriteRecord(3, "third", 5));
    EXPECT_EQ(Read(3), "third");
    store.Close();
    EXPECT_EQ(Sql(path, "SELECT group_concat(CAST(payload AS TEXT), ',') FROM BrintoState ORDER BY id"),
              "third,second");
}

TEST_F(RecordStoreTest, WhatATransactionDoesNotCommitLeavesNoTrace) {
    ASSERT_TRUE(store.WriteRecord(2, "old", 3));
    {
        StoreTransaction outer(store, StoreTransaction::Kind::Write);
        ASSERT_TRUE(outer.Started());
        ASSERT_TRUE(store.WriteRecord(2, "new", 3));
        ASSERT_TRUE(store.WriteRecord(3, "added", 5));
    }
    EXPECT_EQ(Read(2), "old");
    EXPECT_EQ(Read(3), "<none>");
    // An inner transaction that gives up spoils the outer one.
    StoreTransaction outer(store, StoreTransaction::Kind::Write);
    ASSERT_TRUE(store.WriteRecord(2, "new", 3));
    {
        StoreTransaction inner(store, StoreTransaction::Kind::Write);
        ASSERT_TRUE(inner.Started());
    }
    EXPECT_FALSE(outer.Commit());
    EXPECT_EQ(Read(2), "old");
}

}  // namespace
}  // namespace brinto::test
