/// @file module.h
/// The modules of the process: the application and the libraries that announced themselves.
#pragma once

#include <windows.h>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "kernel/modules/resource.h"

namespace platform::kernel {

struct Module {
    HINSTANCE handle = nullptr;
    std::string path;  ///< of the host
    bool application = false;
    const void* address = nullptr;
    BOOL(WINAPI* entry)(HINSTANCE, DWORD, LPVOID) = nullptr;
    void* loaded = nullptr;  ///< the host loader's handle, of LoadLibraryA
    unsigned loads = 0;
    Bytes resourceFile;
    bool resourcesRead = false;
    bool resourcesDamaged = false;
    std::vector<ResourceEntry> resources;
};

/// Guards the list of modules and their resources. Recursive: an entry point may load resources.
std::recursive_mutex& ModuleLock();

/// @returns the module of a handle (null: the application), or null with ERROR_INVALID_HANDLE set. Lock held.
Module* FindModule(HMODULE module);

/// Has a function called for each library that goes, once its entry point was told.
void WhenModulesGo(void (*forget)(HINSTANCE module));

}  // namespace platform::kernel
