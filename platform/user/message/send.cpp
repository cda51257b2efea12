// Sending: directly within a thread, by way of the receiver's queue between threads. A thread that waits for a reply
// goes on answering what others send to it, so that two threads may send to each other in nested turns.
#include <new>
#include <vector>

#include "base/clock.h"
#include "user/message/queue.h"
#include "user/model/above.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

void Release(SentMessage* sent) {
    if (--sent->holders == 0) {
        delete sent;
    }
}

// Lock held.
void Reply(SentMessage* sent, LRESULT result, bool answered) {
    sent->replied = true;
    sent->answered = answered;
    sent->result = result;
    if (sent->sender != nullptr) {
        WakeThread(sent->sender, 0);
    }
}

enum class Sending { Done, TimedOut, NoWindow };

// Gives a thread a message or an errand, which whoever sends it may hold too. Lock held. Null without memory.
SentMessage* Enqueue(ThreadState* receiver, const SentMessage& message) {
    auto* sent = new (std::nothrow) SentMessage(message);
    if (sent == nullptr || !MemoryAllows([=] { receiver->sent.push_back(sent); })) {
        delete sent;
        return nullptr;
    }
    WakeThread(receiver, QS_SENDMESSAGE);
    return sent;
}

// Lock held once; the target belongs to another thread.
Sending SendAcross(ThreadState* self, UserHold& hold, Window* target, UINT message, WPARAM wParam, LPARAM lParam,
                   std::uint64_t deadline, LRESULT* result) {
    SentMessage* sent = Enqueue(target->thread, {.window = target->handle,
                                                 .message = message,
                                                 .wParam = wParam,
                                                 .lParam = lParam,
                                                 .sender = self,
                                                 .holders = 2});
    if (sent == nullptr) {
        return Fail(ERROR_NOT_ENOUGH_MEMORY, Sending::NoWindow);
    }
    while (!sent->replied) {
        if (!self->sent.empty()) {
            ServeSent(self, hold);
            continue;
        }
        if (base::TickCount64() >= deadline) {
            break;
        }
        Sleep(self, hold, deadline);
    }
    const Sending outcome = !sent->replied ? Sending::TimedOut : (sent->answered ? Sending::Done : Sending::NoWindow);
    *result = outcome == Sending::Done ? sent->result : 0;
    sent->sender = nullptr;
    Release(sent);
    return outcome;
}

// The messages below WM_USER whose parameters point to the sender's data: they cannot be left lying in a queue.
bool CarriesPointer(UINT message) {
    switch (message) {
        case WM_CREATE:
        case WM_NCCREATE:
        case WM_SETTEXT:
        case WM_GETTEXT:
        case WM_GETMINMAXINFO:
        case WM_DRAWITEM:
        case WM_MEASUREITEM:
        case WM_WINDOWPOSCHANGING:
        case WM_WINDOWPOSCHANGED:
        case WM_NOTIFY:
        case WM_HELP:
            return true;
        default:
            return false;
    }
}

}  // namespace

bool MustBeSynchronous(UINT message) {
    return CarriesPointer(message) && Fail(ERROR_MESSAGE_SYNC_ONLY, true);
}

bool EnqueueErrand(ThreadState* receiver, Errand errand, HWND window, WPARAM wParam, LPARAM lParam) {
    return Enqueue(receiver, {.window = window, .wParam = wParam, .lParam = lParam, .errand = errand}) != nullptr;
}

void SendErrand(HWND handle, Errand errand, WPARAM wParam, LPARAM lParam) {
    const UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    if (window != nullptr && window->thread != nullptr) {
        EnqueueErrand(window->thread, errand, handle, wParam, lParam);
    }
}

