#include "store/record_store.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <limits>
#include <system_error>

namespace brinto {

namespace {

// Marks the file as ours, so that another program's SQLite database is never taken for one.
constexpr int kApplicationId = 0x42726E74;  // "Brnt"
constexpr int kSchemaVersion = 1;
// How long a load or a save waits for another process's save to finish before giving up.
constexpr int kBusyTimeoutMs = 3000;

// SQLite's own busy timeout sleeps longer and longer between tries, so a program that waits can
// lose its turn again and again to runs that come and go quickly (two scripts looping over
// brinto-cli). Short tries with a little randomness let every waiter in soon after the holder
// leaves.
int WaitWhileBusy(void*, int tries) {
    constexpr int kPauseMicroseconds = 2000;
    if (static_cast<long long>(tries) * kPauseMicroseconds >= kBusyTimeoutMs * 1000LL) return 0;
    static thread_local unsigned seed = static_cast<unsigned>(getpid());
    seed = seed * 1103515245u + 12345u;
    usleep(kPauseMicroseconds / 2 + (seed >> 16) % kPauseMicroseconds);
    return 1;
}

constexpr const char* kTableNames[2] = {"BrintoConfig", "BrintoState"};
constexpr const char* kLogSuffixes[] = {"-wal", "-shm"};

// How a database that may not be written is opened (see OpenOnce).
constexpr int kAsItStands = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;

// Whether this program may change the file at `path` and make files beside it.
bool MayWrite(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    return access(path.c_str(), W_OK) == 0 && access(folder.empty() ? "." : folder.c_str(), W_OK) == 0;
}

// `path` as the path of a file: URI, with the characters a URI gives a meaning escaped.
std::string UriPath(const std::string& path) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string uri;
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '%' || c == '?' || c == '#' || byte < 0x20 || byte >= 0x7F) {
            uri += '%';
            uri += kHex[byte >> 4];
            uri += kHex[byte & 15];
        } else {
            uri += c;
        }
    }
    return uri;
}

constexpr const char* kCreateTape =
    "CREATE TABLE IF NOT EXISTS BrintoTape(id INTEGER PRIMARY KEY, time TEXT NOT NULL, keys TEXT NOT NULL,"
    " result TEXT NOT NULL, label TEXT NOT NULL, value REAL, tag INTEGER NOT NULL);";
constexpr const char* kCreateSchema =
    "CREATE TABLE BrintoConfig(id INTEGER PRIMARY KEY, header BLOB NOT NULL, payload BLOB NOT NULL);"
    "CREATE TABLE BrintoState(id INTEGER PRIMARY KEY, header BLOB NOT NULL, payload BLOB NOT NULL);"
    "CREATE TABLE IF NOT EXISTS BrintoTape(id INTEGER PRIMARY KEY, time TEXT NOT NULL, keys TEXT NOT NULL,"
    " result TEXT NOT NULL, label TEXT NOT NULL, value REAL, tag INTEGER NOT NULL);";

int TableOf(u32 kind) { return kind == kind::Preferences ? 0 : 1; }

// What an error while reading a file that exists says about it.
OpenResult Judge(int code) {
    switch (code & 0xFF) {
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
        case SQLITE_FORMAT:
        case SQLITE_SCHEMA:
        case SQLITE_ERROR:
        case SQLITE_MISMATCH: return OpenResult::Damaged;
        case SQLITE_BUSY:
        case SQLITE_LOCKED: return OpenResult::Busy;
        default: return OpenResult::Unavailable;
    }
}

// Runs a statement that returns one integer (a pragma); nullopt-like false on failure.
bool QueryInt(sqlite3* db, const char* sql, int& value, int& code) {
    sqlite3_stmt* statement = nullptr;
    code = sqlite3_prepare_v2(db, sql, -1, &statement, nullptr);
    if (code == SQLITE_OK) {
        code = sqlite3_step(statement);
        if (code == SQLITE_ROW) {
            value = sqlite3_column_int(statement, 0);
            code = SQLITE_OK;
        }
    }
    sqlite3_finalize(statement);
    return code == SQLITE_OK;
}

