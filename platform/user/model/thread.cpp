#include "user/model/thread.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <new>
#include <vector>

#include "base/immortal.h"
#include "base/clock.h"
#include "base/report.h"
#include "user/model/above.h"
#include "user/model/input_state.h"
#include "user/model/window.h"

namespace platform::user {
namespace {

// Never freed: threads may end after static objects are gone.
std::map<DWORD, ThreadState*>& Threads() {
    static base::Immortal<std::map<DWORD, ThreadState*>> threads;
    return *threads;
}

constinit thread_local ThreadState* currentThread = nullptr;

void CollectWindows(Window* parent, const ThreadState* thread, std::vector<HWND>* windows) {
    for (Window* child = parent->firstChild; child != nullptr; child = child->next) {
        if (child->thread == thread) {
            // Nothing of the application runs for a thread that is gone.
            child->procedure = DefWindowProcA;
            windows->push_back(child->handle);
        }
        CollectWindows(child, thread, windows);
    }
}

void EndThread(ThreadState* thread) {
    std::vector<HWND> windows;
    {
        UserGuard guard(UserLock());
        thread->ending = true;
        const bool all = MemoryAllows([&] {
            CollectWindows(Desktop(), thread, &windows);
            CollectWindows(Orphanage(), thread, &windows);
        });
        if (!all) {
            base::ReportOnce("out of memory: windows of a thread that ended are left behind");
        }
    }
    for (HWND window : windows) {
        if (PeekWindow(window) != nullptr) {
            DestroyWindow(window);
        }
    }
    UserGuard guard(UserLock());
    AbandonSent(thread);
    Threads().erase(thread->id);
    InputState& input = Input();
    if (input.foreground == thread) {
        input.foreground = nullptr;
    }
    if (input.buttonThread == thread) {
        input.buttonThread = nullptr;
    }
}

struct ThreadEnd {
    bool armed = false;
    ~ThreadEnd() {
        // The process ends with its main thread: its windows go with it, and procedures may be unloaded already.
        if (!armed || currentThread == nullptr || gettid() == getpid()) {
            return;
        }
        EndThread(currentThread);
        delete currentThread;
        currentThread = nullptr;
    }
};
thread_local ThreadEnd threadEnd;

ThreadState* MakeThread() {
    UserGuard guard(UserLock());
    ThreadState* thread = nullptr;
    try {
        thread = new ThreadState;
        thread->id = GetCurrentThreadId();
        Threads()[thread->id] = thread;
    } catch (const std::bad_alloc&) {
        delete thread;
        return nullptr;
    }
    const InputState& input = Input();
    std::copy(std::begin(input.keys), std::end(input.keys), thread->keyState);
    currentThread = thread;
    threadEnd.armed = true;
    return thread;
}

}  // namespace

ThreadState* CurrentThread() {
    ThreadState* thread = currentThread;
    return thread != nullptr ? thread : MakeThread();
}

Window* FindOwnWindow(HWND handle) {
    Window* window = FindWindowObject(handle);
    return window != nullptr && window->thread != CurrentThread() ? Fail(ERROR_ACCESS_DENIED, nullptr) : window;
}

ThreadState* FindThread(DWORD id) {
    const auto found = Threads().find(id);
    return found == Threads().end() ? nullptr : found->second;
}

void WakeThread(ThreadState* thread, DWORD bits) {
    if (thread == nullptr) {
        return;
    }
    thread->wakeBits |= bits;
    if (thread->sleeping) {
        thread->wake.notify_all();
    }
}

void Sleep(ThreadState* self, UserHold& hold, std::uint64_t deadline) {
    self->sleeping = true;
    if (deadline == UINT64_MAX) {
        self->wake.wait(hold);
    } else {
        const std::uint64_t now = base::TickCount64();
        if (deadline > now && !base::SkipTo(deadline)) {
            // A day at most: far deadlines would overflow the clock's arithmetic, and waking early does no harm.
            self->wake.wait_for(hold, std::chrono::milliseconds(std::min<std::uint64_t>(deadline - now, 86400000)));
        }
    }
    self->sleeping = false;
}

}  // namespace platform::user
