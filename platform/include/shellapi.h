/// @file shellapi.h
/// Facts about items of the shell: the icons of the system's image lists.
#pragma once

#include "windef.h"
#include "winuser.h"

#define SHGFI_SYSICONINDEX 0x000004000
#define SHGFI_SMALLICON 0x000000001
#define SHGFI_OPENICON 0x000000002
#define SHGFI_PIDL 0x000000008

typedef struct _SHFILEINFOA {
    HICON hIcon;
    int iIcon;
    DWORD dwAttributes;
    CHAR szDisplayName[MAX_PATH];
    CHAR szTypeName[80];
} SHFILEINFOA;

/// Answers for a path, or with SHGFI_PIDL for an absolute item identifier list: SHGFI_SYSICONINDEX, for small icons.
/// @returns the image list with SHGFI_SYSICONINDEX, else nonzero; 0 when there is no such item.
WINUSERAPI DWORD_PTR WINAPI SHGetFileInfoA(LPCSTR path, DWORD attributes, SHFILEINFOA* information, UINT size,
                                           UINT flags);
