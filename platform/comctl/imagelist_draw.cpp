// Drawing pictures of an image list.
#include "comctl/imagelist.h"

namespace platform::comctl {

namespace {

/// One picture, and where it goes.
struct Place {
    HDC context;
    int x;
    int y;
    int column;  ///< of the picture in the list's bitmaps
};

bool Put(const ImageList& list, const Place& place, HDC source, DWORD operation) {
    return BitBlt(place.context, place.x, place.y, list.cx, list.cy, source, place.column, 0, operation) != FALSE;
}

bool Draw(const ImageList& list, const Place& place) {
    const gdi::MemoryContext images(list.images);
    if (!list.masks) {
        return images && Put(list, place, images, SRCCOPY);
    }
    const gdi::MemoryContext masks(list.masks);
    if (!images || !masks) {
        return false;
    }
    // Black for 0 and white for 1, so that a mask can be laid on any context; the context's own colours come back.
    const COLORREF text = SetTextColor(place.context, RGB(0, 0, 0));
    const COLORREF back = SetBkColor(place.context, RGB(255, 255, 255));
    const bool drawn = Put(list, place, masks, SRCAND) && Put(list, place, images, SRCPAINT);
    SetTextColor(place.context, text);
    SetBkColor(place.context, back);
    return drawn;
}

COLORREF Mixed(COLORREF a, COLORREF b) {
    return RGB((GetRValue(a) + GetRValue(b)) / 2, (GetGValue(a) + GetGValue(b)) / 2, (GetBValue(a) + GetBValue(b)) / 2);
}

}  // namespace

bool DrawBlended(HIMAGELIST handle, int index, HDC context, int x, int y, COLORREF colour) {
    const ImageList* list = FindImageList(handle);
    if (!list || !list->Has(index) || !context) {
        return false;
    }
    const int column = index * list->cx;
    if (!Draw(*list, {context, x, y, column})) {
        return false;
    }
    // Wherever the mask does not let the background through.
    const gdi::MemoryContext images(list->images);
    const gdi::MemoryContext masks(list->masks);
    for (int row = 0; row < list->cy; ++row) {
        for (int i = 0; i < list->cx; ++i) {
            if (GetPixel(masks, column + i, row) == RGB(0, 0, 0)) {
                SetPixel(context, x + i, y + row, Mixed(GetPixel(images, column + i, row), colour));
            }
        }
    }
    return true;
}

}  // namespace platform::comctl

using namespace platform::comctl;

BOOL WINAPI ImageList_Draw(HIMAGELIST handle, int index, HDC context, int x, int y, UINT) {
    const ImageList* list = FindImageList(handle);
    return list && list->Has(index) && context && Draw(*list, {context, x, y, index * list->cx});
}
