// Taking messages: what was sent is answered first; then come posted messages, input, the end, painting and timers.
#include <algorithm>

#include "base/clock.h"
#include "user/message/above.h"
#include "user/message/queue.h"
#include "user/model/input_state.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

struct Filter {
    HWND window = nullptr;
    UINT first = 0;
    UINT last = 0;

    bool Spans(UINT low, UINT high) const {
        return (first == 0 && last == 0) || (first <= high && last >= low);
    }

    bool Wants(UINT message) const {
        return Spans(message, message);
    }

    bool WantsWindow(HWND candidate) const {
        if (window == nullptr || candidate == window) {
            return true;
        }
        if (window == kThreadOnly) {
            return candidate == nullptr;
        }
        const Window* parent = PeekWindow(window);
        const Window* child = PeekWindow(candidate);
        return parent != nullptr && child != nullptr && IsAncestor(parent, child);
    }

    static inline const HWND kThreadOnly = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));
};

bool WantsCooked(const MSG& message, const void* filter) {
    const auto* wanted = static_cast<const Filter*>(filter);
    return wanted->Wants(message.message) && wanted->WantsWindow(message.hwnd);
}

void NoteTaken(ThreadState* self, const MSG& message) {
    self->messageTime = message.time;
    self->messagePosition = static_cast<DWORD>(MAKELONG(message.pt.x, message.pt.y));
}

bool TakePosted(ThreadState* self, const Filter& filter, bool remove, MSG* message) {
    for (auto each = self->posted.begin(); each != self->posted.end(); ++each) {
        // The end of a program must reach its loop, whatever it was waiting for.
        const bool wanted = each->message == WM_QUIT || filter.Wants(each->message);
        if (!wanted || !filter.WantsWindow(each->hwnd)) {
            continue;
        }
        *message = *each;
        if (remove) {
            self->posted.erase(each);
        }
        return true;
    }
    return false;
}

bool TakeInput(ThreadState* self, UserHold& hold, const Filter& filter, bool remove, MSG* message) {
    const bool keys = filter.Spans(WM_KEYFIRST, WM_KEYLAST);
    const bool mouse = filter.Spans(WM_NCMOUSEMOVE, WM_NCMBUTTONDBLCLK) || filter.Spans(WM_MOUSEFIRST, WM_MOUSELAST);
    if (!keys && !mouse) {
        return false;
    }
    std::uint64_t past = 0;
    for (;;) {
        // Window procedures run while an event is looked at, so the place in the queue is found anew by its number.
        const auto next =
            std::find_if(self->input.begin(), self->input.end(), [past, keys, mouse](const InputEvent& e) {
                return e.number > past && (e.kind == InputKind::Key ? keys : mouse);
            });
        if (next == self->input.end()) {
            return false;
        }
        const InputEvent event = *next;
        past = event.number;
        if (remove) {
            self->input.erase(next);
        }
        const Cooked cooked = event.kind == InputKind::Key
                                  ? CookKey(self, event, WantsCooked, &filter, remove, message)
                                  : CookMouse(self, hold, event, WantsCooked, &filter, remove, message);
        const auto place = std::find_if(self->input.begin(), self->input.end(),
                                        [past](const InputEvent& e) { return e.number >= past; });
        if (cooked == Cooked::Skip && remove) {
            // Without memory it is lost, as a full hardware queue loses input.
            MemoryAllows([&] { self->input.insert(place, event); });
        } else if (cooked == Cooked::Dropped && !remove && place != self->input.end() && place->number == past) {
            self->input.erase(place);
        }
        if (cooked == Cooked::Message) {
            NoteTaken(self, *message);
            return true;
        }
    }
}

bool TakeQuit(ThreadState* self, bool remove, MSG* message) {
    if (!self->quitPosted) {
        return false;
    }
    *message = {nullptr, WM_QUIT, static_cast<WPARAM>(self->quitCode), 0, base::TickCount(), Input().cursor};
    self->quitPosted = !remove;
    return true;
}

bool TakePaint(ThreadState* self, const Filter& filter, MSG* message) {
    if (!filter.Wants(WM_PAINT) || filter.window == Filter::kThreadOnly) {
        return false;
    }
    const Window* window = NextPaintWindow(self, PeekWindow(filter.window));
    if (window == nullptr) {
        return false;
    }
    *message = {window->handle, WM_PAINT, 0, 0, base::TickCount(), Input().cursor};
    return true;
}

