/// @file imagelist.h
/// Image lists: pictures of one size, kept together, each with a mask that tells where the background shows.
#pragma once

typedef struct _IMAGELIST* HIMAGELIST;

#define CLR_NONE 0xFFFFFFFF
#define CLR_DEFAULT 0xFF000000

#define ILD_NORMAL 0x00000000
#define ILD_TRANSPARENT 0x00000001

WINCOMMCTRLAPI BOOL WINAPI ImageList_Destroy(HIMAGELIST list);
WINCOMMCTRLAPI int WINAPI ImageList_GetImageCount(HIMAGELIST list);
WINCOMMCTRLAPI BOOL WINAPI ImageList_GetIconSize(HIMAGELIST list, int* cx, int* cy);

/// Makes an image list out of a bitmap resource; its height is the pictures' own.
/// @param mask  CLR_NONE for no mask, CLR_DEFAULT for the colour of the bitmap's first pixel.
/// @param type  IMAGE_BITMAP.
/// @param flags  LR_DEFAULTCOLOR.
WINCOMMCTRLAPI HIMAGELIST WINAPI ImageList_LoadImageA(HINSTANCE instance, LPCSTR name, int cx, int grow, COLORREF mask,
                                                      UINT type, UINT flags);

/// Where a picture has a mask, what is there shows through; ILD_NORMAL and ILD_TRANSPARENT are alike.
WINCOMMCTRLAPI BOOL WINAPI ImageList_Draw(HIMAGELIST list, int index, HDC context, int x, int y, UINT style);
