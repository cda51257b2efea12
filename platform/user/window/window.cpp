// How windows come: what the styles imply, and the messages of creation in the documented order.
#include "user/model/window.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "gdi/surface/screen.h"
#include "kernel/memory/probe.h"
#include "user/message/queue.h"
#include "user/model/thread.h"
#include "user/window/above.h"
#include "user/window/class.h"
#include "user/window/lifetime.h"
#include "user/window/position.h"
#include "user/window/tree.h"

namespace platform::user {

namespace {

/// Everything CreateWindowExA was told, completed and in its final form.
struct Request {
    CREATESTRUCTA given{};
    Window* parent = nullptr;
    Window* owner = nullptr;
    WindowClass* windowClass = nullptr;
    int showCommand = SW_SHOW;
    bool show = false;
};

/// CW_USEDEFAULT for overlapped windows: each one a little below and to the right of the one before. With the default
/// place, y may say how to show the window.
void PlaceByDefault(Request& request) {
    static int turn = 0;
    CREATESTRUCTA& given = request.given;
    const RECT area = WorkArea();
    if (given.x == CW_USEDEFAULT) {
        request.showCommand = given.y == CW_USEDEFAULT ? SW_SHOW : given.y;
        const int step = (turn++ % 8) * (GetSystemMetrics(SM_CYCAPTION) + GetSystemMetrics(SM_CYSIZEFRAME));
        given.x = area.left + step;
        given.y = area.top + step;
    }
    if (given.cx == CW_USEDEFAULT) {
        given.cx = (area.right - area.left) * 3 / 4;
        given.cy = (area.bottom - area.top) * 3 / 4;
    }
}

/// Fills in what the styles imply. @returns 0 or an error code. Lock held.
DWORD Complete(Request& request) {
    CREATESTRUCTA& given = request.given;
    DWORD style = static_cast<DWORD>(given.style);
    const bool child = IsChildStyle(style);
    HWND relative = given.hwndParent;
    if (relative) {
        Window* window = FindWindowObject(relative);
        if (!window) {
            return ERROR_INVALID_WINDOW_HANDLE;
        }
        if (window->ending) {
            return ERROR_ACCESS_DENIED;  // it would be left without a parent or an owner at once
        }
        if (child) {
            request.parent = window;
        } else {
            request.parent = Desktop();
            request.owner = TopLevel(window);
        }
    } else if (child) {
        return ERROR_TLW_WITH_WSCHILD;
    } else {
        request.parent = Desktop();
    }
    if (!(style & (WS_CHILD | WS_POPUP))) {
        style |= WS_CAPTION;
        PlaceByDefault(request);
    }
    if (given.x == CW_USEDEFAULT) {
        given.x = given.y = 0;
    }
    if (given.cx == CW_USEDEFAULT) {
        given.cx = given.cy = 0;
    }
    if (!child) {
        style |= WS_CLIPSIBLINGS;
    }
    given.cx = std::max(given.cx, 0);
    given.cy = std::max(given.cy, 0);
    request.show = (style & WS_VISIBLE) != 0;
    given.style = static_cast<LONG>(style & ~static_cast<DWORD>(WS_VISIBLE));
    return 0;
}

/// Makes the window object and links it into the tree, hidden. Lock held. Throws bad_alloc.
Window* Make(const Request& request) {
    const CREATESTRUCTA& given = request.given;
    ThreadState* thread = CurrentThread();
    WindowHold made = NewWindow();
    if (!thread || !made) {
        throw std::bad_alloc();
    }
    made->windowClass = request.windowClass;
    made->procedure = request.windowClass->procedure;
    made->thread = thread;
    made->style = static_cast<DWORD>(given.style);
    if (request.show) {
        made->style &= ~static_cast<DWORD>(WS_MINIMIZE | WS_MAXIMIZE);  // ShowWindow brings that about
    }
    made->exStyle = given.dwExStyle;
    // An owned window stands above its owner, and so among the topmost ones when that is one.
    if (request.owner) {
        made->exStyle |= request.owner->exStyle & WS_EX_TOPMOST;
    }
    made->instance = given.hInstance;
    made->id = IsChildStyle(made->style) ? reinterpret_cast<LONG_PTR>(given.hMenu) : 0;
    made->extra.resize(static_cast<std::size_t>(request.windowClass->windowExtra));
    made->parent = request.parent;
    made->owner = request.owner;
    const POINT origin = ParentOrigin(made.get());
    // As far as SetWindowPos would bring it.
    const LONG left = origin.x + std::clamp(given.x, -0x8000, 0x7fff);
    const LONG top = origin.y + std::clamp(given.y, -0x8000, 0x7fff);
    made->windowRect = {left, top, left + std::min(given.cx, 0x7fff), top + std::min(given.cy, 0x7fff)};
    made->clientRect = made->windowRect;
    const std::uint32_t handle = base::InsertHandle(base::HandleKind::Window, made.get());
    if (!handle) {
        throw std::bad_alloc();
    }
    made->handle = base::ToHandle<HWND>(handle);
    Window* window = made.release();
    ++window->windowClass->windows;
    // A new child goes below its siblings, so that the order of creation is the order of tabbing; other windows on top.
    LinkWindow(window, IsChildStyle(window->style) ? HWND_BOTTOM : HWND_TOP);
    return window;
}

/// The messages that a new window gets. @returns false when it refused, or is gone.
bool Introduce(HWND handle, CREATESTRUCTA* given) {
    Window* window = PeekWindow(handle);
    if ((window->style & WS_THICKFRAME) && !IsChildStyle(window->style)) {
        // It is kept within the sizes that a person can give it.
        const MINMAXINFO limits = QueryMinMax(handle);
        const UserGuard guard(UserLock());
        window = PeekWindow(handle);
        if (!window) {
            return false;
        }
        given->cx = std::clamp<int>(given->cx, limits.ptMinTrackSize.x, limits.ptMaxTrackSize.x);
        given->cy = std::clamp<int>(given->cy, limits.ptMinTrackSize.y, limits.ptMaxTrackSize.y);
        window->windowRect.right = window->windowRect.left + given->cx;
        window->windowRect.bottom = window->windowRect.top + given->cy;
    }
    if (!SendMessageA(handle, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(given))) {
        // Such a window never was: it hears WM_NCDESTROY and nothing else.
        if (PeekWindow(handle)) {
            EndWindow(handle);
        }
        return false;
    }
    window = PeekWindow(handle);
    if (!window) {
        return false;
    }
    window->clientRect = ClientFromWindow(window, window->windowRect);
    const bool created = SendMessageA(handle, WM_CREATE, 0, reinterpret_cast<LPARAM>(given)) != -1;
    window = PeekWindow(handle);
    if (!window) {
        return false;
    }
    if (!created) {
        DestroyTree(handle);
        return false;
    }
    // Overlapped windows hear of their size when they are shown for the first time.
    if (!window->sizeSent && (window->style & (WS_CHILD | WS_POPUP))) {
        window->sizeSent = true;
        SendSize(handle);
        SendMove(handle);
    }
    return PeekWindow(handle) != nullptr;
}

HWND Create(Request& request) {
    CREATESTRUCTA& given = request.given;
    HWND handle = nullptr;
    {
        const UserGuard guard(UserLock());
        request.windowClass = FindClass(given.hInstance, given.lpszClass);
        if (!request.windowClass) {
            return Fail(ERROR_CANNOT_FIND_WND_CLASS, nullptr);
        }
        if (const DWORD error = Complete(request)) {
            return Fail(error, nullptr);
        }
        handle = Make(request)->handle;
    }
    if (!Introduce(handle, &given)) {
        return nullptr;
    }
    NotifyParents(handle, WM_CREATE);
    if (request.show && PeekWindow(handle)) {
        const DWORD style = static_cast<DWORD>(given.style);
        ShowWindow(handle, style & WS_MAXIMIZE   ? SW_SHOWMAXIMIZED
                           : style & WS_MINIMIZE ? SW_SHOWMINIMIZED
                                                 : request.showCommand);
    }
    return PeekWindow(handle) ? handle : nullptr;
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

HWND WINAPI CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width,
                            int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter) try {
    if (!className) {
        return Fail(ERROR_CANNOT_FIND_WND_CLASS, nullptr);
    }
    if (text && platform::kernel::ProbeLength(text) == platform::kernel::kBadText) {
        return Fail(ERROR_NOACCESS, nullptr);
    }
    InitialiseClasses();
    Request request;
    request.given = {parameter,
                     instance ? instance : GetModuleHandleA(nullptr),
                     menu,
                     parent,
                     height,
                     width,
                     y,
                     x,
                     static_cast<LONG>(style),
                     text,
                     className,
                     exStyle};
    return Create(request);
} catch (const std::bad_alloc&) {
    return Fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
}

LRESULT WINAPI CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return procedure ? CallProcedure(procedure, window, message, wParam, lParam) : 0;
}
