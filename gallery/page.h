/// @file page.h
/// What the gallery's window asks of a page: a child dialog that shows one family of controls.
#pragma once

#include "gallery/kept_values.h"

#include <windows.h>

#include <span>

namespace gallery {

/// The gallery ends with OK: a page that keeps more than the values of `kept` does it now. Sent, without parameters.
constexpr UINT kKeepValues = WM_APP + 1;

/// A message has been worked off, after which fields may show something else: they send no notifications. Sent to the page
/// shown, without parameters.
constexpr UINT kFollowFields = WM_APP + 2;

struct Page {
    UINT titleId;                          ///< string resource with the page's name in the list
    LPCSTR dialog;                         ///< template: WS_CHILD | DS_CONTROL, 250 by 190 dialog units
    DLGPROC procedure;                     ///< WM_INITDIALOG sets the page up, WM_DESTROY cleans up
    std::span<const KeptValue> kept = {};  ///< restored after WM_INITDIALOG
};

}  // namespace gallery
