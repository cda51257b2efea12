/// @file locale_values.h
/// What the host knows about its user's locale, in the form that GetLocaleInfoA and win.ini give it.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace platform::kernel {

/// @returns the user's language as the host names it; "C" and "POSIX", and a missing one, are American English.
const std::string& HostLanguage();

/// @returns the value of a LOCALE_ item in the code page in use; nothing for an item that does not exist.
std::optional<std::string> LocaleValue(LCTYPE type);

}  // namespace platform::kernel
