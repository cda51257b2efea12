/// @file capture.h
/// Pictures of windows, taken off the screen.
#pragma once

#include "gallery/png.h"

#include <windows.h>

#include <optional>

namespace gallery {

/// @returns what the screen shows in the window's rectangle, or nothing when it cannot be read.
std::optional<Picture> CaptureWindow(HWND window);

}  // namespace gallery
