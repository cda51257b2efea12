/// @file winuser/drawing.h
/// The part of the window manager that only draws: rectangles, system colours, edges and frame controls, text in
/// rectangles, and bitmaps from resources.
#pragma once

#include "../windef.h"
#include "../wingdi.h"

// --- system colours

#define COLOR_SCROLLBAR 0
#define COLOR_BACKGROUND 1
#define COLOR_ACTIVECAPTION 2
#define COLOR_INACTIVECAPTION 3
#define COLOR_MENU 4
#define COLOR_WINDOW 5
#define COLOR_WINDOWFRAME 6
#define COLOR_MENUTEXT 7
#define COLOR_WINDOWTEXT 8
#define COLOR_CAPTIONTEXT 9
#define COLOR_ACTIVEBORDER 10
#define COLOR_INACTIVEBORDER 11
#define COLOR_HIGHLIGHT 13
#define COLOR_HIGHLIGHTTEXT 14
#define COLOR_BTNFACE 15
#define COLOR_3DFACE COLOR_BTNFACE
#define COLOR_BTNSHADOW 16
#define COLOR_3DSHADOW COLOR_BTNSHADOW
#define COLOR_GRAYTEXT 17
#define COLOR_BTNTEXT 18
#define COLOR_INACTIVECAPTIONTEXT 19
#define COLOR_BTNHIGHLIGHT 20
#define COLOR_3DHIGHLIGHT COLOR_BTNHIGHLIGHT
#define COLOR_3DDKSHADOW 21
#define COLOR_3DLIGHT 22
#define COLOR_INFOTEXT 23
#define COLOR_INFOBK 24
#define COLOR_GRADIENTINACTIVECAPTION 28

WINUSERAPI DWORD WINAPI GetSysColor(int index);
WINUSERAPI HBRUSH WINAPI GetSysColorBrush(int index);
WINUSERAPI BOOL WINAPI SetSysColors(int count, const INT* elements, const COLORREF* colours);

// --- rectangles

WINUSERAPI BOOL WINAPI SetRect(LPRECT rect, int left, int top, int right, int bottom);
WINUSERAPI BOOL WINAPI SetRectEmpty(LPRECT rect);
WINUSERAPI BOOL WINAPI CopyRect(LPRECT rect, const RECT* source);
WINUSERAPI BOOL WINAPI InflateRect(LPRECT rect, int dx, int dy);
WINUSERAPI BOOL WINAPI OffsetRect(LPRECT rect, int dx, int dy);
WINUSERAPI BOOL WINAPI IntersectRect(LPRECT rect, const RECT* first, const RECT* second);
WINUSERAPI BOOL WINAPI UnionRect(LPRECT rect, const RECT* first, const RECT* second);
WINUSERAPI BOOL WINAPI PtInRect(const RECT* rect, POINT point);
WINUSERAPI BOOL WINAPI IsRectEmpty(const RECT* rect);
WINUSERAPI BOOL WINAPI EqualRect(const RECT* first, const RECT* second);

// --- filling and edges

WINUSERAPI int WINAPI FillRect(HDC context, const RECT* rect, HBRUSH brush);
WINUSERAPI int WINAPI FrameRect(HDC context, const RECT* rect, HBRUSH brush);
WINUSERAPI BOOL WINAPI InvertRect(HDC context, const RECT* rect);
WINUSERAPI BOOL WINAPI DrawFocusRect(HDC context, const RECT* rect);

#define BDR_RAISEDOUTER 0x0001
#define BDR_SUNKENOUTER 0x0002
#define BDR_RAISEDINNER 0x0004
#define BDR_SUNKENINNER 0x0008
#define BDR_OUTER (BDR_RAISEDOUTER | BDR_SUNKENOUTER)
#define BDR_INNER (BDR_RAISEDINNER | BDR_SUNKENINNER)
#define EDGE_RAISED (BDR_RAISEDOUTER | BDR_RAISEDINNER)
#define EDGE_SUNKEN (BDR_SUNKENOUTER | BDR_SUNKENINNER)
#define EDGE_ETCHED (BDR_SUNKENOUTER | BDR_RAISEDINNER)
#define EDGE_BUMP (BDR_RAISEDOUTER | BDR_SUNKENINNER)

#define BF_LEFT 0x0001
#define BF_TOP 0x0002
#define BF_RIGHT 0x0004
#define BF_BOTTOM 0x0008
#define BF_RECT (BF_LEFT | BF_TOP | BF_RIGHT | BF_BOTTOM)
#define BF_MIDDLE 0x0800
#define BF_SOFT 0x1000
#define BF_ADJUST 0x2000
#define BF_FLAT 0x4000

WINUSERAPI BOOL WINAPI DrawEdge(HDC context, LPRECT rect, UINT edge, UINT flags);

#define DFC_CAPTION 1
#define DFC_SCROLL 3
#define DFC_BUTTON 4

#define DFCS_CAPTIONCLOSE 0x0000
#define DFCS_CAPTIONMIN 0x0001
#define DFCS_CAPTIONMAX 0x0002
#define DFCS_CAPTIONRESTORE 0x0003
#define DFCS_CAPTIONHELP 0x0004
#define DFCS_SCROLLUP 0x0000
#define DFCS_SCROLLDOWN 0x0001
#define DFCS_SCROLLLEFT 0x0002
#define DFCS_SCROLLRIGHT 0x0003
#define DFCS_SCROLLCOMBOBOX 0x0005
#define DFCS_BUTTONCHECK 0x0000
#define DFCS_BUTTONRADIO 0x0004
#define DFCS_BUTTON3STATE 0x0008
#define DFCS_BUTTONPUSH 0x0010
#define DFCS_INACTIVE 0x0100
#define DFCS_PUSHED 0x0200
#define DFCS_CHECKED 0x0400

WINUSERAPI BOOL WINAPI DrawFrameControl(HDC context, LPRECT rect, UINT type, UINT state);

// --- text

#define DT_TOP 0x00000000
#define DT_LEFT 0x00000000
#define DT_CENTER 0x00000001
#define DT_RIGHT 0x00000002
#define DT_VCENTER 0x00000004
#define DT_WORDBREAK 0x00000010
#define DT_SINGLELINE 0x00000020
#define DT_EXPANDTABS 0x00000040
#define DT_NOCLIP 0x00000100
#define DT_CALCRECT 0x00000400
#define DT_NOPREFIX 0x00000800
#define DT_EDITCONTROL 0x00002000
#define DT_END_ELLIPSIS 0x00008000

WINUSERAPI int WINAPI DrawTextA(HDC context, LPCSTR text, int length, LPRECT rect, UINT format);

// --- bitmaps from resources

#define IMAGE_BITMAP 0
#define IMAGE_ICON 1
#define IMAGE_CURSOR 2
#define LR_DEFAULTCOLOR 0x0000

/// LoadImageA loads bitmaps from a module's resources; for another type, or from a file, it fails with
/// ERROR_INVALID_PARAMETER.
WINUSERAPI HBITMAP WINAPI LoadBitmapA(HINSTANCE instance, LPCSTR name);
WINUSERAPI HANDLE WINAPI LoadImageA(HINSTANCE instance, LPCSTR name, UINT type, int width, int height, UINT flags);
