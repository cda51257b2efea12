/// @file wingdi.h
/// Drawing: device contexts, pens, brushes, fonts, bitmaps, raster operations and text.
#pragma once

#include "windef.h"

// --- colours and bitmap structures

#define RGB(r, g, b) ((COLORREF)(((BYTE)(r) | ((WORD)((BYTE)(g)) << 8)) | (((DWORD)(BYTE)(b)) << 16)))
#define GetRValue(rgb) ((BYTE)(rgb))
#define GetGValue(rgb) ((BYTE)(((WORD)(rgb)) >> 8))
#define GetBValue(rgb) ((BYTE)((rgb) >> 16))
#define CLR_INVALID 0xFFFFFFFF

typedef struct tagRGBQUAD {
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
} RGBQUAD, *LPRGBQUAD;

typedef struct tagBITMAP {
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    LPVOID bmBits;
} BITMAP, *PBITMAP, *NPBITMAP, *LPBITMAP;

typedef struct tagBITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
} BITMAPINFOHEADER, *LPBITMAPINFOHEADER, *PBITMAPINFOHEADER;

typedef struct tagBITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
} BITMAPINFO, *LPBITMAPINFO, *PBITMAPINFO;

#define BI_RGB 0
#define DIB_RGB_COLORS 0

// --- objects

#define WHITE_BRUSH 0
#define BLACK_BRUSH 4
#define NULL_BRUSH 5
#define WHITE_PEN 6
#define BLACK_PEN 7
#define NULL_PEN 8
#define ANSI_FIXED_FONT 11
#define ANSI_VAR_FONT 12
#define SYSTEM_FONT 13
#define DEFAULT_GUI_FONT 17

#define PS_SOLID 0
#define PS_NULL 5

#define BS_SOLID 0
#define BS_NULL 1
#define BS_PATTERN 3

WINGDIAPI HGDIOBJ WINAPI GetStockObject(int index);
WINGDIAPI BOOL WINAPI DeleteObject(HGDIOBJ object);
/// Tells of fonts and bitmaps.
WINGDIAPI int WINAPI GetObjectA(HANDLE object, int size, LPVOID buffer);
WINGDIAPI HGDIOBJ WINAPI SelectObject(HDC context, HGDIOBJ object);

/// Every pen is one pixel wide.
WINGDIAPI HPEN WINAPI CreatePen(int style, int width, COLORREF colour);
WINGDIAPI HBRUSH WINAPI CreateSolidBrush(COLORREF colour);

// --- device contexts

#define HORZRES 8
#define VERTRES 10
#define BITSPIXEL 12
#define PLANES 14
#define LOGPIXELSX 88
#define LOGPIXELSY 90

WINGDIAPI HDC WINAPI CreateCompatibleDC(HDC context);
WINGDIAPI BOOL WINAPI DeleteDC(HDC context);
WINGDIAPI int WINAPI SaveDC(HDC context);
WINGDIAPI BOOL WINAPI RestoreDC(HDC context, int saved);
WINGDIAPI int WINAPI GetDeviceCaps(HDC context, int index);
WINGDIAPI BOOL WINAPI GdiFlush(void);

#define TRANSPARENT 1
#define OPAQUE 2

WINGDIAPI COLORREF WINAPI SetBkColor(HDC context, COLORREF colour);
WINGDIAPI COLORREF WINAPI GetBkColor(HDC context);
WINGDIAPI int WINAPI SetBkMode(HDC context, int mode);
WINGDIAPI int WINAPI GetBkMode(HDC context);
WINGDIAPI COLORREF WINAPI SetTextColor(HDC context, COLORREF colour);
WINGDIAPI COLORREF WINAPI GetTextColor(HDC context);

// --- clipping

#define ERROR 0
#define NULLREGION 1
#define SIMPLEREGION 2
#define COMPLEXREGION 3

WINGDIAPI int WINAPI IntersectClipRect(HDC context, int left, int top, int right, int bottom);

// --- lines, shapes, pixels