bool QueryText(sqlite3* db, const char* sql, std::string& value, int& code) {
    sqlite3_stmt* statement = nullptr;
    code = sqlite3_prepare_v2(db, sql, -1, &statement, nullptr);
    if (code == SQLITE_OK) {
        code = sqlite3_step(statement);
        if (code == SQLITE_ROW) {
            const unsigned char* text = sqlite3_column_text(statement, 0);
            value = text ? reinterpret_cast<const char*>(text) : "";
            code = SQLITE_OK;
        }
    }
    sqlite3_finalize(statement);
    return code == SQLITE_OK;
}

// A header as this program writes it; false when the name does not fit.
bool MakeHeader(u32 kind, u16 index, std::u16string_view name, RecordHeader& header) {
    if (name.size() > kMaxRecordName) return false;
    std::memset(&header, 0, sizeof header);
    header.headerSize = kHeaderSize;
    header.headerFormat = kHeaderFormat;
    header.kind = kind;
    header.index = index;
    if (!name.empty()) std::memcpy(header.name, name.data(), name.size() * sizeof(char16_t));
    return true;
}

// SQLite stores a blob bound from a null pointer as NULL; an empty payload must stay a blob.
const void* BlobPointer(const void* buffer) {
    static const char kEmpty = 0;
    return buffer ? buffer : &kEmpty;
}

}  // namespace

struct RecordStore::Found {
    sqlite3_int64 id = 0;
    sqlite3_stmt* row = nullptr;  // the scan, positioned on the matching row until reset
};

std::string Notice(std::string_view sentence, std::initializer_list<std::string_view> fill) {
    std::string text;
    for (std::size_t i = 0; i < sentence.size(); ++i) {
        const std::size_t n = i + 1 < sentence.size() ? static_cast<std::size_t>(sentence[i + 1] - '1') : fill.size();
        if (sentence[i] == '%' && n < fill.size()) {
            text += fill.begin()[n];
            ++i;
        } else {
            text += sentence[i];
        }
    }
    return text;
}

RecordStore::~RecordStore() { Close(); }

void RecordStore::Fail(std::string_view what) {
    m_failed = true;
    m_error = std::string(what);
    if (m_db) {
        m_error += ": ";
        m_error += sqlite3_errmsg(m_db);
    }
}

OpenResult RecordStore::Open(const std::string& path) {
    Close();
    m_error.clear();
    m_failed = false;
    if (path == kInMemory) {
        if (!OpenExisting(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MEMORY) ||
            sqlite3_exec(m_db, kCreateSchema, nullptr, nullptr, nullptr) != SQLITE_OK ||
            !Prepare()) {
            Fail("cannot create a database in memory");
            Close();
            return OpenResult::Unavailable;
        }
        return OpenResult::Opened;
    }
    const OpenResult first = OpenOnce(path, false);
    if (first != OpenResult::Damaged) return first;
    // Damage is confirmed by a second look with the full check before anyone acts on it: a read
    // error that passes (a flaky disk, a file still being copied in) must not cost the user the file.
    const std::string firstError = m_error;
    const OpenResult second = OpenOnce(path, true);
    if (second == OpenResult::Damaged && m_error.empty()) m_error = firstError;
    return second;
}

OpenResult RecordStore::OpenOnce(const std::string& path, bool fullCheck) {
    Close();
    m_error.clear();
    if (const OpenResult kind = CheckPath(path); kind != OpenResult::Opened) return kind;
    if (const OpenResult header = CheckFileHeader(path); header != OpenResult::Opened) return header;
    RepairCompanions(path);
    // The file is judged through a connection that may not write: only a writer replays a log
    // lying beside the database or removes it on closing, and a file that turns out damaged must
    // go aside together with its log, exactly as it was. A rollback journal beside it is only
    // ever left by a creation that was cut short, and must be rolled back to judge the file.
    std::error_code ec;
    const bool journal = std::filesystem::exists(path + "-journal", ec);
    // The log and shared-memory files SQLite makes to read the file are ours to take away again
    // when the file is not used; those that were there belong to the file.
    bool had[std::size(kLogSuffixes)] = {};
    for (std::size_t i = 0; i < std::size(kLogSuffixes); ++i) {
        had[i] = std::filesystem::exists(path + kLogSuffixes[i], ec);
    }
    // A database that may not be written (the file or its folder write-protected) is read as it
    // stands, without the log and shared-memory files SQLite would otherwise make beside it: in a
    // write-protected folder it could not make them, and in another they would stay behind. Not
    // when a log lies beside it, which may hold saves the file itself does not have yet.
    const bool asItStands = !journal && !had[0] && !had[1] && !MayWrite(path);
    const int judgeFlags = asItStands ? kAsItStands : journal ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
    OpenResult result = OpenExisting(path, judgeFlags) ? CheckBrinto(fullCheck) : OpenResult::Unavailable;
    Close();
    if (result != OpenResult::Opened) {
        for (std::size_t i = 0; i < std::size(kLogSuffixes); ++i) {
            if (!had[i]) std::filesystem::remove(path + kLogSuffixes[i], ec);
        }
        return result;
    }
    if (!OpenExisting(path, asItStands ? kAsItStands : SQLITE_OPEN_READWRITE)) {
        Close();
        return OpenResult::Unavailable;
    }
    result = Ready();
    if (result != OpenResult::Opened) Close();
    return result;
}

