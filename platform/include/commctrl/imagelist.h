/// @file imagelist.h
/// Image lists: pictures of one size, kept together, each with a mask that tells where the background shows.
#pragma once

typedef struct _IMAGELIST* HIMAGELIST;

#define CLR_NONE 0xFFFFFFFF
#define CLR_DEFAULT 0xFF000000
#define CLR_HILIGHT CLR_DEFAULT

#define ILC_MASK 0x00000001
#define ILC_COLOR 0x00000000
#define ILC_COLORDDB 0x000000FE
#define ILC_COLOR4 0x00000004
#define ILC_COLOR8 0x00000008
#define ILC_COLOR24 0x00000018
#define ILC_COLOR32 0x00000020

#define ILD_NORMAL 0x00000000
#define ILD_TRANSPARENT 0x00000001
#define ILD_BLEND25 0x00000002
#define ILD_BLEND50 0x00000004
#define ILD_MASK 0x00000010
#define ILD_IMAGE 0x00000020
#define ILD_OVERLAYMASK 0x00000F00
#define ILD_SELECTED ILD_BLEND50
#define ILD_FOCUS ILD_BLEND25
#define ILD_BLEND ILD_BLEND50
#define INDEXTOOVERLAYMASK(i) ((i) << 8)

typedef struct _IMAGEINFO {
    HBITMAP hbmImage;
    HBITMAP hbmMask;
    int Unused1;
    int Unused2;
    RECT rcImage;
} IMAGEINFO, *LPIMAGEINFO;

/// @param cx, cy  the pictures' size in pixels, from 1.
/// @param initial  how many pictures to make room for; more are added by at least `grow` at a time.
WINCOMMCTRLAPI HIMAGELIST WINAPI ImageList_Create(int cx, int cy, UINT flags, int initial, int grow);
WINCOMMCTRLAPI BOOL WINAPI ImageList_Destroy(HIMAGELIST list);
WINCOMMCTRLAPI int WINAPI ImageList_GetImageCount(HIMAGELIST list);
WINCOMMCTRLAPI BOOL WINAPI ImageList_GetIconSize(HIMAGELIST list, int* cx, int* cy);
WINCOMMCTRLAPI BOOL WINAPI ImageList_GetImageInfo(HIMAGELIST list, int index, IMAGEINFO* info);

/// A bitmap holds as many pictures, side by side, as its width has room for. The index of the first one is returned, -1
/// on failure. The bitmaps stay the caller's.
WINCOMMCTRLAPI int WINAPI ImageList_Add(HIMAGELIST list, HBITMAP image, HBITMAP mask);
WINCOMMCTRLAPI int WINAPI ImageList_AddMasked(HIMAGELIST list, HBITMAP image, COLORREF mask);
WINCOMMCTRLAPI BOOL WINAPI ImageList_Replace(HIMAGELIST list, int index, HBITMAP image, HBITMAP mask);
/// @param index  -1 appends. @returns the picture's index, -1 on failure.
WINCOMMCTRLAPI int WINAPI ImageList_ReplaceIcon(HIMAGELIST list, int index, HICON icon);
/// @param index  -1 removes all.
WINCOMMCTRLAPI BOOL WINAPI ImageList_Remove(HIMAGELIST list, int index);
#define ImageList_AddIcon(list, icon) ImageList_ReplaceIcon(list, -1, icon)
#define ImageList_RemoveAll(list) ImageList_Remove(list, -1)

/// Makes an image list out of a bitmap resource; its height is the pictures' own.
/// @param mask  CLR_NONE for no mask, CLR_DEFAULT for the colour of the bitmap's first pixel.
/// @param type  IMAGE_BITMAP.
/// @param flags  LR_ bits, as LoadImageA takes them.
WINCOMMCTRLAPI HIMAGELIST WINAPI ImageList_LoadImageA(HINSTANCE instance, LPCSTR name, int cx, int grow, COLORREF mask,
                                                      UINT type, UINT flags);
#define ImageList_LoadImage ImageList_LoadImageA
#define ImageList_LoadBitmap(instance, name, cx, grow, mask) \
    ImageList_LoadImageA(instance, name, cx, grow, mask, IMAGE_BITMAP, 0)

/// CLR_NONE, the colour of a new list, draws masked pictures on what is there. @returns the colour until now.
WINCOMMCTRLAPI COLORREF WINAPI ImageList_SetBkColor(HIMAGELIST list, COLORREF colour);
WINCOMMCTRLAPI COLORREF WINAPI ImageList_GetBkColor(HIMAGELIST list);
/// @param overlay  1 to 15: the number that INDEXTOOVERLAYMASK takes.
WINCOMMCTRLAPI BOOL WINAPI ImageList_SetOverlayImage(HIMAGELIST list, int index, int overlay);

WINCOMMCTRLAPI BOOL WINAPI ImageList_Draw(HIMAGELIST list, int index, HDC context, int x, int y, UINT style);
/// @param dx, dy  how much of the picture is drawn; 0 stands for all.
/// @param background  CLR_NONE, CLR_DEFAULT (the list's) or a colour.
/// @param foreground  what ILD_BLEND25 and ILD_BLEND50 mix in: CLR_NONE (what is there), CLR_DEFAULT (the highlight) or
/// a colour.
WINCOMMCTRLAPI BOOL WINAPI ImageList_DrawEx(HIMAGELIST list, int index, HDC context, int x, int y, int dx, int dy,
                                            COLORREF background, COLORREF foreground, UINT style);
