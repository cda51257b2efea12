/// @file atoms.h
/// Atoms: names without regard to case, counted, as 16-bit numbers from 0xC000. Numbers below that stand for
/// themselves.
#pragma once

#include <windows.h>

#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace platform::user {

struct NameHash {
    std::size_t operator()(std::string_view name) const noexcept;
};
struct NameEqual {
    bool operator()(std::string_view a, std::string_view b) const noexcept;
};
/// Compares names of classes, atoms and properties: ASCII letters match in either case.
bool SameName(std::string_view a, std::string_view b) noexcept;

class AtomTable {
  public:
    ATOM Add(LPCSTR name);          ///< 0 with the error code set
    bool Delete(ATOM atom);         ///< false with ERROR_INVALID_HANDLE set
    std::string Name(ATOM atom);    ///< empty with ERROR_INVALID_HANDLE set
    ATOM FindQuietly(LPCSTR name);  ///< leaves the error code alone

  private:
    struct Entry {
        std::string name;
        unsigned count = 0;
    };
    std::mutex lock_;
    std::vector<std::unique_ptr<Entry>> entries_;
    std::unordered_map<std::string_view, ATOM, NameHash, NameEqual> byName_;  ///< views into the entries
};

AtomTable& ClassAtoms();

}  // namespace platform::user
