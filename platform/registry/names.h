/// @file names.h
/// Names of keys and values. They are kept as UTF-8 and compared without regard to case, as the code page in use pairs
/// its letters.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace platform::registry {

constexpr std::size_t kMostKeyName = 255;
constexpr std::size_t kMostValueName = 16383;

/// Appends a name in the form in which equal names are the same bytes.
void AppendFolded(std::string& to, std::string_view name);

struct KeyName {
    std::string name;  ///< UTF-8, as it was written
    std::string folded;
};

/// Takes "a\b\c" apart; a backslash at the end and doubled ones mean nothing.
/// @returns ERROR_BAD_PATHNAME for a backslash at the beginning, ERROR_INVALID_PARAMETER for a name that is too long.
LONG SplitKeyPath(std::string_view path, std::vector<KeyName>& names);

}  // namespace platform::registry
