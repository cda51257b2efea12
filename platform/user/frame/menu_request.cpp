// Keys and clicks that ask for a menu, and what puts one away, as DefWindowProcA answers them.
#include "user/frame/above.h"
#include "user/frame/nonclient.h"
#include "user/input/input.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

constexpr LPARAM kWithAlt = 1 << 29;

/// By the keyboard there is no point.
void AskForMenu(HWND handle) {
    SendMessageA(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(handle), -1);
}

}  // namespace

LRESULT OnSystemKey(HWND handle, WPARAM key, LPARAM bits) {
    if (key == VK_F4 && (bits & kWithAlt)) {
        if (const HWND top = GetAncestor(handle, GA_ROOT)) {
            SendMessageA(top, WM_SYSCOMMAND, SC_CLOSE, 0);
        }
    } else if (key == VK_F10 && GetKeyState(VK_SHIFT) < 0) {
        AskForMenu(handle);
    }
    return 0;
}

LRESULT OnKeyUp(HWND handle, WPARAM key) {
    if (key == VK_APPS) {
        AskForMenu(handle);
    }
    return 0;
}

LRESULT OnSystemCharacter(HWND handle, WPARAM character, LPARAM bits) {
    if (character == VK_SPACE && (bits & kWithAlt)) {
        if (const HWND top = GetAncestor(handle, GA_ROOT)) {
            SendMessageA(top, WM_SYSCOMMAND, SC_KEYMENU, VK_SPACE);
        }
    }
    return 0;
}

LRESULT OnContextMenu(HWND handle, WPARAM wParam, LPARAM lParam) {
    const Window* window = PeekWindow(handle);
    if (window && IsChildStyle(window->style)) {
        const HWND parent = GetParent(handle);
        return parent ? SendMessageA(parent, WM_CONTEXTMENU, wParam, lParam) : 0;
    }
    const POINT point = MousePoint(lParam);
    const bool byKeyboard = point.x == -1 && point.y == -1;
    const LRESULT part = byKeyboard ? HTNOWHERE : HitTest(handle, point);
    if (part == HTCAPTION || part == HTSYSMENU) {
        OpenSystemMenu(handle, &point, false);
    }
    return 0;
}

void LeaveModes(HWND handle) {
    LetGoOfMouse(handle);
    HWND menu = nullptr;
    {
        const UserGuard guard(UserLock());
        const ThreadState* self = CurrentThread();
        const Window* window = PeekWindow(handle);
        const Window* owner = self ? PeekWindow(self->menu.owner) : nullptr;
        if (window && owner && (owner == window || IsAncestor(window, owner))) {
            menu = self->menu.window;
        }
    }
    if (menu) {
        SendMessageA(menu, WM_CANCELMODE, 0, 0);
    }
}

}  // namespace platform::user
