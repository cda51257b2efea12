/// @file winbase.h
/// Memory, probes, strings, time, profile files, modules, threads and facts about the system.
#pragma once

#include "windef.h"
#include "winnt.h"
#include "winerror.h"
#include "winbase/generic_names.h"

// --- last error

WINBASEAPI DWORD WINAPI GetLastError(void);
WINBASEAPI void WINAPI SetLastError(DWORD code);

// --- global memory

#define GMEM_FIXED 0x0000
#define GMEM_MOVEABLE 0x0002
#define GMEM_ZEROINIT 0x0040
#define GMEM_VALID_FLAGS 0x7F72

WINBASEAPI HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size);
WINBASEAPI HGLOBAL WINAPI GlobalReAlloc(HGLOBAL block, SIZE_T size, UINT flags);
WINBASEAPI HGLOBAL WINAPI GlobalFree(HGLOBAL block);
WINBASEAPI LPVOID WINAPI GlobalLock(HGLOBAL block);
WINBASEAPI BOOL WINAPI GlobalUnlock(HGLOBAL block);
WINBASEAPI HGLOBAL WINAPI GlobalHandle(LPCVOID memory);
WINBASEAPI SIZE_T WINAPI GlobalSize(HGLOBAL block);

WINBASEAPI LPVOID WINAPI VirtualAlloc(LPVOID address, SIZE_T size, DWORD type, DWORD protection);
WINBASEAPI BOOL WINAPI VirtualFree(LPVOID address, SIZE_T size, DWORD type);

#define CopyMemory(target, source, size) __builtin_memcpy((target), (source), (size))
#define ZeroMemory(target, size) __builtin_memset((target), 0, (size))

// --- probes

WINBASEAPI BOOL WINAPI IsBadWritePtr(LPVOID memory, UINT_PTR size);

// --- strings

WINBASEAPI int WINAPI lstrlenA(LPCSTR text);
WINBASEAPI LPSTR WINAPI lstrcpyA(LPSTR target, LPCSTR source);
WINBASEAPI LPSTR WINAPI lstrcpynA(LPSTR target, LPCSTR source, int size);
WINBASEAPI LPSTR WINAPI lstrcatA(LPSTR target, LPCSTR source);
WINBASEAPI int WINAPI lstrcmpA(LPCSTR left, LPCSTR right);
WINBASEAPI int WINAPI lstrcmpiA(LPCSTR left, LPCSTR right);
WINBASEAPI int WINAPI MulDiv(int number, int numerator, int denominator);

// --- time

typedef struct _FILETIME {
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
} FILETIME, *PFILETIME, *LPFILETIME;

typedef struct _SYSTEMTIME {
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek;
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
} SYSTEMTIME, *PSYSTEMTIME, *LPSYSTEMTIME;

WINBASEAPI void WINAPI GetLocalTime(LPSYSTEMTIME time);
WINBASEAPI void WINAPI GetSystemTime(LPSYSTEMTIME time);
WINBASEAPI DWORD WINAPI GetTickCount(void);
WINBASEAPI void WINAPI Sleep(DWORD milliseconds);

// --- profile files

/// A null section or key has no value.
WINBASEAPI UINT WINAPI GetProfileIntA(LPCSTR section, LPCSTR key, INT fallback);
WINBASEAPI DWORD WINAPI GetProfileStringA(LPCSTR section, LPCSTR key, LPCSTR fallback, LPSTR buffer, DWORD size);
WINBASEAPI BOOL WINAPI WriteProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text);
WINBASEAPI UINT WINAPI GetPrivateProfileIntA(LPCSTR section, LPCSTR key, INT fallback, LPCSTR file);
WINBASEAPI DWORD WINAPI GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR fallback, LPSTR buffer, DWORD size,
                                                 LPCSTR file);
WINBASEAPI BOOL WINAPI WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text, LPCSTR file);

// --- modules (LoadStringA is in winuser.h)

