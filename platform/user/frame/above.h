/// @file above.h
/// What frames ask of the rooms above them, which implement it.
#pragma once

#include <windows.h>

#include <memory>

#include "user/frame/scrollbar/bar.h"

namespace platform::user {

/// controls: @returns the state of a scroll bar control, null for another window. Alive as long as the pointer is held.
std::shared_ptr<BarState> ControlBar(HWND window);

}  // namespace platform::user
