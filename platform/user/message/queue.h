/// @file queue.h
/// How messages get to threads: sent messages, timers.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "user/model/thread.h"
#include "user/model/window.h"

namespace platform::user {

/// A message on its way to another thread, or an errand that this thread has to do (`errand` set). Lives until both
/// sides have let go of it. Guarded by UserLock.
struct SentMessage {
    HWND window = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    void (*errand)(const SentMessage& sent) = nullptr;
    ThreadState* sender = nullptr;  ///< waits for the reply; null when nobody does
    LRESULT result = 0;
    bool replied = false;
    bool answered = false;  ///< the receiver replied in time, so the result counts
    int holders = 1;
};

/// Gives a thread something to do about a window, which may be gone by then. Lock held. @returns false without memory.
using Errand = void (*)(const SentMessage& sent);
bool EnqueueErrand(ThreadState* receiver, Errand errand, HWND window, WPARAM wParam = 0, LPARAM lParam = 0);
/// Hands an errand to the thread of a window, as the host's wishes are. Any thread; does not wait.
void SendErrand(HWND window, Errand errand, WPARAM wParam = 0, LPARAM lParam = 0);

/// Answers the messages that other threads have sent to this one. The lock is released meanwhile.
void ServeSent(ThreadState* self, UserHold& hold);

/// Sends a message whose parameters are no pointers, without waiting where the window is another thread's. Lock not held.
void Tell(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// @returns whether a message may only be sent, with ERROR_MESSAGE_SYNC_ONLY set, because its parameters point to data.
bool MustBeSynchronous(UINT message);

/// Calls a window's procedure directly (same thread).
LRESULT CallProcedure(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// --- timers (timer.cpp). Lock held.

/// Marks the timers whose time has come, and sets QS_TIMER for new ones. @returns when the next one is due, else
/// UINT64_MAX.
std::uint64_t CheckTimers(ThreadState* self);
/// Takes the WM_TIMER of a ready timer, of one window or of any.
bool TakeTimer(ThreadState* self, HWND window, bool any, bool remove, MSG* message);
/// @returns whether the thread has set this timer with this procedure.
bool OwnsTimerProcedure(const ThreadState* self, HWND window, UINT_PTR id, LPARAM procedure);
void ForgetTimers(Window* window);

}  // namespace platform::user
