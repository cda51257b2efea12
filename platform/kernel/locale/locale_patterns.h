/// @file locale_patterns.h
/// Date and time patterns: from the letters that ICU uses to those of Windows, and what is read out of them.
#pragma once

#include <string>
#include <string_view>

namespace platform::kernel {

/// "d.M.y" becomes "d.M.yyyy", "h:mm a" becomes "h:mm tt".
std::u16string WindowsPattern(std::u16string_view pattern);

/// @returns the first thing between the parts of a pattern that is no blank, or `otherwise`.
std::string PatternSeparator(const std::string& pattern, const char* otherwise);

/// @returns "0" for month first, "1" for day first, "2" for year first.
std::string DateOrder(const std::string& pattern);

/// @returns "1" when a pattern holds a text outside quotes, else "0".
std::string Holds(const std::string& pattern, std::string_view text);

}  // namespace platform::kernel
