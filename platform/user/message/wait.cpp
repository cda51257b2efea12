// Waiting for messages without taking any.
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

enum class Waited { Message, Objects, TimedOut };

void NoteSignalled(void* thread) {
    UserGuard guard(UserLock());
    auto* self = static_cast<ThreadState*>(thread);
    self->objectSignalled = true;
    WakeThread(self, 0);
}

// Waits for messages that came since the queue was last looked at, or for kernel objects, whose outcome goes to `taken`.
Waited Wait(ThreadState* self, UserHold& hold, DWORD mask, kernel::ObjectWait* objects, std::uint64_t deadline,
            DWORD* taken) {
    const auto arrived = [&] { return (self->wakeBits & mask) != 0; };
    for (;;) {
        const std::uint64_t next = std::min(CheckTimers(self), CheckCaret(self));
        const bool message = arrived();
        self->objectSignalled = false;
        if (objects != nullptr) {
            // Those who signal take the objects' locks before this one.
            hold.unlock();
            *taken = objects->Take();
            hold.lock();
            if (*taken != WAIT_TIMEOUT) {
                return Waited::Objects;
            }
        }
        if (message) {
            return Waited::Message;
        }
        if (!self->sent.empty()) {
            ServeSent(self, hold);
            if ((mask & QS_SENDMESSAGE) != 0) {
                return Waited::Message;
            }
            continue;
        }
        if (base::TickCount64() >= deadline) {
            return Waited::TimedOut;
        }
        // What came while the lock was open has woken nobody.
        if (!self->objectSignalled && !arrived()) {
            Sleep(self, hold, std::min(next, deadline));
        }
    }
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;
namespace base = platform::base;
namespace kernel = platform::kernel;

DWORD WINAPI MsgWaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL all, DWORD milliseconds, DWORD mask) {
    ThreadState* self = CurrentThread();
    if (self == nullptr || count >= MAXIMUM_WAIT_OBJECTS || (count > 0 && handles == nullptr)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return WAIT_FAILED;
    }
    if (all && count > 0) {
        SetLastError(ERROR_NOT_SUPPORTED);
        return WAIT_FAILED;
    }
    OpenDisplay();
    return kernel::Guarded(WAIT_FAILED, [&]() -> DWORD {
        std::optional<kernel::ObjectWait> objects;
        if (count > 0) {
            objects.emplace(handles, count, NoteSignalled, self);
            if (const DWORD error = objects->Error(); error != ERROR_SUCCESS) {
                SetLastError(error);
                return WAIT_FAILED;
            }
        }
        UserHold hold(UserLock());
        const std::uint64_t deadline = milliseconds == INFINITE ? UINT64_MAX : base::TickCount64() + milliseconds;
        DWORD taken = 0;
        switch (Wait(self, hold, mask, objects ? &*objects : nullptr, deadline, &taken)) {
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
