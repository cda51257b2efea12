/// @file shlobj.h
/// The shell's namespace: the desktop and everything below it, as folders of items.
#pragma once

#include "objbase.h"
#include "shtypes.h"
#include "windows.h"

typedef enum tagSHGDN {
    SHGDN_NORMAL = 0x0000,
    SHGDN_FORPARSING = 0x8000,
} SHGNO;

typedef enum tagSHCONTF {
    SHCONTF_FOLDERS = 0x0020,
    SHCONTF_NONFOLDERS = 0x0040,
} SHCONTF;

#define SFGAO_FOLDER 0x20000000
#define SFGAO_FILESYSTEM 0x40000000
#define SFGAO_HASSUBFOLDER 0x80000000

typedef ULONG SFGAOF;
typedef DWORD SHCONTFLAGS;
typedef DWORD SHGDNF;

#ifdef __cplusplus

struct IEnumIDList : IUnknown {
    /// Hands out the next items, each a list of its own that the caller frees with the shell's allocator.
    /// @returns S_OK when all that were asked for came, S_FALSE when there were fewer.
    STDMETHOD(Next)(ULONG count, LPITEMIDLIST* items, ULONG* fetched) PURE;
};

struct IShellFolder : IUnknown {
    /// @param eaten, attributes  null.
    STDMETHOD(ParseDisplayName)
    (HWND owner, IBindCtx* context, LPWSTR name, ULONG* eaten, LPITEMIDLIST* item, ULONG* attributes) PURE;
    STDMETHOD(EnumObjects)(HWND owner, SHCONTFLAGS flags, IEnumIDList** items) PURE;
    STDMETHOD(BindToObject)(LPCITEMIDLIST item, IBindCtx* context, REFIID interfaceId, void** object) PURE;
    /// Leaves those of the attributes asked for that all items have.
    STDMETHOD(GetAttributesOf)(UINT count, LPCITEMIDLIST* items, SFGAOF* attributes) PURE;
    STDMETHOD(GetDisplayNameOf)(LPCITEMIDLIST item, SHGDNF form, LPSTRRET name) PURE;
};

WINUSERAPI const IID IID_IShellFolder;

#else
typedef struct IShellFolder IShellFolder;
typedef struct IEnumIDList IEnumIDList;
#endif

typedef IShellFolder* LPSHELLFOLDER;

WINUSERAPI HRESULT WINAPI SHGetMalloc(LPMALLOC* allocator);
WINUSERAPI HRESULT WINAPI SHGetDesktopFolder(LPSHELLFOLDER* folder);

/// @param path  receives at most MAX_PATH bytes.
/// @returns FALSE, with an empty path, for an item that is not one of the file system.
WINUSERAPI BOOL WINAPI SHGetPathFromIDListA(LPCITEMIDLIST item, LPSTR path);
