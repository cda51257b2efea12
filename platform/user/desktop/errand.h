/// @file errand.h
/// What the host wants of a window is done by the window's own thread, when it next looks at its queue.
#pragma once

#include <windows.h>

#include "user/message/queue.h"

namespace platform::user {

/// Hands an errand to the thread of a window, which gets the window and the two values; the window may be gone when it is run. Any
/// thread; does not wait.
void SendErrand(HWND window, Errand errand, WPARAM wParam = 0, LPARAM lParam = 0);

}  // namespace platform::user
