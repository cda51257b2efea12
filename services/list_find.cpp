#include <cvutil32/list.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "core/halving.h"

// The searches look at the count and the items only, through the same 24-byte header as list.cpp; they do not test the
// signature, as their callers know.
namespace {

struct Items {
    const char* first;
    std::uint32_t size;
    std::uint32_t count;
    std::uint32_t end;  ///< the count, or less where items were lost with their memory
};

Items ItemsOf(LPVOID list) {
    std::uint32_t words[4];
    std::memcpy(words, static_cast<const char*>(list) - 24, sizeof words);
    return {static_cast<const char*>(list), words[1], words[2], std::min(words[2], words[3])};
}

template <class Number>
struct NumberKey {
    Number key;
    explicit NumberKey(LPCVOID address) {
        std::memcpy(&key, address, sizeof key);
    }
    std::int64_t operator()(const char* field) const {
        Number value;
        std::memcpy(&value, field, sizeof value);
        return std::int64_t{key} - value;
    }
};

struct TextKey {
    LPCSTR key;
    explicit TextKey(LPCVOID address) : key(static_cast<LPCSTR>(address)) {}
    int operator()(const char* field) const {
        return lstrcmpA(key, field);
    }
};

struct PointerKey : TextKey {
    using TextKey::TextKey;
    int operator()(const char* field) const {
        LPCSTR text;
        std::memcpy(&text, field, sizeof text);
        return lstrcmpA(key, text);
    }
};

struct Match {
    LPVOID item;
    std::uint32_t index;
};

template <class Key>
Match Linear(const Items& items, LONG offset, const Key& compare) {
    const char* field = items.first + offset;
    for (std::uint32_t i = 0; i < items.end; ++i, field += items.size) {
        if (compare(field) == 0) {
            return {const_cast<char*>(field - offset), i};
        }
    }
    return {nullptr, items.count};
}

template <class Key>
Match Binary(const Items& items, LONG offset, const Key& compare) {
    const halving::Place place =
        halving::Search(items.first, items.size, items.end, [&](const char* item) { return compare(item + offset); });
    const char* const item = items.first + std::size_t{place.index} * items.size;
    return {place.isMatch ? const_cast<char*>(item) : nullptr, place.index};
}

// Texts take a null key, which comes before all others; a number must be there to be read.
bool NeedsKey(DWORD type) {
    return type != LIST_TYPE_LPSTR && type != LIST_TYPE_STRING;
}

// One search with the comparison of the key's type. An unsupported type leaves the caller's index alone, and so does a
// null key that would have to be a number.
template <class Search>
LPVOID Dispatch(LPVOID list, DWORD type, LPCVOID key, DWORD* index, Search search) {
    Match match{nullptr, 0};
    if (list && ItemsOf(list).count > 0) {
        const Items items = ItemsOf(list);
        if (!key && NeedsKey(type)) {
            return nullptr;
        }
        switch (type) {
            case LIST_TYPE_SHORT:
                match = search(items, NumberKey<std::int16_t>(key));
                break;
            case LIST_TYPE_LONG:
                match = search(items, NumberKey<std::int32_t>(key));
                break;
            case LIST_TYPE_WORD:
                match = search(items, NumberKey<std::uint16_t>(key));
                break;
            case LIST_TYPE_DWORD:
            case 6:
            case 7:
                match = search(items, NumberKey<std::uint32_t>(key));
                break;
            case LIST_TYPE_LPSTR:
                match = search(items, PointerKey(key));
                break;
            case LIST_TYPE_STRING:
                match = search(items, TextKey(key));
                break;
            default:
                return nullptr;
        }
    }
    if (index) {
        *index = match.index;
    }
    return match.item;
}

}  // namespace

CVAPI(LPVOID) LIST_LFind(LPVOID list, DWORD type, LONG offset, LPCVOID key, DWORD* index) {
    return Dispatch(list, type, key, index,
                    [&](const Items& items, const auto& compare) { return Linear(items, offset, compare); });
}

CVAPI(LPVOID) LIST_BFind(LPVOID list, DWORD type, LONG offset, LPCVOID key, DWORD* index) {
    return Dispatch(list, type, key, index,
                    [&](const Items& items, const auto& compare) { return Binary(items, offset, compare); });
}
