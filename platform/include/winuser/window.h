/// @file window.h
/// Window classes, windows, their styles, extra memory, properties, order, positions, frames and system metrics.
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
#define CS_OWNDC 0x0020
#define CS_CLASSDC 0x0040
#define CS_PARENTDC 0x0080
#define CS_NOCLOSE 0x0200
#define CS_SAVEBITS 0x0800
#define CS_BYTEALIGNCLIENT 0x1000
#define CS_BYTEALIGNWINDOW 0x2000
#define CS_GLOBALCLASS 0x4000
#define CS_DROPSHADOW 0x00020000

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
#define WS_TILED WS_OVERLAPPED
#define WS_ICONIC WS_MINIMIZE
#define WS_SIZEBOX WS_THICKFRAME
#define WS_TILEDWINDOW WS_OVERLAPPEDWINDOW
#define WS_OVERLAPPEDWINDOW \
    (WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX)
#define WS_POPUPWINDOW (WS_POPUP | WS_BORDER | WS_SYSMENU)
#define WS_CHILDWINDOW (WS_CHILD)

#define WS_EX_DLGMODALFRAME 0x00000001
#define WS_EX_NOPARENTNOTIFY 0x00000004
#define WS_EX_TOPMOST 0x00000008
#define WS_EX_ACCEPTFILES 0x00000010
#define WS_EX_TRANSPARENT 0x00000020
#define WS_EX_MDICHILD 0x00000040
#define WS_EX_TOOLWINDOW 0x00000080
#define WS_EX_WINDOWEDGE 0x00000100
#define WS_EX_CLIENTEDGE 0x00000200
#define WS_EX_CONTEXTHELP 0x00000400
#define WS_EX_RIGHT 0x00001000
#define WS_EX_LEFT 0x00000000
#define WS_EX_RTLREADING 0x00002000
#define WS_EX_LTRREADING 0x00000000
#define WS_EX_LEFTSCROLLBAR 0x00004000
#define WS_EX_RIGHTSCROLLBAR 0x00000000
#define WS_EX_CONTROLPARENT 0x00010000
#define WS_EX_STATICEDGE 0x00020000
#define WS_EX_APPWINDOW 0x00040000
#define WS_EX_NOACTIVATE 0x08000000
#define WS_EX_OVERLAPPEDWINDOW (WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE)
#define WS_EX_PALETTEWINDOW (WS_EX_WINDOWEDGE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST)

// --- creating and destroying

#define CW_USEDEFAULT ((int)0x80000000)

#define HWND_DESKTOP ((HWND)0)
#define HWND_MESSAGE ((HWND)-3)
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

WINUSERAPI HWND WINAPI CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width,
                                       int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter);
#define CreateWindowA(className, text, style, x, y, width, height, parent, menu, instance, parameter) \
    CreateWindowExA(0L, className, text, style, x, y, width, height, parent, menu, instance, parameter)
WINUSERAPI BOOL WINAPI DestroyWindow(HWND window);

WINUSERAPI LRESULT WINAPI DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
WINUSERAPI LRESULT WINAPI CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// --- state

WINUSERAPI BOOL WINAPI IsWindow(HWND window);
WINUSERAPI BOOL WINAPI IsWindowUnicode(HWND window);
WINUSERAPI BOOL WINAPI IsWindowVisible(HWND window);
WINUSERAPI BOOL WINAPI IsWindowEnabled(HWND window);
WINUSERAPI BOOL WINAPI EnableWindow(HWND window, BOOL enable);
WINUSERAPI BOOL WINAPI IsIconic(HWND window);
WINUSERAPI BOOL WINAPI IsZoomed(HWND window);
WINUSERAPI DWORD WINAPI GetWindowThreadProcessId(HWND window, LPDWORD process);
WINUSERAPI BOOL WINAPI FlashWindow(HWND window, BOOL invert);

WINUSERAPI BOOL WINAPI SetWindowTextA(HWND window, LPCSTR text);
WINUSERAPI int WINAPI GetWindowTextA(HWND window, LPSTR text, int size);
WINUSERAPI int WINAPI GetWindowTextLengthA(HWND window);

