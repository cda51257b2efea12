#include <cvutil32/list.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

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
    int operator()(const char* field) const {
        Number value;
        std::memcpy(&value, field, sizeof value);
        return (key > value) - (key < value);
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

std::uint32_t IndexOf(const Items& items, const char* item) {
    const auto bytes = static_cast<std::size_t>(item - items.first);
    if (items.size == 0) {
        return 0;
    }
    // The short division is much the faster one, and nearly always enough.
    return bytes <= 0xFFFFFFFF ? static_cast<std::uint32_t>(bytes) / items.size
                               : static_cast<std::uint32_t>(bytes / items.size);
}

// Halves the places from low on, the middle one being (low + high) / 2 throughout, which decides among equal keys.
template <class Key>
Match Binary(const Items& items, LONG offset, const Key& compare) {
    std::uint32_t low = 0;
    std::uint32_t high = items.end;
    while (low < high) {
        const std::uint32_t middle = low + (high - low) / 2;
        const char* item = items.first + std::size_t{middle} * items.size;
        const int order = compare(item + offset);
        if (order == 0) {
            return {const_cast<char*>(item), middle};
        }
        (order > 0 ? low : high) = order > 0 ? middle + 1 : middle;
    }
    return {nullptr, high};
}

// The same for numbers, without a branch that depends on them, as no processor could foresee it. It therefore goes on to
// the end behind a match. Both next steps are worked out while the number is fetched.
template <class Number>
Match Binary(const Items& items, LONG offset, const NumberKey<Number>& compare) {
    const Number key = compare.key;
    const std::size_t size = items.size;
    const char* field = items.first + offset;
    const char* match = nullptr;
    std::size_t left = items.end;
    std::size_t step = left / 2 * size;
    while (left) {
        const char* const middle = field + step;
        Number value;
        std::memcpy(&value, middle, sizeof value);
        const std::size_t below = left / 2;
        const std::size_t above = left - below - 1;
        const std::size_t stepBelow = below / 2 * size;
        const std::size_t stepAbove = above / 2 * size;
        const bool isAbove = __builtin_expect_with_probability(key > value, 1, 0.5);
        match = value == key && !match ? middle : match;
        field = isAbove ? middle + size : field;
        left = isAbove ? above : below;
        step = isAbove ? stepAbove : stepBelow;
    }
    const char* const item = (match ? match : field) - offset;
    return {match ? const_cast<char*>(item) : nullptr, IndexOf(items, item)};
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
