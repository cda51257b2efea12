/// @file winreg.h
/// The registry: keys that hold keys and typed values, kept for good and shared by all processes of the user.
#pragma once

#include "winbase.h"

typedef DWORD REGSAM;
typedef HKEY* PHKEY;

/// The roots are always open and need not be closed.
#define HKEY_CLASSES_ROOT ((HKEY)(ULONG_PTR)((LONG)0x80000000))
#define HKEY_CURRENT_USER ((HKEY)(ULONG_PTR)((LONG)0x80000001))
#define HKEY_LOCAL_MACHINE ((HKEY)(ULONG_PTR)((LONG)0x80000002))

// --- types of values

#define REG_NONE 0
#define REG_SZ 1
#define REG_EXPAND_SZ 2
#define REG_BINARY 3
#define REG_DWORD 4
#define REG_DWORD_BIG_ENDIAN 5
#define REG_MULTI_SZ 7

#define REG_OPTION_NON_VOLATILE 0x00000000L

#define REG_CREATED_NEW_KEY 0x00000001L
#define REG_OPENED_EXISTING_KEY 0x00000002L

// --- what a handle may be used for

#define DELETE 0x00010000L
#define MAXIMUM_ALLOWED 0x02000000L

#define KEY_QUERY_VALUE 0x0001
#define KEY_SET_VALUE 0x0002
#define KEY_CREATE_SUB_KEY 0x0004
#define KEY_ENUMERATE_SUB_KEYS 0x0008
#define KEY_READ 0x00020019
#define KEY_WRITE 0x00020006
#define KEY_ALL_ACCESS 0x000F003F

// --- keys; every function returns ERROR_SUCCESS or an error code

WINADVAPI LONG WINAPI RegCloseKey(HKEY key);
/// @param className  null.
WINADVAPI LONG WINAPI RegCreateKeyExA(HKEY key, LPCSTR subkey, DWORD reserved, LPSTR className, DWORD options,
                                      REGSAM access, LPSECURITY_ATTRIBUTES security, PHKEY result, LPDWORD disposition);
WINADVAPI LONG WINAPI RegOpenKeyExA(HKEY key, LPCSTR subkey, DWORD options, REGSAM access, PHKEY result);
/// A key that has subkeys is not deleted (ERROR_ACCESS_DENIED).
WINADVAPI LONG WINAPI RegDeleteKeyA(HKEY key, LPCSTR subkey);
WINADVAPI LONG WINAPI RegEnumKeyA(HKEY key, DWORD index, LPSTR name, DWORD size);
/// Classes and times of keys are not kept: className, classSize and lastWrite are null.
WINADVAPI LONG WINAPI RegEnumKeyExA(HKEY key, DWORD index, LPSTR name, LPDWORD size, LPDWORD reserved, LPSTR className,
                                    LPDWORD classSize, FILETIME* lastWrite);

// --- values

WINADVAPI LONG WINAPI RegQueryValueExA(HKEY key, LPCSTR name, LPDWORD reserved, LPDWORD type, LPBYTE data,
                                       LPDWORD size);
WINADVAPI LONG WINAPI RegSetValueExA(HKEY key, LPCSTR name, DWORD reserved, DWORD type, const BYTE* data, DWORD size);
WINADVAPI LONG WINAPI RegDeleteValueA(HKEY key, LPCSTR name);
WINADVAPI LONG WINAPI RegEnumValueA(HKEY key, DWORD index, LPSTR name, LPDWORD nameSize, LPDWORD reserved, LPDWORD type,
                                    LPBYTE data, LPDWORD dataSize);
