/// @file cvplatform.h
/// What the layer offers beyond the Windows API, for tests on hosts that have none: counts of live objects, driven
/// failures of allocation, and a driven clock.
#pragma once

#include "windef.h"

typedef enum CvPlatformKind {
    CV_PLATFORM_GLOBAL_BLOCKS,
    CV_PLATFORM_WINDOWS,
    /// Device contexts, pens, brushes, fonts, bitmaps and regions together.
    CV_PLATFORM_GDI_OBJECTS,
    /// Threads, events, files, find handles and registry keys together.
    CV_PLATFORM_OTHER_HANDLES,
    /// Folders and enumerators of the shell that somebody still holds a reference to.
    CV_PLATFORM_COMPONENT_OBJECTS,
    /// Blocks of the shell's allocator.
    CV_PLATFORM_SHELL_BLOCKS,
} CvPlatformKind;

/// @returns how many objects of a kind are alive in the process; 0 for an unknown kind.
WINBASEAPI size_t CvPlatformCount(CvPlatformKind kind);

/// Makes one of the following GlobalAlloc and GlobalReAlloc calls of the process fail with ERROR_NOT_ENOUGH_MEMORY: 1
/// means the next one, 2 the one after it, and so on. 0 takes the order back. It holds once.
WINBASEAPI void CvPlatformFailAllocation(unsigned count);

/// Makes one of the following calls of the shell's namespace fail: a flat call, a method of an interface, or an allocation
/// of the shell's allocator. Counted as in CvPlatformFailAllocation. @returns what was left of the order before; 0 when it
/// had been carried out.
WINBASEAPI unsigned CvPlatformFailShell(unsigned count);

/// Drives the process's clock: GetTickCount, timers, waits and message times, and the time of day. It stands at so many
/// milliseconds, which may be more than 32 bits count, and moves on where a thread would wait for a time: to the end of that
/// wait, at once. 0 gives it back to the host. For programs of one thread: nobody waits for what another thread does meanwhile.
WINBASEAPI void CvPlatformDriveClock(ULONGLONG milliseconds);
