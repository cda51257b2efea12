/// @file room.h
/// The desktop that programs are on: the screen's size and its work area, and what happens when the host changes them.
#pragma once

#include <windows.h>

#include "display/display.h"

namespace platform::user {

/// The room at the start. The screen is not there yet.
void SetFirstRoom(const display::Room& room);

/// The host's desktop has become another one: the screen follows, its windows are brought back into it, and hear of it.
/// Waits for nobody.
void ChangeRoom(const display::Room& room);

}  // namespace platform::user
