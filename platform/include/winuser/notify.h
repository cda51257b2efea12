/// @file winuser/notify.h
/// What WM_NOTIFY carries.
#pragma once

#include "../windef.h"

typedef struct tagNMHDR {
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
} NMHDR, *LPNMHDR;