void ServeSent(ThreadState* self, UserHold& hold) {
    while (!self->sent.empty()) {
        SentMessage* sent = self->sent.front();
        self->sent.pop_front();
        if (sent->errand != nullptr) {
            hold.unlock();
            sent->errand(*sent);
            hold.lock();
            Release(sent);
            continue;
        }
        Window* target = PeekWindow(sent->window);
        if (target == nullptr || target->thread != self) {
            Reply(sent, 0, false);
            Release(sent);
            continue;
        }
        const WNDPROC procedure = target->procedure;
        hold.unlock();
        const LRESULT result = CallProcedure(procedure, sent->window, sent->message, sent->wParam, sent->lParam);
        hold.lock();
        Reply(sent, result, true);
        Release(sent);
    }
    self->wakeBits &= ~static_cast<DWORD>(QS_SENDMESSAGE);
}

void AbandonSent(ThreadState* thread) {
    while (!thread->sent.empty()) {
        SentMessage* sent = thread->sent.front();
        thread->sent.pop_front();
        Reply(sent, 0, false);
        Release(sent);
    }
}

LRESULT CallProcedure(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return procedure != nullptr ? procedure(window, message, wParam, lParam) : 0;
}

// Within a thread the procedure is called at once.
void Tell(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ThreadState* self = CurrentThread();
    UserHold hold(UserLock());
    Window* target = self != nullptr ? FindWindowObject(window) : nullptr;
    if (target == nullptr) {
        return;
    }
    if (target->thread == self || target->thread == nullptr) {
        const WNDPROC procedure = target->procedure;
        hold.unlock();
        CallProcedure(procedure, window, message, wParam, lParam);
        return;
    }
    Enqueue(target->thread, {.window = window, .message = message, .wParam = wParam, .lParam = lParam});
}

}  // namespace platform::user

using namespace platform::user;
namespace base = platform::base;

LRESULT WINAPI SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ThreadState* self = CurrentThread();
    UserHold hold(UserLock());
    Window* target = FindWindowObject(window);
    if (target == nullptr || self == nullptr) {
        return 0;
    }
    if (target->thread == self || target->thread == nullptr) {
        const WNDPROC procedure = target->procedure.load(std::memory_order_relaxed);
        hold.unlock();
        return CallProcedure(procedure, window, message, wParam, lParam);
    }
    LRESULT result = 0;
    SendAcross(self, hold, target, message, wParam, lParam, UINT64_MAX, &result);
    return result;
}

namespace {

/// Sends a message to all top-level windows of all threads.
LRESULT SendToAll(UINT message, WPARAM wParam, LPARAM lParam, UINT flags, UINT timeout, DWORD_PTR* result) {
    std::vector<HWND> targets;
    if (!MemoryAllows([&] { targets = TopLevelWindows([](const Window*) { return true; }); })) {
        return Fail(ERROR_NOT_ENOUGH_MEMORY, 0);
    }
    for (HWND each : targets) {
        SendMessageTimeoutA(each, message, wParam, lParam, flags, timeout, result);
    }
    return 1;
}

}  // namespace

LRESULT WINAPI SendMessageTimeoutA(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT flags, UINT timeout,
                                   DWORD_PTR* result) {
    if (window == HWND_BROADCAST) {
        return SendToAll(message, wParam, lParam, flags, timeout, result);
    }
    ThreadState* self = CurrentThread();
    UserHold hold(UserLock());
    Window* target = FindWindowObject(window);
    if (target == nullptr || self == nullptr) {
        return 0;
    }
    LRESULT answer = 0;
    if (target->thread == self || target->thread == nullptr) {
        const WNDPROC procedure = target->procedure;
        hold.unlock();
        answer = CallProcedure(procedure, window, message, wParam, lParam);
    } else {
        const std::uint64_t deadline = base::TickCount64() + timeout;
        const Sending sending = SendAcross(self, hold, target, message, wParam, lParam, deadline, &answer);
        if (sending == Sending::TimedOut) {
            SetLastError(ERROR_TIMEOUT);
        }
        if (sending != Sending::Done) {
            return 0;
        }
    }
    if (result != nullptr) {
        *result = static_cast<DWORD_PTR>(answer);
    }
    return 1;
}
