// Waiting for messages without taking any.
#include <algorithm>

#include "base/clock.h"
#include "user/queue.h"

namespace platform::user {
namespace {

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

// Waits for messages that came since the queue was last looked at, or for kernel objects, whose outcome goes to `taken`.
Waited Wait(ThreadState* self, UserHold& hold, DWORD mask, const Objects& objects, std::uint64_t deadline,
            DWORD* taken) {
    for (;;) {
        const std::uint64_t next = std::min(CheckTimers(self), CheckCaret(self));
        const bool message = (self->wakeBits & mask) != 0;
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

}  // namespace
}  // namespace platform::user

using namespace platform::user;

DWORD WINAPI MsgWaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL all, DWORD milliseconds, DWORD mask) {
    ThreadState* self = CurrentThread();
    if (self == nullptr || count >= MAXIMUM_WAIT_OBJECTS || (count > 0 && handles == nullptr)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return WAIT_FAILED;
    }
    PresentSoon();
    UserHold hold(UserLock());
    const std::uint64_t deadline = milliseconds == INFINITE ? UINT64_MAX : platform::base::TickCount64() + milliseconds;
    DWORD taken = 0;
    switch (Wait(self, hold, mask, {handles, count, all != FALSE}, deadline, &taken)) {
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