WINGDIAPI BOOL WINAPI MoveToEx(HDC context, int x, int y, LPPOINT previous);
WINGDIAPI BOOL WINAPI LineTo(HDC context, int x, int y);
WINGDIAPI BOOL WINAPI Rectangle(HDC context, int left, int top, int right, int bottom);
WINGDIAPI BOOL WINAPI Ellipse(HDC context, int left, int top, int right, int bottom);
WINGDIAPI COLORREF WINAPI GetPixel(HDC context, int x, int y);
WINGDIAPI COLORREF WINAPI SetPixel(HDC context, int x, int y, COLORREF colour);

// --- bitmaps and raster operations

#define SRCCOPY 0x00CC0020
#define SRCPAINT 0x00EE0086
#define SRCAND 0x008800C6
#define SRCINVERT 0x00660046
#define MERGECOPY 0x00C000CA
#define PATCOPY 0x00F00021
#define PATINVERT 0x005A0049
#define DSTINVERT 0x00550009
#define BLACKNESS 0x00000042
#define WHITENESS 0x00FF0062

/// Bitmaps have one bit a pixel or 32. Blocks and parts of negative size hold nothing.
WINGDIAPI HBITMAP WINAPI CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);
WINGDIAPI HBITMAP WINAPI CreateBitmapIndirect(const BITMAP* bitmap);
WINGDIAPI HBITMAP WINAPI CreateCompatibleBitmap(HDC context, int width, int height);
/// Device-independent bitmaps have 32 bits a pixel here; those in resources may have palettes.
WINGDIAPI HBITMAP WINAPI CreateDIBSection(HDC context, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                                          DWORD offset);
WINGDIAPI int WINAPI GetDIBits(HDC context, HBITMAP bitmap, UINT start, UINT lines, LPVOID bits, LPBITMAPINFO info,
                               UINT usage);
WINGDIAPI BOOL WINAPI PatBlt(HDC context, int x, int y, int width, int height, DWORD operation);
WINGDIAPI BOOL WINAPI BitBlt(HDC context, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                             DWORD operation);
/// Where a picture shrinks, black overrules what is not.
WINGDIAPI BOOL WINAPI StretchBlt(HDC context, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                                 int sourceWidth, int sourceHeight, DWORD operation);

// --- fonts and text

#define LF_FACESIZE 32

typedef struct tagLOGFONTA {
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    CHAR lfFaceName[LF_FACESIZE];
} LOGFONTA, *PLOGFONTA, *NPLOGFONTA, *LPLOGFONTA;

typedef struct tagTEXTMETRICA {
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    BYTE tmFirstChar;
    BYTE tmLastChar;
    BYTE tmDefaultChar;
    BYTE tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
} TEXTMETRICA, *PTEXTMETRICA, *NPTEXTMETRICA, *LPTEXTMETRICA;

#define FW_DONTCARE 0
#define FW_NORMAL 400
#define FW_MEDIUM 500
#define FW_BOLD 700

#define ANSI_CHARSET 0
#define DEFAULT_CHARSET 1

#define FIXED_PITCH 1
#define VARIABLE_PITCH 2
#define FF_DONTCARE (0 << 4)
#define FF_ROMAN (1 << 4)
#define FF_SWISS (2 << 4)
#define FF_MODERN (3 << 4)
#define TMPF_FIXED_PITCH 0x01
#define TMPF_VECTOR 0x02
#define TMPF_TRUETYPE 0x04

#define ETO_OPAQUE 0x0002
#define ETO_CLIPPED 0x0004

/// Width, angles and quality say nothing here.
WINGDIAPI HFONT WINAPI CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                                   DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                                   DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, LPCSTR faceName);
WINGDIAPI HFONT WINAPI CreateFontIndirectA(const LOGFONTA* font);
WINGDIAPI BOOL WINAPI TextOutA(HDC context, int x, int y, LPCSTR text, int length);
WINGDIAPI BOOL WINAPI ExtTextOutA(HDC context, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length,
                                  const INT* widths);
WINGDIAPI BOOL WINAPI GetTextExtentPoint32A(HDC context, LPCSTR text, int length, LPSIZE size);
WINGDIAPI BOOL WINAPI GetTextMetricsA(HDC context, LPTEXTMETRICA metrics);
