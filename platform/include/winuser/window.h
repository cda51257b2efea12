/// @file winuser/window.h
/// Windows: their styles, extra memory, properties, order, positions and frames.
#pragma once

#include "class.h"

// --- styles

#define WS_OVERLAPPED 0x00000000
#define WS_POPUP 0x80000000
#define WS_CHILD 0x40000000
#define WS_MINIMIZE 0x20000000
#define WS_VISIBLE 0x10000000
#define WS_DISABLED 0x08000000
#define WS_CLIPSIBLINGS 0x04000000
#define WS_CLIPCHILDREN 0x02000000
#define WS_MAXIMIZE 0x01000000
#define WS_CAPTION 0x00C00000
#define WS_BORDER 0x00800000
#define WS_DLGFRAME 0x00400000
#define WS_VSCROLL 0x00200000
#define WS_HSCROLL 0x00100000
#define WS_SYSMENU 0x00080000
#define WS_THICKFRAME 0x00040000
#define WS_GROUP 0x00020000
#define WS_TABSTOP 0x00010000
#define WS_MINIMIZEBOX 0x00020000
#define WS_MAXIMIZEBOX 0x00010000
#define WS_OVERLAPPEDWINDOW (WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX)

#define WS_EX_DLGMODALFRAME 0x00000001
#define WS_EX_NOPARENTNOTIFY 0x00000004
#define WS_EX_TOPMOST 0x00000008
#define WS_EX_TOOLWINDOW 0x00000080
#define WS_EX_WINDOWEDGE 0x00000100
#define WS_EX_CLIENTEDGE 0x00000200
#define WS_EX_CONTEXTHELP 0x00000400
#define WS_EX_CONTROLPARENT 0x00010000
#define WS_EX_STATICEDGE 0x00020000
#define WS_EX_NOACTIVATE 0x08000000

// --- creating and destroying

#define CW_USEDEFAULT ((int)0x80000000)

#define HWND_DESKTOP ((HWND)0)
#define HWND_TOP ((HWND)0)
#define HWND_BOTTOM ((HWND)1)
#define HWND_TOPMOST ((HWND)-1)
#define HWND_NOTOPMOST ((HWND)-2)

typedef struct tagCREATESTRUCTA {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    LONG style;
    LPCSTR lpszName;
    LPCSTR lpszClass;
    DWORD dwExStyle;
} CREATESTRUCTA, *LPCREATESTRUCTA;

WINUSERAPI HWND WINAPI CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y,
                                       int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                                       LPVOID parameter);
#define CreateWindowA(className, text, style, x, y, width, height, parent, menu, instance, parameter) \
    CreateWindowExA(0L, className, text, style, x, y, width, height, parent, menu, instance, parameter)
WINUSERAPI BOOL WINAPI DestroyWindow(HWND window);

WINUSERAPI LRESULT WINAPI DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
WINUSERAPI LRESULT WINAPI CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// --- state

WINUSERAPI BOOL WINAPI IsWindow(HWND window);
WINUSERAPI BOOL WINAPI IsWindowVisible(HWND window);
WINUSERAPI BOOL WINAPI IsWindowEnabled(HWND window);
WINUSERAPI BOOL WINAPI EnableWindow(HWND window, BOOL enable);
WINUSERAPI BOOL WINAPI IsIconic(HWND window);
WINUSERAPI BOOL WINAPI IsZoomed(HWND window);
WINUSERAPI DWORD WINAPI GetWindowThreadProcessId(HWND window, LPDWORD process);

WINUSERAPI BOOL WINAPI SetWindowTextA(HWND window, LPCSTR text);
WINUSERAPI int WINAPI GetWindowTextA(HWND window, LPSTR text, int size);
WINUSERAPI int WINAPI GetWindowTextLengthA(HWND window);

#define GWL_STYLE (-16)
#define GWL_EXSTYLE (-20)
#define GWLP_WNDPROC (-4)
#define GWLP_HINSTANCE (-6)
#define GWLP_ID (-12)
#define GWLP_USERDATA (-21)

WINUSERAPI LONG WINAPI GetWindowLongA(HWND window, int index);
WINUSERAPI LONG WINAPI SetWindowLongA(HWND window, int index, LONG value);
WINUSERAPI LONG_PTR WINAPI GetWindowLongPtrA(HWND window, int index);
WINUSERAPI LONG_PTR WINAPI SetWindowLongPtrA(HWND window, int index, LONG_PTR value);

// --- properties

WINUSERAPI BOOL WINAPI SetPropA(HWND window, LPCSTR name, HANDLE data);
WINUSERAPI HANDLE WINAPI GetPropA(HWND window, LPCSTR name);
WINUSERAPI HANDLE WINAPI RemovePropA(HWND window, LPCSTR name);

// --- the window tree

typedef BOOL(CALLBACK* WNDENUMPROC)(HWND window, LPARAM parameter);

#define GW_HWNDNEXT 2
#define GW_HWNDPREV 3
#define GW_OWNER 4
#define GW_CHILD 5

#define GA_ROOT 2