#define GWL_WNDPROC (-4)
#define GWL_HINSTANCE (-6)
#define GWL_HWNDPARENT (-8)
#define GWL_ID (-12)
#define GWL_STYLE (-16)
#define GWL_EXSTYLE (-20)
#define GWL_USERDATA (-21)
#define GWLP_WNDPROC GWL_WNDPROC
#define GWLP_HINSTANCE GWL_HINSTANCE
#define GWLP_HWNDPARENT GWL_HWNDPARENT
#define GWLP_ID GWL_ID
#define GWLP_USERDATA GWL_USERDATA

typedef struct tagSTYLESTRUCT {
    DWORD styleOld;
    DWORD styleNew;
} STYLESTRUCT, *LPSTYLESTRUCT;

WINUSERAPI LONG WINAPI GetWindowLongA(HWND window, int index);
WINUSERAPI LONG WINAPI SetWindowLongA(HWND window, int index, LONG value);
WINUSERAPI LONG_PTR WINAPI GetWindowLongPtrA(HWND window, int index);
WINUSERAPI LONG_PTR WINAPI SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
WINUSERAPI WORD WINAPI GetWindowWord(HWND window, int index);
WINUSERAPI WORD WINAPI SetWindowWord(HWND window, int index, WORD value);

// --- properties

typedef BOOL(CALLBACK* PROPENUMPROCA)(HWND window, LPCSTR name, HANDLE data);
typedef BOOL(CALLBACK* PROPENUMPROCEXA)(HWND window, LPSTR name, HANDLE data, ULONG_PTR parameter);

WINUSERAPI BOOL WINAPI SetPropA(HWND window, LPCSTR name, HANDLE data);
WINUSERAPI HANDLE WINAPI GetPropA(HWND window, LPCSTR name);
WINUSERAPI HANDLE WINAPI RemovePropA(HWND window, LPCSTR name);
WINUSERAPI int WINAPI EnumPropsA(HWND window, PROPENUMPROCA procedure);
WINUSERAPI int WINAPI EnumPropsExA(HWND window, PROPENUMPROCEXA procedure, LPARAM parameter);

// --- the window tree

typedef BOOL(CALLBACK* WNDENUMPROC)(HWND window, LPARAM parameter);

#define GW_HWNDFIRST 0
#define GW_HWNDLAST 1
#define GW_HWNDNEXT 2
#define GW_HWNDPREV 3
#define GW_OWNER 4
#define GW_CHILD 5
#define GW_ENABLEDPOPUP 6

#define GA_PARENT 1
#define GA_ROOT 2
#define GA_ROOTOWNER 3

#define CWP_ALL 0x0000
#define CWP_SKIPINVISIBLE 0x0001
#define CWP_SKIPDISABLED 0x0002
#define CWP_SKIPTRANSPARENT 0x0004

WINUSERAPI HWND WINAPI GetDesktopWindow(VOID);
WINUSERAPI HWND WINAPI GetParent(HWND window);
WINUSERAPI HWND WINAPI SetParent(HWND window, HWND parent);
WINUSERAPI HWND WINAPI GetAncestor(HWND window, UINT flags);
WINUSERAPI HWND WINAPI GetWindow(HWND window, UINT relation);
WINUSERAPI HWND WINAPI GetTopWindow(HWND window);
#define GetNextWindow(window, relation) GetWindow(window, relation)
WINUSERAPI BOOL WINAPI IsChild(HWND parent, HWND window);
WINUSERAPI HWND WINAPI FindWindowA(LPCSTR className, LPCSTR text);
WINUSERAPI HWND WINAPI FindWindowExA(HWND parent, HWND after, LPCSTR className, LPCSTR text);
WINUSERAPI HWND WINAPI WindowFromPoint(POINT point);
WINUSERAPI HWND WINAPI ChildWindowFromPoint(HWND parent, POINT point);
WINUSERAPI HWND WINAPI ChildWindowFromPointEx(HWND parent, POINT point, UINT flags);
WINUSERAPI HWND WINAPI RealChildWindowFromPoint(HWND parent, POINT point);
WINUSERAPI BOOL WINAPI EnumWindows(WNDENUMPROC procedure, LPARAM parameter);
WINUSERAPI BOOL WINAPI EnumChildWindows(HWND parent, WNDENUMPROC procedure, LPARAM parameter);
WINUSERAPI BOOL WINAPI EnumThreadWindows(DWORD thread, WNDENUMPROC procedure, LPARAM parameter);
WINUSERAPI BOOL WINAPI AnyPopup(VOID);

