/// @file above.h
/// What frames ask of the rooms above them, which implement it.
#pragma once

#include <windows.h>

#include <memory>

#include "user/frame/scrollbar/bar.h"

namespace platform::user {

/// controls: @returns the state of a scroll bar control, null for another window. Alive as long as the pointer is held.
std::shared_ptr<BarState> ControlBar(HWND window);

/// menu: shows a window's system menu and sends it the WM_SYSCOMMAND that was chosen; it may be gone then. Windows without
/// WS_SYSMENU have none. @param at a point of the screen; null: below the caption's icon, or where that would be.
void OpenSystemMenu(HWND window, const POINT* at, bool keyboard);

}  // namespace platform::user