WINUSERAPI HWND WINAPI GetDesktopWindow(VOID);
WINUSERAPI HWND WINAPI GetParent(HWND window);
WINUSERAPI HWND WINAPI SetParent(HWND window, HWND parent);
WINUSERAPI HWND WINAPI GetAncestor(HWND window, UINT flags);
WINUSERAPI HWND WINAPI GetWindow(HWND window, UINT relation);
WINUSERAPI HWND WINAPI GetTopWindow(HWND window);
WINUSERAPI BOOL WINAPI IsChild(HWND parent, HWND window);
WINUSERAPI HWND WINAPI FindWindowA(LPCSTR className, LPCSTR text);
WINUSERAPI HWND WINAPI FindWindowExA(HWND parent, HWND after, LPCSTR className, LPCSTR text);
WINUSERAPI HWND WINAPI WindowFromPoint(POINT point);
WINUSERAPI BOOL WINAPI EnumChildWindows(HWND parent, WNDENUMPROC procedure, LPARAM parameter);
WINUSERAPI BOOL WINAPI EnumThreadWindows(DWORD thread, WNDENUMPROC procedure, LPARAM parameter);

// --- position, size, visibility

#define SW_HIDE 0
#define SW_SHOWNORMAL 1
#define SW_SHOWMINIMIZED 2
#define SW_SHOWMAXIMIZED 3
#define SW_MAXIMIZE 3
#define SW_SHOWNOACTIVATE 4
#define SW_SHOW 5
#define SW_MINIMIZE 6
#define SW_SHOWNA 8
#define SW_RESTORE 9
#define SW_SHOWDEFAULT 10

#define SWP_NOSIZE 0x0001
#define SWP_NOMOVE 0x0002
#define SWP_NOZORDER 0x0004
#define SWP_NOREDRAW 0x0008
#define SWP_NOACTIVATE 0x0010
#define SWP_FRAMECHANGED 0x0020
#define SWP_SHOWWINDOW 0x0040
#define SWP_HIDEWINDOW 0x0080
#define SWP_NOCOPYBITS 0x0100
#define SWP_NOOWNERZORDER 0x0200

typedef struct tagWINDOWPOS {
    HWND hwnd;
    HWND hwndInsertAfter;
    int x;
    int y;
    int cx;
    int cy;
    UINT flags;
} WINDOWPOS, *LPWINDOWPOS, *PWINDOWPOS;

typedef struct tagMINMAXINFO {
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize;
    POINT ptMaxTrackSize;
} MINMAXINFO, *PMINMAXINFO, *LPMINMAXINFO;

#define WPF_RESTORETOMAXIMIZED 0x0002

typedef struct tagWINDOWPLACEMENT {
    UINT length;
    UINT flags;
    UINT showCmd;
    POINT ptMinPosition;
    POINT ptMaxPosition;
    RECT rcNormalPosition;
} WINDOWPLACEMENT, *PWINDOWPLACEMENT, *LPWINDOWPLACEMENT;

WINUSERAPI BOOL WINAPI SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);
WINUSERAPI BOOL WINAPI MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
WINUSERAPI BOOL WINAPI ShowWindow(HWND window, int show);

/// ptMinPosition and ptMaxPosition are always (-1, -1): the system chooses where minimised and maximised windows lie.
WINUSERAPI BOOL WINAPI GetWindowPlacement(HWND window, WINDOWPLACEMENT* placement);
/// Leaves ptMinPosition and ptMaxPosition aside.
WINUSERAPI BOOL WINAPI SetWindowPlacement(HWND window, const WINDOWPLACEMENT* placement);
WINUSERAPI BOOL WINAPI GetWindowRect(HWND window, LPRECT rect);
WINUSERAPI BOOL WINAPI GetClientRect(HWND window, LPRECT rect);
WINUSERAPI BOOL WINAPI ClientToScreen(HWND window, LPPOINT point);
WINUSERAPI BOOL WINAPI ScreenToClient(HWND window, LPPOINT point);
WINUSERAPI int WINAPI MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count);
WINUSERAPI BOOL WINAPI AdjustWindowRectEx(LPRECT rect, DWORD style, BOOL menu, DWORD exStyle);

// --- WM_NCHITTEST

#define HTERROR (-2)
#define HTTRANSPARENT (-1)
#define HTNOWHERE 0
#define HTCLIENT 1
#define HTCAPTION 2
#define HTSYSMENU 3
#define HTHSCROLL 6
#define HTVSCROLL 7
#define HTMINBUTTON 8
#define HTMAXBUTTON 9
#define HTLEFT 10
#define HTRIGHT 11
#define HTTOP 12
#define HTTOPLEFT 13
#define HTTOPRIGHT 14
#define HTBOTTOM 15
#define HTBOTTOMLEFT 16
#define HTBOTTOMRIGHT 17
#define HTBORDER 18
#define HTSIZEFIRST HTLEFT
#define HTSIZELAST HTBOTTOMRIGHT
#define HTCLOSE 20
#define HTHELP 21

typedef CREATESTRUCTA CREATESTRUCT;
typedef LPCREATESTRUCTA LPCREATESTRUCT;
#define CreateWindow CreateWindowA
#define CreateWindowEx CreateWindowExA
#define DefWindowProc DefWindowProcA
#define CallWindowProc CallWindowProcA
#define SetWindowText SetWindowTextA
#define GetWindowText GetWindowTextA
#define GetWindowTextLength GetWindowTextLengthA
#define GetWindowLong GetWindowLongA
#define SetWindowLong SetWindowLongA
#define GetWindowLongPtr GetWindowLongPtrA
#define SetWindowLongPtr SetWindowLongPtrA
#define SetProp SetPropA
#define GetProp GetPropA
#define RemoveProp RemovePropA
#define FindWindow FindWindowA
#define FindWindowEx FindWindowExA
