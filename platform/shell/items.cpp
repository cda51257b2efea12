#include "shell/items.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace platform::shell {
namespace {

// Behind the size: kind, the name and its NUL. The size is rounded up to an even one.
constexpr std::size_t kKindAt = 2;
constexpr std::size_t kNameAt = 3;

OwnedList Allocate(std::size_t size) {
    OwnedList list(static_cast<LPITEMIDLIST>(AllocateBlock(size)));
    if (!list) {
        throw std::bad_alloc();
    }
    std::memset(list.get(), 0, size);
    return list;
}

/// Bytes of a list with its end.
std::size_t ListSize(LPCITEMIDLIST list) {
    std::size_t size = sizeof(USHORT);
    for (; !IsEnd(list); list = NextItem(list)) {
        size += list->mkid.cb;
    }
    return size;
}

bool IsKind(BYTE kind) {
    return kind == BYTE(ItemKind::Computer) || kind == BYTE(ItemKind::Drive) || kind == BYTE(ItemKind::Folder) ||
           kind == BYTE(ItemKind::File);
}

}  // namespace

Item ReadItem(LPCITEMIDLIST list) {
    const auto* bytes = reinterpret_cast<const BYTE*>(list);
    if (!list || list->mkid.cb < kNameAt + 1 || !IsKind(bytes[kKindAt])) {
        return {};
    }
    const auto* name = reinterpret_cast<const char*>(bytes + kNameAt);
    const char* end = static_cast<const char*>(std::memchr(name, 0, list->mkid.cb - kNameAt));
    if (!end) {
        return {};
    }
    const std::string_view text(name, static_cast<std::size_t>(end - name));
    const auto kind = ItemKind{bytes[kKindAt]};
    const bool named = kind == ItemKind::Folder || kind == ItemKind::File;
    // A name that leads elsewhere was not written by us.
    if (named && (text.empty() || text == "." || text == ".." || text.find('/') != text.npos)) {
        return {};
    }
    if (kind == ItemKind::Drive && (text.size() != 1 || text[0] < 'A' || text[0] > 'Z')) {
        return {};
    }
    return {kind, text};
}

LPCITEMIDLIST NextItem(LPCITEMIDLIST list) {
    return reinterpret_cast<LPCITEMIDLIST>(reinterpret_cast<const BYTE*>(list) + list->mkid.cb);
}

OwnedList MakeItem(const Item& item) {
    const std::size_t size = (kNameAt + item.name.size() + 2) & ~std::size_t{1};
    OwnedList list = Allocate(size + sizeof(USHORT));
    auto* bytes = reinterpret_cast<BYTE*>(list.get());
    list->mkid.cb = static_cast<USHORT>(size);
    bytes[kKindAt] = BYTE(item.kind);
    std::copy(item.name.begin(), item.name.end(), bytes + kNameAt);
    return list;
}

OwnedList JoinLists(LPCITEMIDLIST first, LPCITEMIDLIST second) {
    const std::size_t head = first ? ListSize(first) - sizeof(USHORT) : 0;
    const std::size_t tail = second ? ListSize(second) : sizeof(USHORT);
    OwnedList list = Allocate(head + tail);
    auto* bytes = reinterpret_cast<BYTE*>(list.get());
    if (head) {
        std::memcpy(bytes, first, head);
    }
    if (second) {
        std::memcpy(bytes + head, second, tail);
    }
    return list;
}

}  // namespace platform::shell
