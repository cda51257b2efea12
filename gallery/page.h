/// @file page.h
/// What the gallery knows of a page.
#pragma once

#include <windows.h>

namespace gallery {

struct Page {
    UINT titleId;       ///< string of its name in the list of pages
    LPCSTR dialog;      ///< its template: a child dialog without caption
    DLGPROC procedure;  ///< sets the page up at WM_INITDIALOG and cleans up at WM_DESTROY
};

}  // namespace gallery
