// The keyboard focus of a thread.
#include <algorithm>

#include "user/input/input.h"
#include "user/model/input_state.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

// A window that is disabled or minimised, or lies in such a window, takes no input. Lock held.
bool CanTakeFocus(const Window* window) {
    for (const Window* each = window; each != nullptr && each != Desktop(); each = each->parent) {
        if ((each->style & (WS_DISABLED | WS_MINIMIZE)) != 0) {
            return false;
        }
        if ((each->style & WS_CHILD) == 0) {
            break;
        }
    }
    return true;
}

}  // namespace

bool MoveFocus(ThreadState* self, HWND window) {
    const HWND previous = ExchangeShared(self->focus, window);
    if (previous == window) {
        return true;
    }
    if (previous != nullptr && PeekWindow(previous) != nullptr) {
        SendMessageA(previous, WM_KILLFOCUS, reinterpret_cast<WPARAM>(window), 0);
    }
    // The window that lost the focus may have put it elsewhere.
    if (Shared(self->focus) != window) {
        return false;
    }
    if (window != nullptr && PeekWindow(window) != nullptr) {
        SendMessageA(window, WM_SETFOCUS, reinterpret_cast<WPARAM>(previous), 0);
    }
    return Shared(self->focus) == window;
}

}  // namespace platform::user

using namespace platform::user;

HWND WINAPI GetFocus(VOID) {
    const ThreadState* self = CurrentThread();
    return self != nullptr ? Shared(self->focus) : nullptr;
}

HWND WINAPI SetFocus(HWND window) {
    ThreadState* self = CurrentThread();
    if (self == nullptr) {
        return nullptr;
    }
    const HWND previous = Shared(self->focus);
    if (window == nullptr) {
        MoveFocus(self, nullptr);
        return previous;
    }
    HWND top = nullptr;
    bool inBackground = false;
    bool mustActivate = false;
    {
        UserGuard guard(UserLock());
        Window* target = FindOwnWindow(window);
        if (target == nullptr) {
            return nullptr;
        }
        if (!CanTakeFocus(target)) {
            return Fail(ERROR_INVALID_PARAMETER, nullptr);
        }
        if (self->focus == window) {
            return window;
        }
        const Window* topLevel = TopLevel(target);
        top = HandleOf(topLevel);
        mustActivate = topLevel != nullptr && top != self->active && topLevel->thread == self;
        const ThreadState* foreground = Input().foreground;
        inBackground = foreground != nullptr && foreground != self;
    }
    if (mustActivate) {
        if (!ActivateOwn(self, top, false, !inBackground) || PeekWindow(window) == nullptr) {
            return nullptr;
        }
    }
    MoveFocus(self, window);
    return previous;
}