// --- position, size, visibility

#define SW_HIDE 0
#define SW_SHOWNORMAL 1
#define SW_NORMAL 1
#define SW_SHOWMINIMIZED 2
#define SW_SHOWMAXIMIZED 3
#define SW_MAXIMIZE 3
#define SW_SHOWNOACTIVATE 4
#define SW_SHOW 5
#define SW_MINIMIZE 6
#define SW_SHOWMINNOACTIVE 7
#define SW_SHOWNA 8
#define SW_RESTORE 9
#define SW_SHOWDEFAULT 10
#define SW_FORCEMINIMIZE 11
#define SW_MAX 11

// WM_SHOWWINDOW
#define SW_PARENTCLOSING 1
#define SW_OTHERZOOM 2
#define SW_PARENTOPENING 3
#define SW_OTHERUNZOOM 4

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
#define SWP_NOSENDCHANGING 0x0400
#define SWP_DRAWFRAME SWP_FRAMECHANGED
#define SWP_NOREPOSITION SWP_NOOWNERZORDER
#define SWP_DEFERERASE 0x2000
#define SWP_ASYNCWINDOWPOS 0x4000

typedef struct tagWINDOWPOS {
    HWND hwnd;
    HWND hwndInsertAfter;
    int x;
    int y;
    int cx;
    int cy;
    UINT flags;
} WINDOWPOS, *LPWINDOWPOS, *PWINDOWPOS;

typedef struct tagNCCALCSIZE_PARAMS {
    RECT rgrc[3];
    PWINDOWPOS lppos;
} NCCALCSIZE_PARAMS, *LPNCCALCSIZE_PARAMS;

// What WM_NCCALCSIZE may answer
#define WVR_ALIGNTOP 0x0010
#define WVR_ALIGNLEFT 0x0020
#define WVR_ALIGNBOTTOM 0x0040
#define WVR_ALIGNRIGHT 0x0080
#define WVR_HREDRAW 0x0100
#define WVR_VREDRAW 0x0200
#define WVR_REDRAW (WVR_HREDRAW | WVR_VREDRAW)
#define WVR_VALIDRECTS 0x0400

typedef struct tagMINMAXINFO {
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize;
    POINT ptMaxTrackSize;
} MINMAXINFO, *PMINMAXINFO, *LPMINMAXINFO;

#define WPF_SETMINPOSITION 0x0001
#define WPF_RESTORETOMAXIMIZED 0x0002

typedef struct tagWINDOWPLACEMENT {
    UINT length;
    UINT flags;
    UINT showCmd;
    POINT ptMinPosition;
    POINT ptMaxPosition;
    RECT rcNormalPosition;
} WINDOWPLACEMENT, *PWINDOWPLACEMENT, *LPWINDOWPLACEMENT;

typedef HANDLE HDWP;

WINUSERAPI BOOL WINAPI SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);
WINUSERAPI BOOL WINAPI MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
WINUSERAPI BOOL WINAPI ShowWindow(HWND window, int show);
WINUSERAPI HDWP WINAPI BeginDeferWindowPos(int count);
WINUSERAPI HDWP WINAPI DeferWindowPos(HDWP batch, HWND window, HWND after, int x, int y, int width, int height, UINT flags);
WINUSERAPI BOOL WINAPI EndDeferWindowPos(HDWP batch);
WINUSERAPI BOOL WINAPI ShowOwnedPopups(HWND owner, BOOL show);
WINUSERAPI BOOL WINAPI CloseWindow(HWND window);

