/// @file hostfile.h
/// Files of the host by their Windows paths, in whatever case they are written, and the other way round.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace platform::kernel {

/// @returns the host's folder behind a drive letter, without a slash at its end ("" for drive Z); false when there is
/// no such drive. Drive C is made when it is missing.
bool DriveFolder(char letter, std::string* folder);

/// A path as the system understands it before it asks any file system: complete, without "." and "..".
struct FullPath {
    char drive = 'z';                ///< a small letter
    std::vector<std::string> names;  ///< UTF-8, as they were written
    bool closed = false;             ///< whether a separator follows the last one
};

/// Completes a path: from the current folder, or for "\x" from the root of its drive, or for "D:x" from the current folder
/// of that drive, which is its root unless the drive is the current one.
/// @returns ERROR_PATH_NOT_FOUND for a drive letter that is none, a share and what holds only blanks;
/// ERROR_FILENAME_EXCED_RANGE for a path that is too long.
LONG Complete(std::string_view path, FullPath* full);

/// Finds the file that a Windows path names, in whatever case. Dots and blanks at the end of a name count only where the
/// host has a name that ends in them. Of a path that names nothing the part that exists is found and the rest taken as
/// the system would make it.
/// @returns ERROR_SUCCESS also when there is no such file; the errors of Complete, and ERROR_PATH_NOT_FOUND for a drive
/// that does not exist.
/// @param root  receives whether the path is the root of a drive, which is no entry of any folder.
LONG FindHostFile(std::string_view path, std::string* host, bool* root = nullptr);

/// @returns the Windows path of a file of the host, which is one of drive Z.
std::string WindowsPath(const std::string& host);

/// @returns a name without the dots and blanks at its end.
std::string_view WithoutTail(std::string_view name);

/// @returns the name in a folder that is this one but for its case, or an empty text.
std::string FindInAnyCase(const std::string& folder, const std::string& name);

/// @returns ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND or another code for a failure of the host's.
LONG ErrorOfHost(int number);

}  // namespace platform::kernel
