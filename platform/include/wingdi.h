/// @file wingdi.h
/// Drawing: device contexts, pens, brushes, fonts, bitmaps, regions, raster operations and text.
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

typedef struct tagRGBTRIPLE {
    BYTE rgbtBlue;
    BYTE rgbtGreen;
    BYTE rgbtRed;
} RGBTRIPLE;

typedef struct tagBITMAP {
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    LPVOID bmBits;
} BITMAP, *PBITMAP, *NPBITMAP, *LPBITMAP;

typedef struct tagBITMAPCOREHEADER {
    DWORD bcSize;
    WORD bcWidth;
    WORD bcHeight;
    WORD bcPlanes;
    WORD bcBitCount;
} BITMAPCOREHEADER, *LPBITMAPCOREHEADER, *PBITMAPCOREHEADER;

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

#pragma pack(push, 2)
typedef struct tagBITMAPFILEHEADER {
    WORD bfType;
    DWORD bfSize;
    WORD bfReserved1;
    WORD bfReserved2;
    DWORD bfOffBits;
} BITMAPFILEHEADER, *LPBITMAPFILEHEADER, *PBITMAPFILEHEADER;
#pragma pack(pop)

typedef struct tagDIBSECTION {
    BITMAP dsBm;
    BITMAPINFOHEADER dsBmih;
    DWORD dsBitfields[3];
    HANDLE dshSection;
    DWORD dsOffset;
} DIBSECTION, *LPDIBSECTION, *PDIBSECTION;

#define BI_RGB 0
#define BI_BITFIELDS 3
#define DIB_RGB_COLORS 0
#define DIB_PAL_COLORS 1
#define CBM_INIT 4

// --- objects

#define OBJ_PEN 1
#define OBJ_BRUSH 2
#define OBJ_DC 3
#define OBJ_METADC 4
#define OBJ_PAL 5
#define OBJ_FONT 6
#define OBJ_BITMAP 7
#define OBJ_REGION 8
#define OBJ_METAFILE 9
#define OBJ_MEMDC 10
#define OBJ_EXTPEN 11

#define WHITE_BRUSH 0
#define LTGRAY_BRUSH 1
#define GRAY_BRUSH 2
#define DKGRAY_BRUSH 3
#define BLACK_BRUSH 4
#define NULL_BRUSH 5
#define HOLLOW_BRUSH NULL_BRUSH
#define WHITE_PEN 6
#define BLACK_PEN 7
#define NULL_PEN 8
#define OEM_FIXED_FONT 10
#define ANSI_FIXED_FONT 11
#define ANSI_VAR_FONT 12
#define SYSTEM_FONT 13
#define DEVICE_DEFAULT_FONT 14
#define SYSTEM_FIXED_FONT 16
#define DEFAULT_GUI_FONT 17

typedef struct tagLOGPEN {
    UINT lopnStyle;
    POINT lopnWidth;
    COLORREF lopnColor;
} LOGPEN, *PLOGPEN, *NPLOGPEN, *LPLOGPEN;

#define PS_SOLID 0
#define PS_DASH 1
#define PS_DOT 2
#define PS_DASHDOT 3
#define PS_DASHDOTDOT 4
#define PS_NULL 5
#define PS_INSIDEFRAME 6

typedef struct tagLOGBRUSH {
    UINT lbStyle;
    COLORREF lbColor;
    ULONG_PTR lbHatch;
} LOGBRUSH, *PLOGBRUSH, *NPLOGBRUSH, *LPLOGBRUSH;

#define BS_SOLID 0
#define BS_NULL 1
#define BS_HOLLOW BS_NULL
#define BS_HATCHED 2
#define BS_PATTERN 3

#define HS_HORIZONTAL 0
#define HS_VERTICAL 1
#define HS_FDIAGONAL 2
#define HS_BDIAGONAL 3
#define HS_CROSS 4
#define HS_DIAGCROSS 5

