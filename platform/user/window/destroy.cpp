// How windows end: the messages of destruction in the documented order, and what is left to clear away.
#include <new>

#include "user/input/input.h"
#include "user/message/queue.h"
#include "user/model/thread.h"
#include "user/painting/painting.h"
#include "user/window/lifetime.h"
#include "user/window/position.h"
#include "user/window/tree.h"

namespace platform::user {
namespace {

Window* spareWindows = nullptr;  // linked by `next`; guarded by UserLock

/// Takes a window out of everything and frees it. No messages are sent. Lock held.
void Remove(Window* window) {
    ForgetPainting(window);
    UnlinkWindow(window);
    for (Window* root : {Desktop(), Orphanage()}) {
        for (Window* other = root->firstChild; other; other = other->next) {
            if (other->owner == window) {
                other->owner = nullptr;
            }
        }
    }
    base::RemoveHandle(base::ToNumber(window->handle), base::HandleKind::Window);
    --window->windowClass->windows;
    GiveBackWindow()(window);
}

bool IsWithin(const Window* window, const Window* ancestor) {
    while (window && window != ancestor) {
        window = window->parent;
    }
    return window != nullptr;
}

// What ends along with a window is marked first and then taken one by one, as any of them may end the others: a list would
// take memory, and the end of a window must not depend on there being some.

/// Marks the windows that a window, or one of its thread within it, owns. Lock held.
void MarkOwned(const Window* owner) {
    for (Window* window = Desktop()->firstChild; window; window = window->next) {
        if (window->owner && window->owner->thread == owner->thread && IsWithin(window->owner, owner)) {
            window->goesAlong = true;
        }
    }
}

void MarkChildren(HWND handle) {
    const UserGuard guard(UserLock());
    if (const Window* window = PeekWindow(handle)) {
        for (Window* child = window->firstChild; child; child = child->next) {
            child->goesAlong = child->thread == window->thread;
        }
    }
}

/// Takes a marked child of a window, or one that it owns.
HWND TakeMarked(HWND handle, bool owned) {
    const UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    const Window* parent = window && owned ? Desktop() : window;
    for (Window* each = parent ? parent->firstChild : nullptr; each; each = each->next) {
        if (each->goesAlong && (!owned || (each->owner && IsWithin(each->owner, window)))) {
            each->goesAlong = false;
            return each->handle;
        }
    }
    return nullptr;
}

/// WM_DESTROY comes to a window before its children, which all still live.
void SendDestroy(HWND handle) {
    SendMessageA(handle, WM_DESTROY, 0, 0);
    MarkChildren(handle);
    while (HWND child = TakeMarked(handle, false)) {
        SendDestroy(child);
    }
}

/// A step on the way to a window's end, which is left out where memory has run out.
template <class Step>
void IfMemoryAllows(Step step) {
    if (!MemoryAllows(step)) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    }
}

void RunDestruction(const SentMessage& sent) {
    DestroyWindow(sent.window);
}

/// A child of another thread loses its parent, which is all that happens to a window from outside its thread. Only that can destroy
/// it, and does so when it next looks at its messages, or at its end: nothing waits for a thread that may not take any more. Lock
/// held.
void HandOver(Window* window) {
    UnlinkWindow(window);
    window->parent = Orphanage();
    window->style &= ~static_cast<DWORD>(WS_VISIBLE);
    LinkWindow(window, HWND_TOP);
    EnqueueErrand(window->thread, RunDestruction, window->handle);
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
                !window->parent || window->parent == Desktop() || window->parent == Orphanage()) {
                return;
            }
            // A thread that ends waits for no other, which may be waiting for its end.
            if (window->thread && window->thread->ending && window->parent->thread != window->thread) {
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
            while (window->firstChild && window->firstChild->thread != window->thread) {
                HandOver(window->firstChild);
            }
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
    {
        const UserGuard guard(UserLock());
        Window* window = PeekWindow(handle);
        if (!window || window->destroying) {
            return window != nullptr;
        }
        MarkOwned(window);
        window->destroying = true;
    }
    NotifyParents(handle, WM_DESTROY);
    while (HWND owned = TakeMarked(handle, true)) {
        {
            const UserGuard guard(UserLock());
            Window* window = PeekWindow(owned);
            if (window->thread != CurrentThread()) {
                window->owner = nullptr;  // only its own thread may destroy it
                continue;
            }
        }
        DestroyTree(owned);
    }
    // Activation, focus and capture move on while the window can still be told.
    if (Window* window = PeekWindow(handle)) {
        IfMemoryAllows([=] { HideForDestruction(window); });
    }
    if (Window* window = PeekWindow(handle)) {
        IfMemoryAllows([=] { LeaveDisabledOrHidden(window, true); });
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

BOOL WINAPI DestroyWindow(HWND handle) {
    {
        const UserGuard guard(UserLock());
        if (!FindOwnWindow(handle)) {
            return FALSE;
        }
    }
    return DestroyTree(handle);
}
