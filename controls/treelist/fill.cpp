// Reading folders into the tree.
#include "controls/treelist/tree.h"

#include <shellapi.h>

namespace treelist {

namespace {

/// A row of the tree as it is being made.
struct Branch {
    HWND treeView;
    IShellFolder* folder;
    LPCITEMIDLIST parentId;  ///< from the desktop; null at the top
    HTREEITEM parent;
    HTREEITEM last;  ///< the item inserted just before
};

/// Folders that lie on the file system, and others as long as there is something below them.
bool IsShown(IShellFolder* folder, LPCITEMIDLIST id, ULONG& attributes) {
    attributes = SFGAO_HASSUBFOLDER | SFGAO_FOLDER;
    folder->GetAttributesOf(1, &id, &attributes);
    if ((attributes & SFGAO_FOLDER) && !(attributes & (SFGAO_HASSUBFOLDER | SFGAO_FILESYSTEM))) {
        // Some systems answer no more than was asked.
        ULONG place = SFGAO_FILESYSTEM;
        if (SUCCEEDED(folder->GetAttributesOf(1, &id, &place))) {
            attributes |= place & SFGAO_FILESYSTEM;
        }
    }
    return (attributes & SFGAO_FOLDER) && (attributes & (SFGAO_HASSUBFOLDER | SFGAO_FILESYSTEM));
}

int IconOf(LPCITEMIDLIST fullId, UINT flags) {
    SHFILEINFOA information = {};
    SHGetFileInfoA(reinterpret_cast<LPCSTR>(fullId), 0, &information, sizeof information,
                   SHGFI_PIDL | SHGFI_SYSICONINDEX | SHGFI_SMALLICON | flags);
    return information.iIcon;
}

/// @return false if the filling has to end here: without memory or a name, and when somebody answered by ending the tree.
bool Insert(Branch& branch, IMalloc* allocator, LPCITEMIDLIST id, ULONG attributes) {
    auto const item = static_cast<Item*>(allocator->Alloc(sizeof(Item)));
    if (!item) {
        return false;
    }
    char name[256];
    if (NameOf(branch.folder, id, SHGDN_NORMAL, name, sizeof name) == Name::kNone) {
        allocator->Free(item);
        return false;
    }
    TVINSERTSTRUCTA insert = {};
    insert.hParent = branch.parent;
    insert.hInsertAfter = branch.last;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_PARAM | TVIF_SELECTEDIMAGE;
    if (attributes & SFGAO_HASSUBFOLDER) {
        insert.item.mask |= TVIF_CHILDREN;
        insert.item.cChildren = 1;
    }
    insert.item.pszText = name;
    insert.item.cchTextMax = MAX_PATH;
    insert.item.lParam = reinterpret_cast<LPARAM>(item);
    LPITEMIDLIST const fullId = JoinLists(branch.parentId, id);
    if (fullId) {
        insert.item.iImage = IconOf(fullId, 0);
        insert.item.iSelectedImage = IconOf(fullId, SHGFI_OPENICON);
    }
    bool const top = branch.parent == TVI_ROOT;
    *item = {branch.folder, CopyItem(id), top ? JoinLists(branch.parentId, id) : nullptr, top};
    branch.folder->AddRef();
    auto const inserted = reinterpret_cast<HTREEITEM>(
        SendMessageA(branch.treeView, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
    if (inserted) {
        branch.last = inserted;
    } else {
        Discard(item);  // no item has it, also where the tree has gone before it was asked
    }
    if (fullId) {
        allocator->Free(fullId);
    }
    return IsWindow(branch.treeView);
}

/// @return false if it was broken off.
bool InsertAll(Branch branch, IMalloc* allocator, IEnumIDList* items) {
    LPITEMIDLIST id = nullptr;
    ULONG fetched = 0;
    while (items->Next(1, &id, &fetched) == S_OK) {
        ULONG attributes = 0;
        bool const go = !IsShown(branch.folder, id, attributes) || Insert(branch, allocator, id, attributes);
        allocator->Free(id);
        id = nullptr;
        if (!go) {
            return false;
        }
    }
    return true;
}

void FillChildren(HWND treeView, IShellFolder* folder, LPCITEMIDLIST parentId, HTREEITEM parent) {
    IMalloc* allocator = nullptr;
    if (FAILED(SHGetMalloc(&allocator))) {
        return;
    }
    IEnumIDList* items = nullptr;
    bool whole = true;
    // S_FALSE stands for a folder without items, and comes without an enumerator.
    if (SUCCEEDED(folder->EnumObjects(GetParent(treeView), SHCONTF_FOLDERS | SHCONTF_NONFOLDERS, &items)) && items) {
        whole = InsertAll({treeView, folder, parentId, parent, nullptr}, allocator, items);
        items->Release();
    }
    if (whole) {
        SetCursor(LoadCursorA(nullptr, IDC_ARROW));
    }
    allocator->Release();
}

/// The same with a copy of the parent's list, which goes with the tree if somebody ends that meanwhile.
void FillBelow(HWND treeView, IShellFolder* folder, LPCITEMIDLIST parentId, HTREEITEM parent) {
    Allocator const allocator;
    LPITEMIDLIST const kept = allocator && parentId ? JoinLists(nullptr, parentId) : nullptr;
    if (kept || !parentId) {
        FillChildren(treeView, folder, kept, parent);
    }
    if (kept) {
        allocator->Free(kept);
    }
}

void SetFlag(HWND control, LONG_PTR flag, bool set) {
    LONG_PTR const flags = GetWindowLongPtrA(control, kFlags);
    SetWindowLongPtrA(control, kFlags, set ? flags | flag : flags & ~flag);
}

}  // namespace

bool FillTopLevel(HWND control) {
    HWND const treeView = IsTreeList(control) ? reinterpret_cast<HWND>(GetWindowLongPtrA(control, kTreeView)) : nullptr;
    if (!treeView) {
        return false;
    }
    IShellFolder* desktop = nullptr;
    bool const found = SUCCEEDED(SHGetDesktopFolder(&desktop));
    if (found) {
        SendMessageA(treeView, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
        FillChildren(treeView, desktop, nullptr, TVI_ROOT);
        desktop->Release();
    }
    if (LPARAM const first = SendMessageA(treeView, TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE, 0)) {
        SetFlag(control, kFirstFill, true);
        SendMessageA(treeView, TVM_EXPAND, TVE_EXPAND, first);
        SendMessageA(treeView, TVM_SELECTITEM, TVGN_CARET, first);
        SetFlag(control, kFirstFill, false);
    }
    return found;
}

void FillFirstTime(HWND control, TVITEMA const& opened) {
    if (opened.state & TVIS_EXPANDEDONCE) {
        return;
    }
    HWND const treeView = reinterpret_cast<HWND>(GetWindowLongPtrA(control, kTreeView));
    auto const item = reinterpret_cast<Item*>(opened.lParam);
    void* bound = nullptr;
    if (SUCCEEDED(item->folder->BindToObject(item->relativeId, nullptr, IID_IShellFolder, &bound))) {
        if (!item->fullIdKnown) {
            SetCursor(LoadCursorA(nullptr, IDC_WAIT));
            FindFullId(*item);
            SetCursor(LoadCursorA(nullptr, IDC_ARROW));
        }
        // The reference that comes with the binding stays with the children, each of which adds its own: it is not
        // released, also when there are none.
        FillBelow(treeView, static_cast<IShellFolder*>(bound), item->fullId, opened.hItem);
    }
    if (!(GetWindowLongPtrA(control, kFlags) & kFirstFill)) {
        SendMessageA(treeView, TVM_SORTCHILDREN, 0, reinterpret_cast<LPARAM>(opened.hItem));
    }
}

void Discard(Item* item) {
    Allocator const allocator;
    if (!allocator || !item) {
        return;
    }
    item->folder->Release();
    FreeList(item->relativeId);
    FreeList(item->fullId);
    allocator->Free(item);
}

void FindFullId(Item& item) {
    item.fullId = AbsoluteList(item.folder, item.relativeId);
    item.fullIdKnown = TRUE;
}

}  // namespace treelist
