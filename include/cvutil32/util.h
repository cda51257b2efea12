/// @file util.h
/// `UTIL_`: utilities for applications and for the library itself.
///
/// Module instance. CVUTIL32 loads its dialogs, strings and bitmaps from its own module. The loader hands that module's
/// instance to the library when a process attaches to it; it is kept for as long as the process lives, also beyond the
/// detach, and can be asked for at any time:
///
///     HINSTANCE library = UTIL_GetModuleInstance();
///
/// An application that carries the library's resources itself (translated ones, say) can name its own module instead by
/// UTIL_SetModuleInstance(); the window classes stay registered to the library. The instance is one word without a
/// lock: set it before other threads use the library.
#pragma once

#include "cvapi.h"

/// Names the module from which the library loads its resources.
/// @param instance  replaces the instance kept so far, whatever it is; null is taken as it stands.
CVAPI(void) UTIL_SetModuleInstance(HINSTANCE instance);

/// Tells the module from which the library loads its resources.
/// @return the instance stored last: the library's own after loading; null before anything was stored.
CVAPI(HINSTANCE) UTIL_GetModuleInstance(void);
