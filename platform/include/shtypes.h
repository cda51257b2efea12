/// @file shtypes.h
/// Item identifier lists, and the texts that folders hand out.
#pragma once

#include "windef.h"

#pragma pack(push, 1)

/// One item: the size in bytes, itself included, and what the folder wrote.
typedef struct _SHITEMID {
    USHORT cb;
    BYTE abID[1];
} SHITEMID;

/// A chain of items, ended by a size of 0.
typedef struct _ITEMIDLIST {
    SHITEMID mkid;
} ITEMIDLIST, *LPITEMIDLIST;
typedef const ITEMIDLIST* LPCITEMIDLIST;

#pragma pack(pop)

#define STRRET_WSTR 0x0000
#define STRRET_OFFSET 0x0001
#define STRRET_CSTR 0x0002

typedef struct _STRRET {
    UINT uType;
    union {
        LPWSTR pOleStr;  ///< STRRET_WSTR: the caller frees it
        UINT uOffset;    ///< STRRET_OFFSET: from the start of the item
        char cStr[MAX_PATH];
    };
} STRRET, *LPSTRRET;
