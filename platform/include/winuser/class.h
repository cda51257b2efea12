/// @file winuser/class.h
/// Window classes, and names that are numbers.
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

#define CS_VREDRAW 0x0001
#define CS_HREDRAW 0x0002
#define CS_DBLCLKS 0x0008
#define CS_GLOBALCLASS 0x4000

#define WC_DIALOG ((LPSTR)(ULONG_PTR)(WORD)(0x8002))

WINUSERAPI ATOM WINAPI RegisterClassA(const WNDCLASSA* windowClass);
WINUSERAPI BOOL WINAPI UnregisterClassA(LPCSTR name, HINSTANCE instance);
WINUSERAPI BOOL WINAPI GetClassInfoA(HINSTANCE instance, LPCSTR name, LPWNDCLASSA windowClass);
WINUSERAPI int WINAPI GetClassNameA(HWND window, LPSTR name, int size);

typedef WNDCLASSA WNDCLASS;
typedef PWNDCLASSA PWNDCLASS;
typedef LPWNDCLASSA LPWNDCLASS;
#define RegisterClass RegisterClassA
#define UnregisterClass UnregisterClassA
#define GetClassInfo GetClassInfoA
#define GetClassName GetClassNameA
