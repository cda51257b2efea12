/// @file entry.h
/// The one function by which libcvdisplay_sdl.so is known.
#pragma once

#include "display/display.h"

#include <cstddef>

namespace platform::display {

inline constexpr char kSdlCreateName[] = "cvdisplay_sdl_create";

/// width and height: of the screen, where it is shown in one window. panes: the host's desktop is the screen, if it lets
/// programs place their windows. @returns a display that the caller deletes, or null with a short reason as text.
using SdlCreateFunction = Display* (*)(const Sink* sink, const Source* source, int width, int height, bool panes,
                                       char* reason, std::size_t reasonSize);

}  // namespace platform::display
