/// @file library_file.h
/// Files of modules: the names that callers use for them, and how the host's loader opens them.
#pragma once

#include <string>

namespace platform::kernel {

/// @returns the host's path of the application.
std::string ApplicationPath();

/// @returns the host's path of the module that an address lies in, empty when it lies in none.
std::string PathOf(const void* address);

/// @returns the name by which Windows callers know a module: without folder, "lib" and ending, in small letters.
std::string PlainName(std::string name);

/// Opens a library by the name that LoadLibraryA gets. @returns the loader's handle, or null.
void* OpenLibrary(const std::string& name);

/// @returns the file that a library of the host's loader came from.
std::string PathOfLoaded(void* loaded);

}  // namespace platform::kernel
