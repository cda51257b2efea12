/// @file intl.h
/// The international settings of the host's user, which stand in where win.ini has none.
#pragma once

#include <windows.h>

#include <string>

namespace platform::kernel {

/// @returns the value of a key of the section "intl" (any case), or null when the host tells nothing about it.
const std::string* HostIntlValue(const std::string& key);

/// @returns the language of the host's user.
LANGID UsersLanguage();

/// @returns the key of win.ini's section "intl" that holds a LOCALE_ item, or null when none does.
const char* IntlKey(LCTYPE type);

}  // namespace platform::kernel
