/// @file state.h
/// The folder that holds all lasting state: registry, win.ini, drive C.
#pragma once

#include <string>
#include <string_view>

namespace platform::base {

/// @returns the folder's path without a trailing slash: CVUTIL32_HOME, else cvutil32 in the user's data folder.
/// Read anew at each call; the folder is not created here.
std::string StateFolder();

/// @returns whether that is the folder's path: quicker than to make it, for those who ask often.
bool IsStateFolder(std::string_view folder);

/// Creates the folder when it is missing. @returns false, after one line on standard error, when that cannot be done.
bool EnsureStateFolder();

}  // namespace platform::base
