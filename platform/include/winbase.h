/// @file winbase.h
/// Memory, probes, strings, time, profile files, modules, resources, threads and facts about the system.
#pragma once

#include "windef.h"
#include "winnt.h"
#include "winerror.h"

#ifndef CVPLATFORM_NO_GENERIC_NAMES
#include "winbase/generic_names.h"
#endif

// --- last error

WINBASEAPI DWORD WINAPI GetLastError(void);
WINBASEAPI void WINAPI SetLastError(DWORD code);

// --- global memory

#define GMEM_FIXED 0x0000
#define GMEM_MOVEABLE 0x0002
#define GMEM_NOCOMPACT 0x0010
#define GMEM_NODISCARD 0x0020
#define GMEM_ZEROINIT 0x0040
#define GMEM_MODIFY 0x0080
#define GMEM_DISCARDABLE 0x0100
#define GMEM_NOT_BANKED 0x1000
#define GMEM_SHARE 0x2000
#define GMEM_DDESHARE 0x2000
#define GMEM_NOTIFY 0x4000
#define GMEM_LOWER GMEM_NOT_BANKED
#define GMEM_DISCARDED 0x4000
#define GMEM_LOCKCOUNT 0x00ff
#define GMEM_VALID_FLAGS 0x7F72
#define GMEM_INVALID_HANDLE 0x8000
#define GHND (GMEM_MOVEABLE | GMEM_ZEROINIT)
#define GPTR (GMEM_FIXED | GMEM_ZEROINIT)

WINBASEAPI HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size);
WINBASEAPI HGLOBAL WINAPI GlobalReAlloc(HGLOBAL block, SIZE_T size, UINT flags);
WINBASEAPI HGLOBAL WINAPI GlobalFree(HGLOBAL block);
WINBASEAPI LPVOID WINAPI GlobalLock(HGLOBAL block);
WINBASEAPI BOOL WINAPI GlobalUnlock(HGLOBAL block);
WINBASEAPI HGLOBAL WINAPI GlobalHandle(LPCVOID memory);
WINBASEAPI SIZE_T WINAPI GlobalSize(HGLOBAL block);
WINBASEAPI UINT WINAPI GlobalFlags(HGLOBAL block);
#define GlobalDiscard(block) GlobalReAlloc((block), 0, GMEM_MOVEABLE)

WINBASEAPI LPVOID WINAPI VirtualAlloc(LPVOID address, SIZE_T size, DWORD type, DWORD protection);
WINBASEAPI BOOL WINAPI VirtualFree(LPVOID address, SIZE_T size, DWORD type);
WINBASEAPI BOOL WINAPI VirtualProtect(LPVOID address, SIZE_T size, DWORD protection, PDWORD previous);

#define CopyMemory(target, source, size) __builtin_memcpy((target), (source), (size))
#define MoveMemory(target, source, size) __builtin_memmove((target), (source), (size))
#define FillMemory(target, size, value) __builtin_memset((target), (value), (size))
#define ZeroMemory(target, size) __builtin_memset((target), 0, (size))

// --- probes

WINBASEAPI BOOL WINAPI IsBadReadPtr(const void* memory, UINT_PTR size);
WINBASEAPI BOOL WINAPI IsBadWritePtr(LPVOID memory, UINT_PTR size);
WINBASEAPI BOOL WINAPI IsBadStringPtrA(LPCSTR text, UINT_PTR size);
WINBASEAPI BOOL WINAPI IsBadCodePtr(FARPROC function);

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
WINBASEAPI BOOL WINAPI SystemTimeToFileTime(const SYSTEMTIME* time, LPFILETIME fileTime);
WINBASEAPI BOOL WINAPI FileTimeToSystemTime(const FILETIME* fileTime, LPSYSTEMTIME time);
WINBASEAPI DWORD WINAPI GetTickCount(void);
WINBASEAPI void WINAPI Sleep(DWORD milliseconds);
WINBASEAPI BOOL WINAPI QueryPerformanceCounter(LARGE_INTEGER* count);
WINBASEAPI BOOL WINAPI QueryPerformanceFrequency(LARGE_INTEGER* frequency);

// --- profile files

