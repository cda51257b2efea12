/// @file winuser/painting.h
/// Painting: update regions, BeginPaint and EndPaint, device contexts of windows and of the screen, scrolling.
#pragma once

#include "../windef.h"

typedef struct tagPAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
} PAINTSTRUCT, *PPAINTSTRUCT, *NPPAINTSTRUCT, *LPPAINTSTRUCT;

WINUSERAPI HDC WINAPI BeginPaint(HWND window, LPPAINTSTRUCT paint);
WINUSERAPI BOOL WINAPI EndPaint(HWND window, const PAINTSTRUCT* paint);

#define DCX_WINDOW 0x00000001
#define DCX_CACHE 0x00000002
#define DCX_NORESETATTRS 0x00000004
#define DCX_CLIPCHILDREN 0x00000008
#define DCX_CLIPSIBLINGS 0x00000010
#define DCX_PARENTCLIP 0x00000020
#define DCX_EXCLUDERGN 0x00000040
#define DCX_INTERSECTRGN 0x00000080
#define DCX_EXCLUDEUPDATE 0x00000100
#define DCX_INTERSECTUPDATE 0x00000200
#define DCX_LOCKWINDOWUPDATE 0x00000400
#define DCX_VALIDATE 0x00200000

WINUSERAPI HDC WINAPI GetDC(HWND window);
WINUSERAPI HDC WINAPI GetDCEx(HWND window, HRGN clip, DWORD flags);
WINUSERAPI HDC WINAPI GetWindowDC(HWND window);
WINUSERAPI int WINAPI ReleaseDC(HWND window, HDC context);
WINUSERAPI HWND WINAPI WindowFromDC(HDC context);

WINUSERAPI BOOL WINAPI InvalidateRect(HWND window, const RECT* rect, BOOL erase);
WINUSERAPI BOOL WINAPI ValidateRect(HWND window, const RECT* rect);
WINUSERAPI BOOL WINAPI InvalidateRgn(HWND window, HRGN region, BOOL erase);
WINUSERAPI BOOL WINAPI ValidateRgn(HWND window, HRGN region);
WINUSERAPI BOOL WINAPI GetUpdateRect(HWND window, LPRECT rect, BOOL erase);
WINUSERAPI int WINAPI GetUpdateRgn(HWND window, HRGN region, BOOL erase);
WINUSERAPI int WINAPI ExcludeUpdateRgn(HDC context, HWND window);
WINUSERAPI BOOL WINAPI UpdateWindow(HWND window);

#define RDW_INVALIDATE 0x0001
#define RDW_INTERNALPAINT 0x0002
#define RDW_ERASE 0x0004
#define RDW_VALIDATE 0x0008
#define RDW_NOINTERNALPAINT 0x0010
#define RDW_NOERASE 0x0020
#define RDW_NOCHILDREN 0x0040
#define RDW_ALLCHILDREN 0x0080
#define RDW_UPDATENOW 0x0100
#define RDW_ERASENOW 0x0200
#define RDW_FRAME 0x0400
#define RDW_NOFRAME 0x0800

WINUSERAPI BOOL WINAPI RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags);

#define SW_SCROLLCHILDREN 0x0001
#define SW_INVALIDATE 0x0002
#define SW_ERASE 0x0004

WINUSERAPI BOOL WINAPI ScrollWindow(HWND window, int dx, int dy, const RECT* scroll, const RECT* clip);
WINUSERAPI int WINAPI ScrollWindowEx(HWND window, int dx, int dy, const RECT* scroll, const RECT* clip,
                                     HRGN updateRegion, LPRECT updateRect, UINT flags);
WINUSERAPI BOOL WINAPI ScrollDC(HDC context, int dx, int dy, const RECT* scroll, const RECT* clip, HRGN updateRegion,
                                LPRECT updateRect);
