/// @file tree.h
/// The window tree, as it is changed.
#pragma once

#include <windows.h>

#include "user/model/window.h"

namespace platform::user {

/// Puts a window into its parent's child list: after == HWND_TOP, HWND_BOTTOM or a sibling.
/// Topmost windows stay above the others. Lock held.
void LinkWindow(Window* window, HWND after);
void UnlinkWindow(Window* window);

/// @returns whether a window is, or hangs on, another one by parents and owners: the other one cannot come under it then.
/// Lock held.
bool LeadsTo(const Window* window, const Window* target);

inline bool IsTopmost(const Window* window) {
    return (window->exStyle & WS_EX_TOPMOST) != 0;
}

}  // namespace platform::user
