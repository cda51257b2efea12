/// @file winbase.h
/// Memory, strings, time, profile files, modules, resources, threads and system information.
#pragma once

#include "windef.h"

#define DECLSPEC_IMPORT
#define INVALID_HANDLE_VALUE ((HANDLE)(LONG_PTR)-1)
#define INFINITE 0xFFFFFFFF

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

typedef union _LARGE_INTEGER {
    struct {
        DWORD LowPart;
        LONG HighPart;
    } u;
    LONGLONG QuadPart;
} LARGE_INTEGER, *PLARGE_INTEGER;

typedef struct _SECURITY_ATTRIBUTES {
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
} SECURITY_ATTRIBUTES, *LPSECURITY_ATTRIBUTES;

// --- last error

WINBASEAPI DWORD WINAPI GetLastError(void);
WINBASEAPI void WINAPI SetLastError(DWORD error);

// --- global memory

#define GMEM_FIXED 0x0000
#define GMEM_MOVEABLE 0x0002
#define GMEM_ZEROINIT 0x0040
#define GMEM_MODIFY 0x0080
#define GMEM_DISCARDABLE 0x0100
#define GMEM_SHARE 0x2000
#define GMEM_DDESHARE 0x2000
#define GMEM_LOCKCOUNT 0x00FF
#define GMEM_DISCARDED 0x4000
#define GMEM_INVALID_HANDLE 0x8000
#define GHND (GMEM_MOVEABLE | GMEM_ZEROINIT)
#define GPTR (GMEM_FIXED | GMEM_ZEROINIT)

WINBASEAPI HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T bytes);
WINBASEAPI HGLOBAL WINAPI GlobalReAlloc(HGLOBAL memory, SIZE_T bytes, UINT flags);
WINBASEAPI HGLOBAL WINAPI GlobalFree(HGLOBAL memory);
WINBASEAPI LPVOID WINAPI GlobalLock(HGLOBAL memory);
WINBASEAPI BOOL WINAPI GlobalUnlock(HGLOBAL memory);
WINBASEAPI HGLOBAL WINAPI GlobalHandle(LPCVOID address);
WINBASEAPI SIZE_T WINAPI GlobalSize(HGLOBAL memory);
WINBASEAPI UINT WINAPI GlobalFlags(HGLOBAL memory);

// --- memory probes

WINBASEAPI BOOL WINAPI IsBadReadPtr(const void* address, UINT_PTR bytes);
WINBASEAPI BOOL WINAPI IsBadWritePtr(LPVOID address, UINT_PTR bytes);
WINBASEAPI BOOL WINAPI IsBadStringPtrA(LPCSTR text, UINT_PTR most);
WINBASEAPI BOOL WINAPI IsBadCodePtr(FARPROC procedure);

// --- strings

WINBASEAPI int WINAPI lstrlenA(LPCSTR text);
WINBASEAPI LPSTR WINAPI lstrcpyA(LPSTR to, LPCSTR from);
WINBASEAPI LPSTR WINAPI lstrcpynA(LPSTR to, LPCSTR from, int most);
WINBASEAPI LPSTR WINAPI lstrcatA(LPSTR to, LPCSTR from);
WINBASEAPI int WINAPI lstrcmpA(LPCSTR first, LPCSTR second);
WINBASEAPI int WINAPI lstrcmpiA(LPCSTR first, LPCSTR second);
WINBASEAPI int WINAPI MulDiv(int number, int numerator, int denominator);

// --- time

WINBASEAPI void WINAPI GetLocalTime(LPSYSTEMTIME time);
WINBASEAPI void WINAPI GetSystemTime(LPSYSTEMTIME time);
WINBASEAPI DWORD WINAPI GetTickCount(void);
WINBASEAPI void WINAPI Sleep(DWORD milliseconds);
WINBASEAPI BOOL WINAPI QueryPerformanceCounter(LARGE_INTEGER* count);
WINBASEAPI BOOL WINAPI QueryPerformanceFrequency(LARGE_INTEGER* frequency);

// --- profile files

WINBASEAPI UINT WINAPI GetProfileIntA(LPCSTR section, LPCSTR key, INT defaultValue);
WINBASEAPI DWORD WINAPI GetProfileStringA(LPCSTR section, LPCSTR key, LPCSTR defaultText, LPSTR buffer, DWORD size);
WINBASEAPI BOOL WINAPI WriteProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text);
WINBASEAPI UINT WINAPI GetPrivateProfileIntA(LPCSTR section, LPCSTR key, INT defaultValue, LPCSTR file);
WINBASEAPI DWORD WINAPI GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR defaultText, LPSTR buffer, DWORD size,
                                                 LPCSTR file);
WINBASEAPI BOOL WINAPI WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text, LPCSTR file);

// --- modules

#define DLL_PROCESS_DETACH 0
#define DLL_PROCESS_ATTACH 1
#define DLL_THREAD_ATTACH 2
#define DLL_THREAD_DETACH 3

WINBASEAPI HMODULE WINAPI GetModuleHandleA(LPCSTR name);
WINBASEAPI DWORD WINAPI GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size);
WINBASEAPI HMODULE WINAPI LoadLibraryA(LPCSTR name);
WINBASEAPI BOOL WINAPI FreeLibrary(HMODULE module);
WINBASEAPI FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name);

// --- resources

#define MAKEINTRESOURCEA(id) ((LPSTR)(ULONG_PTR)(WORD)(id))
#define MAKEINTRESOURCE MAKEINTRESOURCEA
#define IS_INTRESOURCE(name) (((ULONG_PTR)(name) >> 16) == 0)