WINBASEAPI UINT WINAPI GetProfileIntA(LPCSTR section, LPCSTR key, INT fallback);
WINBASEAPI DWORD WINAPI GetProfileStringA(LPCSTR section, LPCSTR key, LPCSTR fallback, LPSTR buffer, DWORD size);
WINBASEAPI DWORD WINAPI GetProfileSectionA(LPCSTR section, LPSTR buffer, DWORD size);
WINBASEAPI BOOL WINAPI WriteProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text);
WINBASEAPI UINT WINAPI GetPrivateProfileIntA(LPCSTR section, LPCSTR key, INT fallback, LPCSTR file);
WINBASEAPI DWORD WINAPI GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR fallback, LPSTR buffer, DWORD size,
                                                 LPCSTR file);
WINBASEAPI DWORD WINAPI GetPrivateProfileSectionA(LPCSTR section, LPSTR buffer, DWORD size, LPCSTR file);
WINBASEAPI BOOL WINAPI WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text, LPCSTR file);

// --- modules and resources (the RT_ types and LoadStringA are in winuser.h)

#define MAKEINTRESOURCEA(id) ((LPSTR)(ULONG_PTR)(WORD)(id))
#define IS_INTRESOURCE(name) (((ULONG_PTR)(name) >> 16) == 0)

WINBASEAPI HMODULE WINAPI GetModuleHandleA(LPCSTR name);
WINBASEAPI DWORD WINAPI GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size);
WINBASEAPI HMODULE WINAPI LoadLibraryA(LPCSTR name);
WINBASEAPI BOOL WINAPI FreeLibrary(HMODULE module);
WINBASEAPI FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name);
WINBASEAPI BOOL WINAPI DisableThreadLibraryCalls(HMODULE module);

WINBASEAPI HRSRC WINAPI FindResourceA(HMODULE module, LPCSTR name, LPCSTR type);
WINBASEAPI HRSRC WINAPI FindResourceExA(HMODULE module, LPCSTR type, LPCSTR name, WORD language);
WINBASEAPI HGLOBAL WINAPI LoadResource(HMODULE module, HRSRC resource);
WINBASEAPI LPVOID WINAPI LockResource(HGLOBAL data);
WINBASEAPI DWORD WINAPI SizeofResource(HMODULE module, HRSRC resource);
WINBASEAPI BOOL WINAPI FreeResource(HGLOBAL data);

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

// --- threads

typedef struct _SECURITY_ATTRIBUTES {
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
} SECURITY_ATTRIBUTES, *PSECURITY_ATTRIBUTES, *LPSECURITY_ATTRIBUTES;

typedef DWORD(WINAPI* LPTHREAD_START_ROUTINE)(LPVOID parameter);

typedef struct _RTL_CRITICAL_SECTION {
    PVOID DebugInfo;
    LONG LockCount;
    LONG RecursionCount;
    HANDLE OwningThread;
    HANDLE LockSemaphore;
    ULONG_PTR SpinCount;
} CRITICAL_SECTION, *PCRITICAL_SECTION, *LPCRITICAL_SECTION;

#define INFINITE 0xFFFFFFFF
#define WAIT_OBJECT_0 0x00000000L
#define WAIT_ABANDONED 0x00000080L
#define WAIT_TIMEOUT 258L
#define WAIT_FAILED ((DWORD)0xFFFFFFFF)
#define STILL_ACTIVE ((DWORD)0x00000103L)
#define INVALID_HANDLE_VALUE ((HANDLE)(LONG_PTR)-1)

WINBASEAPI HANDLE WINAPI CreateThread(LPSECURITY_ATTRIBUTES security, SIZE_T stackSize, LPTHREAD_START_ROUTINE start,
                                      LPVOID parameter, DWORD flags, LPDWORD threadId);
