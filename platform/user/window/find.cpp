// Searching the window tree: by class and text, by a point, and by calling back for each window.
#include <algorithm>
#include <new>
#include <vector>

#include "user/model/thread.h"
#include "user/model/window.h"
#include "user/window/class.h"

using namespace platform::user;

namespace {

void CollectDescendants(const Window* parent, std::vector<HWND>& list) {
    for (const Window* child = parent->firstChild; child; child = child->next) {
        list.push_back(child->handle);
        CollectDescendants(child, list);
    }
}

template <class Collect>
BOOL EnumerateCollected(WNDENUMPROC procedure, LPARAM parameter, Collect collect) {
    if (!procedure) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    std::vector<HWND> list;
    try {
        const UserGuard guard(UserLock());
        if (!collect(list)) {
            return FALSE;
        }
    } catch (const std::bad_alloc&) {
        return Fail(ERROR_NOT_ENOUGH_MEMORY, FALSE);
    }
    // Some may not live any more when their turn comes.
    return std::ranges::all_of(list, [=](HWND window) { return !PeekWindow(window) || procedure(window, parameter); });
}

bool Matches(const Window* window, LPCSTR className, LPCSTR text) {
    return (!className || IsNamed(*window->windowClass, className)) &&
           (!text || lstrcmpiA(window->text.c_str(), text) == 0);
}

}  // namespace

HWND WINAPI FindWindowExA(HWND parentHandle, HWND afterHandle, LPCSTR className, LPCSTR text) {
    const UserGuard guard(UserLock());
    const Window* parent = parentHandle ? FindWindowObject(parentHandle) : Desktop();
    if (!parent) {
        return nullptr;
    }
    if (className && !IsClassName(className)) {
        return Fail(ERROR_CANNOT_FIND_WND_CLASS, nullptr);
    }
    const Window* window = parent->firstChild;
    if (afterHandle) {
        const Window* after = FindWindowObject(afterHandle);
        if (!after || after->parent != parent) {
            return Fail(ERROR_INVALID_WINDOW_HANDLE, nullptr);
        }
        window = after->next;
    }
    while (window && !Matches(window, className, text)) {
        window = window->next;
    }
    return window ? window->handle : nullptr;
}

HWND WINAPI FindWindowA(LPCSTR className, LPCSTR text) {
    return FindWindowExA(nullptr, nullptr, className, text);
}

namespace {

/// The windows at a point, in the order in which they may claim it: the deepest of the foremost first, then what lies
/// below it, then its parent. Hidden and disabled windows are left out.
void CollectAt(const Window* parent, POINT point, std::vector<HWND>& list) {
    for (const Window* child = parent->firstChild; child; child = child->next) {
        if ((child->style & WS_VISIBLE) && !(child->style & WS_DISABLED) && PtInRect(&child->windowRect, point)) {
            if (PtInRect(&child->clientRect, point)) {
                CollectAt(child, point, list);
            }
            list.push_back(child->handle);
        }
    }
}

bool IsOwn(HWND handle) {
    const UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    return window && window->thread == CurrentThread();
}

}  // namespace

HWND WINAPI WindowFromPoint(POINT point) try {
    std::vector<HWND> list;
    {
        const UserGuard guard(UserLock());
        CollectAt(Desktop(), point, list);
    }
    for (HWND window : list) {
        // A transparent window leaves the point to the windows of its thread that lie below it.
        if (!IsOwn(window) || SendMessageA(window, WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y)) != HTTRANSPARENT) {
            return window;
        }
    }
    return GetDesktopWindow();
} catch (const std::bad_alloc&) {
    return Fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
}

BOOL WINAPI EnumChildWindows(HWND parent, WNDENUMPROC procedure, LPARAM parameter) {
    return EnumerateCollected(procedure, parameter, [=](std::vector<HWND>& list) {
        const Window* window = parent ? FindWindowObject(parent) : Desktop();
        if (window) {
            CollectDescendants(window, list);
        }
        return window != nullptr;
    });
}

BOOL WINAPI EnumThreadWindows(DWORD thread, WNDENUMPROC procedure, LPARAM parameter) {
    return EnumerateCollected(procedure, parameter, [=](std::vector<HWND>& list) {
        list = TopLevelWindows([=](const Window* window) { return window->thread && window->thread->id == thread; });
        return !list.empty();
    });
}
