/// @file help_cursor.h
/// The pointer that asks about what it is put on: an arrow with a question mark. Hosts have none of their own.
#pragma once

#include <SDL.h>

namespace platform::display {

/// @returns null when the host cannot make cursors.
SDL_Cursor* MakeHelpCursor();

}  // namespace platform::display
