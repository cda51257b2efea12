/// @file first_page.h
/// The gallery's dialog: a date field with a vertical bar, one with a horizontal bar, and the date that they show.
#pragma once

#include <windows.h>

#include <string>

namespace gallery {

struct Result {
    bool accepted = false;  ///< ended with OK
    std::string isoDate;
};

/// Makes the dialog, not shown yet. It posts WM_QUIT when it ends. @param result filled in then; must outlive the
/// dialog.
/// @returns null when it cannot be made.
HWND OpenFirstPage(HINSTANCE instance, Result& result);

}  // namespace gallery
