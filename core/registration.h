// The registration of the library's window classes, in order, up to the first failure.
#pragma once

#include <windows.h>

#include <span>

namespace registration {

/// Registers one window class for a module. @return nonzero on success, also when the class was there already.
using Function = BOOL(WINAPI*)(HINSTANCE);

/// Calls @p functions in order and stops at the first that fails; the classes registered until then stay.
/// @return TRUE if none failed.
BOOL RegisterInOrder(std::span<Function const> functions, HINSTANCE instance);

}  // namespace registration
