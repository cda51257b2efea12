/// @file library_file.h
/// Files of modules: the names that callers use for them, and how the host's loader opens them.
#pragma once

#include <string>
#include <vector>

namespace platform::kernel {

/// @returns the host's path of the application.
std::string ApplicationPath();

/// @returns the host's path of the module that an address lies in, empty when it lies in none.
std::string PathOf(const void* address);

/// Whether a caller's name without a folder means the application in this file: "gallery" or "gallery.exe", in any case.
bool NamesApplication(const std::string& name, const std::string& path);

/// The name by which callers know a library: in small letters, without folder, "lib" and ending.
/// @param name  a caller's name ("CVUTIL32", "cvutil32.DLL") or the host's ("libCVUTIL32.so.0.1.0").
std::string PlainName(const std::string& name);

bool HasFolder(const std::string& name);

/// @returns the host's files, with links followed, that a caller's name with a folder may mean, the best one first.
std::vector<std::string> NamedFiles(const std::string& name);

/// Opens a library by the name that LoadLibraryA gets. @returns the loader's handle, or null.
void* OpenLibrary(const std::string& name);

/// @returns the file that a library of the host's loader came from.
std::string PathOfLoaded(void* loaded);

}  // namespace platform::kernel
