/// @file above.h
/// What windows ask of the rooms above them, which implement it.
#pragma once

#include <windows.h>

#include "user/model/window.h"

namespace platform::user {

/// frame: the client area that a window's frame leaves of a window rectangle. Lock held.
RECT ClientFromWindow(const Window* window, const RECT& windowRect);

/// frame: a window's sizes as WM_GETMINMAXINFO leaves them, none at most smaller than at least. Sends; no lock held.
MINMAXINFO QueryMinMax(HWND window);

/// desktop: @returns what the host's panels leave of the screen; all of it where there is no host.
RECT WorkArea();

/// menu: registers the class of menus.
void RegisterMenuClass();

/// controls: registers "#32770" and the classes of the predefined controls.
void RegisterDialogClasses();

}  // namespace platform::user