#define MAKEINTRESOURCEA(id) ((LPSTR)(ULONG_PTR)(WORD)(id))
#define IS_INTRESOURCE(name) (((ULONG_PTR)(name) >> 16) == 0)

WINBASEAPI HMODULE WINAPI GetModuleHandleA(LPCSTR name);
WINBASEAPI DWORD WINAPI GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size);
WINBASEAPI HMODULE WINAPI LoadLibraryA(LPCSTR name);
WINBASEAPI BOOL WINAPI FreeLibrary(HMODULE module);
WINBASEAPI FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name);

// --- threads

typedef struct _SECURITY_ATTRIBUTES {
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
} SECURITY_ATTRIBUTES, *PSECURITY_ATTRIBUTES, *LPSECURITY_ATTRIBUTES;

typedef DWORD(WINAPI* LPTHREAD_START_ROUTINE)(LPVOID parameter);

#define INFINITE 0xFFFFFFFF
#define WAIT_OBJECT_0 0x00000000L
#define WAIT_TIMEOUT 258L
#define WAIT_FAILED ((DWORD)0xFFFFFFFF)
#define INVALID_HANDLE_VALUE ((HANDLE)(LONG_PTR)-1)

WINBASEAPI HANDLE WINAPI CreateThread(LPSECURITY_ATTRIBUTES security, SIZE_T stackSize, LPTHREAD_START_ROUTINE start,
                                      LPVOID parameter, DWORD flags, LPDWORD threadId);
WINBASEAPI DWORD WINAPI GetCurrentThreadId(void);
WINBASEAPI DWORD WINAPI GetCurrentProcessId(void);
WINBASEAPI HANDLE WINAPI GetCurrentProcess(void);
WINBASEAPI HANDLE WINAPI CreateEventA(LPSECURITY_ATTRIBUTES security, BOOL manualReset, BOOL initialState, LPCSTR name);
WINBASEAPI BOOL WINAPI SetEvent(HANDLE event);
WINBASEAPI DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds);
WINBASEAPI BOOL WINAPI CloseHandle(HANDLE object);

// --- process

WINBASEAPI __attribute__((noreturn)) void WINAPI ExitProcess(UINT code);
WINBASEAPI void WINAPI OutputDebugStringA(LPCSTR text);

// --- system

typedef struct _SYSTEM_INFO {
    union {
        DWORD dwOemId;
        struct {
            WORD wProcessorArchitecture;
            WORD wReserved;
        };
    };
    DWORD dwPageSize;
    LPVOID lpMinimumApplicationAddress;
    LPVOID lpMaximumApplicationAddress;
    DWORD_PTR dwActiveProcessorMask;
    DWORD dwNumberOfProcessors;
    DWORD dwProcessorType;
    DWORD dwAllocationGranularity;
    WORD wProcessorLevel;
    WORD wProcessorRevision;
} SYSTEM_INFO, *LPSYSTEM_INFO;

typedef struct _MEMORYSTATUS {
    DWORD dwLength;
    DWORD dwMemoryLoad;
    SIZE_T dwTotalPhys;
    SIZE_T dwAvailPhys;
    SIZE_T dwTotalPageFile;
    SIZE_T dwAvailPageFile;
    SIZE_T dwTotalVirtual;
    SIZE_T dwAvailVirtual;
} MEMORYSTATUS, *LPMEMORYSTATUS;

WINBASEAPI void WINAPI GetSystemInfo(LPSYSTEM_INFO information);
WINBASEAPI void WINAPI GlobalMemoryStatus(LPMEMORYSTATUS status);
WINBASEAPI UINT WINAPI GetWindowsDirectoryA(LPSTR buffer, UINT size);
WINBASEAPI DWORD WINAPI GetTempPathA(DWORD size, LPSTR buffer);

#include "winbase/files.h"

/// Where a Windows application starts.
CVPLATFORM_EXTERN_C int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show);
