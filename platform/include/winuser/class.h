/// @file winuser/class.h
/// Window classes and atoms, and names that are numbers.
#pragma once

#include "../windef.h"
#include "../wingdi.h"

#ifndef MAKEINTRESOURCEA
#define MAKEINTRESOURCEA(id) ((LPSTR)(ULONG_PTR)(WORD)(id))
#endif
#ifndef MAKEINTRESOURCE
#define MAKEINTRESOURCE MAKEINTRESOURCEA
#endif
#ifndef MAKEINTATOM
#define MAKEINTATOM(atom) ((LPSTR)(ULONG_PTR)(WORD)(atom))
#endif
#ifndef IS_INTRESOURCE
#define IS_INTRESOURCE(name) (((ULONG_PTR)(name) >> 16) == 0)
#endif

// --- classes

typedef LRESULT(CALLBACK* WNDPROC)(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

typedef struct tagWNDCLASSA {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
} WNDCLASSA, *PWNDCLASSA, *NPWNDCLASSA, *LPWNDCLASSA;

typedef struct tagWNDCLASSEXA {
    UINT cbSize;
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
    HICON hIconSm;
} WNDCLASSEXA, *PWNDCLASSEXA, *NPWNDCLASSEXA, *LPWNDCLASSEXA;

#define CS_VREDRAW 0x0001
#define CS_HREDRAW 0x0002
#define CS_DBLCLKS 0x0008
#define CS_NOCLOSE 0x0200
#define CS_SAVEBITS 0x0800
#define CS_GLOBALCLASS 0x4000

#define WC_DIALOG ((LPSTR)(ULONG_PTR)(WORD)(0x8002))

WINUSERAPI ATOM WINAPI RegisterClassA(const WNDCLASSA* windowClass);
WINUSERAPI ATOM WINAPI RegisterClassExA(const WNDCLASSEXA* windowClass);
WINUSERAPI BOOL WINAPI UnregisterClassA(LPCSTR name, HINSTANCE instance);
WINUSERAPI BOOL WINAPI GetClassInfoA(HINSTANCE instance, LPCSTR name, LPWNDCLASSA windowClass);
WINUSERAPI BOOL WINAPI GetClassInfoExA(HINSTANCE instance, LPCSTR name, LPWNDCLASSEXA windowClass);
WINUSERAPI int WINAPI GetClassNameA(HWND window, LPSTR name, int size);
WINUSERAPI UINT WINAPI RealGetWindowClassA(HWND window, LPSTR name, UINT size);

#define GCL_MENUNAME (-8)
#define GCL_HBRBACKGROUND (-10)
#define GCL_HCURSOR (-12)
#define GCL_HICON (-14)
#define GCL_HMODULE (-16)
#define GCL_CBWNDEXTRA (-18)
#define GCL_CBCLSEXTRA (-20)
#define GCL_WNDPROC (-24)
#define GCL_STYLE (-26)
#define GCW_ATOM (-32)
#define GCL_HICONSM (-34)
#define GCLP_MENUNAME GCL_MENUNAME
#define GCLP_HBRBACKGROUND GCL_HBRBACKGROUND
#define GCLP_HCURSOR GCL_HCURSOR
#define GCLP_HICON GCL_HICON
#define GCLP_HMODULE GCL_HMODULE
#define GCLP_WNDPROC GCL_WNDPROC
#define GCLP_HICONSM GCL_HICONSM

WINUSERAPI DWORD WINAPI GetClassLongA(HWND window, int index);
WINUSERAPI DWORD WINAPI SetClassLongA(HWND window, int index, LONG value);
WINUSERAPI ULONG_PTR WINAPI GetClassLongPtrA(HWND window, int index);
WINUSERAPI ULONG_PTR WINAPI SetClassLongPtrA(HWND window, int index, LONG_PTR value);
WINUSERAPI WORD WINAPI GetClassWord(HWND window, int index);
WINUSERAPI WORD WINAPI SetClassWord(HWND window, int index, WORD value);

// --- atoms

WINBASEAPI ATOM WINAPI GlobalAddAtomA(LPCSTR name);
WINBASEAPI ATOM WINAPI GlobalFindAtomA(LPCSTR name);
WINBASEAPI ATOM WINAPI GlobalDeleteAtom(ATOM atom);
WINBASEAPI UINT WINAPI GlobalGetAtomNameA(ATOM atom, LPSTR name, int size);
WINBASEAPI ATOM WINAPI AddAtomA(LPCSTR name);
WINBASEAPI ATOM WINAPI FindAtomA(LPCSTR name);
WINBASEAPI ATOM WINAPI DeleteAtom(ATOM atom);
WINBASEAPI UINT WINAPI GetAtomNameA(ATOM atom, LPSTR name, int size);
WINBASEAPI BOOL WINAPI InitAtomTable(DWORD size);

#ifndef CVPLATFORM_NO_GENERIC_NAMES
typedef WNDCLASSA WNDCLASS;
typedef PWNDCLASSA PWNDCLASS;
typedef LPWNDCLASSA LPWNDCLASS;
typedef WNDCLASSEXA WNDCLASSEX;
typedef LPWNDCLASSEXA LPWNDCLASSEX;
#define RegisterClass RegisterClassA
#define RegisterClassEx RegisterClassExA
#define UnregisterClass UnregisterClassA
#define GetClassInfo GetClassInfoA
#define GetClassInfoEx GetClassInfoExA
#define GetClassName GetClassNameA
#define GetClassLong GetClassLongA
#define SetClassLong SetClassLongA
#define GetClassLongPtr GetClassLongPtrA
#define SetClassLongPtr SetClassLongPtrA
#define GlobalAddAtom GlobalAddAtomA
#define GlobalFindAtom GlobalFindAtomA
#define GlobalGetAtomName GlobalGetAtomNameA
#define AddAtom AddAtomA
#define FindAtom FindAtomA
#define GetAtomName GetAtomNameA
#endif
