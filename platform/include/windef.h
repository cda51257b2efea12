/// @file windef.h
/// The basic types of the Windows API, with the widths that Windows gives them on 32-bit and 64-bit hosts.
#pragma once

#include <stddef.h>
#include <stdint.h>
#ifdef __cplusplus
#define CVPLATFORM_EXTERN_C extern "C"
#else
#include <uchar.h>
#define CVPLATFORM_EXTERN_C extern
#endif

/// What every function of the layer carries in front of its declaration.
#define WINAPI_EXPORT CVPLATFORM_EXTERN_C __attribute__((visibility("default")))
#define WINBASEAPI WINAPI_EXPORT
#define WINUSERAPI WINAPI_EXPORT
#define WINGDIAPI WINAPI_EXPORT
#define WINADVAPI WINAPI_EXPORT

#define WINAPI
#define CALLBACK
#define STDMETHODCALLTYPE
// Words of the 16-bit days, which mean nothing any more: a variable of such a name fails here as it does on Windows.
#define far
#define near
#define pascal
#define cdecl
#define FAR far
#define NEAR near

typedef int BOOL;
typedef unsigned char BYTE;
typedef unsigned short WORD;
typedef unsigned int DWORD;
typedef unsigned int UINT;
typedef int INT;
typedef int LONG;
typedef unsigned int ULONG;
typedef short SHORT;
typedef unsigned short USHORT;
typedef char CHAR;
typedef char16_t WCHAR;
typedef unsigned long long ULONGLONG;
typedef void VOID;
typedef intptr_t INT_PTR;
typedef uintptr_t UINT_PTR;
typedef intptr_t LONG_PTR;
typedef uintptr_t ULONG_PTR;
typedef ULONG_PTR DWORD_PTR;
typedef ULONG_PTR SIZE_T;

typedef void *PVOID, *LPVOID;
typedef const void* LPCVOID;
typedef BYTE *PBYTE, *LPBYTE;
typedef WORD *PWORD, *LPWORD;
typedef DWORD *PDWORD, *LPDWORD;
typedef CHAR *PCHAR, *PSTR, *LPSTR;
typedef const CHAR *PCSTR, *LPCSTR;
typedef WCHAR *PWCHAR, *PWSTR, *LPWSTR;
typedef const WCHAR *PCWSTR, *LPCWSTR;

typedef WORD ATOM;
typedef DWORD COLORREF;
typedef DWORD LCID;
typedef WORD LANGID;
typedef DWORD LCTYPE;
typedef UINT_PTR WPARAM;
typedef LONG_PTR LPARAM;
typedef LONG_PTR LRESULT;
typedef LONG HRESULT;

typedef void* HANDLE;
typedef HANDLE HGLOBAL;
typedef void* HGDIOBJ;

#define DECLARE_HANDLE(name) \
    struct name##__ {        \
        int unused;          \
    };                       \
    typedef struct name##__* name

DECLARE_HANDLE(HINSTANCE);
typedef HINSTANCE HMODULE;
DECLARE_HANDLE(HWND);
DECLARE_HANDLE(HDC);
DECLARE_HANDLE(HBITMAP);
DECLARE_HANDLE(HBRUSH);
DECLARE_HANDLE(HPEN);
DECLARE_HANDLE(HFONT);
DECLARE_HANDLE(HRGN);
DECLARE_HANDLE(HICON);
typedef HICON HCURSOR;
DECLARE_HANDLE(HMENU);
DECLARE_HANDLE(HKEY);

#ifdef __cplusplus
typedef INT_PTR(CALLBACK* FARPROC)();
#else
typedef INT_PTR(CALLBACK* FARPROC)(void);
#endif

#ifndef NULL
#define NULL 0
#endif
#define FALSE 0
#define TRUE 1
#define MAX_PATH 260

typedef struct tagPOINT {
    LONG x;
    LONG y;
} POINT, *PPOINT, *LPPOINT;

typedef struct tagSIZE {
    LONG cx;
    LONG cy;
} SIZE, *PSIZE, *LPSIZE;

typedef struct tagRECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
} RECT, *PRECT, *LPRECT;

#define MAKELONG(low, high) \
    ((LONG)(((WORD)((DWORD_PTR)(low)&0xffff)) | ((DWORD)((WORD)((DWORD_PTR)(high)&0xffff))) << 16))
#define MAKEWPARAM(low, high) ((WPARAM)(DWORD)MAKELONG(low, high))
#define MAKELPARAM(low, high) ((LPARAM)(DWORD)MAKELONG(low, high))
#define LOWORD(value) ((WORD)((DWORD_PTR)(value)&0xffff))
#define HIWORD(value) ((WORD)(((DWORD_PTR)(value) >> 16) & 0xffff))
#define LOBYTE(value) ((BYTE)((DWORD_PTR)(value)&0xff))
#define HIBYTE(value) ((BYTE)(((DWORD_PTR)(value) >> 8) & 0xff))
