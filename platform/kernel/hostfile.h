/// @file hostfile.h
/// Files of the host by their Windows paths, in whatever case they are written.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace platform::kernel {

/// @returns the host's folder behind a drive letter, without a slash at its end ("" for drive Z); false when there is
/// no such drive. Drive C is made when it is missing.
bool DriveFolder(char letter, std::string* folder);

/// Finds the file that a Windows path names; a path without a drive counts from the current folder or its drive's root.
/// Of a path that names nothing the part that exists is found and the rest taken as it is written.
/// @returns ERROR_SUCCESS also when there is no such file; ERROR_PATH_NOT_FOUND for a drive or share that does not
/// exist, ERROR_FILENAME_EXCED_RANGE for a path that is too long.
LONG FindHostFile(std::string_view path, std::string* host);

/// @returns the name in a folder that is this one but for its case, or an empty text.
std::string FindInAnyCase(const std::string& folder, const std::string& name);

/// @returns ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND or another code for a failure of the host's.
LONG ErrorOfHost(int number);

}  // namespace platform::kernel
