/// @file module_registration.h
/// How a module (the application or a library) announces itself when the host's loader brings it in. The start-up
/// object beside this header is linked into each module and does it.
#pragma once

#include <windows.h>

struct CvModuleStart {
    const unsigned char* resources;  ///< the compiled resource script, or null
    const unsigned char* resourcesEnd;
    BOOL(WINAPI* entry)(HINSTANCE instance, DWORD reason, LPVOID reserved);  ///< DllMain, or null
    const void* address;                                                     ///< any address inside the module
};

/// Files the module and calls its entry point. @returns its instance handle.
WINBASEAPI HINSTANCE CvPlatformAttachModule(const CvModuleStart* start);

/// Calls the entry point for the last time and forgets the module.
WINBASEAPI void CvPlatformDetachModule(HINSTANCE instance);

/// @returns the command line that WinMain gets: the arguments of main without the program's name. To be called once.
WINBASEAPI LPSTR CvPlatformCommandLine(int count, char** arguments);
