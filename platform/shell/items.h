/// @file items.h
/// Item identifier lists as this namespace writes them. What comes from outside is checked before it is believed.
#pragma once

#include <windows.h>

#include <shlobj.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace platform::shell {

enum class ItemKind : BYTE { None = 0, Computer = 0x1F, Drive = 0x23, Folder = 0x31, File = 0x32 };

struct Item {
    ItemKind kind = ItemKind::None;
    std::string_view name;  ///< Drive: its letter; Folder and File: the host's name
};

/// Reads the first item of a list. @returns an Item of no kind for an end, and for what no folder of ours wrote.
Item ReadItem(LPCITEMIDLIST list);

/// @returns the list behind the first item.
LPCITEMIDLIST NextItem(LPCITEMIDLIST list);

inline bool IsEnd(LPCITEMIDLIST list) {
    return list->mkid.cb == 0;
}

/// Memory of the shell's allocator. Null when it has run out.
void* AllocateBlock(std::size_t size);
void FreeBlock(void* block);

struct BlockReleaser {
    void operator()(void* block) const {
        FreeBlock(block);
    }
};
using OwnedList = std::unique_ptr<ITEMIDLIST, BlockReleaser>;

/// @returns a list of one item. Throws bad_alloc.
OwnedList MakeItem(const Item& item);

/// @returns a list of both lists' items. Throws bad_alloc.
OwnedList JoinLists(LPCITEMIDLIST first, LPCITEMIDLIST second);

}  // namespace platform::shell
