/// @file above.h
/// What painting asks of the rooms above it, which implement it.
#pragma once

#include <windows.h>

namespace platform::user {

/// input: the caret is taken off the screen while its window is painted or moved, and comes back after. Calls nest.
void SuspendCaret(HWND window);
void ResumeCaret(HWND window);

}  // namespace platform::user
