/// @file settings.h
/// What the gallery keeps from one start to the next: in the registry, below HKEY_CURRENT_USER, section "Gallery".
#pragma once

#include <optional>
#include <string>

namespace gallery {

/// @returns nothing where no number of this name is kept.
std::optional<int> KeptNumber(const char* name);
/// @returns an empty text where none of this name is kept, or a longer one than 255 characters.
std::string KeptText(const char* name);

/// Settings are a convenience: one that cannot be written is missing at the next start, and nothing else.
void KeepNumber(const char* name, int value);
void KeepText(const char* name, const std::string& value);

}  // namespace gallery
