/// @file frame.h
/// The gallery's window: a list of pages at the left, the chosen page beside it, and the buttons that end it.
#pragma once

#include <windows.h>

#include <string>

namespace gallery {

struct Result {
    bool accepted = false;  ///< ended with OK while a date was chosen
    std::string isoDate;
};

/// Makes the window, not shown yet, with its first page. It posts WM_QUIT when it ends.
/// @param result filled in then; must outlive the window.
/// @returns null when it cannot be made.
HWND OpenFrame(HINSTANCE instance, Result& result);

/// Shows the page at the place `index` of Pages(). @returns whether there is such a page and it could be made.
bool ShowPage(HWND frame, int index);

/// Ctrl+Tab, Ctrl+Page Down: the next page; with Shift, or Ctrl+Page Up: the one before. To be asked before the dialog
/// keys. @returns whether the message was one of them.
bool TurnPageByKey(HWND frame, const MSG& message);

/// Lets the page shown see what its fields show by now. To be called after each message; the window may be gone.
void FollowFields(HWND frame);

}  // namespace gallery
