/// @file help.h
/// Context help: the F1 key, the question mark in the caption and the right mouse button.
#pragma once

#include <windows.h>

namespace gallery {

/// Answers WM_HELP, which dialogs of the library pass on to the frame that owns them. @param info as it comes with the
/// message. @returns whether a topic was shown.
bool ShowHelp(HWND frame, const HELPINFO& info);

/// Answers WM_CONTEXTMENU. @param control the window that was clicked, or that has the focus. @param where as it comes with the
/// message: at the pointer, or by the keyboard, when the topic is shown at the control.
bool ShowContextMenuHelp(HWND frame, HWND control, LPARAM where);

}  // namespace gallery
