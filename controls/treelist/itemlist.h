// Item identifier lists: chains of items, each beginning with its size in bytes, ended by a size of 0. All that is made
// here comes from the shell's allocator, which is taken and released around each use.
#pragma once

#include <windows.h>

#include <shlobj.h>

namespace treelist {

/// The shell's allocator for as long as the object lives.
class Allocator {
  public:
    Allocator() {
        if (FAILED(SHGetMalloc(&allocator_))) {
            allocator_ = nullptr;
        }
    }
    ~Allocator() {
        if (allocator_) {
            allocator_->Release();
        }
    }
    Allocator(Allocator const&) = delete;
    Allocator& operator=(Allocator const&) = delete;

    explicit operator bool() const {
        return allocator_ != nullptr;
    }
    IMalloc* operator->() const {
        return allocator_;
    }

  private:
    IMalloc* allocator_ = nullptr;
};

/// @return bytes of a list with its end; 0 for none.
UINT ListSize(LPCITEMIDLIST list);

/// @return the items of both lists in a new one; null when memory runs out. The first list may be null.
LPITEMIDLIST JoinLists(LPCITEMIDLIST first, LPCITEMIDLIST second);

/// @return a list's first item and its end in a new list; null when memory runs out.
LPITEMIDLIST CopyItem(LPCITEMIDLIST list);

/// Releases a list; null is nothing to release.
void FreeList(LPITEMIDLIST list);

/// What came of asking for a name.
enum class Name { kNone, kCut, kWhole };

/// Asks a folder for the name of one of its items.
/// @param form    SHGDN_NORMAL for people, SHGDN_FORPARSING for AbsoluteList().
/// @param size    of the buffer in bytes; longer names are cut.
Name NameOf(IShellFolder* folder, LPCITEMIDLIST item, DWORD form, char* buffer, int size);

/// @return the absolute list of an item, which its parsing name leads to; null if that fails.
LPITEMIDLIST AbsoluteList(IShellFolder* folder, LPCITEMIDLIST item);

}  // namespace treelist
