// Windows that go away, or can no longer take input.
#include <algorithm>

#include "user/input/above.h"
#include "user/input/input.h"
#include "user/message/queue.h"
#include "user/model/thread.h"

namespace platform::user {

namespace {

/// What a window holds of this thread's goes on to others, who are told. What they do may end the window at once.
void PassOn(Window* window) {
    ThreadState* thread = window->thread;
    const HWND handle = window->handle;
    LeaveClipboard(handle);
    if (thread->capture == handle) {
        MoveCapture(thread, nullptr);
    }
    if (PeekWindow(handle) == window && Shared(thread->active) == handle) {
        ActivateNext(thread, window);
    }
    if (PeekWindow(handle) == window && Shared(thread->focus) == handle) {
        const Window* parent = (window->style & WS_CHILD) != 0 ? window->parent : nullptr;
        const bool usable = parent != nullptr && parent->thread == thread && !parent->destroying;
        MoveFocus(thread, usable ? parent->handle : nullptr);
    }
}

}  // namespace

void ForgetInput(Window* window) {
    ThreadState* thread = window->thread;
    if (thread == nullptr) {
        return;
    }
    const HWND handle = window->handle;
    if (thread == CurrentThread() && !MemoryAllows([=] { PassOn(window); })) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);  // nobody is told, but nothing may stay behind
    }
    UserGuard guard(UserLock());
    if (PeekWindow(handle) == window) {
        ForgetTimers(window);
        ForgetCaret(window);
    }
    std::erase_if(thread->posted, [handle](const MSG& message) { return message.hwnd == handle; });
    std::erase(thread->caretSuspensions, handle);
    for (HWND* held :
         {&thread->active, &thread->focus, &thread->capture, &thread->lastActive, &thread->lastClick.window}) {
        if (*held == handle) {
            *held = nullptr;
        }
    }
}

void LeaveDisabledOrHidden(Window* window, bool hidden) {
    ThreadState* thread = window->thread;
    if (thread == nullptr || thread != CurrentThread()) {
        return;
    }
    const HWND handle = window->handle;
    const auto within = [handle](HWND held) {
        UserGuard guard(UserLock());
        const Window* ancestor = PeekWindow(handle);
        const Window* child = held != nullptr ? PeekWindow(held) : nullptr;
        return child != nullptr && ancestor != nullptr && (held == handle || IsAncestor(ancestor, child));
    };
    // Disabling a window concerns what it holds itself, hiding it also what its children hold.
    const auto concerned = [&](HWND held) { return hidden ? within(held) : held == handle; };
    if (thread->capture != nullptr && concerned(thread->capture)) {
        MoveCapture(thread, nullptr);
    }
    if (hidden && Shared(thread->active) == handle) {
        ActivateNext(thread, window);
    }
    const HWND focus = Shared(thread->focus);
    if (focus == nullptr || !concerned(focus)) {
        return;
    }
    HWND next = nullptr;
    {
        UserGuard guard(UserLock());
        const Window* each = PeekWindow(handle);
        if (hidden && each != nullptr && (each->style & WS_CHILD) != 0 && each->parent != nullptr &&
            each->parent->thread == thread) {
            next = each->parent->handle;
        }
    }
    MoveFocus(thread, next);
}

}  // namespace platform::user
