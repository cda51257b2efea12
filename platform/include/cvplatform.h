/// @file cvplatform.h
/// What this layer offers beyond the Windows API, for the tests of the layer and of what is built on it.
#pragma once

#include "windef.h"

typedef enum CvPlatformKind {
    CV_PLATFORM_GLOBAL_BLOCKS,   ///< movable and fixed global-memory blocks
    CV_PLATFORM_WINDOWS,         ///< windows, the desktop left out
    CV_PLATFORM_GDI_OBJECTS,     ///< pens, brushes, fonts, bitmaps, regions and device contexts, stock objects left out
    CV_PLATFORM_OTHER_HANDLES    ///< threads, events, files, find handles, registry keys
} CvPlatformKind;

/// @returns how many objects of a kind are alive in this process.
WINBASEAPI SIZE_T CvPlatformCount(CvPlatformKind kind);

/// Lets the n-th call of GlobalAlloc or GlobalReAlloc from now on fail as if memory had run out, on any thread.
/// @param n  1 for the very next call; 0 takes the order back.
WINBASEAPI void CvPlatformFailAllocation(UINT n);
