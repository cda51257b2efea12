// Finding a folder in a folder tree list, level by level.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <shlobj.h>

#include <cvutil32/treelist.h>

#include <string>

namespace folder_tree {

/// Whether this host's shell hands out names as wide texts. The control takes no more of them than fits into four bytes,
/// so that it cannot follow a path there.
inline bool NamesAreWide() {
    IShellFolder* desktop = nullptr;
    IMalloc* allocator = nullptr;
    IEnumIDList* items = nullptr;
    LPITEMIDLIST item = nullptr;
    STRRET name = {};
    name.uType = STRRET_CSTR;
    CoInitialize(nullptr);
    if (SUCCEEDED(SHGetMalloc(&allocator)) && SUCCEEDED(SHGetDesktopFolder(&desktop)) &&
        desktop->EnumObjects(nullptr, SHCONTF_FOLDERS, &items) == S_OK && items->Next(1, &item, nullptr) == S_OK) {
        desktop->GetDisplayNameOf(item, SHGDN_NORMAL, &name);
        if (name.uType == STRRET_WSTR) {
            allocator->Free(name.pOleStr);
        }
        allocator->Free(item);
    }
    if (items) {
        items->Release();
    }
    if (desktop) {
        desktop->Release();
    }
    CoUninitialize();
    return name.uType == STRRET_WSTR;
}

constexpr char kWideNames[] = "the shell's names are wide";

inline HWND TreeViewOf(HWND control) {
    return GetWindow(control, GW_CHILD);
}

inline LRESULT Send(HWND control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageA(TreeViewOf(control), message, wParam, lParam);
}

inline HTREEITEM Next(HWND control, WPARAM code, HTREEITEM item = nullptr) {
    return reinterpret_cast<HTREEITEM>(Send(control, TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(item)));
}

inline void Select(HWND control, HTREEITEM item) {
    Send(control, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
}

inline bool Expand(HWND control, HTREEITEM item, WPARAM code = TVE_EXPAND) {
    return Send(control, TVM_EXPAND, code, reinterpret_cast<LPARAM>(item)) != 0;
}

/// The folder of an item, which becomes the selected one.
inline std::string FolderOf(HWND control, HTREEITEM item) {
    char path[MAX_PATH];
    Select(control, item);
    return TREELIST_GetFolder(control, path) ? path : "";
}

inline TVITEMA ItemOf(HWND control, HTREEITEM handle, char* text = nullptr, int size = 0) {
    TVITEMA item = {};
    item.mask = TVIF_PARAM | TVIF_CHILDREN | TVIF_STATE | TVIF_IMAGE | TVIF_SELECTEDIMAGE | (text ? TVIF_TEXT : 0);
    item.stateMask = 0xFF;
    item.hItem = handle;
    item.pszText = text;
    item.cchTextMax = size;
    Send(control, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
    return item;
}

inline std::string NameOf(HWND control, HTREEITEM handle) {
    char text[MAX_PATH] = "";
    ItemOf(control, handle, text, sizeof text);
    return text;
}

/// The names below an item, with '+' behind those that have a button.
inline std::string ChildrenOf(HWND control, HTREEITEM item) {
    std::string names;
    for (HTREEITEM child = Next(control, TVGN_CHILD, item); child; child = Next(control, TVGN_NEXT, child)) {
        names += NameOf(control, child) + (ItemOf(control, child).cChildren ? "+ " : " ");
    }
    return names;
}

inline bool BeginsWith(std::string const& path, std::string const& beginning) {
    return path.size() >= beginning.size() &&
           lstrcmpiA(path.substr(0, beginning.size()).c_str(), beginning.c_str()) == 0 &&
           (path.size() == beginning.size() || beginning.back() == '\\' || path[beginning.size()] == '\\');
}

/// Opens the folders on the way to a path. @return the path's item, which is selected; null if it is not there.
inline HTREEITEM Reach(HWND control, std::string const& path, HTREEITEM parent = nullptr, int depth = 0) {
    HTREEITEM item = parent ? Next(control, TVGN_CHILD, parent) : Next(control, TVGN_ROOT);
    for (; item; item = Next(control, TVGN_NEXT, item)) {
        std::string const folder = FolderOf(control, item);
        if (lstrcmpiA(folder.c_str(), path.c_str()) == 0) {
            return item;
        }
        // Drives stand below an item without a path.
        bool const onTheWay = folder.empty() ? depth == 0 : folder[1] == ':' && BeginsWith(path, folder);
        if (onTheWay) {
            Expand(control, item);
            if (HTREEITEM const found = Reach(control, path, item, depth + 1)) {
                return found;
            }
        }
    }
    return nullptr;
}

}  // namespace folder_tree
