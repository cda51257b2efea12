// Finding a folder in a folder tree list, level by level.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <shlobj.h>

#include <cvutil32/treelist.h>

#include "controls/treelist/tree.h"

#include <string>

namespace folder_tree {

/// A name that the shell gives for an item of a folder, whole, and whether it came as a wide text.
struct ShellName {
    std::string text;
    bool isWide = false;

    ShellName(IShellFolder* folder, LPCITEMIDLIST item, DWORD form) {
        STRRET name = {};
        char buffer[MAX_PATH] = "";
        if (folder->GetDisplayNameOf(item, form, &name) != S_OK) {
            return;
        }
        isWide = name.uType == STRRET_WSTR;
        if (isWide) {
            WideCharToMultiByte(CP_ACP, 0, name.pOleStr, -1, buffer, MAX_PATH, nullptr, nullptr);
            treelist::Allocator()->Free(name.pOleStr);
        } else {
            lstrcpynA(buffer,
                      name.uType == STRRET_CSTR ? name.cStr : reinterpret_cast<char const*>(item) + name.uOffset,
                      MAX_PATH);
        }
        text = buffer;
    }
};

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

/// The name that the shell gives for an item of the tree.
inline ShellName ShellNameOf(HWND control, HTREEITEM item, DWORD form) {
    auto const& record = *reinterpret_cast<treelist::Item const*>(ItemOf(control, item).lParam);
    return {record.folder, record.relativeId, form};
}

/// Whether this host's shell gives its names as wide texts. The control's conversion of them has four bytes, so that it
/// shows no longer names, and finds no longer path.
inline bool NamesAreWide(HWND control) {
    return ShellNameOf(control, Next(control, TVGN_ROOT), SHGDN_NORMAL).isWide;
}

/// What the control shows of a name.
inline std::string Shown(HWND control, std::string const& name) {
    return NamesAreWide(control) ? name.substr(0, 4) : name;
}

/// The path that the control finds for a folder.
inline std::string Found(HWND control, std::string const& path) {
    return NamesAreWide(control) && path.size() >= 4 ? "" : path;
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
        std::string const place = ShellNameOf(control, item, SHGDN_FORPARSING).text;
        if (lstrcmpiA(place.c_str(), path.c_str()) == 0) {
            Select(control, item);
            return item;
        }
        // Drives stand below an item that is no place on a disk.
        bool const onDisk = place.size() > 2 && IsCharAlphaA(place[0]) && place[1] == ':';
        if (onDisk ? BeginsWith(path, place) : depth == 0) {
            Expand(control, item);
            if (HTREEITEM const found = Reach(control, path, item, depth + 1)) {
                return found;
            }
        }
    }
    return nullptr;
}

}  // namespace folder_tree