WINBASEAPI BOOL WINAPI GetExitCodeThread(HANDLE thread, LPDWORD code);
WINBASEAPI DWORD WINAPI GetCurrentThreadId(void);
WINBASEAPI DWORD WINAPI GetCurrentProcessId(void);
WINBASEAPI HANDLE WINAPI GetCurrentProcess(void);
WINBASEAPI HANDLE WINAPI CreateEventA(LPSECURITY_ATTRIBUTES security, BOOL manualReset, BOOL initialState, LPCSTR name);
WINBASEAPI BOOL WINAPI SetEvent(HANDLE event);
WINBASEAPI BOOL WINAPI ResetEvent(HANDLE event);
WINBASEAPI DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds);
WINBASEAPI BOOL WINAPI CloseHandle(HANDLE object);

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
static inline LONG InterlockedExchange(LONG volatile* target, LONG value) {
    return __atomic_exchange_n(target, value, __ATOMIC_SEQ_CST);
}
static inline LONG InterlockedExchangeAdd(LONG volatile* target, LONG value) {
    return __atomic_fetch_add(target, value, __ATOMIC_SEQ_CST);
}
static inline LONG InterlockedCompareExchange(LONG volatile* target, LONG exchange, LONG comparand) {
    __atomic_compare_exchange_n(target, &comparand, exchange, 0, __ATOMIC_SEQ_CST, __ATOMIC_SEQ_CST);
    return comparand;
}

// --- process

typedef struct _STARTUPINFOA {
    DWORD cb;
    LPSTR lpReserved;
    LPSTR lpDesktop;
    LPSTR lpTitle;
    DWORD dwX;
    DWORD dwY;
    DWORD dwXSize;
    DWORD dwYSize;
    DWORD dwXCountChars;
    DWORD dwYCountChars;
    DWORD dwFillAttribute;
    DWORD dwFlags;
    WORD wShowWindow;
    WORD cbReserved2;
    LPBYTE lpReserved2;
    HANDLE hStdInput;
    HANDLE hStdOutput;
    HANDLE hStdError;
} STARTUPINFOA, *LPSTARTUPINFOA;

#define STARTF_USESHOWWINDOW 0x00000001
#define STARTF_USESTDHANDLES 0x00000100

WINBASEAPI LPSTR WINAPI GetCommandLineA(void);
WINBASEAPI void WINAPI GetStartupInfoA(LPSTARTUPINFOA information);
WINBASEAPI __attribute__((noreturn)) void WINAPI ExitProcess(UINT code);
WINBASEAPI void WINAPI OutputDebugStringA(LPCSTR text);
WINBASEAPI DWORD WINAPI GetEnvironmentVariableA(LPCSTR name, LPSTR buffer, DWORD size);
WINBASEAPI BOOL WINAPI SetEnvironmentVariableA(LPCSTR name, LPCSTR value);

#define STD_INPUT_HANDLE ((DWORD)-10)
#define STD_OUTPUT_HANDLE ((DWORD)-11)
#define STD_ERROR_HANDLE ((DWORD)-12)

struct _OVERLAPPED;
typedef struct _OVERLAPPED* LPOVERLAPPED;

WINBASEAPI HANDLE WINAPI GetStdHandle(DWORD which);
WINBASEAPI BOOL WINAPI WriteFile(HANDLE file, LPCVOID data, DWORD size, LPDWORD written, LPOVERLAPPED overlapped);

// --- system

typedef struct _OSVERSIONINFOA {
    DWORD dwOSVersionInfoSize;
    DWORD dwMajorVersion;
    DWORD dwMinorVersion;
    DWORD dwBuildNumber;
    DWORD dwPlatformId;
    CHAR szCSDVersion[128];
} OSVERSIONINFOA, *POSVERSIONINFOA, *LPOSVERSIONINFOA;

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

#define MAX_COMPUTERNAME_LENGTH 15

WINBASEAPI DWORD WINAPI GetVersion(void);
WINBASEAPI BOOL WINAPI GetVersionExA(LPOSVERSIONINFOA information);
WINBASEAPI void WINAPI GetSystemInfo(LPSYSTEM_INFO information);
WINBASEAPI void WINAPI GlobalMemoryStatus(LPMEMORYSTATUS status);
WINBASEAPI BOOL WINAPI GetComputerNameA(LPSTR buffer, LPDWORD size);
WINBASEAPI UINT WINAPI GetWindowsDirectoryA(LPSTR buffer, UINT size);
WINBASEAPI UINT WINAPI GetSystemDirectoryA(LPSTR buffer, UINT size);
WINBASEAPI DWORD WINAPI GetTempPathA(DWORD size, LPSTR buffer);

#include "winbase/files.h"

/// Where a Windows application starts.
CVPLATFORM_EXTERN_C int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show);
