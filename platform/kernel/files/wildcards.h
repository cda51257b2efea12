/// @file wildcards.h
/// Names with wildcards, by the rules of the old file systems.
#pragma once

#include <string_view>

namespace platform::kernel {

bool HasWildcards(std::string_view name);

/// Tells whether a name fits a pattern; both in capitals of the code page in use. "*" is any characters, "?" is one,
/// or none at the end of the name and before a dot, and a dot that only wildcards follow also fits the end of a name:
/// "*.*" is everything.
bool MatchesWildcards(std::string_view pattern, std::string_view name);

}  // namespace platform::kernel
