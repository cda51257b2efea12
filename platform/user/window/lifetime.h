/// @file lifetime.h
/// How windows come into being and end, shared by creation and destruction.
#pragma once

#include "user/model/window.h"

namespace platform::user {

/// Memory of windows is used again for windows only: whoever looks a handle up without the lock reads a window, if
/// perhaps one that has just ended, and never anything else.
struct GiveBackWindow {
    void operator()(Window* window) const noexcept;
};
using WindowHold = std::unique_ptr<Window, GiveBackWindow>;

/// @returns a window that belongs to nothing yet, or null without memory. Lock held.
WindowHold NewWindow() noexcept;

/// Tells a child's ancestors of its creation or end (WM_PARENTNOTIFY), as far as the styles let them hear.
void NotifyParents(HWND handle, UINT event);

/// Destroys a window with all that it owns and holds, with every message that goes with it.
bool DestroyTree(HWND handle);

/// The end of a window and of its children: WM_NCDESTROY, leaves first, then it is gone.
void EndWindow(HWND handle);

}  // namespace platform::user
