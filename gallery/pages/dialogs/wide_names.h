/// @file wide_names.h
/// Whether the folder tree list can show whole names on this system.
#pragma once

namespace gallery {

/// Whether the system's shell gives names as wide texts, of which the tree shows the first letters only.
bool ShellNamesAreWide();

}  // namespace gallery
