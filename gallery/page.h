/// @file page.h
/// What the gallery's window asks of a page: a child dialog that shows one family of controls.
#pragma once

#include <windows.h>

namespace gallery {

/// The gallery ends with OK: a page that keeps values for the next start keeps them now. Sent, without parameters.
constexpr UINT kKeepValues = WM_APP + 1;

struct Page {
    UINT titleId;       ///< string resource with the page's name in the list
    LPCSTR dialog;      ///< template: WS_CHILD | DS_CONTROL, 250 by 190 dialog units
    DLGPROC procedure;  ///< WM_INITDIALOG sets the page up, WM_DESTROY cleans up
};

}  // namespace gallery
