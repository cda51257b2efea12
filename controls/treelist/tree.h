// A folder tree list's window slots, its item records, and the steps that fill the tree.
#pragma once

#include "controls/treelist/itemlist.h"

#include <commctrl.h>

namespace treelist {

/// Places in the window's extra bytes.
enum Slot : int {
    kImages = 0,                      ///< the system's list of small icons
    kFlags = sizeof(LONG_PTR),        ///< Flag bits
    kTreeView = 2 * sizeof(LONG_PTR)  ///< the child window
};
constexpr int kExtraBytes = 3 * sizeof(LONG_PTR);
// Callers of 32 bits read these words by their numbers.
static_assert(sizeof(LONG_PTR) != 4 || (kFlags == 4 && kTreeView == 8 && kExtraBytes == 12));

enum Flag : LONG_PTR {
    kStarted = 1,    ///< the control started the component library
    kFirstFill = 2,  ///< the first item's children are being read: they keep their order
};

/// What an item of the tree stands for; the item's lParam is its address. Memory of the shell's allocator.
struct Item {
    IShellFolder* folder;     ///< which handed the item out; one reference is the record's
    LPITEMIDLIST relativeId;  ///< within that folder
    LPITEMIDLIST fullId;      ///< from the desktop
    BOOL fullIdKnown;         ///< it was asked for; it is null still if there is none
};

/// Empties the tree, reads the top level and opens its first item.
/// @return whether there was a desktop to read.
bool FillTopLevel(HWND control);

/// Reads an item's children when it is opened for the first time.
void FillFirstTime(HWND control, TVITEMA const& item);

/// Releases an item's record.
void Discard(Item* item);

/// Works the item's absolute list out, once.
void FindFullId(Item& item);

/// Whether a window is a folder tree list.
bool IsTreeList(HWND window);

}  // namespace treelist
