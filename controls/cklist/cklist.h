// The check list's class: registered last of all when the library is attached, and the only one to be taken back.
#pragma once

#include <windows.h>

namespace cklist {

/// Registers the class and loads the picture of its boxes; without the picture no class is registered.
/// @return nonzero on success, also if the class is there already; 0 for a null instance.
BOOL WINAPI Register(HINSTANCE instance);

/// Releases the picture and takes the class back. @return what UnregisterClassA says.
BOOL WINAPI Unregister(HINSTANCE instance);

}  // namespace cklist
