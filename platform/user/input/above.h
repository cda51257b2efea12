/// @file above.h
/// What input asks of the rooms above it, which implement it.
#pragma once

#include <windows.h>

namespace platform::user {

/// frame: asks a window for help on itself with WM_HELP. @param point the pointer's place on the screen.
void AskForHelp(HWND window, POINT point);

/// desktop: shows the pointer. @param idc an IDC_ value, 0 to hide it.
void ShowCursorShape(unsigned idc);

/// desktop: a window is about to end: a clipboard that it holds open is closed. Lock not held.
void LeaveClipboard(HWND window);

}  // namespace platform::user
