/// @file imagelist.h
/// An image list from inside.
#pragma once

#include <commctrl.h>

#include "base/handle.h"
#include "gdi/context/device_context.h"

namespace platform::comctl {

/// The pictures lie side by side in two bitmaps. Where the mask is set the picture is black, so that it can be laid over
/// any background: AND with the mask, OR with the picture.
struct ImageList {
    ImageList() = default;
    ImageList(const ImageList&) = delete;
    ImageList& operator=(const ImageList&) = delete;
    ~ImageList();

    bool Has(int index) const {
        return index >= 0 && index < count;
    }

    int cx = 0;
    int cy = 0;
    int count = 0;
    HBITMAP images = nullptr;
    HBITMAP masks = nullptr;  ///< one bit a pixel, set where the background shows; null without a mask
};

/// @returns null, with ERROR_INVALID_HANDLE set, when the handle is stale or foreign.
ImageList* FindImageList(HIMAGELIST handle);

/// Makes a list of the pictures, `cx` pixels wide, that a bitmap holds side by side. The bitmaps stay the caller's.
/// @param mask  a bitmap of the same size with one bit a pixel; null for none.
/// @param ground  without such a bitmap: the colour of the background, CLR_DEFAULT for that of the first pixel, CLR_NONE
/// for none.
HIMAGELIST MakeImageList(int cx, HBITMAP image, HBITMAP mask, COLORREF ground);

/// Draws a picture with every pixel of it half mixed with a colour.
bool DrawBlended(HIMAGELIST list, int index, HDC context, int x, int y, COLORREF colour);

}  // namespace platform::comctl
