/// @file topic.h
/// Topics of the help file, shown on the screen. What shows them differs from host to host: native/ and windows/.
#pragma once

#include <windows.h>

#include <string>

namespace gallery {

/// Shows a topic next to a control, until the next click or key. @param file the help file's path without ending. @param
/// command HELP_WM_HELP shows it at the control, HELP_CONTEXTMENU at the cursor. @returns whether it was shown.
bool ShowTopic(HWND control, const std::string& file, UINT command, DWORD topic);

}  // namespace gallery
