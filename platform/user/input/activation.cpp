// Activation: one top-level window of a thread is active, and the thread in the foreground has the keyboard.
#include <algorithm>

#include "user/input/input.h"
#include "user/message/queue.h"
#include "user/model/input_state.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

// Keys may have changed while other threads had the keyboard. Input that still waits brings its own changes.
void TakeOverKeys(ThreadState* thread) {
    if (thread->input.empty()) {
        std::copy(std::begin(Input().keys), std::end(Input().keys), thread->keyState);
    }
}

WPARAM ActivationState(UINT state, HWND window) {
    return MAKEWPARAM(state, IsIconic(window) ? 1 : 0);
}

// An open menu belongs to the window in front.
void PutMenuAway(const ThreadState* thread) {
    if (const HWND menu = Shared(thread->menu.window)) {
        Tell(menu, WM_CANCELMODE, 0, 0);
    }
}

// Tells a thread that another one has taken the foreground. Nothing waits for its windows.
void LeaveForeground(ThreadState* loser, HWND to) {
    HWND active = nullptr;
    HWND focus = nullptr;
    {
        UserGuard guard(UserLock());
        active = loser->active;
        focus = loser->focus;
        loser->lastActive = active;
        loser->active = nullptr;
        loser->focus = nullptr;
    }
    PutMenuAway(loser);
    if (active != nullptr) {
        Tell(active, WM_NCACTIVATE, FALSE, reinterpret_cast<LPARAM>(to));
        Tell(active, WM_ACTIVATE, ActivationState(WA_INACTIVE, active), reinterpret_cast<LPARAM>(to));
    }
    if (focus != nullptr) {
        Tell(focus, WM_KILLFOCUS, 0, 0);
    }
}

void Deactivate(HWND active, HWND to) {
    if (PeekWindow(active) != nullptr) {
        SendMessageA(active, WM_NCACTIVATE, FALSE, reinterpret_cast<LPARAM>(to));
    }
    if (PeekWindow(active) != nullptr) {
        SendMessageA(active, WM_ACTIVATE, ActivationState(WA_INACTIVE, active), reinterpret_cast<LPARAM>(to));
    }
}

void RunActivation(const SentMessage& sent) {
    ThreadState* self = CurrentThread();
    ActivateOwn(self, sent.window, sent.wParam != 0, true);
}

// Lets another thread activate one of its windows; it does so when it next looks at its queue.
bool ActivateElsewhere(ThreadState* self, ThreadState* other, HWND window, bool byMouse) {
    UserHold hold(UserLock());
    InputState& input = Input();
    ThreadState* loser = input.foreground;
    input.foreground = other;
    TakeOverKeys(other);
    if (!EnqueueErrand(other, RunActivation, window, byMouse)) {
        return false;
    }
    other->lastActive = window;
    other->comingForward = true;
    hold.unlock();
    if (loser == self) {
        DeactivateOwn(self);
    } else if (loser != nullptr && loser != other) {
        LeaveForeground(loser, window);
    }
    return true;
}

bool CanActivate(const Window* window) {
    return (window->style & (WS_VISIBLE | WS_DISABLED | WS_CHILD)) == WS_VISIBLE && !window->destroying;
}

HWND Successor(const ThreadState* self, const Window* leaving) {
    UserGuard guard(UserLock());
    if (leaving->owner != nullptr && CanActivate(leaving->owner)) {
        return leaving->owner->handle;
    }
    for (const bool anyThread : {false, true}) {
        for (const Window* each = Desktop()->firstChild; each != nullptr; each = each->next) {
            if (each != leaving && CanActivate(each) && (each->style & WS_MINIMIZE) == 0 &&
                (each->exStyle & WS_EX_NOACTIVATE) == 0 && (anyThread || each->thread == self)) {
                return each->handle;
            }
        }
    }
    return nullptr;
}

}  // namespace

