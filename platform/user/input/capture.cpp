// Mouse capture: one window of a thread may take all mouse messages until it lets go.
#include "user/input/input.h"
#include "user/model/thread.h"

namespace platform::user {

void MoveCapture(ThreadState* self, HWND window) {
    const HWND previous = ExchangeShared(self->capture, window);
    if (previous != nullptr && previous != window && PeekWindow(previous) != nullptr) {
        SendMessageA(previous, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(window));
    }
}

void LetGoOfMouse(HWND window) {
    if (GetCapture() == window) {
        ReleaseCapture();
    }
}

}  // namespace platform::user

using namespace platform::user;

HWND WINAPI GetCapture(VOID) {
    const ThreadState* self = CurrentThread();
    return self != nullptr ? self->capture : nullptr;
}

HWND WINAPI SetCapture(HWND window) {
    ThreadState* self = CurrentThread();
    if (self == nullptr) {
        return nullptr;
    }
    {
        UserGuard guard(UserLock());
        if (window != nullptr && FindOwnWindow(window) == nullptr) {
            return nullptr;
        }
    }
    const HWND previous = self->capture;
    MoveCapture(self, window);
    return previous;
}

BOOL WINAPI ReleaseCapture(VOID) {
    ThreadState* self = CurrentThread();
    if (self != nullptr) {
        MoveCapture(self, nullptr);
    }
    return TRUE;
}
