/// @file locale_values.h
/// What the host knows about a locale, in the form that GetLocaleInfoA and win.ini give it.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace platform::kernel {

/// The host's locales of one user, which may differ by subject.
struct LocaleNames {
    std::string language;
    std::string time;
    std::string numbers;
};

/// @returns the locales that the environment asks for; "C" and "POSIX", and a missing one, are American English.
const LocaleNames& HostLocales();

/// @returns the value of a LOCALE_ item in the code page in use; nothing for an item that does not exist.
std::optional<std::string> LocaleValue(const LocaleNames& names, LCTYPE type);

}  // namespace platform::kernel