WINGDIAPI HGDIOBJ WINAPI GetStockObject(int index);
WINGDIAPI BOOL WINAPI DeleteObject(HGDIOBJ object);
WINGDIAPI int WINAPI GetObjectA(HANDLE object, int size, LPVOID buffer);
WINGDIAPI DWORD WINAPI GetObjectType(HGDIOBJ object);
WINGDIAPI HGDIOBJ WINAPI SelectObject(HDC context, HGDIOBJ object);
WINGDIAPI HGDIOBJ WINAPI GetCurrentObject(HDC context, UINT type);

WINGDIAPI HPEN WINAPI CreatePen(int style, int width, COLORREF colour);
WINGDIAPI HPEN WINAPI CreatePenIndirect(const LOGPEN* pen);
WINGDIAPI HBRUSH WINAPI CreateSolidBrush(COLORREF colour);
WINGDIAPI HBRUSH WINAPI CreateHatchBrush(int hatch, COLORREF colour);
WINGDIAPI HBRUSH WINAPI CreatePatternBrush(HBITMAP bitmap);
WINGDIAPI HBRUSH WINAPI CreateBrushIndirect(const LOGBRUSH* brush);
WINGDIAPI BOOL WINAPI SetBrushOrgEx(HDC context, int x, int y, LPPOINT previous);
WINGDIAPI BOOL WINAPI GetBrushOrgEx(HDC context, LPPOINT origin);
WINGDIAPI BOOL WINAPI UnrealizeObject(HGDIOBJ object);

// --- device contexts

typedef struct tagDEVMODEA DEVMODEA;

#define DRIVERVERSION 0
#define TECHNOLOGY 2
#define HORZSIZE 4
#define VERTSIZE 6
#define HORZRES 8
#define VERTRES 10
#define BITSPIXEL 12
#define PLANES 14
#define NUMBRUSHES 16
#define NUMPENS 18
#define NUMFONTS 22
#define NUMCOLORS 24
#define CURVECAPS 28
#define LINECAPS 30
#define POLYGONALCAPS 32
#define TEXTCAPS 34
#define CLIPCAPS 36
#define RASTERCAPS 38
#define ASPECTX 40
#define ASPECTY 42
#define ASPECTXY 44
#define LOGPIXELSX 88
#define LOGPIXELSY 90
#define SIZEPALETTE 104
#define NUMRESERVED 106
#define COLORRES 108
#define DESKTOPVERTRES 117
#define DESKTOPHORZRES 118
#define DT_RASDISPLAY 1
#define RC_BITBLT 1
#define RC_DI_BITMAP 0x0080
#define RC_DIBTODEV 0x0200
#define RC_STRETCHBLT 0x0800
#define RC_STRETCHDIB 0x2000
#define CP_RECTANGLE 1
#define CP_REGION 2

WINGDIAPI HDC WINAPI CreateDCA(LPCSTR driver, LPCSTR device, LPCSTR port, const DEVMODEA* mode);
WINGDIAPI HDC WINAPI CreateICA(LPCSTR driver, LPCSTR device, LPCSTR port, const DEVMODEA* mode);
WINGDIAPI HDC WINAPI CreateCompatibleDC(HDC context);
WINGDIAPI BOOL WINAPI DeleteDC(HDC context);
WINGDIAPI int WINAPI SaveDC(HDC context);
WINGDIAPI BOOL WINAPI RestoreDC(HDC context, int saved);
WINGDIAPI int WINAPI GetDeviceCaps(HDC context, int index);
WINGDIAPI BOOL WINAPI GetDCOrgEx(HDC context, LPPOINT origin);
WINGDIAPI BOOL WINAPI GdiFlush(void);

#define TRANSPARENT 1
#define OPAQUE 2
#define ALTERNATE 1
#define WINDING 2
#define MM_TEXT 1
#define ABSOLUTE 1
#define RELATIVE 2
#define BLACKONWHITE 1
#define WHITEONBLACK 2
#define COLORONCOLOR 3
#define HALFTONE 4
#define STRETCH_ANDSCANS BLACKONWHITE
#define STRETCH_ORSCANS WHITEONBLACK
#define STRETCH_DELETESCANS COLORONCOLOR
#define STRETCH_HALFTONE HALFTONE