bool ActivateOwn(ThreadState* self, HWND window, bool byMouse, bool foreground) {
    UserHold hold(UserLock());
    InputState& input = Input();
    const bool takes = self->comingForward || ((foreground || input.foreground == nullptr) && input.foreground != self);
    const HWND previous = self->active;
    if (previous == window && !takes) {
        return true;
    }
    hold.unlock();
    if (previous != window) {
        PutMenuAway(self);
        Deactivate(previous, window);
    }
    hold.lock();
    Window* target = PeekWindow(window);
    if (target == nullptr || self->active != previous) {
        return self->active == window;
    }
    ThreadState* loser = takes && input.foreground != self ? input.foreground : nullptr;
    self->comingForward = false;
    self->lastActive = previous;
    self->active = window;
    if (takes) {
        input.foreground = self;
        TakeOverKeys(self);
    }
    hold.unlock();
    if (loser != nullptr) {
        LeaveForeground(loser, window);
    }
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    if (Shared(self->active) != window) {
        return false;
    }
    SendMessageA(window, WM_NCACTIVATE, TRUE, reinterpret_cast<LPARAM>(previous));
    SendMessageA(window, WM_ACTIVATE, ActivationState(byMouse ? WA_CLICKACTIVE : WA_ACTIVE, window),
                 reinterpret_cast<LPARAM>(previous));
    hold.lock();
    Window* focus = self->focus != nullptr ? PeekWindow(self->focus) : nullptr;
    const bool strayFocus = self->active == window && focus != nullptr && TopLevel(focus) != PeekWindow(window);
    const bool active = self->active == window;
    hold.unlock();
    if (strayFocus) {
        MoveFocus(self, nullptr);
    }
    return active;
}

void DeactivateOwn(ThreadState* self) {
    const HWND active = Shared(self->active);
    PutMenuAway(self);
    Deactivate(active, nullptr);
    {
        UserGuard guard(UserLock());
        if (self->active != active) {
            return;  // a window procedure has activated another window
        }
        self->lastActive = active;
        self->active = nullptr;
        if (Input().foreground == self) {
            Input().foreground = nullptr;
        }
    }
    MoveFocus(self, nullptr);
}

void ActivateNext(ThreadState* self, Window* leaving) {
    const HWND window = leaving->handle;
    const HWND next = Successor(self, leaving);
    if (next != nullptr) {
        ActivateWindow(next, false);
    }
    // No other window took over, or one of another thread did.
    if (Shared(self->active) == window) {
        DeactivateOwn(self);
    }
}

bool ActivateWindow(HWND window, bool byMouse) {
    ThreadState* self = CurrentThread();
    ThreadState* owner = nullptr;
    {
        UserGuard guard(UserLock());
        const Window* target = FindWindowObject(window);
        if (self == nullptr || target == nullptr || !CanActivate(target)) {
            return false;
        }
        owner = target->thread;
    }
    if (owner == self) {
        return ActivateOwn(self, window, byMouse, true);
    }
    return owner != nullptr && ActivateElsewhere(self, owner, window, byMouse);
}

HWND WindowToActivate(HWND handle) {
    UserGuard guard(UserLock());
    const Window* top = TopLevel(PeekWindow(handle));
    if (top == nullptr || (top->style & WS_DISABLED) == 0) {
        return top != nullptr ? top->handle : handle;
    }
    for (const Window* each = Desktop()->firstChild; each != nullptr; each = each->next) {
        if (RootOwner(each) == RootOwner(top) && (each->style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE) {
            return each->handle;
        }
    }
    return top->handle;
}

}  // namespace platform::user

using namespace platform::user;

HWND WINAPI GetActiveWindow(VOID) {
    const ThreadState* self = CurrentThread();
    return self != nullptr ? Shared(self->active) : nullptr;
}

HWND WINAPI SetActiveWindow(HWND window) {
    ThreadState* self = CurrentThread();
    if (self == nullptr) {
        return nullptr;
    }
    const HWND previous = Shared(self->active);
    if (window == nullptr) {
        DeactivateOwn(self);
        return previous;
    }
    bool inBackground = false;
    {
        UserGuard guard(UserLock());
        const Window* target = FindOwnWindow(window);
        if (target == nullptr) {
            return nullptr;
        }
        if ((target->style & (WS_CHILD | WS_DISABLED)) != 0) {
            return Fail(ERROR_INVALID_PARAMETER, nullptr);
        }
        inBackground = Input().foreground != nullptr && Input().foreground != self;
    }
    ActivateOwn(self, window, false, !inBackground);
    return previous;
}

HWND WINAPI GetForegroundWindow(VOID) {
    UserGuard guard(UserLock());
    const ThreadState* foreground = Input().foreground;
    if (foreground == nullptr) {
        return nullptr;
    }
    // A thread that was just brought to the front has yet to activate its window.
    return foreground->active != nullptr ? foreground->active : foreground->lastActive;
}

BOOL WINAPI SetForegroundWindow(HWND window) {
    HWND top = nullptr;
    {
        UserGuard guard(UserLock());
        top = HandleOf(TopLevel(FindWindowObject(window)));
    }
    return top != nullptr && ActivateWindow(top, false);
}

BOOL WINAPI BringWindowToTop(HWND window) {
    return SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}