bool TakeTimerFor(ThreadState* self, const Filter& filter, bool remove, MSG* message) {
    if (self->timers.empty() || !filter.Wants(WM_TIMER)) {
        return false;
    }
    CheckTimers(self);
    if (filter.window == nullptr) {
        return TakeTimer(self, nullptr, true, remove, message);
    }
    for (const Timer& timer : self->timers) {
        if (timer.ready && filter.WantsWindow(timer.window)) {
            return TakeTimer(self, timer.window, false, remove, message);
        }
    }
    return false;
}

// What looking with a filter has seen of the queue: from then on only newer messages wake a waiting thread.
DWORD SeenBits(const Filter& filter) {
    if (filter.first == 0 && filter.last == 0) {
        return QS_ALLINPUT | QS_ALLPOSTMESSAGE;
    }
    DWORD bits = QS_POSTMESSAGE | QS_ALLPOSTMESSAGE;
    bits |= filter.Spans(WM_KEYFIRST, WM_KEYLAST) ? QS_KEY : 0;
    bits |= filter.Spans(WM_MOUSEFIRST, WM_MOUSELAST) ? QS_MOUSE : 0;
    bits |= filter.Wants(WM_PAINT) ? QS_PAINT : 0;
    bits |= filter.Wants(WM_TIMER) ? QS_TIMER : 0;
    return bits;
}

bool Take(ThreadState* self, UserHold& hold, const Filter& filter, bool remove, MSG* message) {
    if (!self->sent.empty()) {
        ServeSent(self, hold);
    }
    self->wakeBits &= ~SeenBits(filter);
    if (!self->posted.empty() && TakePosted(self, filter, remove, message)) {
        NoteTaken(self, *message);
        return true;
    }
    if (!self->input.empty() && TakeInput(self, hold, filter, remove, message)) {
        return true;
    }
    if (TakeQuit(self, remove, message) || TakePaint(self, filter, message) ||
        TakeTimerFor(self, filter, remove, message)) {
        NoteTaken(self, *message);
        return true;
    }
    return false;
}

bool IsUsable(HWND window) {
    return window == nullptr || window == Filter::kThreadOnly || FindWindowObject(window) != nullptr;
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI GetMessageA(LPMSG message, HWND window, UINT first, UINT last) {
    ThreadState* self = CurrentThread();
    UserHold hold(UserLock());
    if (self == nullptr || message == nullptr || !IsUsable(window)) {
        return -1;
    }
    const Filter filter{window, first, last};
    for (;;) {
        MSG taken{};
        if (Take(self, hold, filter, true, &taken)) {
            *message = taken;
            return taken.message != WM_QUIT;
        }
        if (!IsUsable(window)) {
            return -1;
        }
        if (!self->sent.empty()) {
            continue;
        }
        const DWORD seen = SeenBits(filter);
        if ((self->wakeBits & seen) == 0) {
            hold.unlock();
            OpenDisplay();
            hold.lock();
        }
        // Something may have come while the lock was open, or a timer just now; it has left its bit.
        const std::uint64_t next = std::min(CheckTimers(self), CheckCaret(self));
        if ((self->wakeBits & (seen | QS_SENDMESSAGE)) == 0) {
            Sleep(self, hold, next);
        }
    }
}

BOOL WINAPI PeekMessageA(LPMSG message, HWND window, UINT first, UINT last, UINT remove) {
    ThreadState* self = CurrentThread();
    UserHold hold(UserLock());
    if (self == nullptr || message == nullptr || !IsUsable(window)) {
        return FALSE;
    }
    MSG taken{};
    if (Take(self, hold, {window, first, last}, (remove & PM_REMOVE) != 0, &taken)) {
        *message = taken;
        return TRUE;
    }
    CheckCaret(self);
    hold.unlock();
    OpenDisplay();
    return FALSE;
}

LONG WINAPI GetMessageTime(VOID) {
    const ThreadState* self = CurrentThread();
    return self != nullptr ? static_cast<LONG>(self->messageTime) : 0;
}

DWORD WINAPI GetMessagePos(VOID) {
    const ThreadState* self = CurrentThread();
    return self != nullptr ? self->messagePosition : 0;
}
