/// @file winuser/scrollbar.h
/// Scroll bars: those at a window's edges (WS_HSCROLL, WS_VSCROLL) and the "scrollbar" class. The codes that they send with
/// WM_HSCROLL and WM_VSCROLL (SB_) are in messages.h.
///
/// A bar has a range, a page and a position. Its thumb is as long, measured by the bar, as the page is measured by the range;
/// without a page it is as long as an arrow. The greatest position is the range's end less the page, plus one. A bar of a
/// window goes when there is nothing to scroll, unless SIF_DISABLENOSCROLL says that it stays and cannot be used.
///
/// A bar sends what the mouse asks for and moves nothing itself: its window sets the new position. While the mouse is held the
/// bar runs a loop of its own, which delivers all messages but input.
#pragma once

#include "../windef.h"

// --- "scrollbar": styles

#define SBS_HORZ 0x0000L
#define SBS_VERT 0x0001L

// --- "scrollbar": messages

#define SBM_SETPOS 0x00E0
#define SBM_GETPOS 0x00E1
#define SBM_SETSCROLLINFO 0x00E9
#define SBM_GETSCROLLINFO 0x00EA

// --- what a SCROLLINFO tells

#define SIF_RANGE 0x0001
#define SIF_PAGE 0x0002
#define SIF_POS 0x0004
#define SIF_DISABLENOSCROLL 0x0008
#define SIF_TRACKPOS 0x0010
#define SIF_ALL (SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS)

typedef struct tagSCROLLINFO {
    UINT cbSize;
    UINT fMask;
    int nMin;
    int nMax;
    UINT nPage;
    int nPos;
    int nTrackPos;
} SCROLLINFO, *LPSCROLLINFO;
typedef SCROLLINFO const* LPCSCROLLINFO;

/// bar: SB_HORZ or SB_VERT for a bar of the window, SB_CTL when the window is itself a scroll bar.
WINUSERAPI int WINAPI SetScrollInfo(HWND window, int bar, LPCSCROLLINFO info, BOOL redraw);
WINUSERAPI BOOL WINAPI GetScrollInfo(HWND window, int bar, LPSCROLLINFO info);
WINUSERAPI int WINAPI SetScrollPos(HWND window, int bar, int position, BOOL redraw);
WINUSERAPI int WINAPI GetScrollPos(HWND window, int bar);
