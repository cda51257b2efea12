/// @file help_popup.h
/// The popup window that shows a help topic. There is one at a time.
#pragma once

#include <windows.h>

#include <string>

namespace platform::user {

/// Shows a text under a point and about it, on the screen. The next click or key takes it away, but for those that scroll
/// what is longer than the screen. Throws bad_alloc.
bool ShowHelpPopup(HWND owner, POINT at, const std::string& text);
void CloseHelpPopup();

}  // namespace platform::user