#define R2_BLACK 1
#define R2_NOTMERGEPEN 2
#define R2_MASKNOTPEN 3
#define R2_NOTCOPYPEN 4
#define R2_MASKPENNOT 5
#define R2_NOT 6
#define R2_XORPEN 7
#define R2_NOTMASKPEN 8
#define R2_MASKPEN 9
#define R2_NOTXORPEN 10
#define R2_NOP 11
#define R2_MERGENOTPEN 12
#define R2_COPYPEN 13
#define R2_MERGEPENNOT 14
#define R2_MERGEPEN 15
#define R2_WHITE 16

WINGDIAPI COLORREF WINAPI SetBkColor(HDC context, COLORREF colour);
WINGDIAPI COLORREF WINAPI GetBkColor(HDC context);
WINGDIAPI int WINAPI SetBkMode(HDC context, int mode);
WINGDIAPI int WINAPI GetBkMode(HDC context);
WINGDIAPI COLORREF WINAPI SetTextColor(HDC context, COLORREF colour);
WINGDIAPI COLORREF WINAPI GetTextColor(HDC context);
WINGDIAPI int WINAPI SetROP2(HDC context, int mode);
WINGDIAPI int WINAPI GetROP2(HDC context);
WINGDIAPI int WINAPI SetStretchBltMode(HDC context, int mode);
WINGDIAPI int WINAPI GetStretchBltMode(HDC context);
WINGDIAPI int WINAPI SetPolyFillMode(HDC context, int mode);
WINGDIAPI int WINAPI GetPolyFillMode(HDC context);
WINGDIAPI COLORREF WINAPI GetNearestColor(HDC context, COLORREF colour);

/// MM_TEXT is the one mapping mode: one unit is one pixel, y grows downwards. Another mode is refused with 0.
WINGDIAPI int WINAPI SetMapMode(HDC context, int mode);
WINGDIAPI int WINAPI GetMapMode(HDC context);
WINGDIAPI BOOL WINAPI SetViewportOrgEx(HDC context, int x, int y, LPPOINT previous);
WINGDIAPI BOOL WINAPI GetViewportOrgEx(HDC context, LPPOINT origin);
WINGDIAPI BOOL WINAPI OffsetViewportOrgEx(HDC context, int x, int y, LPPOINT previous);
WINGDIAPI BOOL WINAPI SetWindowOrgEx(HDC context, int x, int y, LPPOINT previous);
WINGDIAPI BOOL WINAPI GetWindowOrgEx(HDC context, LPPOINT origin);
WINGDIAPI BOOL WINAPI OffsetWindowOrgEx(HDC context, int x, int y, LPPOINT previous);
WINGDIAPI BOOL WINAPI LPtoDP(HDC context, LPPOINT points, int count);
WINGDIAPI BOOL WINAPI DPtoLP(HDC context, LPPOINT points, int count);

// --- regions and clipping

#define ERROR 0
#define NULLREGION 1
#define SIMPLEREGION 2
#define COMPLEXREGION 3
#define RGN_ERROR ERROR

#define RGN_AND 1
#define RGN_OR 2
#define RGN_XOR 3
#define RGN_DIFF 4
#define RGN_COPY 5

