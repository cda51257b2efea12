/// @file above.h
/// What windows ask of the rooms above them, which implement it.
#pragma once

#include <windows.h>

namespace platform::user {

/// frame: the size and tracking limits of a window as WM_GETMINMAXINFO leaves them. Sends; no lock held.
MINMAXINFO QueryMinMax(HWND window);

/// menu: registers the class of menus.
void RegisterMenuClass();

/// controls: registers "#32770" and the classes of the predefined controls.
void RegisterDialogClasses();

}  // namespace platform::user
