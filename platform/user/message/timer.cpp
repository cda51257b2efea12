// Timers: a deadline each; the queue asks for those whose time has come when it has nothing better to do, so a timer
// never has more than one message waiting.
#include <algorithm>

#include "base/clock.h"
#include "user/message/queue.h"
#include "user/model/input_state.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

auto FindTimer(ThreadState* thread, HWND window, UINT_PTR id) {
    return std::find_if(thread->timers.begin(), thread->timers.end(),
                        [=](const Timer& timer) { return timer.window == window && timer.id == id; });
}

UINT_PTR FreeThreadTimer(ThreadState* thread) {
    static UINT_PTR last = 0;
    do {
        last = last % 0x7FFF + 1;
    } while (FindTimer(thread, nullptr, last) != thread->timers.end());
    return last;
}

}  // namespace

std::uint64_t CheckTimers(ThreadState* self) {
    if (self->timers.empty()) {
        return UINT64_MAX;
    }
    const std::uint64_t now = base::TickCount64();
    std::uint64_t next = UINT64_MAX;
    for (Timer& timer : self->timers) {
        if (timer.due <= now) {
            if (!timer.ready) {
                timer.ready = true;
                self->wakeBits |= QS_TIMER;
            }
            // Keeps the beat, but does not make up for beats that were missed.
            timer.due += timer.period;
            if (timer.due <= now) {
                timer.due = now + timer.period;
            }
        }
        next = std::min(next, timer.due);
    }
    return next;
}

bool TakeTimer(ThreadState* self, HWND window, bool any, bool remove, MSG* message) {
    const auto ready = std::find_if(self->timers.begin(), self->timers.end(),
                                    [=](const Timer& timer) { return timer.ready && (any || timer.window == window); });
    if (ready == self->timers.end()) {
        return false;
    }
    *message = {ready->window,     WM_TIMER,      ready->id, reinterpret_cast<LPARAM>(ready->procedure),
                base::TickCount(), Input().cursor};
    if (remove) {
        ready->ready = false;
        // To the back, so that a fast timer cannot starve the others.
        std::rotate(ready, ready + 1, self->timers.end());
    }
    return true;
}

bool OwnsTimerProcedure(const ThreadState* self, HWND window, UINT_PTR id, LPARAM procedure) {
    return std::any_of(self->timers.begin(), self->timers.end(), [=](const Timer& timer) {
        return timer.window == window && timer.id == id && reinterpret_cast<LPARAM>(timer.procedure) == procedure;
    });
}

void ForgetTimers(Window* window) {
    if (window->thread != nullptr) {
        std::erase_if(window->thread->timers, [window](const Timer& timer) { return timer.window == window->handle; });
    }
}

}  // namespace platform::user

using namespace platform::user;

UINT_PTR WINAPI SetTimer(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure) {
    ThreadState* self = CurrentThread();
    UserGuard guard(UserLock());
    if (self == nullptr || (window != nullptr && FindOwnWindow(window) == nullptr)) {
        return 0;
    }
    Timer timer;
    timer.window = window;
    timer.period = std::clamp<UINT>(period, USER_TIMER_MINIMUM, USER_TIMER_MAXIMUM);
    timer.due = platform::base::TickCount64() + timer.period;
    timer.procedure = procedure;
    const auto existing = FindTimer(self, window, id);
    if (existing != self->timers.end()) {
        timer.id = id;
        *existing = timer;
    } else {
        timer.id = window != nullptr ? id : FreeThreadTimer(self);
        if (!MemoryAllows([&] { self->timers.push_back(timer); })) {
            return Fail(ERROR_NOT_ENOUGH_MEMORY, 0);
        }
    }
    return timer.id != 0 ? timer.id : 1;
}

BOOL WINAPI KillTimer(HWND window, UINT_PTR id) {
    ThreadState* self = CurrentThread();
    UserGuard guard(UserLock());
    if (self == nullptr || (window != nullptr && FindWindowObject(window) == nullptr)) {
        return FALSE;
    }
    const auto timer = FindTimer(self, window, id);
    if (timer == self->timers.end()) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    self->timers.erase(timer);
    return TRUE;
}
