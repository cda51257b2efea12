#include "user/desktop/errand.h"

#include <new>

#include "user/message/queue.h"

namespace platform::user {

void SendErrand(HWND handle, Errand errand, WPARAM wParam, LPARAM lParam) {
    UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    auto* sent = window != nullptr && window->thread != nullptr ? new (std::nothrow) SentMessage : nullptr;
    if (sent == nullptr) {
        return;
    }
    sent->errand = errand;
    sent->window = handle;
    sent->wParam = wParam;
    sent->lParam = lParam;
    if (!Enqueue(window->thread, sent)) {
        delete sent;
    }
}

}  // namespace platform::user
