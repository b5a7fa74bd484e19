#pragma once
// RecordStore: the calculator's memory between runs, one SQLite database file holding fixed-size
// records. Each record is a row of two blobs, the 80-byte RecordHeader that names it and the
// payload bytes; kind 1 (the preferences) lives in the table "BrintoConfig", every other kind in
// "BrintoState". The store never looks inside a payload: repairs of wrong sizes and versions are
// the loader's business (state_io.h).
//
// Several processes may share one file (the desktop program and brinto-cli): each waits a while
// for the other's write to finish, and every change is one SQLite transaction, so a crash or kill
// leaves the file as it was before or after a save, never in between. DataVersion tells a program
// that another one has saved, so that it can pick the change up before building on it.
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/types.h"
#include "store/record_header.h"

struct sqlite3;
struct sqlite3_stmt;

namespace brinto {

// Damage is the file's own fault and only Damaged says so; every other failure is trouble around
// a file that may well be sound, or a file that is not ours, and the file must then be left
// exactly as it is.
// A message for the user made from one of the fixed sentences of the store and the session, with
// "%1", "%2", ... filled in. The window finds the sentence again to show it in the user's language,
// so every such sentence is written as Notice("...", {...}) (scripts/session-texts.py lists them).
std::string Notice(std::string_view sentence, std::initializer_list<std::string_view> fill);

enum class OpenResult {
    Opened,       // a Brinto database, created first if the file did not exist or was empty
    Damaged,      // a Brinto database that cannot be used as it is; it was left untouched
    Foreign,      // a file of something else (text, a picture, another program's database): not ours
    Busy,         // another process kept the file locked for longer than the store waits
    Unavailable,  // the file could not be read or created (rights, a missing folder, I/O, a full disk)
    Refused,      // the path names no regular file (a folder, a device, a pipe): never opened
};

// One line of the history tape as the file keeps it, in the table "BrintoTape" beside the records.
struct TapeRow {
    std::string time;
    std::string keys;
    std::string result;
    std::string label;
    double value = 0.0;
    u16 tag = 0;
};

class RecordStore {
public:
    // The path that names a database kept only in memory, for runs that must not touch a file.
    static constexpr std::string_view kInMemory = ":memory:";

    RecordStore() = default;
    ~RecordStore();
    RecordStore(const RecordStore&) = delete;
    RecordStore& operator=(const RecordStore&) = delete;

    // Opens the database at `path`. A missing file is created complete (both tables) under a
    // temporary name and then moved into place, so no other process ever sees a half-made one;
    // an empty file becomes a database where it is. A file that exists but is not a Brinto
    // database is not changed in any way. Only a regular file (or a link to one) is handed to
    // SQLite; anything else is refused without being opened for more than a non-blocking look, so
    // a folder, a device or a pipe is never touched. What looks damaged is looked at a second time
    // with a full integrity check before it is called Damaged, so a passing read error is trouble.
    OpenResult Open(const std::string& path);
    void Close();
    bool IsOpen() const { return m_db != nullptr; }
    // What went wrong last, in words, for a warning line.
    const std::string& LastError() const { return m_error; }
    // Whether anything failed (a read, a write, a transaction) since the last ClearFailure: a load
    // that failed half-way must not be taken for a file without records.
    bool Failed() const { return m_failed; }
    void ClearFailure() { m_failed = false; }
    // An open database that SQLite could only open for reading (a write-protected file).
    bool ReadOnly() const;
    // A number that changes whenever another connection (another program) has committed a change
    // to the file since this one last looked; this store's own saves leave it as it is. Nothing
    // when it cannot be read. Within a transaction it belongs to that transaction's snapshot.
    std::optional<long long> DataVersion();

    // Finds the first record (in insertion order) with this kind and index and an empty name,
    // copies min(stored size, size) payload bytes into `buffer` and sets `size` to that count.
    // When none matches, or the store is closed, `size` becomes 0 and the result is false.
    bool ReadRecord(u32 kind, void* buffer, std::size_t& size, u16 index = 0);
    // The same for a record keyed by name (index 65535); the name compares case-sensitively.
    bool ReadRecord(u32 kind, void* buffer, std::size_t& size, std::u16string_view name);
    // Replaces the payload of the first matching record, or adds a record with a fresh header.
    // False when the store is closed, the name is longer than 32 units or the write failed.
    bool WriteRecord(u32 kind, const void* buffer, std::size_t size, u16 index = 0);
    bool WriteRecord(u32 kind, const void* buffer, std::size_t size, std::u16string_view name);

    // The history tape. Appending adds the rows after the others and keeps only the newest `keep`
    // (within the caller's transaction, or one of its own); reading gives up to the newest `newest`
    // rows, oldest first; the last row's number tells whether anyone added rows since.
    bool AppendTape(const std::vector<TapeRow>& rows, std::size_t keep);
    std::vector<TapeRow> ReadTape(std::size_t newest);
    long long LastTapeRow();
    bool ClearTape();

private:
    friend class StoreTransaction;
    struct Found;

    OpenResult OpenOnce(const std::string& path, bool fullCheck);
    OpenResult CheckPath(const std::string& path);
    OpenResult CheckFileHeader(const std::string& path);
    bool OpenExisting(const std::string& path, int flags);
    void RepairCompanions(const std::string& path);
    bool InitializeEmpty();
    OpenResult CheckBrinto(bool fullCheck);
    OpenResult Ready();
    bool Prepare();
    bool Find(u32 kind, u16 index, std::u16string_view name, Found& found);
    bool Read(u32 kind, u16 index, std::u16string_view name, void* buffer, std::size_t& size);
    bool Write(u32 kind, const void* buffer, std::size_t size, u16 index, std::u16string_view name);
    bool Execute(sqlite3_stmt* statement);
    void Fail(std::string_view what);

    // Transactions: only the outermost one talks to SQLite; inner ones join it.
    bool Begin(bool write);
    bool Commit();
    void Rollback();

    sqlite3* m_db = nullptr;
    sqlite3_stmt* m_scan[2] = {nullptr, nullptr};    // config, state
    sqlite3_stmt* m_update[2] = {nullptr, nullptr};
    sqlite3_stmt* m_insert[2] = {nullptr, nullptr};
    sqlite3_stmt* m_beginRead = nullptr;
    sqlite3_stmt* m_beginWrite = nullptr;
    sqlite3_stmt* m_commit = nullptr;
    sqlite3_stmt* m_rollback = nullptr;
    int m_transactionDepth = 0;
    bool m_rollbackOnly = false;  // an inner transaction gave up: the outer one must not commit
    bool m_failed = false;
    std::string m_error;
};

// Groups the reads of a load into one consistent snapshot, or the writes of a save into one
// all-or-nothing change. Nested transactions join the outermost one. Whatever is not committed
// is rolled back when the object goes away.
class StoreTransaction {
public:
    enum class Kind { Read, Write };
    StoreTransaction(RecordStore& store, Kind kind);
    ~StoreTransaction();
    StoreTransaction(const StoreTransaction&) = delete;
    StoreTransaction& operator=(const StoreTransaction&) = delete;

    bool Started() const { return m_started; }
    // True when the change is in the file (or, for an inner transaction, handed to the outer one).
    bool Commit();

private:
    RecordStore& m_store;
    bool m_started = false;
    bool m_done = false;
};

}  // namespace brinto
