/// @file above.h
/// What text asks of the room profiles, which implements it: win.ini names the code page.
#pragma once

#include <optional>
#include <string>

namespace platform::kernel {

/// @returns what the file itself says, without the host's settings. Names are plain text, of any case. This needs no
/// code page, so it may be called to find out which one is in use.
std::optional<std::string> WinIniValue(const char* section, const char* key);

}  // namespace platform::kernel
