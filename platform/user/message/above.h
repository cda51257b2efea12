/// @file above.h
/// What a message loop asks of the rooms above it, which implement it: input and painting are where messages come from when
/// nobody has sent or posted one.
#pragma once

#include <windows.h>

#include <cstdint>

#include "user/model/thread.h"
#include "user/model/window.h"

namespace platform::user {

// --- input

/// What cooking an event has come to.
enum class Cooked { Message, Skip, Dropped };

/// Turns an event into a message for one of the thread's windows. Skip: the filter does not want it, it stays queued.
/// Dropped: it belongs to nobody or was eaten. With `remove` the state of the thread follows, windows are activated,
/// and so on. Lock held on entry and exit, released while window procedures run.
Cooked CookMouse(ThreadState* self, UserHold& hold, const InputEvent& event, bool (*wanted)(const MSG&, const void*),
                 const void* filter, bool remove, MSG* message);
Cooked CookKey(ThreadState* self, const InputEvent& event, bool (*wanted)(const MSG&, const void*), const void* filter,
               bool remove, MSG* message);

/// Blinks the caret if it is time. @returns when it will be time again, else UINT64_MAX. Lock held.
std::uint64_t CheckCaret(ThreadState* self);

// --- painting

/// @returns the next window of a thread that is to get WM_PAINT: `within` (null: any) or a descendant; parents before
/// children, top-level windows from the top of the z-order. Sends nothing. Lock held.
Window* NextPaintWindow(ThreadState* thread, Window* within);

/// Calls a window's procedure with WM_PAINT. Until that paints, the queue has no second WM_PAINT for the window: a procedure that
/// takes messages first would get it for ever. Same thread; no lock held.
LRESULT CallPaint(HWND handle, WPARAM wParam, LPARAM lParam);

// --- desktop

/// A pause has come (a paint ended, the queue is empty): starts the display if there is something to show by now.
/// From then on whatever is drawn wakes it, and nothing else does.
void OpenDisplay();

}  // namespace platform::user
