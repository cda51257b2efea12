#include "controls/treelist/itemlist.h"

#include <iterator>

namespace treelist {

namespace {

constexpr UINT kEndSize = sizeof(USHORT);

LPCITEMIDLIST Next(LPCITEMIDLIST list) {
    return reinterpret_cast<LPCITEMIDLIST>(reinterpret_cast<BYTE const*>(list) + list->mkid.cb);
}

LPITEMIDLIST Allocate(UINT size) {
    Allocator const allocator;
    void* const block = allocator ? allocator->Alloc(size) : nullptr;
    if (block) {
        ZeroMemory(block, size);
    }
    return static_cast<LPITEMIDLIST>(block);
}

}  // namespace

UINT ListSize(LPCITEMIDLIST list) {
    if (!list) {
        return 0;
    }
    UINT size = kEndSize;
    for (; list->mkid.cb; list = Next(list)) {
        size += list->mkid.cb;
    }
    return size;
}

LPITEMIDLIST JoinLists(LPCITEMIDLIST first, LPCITEMIDLIST second) {
    UINT const head = first ? ListSize(first) - kEndSize : 0;
    UINT const tail = ListSize(second);
    LPITEMIDLIST const joined = Allocate(head + tail);
    if (joined) {
        if (head) {
            CopyMemory(joined, first, head);
        }
        CopyMemory(reinterpret_cast<BYTE*>(joined) + head, second, tail);
    }
    return joined;
}

LPITEMIDLIST CopyItem(LPCITEMIDLIST list) {
    LPITEMIDLIST const copy = Allocate(list->mkid.cb + kEndSize);
    if (copy) {
        CopyMemory(copy, list, list->mkid.cb);
    }
    return copy;
}

void FreeList(LPITEMIDLIST list) {
    Allocator const allocator;
    if (allocator && list) {
        allocator->Free(list);
    }
}

Name NameOf(IShellFolder* folder, LPCITEMIDLIST item, DWORD form, char* buffer, int size) {
    STRRET name = {};
    if (folder->GetDisplayNameOf(item, form, &name) != S_OK) {
        return Name::kNone;
    }
    switch (name.uType) {
        case STRRET_WSTR:
            // Four bytes, whatever the buffer holds: a longer name does not fit. The wide text is not freed. Both are as
            // callers have always seen them. What is left of a name that did not fit ends in any case.
            ZeroMemory(buffer, 5);
            return WideCharToMultiByte(CP_ACP, 0, name.pOleStr, -1, buffer, 4, nullptr, nullptr) ? Name::kWhole
                                                                                                 : Name::kCut;
        case STRRET_OFFSET:
            lstrcpynA(buffer, reinterpret_cast<char const*>(item) + name.uOffset, size);
            return Name::kWhole;
        case STRRET_CSTR:
            lstrcpynA(buffer, name.cStr, size);
            return Name::kWhole;
        default:
            return Name::kNone;
    }
}

LPITEMIDLIST AbsoluteList(IShellFolder* folder, LPCITEMIDLIST item) {
    char name[MAX_PATH];
    WCHAR wide[MAX_PATH];
    IShellFolder* desktop = nullptr;
    // The rest of a path that was cut could be the path of another folder.
    if (NameOf(folder, item, SHGDN_FORPARSING, name, sizeof name) != Name::kWhole ||
        FAILED(SHGetDesktopFolder(&desktop))) {
        return nullptr;
    }
    MultiByteToWideChar(CP_ACP, MB_PRECOMPOSED, name, -1, wide, static_cast<int>(std::size(wide)));
    LPITEMIDLIST list = nullptr;
    if (FAILED(desktop->ParseDisplayName(nullptr, nullptr, wide, nullptr, &list, nullptr))) {
        list = nullptr;
    }
    desktop->Release();
    return list;
}

}  // namespace treelist
