/// @file clipboard.h
/// What the clipboard and the display have to do with each other.
#pragma once

#include "display/display.h"

namespace platform::user {

/// @returns the display, through which the host's clipboard is read and written without the lock; null where there is none.
display::Display* Presenter();

}  // namespace platform::user
