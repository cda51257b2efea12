#include <cvutil32/list.h>

#include <cstdint>
#include <cstring>

#include "core/globalblock.h"

namespace {

// The header is exactly six 32-bit words on every platform; the handle is the address just behind it.
struct LISTHEADER {
    std::uint32_t signature;
    std::uint32_t itemSize;
    std::uint32_t count;
    std::uint32_t capacity;
    std::uint32_t increment;
    std::uint32_t current;
};
static_assert(sizeof(LISTHEADER) == 24);

constexpr std::uint32_t kHandleListSignature = 0x484C5453;  // "STLH" in memory

LISTHEADER* Header(LPVOID list) {
    return reinterpret_cast<LISTHEADER*>(static_cast<char*>(list) - sizeof(LISTHEADER));
}

LISTHEADER* ValidHeader(LPVOID list) {
    if (!list) {
        return nullptr;
    }
    LISTHEADER* header = Header(list);
    return header->signature == kHandleListSignature ? header : nullptr;
}

char* Item(LPVOID list, std::uint32_t index) {
    return static_cast<char*>(list) + std::size_t{index} * Header(list)->itemSize;
}

// A product or sum that does not fit is a request that memory cannot meet.
std::size_t BlockSize(std::uint32_t capacity, std::uint32_t itemSize) {
    const std::uint64_t bytes = std::uint64_t{capacity} * itemSize;
    constexpr std::uint64_t most = SIZE_MAX - sizeof(LISTHEADER);
    return bytes > most ? SIZE_MAX : static_cast<std::size_t>(bytes + sizeof(LISTHEADER));
}

}  // namespace

CVAPI(LPVOID) LIST_Malloc(DWORD capacity, DWORD itemSize) {
    const std::size_t size = BlockSize(capacity, itemSize);
    auto* header = size == SIZE_MAX ? nullptr : static_cast<LISTHEADER*>(globalblock::Allocate(size));
    if (header) {
        *header = {kHandleListSignature, itemSize, 0, capacity, capacity, 0};
    }
    // Callers rely on the odd failure value: a null block advanced past the header.
    return reinterpret_cast<LPVOID>(reinterpret_cast<std::uintptr_t>(header) + sizeof(LISTHEADER));
}

CVAPI(BOOL) LIST_Free(LPVOID list) {
    LISTHEADER* header = ValidHeader(list);
    if (!header) {
        return FALSE;
    }
    globalblock::Release(header);
    return TRUE;
}

CVAPI(BOOL) LIST_IsValid(LPVOID list) {
    return ValidHeader(list) != nullptr;
}

CVAPI(DWORD) LIST_GetCount(LPVOID list) {
    const LISTHEADER* header = ValidHeader(list);
    return header ? header->count : 0;
}

CVAPI(LPVOID) LIST_Realloc(LPVOID list, DWORD capacity) {
    LISTHEADER* header = ValidHeader(list);
    if (!header) {
        return nullptr;
    }
    const std::size_t size = BlockSize(capacity, header->itemSize);
    auto* moved = size == SIZE_MAX ? nullptr : static_cast<LISTHEADER*>(globalblock::Resize(header, size));
    if (!moved) {
        return nullptr;
    }
    moved->capacity = capacity;
    return moved + 1;
}

CVAPI(DWORD) LIST_Insert(LPVOID* list, LPCVOID item, DWORD index) {
    constexpr DWORD failed = 0xFFFFFFFF;
    if (!list || !ValidHeader(*list)) {
        return failed;
    }
    LPVOID target = *list;
    if (Header(target)->count >= Header(target)->capacity) {
        const LISTHEADER full = *Header(target);
        // Nothing is ever written behind a block: a list that cannot grow (increment 0) or whose capacity was set below
        // its count refuses the item, and so does one that would overflow its counters.
        const std::uint64_t wanted = std::uint64_t{full.capacity} + full.increment;
        if (wanted <= full.count || wanted > 0xFFFFFFFF) {
            return failed;
        }
        target = LIST_Realloc(target, static_cast<DWORD>(wanted));
        if (!ValidHeader(target)) {
            return failed;
        }
    }
    LISTHEADER* header = Header(target);
    const std::uint32_t place = index < header->count ? index : header->count;
    char* slot = Item(target, place);
    // An item of this very list moves with its block, and again when the items behind the index shift.
    const std::size_t at = reinterpret_cast<std::uintptr_t>(item) - reinterpret_cast<std::uintptr_t>(*list);
    if (item && at < std::size_t{header->count} * header->itemSize) {
        item = static_cast<char*>(target) + at + (at >= std::size_t{place} * header->itemSize ? header->itemSize : 0);
    }
    std::memmove(slot + header->itemSize, slot, std::size_t{header->count - place} * header->itemSize);
    if (item) {
        std::memcpy(slot, item, header->itemSize);
    } else {
        std::memset(slot, 0, header->itemSize);
    }
    ++header->count;
    *list = target;
    return place;
}

CVAPI(DWORD) LIST_Append(LPVOID* list, LPCVOID item) {
    return LIST_Insert(list, item, 0xFFFFFFFF);
}

CVAPI(LPVOID) LIST_New(LPVOID* list) {
    const DWORD index = LIST_Append(list, nullptr);
    return index == 0xFFFFFFFF ? nullptr : Item(*list, index);
}

CVAPI(BOOL) LIST_Delete(LPVOID list, DWORD index) {
    LISTHEADER* header = ValidHeader(list);
    if (!header || index >= header->count) {
        return FALSE;
    }
    // Items that were lost with their memory are not there to be moved.
    const std::uint32_t end = header->count < header->capacity ? header->count : header->capacity;
    if (index + 1 < end) {
        char* slot = Item(list, index);
        std::memmove(slot, slot + header->itemSize, std::size_t{end - index - 1} * header->itemSize);
    }
    --header->count;
    return TRUE;
}

CVAPI(LPVOID) LIST_GetFirstItem(LPVOID list) {
    return LIST_SetCurrentItem(list, 0);
}

CVAPI(LPVOID) LIST_GetNextItem(LPVOID list) {
    LISTHEADER* header = ValidHeader(list);
    if (!header || header->count == 0 || header->current >= header->count - 1) {
        return nullptr;
    }
    return Item(list, ++header->current);
}

CVAPI(LPVOID) LIST_GetCurrentItem(LPVOID list) {
    LISTHEADER* header = ValidHeader(list);
    // The cursor may point behind the last item after deletions; callers get that address all the same.
    return header && header->count > 0 ? Item(list, header->current) : nullptr;
}

CVAPI(LPVOID) LIST_SetCurrentItem(LPVOID list, DWORD index) {
    LISTHEADER* header = ValidHeader(list);
    if (!header || index >= header->count) {
        return nullptr;
    }
    header->current = index;
    return Item(list, index);
}
