/// @file commctrl.h
/// Common controls: image lists and the tree view.
#pragma once

#include "windows.h"

#define WINCOMMCTRLAPI WINAPI_EXPORT

/// Makes the classes of the common controls known; as often as one likes.
WINCOMMCTRLAPI void WINAPI InitCommonControls(void);

#include "commctrl/imagelist.h"
#include "commctrl/treeview.h"
