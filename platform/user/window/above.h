/// @file above.h
/// What windows ask of the rooms above them, which implement it.
#pragma once

#include <windows.h>

#include "user/model/window.h"

namespace platform::user {

/// frame: the client area that a window's frame leaves of a window rectangle. Lock held.
RECT ClientFromWindow(const Window* window, const RECT& windowRect);

/// frame: how wide a window is, and how high, at the least and at the most when a person sizes it. Lock held.
struct SizeLimits {
    POINT least;
    POINT most;
};
SizeLimits LimitsOf(const Window* window);

/// frame: how many pixels wide the frame is on each side, the sunken client edge left out.
int FrameWidth(DWORD style, DWORD exStyle);

/// menu: registers the class of menus.
void RegisterMenuClass();

/// controls: registers "#32770" and the classes of the predefined controls.
void RegisterDialogClasses();

}  // namespace platform::user
