// What a window is like and where it lies: enabled, visible, text, rectangles.
#include <algorithm>
#include <new>

#include <unistd.h>

#include "user/input/input.h"
#include "user/model/window.h"

using namespace platform::user;

namespace {

BOOL HasStyle(HWND handle, DWORD style) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    return window && (window->style & style);
}

}  // namespace

BOOL WINAPI IsWindow(HWND window) {
    return PeekWindow(window) != nullptr;
}

BOOL WINAPI IsWindowVisible(HWND handle) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    return window && IsShown(window);
}

BOOL WINAPI IsWindowEnabled(HWND handle) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    return window && !(window->style & WS_DISABLED);
}

BOOL WINAPI IsIconic(HWND window) {
    return HasStyle(window, WS_MINIMIZE);
}

BOOL WINAPI IsZoomed(HWND window) {
    return HasStyle(window, WS_MAXIMIZE);
}

BOOL WINAPI EnableWindow(HWND handle, BOOL enable) {
    UserHold hold(UserLock());
    Window* window = FindWindowObject(handle);
    if (!window) {
        return FALSE;
    }
    const bool wasDisabled = (window->style & WS_DISABLED) != 0;
    if (wasDisabled == !enable) {
        return wasDisabled;
    }
    if (enable) {
        window->style &= ~static_cast<DWORD>(WS_DISABLED);
        hold.unlock();
    } else {
        hold.unlock();
        SendMessageA(handle, WM_CANCELMODE, 0, 0);
        hold.lock();
        window = PeekWindow(handle);
        if (!window) {
            return FALSE;
        }
        window->style |= WS_DISABLED;
        hold.unlock();
        LeaveDisabledOrHidden(window, false);
    }
    SendMessageA(handle, WM_ENABLE, enable != FALSE, 0);
    return wasDisabled;
}

DWORD WINAPI GetWindowThreadProcessId(HWND handle, LPDWORD process) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    if (!window) {
        return 0;
    }
    if (process) {
        *process = static_cast<DWORD>(getpid());
    }
    return window->thread ? window->thread->id : static_cast<DWORD>(getpid());
}

// --- text

BOOL WINAPI SetWindowTextA(HWND window, LPCSTR text) {
    return FindWindowObject(window) && SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

int WINAPI GetWindowTextA(HWND window, LPSTR text, int size) {
    if (!text || size <= 0) {
        return 0;
    }
    text[0] = '\0';
    if (!FindWindowObject(window)) {
        return 0;
    }
    return static_cast<int>(
        SendMessageA(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(text)));
}

int WINAPI GetWindowTextLengthA(HWND window) {
    return FindWindowObject(window) ? static_cast<int>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0)) : 0;
}

// --- rectangles

BOOL WINAPI GetWindowRect(HWND handle, LPRECT rect) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    if (!window || !rect) {
        return FALSE;
    }
    *rect = window->windowRect;
    return TRUE;
}

BOOL WINAPI GetClientRect(HWND handle, LPRECT rect) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    if (!window || !rect) {
        return FALSE;
    }
    *rect = {0, 0, window->clientRect.right - window->clientRect.left,
             window->clientRect.bottom - window->clientRect.top};
    return TRUE;
}

namespace {

/// The screen point of a window's client origin; null is the screen. @returns false for a dead handle.
bool ClientOrigin(HWND handle, POINT* origin) {
    *origin = {0, 0};
    if (handle) {
        const UserGuard guard(UserLock());
        const Window* window = FindWindowObject(handle);
        if (!window) {
            return false;
        }
        *origin = {window->clientRect.left, window->clientRect.top};
    }
    return true;
}

}  // namespace

static bool MovePoint(HWND window, LPPOINT point, int times) {
    POINT origin;
    if (!window || !point || !ClientOrigin(window, &origin)) {
        return false;
    }
    point->x += times * origin.x;
    point->y += times * origin.y;
    return true;
}

BOOL WINAPI ClientToScreen(HWND window, LPPOINT point) {
    return MovePoint(window, point, 1);
}

BOOL WINAPI ScreenToClient(HWND window, LPPOINT point) {
    return MovePoint(window, point, -1);
}

int WINAPI MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count) {
    POINT a;
    POINT b;
    if (!ClientOrigin(from, &a) || !ClientOrigin(to, &b)) {
        return 0;
    }
    const int dx = a.x - b.x;
    const int dy = a.y - b.y;
    for (UINT i = 0; i < count; ++i) {
        points[i].x += dx;
        points[i].y += dy;
    }
    return MAKELONG(dx, dy);
}
