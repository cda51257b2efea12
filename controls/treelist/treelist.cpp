// The folder tree list's window.
//
// | message      | handler                                                  |
// |--------------|----------------------------------------------------------|
// | WM_CREATE    | Create: the component library, the tree view, its items  |
// | WM_SETFOCUS  | the focus goes on to the tree view                       |
// | WM_CLOSE     | Close: the component library                             |
// | WM_NOTIFY    | Notified: selection, first opening, end of an item       |
#include "cvutil32/treelist.h"

#include "controls/frame/classes.h"
#include "controls/treelist/tree.h"

#include <shellapi.h>

namespace treelist {

namespace {

constexpr int kTreeViewId = 850;

HWND TreeViewOf(HWND control) {
    return reinterpret_cast<HWND>(GetWindowLongPtrA(control, kTreeView));
}

HWND CreateTreeView(HWND control, HINSTANCE instance) {
    RECT client = {};
    GetClientRect(control, &client);
    return CreateWindowExA(WS_EX_CLIENTEDGE, WC_TREEVIEWA, "",
                           WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | TVS_HASBUTTONS | TVS_HASLINES |
                               TVS_LINESATROOT | TVS_SHOWSELALWAYS,
                           0, 0, client.right, client.bottom, control,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(kTreeViewId)), instance, nullptr);
}

/// Any path tells the system's list of icons: the root of the drive that Windows lies on is always there.
HIMAGELIST SystemIcons() {
    char root[MAX_PATH] = "C:\\";
    if (GetWindowsDirectoryA(root, sizeof root)) {
        root[3] = '\0';
    }
    SHFILEINFOA information;
    return reinterpret_cast<HIMAGELIST>(
        SHGetFileInfoA(root, 0, &information, sizeof information, SHGFI_SYSICONINDEX | SHGFI_SMALLICON));
}

LRESULT Create(HWND control, CREATESTRUCTA const& create) {
    SetWindowLongPtrA(control, kImages, 0);
    SetWindowLongPtrA(control, kFlags, 0);
    SetWindowLongPtrA(control, kTreeView, 0);
    if (FAILED(CoInitialize(nullptr))) {
        return 0;
    }
    HWND const treeView = CreateTreeView(control, create.hInstance);
    HIMAGELIST const images = SystemIcons();
    if (treeView && images) {
        SendMessageA(treeView, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images));
    }
    SetWindowLongPtrA(control, kImages, reinterpret_cast<LONG_PTR>(images));
    SetWindowLongPtrA(control, kFlags, kStarted);
    SetWindowLongPtrA(control, kTreeView, reinterpret_cast<LONG_PTR>(treeView));
    FillTopLevel(control);
    return 0;
}

void Close(HWND control) {
    SetWindowLongPtrA(control, kImages, 0);
    if (GetWindowLongPtrA(control, kFlags) & kStarted) {
        CoUninitialize();
    }
}

void TellSelection(HWND control, UINT action) {
    if (action == TVC_BYMOUSE || action == TVC_BYKEYBOARD) {
        SendMessageA(GetParent(control), WM_COMMAND,
                     MAKEWPARAM(GetWindowLongPtrA(control, GWLP_ID), TREELIST_SELCHANGE),
                     reinterpret_cast<LPARAM>(control));
    }
}

void Notified(HWND control, NMHDR const& header) {
    auto const& notification = reinterpret_cast<NMTREEVIEWA const&>(header);
    switch (header.code) {
        case TVN_SELCHANGEDA:
            TellSelection(control, notification.action);
            break;
        case TVN_ITEMEXPANDINGA:
            FillFirstTime(control, notification.itemNew);
            break;
        case TVN_DELETEITEMA:
            Discard(reinterpret_cast<Item*>(notification.itemOld.lParam));
            break;
        default:
            break;
    }
}

LRESULT CALLBACK WindowProcedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return Create(control, *reinterpret_cast<CREATESTRUCTA const*>(lParam));
        case WM_SETFOCUS:
            SetFocus(TreeViewOf(control));
            return 0;
        case WM_CLOSE:
            return Close(control), 0;
        case WM_NOTIFY:
            Notified(control, *reinterpret_cast<NMHDR const*>(lParam));
            break;
        default:
            break;
    }
    return DefWindowProcA(control, message, wParam, lParam);
}

}  // namespace

bool IsTreeList(HWND window) {
    char name[128];
    return GetClassNameA(window, name, sizeof name) && lstrcmpA(name, TREELIST_CLASSNAME) == 0;
}

}  // namespace treelist

CVAPI(BOOL) TREELIST_RegisterClass(HINSTANCE instance) {
    BOOL const result =
        frame::RegisterOwnClass(instance, {.name = TREELIST_CLASSNAME,
                                           .style = 0,
                                           .procedure = treelist::WindowProcedure,
                                           .extraBytes = treelist::kExtraBytes,
                                           .cursor = IDC_ARROW,
                                           .background = static_cast<HBRUSH>(GetStockObject(NULL_BRUSH))});
    if (instance) {
        // The tree view is one of the common controls.
        InitCommonControls();
    }
    return result;
}

CVAPI(int) TREELIST_GetFolder(HWND control, char* buffer) {
    if (!buffer || !treelist::IsTreeList(control)) {
        return 0;
    }
    *buffer = '\0';
    HWND const treeView = treelist::TreeViewOf(control);
    if (!treeView) {
        return 0;
    }
    TVITEMA selected = {};
    selected.mask = TVIF_PARAM;
    selected.hItem = reinterpret_cast<HTREEITEM>(SendMessageA(treeView, TVM_GETNEXTITEM, TVGN_CARET, 0));
    if (!selected.hItem || !SendMessageA(treeView, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&selected))) {
        return 0;
    }
    auto& item = *reinterpret_cast<treelist::Item*>(selected.lParam);
    if (!item.fullIdKnown) {
        treelist::FindFullId(item);
    }
    char path[MAX_PATH];
    if (!SHGetPathFromIDListA(item.fullId, path)) {
        return 0;
    }
    lstrcpynA(buffer, path, MAX_PATH);
    return lstrlenA(buffer);
}