WINGDIAPI HRGN WINAPI CreateRectRgn(int left, int top, int right, int bottom);
WINGDIAPI HRGN WINAPI CreateRectRgnIndirect(const RECT* rect);
WINGDIAPI HRGN WINAPI CreateEllipticRgn(int left, int top, int right, int bottom);
WINGDIAPI HRGN WINAPI CreateRoundRectRgn(int left, int top, int right, int bottom, int width, int height);
WINGDIAPI HRGN WINAPI CreatePolygonRgn(const POINT* points, int count, int mode);
WINGDIAPI int WINAPI CombineRgn(HRGN result, HRGN first, HRGN second, int mode);
WINGDIAPI int WINAPI OffsetRgn(HRGN region, int dx, int dy);
WINGDIAPI int WINAPI GetRgnBox(HRGN region, LPRECT box);
WINGDIAPI BOOL WINAPI PtInRegion(HRGN region, int x, int y);
WINGDIAPI BOOL WINAPI RectInRegion(HRGN region, const RECT* rect);
WINGDIAPI BOOL WINAPI EqualRgn(HRGN first, HRGN second);
WINGDIAPI BOOL WINAPI SetRectRgn(HRGN region, int left, int top, int right, int bottom);
WINGDIAPI BOOL WINAPI FillRgn(HDC context, HRGN region, HBRUSH brush);
WINGDIAPI BOOL WINAPI PaintRgn(HDC context, HRGN region);
WINGDIAPI BOOL WINAPI InvertRgn(HDC context, HRGN region);
WINGDIAPI BOOL WINAPI FrameRgn(HDC context, HRGN region, HBRUSH brush, int width, int height);

WINGDIAPI int WINAPI GetClipBox(HDC context, LPRECT box);
WINGDIAPI int WINAPI GetClipRgn(HDC context, HRGN region);
WINGDIAPI int WINAPI SelectClipRgn(HDC context, HRGN region);
WINGDIAPI int WINAPI ExtSelectClipRgn(HDC context, HRGN region, int mode);
WINGDIAPI int WINAPI IntersectClipRect(HDC context, int left, int top, int right, int bottom);
WINGDIAPI int WINAPI ExcludeClipRect(HDC context, int left, int top, int right, int bottom);
WINGDIAPI int WINAPI OffsetClipRgn(HDC context, int dx, int dy);
WINGDIAPI BOOL WINAPI PtVisible(HDC context, int x, int y);
WINGDIAPI BOOL WINAPI RectVisible(HDC context, const RECT* rect);

// --- lines, shapes, pixels

WINGDIAPI BOOL WINAPI MoveToEx(HDC context, int x, int y, LPPOINT previous);
WINGDIAPI BOOL WINAPI GetCurrentPositionEx(HDC context, LPPOINT point);
WINGDIAPI BOOL WINAPI LineTo(HDC context, int x, int y);
WINGDIAPI BOOL WINAPI Polyline(HDC context, const POINT* points, int count);
WINGDIAPI BOOL WINAPI PolylineTo(HDC context, const POINT* points, DWORD count);
WINGDIAPI BOOL WINAPI Polygon(HDC context, const POINT* points, int count);
WINGDIAPI BOOL WINAPI Rectangle(HDC context, int left, int top, int right, int bottom);
WINGDIAPI BOOL WINAPI RoundRect(HDC context, int left, int top, int right, int bottom, int width, int height);
WINGDIAPI BOOL WINAPI Ellipse(HDC context, int left, int top, int right, int bottom);
WINGDIAPI COLORREF WINAPI GetPixel(HDC context, int x, int y);
WINGDIAPI COLORREF WINAPI SetPixel(HDC context, int x, int y, COLORREF colour);
WINGDIAPI BOOL WINAPI SetPixelV(HDC context, int x, int y, COLORREF colour);

// --- bitmaps and raster operations

#define SRCCOPY 0x00CC0020
#define SRCPAINT 0x00EE0086
#define SRCAND 0x008800C6
#define SRCINVERT 0x00660046
#define SRCERASE 0x00440328
#define NOTSRCCOPY 0x00330008
#define NOTSRCERASE 0x001100A6
#define MERGECOPY 0x00C000CA
#define MERGEPAINT 0x00BB0226
#define PATCOPY 0x00F00021
#define PATPAINT 0x00FB0A09
#define PATINVERT 0x005A0049
#define DSTINVERT 0x00550009
#define BLACKNESS 0x00000042
#define WHITENESS 0x00FF0062
#define NOMIRRORBITMAP 0x80000000
#define CAPTUREBLT 0x40000000
#define MAKEROP4(fore, back) (DWORD)((((back) << 8) & 0xFF000000) | (fore))