WINBASEAPI HRSRC WINAPI FindResourceA(HMODULE module, LPCSTR name, LPCSTR type);
WINBASEAPI HRSRC WINAPI FindResourceExA(HMODULE module, LPCSTR type, LPCSTR name, WORD language);
WINBASEAPI HGLOBAL WINAPI LoadResource(HMODULE module, HRSRC resource);
WINBASEAPI LPVOID WINAPI LockResource(HGLOBAL resource);
WINBASEAPI DWORD WINAPI SizeofResource(HMODULE module, HRSRC resource);
WINBASEAPI BOOL WINAPI FreeResource(HGLOBAL resource);

// --- atoms

#define MAKEINTATOM(number) ((LPSTR)(ULONG_PTR)(WORD)(number))
#define MAXINTATOM 0xC000
#define INVALID_ATOM ((ATOM)0)

WINBASEAPI ATOM WINAPI GlobalAddAtomA(LPCSTR text);
WINBASEAPI ATOM WINAPI GlobalFindAtomA(LPCSTR text);
WINBASEAPI ATOM WINAPI GlobalDeleteAtom(ATOM atom);
WINBASEAPI UINT WINAPI GlobalGetAtomNameA(ATOM atom, LPSTR buffer, int size);
WINBASEAPI ATOM WINAPI AddAtomA(LPCSTR text);
WINBASEAPI ATOM WINAPI FindAtomA(LPCSTR text);
WINBASEAPI ATOM WINAPI DeleteAtom(ATOM atom);
WINBASEAPI UINT WINAPI GetAtomNameA(ATOM atom, LPSTR buffer, int size);

// --- threads, events, processes

#define STATUS_WAIT_0 0
#define WAIT_OBJECT_0 0
#define WAIT_ABANDONED 0x80
#define WAIT_TIMEOUT 258
#define WAIT_FAILED 0xFFFFFFFF
#define MAXIMUM_WAIT_OBJECTS 64
#define STILL_ACTIVE 259
#define CREATE_SUSPENDED 4

typedef DWORD(WINAPI* LPTHREAD_START_ROUTINE)(LPVOID parameter);

typedef struct _RTL_CRITICAL_SECTION {
    void* opaque[8];
} CRITICAL_SECTION, *LPCRITICAL_SECTION;

WINBASEAPI HANDLE WINAPI CreateThread(LPSECURITY_ATTRIBUTES security, SIZE_T stackSize, LPTHREAD_START_ROUTINE start,
                                      LPVOID parameter, DWORD flags, LPDWORD id);
WINBASEAPI BOOL WINAPI GetExitCodeThread(HANDLE thread, LPDWORD code);
WINBASEAPI HANDLE WINAPI CreateEventA(LPSECURITY_ATTRIBUTES security, BOOL manualReset, BOOL initialState, LPCSTR name);
WINBASEAPI BOOL WINAPI SetEvent(HANDLE event);
WINBASEAPI BOOL WINAPI ResetEvent(HANDLE event);
WINBASEAPI DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds);
WINBASEAPI BOOL WINAPI CloseHandle(HANDLE object);
WINBASEAPI DWORD WINAPI GetCurrentThreadId(void);
WINBASEAPI DWORD WINAPI GetCurrentProcessId(void);
WINBASEAPI HANDLE WINAPI GetCurrentProcess(void);
WINBASEAPI void WINAPI ExitProcess(UINT code);
WINBASEAPI void WINAPI InitializeCriticalSection(LPCRITICAL_SECTION section);
WINBASEAPI void WINAPI EnterCriticalSection(LPCRITICAL_SECTION section);
WINBASEAPI BOOL WINAPI TryEnterCriticalSection(LPCRITICAL_SECTION section);
WINBASEAPI void WINAPI LeaveCriticalSection(LPCRITICAL_SECTION section);
WINBASEAPI void WINAPI DeleteCriticalSection(LPCRITICAL_SECTION section);

static inline LONG InterlockedIncrement(LONG volatile* value) {
    return __atomic_add_fetch(value, 1, __ATOMIC_SEQ_CST);
}
static inline LONG InterlockedDecrement(LONG volatile* value) {
    return __atomic_sub_fetch(value, 1, __ATOMIC_SEQ_CST);
}
static inline LONG InterlockedExchange(LONG volatile* value, LONG to) {
    return __atomic_exchange_n(value, to, __ATOMIC_SEQ_CST);
}

// --- the process and its host

#define STD_INPUT_HANDLE ((DWORD)-10)
#define STD_OUTPUT_HANDLE ((DWORD)-11)
#define STD_ERROR_HANDLE ((DWORD)-12)

WINBASEAPI LPSTR WINAPI GetCommandLineA(void);
WINBASEAPI DWORD WINAPI GetEnvironmentVariableA(LPCSTR name, LPSTR buffer, DWORD size);
WINBASEAPI BOOL WINAPI SetEnvironmentVariableA(LPCSTR name, LPCSTR value);
WINBASEAPI HANDLE WINAPI GetStdHandle(DWORD which);
WINBASEAPI BOOL WINAPI WriteFile(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPVOID overlapped);
WINBASEAPI void WINAPI OutputDebugStringA(LPCSTR text);
WINBASEAPI UINT WINAPI GetWindowsDirectoryA(LPSTR buffer, UINT size);
WINBASEAPI UINT WINAPI GetSystemDirectoryA(LPSTR buffer, UINT size);

/// Where a Windows application starts.
#ifdef __cplusplus
extern "C"
#endif
    int WINAPI
    WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show);
