#include "registry/store.h"

#include <pthread.h>

#include <cstdlib>

#include "base/state.h"
#include "kernel/text/encoding.h"
#include "registry/names.h"

namespace platform::registry {
namespace {

constexpr std::size_t kMostKept = 16 << 20;
constexpr std::size_t kEntryCost = 96;

// "key:name"; a name may hold any byte, a number no colon.
void ComposeName(std::string& into, KeyId key, std::string_view name) {
    into.assign(reinterpret_cast<const char*>(&key), sizeof key);
    into.append(name);
}

}  // namespace

// Never destroyed: modules may still use the registry while the process ends.
Store& Store::Instance() {
    static Store& store = *[] {
        // A connection must not pass to another process; each of the two makes one of its own when it needs it.
        pthread_atfork(Close, Unlock, Unlock);
        // The last process that leaves puts the log into the file.
        std::atexit([] {
            Close();
            Unlock();
        });
        return new Store;
    }();
    return store;
}

// Keeps the lock.
void Store::Close() {
    Store& store = Instance();
    store.lock_.lock();
    store.database_.reset();
    store.current_ = false;
}

void Store::Unlock() {
    Instance().lock_.unlock();
}

Store::Use::Use(LONG* error) : store_(Instance()), guard_(store_.lock_) {
    *error = store_.Refresh();
}

void Store::Forget() {
    keys_.clear();
    values_.clear();
    lists_.clear();
    kept_ = 0;
}

void Store::Remember(std::size_t bytes) {
    kept_ += bytes + kEntryCost;
}

LONG Store::Refresh() {
    if (!database_ || !base::IsStateFolder(folder_)) {
        database_.reset();
        std::string folder = base::StateFolder();
        LONG error = ERROR_SUCCESS;
        database_ = Database::Open(folder, &error);
        if (!database_) {
            return error;
        }
        folder_ = std::move(folder);
        current_ = false;
    }
    // The head is read before anything else: what is read later is at least as new as what the head stands for.
    if (!current_ || !database_->IsAt(head_) || kept_ > kMostKept) {
        Forget();
        database_->ReadHead(&head_);
        current_ = true;
    }
    return ERROR_SUCCESS;
}

// Looks a value up by its folded name. @returns that name, which holds until the next look-up.
std::string_view Store::Want(KeyId key, std::string_view name) {
    ComposeName(wanted_, key, {});
    AppendFolded(wanted_, name);
    return std::string_view(wanted_).substr(sizeof key);
}

// After a write of our own to the value that was looked up: when the log has seen exactly one commit since the last look, it
// was this one, and all that is kept is still true.
LONG Store::Changed(KeyId key, int code) {
    values_.erase(wanted_);
    lists_.erase({Query::ListValues, key});
    if (code != SQLITE_DONE) {
        return database_->Failure(code);
    }
    Database::Head head;
    if (database_->ReadHead(&head) && head.Commits() == head_.Commits() + 1) {
        head_ = head;
    }
    return ERROR_SUCCESS;
}

LONG Store::FindBelow(KeyId from, const std::string& folded, KeyId* found) {
    Statement statement = database_->Use(Query::FindKey);
    const int code = statement.Bind(1, from).Bind(2, folded).Step();
    *found = code == SQLITE_ROW ? statement.Number(0) : 0;
    return code == SQLITE_DONE ? ERROR_FILE_NOT_FOUND : database_->Failure(code);
}

LONG Store::FindKey(KeyId from, std::string_view path, KeyId* found) {
    ComposeName(wanted_, from, path);
    if (const auto kept = keys_.find(wanted_); kept != keys_.end()) {
        *found = kept->second;
        return *found ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
    }
    std::vector<KeyName> names;
    LONG error = SplitKeyPath(path, names);
    if (error != ERROR_SUCCESS) {
        return error;
    }
    *found = from;
    if (names.empty()) {
        error = CheckKey(from);
    }
    for (const KeyName& name : names) {
        error = FindBelow(*found, name.folded, found);
        if (error != ERROR_SUCCESS) {
            *found = 0;
            break;
        }
    }
    if (error == ERROR_SUCCESS || error == ERROR_FILE_NOT_FOUND) {
        Remember(wanted_.size());
        keys_.emplace(wanted_, *found);
    }
    return error;
}

// Keys change all in one transaction or not at all, and rarely: what is kept is simply read again.
template <class Steps>
LONG Store::Together(Steps steps) {
    if (const int code = database_->Use(Query::Begin).Step(); code != SQLITE_DONE) {
        return database_->Failure(code);
    }
    LONG error = steps();
    if (error == ERROR_SUCCESS) {
        error = database_->Failure(database_->Use(Query::Commit).Step());
    }
    if (error != ERROR_SUCCESS) {
        database_->Use(Query::Rollback).Step();
    }
    current_ = false;
    return error;
}

LONG Store::CreateKey(KeyId from, std::string_view path, KeyId* found, bool* created) {
    *created = false;
    const LONG error = FindKey(from, path, found);
    return error == ERROR_FILE_NOT_FOUND ? Together([&] { return CreateMissing(from, path, found, created); }) : error;
}

LONG Store::CreateMissing(KeyId from, std::string_view path, KeyId* found, bool* created) {
    std::vector<KeyName> names;
    SplitKeyPath(path, names);
    LONG error = CheckKey(from);
    *found = from;
    for (std::size_t i = 0; i < names.size() && error == ERROR_SUCCESS; ++i) {
        const KeyId parent = *found;
        error = FindBelow(parent, names[i].folded, found);
        if (error == ERROR_FILE_NOT_FOUND) {
            const int code =
                database_->Use(Query::InsertKey).Bind(1, parent).Bind(2, names[i].folded).Bind(3, names[i].name).Step();
            error = database_->Failure(code);
            *found = database_->LastKey();
            *created = error == ERROR_SUCCESS;
        }
    }
    return error;
}

LONG Store::DeleteKey(KeyId from, std::string_view path) {
    KeyId key = 0;
    if (const LONG error = FindKey(from, path, &key)) {
        return error;
    }
    return key <= kClassesRoot ? ERROR_ACCESS_DENIED : Together([&] { return DeleteFound(key); });
}

LONG Store::DeleteFound(KeyId key) {
    {
        const int code = database_->Use(Query::ListKeys).Bind(1, key).Step();
        if (code != SQLITE_DONE) {
            return code == SQLITE_ROW ? ERROR_ACCESS_DENIED : database_->Failure(code);
        }
    }
    for (const Query query : {Query::DeleteAll, Query::DeleteKey}) {
        const int code = database_->Use(query).Bind(1, key).Step();
        if (code != SQLITE_DONE) {
            return database_->Failure(code);
        }
    }
    return database_->Changes() ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
}

LONG Store::CheckKey(KeyId key) {
    Statement statement = database_->Use(Query::KeyExists);
    const int code = statement.Bind(1, key).Step();
    return code == SQLITE_DONE ? ERROR_KEY_DELETED : database_->Failure(code);
}

LONG Store::MissingValue(KeyId key, LONG otherwise) {
    const LONG error = CheckKey(key);
    return error == ERROR_SUCCESS ? otherwise : error;
}

LONG Store::ReadValue(KeyId key, std::string_view name, const Value** value) {
    const std::string_view folded = Want(key, name);
    auto kept = values_.find(wanted_);
    if (kept == values_.end()) {
        std::optional<Value> read;
        {
            Statement statement = database_->Use(Query::FindValue);
            const int code = statement.Bind(1, key).Bind(2, folded).Step();
            if (code == SQLITE_ROW) {
                read = Value{static_cast<DWORD>(statement.Number(0)), statement.Bytes(1)};
            } else if (code != SQLITE_DONE) {
                return database_->Failure(code);
            }
        }
        if (!read) {
            if (const LONG error = MissingValue(key, ERROR_SUCCESS); error != ERROR_SUCCESS) {
                return error;
            }
        }
        Remember(wanted_.size() + (read ? read->data.size() : 0));
        kept = values_.emplace(wanted_, std::move(read)).first;
    }
    *value = kept->second ? &*kept->second : nullptr;
    return kept->second ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
}

LONG Store::WriteValue(KeyId key, std::string_view name, DWORD type, std::string_view data) {
    const std::string_view folded = Want(key, name);
    const std::string utf8 = kernel::Utf8FromAnsi(name);
    const int code = database_->Use(Query::WriteValue)
                         .Bind(1, key)
                         .Bind(2, folded)
                         .Bind(3, utf8)
                         .Bind(4, std::int64_t{type})
                         .BindBytes(5, data)
                         .Step();
    const LONG error = Changed(key, code);
    return error == ERROR_SUCCESS && database_->Changes() == 0 ? ERROR_KEY_DELETED : error;
}

LONG Store::DeleteValue(KeyId key, std::string_view name) {
    const std::string_view folded = Want(key, name);
    const int code = database_->Use(Query::DeleteValue).Bind(1, key).Bind(2, folded).Step();
    const LONG error = Changed(key, code);
    return error == ERROR_SUCCESS && database_->Changes() == 0 ? MissingValue(key, ERROR_FILE_NOT_FOUND) : error;
}

LONG Store::List(Query query, KeyId key, const std::vector<std::string>** list) {
    auto kept = lists_.find({query, key});
    if (kept == lists_.end()) {
        std::vector<std::string> read;
        Statement statement = database_->Use(query);
        statement.Bind(1, key);
        int code = SQLITE_DONE;
        while ((code = statement.Step()) == SQLITE_ROW) {
            read.push_back(kernel::AnsiFromUtf8(statement.Bytes(0)));
            Remember(read.back().size());
        }
        LONG error = database_->Failure(code);
        if (error == ERROR_SUCCESS && read.empty()) {
            error = CheckKey(key);
        }
        if (error != ERROR_SUCCESS) {
            return error;
        }
        kept = lists_.emplace(std::pair{query, key}, std::move(read)).first;
    }
    *list = &kept->second;
    return ERROR_SUCCESS;
}

}  // namespace platform::registry
