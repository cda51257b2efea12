/// @file winbase/generic_names.h
/// The names without a letter, which mean the ANSI calls.
#pragma once

#define CreateEvent CreateEventA
#define GetFileAttributes GetFileAttributesA
#define GetModuleFileName GetModuleFileNameA
#define GetModuleHandle GetModuleHandleA
#define GetPrivateProfileInt GetPrivateProfileIntA
#define GetPrivateProfileString GetPrivateProfileStringA
#define GetProfileInt GetProfileIntA
#define GetProfileString GetProfileStringA
#define GetTempPath GetTempPathA
#define GetWindowsDirectory GetWindowsDirectoryA
#define LoadLibrary LoadLibraryA
#define MAKEINTRESOURCE MAKEINTRESOURCEA
#define OutputDebugString OutputDebugStringA
#define WritePrivateProfileString WritePrivateProfileStringA
#define WriteProfileString WriteProfileStringA
#define lstrcat lstrcatA
#define lstrcmp lstrcmpA
#define lstrcmpi lstrcmpiA
#define lstrcpy lstrcpyA
#define lstrcpyn lstrcpynA
#define lstrlen lstrlenA
