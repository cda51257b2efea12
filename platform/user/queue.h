/// @file queue.h
/// What the files that carry messages and input share: sent messages, waiting, the input state of the whole system.
#pragma once

#include <windows.h>

#include <cstdint>
#include <mutex>
#include <vector>

#include "base/handle.h"
#include "user/thread.h"
#include "user/window.h"

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

using UserHold = std::unique_lock<std::recursive_mutex>;

/// Reads a field that other threads may write, without holding the lock longer.
template <class Value>
Value Shared(const Value& field) {
    UserGuard guard(UserLock());
    return field;
}

/// The live window of a handle or null; leaves the last error alone.
inline Window* PeekWindow(HWND handle) {
    return base::Find<Window>(handle, base::HandleKind::Window);
}

/// The thread with this id if it has a queue. Lock held.
ThreadState* FindThread(DWORD id);

/// Gives a sent message or errand to a thread and takes over one hold on it. Lock held. @returns false without memory.
bool Enqueue(ThreadState* receiver, SentMessage* sent);

/// Answers the messages that other threads have sent to this one. The lock is released meanwhile.
void ServeSent(ThreadState* self, UserHold& hold);

/// Sends a message whose parameters are no pointers, without waiting where the window is another thread's. Lock not held.
void Tell(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// @returns whether a message may only be sent, with ERROR_MESSAGE_SYNC_ONLY set, because its parameters point to data.
bool MustBeSynchronous(UINT message);

/// @returns all top-level windows. Throws bad_alloc.
std::vector<HWND> BroadcastTargets();

/// Answers everything that waits for a thread that ends. Lock held.
void AbandonSent(ThreadState* thread);

/// Sleeps until the thread is woken, or until a deadline of base::TickCount64 (UINT64_MAX: none). The lock is released
/// meanwhile, and may have been woken for nothing.
void Sleep(ThreadState* self, UserHold& hold, std::uint64_t deadline);

// --- timers (timer.cpp). Lock held.

/// Marks the timers whose time has come, and sets QS_TIMER for new ones. @returns when the next one is due, else
/// UINT64_MAX.
std::uint64_t CheckTimers(ThreadState* self);
/// Takes the WM_TIMER of a ready timer, of one window or of any.
bool TakeTimer(ThreadState* self, HWND window, bool any, bool remove, MSG* message);
/// @returns whether the thread has set this timer with this procedure.
bool OwnsTimerProcedure(const ThreadState* self, HWND window, UINT_PTR id, LPARAM procedure);
void ForgetTimers(Window* window);

// --- input (input.cpp, mouse.cpp, keys.cpp)

/// What input changes for the whole system. Guarded by UserLock.
struct InputState {
    POINT cursor{};
    BYTE keys[256] = {};          ///< 0x80 down, 0x01 toggled
    bool pressedSince[256] = {};  ///< went down since GetAsyncKeyState last asked
    ThreadState* foreground = nullptr;
    ThreadState* buttonThread = nullptr;  ///< took the first button that is down
    std::uint64_t lastNumber = 0;
};
InputState& Input();

/// Files an event with the thread it belongs to and updates the state of keys and cursor. Takes the lock.
void Inject(InputEvent event);

/// What cooking an event has come to.
enum class Cooked { Message, Skip, Dropped };

/// Turns an event into a message for one of the thread's windows. Skip: the filter does not want it, it stays queued.
/// Dropped: it belongs to nobody or was eaten. With `remove` the state of the thread follows, windows are activated,
/// and so on. Lock held on entry and exit, released while window procedures run.
Cooked CookMouse(ThreadState* self, UserHold& hold, const InputEvent& event, bool (*wanted)(const MSG&, const void*),
                 const void* filter, bool remove, MSG* message);
Cooked CookKey(ThreadState* self, const InputEvent& event, bool (*wanted)(const MSG&, const void*), const void* filter,
               bool remove, MSG* message);

/// Writes the state of a key and of the key that stands for both sides of it.
void ApplyKey(BYTE (&keys)[256], BYTE key, bool down);

/// @returns the key that stands for both sides of a modifier; other keys as they are.
BYTE GenericKey(BYTE key);

/// @returns the MK_ flags of a key state.
WPARAM MouseFlags(const BYTE (&keys)[256]);

/// @returns the deepest visible window at a point, whoever owns it; null over the desktop. Lock held.
Window* WindowAt(POINT point);

// --- cursor (cursor.cpp)

void MoveCursor(POINT point);

// --- keyboard layout (layout.cpp, layout_text.cpp)

/// @returns the character that a key makes with these modifiers, -1 for none.
int CharacterOf(UINT key, bool shift, bool control, bool alt, bool capital);

/// @returns 0 for a scan code without a key. With `sides` modifiers come as their left and right keys.
UINT KeyOfScan(UINT scan, bool extended, bool sides);
UINT ScanOfKey(UINT key);
/// @returns the key of the keypad that a scan code means while Num Lock is on, 0 for other codes.
UINT KeypadNumber(UINT scan);

// --- activation and focus (activation.cpp, focus.cpp)

/// Moves the focus without any check. @returns whether the window has it afterwards.
bool MoveFocus(ThreadState* self, HWND window);

/// Activates a window of this thread, even a hidden one.
bool ActivateOwn(ThreadState* self, HWND window, bool byMouse, bool foreground);

/// Takes activation off this thread's active window, after which none is active.
void DeactivateOwn(ThreadState* self);

/// Gives activation to another window when this one goes away.
void ActivateNext(ThreadState* self, Window* leaving);

/// Takes capture off a window and tells it so. Lock not held.
void MoveCapture(ThreadState* self, HWND window);

// --- caret (caret.cpp). Lock held.

/// Blinks if it is time. @returns when it will be time again, else UINT64_MAX.
std::uint64_t CheckCaret(ThreadState* self);
void ForgetCaret(Window* window);

// --- display (display.cpp)

/// @param idc an IDC_ value, 0 to hide the pointer.
void ShowCursorShape(unsigned idc);

}  // namespace platform::user
