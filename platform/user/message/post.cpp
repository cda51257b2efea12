// Posting, and the numbers of registered messages.
#include <algorithm>
#include <map>
#include <new>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "user/message/queue.h"
#include "user/model/input_state.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

constexpr std::size_t kQueueLimit = 10000;
constexpr UINT kFirstRegistered = 0xC000;
constexpr UINT kLastRegistered = 0xFFFF;

// Lock held.
bool Post(ThreadState* thread, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (thread->posted.size() >= kQueueLimit) {
        return Fail(ERROR_NOT_ENOUGH_QUOTA, false);
    }
    const MSG posted{window, message, wParam, lParam, base::TickCount(), Input().cursor};
    if (!MemoryAllows([&] { thread->posted.push_back(posted); })) {
        return Fail(ERROR_NOT_ENOUGH_MEMORY, false);
    }
    WakeThread(thread, QS_POSTMESSAGE | QS_ALLPOSTMESSAGE);
    return true;
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (MustBeSynchronous(message)) {
        return FALSE;
    }
    if (window == nullptr) {
        return PostThreadMessageA(GetCurrentThreadId(), message, wParam, lParam);
    }
    UserGuard guard(UserLock());
    const Window* target = FindWindowObject(window);
    if (target == nullptr) {
        return FALSE;
    }
    // The desktop window has no queue: what is posted to it concerns nobody.
    return target->thread == nullptr || Post(target->thread, window, message, wParam, lParam);
}

BOOL WINAPI PostThreadMessageA(DWORD thread, UINT message, WPARAM wParam, LPARAM lParam) {
    if (MustBeSynchronous(message)) {
        return FALSE;
    }
    if (thread == GetCurrentThreadId()) {
        CurrentThread();
    }
    UserGuard guard(UserLock());
    ThreadState* target = FindThread(thread);
    if (target == nullptr) {
        return Fail(ERROR_INVALID_THREAD_ID, FALSE);
    }
    return Post(target, nullptr, message, wParam, lParam);
}

VOID WINAPI PostQuitMessage(int exitCode) {
    ThreadState* self = CurrentThread();
    if (self == nullptr) {
        return;
    }
    UserGuard guard(UserLock());
    self->quitPosted = true;
    self->quitCode = exitCode;
    WakeThread(self, QS_POSTMESSAGE | QS_ALLPOSTMESSAGE);
}

UINT WINAPI RegisterWindowMessageA(LPCSTR name) {
    if (name == nullptr || *name == '\0') {
        return Fail(ERROR_INVALID_PARAMETER, 0);
    }
    try {
        std::string key(name);
        std::transform(key.begin(), key.end(), key.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
        UserGuard guard(UserLock());
        static auto* names = new std::map<std::string, UINT>;
        const auto found = names->find(key);
        if (found != names->end()) {
            return found->second;
        }
        const UINT number = kFirstRegistered + static_cast<UINT>(names->size());
        if (number > kLastRegistered) {
            return Fail(ERROR_NOT_ENOUGH_MEMORY, 0);
        }
        names->emplace(std::move(key), number);
        return number;
    } catch (const std::bad_alloc&) {
        return Fail(ERROR_NOT_ENOUGH_MEMORY, 0);
    }
}
