#include "registry/database.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <iterator>
#include <thread>

#include "base/report.h"
#include "base/state.h"
#include "kernel/text/encoding.h"

namespace platform::registry {
namespace {

// "CVRG" and the version of the schema, by which a file of another kind is told apart.
constexpr int kApplication = 0x43565247;
constexpr int kVersion = 1;

constexpr std::chrono::seconds kPatience{10};

constexpr const char* kSchema =
    "PRAGMA application_id = 0x43565247;"
    "CREATE TABLE keys(id INTEGER PRIMARY KEY AUTOINCREMENT, parent INTEGER NOT NULL, folded TEXT NOT NULL,"
    " name TEXT NOT NULL, class TEXT NOT NULL DEFAULT '', UNIQUE(parent, folded));"
    "CREATE TABLE \"values\"(id INTEGER PRIMARY KEY, key INTEGER NOT NULL, folded TEXT NOT NULL, name TEXT NOT NULL,"
    " type INTEGER NOT NULL, data BLOB NOT NULL, UNIQUE(key, folded));"
    "INSERT INTO keys(id, parent, folded, name) VALUES"
    " (1, 0, 'HKEY_CURRENT_USER', 'HKEY_CURRENT_USER'), (2, 0, 'HKEY_LOCAL_MACHINE', 'HKEY_LOCAL_MACHINE'),"
    " (3, 2, 'SOFTWARE', 'SOFTWARE'), (4, 3, 'CLASSES', 'Classes'), (5, 3, 'MICROSOFT', 'Microsoft'),"
    " (6, 5, 'WINDOWS', 'Windows'), (7, 6, 'CURRENTVERSION', 'CurrentVersion');"
    "PRAGMA user_version = 1;";

constexpr const char* kQueries[] = {
    "SELECT id FROM keys WHERE parent = ?1 AND folded = ?2",
    "SELECT 1 FROM keys WHERE id = ?1",
    "INSERT INTO keys(parent, folded, name) VALUES (?1, ?2, ?3)",
    "DELETE FROM keys WHERE id = ?1",
    "DELETE FROM \"values\" WHERE key = ?1",
    "SELECT name FROM keys WHERE parent = ?1 ORDER BY folded",
    "SELECT type, data FROM \"values\" WHERE key = ?1 AND folded = ?2",
    "INSERT INTO \"values\"(key, folded, name, type, data) SELECT ?1, ?2, ?3, ?4, ?5"
    " WHERE EXISTS (SELECT 1 FROM keys WHERE id = ?1)"
    " ON CONFLICT(key, folded) DO UPDATE SET type = excluded.type, data = excluded.data",
    "DELETE FROM \"values\" WHERE key = ?1 AND folded = ?2",
    "SELECT name FROM \"values\" WHERE key = ?1 ORDER BY id",
    "BEGIN IMMEDIATE",
    "COMMIT",
    "ROLLBACK",
};
static_assert(std::size(kQueries) == static_cast<std::size_t>(Query::Count));

/// What shows that others are at work: each write of theirs changes the log.
struct Log {
    off_t size = 0;
    timespec written{};

