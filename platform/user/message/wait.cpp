// Waiting for messages without taking any, and asking what there is.
#include <algorithm>

#include "base/clock.h"
#include "user/message/above.h"
#include "user/message/queue.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

DWORD PendingBits(ThreadState* self) {
    DWORD bits = 0;
    if (!self->posted.empty() || self->quitPosted) {
        bits |= QS_POSTMESSAGE | QS_ALLPOSTMESSAGE;
    }
    for (const InputEvent& event : self->input) {
        switch (event.kind) {
            case InputKind::Move:
                bits |= QS_MOUSEMOVE;
                break;
            case InputKind::Key:
                bits |= QS_KEY;
                break;
            default:
                bits |= QS_MOUSEBUTTON;
                break;
        }
    }
    if (self->paintWindows > 0 && NextPaintWindow(self, nullptr) != nullptr) {
        bits |= QS_PAINT;
    }
    CheckTimers(self);
    if (std::any_of(self->timers.begin(), self->timers.end(), [](const Timer& timer) { return timer.ready; })) {
        bits |= QS_TIMER;
    }
    if (!self->sent.empty()) {
        bits |= QS_SENDMESSAGE;
    }
    return bits;
}

enum class Waited { Message, Objects, TimedOut, Failed };

struct Objects {
    const HANDLE* handles = nullptr;
    DWORD count = 0;
    bool all = false;
};

// Takes the objects that the caller waits for if they are signalled: one of them, or all together. The lock is open
// meanwhile. @returns what the waiting functions say.
DWORD TakeObjects(const Objects& objects, UserHold& hold) {
    hold.unlock();
    DWORD outcome = WAIT_TIMEOUT;
    for (DWORD i = 0; i < objects.count; ++i) {
        const DWORD state = WaitForSingleObject(objects.handles[i], 0);
        if (state == WAIT_FAILED) {
            outcome = WAIT_FAILED;
            break;
        }
        if (state != WAIT_TIMEOUT && (!objects.all || i + 1 == objects.count)) {
            outcome = WAIT_OBJECT_0 + (objects.all ? 0 : i);
            break;
        }
        if (state == WAIT_TIMEOUT && objects.all) {
            // The looks before this one have taken events that reset themselves; threads do not mind.
            const DWORD error = GetLastError();
            for (DWORD taken = 0; taken < i; ++taken) {
                SetEvent(objects.handles[taken]);
            }
            SetLastError(error);
            break;
        }
    }
    hold.lock();
    return outcome;
}

// Kernel objects do not wake a message queue, so while a thread waits for both it looks at them this often.
constexpr std::uint64_t kObjectInterval = 5;

// Waits for messages that came since the queue was last looked at (or for any with `present`), or for kernel objects,
// whose outcome goes to `taken`.
Waited Wait(ThreadState* self, UserHold& hold, DWORD mask, bool present, const Objects& objects, std::uint64_t deadline,
            DWORD* taken) {
    for (;;) {
        const std::uint64_t next = std::min(CheckTimers(self), CheckCaret(self));
        const bool message = (self->wakeBits & mask) != 0 || (present && (PendingBits(self) & mask) != 0);
        if (objects.count > 0 && (message || !objects.all)) {
            *taken = TakeObjects(objects, hold);
            if (*taken != WAIT_TIMEOUT) {
                return *taken == WAIT_FAILED ? Waited::Failed : Waited::Objects;
            }
        }
        if (message && !objects.all) {
            return Waited::Message;
        }
        if (!self->sent.empty()) {
            ServeSent(self, hold);
            if ((mask & QS_SENDMESSAGE) != 0) {
                return Waited::Message;
            }
            continue;
        }
        const std::uint64_t now = base::TickCount64();
        if (now >= deadline) {
            return Waited::TimedOut;
        }
        Sleep(self, hold, std::min({next, deadline, objects.count > 0 ? now + kObjectInterval : UINT64_MAX}));
    }
}

DWORD WaitForMessagesAndObjects(DWORD count, const HANDLE* handles, bool all, DWORD milliseconds, DWORD mask,
                                bool present) {
    ThreadState* self = CurrentThread();
    if (self == nullptr || count >= MAXIMUM_WAIT_OBJECTS || (count > 0 && handles == nullptr)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return WAIT_FAILED;
    }
    PresentSoon();
    UserHold hold(UserLock());
    const std::uint64_t deadline = milliseconds == INFINITE ? UINT64_MAX : base::TickCount64() + milliseconds;
    DWORD taken = 0;
    switch (Wait(self, hold, mask, present, {handles, count, all}, deadline, &taken)) {
        case Waited::Message:
            self->wakeBits &= ~mask;
            return WAIT_OBJECT_0 + count;
        case Waited::Objects:
            return taken;
        case Waited::TimedOut:
            return WAIT_TIMEOUT;
        case Waited::Failed:
            break;
    }
    return WAIT_FAILED;
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI WaitMessage(VOID) {
    ThreadState* self = CurrentThread();
    if (self == nullptr) {
        return FALSE;
    }
    PresentSoon();
    UserHold hold(UserLock());
    DWORD taken = 0;
    Wait(self, hold, QS_ALLINPUT | QS_ALLPOSTMESSAGE, false, {}, UINT64_MAX, &taken);
    return TRUE;
}

DWORD WINAPI MsgWaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL waitAll, DWORD milliseconds,
                                       DWORD wakeMask) {
    return WaitForMessagesAndObjects(count, handles, waitAll != FALSE, milliseconds, wakeMask, false);
}

DWORD WINAPI MsgWaitForMultipleObjectsEx(DWORD count, const HANDLE* handles, DWORD milliseconds, DWORD wakeMask,
                                         DWORD flags) {
    return WaitForMessagesAndObjects(count, handles, (flags & MWMO_WAITALL) != 0, milliseconds, wakeMask,
                                     (flags & MWMO_INPUTAVAILABLE) != 0);
}

DWORD WINAPI GetQueueStatus(UINT flags) {
    ThreadState* self = CurrentThread();
    if (self == nullptr) {
        return 0;
    }
    UserGuard guard(UserLock());
    const DWORD pending = PendingBits(self) & flags;
    const DWORD fresh = self->wakeBits & pending;
    self->wakeBits &= ~static_cast<DWORD>(flags);
    return static_cast<DWORD>(MAKELONG(fresh, pending));
}

BOOL WINAPI GetInputState(VOID) {
    ThreadState* self = CurrentThread();
    if (self == nullptr) {
        return FALSE;
    }
    UserGuard guard(UserLock());
    return (PendingBits(self) & (QS_KEY | QS_MOUSEBUTTON)) != 0;
}