WINGDIAPI HBITMAP WINAPI CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);
WINGDIAPI HBITMAP WINAPI CreateBitmapIndirect(const BITMAP* bitmap);
WINGDIAPI HBITMAP WINAPI CreateCompatibleBitmap(HDC context, int width, int height);
WINGDIAPI HBITMAP WINAPI CreateDIBSection(HDC context, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                                          DWORD offset);
WINGDIAPI HBITMAP WINAPI CreateDIBitmap(HDC context, const BITMAPINFOHEADER* header, DWORD init, const void* bits,
                                        const BITMAPINFO* info, UINT usage);
WINGDIAPI int WINAPI GetDIBits(HDC context, HBITMAP bitmap, UINT start, UINT lines, LPVOID bits, LPBITMAPINFO info,
                               UINT usage);
WINGDIAPI int WINAPI SetDIBits(HDC context, HBITMAP bitmap, UINT start, UINT lines, const void* bits,
                               const BITMAPINFO* info, UINT usage);
WINGDIAPI int WINAPI SetDIBitsToDevice(HDC context, int x, int y, DWORD width, DWORD height, int sourceX, int sourceY,
                                       UINT start, UINT lines, const void* bits, const BITMAPINFO* info, UINT usage);
WINGDIAPI int WINAPI StretchDIBits(HDC context, int x, int y, int width, int height, int sourceX, int sourceY,
                                   int sourceWidth, int sourceHeight, const void* bits, const BITMAPINFO* info,
                                   UINT usage, DWORD operation);
WINGDIAPI LONG WINAPI GetBitmapBits(HBITMAP bitmap, LONG size, LPVOID bits);
WINGDIAPI LONG WINAPI SetBitmapBits(HBITMAP bitmap, DWORD size, const void* bits);
WINGDIAPI BOOL WINAPI GetBitmapDimensionEx(HBITMAP bitmap, LPSIZE size);
WINGDIAPI BOOL WINAPI SetBitmapDimensionEx(HBITMAP bitmap, int width, int height, LPSIZE previous);
WINGDIAPI UINT WINAPI GetDIBColorTable(HDC context, UINT start, UINT count, RGBQUAD* colours);
WINGDIAPI UINT WINAPI SetDIBColorTable(HDC context, UINT start, UINT count, const RGBQUAD* colours);
WINGDIAPI BOOL WINAPI PatBlt(HDC context, int x, int y, int width, int height, DWORD operation);
WINGDIAPI BOOL WINAPI BitBlt(HDC context, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                             DWORD operation);
WINGDIAPI BOOL WINAPI StretchBlt(HDC context, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                                 int sourceWidth, int sourceHeight, DWORD operation);
WINGDIAPI BOOL WINAPI MaskBlt(HDC context, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                              HBITMAP mask, int maskX, int maskY, DWORD operation);

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
typedef LOGFONTA LOGFONT;
typedef LPLOGFONTA LPLOGFONT;

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
typedef TEXTMETRICA TEXTMETRIC;
typedef LPTEXTMETRICA LPTEXTMETRIC;

#define FW_DONTCARE 0
#define FW_THIN 100
#define FW_EXTRALIGHT 200
#define FW_LIGHT 300
#define FW_NORMAL 400
#define FW_REGULAR FW_NORMAL
#define FW_MEDIUM 500
#define FW_SEMIBOLD 600
#define FW_BOLD 700
#define FW_EXTRABOLD 800
#define FW_HEAVY 900
#define FW_BLACK FW_HEAVY

