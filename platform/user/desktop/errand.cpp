#include "user/desktop/errand.h"

namespace platform::user {

void SendErrand(HWND handle, Errand errand, WPARAM wParam, LPARAM lParam) {
    const UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    if (window != nullptr && window->thread != nullptr) {
        EnqueueErrand(window->thread, errand, handle, wParam, lParam);
    }
}

}  // namespace platform::user