    explicit Log(sqlite3* connection) {
        const char* path = sqlite3_db_filename(connection, "main");
        struct stat status {};
        if (path && stat((std::string(path) + "-wal").c_str(), &status) == 0) {
            size = status.st_size;
            written = status.st_mtim;
        }
    }
    bool operator==(const Log& other) const {
        return size == other.size && written.tv_sec == other.written.tv_sec && written.tv_nsec == other.written.tv_nsec;
    }
};

// Does something again for as long as another process is in its way, which is over in microseconds unless that process
// stands still; with hundreds of them at work it may take a while until it is this one's turn. All waiting is done here and
// SQLite is told of none, as it does not wait for everything: switching a database to write-ahead mode fails at once while
// another process so much as looks at it.
template <class Run>
int Patiently(sqlite3* connection, Run run) {
    using Clock = std::chrono::steady_clock;
    int code = run();
    if (code != SQLITE_BUSY) {
        return code;
    }
    Log log(connection);
    auto start = Clock::now();
    for (int tries = 0; code == SQLITE_BUSY; ++tries) {
        if (Clock::now() - start >= kPatience) {
            const Log now(connection);
            if (now == log) {
                break;
            }
            log = now;
            start = Clock::now();
        }
        // The more there are who wait, the less often each of them asks.
        std::this_thread::sleep_for(std::chrono::microseconds(tries < 10 ? 20 : std::min(tries * 50, 5000)));
        code = run();
    }
    return code;
}

}  // namespace

int Statement::StepPatiently() {
    begun_ = true;
    return Patiently(sqlite3_db_handle(statement_), [this] {
        sqlite3_reset(statement_);
        return sqlite3_step(statement_);
    });
}

int Database::Execute(const char* text) {
    return Patiently(connection_, [&] { return sqlite3_exec(connection_, text, nullptr, nullptr, nullptr); });
}

int Database::ReadNumber(const char* pragma, int* number) {
    return Patiently(connection_, [&] {
        sqlite3_stmt* statement = nullptr;
        int code = sqlite3_prepare_v2(connection_, pragma, -1, &statement, nullptr);
        if (code == SQLITE_OK) {
            code = sqlite3_step(statement);
            *number = code == SQLITE_ROW ? sqlite3_column_int(statement, 0) : 0;
            code = code == SQLITE_ROW ? SQLITE_OK : code;
        }
        sqlite3_finalize(statement);
        return code;
    });
}

// Whom the system is registered to, as its installation asks: the host knows the name.
int Database::NameOwner() {
    constexpr KeyId kCurrentVersion = 7;
    const passwd* entry = getpwuid(getuid());
    std::string owner = entry && entry->pw_gecos ? entry->pw_gecos : "";
    owner.resize(std::min(owner.find(','), owner.size()));
    if (owner.empty() && entry && entry->pw_name) {
        owner = entry->pw_name;
    }
    owner = kernel::AnsiFromUtf8(owner) + '\0';
    const auto write = [this](std::string_view folded, std::string_view name, std::string_view data) {
        return Use(Query::WriteValue)
            .Bind(1, kCurrentVersion)
            .Bind(2, folded)
            .Bind(3, name)
            .Bind(4, std::int64_t{REG_SZ})
            .BindBytes(5, data)
            .Step();
    };
    int code = write("REGISTEREDOWNER", "RegisteredOwner", owner);
    if (code == SQLITE_DONE) {
        code = write("REGISTEREDORGANIZATION", "RegisteredOrganization", std::string_view("", 1));
    }
    return code == SQLITE_DONE ? SQLITE_OK : code;
}

int Database::Look(Contents* contents) {
    int code = ReadNumber("PRAGMA user_version", &contents->version);
    code = code == SQLITE_OK ? ReadNumber("PRAGMA application_id", &contents->application) : code;
    return code == SQLITE_OK ? ReadNumber("SELECT count(*) FROM sqlite_schema", &contents->tables) : code;
}

// Several processes may come here at once: the first one makes everything, in one transaction.
int Database::MakeSchema() {
    int code = Execute("PRAGMA journal_mode = WAL");
    code = code == SQLITE_OK ? Execute("BEGIN IMMEDIATE") : code;
    Contents contents;
    code = code == SQLITE_OK ? Look(&contents) : code;
    if (code == SQLITE_OK && contents.AreNew()) {
        code = Execute(kSchema);
        code = code == SQLITE_OK ? NameOwner() : code;
    }
    code = code == SQLITE_OK ? Execute("COMMIT") : code;
    if (code != SQLITE_OK && !sqlite3_get_autocommit(connection_)) {
        Execute("ROLLBACK");
    }
    return code;
}

int Database::Prepare() {
    sqlite3_extended_result_codes(connection_, 0);
    // The log is flushed before it is copied into the file, which is enough to keep the file sound.
    int code = Execute("PRAGMA synchronous = NORMAL; PRAGMA wal_autocheckpoint = 2000");
    // All that tells what the file is must be of one moment: another process may be making it.
    Contents contents;
    const auto look = [&] {
        code = code == SQLITE_OK ? Execute("BEGIN") : code;
        code = code == SQLITE_OK ? Look(&contents) : code;
        if (!sqlite3_get_autocommit(connection_)) {
            Execute("COMMIT");
        }
    };
    look();
    if (code == SQLITE_OK && contents.AreNew()) {
        code = MakeSchema();
        look();
    }
    const bool ours = contents.version == kVersion && contents.application == kApplication;
    return code == SQLITE_OK && !ours ? SQLITE_NOTADB : code;
}

void Database::FindHead() {
    sqlite3_file* file = nullptr;
    volatile void* memory = nullptr;
    constexpr int kRegion = 32768;
    int keys = 0;
    // The index exists once something has been read by way of it.
    if (ReadNumber("SELECT count(*) FROM keys WHERE id = 1", &keys) == SQLITE_OK &&
        sqlite3_file_control(connection_, "main", SQLITE_FCNTL_FILE_POINTER, &file) == SQLITE_OK && file &&
        file->pMethods && file->pMethods->iVersion >= 2 && file->pMethods->xShmMap) {
        sqlite3_stmt* statement = nullptr;
        bool logged = false;
        if (sqlite3_prepare_v2(connection_, "PRAGMA journal_mode", -1, &statement, nullptr) == SQLITE_OK &&
            sqlite3_step(statement) == SQLITE_ROW) {
            const auto* mode = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
            logged = mode && std::string_view(mode) == "wal";
        }
        sqlite3_finalize(statement);
        if (logged && file->pMethods->xShmMap(file, 0, kRegion, 0, &memory) == SQLITE_OK) {
            head_ = static_cast<const volatile std::uint32_t*>(memory);
        }
    }
}

bool Database::ReadHead(Head* head) const {
    if (!head_) {
        return false;
    }
    for (std::size_t i = 0; i < head->words.size(); ++i) {
        head->words[i] = head_[i];
    }
    return true;
}

LONG Database::Connect() {
    constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_PRIVATECACHE;
    int code = sqlite3_open_v2(path_.c_str(), &connection_, kFlags, nullptr);
    code = code == SQLITE_OK ? Prepare() : code;
    if (code == SQLITE_OK) {
        FindHead();
        return ERROR_SUCCESS;
    }
    const bool closed = (code & 0xFF) == SQLITE_CANTOPEN || (code & 0xFF) == SQLITE_READONLY;
    return closed && access(path_.c_str(), R_OK) == 0 ? ConnectFrozen() : Failure(code);
}

// A store that cannot be written can still be read, if it was left in order: a log beside it, which nobody may copy
// into it, could hold what it lacks.
LONG Database::ConnectFrozen() {
    Close();
    struct stat log {};
    if (stat((path_ + "-wal").c_str(), &log) == 0 && log.st_size > 0) {
        return Failure(SQLITE_CANTOPEN);
    }
    std::string uri = "file:";
    for (const char character : path_) {
        char code[4];
        wsprintfA(code, "%%%02X", static_cast<unsigned char>(character));
        uri += code;
    }
    uri += "?immutable=1";
    constexpr int kFlags = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_PRIVATECACHE;
    int code = sqlite3_open_v2(uri.c_str(), &connection_, kFlags, nullptr);
    code = code == SQLITE_OK ? Prepare() : code;
    frozen_ = code == SQLITE_OK;
    return frozen_ ? ERROR_SUCCESS : Failure(code);
}

std::unique_ptr<Database> Database::Open(const std::string& folder, LONG* error) {
    const std::string path = folder + "/registry.db";
    if (access(path.c_str(), F_OK) != 0 && !base::EnsureStateFolder()) {
        *error = ERROR_ACCESS_DENIED;
        return nullptr;
    }
    std::unique_ptr<Database> database(new Database(path));
    *error = database->Connect();
    return *error == ERROR_SUCCESS ? std::move(database) : nullptr;
}

void Database::Close() {
    for (sqlite3_stmt*& statement : statements_) {
        sqlite3_finalize(statement);
        statement = nullptr;
    }
    head_ = nullptr;
    sqlite3_close(connection_);
    connection_ = nullptr;
}

Database::~Database() {
    Close();
}

Statement Database::Use(Query query) {
    const auto index = static_cast<std::size_t>(query);
    int code = SQLITE_OK;
    if (!statements_[index]) {
        code = Patiently(connection_, [&] {
            return sqlite3_prepare_v3(connection_, kQueries[index], -1, SQLITE_PREPARE_PERSISTENT, &statements_[index],
                                      nullptr);
        });
    }
    return {statements_[index], code};
}

// The host has more ways to say that there is no room than SQLite knows.
bool Database::HasNoRoom() const {
    sqlite3_file* log = nullptr;
    int errors[2] = {};
    sqlite3_file_control(connection_, "main", SQLITE_FCNTL_LAST_ERRNO, &errors[0]);
    sqlite3_file_control(connection_, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log);
    if (log && log->pMethods) {
        log->pMethods->xFileControl(log, SQLITE_FCNTL_LAST_ERRNO, &errors[1]);
    }
    return std::any_of(std::begin(errors), std::end(errors),
                       [](int error) { return error == ENOSPC || error == EDQUOT || error == EFBIG; });
}

LONG Database::Failure(int code) const {
    const auto report = [this](const char* what) {
        base::ReportOnce((std::string("the registry ") + path_ + " " + what).c_str());
    };
    const int number = code & 0xFF;
    switch (number == SQLITE_IOERR && connection_ && HasNoRoom() ? SQLITE_FULL : number) {
        case SQLITE_OK:
        case SQLITE_ROW:
        case SQLITE_DONE:
            return ERROR_SUCCESS;
        case SQLITE_NOMEM:
            return ERROR_OUTOFMEMORY;
        case SQLITE_TOOBIG:
            return ERROR_INVALID_PARAMETER;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
        case SQLITE_PROTOCOL:  // it has tried to begin reading for ten seconds
            report("is held by another process");
            return ERROR_BUSY;
        case SQLITE_FULL:
            report("cannot grow: the disk is full");
            return ERROR_DISK_FULL;
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            report("is damaged; it is left as it is");
            return ERROR_REGISTRY_CORRUPT;
        case SQLITE_READONLY:
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
        case SQLITE_AUTH:
            report("cannot be written");
            return ERROR_ACCESS_DENIED;
        default:
            report("cannot be read or written");
            return ERROR_REGISTRY_IO_FAILED;
    }
}

}  // namespace platform::registry