#define ANSI_CHARSET 0
#define DEFAULT_CHARSET 1
#define SYMBOL_CHARSET 2
#define SHIFTJIS_CHARSET 128
#define HANGUL_CHARSET 129
#define GB2312_CHARSET 134
#define CHINESEBIG5_CHARSET 136
#define GREEK_CHARSET 161
#define TURKISH_CHARSET 162
#define HEBREW_CHARSET 177
#define ARABIC_CHARSET 178
#define BALTIC_CHARSET 186
#define RUSSIAN_CHARSET 204
#define THAI_CHARSET 222
#define EASTEUROPE_CHARSET 238
#define OEM_CHARSET 255

#define OUT_DEFAULT_PRECIS 0
#define OUT_STRING_PRECIS 1
#define OUT_CHARACTER_PRECIS 2
#define OUT_TT_PRECIS 4
#define OUT_RASTER_PRECIS 6
#define CLIP_DEFAULT_PRECIS 0
#define CLIP_CHARACTER_PRECIS 1
#define CLIP_STROKE_PRECIS 2
#define DEFAULT_QUALITY 0
#define DRAFT_QUALITY 1
#define PROOF_QUALITY 2
#define NONANTIALIASED_QUALITY 3
#define ANTIALIASED_QUALITY 4
#define CLEARTYPE_QUALITY 5
#define DEFAULT_PITCH 0
#define FIXED_PITCH 1
#define VARIABLE_PITCH 2
#define FF_DONTCARE (0 << 4)
#define FF_ROMAN (1 << 4)
#define FF_SWISS (2 << 4)
#define FF_MODERN (3 << 4)
#define FF_SCRIPT (4 << 4)
#define FF_DECORATIVE (5 << 4)
#define TMPF_FIXED_PITCH 0x01
#define TMPF_VECTOR 0x02
#define TMPF_DEVICE 0x08
#define TMPF_TRUETYPE 0x04

#define TA_NOUPDATECP 0
#define TA_UPDATECP 1
#define TA_LEFT 0
#define TA_RIGHT 2
#define TA_CENTER 6
#define TA_TOP 0
#define TA_BOTTOM 8
#define TA_BASELINE 24
#define ETO_OPAQUE 0x0002
#define ETO_CLIPPED 0x0004
#define GDI_ERROR 0xFFFFFFFF

WINGDIAPI HFONT WINAPI CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                                   DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                                   DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, LPCSTR faceName);
WINGDIAPI HFONT WINAPI CreateFontIndirectA(const LOGFONTA* font);
WINGDIAPI BOOL WINAPI TextOutA(HDC context, int x, int y, LPCSTR text, int length);
WINGDIAPI BOOL WINAPI ExtTextOutA(HDC context, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length,
                                  const INT* widths);
WINGDIAPI BOOL WINAPI GetTextExtentPointA(HDC context, LPCSTR text, int length, LPSIZE size);
WINGDIAPI BOOL WINAPI GetTextExtentPoint32A(HDC context, LPCSTR text, int length, LPSIZE size);
WINGDIAPI BOOL WINAPI GetTextExtentExPointA(HDC context, LPCSTR text, int length, int maximum, LPINT fit, LPINT widths,
                                            LPSIZE size);
WINGDIAPI BOOL WINAPI GetTextMetricsA(HDC context, LPTEXTMETRICA metrics);
WINGDIAPI BOOL WINAPI GetCharWidthA(HDC context, UINT first, UINT last, LPINT widths);
WINGDIAPI BOOL WINAPI GetCharWidth32A(HDC context, UINT first, UINT last, LPINT widths);
WINGDIAPI int WINAPI GetTextFaceA(HDC context, int size, LPSTR name);
WINGDIAPI UINT WINAPI SetTextAlign(HDC context, UINT align);
WINGDIAPI UINT WINAPI GetTextAlign(HDC context);
WINGDIAPI int WINAPI SetTextCharacterExtra(HDC context, int extra);
WINGDIAPI int WINAPI GetTextCharacterExtra(HDC context);
WINGDIAPI BOOL WINAPI SetTextJustification(HDC context, int extra, int count);
