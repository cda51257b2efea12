/// @file class.h
/// Window classes.
#pragma once

#include <windows.h>

#include "user/model/window.h"

namespace platform::user {

/// Registers a class of the layer's own. The controls and dialogs call it from InitialiseClasses.
void RegisterSystemClass(const char* name, WNDPROC procedure, UINT style, int windowExtra, LPCSTR cursor,
                         HBRUSH background);
/// Registers all system classes once; called before the first class look-up.
void InitialiseClasses();

/// @returns whether any class has this name. Lock held.
bool IsClassName(LPCSTR name);

/// @returns the class that a module sees under a name or atom (its own, then global ones, then the system's), else null.
/// Lock held.
WindowClass* FindClass(HINSTANCE instance, LPCSTR name);

}  // namespace platform::user
