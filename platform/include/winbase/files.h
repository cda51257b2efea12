/// @file winbase/files.h
/// Drives, folders and what is in them. Drive C is a folder of the state folder, drive Z the host's root; further drives
/// are the folders "drive_d" to "drive_y" (or links) in the state folder.
#pragma once

#include "../windef.h"

#define FILE_ATTRIBUTE_READONLY 0x00000001
#define FILE_ATTRIBUTE_HIDDEN 0x00000002
#define FILE_ATTRIBUTE_DIRECTORY 0x00000010
#define FILE_ATTRIBUTE_NORMAL 0x00000080
#define INVALID_FILE_ATTRIBUTES ((DWORD)-1)

#define DRIVE_UNKNOWN 0
#define DRIVE_NO_ROOT_DIR 1
#define DRIVE_FIXED 3

typedef struct _WIN32_FIND_DATAA {
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD dwReserved0;
    DWORD dwReserved1;
    CHAR cFileName[MAX_PATH];
    CHAR cAlternateFileName[14];  ///< always empty: there are no short names
} WIN32_FIND_DATAA, *PWIN32_FIND_DATAA, *LPWIN32_FIND_DATAA;

/// Lists in the order of names, "." and ".." first where the folder is no root.
WINBASEAPI HANDLE WINAPI FindFirstFileA(LPCSTR path, LPWIN32_FIND_DATAA data);
WINBASEAPI BOOL WINAPI FindNextFileA(HANDLE search, LPWIN32_FIND_DATAA data);
WINBASEAPI BOOL WINAPI FindClose(HANDLE search);
WINBASEAPI DWORD WINAPI GetFileAttributesA(LPCSTR path);
WINBASEAPI UINT WINAPI GetDriveTypeA(LPCSTR root);
