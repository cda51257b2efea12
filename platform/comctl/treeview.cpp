// The "SysTreeView32" class: one handler a message.
#include "comctl/treeview.h"

#include <mutex>
#include <new>
#include <utility>

#include "user/window/class.h"

namespace platform::comctl {
namespace {

POINT PointOf(LPARAM lParam) {
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

template <class Pointer>
Pointer As(LPARAM lParam) {
    return reinterpret_cast<Pointer>(lParam);
}

template <class Handle>
LRESULT Result(Handle handle) {
    return reinterpret_cast<LRESULT>(handle);
}

void OnPaint(const TreePointer& tree) {
    // The bars first: what they take away from the client area need not be painted.
    UpdateBars(tree);
    user::PaintWith(tree->window, [&](HDC context, const RECT& due) { Paint(tree, context, due); });
}

LRESULT OnGetItemRect(const TreePointer& tree, bool label, RECT* rect) {
    if (!rect) {
        return FALSE;
    }
    HTREEITEM handle;
    CopyMemory(&handle, rect, sizeof handle);
    UpdateBars(tree);
    const TreeItem* item = tree->Find(handle);
    if (!item || item->row < 0) {
        return FALSE;
    }
    *rect = label ? LabelRect(*tree, item) : RowRect(*tree, item);
    return TRUE;
}

LRESULT OnSetImageList(const TreePointer& tree, HIMAGELIST list) {
    const HIMAGELIST former = std::exchange(tree->images, list);
    Measure(tree);
    return Result(former);
}

LRESULT OnTreeMessage(const TreePointer& tree, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case TVM_INSERTITEMA:
            return lParam ? Result(InsertItem(tree, *As<TVINSERTSTRUCTA*>(lParam))) : 0;
        case TVM_DELETEITEM:
            if (lParam && As<HTREEITEM>(lParam) != TVI_ROOT) {
                return FALSE;
            }
            DeleteAll(tree);
            return TRUE;
        case TVM_EXPAND:
            return Expand(tree, As<HTREEITEM>(lParam), static_cast<UINT>(wParam), false);
        case TVM_GETITEMRECT:
            return OnGetItemRect(tree, wParam != 0, As<RECT*>(lParam));
        case TVM_GETCOUNT:
            return tree->count;
        case TVM_SETIMAGELIST:
            return wParam == TVSIL_NORMAL ? OnSetImageList(tree, As<HIMAGELIST>(lParam)) : 0;
        case TVM_GETNEXTITEM:
            return Result(NextItem(tree, wParam, As<HTREEITEM>(lParam)));
        case TVM_SELECTITEM:
            return wParam == TVGN_CARET && Select(tree, As<HTREEITEM>(lParam), TVC_UNKNOWN);
        case TVM_GETITEMA:
            return lParam && GetItem(tree, *As<TVITEMA*>(lParam));
        case TVM_SORTCHILDREN:
            return SortChildren(tree, As<HTREEITEM>(lParam));
        default:
            return DefWindowProcA(tree->window, message, wParam, lParam);
    }
}

LRESULT OnInput(const TreePointer& tree, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            OnFocus(tree, message == WM_SETFOCUS);
            return 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnButtonDown(tree, PointOf(lParam), message == WM_LBUTTONDBLCLK);
            return 0;
        case WM_KEYDOWN:
            return OnKeyDown(tree, wParam) ? 0 : DefWindowProcA(tree->window, message, wParam, lParam);
        case WM_CHAR:
            OnCharacter(tree, static_cast<char>(wParam));
            return 0;
        case WM_MOUSEWHEEL:
            OnWheel(tree, GET_WHEEL_DELTA_WPARAM(wParam));
            return 0;
        default:
            return OnTreeMessage(tree, message, wParam, lParam);
    }
}

LRESULT OnMessage(const TreePointer& tree, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = tree->window;
    switch (message) {
        case WM_CREATE:
            Measure(tree);
            return 0;
        case WM_DESTROY:
            tree->ending = true;
            DeleteAll(tree);
            return 0;
        case WM_SIZE:
            UpdateBars(tree);
            return 0;
        case WM_ERASEBKGND:
            return TRUE;
        case WM_PAINT:
            OnPaint(tree);
            return 0;
        case WM_ENABLE:
        case WM_SYSCOLORCHANGE:
            InvalidateRect(window, nullptr, FALSE);
            return 0;
        case WM_SETFONT:
            tree->font = reinterpret_cast<HFONT>(wParam);
            for (TreeView::Slot& slot : tree->slots) {
                if (slot.item) {
                    slot.item->width = -1;
                }
            }
            Measure(tree);
            return 0;
        case WM_GETFONT:
            return Result(tree->font);
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_VSCROLL:
        case WM_HSCROLL:
            OnScroll(tree, message == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(wParam));
            return 0;
        default:
            return OnInput(tree, message, wParam, lParam);
    }
}

LRESULT CALLBACK TreeViewProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto tree = user::ControlOf<TreeView>(window);
    if (!tree) {
        return DefWindowProcA(window, message, wParam, lParam);
    }
    tree->window = window;
    try {
        return OnMessage(tree, message, wParam, lParam);
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

}  // namespace
}  // namespace platform::comctl

void WINAPI InitCommonControls(void) {
    static std::once_flag once;
    std::call_once(once, [] {
        platform::user::RegisterSystemClass(WC_TREEVIEWA, platform::comctl::TreeViewProcedure,
                                            CS_DBLCLKS | CS_GLOBALCLASS, sizeof(LONG_PTR), IDC_ARROW, nullptr);
    });
}
