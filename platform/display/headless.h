/// @file headless.h
/// The display of a host without a desktop.
#pragma once

#include "display/display.h"

namespace platform::display {

/// @returns a display that shows nothing and brings no input.
std::unique_ptr<Display> CreateHeadless();

}  // namespace platform::display
