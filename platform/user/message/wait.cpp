// Waiting for messages without taking any, and asking what there is.
#include <algorithm>
#include <optional>

#include "base/clock.h"
#include "kernel/guarded.h"
#include "kernel/process/waitable.h"
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

enum class Waited { Message, Objects, TimedOut };

void NoteSignalled(void* thread) {
    UserGuard guard(UserLock());
    auto* self = static_cast<ThreadState*>(thread);
    self->objectSignalled = true;
    WakeThread(self, 0);
}

// Waits for messages that came since the queue was last looked at (or for any with `present`), or for kernel objects,
// whose outcome goes to `taken`. `all`: for a message and all objects together.
Waited Wait(ThreadState* self, UserHold& hold, DWORD mask, bool present, kernel::ObjectWait* objects, bool all,
            std::uint64_t deadline, DWORD* taken) {
    const auto arrived = [&] { return (self->wakeBits & mask) != 0 || (present && (PendingBits(self) & mask) != 0); };
    for (;;) {
        const std::uint64_t next = std::min(CheckTimers(self), CheckCaret(self));
        const bool message = arrived();
        self->objectSignalled = false;
        if (objects != nullptr && (message || !all)) {
            // Those who signal take the objects' locks before this one.
            hold.unlock();
            *taken = objects->Take(all);
            hold.lock();
            if (*taken != WAIT_TIMEOUT) {
                return Waited::Objects;
            }
        }
        if (message && !all) {
            return Waited::Message;
        }
        if (!self->sent.empty()) {
            ServeSent(self, hold);
            if ((mask & QS_SENDMESSAGE) != 0 && !all) {
                return Waited::Message;
            }
            continue;
        }
        if (base::TickCount64() >= deadline) {
            return Waited::TimedOut;
        }
        // What came while the lock was open has woken nobody.
        if (!self->objectSignalled && arrived() == message) {
            Sleep(self, hold, std::min(next, deadline));
        }
    }
}

DWORD WaitForMessagesAndObjects(DWORD count, const HANDLE* handles, bool all, DWORD milliseconds, DWORD mask,
                                bool present) {
    ThreadState* self = CurrentThread();
    if (self == nullptr || count >= MAXIMUM_WAIT_OBJECTS || (count > 0 && handles == nullptr)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return WAIT_FAILED;
    }
    OpenDisplay();
    return kernel::Guarded(WAIT_FAILED, [&]() -> DWORD {
        std::optional<kernel::ObjectWait> objects;
        if (count > 0) {
            objects.emplace(handles, count, NoteSignalled, self);
            if (const DWORD error = objects->Error(); error != ERROR_SUCCESS || (all && objects->HasTwice())) {
                SetLastError(error != ERROR_SUCCESS ? error : ERROR_INVALID_PARAMETER);
                return WAIT_FAILED;
            }
        }
        UserHold hold(UserLock());
        const std::uint64_t deadline = milliseconds == INFINITE ? UINT64_MAX : base::TickCount64() + milliseconds;
        DWORD taken = 0;
        switch (Wait(self, hold, mask, present, objects ? &*objects : nullptr, all && objects, deadline, &taken)) {
            case Waited::Message:
                self->wakeBits &= ~mask;
                return WAIT_OBJECT_0 + count;
            case Waited::Objects:
                return taken;
            case Waited::TimedOut:
                break;
        }
        return WAIT_TIMEOUT;
    });
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI WaitMessage(VOID) {
    ThreadState* self = CurrentThread();
    if (self == nullptr) {
        return FALSE;
    }
    OpenDisplay();
    UserHold hold(UserLock());
    DWORD taken = 0;
    Wait(self, hold, QS_ALLINPUT | QS_ALLPOSTMESSAGE, false, nullptr, false, UINT64_MAX, &taken);
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
