// Drawing pictures of an image list.
#include <algorithm>

#include "comctl/imagelist.h"

namespace platform::comctl {

namespace {

/// One picture, or a part of it, and where it goes.
struct Place {
    HDC context;
    int x;
    int y;
    int width;
    int height;
    int row;  ///< of the picture in the list's bitmaps
};

/// Black for 0 and white for 1, so that a mask can be laid on any context; the context's own colours come back.
class MaskColours {
  public:
    explicit MaskColours(HDC context)
        : context_(context),
          text_(SetTextColor(context, RGB(0, 0, 0))),
          back_(SetBkColor(context, RGB(255, 255, 255))) {}
    ~MaskColours() {
        SetTextColor(context_, text_);
        SetBkColor(context_, back_);
    }
    MaskColours(const MaskColours&) = delete;
    MaskColours& operator=(const MaskColours&) = delete;

  private:
    HDC context_;
    COLORREF text_;
    COLORREF back_;
};

bool Put(const Place& place, HDC source, DWORD operation) {
    return BitBlt(place.context, place.x, place.y, place.width, place.height, source, 0, place.row, operation) != FALSE;
}

void Fill(const Place& place, COLORREF colour) {
    const RECT rect{place.x, place.y, place.x + place.width, place.y + place.height};
    const HBRUSH brush = CreateSolidBrush(colour);
    FillRect(place.context, &rect, brush);
    DeleteObject(brush);
}

COLORREF Mixed(COLORREF picture, COLORREF colour, int quarters) {
    const auto mix = [quarters](int a, int b) { return (a * (4 - quarters) + b * quarters) / 4; };
    return RGB(mix(GetRValue(picture), GetRValue(colour)), mix(GetGValue(picture), GetGValue(colour)),
               mix(GetBValue(picture), GetBValue(colour)));
}

/// Mixes a colour into the pixels of the picture, wherever the mask does not let the background through.
void Blend(const Place& place, HDC images, HDC masks, COLORREF foreground, int quarters) {
    for (int y = 0; y < place.height; ++y) {
        for (int x = 0; x < place.width; ++x) {
            const COLORREF there =
                foreground == CLR_NONE ? GetPixel(place.context, place.x + x, place.y + y) : foreground;
            if (there != CLR_INVALID && GetPixel(masks, x, place.row + y) == RGB(0, 0, 0)) {
                SetPixelV(place.context, place.x + x, place.y + y,
                          Mixed(GetPixel(images, x, place.row + y), there, quarters));
            }
        }
    }
}

bool LayOver(const Place& place, HDC images, HDC masks) {
    const MaskColours colours(place.context);
    return Put(place, masks, SRCAND) && Put(place, images, SRCPAINT);
}

bool DrawMasked(const ImageList& list, const Place& place, COLORREF background, COLORREF foreground, UINT style) {
    const Memory images(list.images);
    const Memory masks(list.masks);
    if (!images || !masks) {
        return false;
    }
    if (style & ILD_MASK) {
        return Put(place, masks, SRCCOPY);
    }
    if (style & ILD_IMAGE) {
        return Put(place, images, SRCCOPY);
    }
    if (background != CLR_NONE && !(style & ILD_TRANSPARENT)) {
        Fill(place, background);
    }
    const int quarters = style & ILD_BLEND50 ? 2 : style & ILD_BLEND25 ? 1 : 0;
    if (quarters && foreground == CLR_NONE) {
        Blend(place, images, masks, CLR_NONE, quarters);
        return true;
    }
    if (!LayOver(place, images, masks)) {
        return false;
    }
    if (quarters) {
        Blend(place, images, masks, foreground == CLR_DEFAULT ? GetSysColor(COLOR_HIGHLIGHT) : foreground, quarters);
    }
    return true;
}

bool DrawPlain(const ImageList& list, const Place& place) {
    const Memory images(list.images);
    return images && Put(place, images, SRCCOPY);
}

}  // namespace

}  // namespace platform::comctl

using namespace platform::comctl;

BOOL WINAPI ImageList_DrawEx(HIMAGELIST handle, int index, HDC context, int x, int y, int dx, int dy,
                             COLORREF background, COLORREF foreground, UINT style) {
    const ImageList* list = FindImageList(handle);
    if (!list || !list->Has(index) || !context) {
        return FALSE;
    }
    Place place{
        context,         x, y, dx > 0 ? std::min(dx, list->cx) : list->cx, dy > 0 ? std::min(dy, list->cy) : list->cy,
        index * list->cy};
    const COLORREF ground = background == CLR_DEFAULT ? list->background : background;
    bool done = list->Masked() ? DrawMasked(*list, place, ground, foreground, style) : DrawPlain(*list, place);
    if (const UINT overlay = (style & ILD_OVERLAYMASK) >> 8; overlay && done) {
        const int over = list->overlays[overlay - 1];
        if (list->Has(over)) {
            place.row = over * list->cy;
            done = list->Masked()
                       ? DrawMasked(*list, place, CLR_NONE, foreground, (style & ~ILD_OVERLAYMASK) | ILD_TRANSPARENT)
                       : DrawPlain(*list, place);
        }
    }
    return done;
}

BOOL WINAPI ImageList_Draw(HIMAGELIST handle, int index, HDC context, int x, int y, UINT style) {
    return ImageList_DrawEx(handle, index, context, x, y, 0, 0, CLR_DEFAULT, CLR_DEFAULT, style);
}
