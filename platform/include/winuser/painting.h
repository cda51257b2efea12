/// @file winuser/painting.h
/// Painting: update regions, BeginPaint and EndPaint, device contexts of windows and of the screen.
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

WINUSERAPI HDC WINAPI GetDC(HWND window);
WINUSERAPI HDC WINAPI GetWindowDC(HWND window);
WINUSERAPI int WINAPI ReleaseDC(HWND window, HDC context);

WINUSERAPI BOOL WINAPI InvalidateRect(HWND window, const RECT* rect, BOOL erase);
WINUSERAPI BOOL WINAPI ValidateRect(HWND window, const RECT* rect);
WINUSERAPI BOOL WINAPI GetUpdateRect(HWND window, LPRECT rect, BOOL erase);
WINUSERAPI BOOL WINAPI UpdateWindow(HWND window);

#define RDW_INVALIDATE 0x0001
#define RDW_ERASE 0x0004
#define RDW_ALLCHILDREN 0x0080
#define RDW_UPDATENOW 0x0100
#define RDW_FRAME 0x0400

/// There are no region objects: `region` is null.
WINUSERAPI BOOL WINAPI RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags);