WINUSERAPI BOOL WINAPI GetWindowPlacement(HWND window, WINDOWPLACEMENT* placement);
WINUSERAPI BOOL WINAPI GetWindowRect(HWND window, LPRECT rect);
WINUSERAPI BOOL WINAPI GetClientRect(HWND window, LPRECT rect);
WINUSERAPI BOOL WINAPI ClientToScreen(HWND window, LPPOINT point);
WINUSERAPI BOOL WINAPI ScreenToClient(HWND window, LPPOINT point);
WINUSERAPI int WINAPI MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count);
WINUSERAPI BOOL WINAPI AdjustWindowRect(LPRECT rect, DWORD style, BOOL menu);
WINUSERAPI BOOL WINAPI AdjustWindowRectEx(LPRECT rect, DWORD style, BOOL menu, DWORD exStyle);

// --- WM_NCHITTEST

#define HTERROR (-2)
#define HTTRANSPARENT (-1)
#define HTNOWHERE 0
#define HTCLIENT 1
#define HTCAPTION 2
#define HTSYSMENU 3
#define HTGROWBOX 4
#define HTSIZE HTGROWBOX
#define HTMENU 5
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
#define HTREDUCE HTMINBUTTON
#define HTZOOM HTMAXBUTTON
#define HTSIZEFIRST HTLEFT
#define HTSIZELAST HTBOTTOMRIGHT
#define HTOBJECT 19
#define HTCLOSE 20
#define HTHELP 21

// WM_SIZING
#define WMSZ_LEFT 1
#define WMSZ_RIGHT 2
#define WMSZ_TOP 3
#define WMSZ_TOPLEFT 4
#define WMSZ_TOPRIGHT 5
#define WMSZ_BOTTOM 6
#define WMSZ_BOTTOMLEFT 7
#define WMSZ_BOTTOMRIGHT 8

// --- cursors and icons

#define IDC_ARROW MAKEINTRESOURCEA(32512)
#define IDC_IBEAM MAKEINTRESOURCEA(32513)
#define IDC_WAIT MAKEINTRESOURCEA(32514)
#define IDC_CROSS MAKEINTRESOURCEA(32515)
#define IDC_UPARROW MAKEINTRESOURCEA(32516)
#define IDC_SIZE MAKEINTRESOURCEA(32640)
#define IDC_ICON MAKEINTRESOURCEA(32641)
#define IDC_SIZENWSE MAKEINTRESOURCEA(32642)
#define IDC_SIZENESW MAKEINTRESOURCEA(32643)
#define IDC_SIZEWE MAKEINTRESOURCEA(32644)
#define IDC_SIZENS MAKEINTRESOURCEA(32645)
#define IDC_SIZEALL MAKEINTRESOURCEA(32646)
#define IDC_NO MAKEINTRESOURCEA(32648)
#define IDC_HAND MAKEINTRESOURCEA(32649)
#define IDC_APPSTARTING MAKEINTRESOURCEA(32650)
#define IDC_HELP MAKEINTRESOURCEA(32651)

#define IDI_APPLICATION MAKEINTRESOURCEA(32512)
#define IDI_HAND MAKEINTRESOURCEA(32513)
#define IDI_QUESTION MAKEINTRESOURCEA(32514)
#define IDI_EXCLAMATION MAKEINTRESOURCEA(32515)
#define IDI_ASTERISK MAKEINTRESOURCEA(32516)
#define IDI_WINLOGO MAKEINTRESOURCEA(32517)
#define IDI_WARNING IDI_EXCLAMATION
#define IDI_ERROR IDI_HAND
#define IDI_INFORMATION IDI_ASTERISK

WINUSERAPI HCURSOR WINAPI LoadCursorA(HINSTANCE instance, LPCSTR name);
WINUSERAPI BOOL WINAPI DestroyCursor(HCURSOR cursor);
WINUSERAPI HICON WINAPI LoadIconA(HINSTANCE instance, LPCSTR name);
WINUSERAPI BOOL WINAPI DestroyIcon(HICON icon);
WINUSERAPI HICON WINAPI CopyIcon(HICON icon);

