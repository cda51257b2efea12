/// @file database.h
/// The registry's file: opening it, its schema, its statements, and what its failures are called.
#pragma once

#include <windows.h>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace platform::registry {

using KeyId = std::int64_t;

// Keys that are there from the beginning.
constexpr KeyId kUserRoot = 1;
constexpr KeyId kMachineRoot = 2;
constexpr KeyId kClassesRoot = 4;

enum class Query {
    FindKey,      ///< parent, folded -> id
    KeyExists,    ///< id
    InsertKey,    ///< parent, folded, name
    DeleteKey,    ///< id
    DeleteAll,    ///< id: all values of the key
    ListKeys,     ///< parent -> name; in the order of their names
    FindValue,    ///< key, folded -> type, data
    WriteValue,   ///< key, folded, name, type, data; changes nothing when the key is gone
    DeleteValue,  ///< key, folded
    ListValues,   ///< key -> name; in the order in which they were made
    Begin,
    Commit,
    Rollback,
    Count
};

/// One prepared statement in use; it is ready for the next use when this goes.
class Statement {
  public:
    Statement(sqlite3_stmt* statement, int failure) : statement_(statement), failure_(failure) {}
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement() {
        sqlite3_reset(statement_);
    }

    Statement& Bind(int place, std::int64_t number) {
        return Keep(sqlite3_bind_int64(statement_, place, number));
    }
    /// The text must stay as it is while the statement runs.
    Statement& Bind(int place, std::string_view text) {
        return Keep(sqlite3_bind_text64(statement_, place, text.data() ? text.data() : "", text.size(), SQLITE_STATIC,
                                        SQLITE_UTF8));
    }
    Statement& BindBytes(int place, std::string_view bytes) {
        return Keep(
            sqlite3_bind_blob64(statement_, place, bytes.data() ? bytes.data() : "", bytes.size(), SQLITE_STATIC));
    }

    /// Waits for other processes where it must. @returns SQLITE_ROW, SQLITE_DONE or a failure.
    int Step() {
        if (failure_ != SQLITE_OK) {
            return failure_;
        }
        const int code = sqlite3_step(statement_);
        if (code == SQLITE_BUSY && !begun_) {
            return StepPatiently();
        }
        begun_ = true;
        return code;
    }

    std::int64_t Number(int column) const {
        return sqlite3_column_int64(statement_, column);
    }
    std::string Bytes(int column) const {
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement_, column));
        return bytes ? std::string(bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column)))
                     : std::string();
    }

  private:
    int StepPatiently();
    Statement& Keep(int code) {
        failure_ = failure_ == SQLITE_OK ? code : failure_;
        return *this;
    }

    sqlite3_stmt* statement_;
    int failure_;  ///< why there is no statement, or none that can run
    bool begun_ = false;
};

class Database {
  public:
    /// Opens the file of a state folder, and makes it when there is none. @param error  receives what went wrong, about
    /// which a line has been written then.
    static std::unique_ptr<Database> Open(const std::string& folder, LONG* error);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// @returns a statement to bind and step; a failure to prepare it shows when it is stepped.
    Statement Use(Query query);

    /// @returns the error code for a failure of SQLite's, after one line on standard error where a person can help.
    LONG Failure(int code) const;

    std::int64_t LastKey() const {
        return sqlite3_last_insert_rowid(connection_);
    }
    int Changes() const {
        return sqlite3_changes(connection_);
    }

    /// Head of the index that all connections to a write-ahead log share in memory. It changes with every commit of any
    /// process, first of all, so that a look at it tells whether anything has changed. Its layout is a part of the
    /// file format.
    struct Head {
        std::array<std::uint32_t, 12> words{};
        std::uint32_t Commits() const {
            return words[2];
        }
    };
    /// @returns false when there is nothing to look at, as the file is not kept with such a log.
    bool ReadHead(Head* head) const;

    /// @returns whether nothing has changed since a look at the head. Nobody can change a file on a medium that cannot be
    /// written.
    bool IsAt(const Head& head) const {
        return head_ ? std::equal(head.words.begin(), head.words.end(), head_) : frozen_;
    }

  private:
    explicit Database(std::string path) : path_(std::move(path)) {}
    LONG Connect();
    LONG ConnectFrozen();
    struct Contents {
        int version = 0;
        int application = 0;
        int tables = 0;
        bool AreNew() const {
            return version == 0 && application == 0 && tables == 0;
        }
    };
    int Prepare();
    int Look(Contents* contents);
    int MakeSchema();
    int NameOwner();
    int Execute(const char* text);
    int ReadNumber(const char* pragma, int* number);
    void FindHead();
    bool HasNoRoom() const;
    void Close();

    std::string path_;
    sqlite3* connection_ = nullptr;
    std::array<sqlite3_stmt*, static_cast<std::size_t>(Query::Count)> statements_{};
    const volatile std::uint32_t* head_ = nullptr;
    bool frozen_ = false;
};

}  // namespace platform::registry
