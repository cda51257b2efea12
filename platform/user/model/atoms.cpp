#include "user/model/atoms.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace platform::user {

namespace {

constexpr ATOM kFirstNamed = 0xC000;
constexpr std::size_t kLongestName = 255;

constexpr unsigned char Lower(char c) {
    return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
}

/// @returns the number of an integer atom given by value or as "#number", else 0. `isInteger` tells an invalid number
/// from a name.
ATOM IntegerAtom(LPCSTR name, bool* isInteger) {
    *isInteger = true;
    unsigned value = 0;
    if (IS_INTRESOURCE(name)) {
        value = LOWORD(name);
    } else {
        *isInteger = name[0] == '#' && name[1] != '\0';
        for (const char* digit = name + 1; *isInteger && *digit; ++digit) {
            *isInteger = *digit >= '0' && *digit <= '9';
            value = std::min(value * 10 + static_cast<unsigned>(*digit - '0'), 0x10000u);
        }
    }
    return *isInteger && value < kFirstNamed ? static_cast<ATOM>(value) : ATOM{0};
}

}  // namespace

std::size_t NameHash::operator()(std::string_view name) const noexcept {
    std::size_t hash = 1469598103934665603u;
    for (const char c : name) {
        hash = (hash ^ Lower(c)) * 1099511628211u;
    }
    return hash;
}

bool SameName(std::string_view a, std::string_view b) noexcept {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return x == y || Lower(x) == Lower(y); });
}

bool NameEqual::operator()(std::string_view a, std::string_view b) const noexcept {
    return SameName(a, b);
}

ATOM AtomTable::FindQuietly(LPCSTR name) {
    bool isInteger = false;
    const ATOM integer = IntegerAtom(name, &isInteger);
    if (integer) {
        return integer;
    }
    const std::lock_guard guard(lock_);
    if (IS_INTRESOURCE(name)) {
        const std::size_t index = LOWORD(name) - std::size_t{kFirstNamed};
        return LOWORD(name) >= kFirstNamed && index < entries_.size() && entries_[index]->count ? LOWORD(name)
                                                                                                : ATOM{0};
    }
    if (isInteger) {
        return 0;
    }
    const auto found = byName_.find(std::string_view(name));
    return found == byName_.end() ? ATOM{0} : found->second;
}

ATOM AtomTable::Add(LPCSTR name) try {
    bool isInteger = false;
    const ATOM integer = IntegerAtom(name, &isInteger);
    if (integer) {
        return integer;
    }
    if (isInteger || !*name || std::strlen(name) > kLongestName) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    const std::lock_guard guard(lock_);
    if (const auto found = byName_.find(std::string_view(name)); found != byName_.end()) {
        ++entries_[found->second - std::size_t{kFirstNamed}]->count;
        return found->second;
    }
    auto free = std::find_if(entries_.begin(), entries_.end(), [](const auto& entry) { return entry->count == 0; });
    if (free == entries_.end()) {
        if (entries_.size() >= 0x10000u - kFirstNamed) {
            SetLastError(ERROR_NOT_ENOUGH_MEMORY);
            return 0;
        }
        entries_.push_back(std::make_unique<Entry>());
        free = entries_.end() - 1;
    }
    const auto atom = static_cast<ATOM>(kFirstNamed + (free - entries_.begin()));
    (*free)->name = name;
    byName_.emplace((*free)->name, atom);
    (*free)->count = 1;
    return atom;
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return 0;
}

bool AtomTable::Delete(ATOM atom) {
    if (atom && atom < kFirstNamed) {
        return true;
    }
    const std::lock_guard guard(lock_);
    const std::size_t index = atom - std::size_t{kFirstNamed};
    if (atom < kFirstNamed || index >= entries_.size() || !entries_[index]->count) {
        SetLastError(ERROR_INVALID_HANDLE);
        return false;
    }
    Entry& entry = *entries_[index];
    if (--entry.count == 0) {
        byName_.erase(entry.name);
        entry.name.clear();
    }
    return true;
}

std::string AtomTable::Name(ATOM atom) {
    if (atom && atom < kFirstNamed) {
        return "#" + std::to_string(atom);
    }
    const std::lock_guard guard(lock_);
    const std::size_t index = atom - std::size_t{kFirstNamed};
    if (atom < kFirstNamed || index >= entries_.size() || !entries_[index]->count) {
        SetLastError(ERROR_INVALID_HANDLE);
        return {};
    }
    return entries_[index]->name;
}

AtomTable& ClassAtoms() {
    static AtomTable table;
    return table;
}

}  // namespace platform::user