#define DI_MASK 0x0001
#define DI_IMAGE 0x0002
#define DI_NORMAL 0x0003
#define DI_COMPAT 0x0004
#define DI_DEFAULTSIZE 0x0008

typedef struct _ICONINFO {
    BOOL fIcon;
    DWORD xHotspot;
    DWORD yHotspot;
    HBITMAP hbmMask;
    HBITMAP hbmColor;
} ICONINFO, *PICONINFO;

WINUSERAPI BOOL WINAPI DrawIcon(HDC context, int x, int y, HICON icon);
WINUSERAPI BOOL WINAPI DrawIconEx(HDC context, int x, int y, HICON icon, int width, int height, UINT step, HBRUSH brush,
                                  UINT flags);
WINUSERAPI BOOL WINAPI GetIconInfo(HICON icon, PICONINFO info);
#define CopyCursor(cursor) ((HCURSOR)CopyIcon((HICON)(cursor)))

// --- metrics and settings

#define SM_CXSCREEN 0
#define SM_CYSCREEN 1
#define SM_CXVSCROLL 2
#define SM_CYHSCROLL 3
#define SM_CYCAPTION 4
#define SM_CXBORDER 5
#define SM_CYBORDER 6
#define SM_CXDLGFRAME 7
#define SM_CYDLGFRAME 8
#define SM_CYVTHUMB 9
#define SM_CXHTHUMB 10
#define SM_CXICON 11
#define SM_CYICON 12
#define SM_CXCURSOR 13
#define SM_CYCURSOR 14
#define SM_CYMENU 15
#define SM_CXFULLSCREEN 16
#define SM_CYFULLSCREEN 17
#define SM_CYKANJIWINDOW 18
#define SM_MOUSEPRESENT 19
#define SM_CYVSCROLL 20
#define SM_CXHSCROLL 21
#define SM_DEBUG 22
#define SM_SWAPBUTTON 23
#define SM_CXMIN 28
#define SM_CYMIN 29
#define SM_CXSIZE 30
#define SM_CYSIZE 31
#define SM_CXFRAME 32
#define SM_CYFRAME 33
#define SM_CXMINTRACK 34
#define SM_CYMINTRACK 35
#define SM_CXDOUBLECLK 36
#define SM_CYDOUBLECLK 37
#define SM_CXICONSPACING 38
#define SM_CYICONSPACING 39
#define SM_MENUDROPALIGNMENT 40
#define SM_PENWINDOWS 41
#define SM_DBCSENABLED 42
#define SM_CMOUSEBUTTONS 43
#define SM_CXFIXEDFRAME SM_CXDLGFRAME
#define SM_CYFIXEDFRAME SM_CYDLGFRAME
#define SM_CXSIZEFRAME SM_CXFRAME
#define SM_CYSIZEFRAME SM_CYFRAME
#define SM_SECURE 44
#define SM_CXEDGE 45
#define SM_CYEDGE 46
#define SM_CXMINSPACING 47
#define SM_CYMINSPACING 48
#define SM_CXSMICON 49
#define SM_CYSMICON 50
#define SM_CYSMCAPTION 51
#define SM_CXSMSIZE 52
#define SM_CYSMSIZE 53
#define SM_CXMENUSIZE 54
#define SM_CYMENUSIZE 55
#define SM_ARRANGE 56
#define SM_CXMINIMIZED 57
#define SM_CYMINIMIZED 58
#define SM_CXMAXTRACK 59
#define SM_CYMAXTRACK 60
#define SM_CXMAXIMIZED 61
#define SM_CYMAXIMIZED 62
#define SM_NETWORK 63
#define SM_CLEANBOOT 67
#define SM_CXDRAG 68
#define SM_CYDRAG 69
#define SM_SHOWSOUNDS 70
#define SM_CXMENUCHECK 71
#define SM_CYMENUCHECK 72
#define SM_SLOWMACHINE 73
#define SM_MIDEASTENABLED 74
#define SM_MOUSEWHEELPRESENT 75
#define SM_XVIRTUALSCREEN 76
#define SM_YVIRTUALSCREEN 77
#define SM_CXVIRTUALSCREEN 78
#define SM_CYVIRTUALSCREEN 79
#define SM_CMONITORS 80
#define SM_SAMEDISPLAYFORMAT 81

