/// @file syscolors.h
/// The system colours, and who hears when they change.
#pragma once

#include <windef.h>

#include <cstdint>

namespace platform::gdi {

/// Called by SetSysColors after the colours changed (the user module redraws the windows); null for none.
extern void (*syscolorsChanged)();

/// @returns a system colour as a pixel, 0x00RRGGBB; 0 for an index out of range.
std::uint32_t SystemColourPixel(int index);

}  // namespace platform::gdi
