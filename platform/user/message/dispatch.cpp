// Delivering a message that was taken.
#include "base/clock.h"

#include "user/message/above.h"
#include "user/message/queue.h"
#include "user/model/thread.h"

using namespace platform::user;

LRESULT WINAPI DispatchMessageA(const MSG* message) {
    ThreadState* self = CurrentThread();
    if (message == nullptr || self == nullptr) {
        return 0;
    }
    UserHold hold(UserLock());
    if (message->message == WM_TIMER && message->lParam != 0) {
        // Anyone can post a WM_TIMER: only a procedure that this thread has set is called.
        if (OwnsTimerProcedure(self, message->hwnd, message->wParam, message->lParam)) {
            hold.unlock();
            const auto procedure = reinterpret_cast<TIMERPROC>(message->lParam);
            procedure(message->hwnd, WM_TIMER, message->wParam, platform::base::TickCount());
        }
        return 0;
    }
    if (message->hwnd == nullptr) {
        return 0;
    }
    Window* target = FindWindowObject(message->hwnd);
    if (target == nullptr || target->thread != self) {
        return 0;
    }
    const WNDPROC procedure = target->procedure;
    hold.unlock();
    if (message->message == WM_PAINT) {
        return CallPaint(message->hwnd, message->wParam, message->lParam);
    }
    return CallProcedure(procedure, message->hwnd, message->message, message->wParam, message->lParam);
}