WINUSERAPI int WINAPI GetSystemMetrics(int index);

typedef struct tagNONCLIENTMETRICSA {
    UINT cbSize;
    int iBorderWidth;
    int iScrollWidth;
    int iScrollHeight;
    int iCaptionWidth;
    int iCaptionHeight;
    LOGFONTA lfCaptionFont;
    int iSmCaptionWidth;
    int iSmCaptionHeight;
    LOGFONTA lfSmCaptionFont;
    int iMenuWidth;
    int iMenuHeight;
    LOGFONTA lfMenuFont;
    LOGFONTA lfStatusFont;
    LOGFONTA lfMessageFont;
} NONCLIENTMETRICSA, *PNONCLIENTMETRICSA, *LPNONCLIENTMETRICSA;

#define SPI_GETBEEP 0x0001
#define SPI_SETBEEP 0x0002
#define SPI_GETBORDER 0x0005
#define SPI_GETKEYBOARDSPEED 0x000A
#define SPI_SETKEYBOARDSPEED 0x000B
#define SPI_GETKEYBOARDDELAY 0x0016
#define SPI_SETKEYBOARDDELAY 0x0017
#define SPI_GETICONTITLELOGFONT 0x001F
#define SPI_GETDRAGFULLWINDOWS 0x0026
#define SPI_SETDRAGFULLWINDOWS 0x0025
#define SPI_GETNONCLIENTMETRICS 0x0029
#define SPI_GETWORKAREA 0x0030
#define SPI_GETWHEELSCROLLLINES 0x0068
#define SPI_SETWHEELSCROLLLINES 0x0069
#define SPIF_UPDATEINIFILE 0x0001
#define SPIF_SENDWININICHANGE 0x0002
#define SPIF_SENDCHANGE SPIF_SENDWININICHANGE

WINUSERAPI BOOL WINAPI SystemParametersInfoA(UINT action, UINT parameter, PVOID data, UINT winIni);

#define GR_GDIOBJECTS 0
#define GR_USEROBJECTS 1

WINUSERAPI DWORD WINAPI GetGuiResources(HANDLE process, DWORD flags);

#ifndef CVPLATFORM_NO_GENERIC_NAMES
typedef WNDCLASSA WNDCLASS;
typedef PWNDCLASSA PWNDCLASS;
typedef LPWNDCLASSA LPWNDCLASS;
typedef WNDCLASSEXA WNDCLASSEX;
typedef LPWNDCLASSEXA LPWNDCLASSEX;
typedef CREATESTRUCTA CREATESTRUCT;
typedef LPCREATESTRUCTA LPCREATESTRUCT;
typedef NONCLIENTMETRICSA NONCLIENTMETRICS;
#define RegisterClass RegisterClassA
#define RegisterClassEx RegisterClassExA
#define UnregisterClass UnregisterClassA
#define GetClassInfo GetClassInfoA
#define GetClassInfoEx GetClassInfoExA
#define GetClassName GetClassNameA
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
#define GetClassLong GetClassLongA
#define SetClassLong SetClassLongA
#define GetClassLongPtr GetClassLongPtrA
#define SetClassLongPtr SetClassLongPtrA
#define SetProp SetPropA
#define GetProp GetPropA
#define RemoveProp RemovePropA
#define EnumProps EnumPropsA
#define EnumPropsEx EnumPropsExA
#define FindWindow FindWindowA
#define FindWindowEx FindWindowExA
#define LoadCursor LoadCursorA
#define LoadIcon LoadIconA
#define SystemParametersInfo SystemParametersInfoA
#define GlobalAddAtom GlobalAddAtomA
#define GlobalFindAtom GlobalFindAtomA
#define GlobalGetAtomName GlobalGetAtomNameA
#define AddAtom AddAtomA
#define FindAtom FindAtomA
#define GetAtomName GetAtomNameA
#endif