// Decides from what the path names, before anything opens it: a regular file (or a link to one)
// goes on to the header check, a missing name is created empty when its folder exists (and made a
// database by CheckBrinto), and anything else is refused. A folder must not be renamed, a device
// not replaced and a pipe not waited on.
OpenResult RecordStore::CheckPath(const std::string& path) {
    struct stat info {};
    if (lstat(path.c_str(), &info) != 0) {
        if (errno != ENOENT) {
            m_error = Notice("cannot look at %1: %2", {path, std::strerror(errno)});
            return OpenResult::Unavailable;
        }
        const std::filesystem::path folder = std::filesystem::path(path).parent_path();
        struct stat folderInfo {};
        if (stat(folder.empty() ? "." : folder.c_str(), &folderInfo) != 0 || !S_ISDIR(folderInfo.st_mode)) {
            m_error = Notice("cannot create %1: its folder does not exist", {path});
            return OpenResult::Unavailable;
        }
        // An empty file, never a half-made database: the schema is written in one transaction by
        // whichever process opens the empty file first, and the others wait for it.
        const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666);
        if (fd < 0 && errno != EEXIST) {
            m_error = Notice("cannot create %1: %2", {path, std::strerror(errno)});
            return OpenResult::Unavailable;
        }
        if (fd >= 0) close(fd);
        return OpenResult::Opened;
    }
    // A link is followed once; one that leads nowhere is not created through.
    if (S_ISLNK(info.st_mode) && stat(path.c_str(), &info) != 0) {
        m_error = Notice("cannot follow the link %1: %2", {path, std::strerror(errno)});
        return OpenResult::Unavailable;
    }
    if (!S_ISREG(info.st_mode)) {
        m_error = Notice("%1 is not a regular file", {path});
        return OpenResult::Refused;
    }
    return OpenResult::Opened;
}

// Looks at the file's first bytes before SQLite does: opening a foreign or garbage file would let
// SQLite act on a journal lying beside it (replay it, or delete it on closing), and that journal
// belongs to whatever the user had there. Only an empty file or an SQLite database carrying
// Brinto's mark goes on. The look never blocks: should the name have been replaced by a pipe or a
// device since CheckPath, it is refused here.
OpenResult RecordStore::CheckFileHeader(const std::string& path) {
    constexpr std::size_t kHeaderBytes = 100;
    const int fd = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) {
        m_error = Notice("cannot open %1: %2", {path, std::strerror(errno)});
        return OpenResult::Unavailable;
    }
    struct stat info {};
    if (fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        close(fd);
        m_error = Notice("%1 is not a regular file", {path});
        return OpenResult::Refused;
    }
    unsigned char header[kHeaderBytes] = {};
    std::size_t got = 0;
    while (got < kHeaderBytes) {
        const ssize_t n = read(fd, header + got, kHeaderBytes - got);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) {
            m_error = Notice("cannot read %1: %2", {path, std::strerror(errno)});
            close(fd);
            return OpenResult::Unavailable;
        }
        if (n == 0) break;
        got += static_cast<std::size_t>(n);
    }
    close(fd);
    if (got == 0) return OpenResult::Opened;  // an empty file becomes a new database
    // The format mark, then the application id as a big-endian word at offset 68.
    const auto byte = [&](int i) { return static_cast<unsigned>(header[i]); };
    const unsigned applicationId = byte(68) << 24 | byte(69) << 16 | byte(70) << 8 | byte(71);
    if (got != kHeaderBytes || std::memcmp(header, "SQLite format 3", 16) != 0 ||
        applicationId != static_cast<unsigned>(kApplicationId)) {
        m_error = Notice("%1 is not a Brinto database", {path});
        return OpenResult::Foreign;
    }
    return OpenResult::Opened;
}

