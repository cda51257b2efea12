/// @file entry.h
/// The one function by which libcvdisplay_sdl.so is known.
#pragma once

#include "display/display.h"

#include <cstddef>

namespace platform::display {

inline constexpr char kSdlCreateName[] = "cvdisplay_sdl_create";

/// @returns a display that the caller deletes, or null with a short reason as text.
using SdlCreateFunction = Display* (*)(const Sink* sink, const Source* source, int width, int height, char* reason,
                                       std::size_t reasonSize);

}  // namespace platform::display
