// How windows end: the messages of destruction in the documented order, and what is left to clear away.
#include <new>

#include "user/lifetime.h"
#include "user/queue.h"

namespace platform::user {
namespace {

Window* spareWindows = nullptr;  // linked by `next`; guarded by UserLock

/// Takes a window out of everything and frees it. No messages are sent. Lock held.
void Remove(Window* window) {
    ForgetPainting(window);
    UnlinkWindow(window);
    for (Window* other = Desktop()->firstChild; other; other = other->next) {
        if (other->owner == window) {
            other->owner = nullptr;
        }
    }
    base::RemoveHandle(base::ToNumber(window->handle), base::HandleKind::Window);
    --window->windowClass->windows;
    --window->thread->windowCount;
    GiveBackWindow()(window);
}

std::vector<HWND> OwnedBy(const Window* owner) {
    std::vector<HWND> list;
    for (const Window* window = Desktop()->firstChild; window; window = window->next) {
        if (window->owner == owner) {
            list.push_back(window->handle);
        }
    }
    return list;
}

/// WM_DESTROY comes to a window before its children, which all still live.
void SendDestroy(HWND handle) {
    SendMessageA(handle, WM_DESTROY, 0, 0);
    std::vector<HWND> children;
    {
        const UserGuard guard(UserLock());
        if (const Window* window = PeekWindow(handle)) {
            for (const Window* child = window->firstChild; child; child = child->next) {
                children.push_back(child->handle);
            }
        }
    }
    for (HWND child : children) {
        if (PeekWindow(child)) {
            SendDestroy(child);
        }
    }
}

}  // namespace

void GiveBackWindow::operator()(Window* window) const noexcept {
    window->~Window();
    new (window) Window;
    window->next = spareWindows;
    spareWindows = window;
}

WindowHold NewWindow() noexcept {
    Window* window = spareWindows;
    if (window) {
        spareWindows = window->next;
        window->next = nullptr;
    } else {
        window = new (std::nothrow) Window;
    }
    return WindowHold(window);
}

void NotifyParents(HWND handle, UINT event) {
    WPARAM what = event;
    for (HWND child = handle;;) {
        HWND parent = nullptr;
        {
            const UserGuard guard(UserLock());
            const Window* window = PeekWindow(child);
            if (!window || !IsChildStyle(window->style) || (window->exStyle & WS_EX_NOPARENTNOTIFY) ||
                !window->parent || window->parent == Desktop()) {
                return;
            }
            if (child == handle) {
                what = MAKEWPARAM(event, window->id);
            }
            parent = window->parent->handle;
        }
        SendMessageA(parent, WM_PARENTNOTIFY, what, reinterpret_cast<LPARAM>(handle));
        child = parent;
    }
}

void EndWindow(HWND handle) {
    Window* window = nullptr;
    for (;;) {
        HWND child = nullptr;
        {
            const UserGuard guard(UserLock());
            window = PeekWindow(handle);
            if (!window) {
                return;
            }
            window->ending = true;
            child = window->firstChild ? window->firstChild->handle : nullptr;
        }
        if (!child) {
            break;
        }
        EndWindow(child);
    }
    ForgetInput(window);
    SendMessageA(handle, WM_NCDESTROY, 0, 0);
    const UserGuard guard(UserLock());
    if ((window = PeekWindow(handle))) {
        Remove(window);
    }
}

bool DestroyTree(HWND handle) {
    std::vector<HWND> owned;
    {
        const UserGuard guard(UserLock());
        Window* window = PeekWindow(handle);
        if (!window || window->destroying) {
            return window != nullptr;
        }
        owned = OwnedBy(window);
        window->destroying = true;
    }
    NotifyParents(handle, WM_DESTROY);
    for (HWND other : owned) {
        const UserGuard guard(UserLock());
        Window* window = PeekWindow(other);
        if (window && window->thread != CurrentThread()) {
            window->owner = nullptr;  // only its own thread may destroy it
        }
    }
    for (HWND other : owned) {
        const Window* window = PeekWindow(other);
        if (window && window->thread == CurrentThread()) {
            DestroyTree(other);
        }
    }
    // Activation, focus and capture move on while the window can still be told.
    if (Window* window = PeekWindow(handle)) {
        HideForDestruction(window);
    }
    if (Window* window = PeekWindow(handle)) {
        LeaveDisabledOrHidden(window);
    }
    if (PeekWindow(handle)) {
        SendDestroy(handle);
    }
    if (PeekWindow(handle)) {
        EndWindow(handle);
    }
    return true;
}

}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI DestroyWindow(HWND handle) try {
    {
        const UserGuard guard(UserLock());
        const Window* window = FindWindowObject(handle);
        if (!window) {
            return FALSE;
        }
        if (window->thread != CurrentThread()) {
            SetLastError(ERROR_ACCESS_DENIED);
            return FALSE;
        }
    }
    return DestroyTree(handle);
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return FALSE;
}