// SQLite makes its shared-memory and log files with the database's own permissions: a run on a
// write-protected database leaves them write-protected, and once the user makes the database
// writable again they would still stop every save. Ours are given back the database's rights.
void RecordStore::RepairCompanions(const std::string& path) {
    struct stat database {};
    if (stat(path.c_str(), &database) != 0 || access(path.c_str(), W_OK) != 0) return;
    for (const char* suffix : kLogSuffixes) {
        const std::string companion = path + suffix;
        struct stat info {};
        if (lstat(companion.c_str(), &info) != 0 || !S_ISREG(info.st_mode) || info.st_uid != geteuid()) continue;
        const mode_t wanted = database.st_mode & 0666;
        if ((info.st_mode & 0666) != wanted) chmod(companion.c_str(), wanted);
    }
}

bool RecordStore::OpenExisting(const std::string& path, int flags) {
    // Read as it stands: through a URI that says nobody changes the file while it is open.
    const std::string name = flags == kAsItStands ? "file:" + UriPath(path) + "?immutable=1" : path;
    if (sqlite3_open_v2(name.c_str(), &m_db, flags, nullptr) != SQLITE_OK) {
        Fail("cannot open " + path);
        return false;
    }
    sqlite3_busy_handler(m_db, WaitWhileBusy, nullptr);
    return true;
}

