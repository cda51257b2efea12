/// @file hostpath.h
/// What a path of the host is called on Windows.
#pragma once

#include <string>

namespace platform::kernel {

/// @returns the Windows path of a file of the host, which is one of drive Z.
std::string WindowsPath(const std::string& host);

}  // namespace platform::kernel
