/// @file directory.h
/// Directories of the host, as the namespace needs them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform::shell {

struct Entry {
    std::string name;  ///< as the host writes it
    bool folder = false;
};

struct Wanted {
    bool folders = true;
    bool files = true;
};

/// Reads a directory, links followed and hidden entries left out. @returns the host's error number, 0 for none; entries come sorted by name, folders
/// first.
int ReadDirectory(const std::string& path, Wanted wanted, std::vector<Entry>& entries);

/// @returns whether a directory holds a folder that is not hidden; false when it cannot be read.
bool HasSubfolder(const std::string& path);

/// @returns whether a path of the host names something; `folder` is told whether that is a directory.
bool Exists(const std::string& path, bool& folder);

/// Finds the entry of a directory that a name in the code page in use means: the one written exactly like it, else the
/// first that differs only in case, or that has characters which the code page lacks. @returns empty when there is none.
std::string FindEntry(const std::string& path, const std::string& name);

}  // namespace platform::shell
