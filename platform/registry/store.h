/// @file store.h
/// Keys and values, whoever wrote them last.
///
/// One store serves the process. What was read is kept until any process has written something, which the look at the
/// log's head tells without asking the file.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "registry/database.h"

namespace platform::registry {

struct Value {
    DWORD type = REG_NONE;
    std::string data;
};

/// All calls are made under the store's lock, and what they point to holds until the next one.
class Store {
  public:
    /// Takes the lock and brings the store up to date. @param error  receives why there is none.
    class Use {
      public:
        explicit Use(LONG* error);
        Store& operator*() const {
            return store_;
        }

      private:
        Store& store_;
        std::unique_lock<std::mutex> guard_;
    };

    /// ERROR_FILE_NOT_FOUND when there is no such key.
    LONG FindKey(KeyId from, std::string_view path, KeyId* found);
    LONG CreateKey(KeyId from, std::string_view path, KeyId* found, bool* created);
    /// ERROR_ACCESS_DENIED for a root and for a key that has subkeys.
    LONG DeleteKey(KeyId from, std::string_view path);

    /// ERROR_KEY_DELETED when the key itself is gone, as all that follow.
    LONG ReadValue(KeyId key, std::string_view name, const Value** value);
    LONG WriteValue(KeyId key, std::string_view name, DWORD type, std::string_view data);
    LONG DeleteValue(KeyId key, std::string_view name);

    /// Names of the code page in use. query: ListKeys or ListValues.
    LONG List(Query query, KeyId key, const std::vector<std::string>** list);

  private:
    static Store& Instance();
    static void Close();
    static void Unlock();

    LONG Refresh();
    void Forget();
    void Remember(std::size_t bytes);
    std::string_view Want(KeyId key, std::string_view name);
    LONG Changed(KeyId key, int code);

    LONG CheckKey(KeyId key);
    LONG FindBelow(KeyId from, const std::string& folded, KeyId* found);
    LONG MissingValue(KeyId key, LONG otherwise);
    LONG CreateMissing(KeyId from, std::string_view path, KeyId* found, bool* created);
    template <class Steps>
    LONG Together(Steps steps);
    LONG DeleteFound(KeyId key);

    std::mutex lock_;
    std::string folder_;
    std::unique_ptr<Database> database_;

    Database::Head head_{};
    bool current_ = false;                         ///< whether what is kept is what head_ stands for
    std::size_t kept_ = 0;                         ///< bytes, roughly
    std::string wanted_;                           ///< the name being looked up; its memory is used again
    std::unordered_map<std::string, KeyId> keys_;  ///< by parent and path; 0 for none
    std::unordered_map<std::string, std::optional<Value>> values_;  ///< by key and folded name
    std::map<std::pair<Query, KeyId>, std::vector<std::string>> lists_;
};

}  // namespace platform::registry
