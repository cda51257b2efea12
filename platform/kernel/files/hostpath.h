/// @file hostpath.h
/// Where a Windows path lies on the host: drive Z is the host's root, drive C a folder of the state folder.
#pragma once

#include <string>

namespace platform::kernel {

/// @returns the host's path of a full Windows path ("Z:\etc\x", "C:\X", "\x", "/x"); a bare name lies in the Windows
/// folder.
std::string HostPath(const std::string& path);

/// @returns the Windows path of a file of the host, which is one of drive Z.
std::string WindowsPath(const std::string& host);

}  // namespace platform::kernel