// Writes the tables and Brinto's mark into an empty database as one transaction. Another process
// that found the same empty file waits at BEGIN IMMEDIATE and then finds the work done.
bool RecordStore::InitializeEmpty() {
    if (sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK) return false;
    // Within the transaction the database already has its first page; "empty" means no tables.
    int tables = 0, code = SQLITE_OK;
    bool made = QueryInt(m_db, "SELECT count(*) FROM sqlite_master", tables, code);
    if (made && tables == 0) {
        const std::string schema = "PRAGMA application_id=" + std::to_string(kApplicationId) +
                                   ";PRAGMA user_version=" + std::to_string(kSchemaVersion) + ";" + kCreateSchema;
        made = sqlite3_exec(m_db, schema.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
    }
    made = made && sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK;
    if (!made) sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    return made;
}

// Tells a Brinto database from anything else: our application id, both tables with the columns we
// use, every header a well-formed 80-byte blob in the table of its kind, and an intact file. The
// quick check reads every page; the full one (a second look before damage is declared) also
// checks every index and constraint.
OpenResult RecordStore::CheckBrinto(bool fullCheck) {
    int code = SQLITE_OK;
    int pages = 0;
    if (!QueryInt(m_db, "PRAGMA page_count", pages, code)) {
        Fail("cannot read the database");
        return Judge(code);
    }
    if (pages == 0) return OpenResult::Opened;  // an empty file: Ready makes it a database
    int applicationId = 0;
    std::string check;
    if (!QueryInt(m_db, "PRAGMA application_id", applicationId, code)) {
        Fail("cannot read the database");
        return Judge(code);
    }
    if (applicationId != kApplicationId) {
        m_error = "not a Brinto database";
        return OpenResult::Foreign;
    }
    if (!QueryText(m_db, fullCheck ? "PRAGMA integrity_check(1)" : "PRAGMA quick_check(1)", check, code)) {
        Fail("cannot read the database");
        return Judge(code);
    }
    if (check != "ok") {
        m_error = "damaged database: " + check.substr(0, check.find('\n'));
        return OpenResult::Damaged;
    }
    if (!Prepare()) {
        // A missing table or column is damage; a lock or an I/O error while reading the schema is not.
        const int prepareCode = sqlite3_extended_errcode(m_db);
        Fail("not a Brinto database");
        return Judge(prepareCode);
    }
    for (int table = 0; table < 2; ++table) {
        sqlite3_stmt* scan = m_scan[table];
        while ((code = sqlite3_step(scan)) == SQLITE_ROW) {
            RecordHeader header;
            const bool wellFormed = sqlite3_column_type(scan, 1) == SQLITE_BLOB &&
                                    sqlite3_column_bytes(scan, 1) == kHeaderSize &&
                                    sqlite3_column_type(scan, 2) == SQLITE_BLOB;
            if (wellFormed) std::memcpy(&header, sqlite3_column_blob(scan, 1), sizeof header);
            if (!wellFormed || header.headerSize != kHeaderSize || header.headerFormat != kHeaderFormat ||
                TableOf(header.kind) != table) {
                sqlite3_reset(scan);
                m_error = std::string("a record of table ") + kTableNames[table] + " is damaged";
                return OpenResult::Damaged;
            }
        }
        sqlite3_reset(scan);
        if (code != SQLITE_DONE) {
            Fail("cannot read the database");
            return Judge(code);
        }
    }
    return OpenResult::Opened;
}

// Makes a file judged ours ready for use on a connection that may write: an empty one gets the
// tables, and the statements are prepared.
OpenResult RecordStore::Ready() {
    int code = SQLITE_OK;
    int pages = 0;
    if (!QueryInt(m_db, "PRAGMA page_count", pages, code)) {
        Fail("cannot read the database");
        return Judge(code);
    }
    if (pages == 0 && !InitializeEmpty()) {
        Fail("cannot create the database");
        return OpenResult::Unavailable;
    }
    if (!Prepare()) {
        const int prepareCode = sqlite3_extended_errcode(m_db);
        Fail("not a Brinto database");
        return Judge(prepareCode);
    }
    // Only now that the file is known to be ours may it be changed. The write-ahead log makes a
    // save one append (no waiting for the disk), and a kill at any moment leaves either the old or
    // the new records; a power cut may lose the latest saves but never mixes them.
    std::string mode;
    if (QueryText(m_db, "PRAGMA journal_mode", mode, code) && mode != "wal") {
        QueryText(m_db, "PRAGMA journal_mode=WAL", mode, code);
    }
    sqlite3_exec(m_db, "PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
    // Databases made before the tape get its table; a write-protected one simply has no tape.
    sqlite3_exec(m_db, kCreateTape, nullptr, nullptr, nullptr);
    return OpenResult::Opened;
}

bool RecordStore::Prepare() {
    auto prepare = [this](const std::string& sql, sqlite3_stmt*& statement) {
        return sqlite3_prepare_v3(m_db, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) ==
               SQLITE_OK;
    };
    bool ok = true;
    for (int table = 0; table < 2; ++table) {
        const std::string name = kTableNames[table];
        ok = ok && prepare("SELECT id, header, payload FROM " + name + " ORDER BY id", m_scan[table]);
        ok = ok && prepare("UPDATE " + name + " SET payload = ?1 WHERE id = ?2", m_update[table]);
        ok = ok && prepare("INSERT INTO " + name + "(header, payload) VALUES(?1, ?2)", m_insert[table]);
    }
    return ok && prepare("BEGIN", m_beginRead) && prepare("BEGIN IMMEDIATE", m_beginWrite) &&
           prepare("COMMIT", m_commit) && prepare("ROLLBACK", m_rollback);
}

void RecordStore::Close() {
    if (!m_db) return;
    if (m_transactionDepth > 0) sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    m_transactionDepth = 0;
    m_rollbackOnly = false;
    for (sqlite3_stmt** group : {m_scan, m_update, m_insert}) {
        for (int table = 0; table < 2; ++table) {
            sqlite3_finalize(group[table]);
            group[table] = nullptr;
        }
    }
    for (sqlite3_stmt** statement : {&m_beginRead, &m_beginWrite, &m_commit, &m_rollback}) {
        sqlite3_finalize(*statement);
        *statement = nullptr;
    }
    sqlite3_close(m_db);
    m_db = nullptr;
}

bool RecordStore::Execute(sqlite3_stmt* statement) {
    const int code = sqlite3_step(statement);
    sqlite3_reset(statement);
    return code == SQLITE_DONE || code == SQLITE_ROW;
}

// Scans the kind's table in insertion order; the first header with the kind, the index and the
// name wanted (an empty name when none is wanted) wins. Headers that are not 80 bytes never match.
bool RecordStore::Find(u32 kind, u16 index, std::u16string_view name, Found& found) {
    sqlite3_stmt* scan = m_scan[TableOf(kind)];
    int code = SQLITE_OK;
    while ((code = sqlite3_step(scan)) == SQLITE_ROW) {
        if (sqlite3_column_bytes(scan, 1) != kHeaderSize) continue;
        RecordHeader header;
        std::memcpy(&header, sqlite3_column_blob(scan, 1), sizeof header);
        if (header.kind == kind && header.index == index && header.Name() == name) {
            found.id = sqlite3_column_int64(scan, 0);
            found.row = scan;
            return true;
        }
    }
    if (code != SQLITE_DONE) Fail("cannot read the database");
    sqlite3_reset(scan);
    return false;
}

bool RecordStore::ReadRecord(u32 kind, void* buffer, std::size_t& size, u16 index) {
    return Read(kind, index, {}, buffer, size);
}

bool RecordStore::ReadRecord(u32 kind, void* buffer, std::size_t& size, std::u16string_view name) {
    return Read(kind, kNamedIndex, name, buffer, size);
}

bool RecordStore::Read(u32 kind, u16 index, std::u16string_view name, void* buffer, std::size_t& size) {
    const std::size_t capacity = size;
    size = 0;
    Found found;
    if (!m_db || name.size() > kMaxRecordName || !Find(kind, index, name, found)) return false;
    const std::size_t stored = static_cast<std::size_t>(sqlite3_column_bytes(found.row, 2));
    size = stored < capacity ? stored : capacity;
    if (size > 0) std::memcpy(buffer, sqlite3_column_blob(found.row, 2), size);
    sqlite3_reset(found.row);
    return true;
}

bool RecordStore::WriteRecord(u32 kind, const void* buffer, std::size_t size, u16 index) {
    return Write(kind, buffer, size, index, {});
}

bool RecordStore::WriteRecord(u32 kind, const void* buffer, std::size_t size, std::u16string_view name) {
    return Write(kind, buffer, size, kNamedIndex, name);
}

bool RecordStore::Write(u32 kind, const void* buffer, std::size_t size, u16 index, std::u16string_view name) {
    RecordHeader header;
    if (!m_db || !MakeHeader(kind, index, name, header) || size > 0x7FFFFFFF) return false;
    // The search and the insert are one step, so two processes never both add the record.
    StoreTransaction transaction(*this, StoreTransaction::Kind::Write);
    if (!transaction.Started()) return false;
    const int table = TableOf(kind);
    Found found;
    sqlite3_stmt* statement = nullptr;
    if (Find(kind, index, name, found)) {
        sqlite3_reset(found.row);
        statement = m_update[table];
        sqlite3_bind_blob(statement, 1, BlobPointer(buffer), static_cast<int>(size), SQLITE_STATIC);
        sqlite3_bind_int64(statement, 2, found.id);
    } else {
        statement = m_insert[table];
        sqlite3_bind_blob(statement, 1, &header, sizeof header, SQLITE_STATIC);
        sqlite3_bind_blob(statement, 2, BlobPointer(buffer), static_cast<int>(size), SQLITE_STATIC);
    }
    const bool written = Execute(statement);
    sqlite3_clear_bindings(statement);
    if (!written) {
        Fail("cannot write a record");
        return false;
    }
    return transaction.Commit();
}

bool RecordStore::ReadOnly() const { return m_db && sqlite3_db_readonly(m_db, "main") == 1; }

std::optional<long long> RecordStore::DataVersion() {
    int version = 0, code = SQLITE_OK;
    if (!m_db || !QueryInt(m_db, "PRAGMA data_version", version, code)) return std::nullopt;
    return version;
}

bool RecordStore::AppendTape(const std::vector<TapeRow>& rows, std::size_t keep) {
    if (!m_db) return false;
    if (rows.empty()) return true;
    StoreTransaction transaction(*this, StoreTransaction::Kind::Write);
    sqlite3_stmt* insert = nullptr;
    bool ok = transaction.Started() &&
              sqlite3_prepare_v2(m_db, "INSERT INTO BrintoTape(time, keys, result, label, value, tag) "
                                       "VALUES(?1, ?2, ?3, ?4, ?5, ?6)", -1, &insert, nullptr) == SQLITE_OK;
    for (const TapeRow& row : rows) {
        if (!ok) break;
        int column = 1;
        for (const std::string* text : {&row.time, &row.keys, &row.result, &row.label}) {
            sqlite3_bind_text(insert, column++, text->data(), static_cast<int>(text->size()), SQLITE_STATIC);
        }
        sqlite3_bind_double(insert, 5, row.value);  // not a number is kept as NULL
        sqlite3_bind_int(insert, 6, row.tag);
        ok = Execute(insert);
    }
    sqlite3_finalize(insert);
    const std::string trim = "DELETE FROM BrintoTape WHERE id <= (SELECT max(id) FROM BrintoTape) - " +
                             std::to_string(keep);
    ok = ok && sqlite3_exec(m_db, trim.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
    if (!ok) {
        Fail("cannot write the tape");
        return false;
    }
    return transaction.Commit();
}

std::vector<TapeRow> RecordStore::ReadTape(std::size_t newest) {
    std::vector<TapeRow> rows;
    sqlite3_stmt* select = nullptr;
    const std::string sql = "SELECT time, keys, result, label, value, tag FROM (SELECT * FROM BrintoTape ORDER BY id "
                            "DESC LIMIT " + std::to_string(newest) + ") ORDER BY id";
    if (!m_db || sqlite3_prepare_v2(m_db, sql.c_str(), -1, &select, nullptr) != SQLITE_OK) {
        sqlite3_finalize(select);
        return rows;
    }
    const auto text = [&](int column) {
        const unsigned char* t = sqlite3_column_text(select, column);
        return t ? std::string(reinterpret_cast<const char*>(t)) : std::string();
    };
    while (sqlite3_step(select) == SQLITE_ROW) {
        const double value = sqlite3_column_type(select, 4) == SQLITE_NULL ? std::numeric_limits<double>::quiet_NaN()
                                                                           : sqlite3_column_double(select, 4);
        rows.push_back({text(0), text(1), text(2), text(3), value, static_cast<u16>(sqlite3_column_int(select, 5))});
    }
    sqlite3_finalize(select);
    return rows;
}

long long RecordStore::LastTapeRow() {
    sqlite3_stmt* select = nullptr;
    long long last = 0;
    if (m_db && sqlite3_prepare_v2(m_db, "SELECT max(id) FROM BrintoTape", -1, &select, nullptr) == SQLITE_OK &&
        sqlite3_step(select) == SQLITE_ROW) {
        last = sqlite3_column_int64(select, 0);
    }
    sqlite3_finalize(select);
    return last;
}

bool RecordStore::ClearTape() {
    if (!m_db || sqlite3_exec(m_db, "DELETE FROM BrintoTape", nullptr, nullptr, nullptr) != SQLITE_OK) {
        Fail("cannot clear the tape");
        return false;
    }
    return true;
}

bool RecordStore::Begin(bool write) {
    if (!m_db) return false;
    if (m_transactionDepth == 0) {
        if (!Execute(write ? m_beginWrite : m_beginRead)) {
            Fail("cannot start a transaction");
            return false;
        }
        m_rollbackOnly = false;
    }
    ++m_transactionDepth;
    return true;
}

bool RecordStore::Commit() {
    if (m_transactionDepth == 0) return false;
    if (--m_transactionDepth > 0) return !m_rollbackOnly;
    if (m_rollbackOnly || !Execute(m_commit)) {
        if (!m_rollbackOnly) Fail("cannot commit");
        Execute(m_rollback);
        m_rollbackOnly = false;
        return false;
    }
    return true;
}

void RecordStore::Rollback() {
    if (m_transactionDepth == 0) return;
    if (--m_transactionDepth > 0) {
        m_rollbackOnly = true;
        return;
    }
    Execute(m_rollback);
    m_rollbackOnly = false;
}

StoreTransaction::StoreTransaction(RecordStore& store, Kind kind) : m_store(store) {
    m_started = m_store.Begin(kind == Kind::Write);
}

StoreTransaction::~StoreTransaction() {
    if (m_started && !m_done) m_store.Rollback();
}

bool StoreTransaction::Commit() {
    if (!m_started || m_done) return false;
    m_done = true;
    return m_store.Commit();
}

}  // namespace brinto
