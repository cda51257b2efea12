// Image lists: making them, and what they hold.
#include "comctl/imagelist.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

#include "gdi/surface/surface.h"

namespace platform::comctl {

namespace {

constexpr DWORD kClearWhereSet = 0x00220326;  // destination AND NOT source

int BitsOf(UINT flags) {
    switch (flags & ILC_COLORDDB) {
        case ILC_COLOR4:
            return 4;
        case ILC_COLOR8:
            return 8;
        case ILC_COLOR24:
            return 24;
        case ILC_COLOR32:
            return 32;
        default:
            return 0;  // as the screen has
    }
}

/// @returns a bitmap for so many pictures, all black; null, with the error set, when it cannot be had.
HBITMAP NewImages(const ImageList& list, int capacity) {
    const std::int64_t height = std::int64_t{list.cy} * capacity;
    if (height > INT32_MAX) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    const int bits = BitsOf(list.flags);
    if (bits == 0) {
        const HDC screen = GetDC(nullptr);
        const HBITMAP bitmap = CreateCompatibleBitmap(screen, list.cx, static_cast<int>(height));
        ReleaseDC(nullptr, screen);
        return bitmap;
    }
    struct {
        BITMAPINFOHEADER header;
        std::uint32_t colours[256];
    } info{};
    info.header.biSize = sizeof info.header;
    info.header.biWidth = list.cx;
    info.header.biHeight = -static_cast<LONG>(height);
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(bits);
    if (bits <= 8) {
        std::copy_n(gdi::DefaultPalette(bits), 1 << bits, info.colours);
    }
    void* unused = nullptr;
    return CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS, &unused, nullptr, 0);
}

HBITMAP NewMasks(const ImageList& list, int capacity) {
    return CreateBitmap(list.cx, list.cy * capacity, 1, 1, nullptr);
}

bool CopyAll(const ImageList& list, HBITMAP to, HBITMAP from) {
    const Memory target(to);
    const Memory source(from);
    return target && source && BitBlt(target, 0, 0, list.cx, list.cy * list.count, source, 0, 0, SRCCOPY);
}

/// Makes room for that many pictures; the list is as it was when there is none.
bool Reserve(ImageList& list, std::int64_t needed) {
    if (list.images && needed <= list.capacity) {
        return true;
    }
    const std::int64_t wanted = std::max<std::int64_t>(needed, std::int64_t{list.capacity} + list.grow);
    if (wanted > INT32_MAX) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return false;
    }
    const int capacity = static_cast<int>(wanted);
    const HBITMAP images = NewImages(list, capacity);
    const HBITMAP masks = images && list.Masked() ? NewMasks(list, capacity) : nullptr;
    const bool made = images && (masks || !list.Masked());
    if (!made ||
        (list.count > 0 && (!CopyAll(list, images, list.images) || (masks && !CopyAll(list, masks, list.masks))))) {
        DeleteObject(images);
        DeleteObject(masks);
        return false;
    }
    DeleteObject(list.images);
    DeleteObject(list.masks);
    list.images = images;
    list.masks = masks;
    list.capacity = capacity;
    return true;
}

/// Where a picture's pixels come from: a bitmap that holds it, and what is known of its mask.
struct Source {
    HDC image;
    HDC mask;         ///< null for none
    COLORREF colour;  ///< of the background if there is no mask; CLR_NONE for none
};

/// Writes one picture. The list has room for it.
void Write(const ImageList& list, int index, const Source& source, int x) {
    const Memory images(list.images);
    const int y = index * list.cy;
    BitBlt(images, 0, y, list.cx, list.cy, source.image, x, 0, SRCCOPY);
    if (!list.Masked()) {
        return;
    }
    const Memory masks(list.masks);
    if (source.mask) {
        BitBlt(masks, 0, y, list.cx, list.cy, source.mask, x, 0, SRCCOPY);
    } else if (source.colour == CLR_NONE) {
        PatBlt(masks, 0, y, list.cx, list.cy, BLACKNESS);
    } else {
        // Into one bit a pixel: the source's background colour gives 1, any other 0.
        const COLORREF former = SetBkColor(source.image, source.colour);
        BitBlt(masks, 0, y, list.cx, list.cy, source.image, x, 0, SRCCOPY);
        SetBkColor(source.image, former);
    }
    BitBlt(images, 0, y, list.cx, list.cy, masks, 0, y, kClearWhereSet);
}

int AddAll(ImageList& list, HBITMAP image, HBITMAP mask, COLORREF colour) {
    BITMAP size{};
    if (!GetObjectA(image, sizeof size, &size)) {
        return -1;
    }
    const Memory pixels(image);
    const std::unique_ptr<Memory> masks(mask && list.Masked() ? new (std::nothrow) Memory(mask) : nullptr);
    if (!pixels || (masks && !*masks)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return -1;
    }
    const int added = size.bmWidth / list.cx;
    if (!Reserve(list, std::int64_t{list.count} + added)) {
        return -1;
    }
    const Source source{pixels, masks ? static_cast<HDC>(*masks) : nullptr,
                        colour == CLR_DEFAULT ? GetPixel(pixels, 0, 0) : colour};
    const int first = list.count;
    for (int i = 0; i < added; ++i) {
        Write(list, first + i, source, i * list.cx);
    }
    list.count += added;
    return first;
}

bool WriteIcon(const ImageList& list, int index, HICON icon) {
    const Memory images(list.images);
    const int y = index * list.cy;
    PatBlt(images, 0, y, list.cx, list.cy, BLACKNESS);
    bool done =
        images && DrawIconEx(images, 0, y, icon, list.cx, list.cy, 0, nullptr, list.Masked() ? DI_IMAGE : DI_NORMAL);
    if (done && list.Masked()) {
        const Memory masks(list.masks);
        done = masks && DrawIconEx(masks, 0, y, icon, list.cx, list.cy, 0, nullptr, DI_MASK) &&
               BitBlt(images, 0, y, list.cx, list.cy, masks, 0, y, kClearWhereSet);
    }
    return done;
}

/// Moves the pictures behind one up by a place.
void CloseGap(const ImageList& list, HBITMAP bitmap, int index) {
    const Memory memory(bitmap);
    BitBlt(memory, 0, index * list.cy, list.cx, (list.count - index - 1) * list.cy, memory, 0, (index + 1) * list.cy,
           SRCCOPY);
}

}  // namespace

ImageList::~ImageList() {
    DeleteObject(images);
    DeleteObject(masks);
}

ImageList* FindImageList(HIMAGELIST handle) {
    auto* list = base::Find<ImageList>(handle, base::HandleKind::ImageList);
    if (!list) {
        SetLastError(ERROR_INVALID_HANDLE);
    }
    return list;
}

}  // namespace platform::comctl

using namespace platform::comctl;
using platform::base::HandleKind;

HIMAGELIST WINAPI ImageList_Create(int cx, int cy, UINT flags, int initial, int grow) {
    if (cx <= 0 || cy <= 0 || initial < 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    std::unique_ptr<ImageList> list(new (std::nothrow) ImageList);
    if (!list) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    list->cx = cx;
    list->cy = cy;
    list->flags = flags;
    list->grow = std::max(grow, 1);
    list->overlays.fill(-1);
    if (!Reserve(*list, std::max(initial, 1))) {
        return nullptr;
    }
    const std::uint32_t handle = platform::base::InsertHandle(HandleKind::ImageList, list.get());
    if (!handle) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    static_cast<void>(list.release());
    return platform::base::ToHandle<HIMAGELIST>(handle);
}

BOOL WINAPI ImageList_Destroy(HIMAGELIST handle) {
    const std::unique_ptr<ImageList> list(FindImageList(handle));
    if (!list) {
        return FALSE;
    }
    platform::base::RemoveHandle(platform::base::ToNumber(handle), HandleKind::ImageList);
    return TRUE;
}

int WINAPI ImageList_GetImageCount(HIMAGELIST handle) {
    const ImageList* list = FindImageList(handle);
    return list ? list->count : 0;
}

BOOL WINAPI ImageList_GetIconSize(HIMAGELIST handle, int* cx, int* cy) {
    const ImageList* list = FindImageList(handle);
    if (!list || !cx || !cy) {
        return FALSE;
    }
    *cx = list->cx;
    *cy = list->cy;
    return TRUE;
}

BOOL WINAPI ImageList_GetImageInfo(HIMAGELIST handle, int index, IMAGEINFO* info) {
    const ImageList* list = FindImageList(handle);
    if (!list || !list->Has(index) || !info) {
        return FALSE;
    }
    *info = {list->images, list->masks, 0, 0, {0, index * list->cy, list->cx, (index + 1) * list->cy}};
    return TRUE;
}

int WINAPI ImageList_Add(HIMAGELIST handle, HBITMAP image, HBITMAP mask) {
    ImageList* list = FindImageList(handle);
    return list ? AddAll(*list, image, mask, CLR_NONE) : -1;
}

int WINAPI ImageList_AddMasked(HIMAGELIST handle, HBITMAP image, COLORREF mask) {
    ImageList* list = FindImageList(handle);
    return list ? AddAll(*list, image, nullptr, mask) : -1;
}

BOOL WINAPI ImageList_Replace(HIMAGELIST handle, int index, HBITMAP image, HBITMAP mask) {
    const ImageList* list = FindImageList(handle);
    if (!list || !list->Has(index)) {
        return FALSE;
    }
    const Memory pixels(image);
    const std::unique_ptr<Memory> masks(mask && list->Masked() ? new (std::nothrow) Memory(mask) : nullptr);
    if (!pixels || (masks && !*masks)) {
        return FALSE;
    }
    Write(*list, index, {pixels, masks ? static_cast<HDC>(*masks) : nullptr, CLR_NONE}, 0);
    return TRUE;
}

int WINAPI ImageList_ReplaceIcon(HIMAGELIST handle, int index, HICON icon) {
    ImageList* list = FindImageList(handle);
    if (!list || (index != -1 && !list->Has(index))) {
        return -1;
    }
    if (index != -1) {
        return WriteIcon(*list, index, icon) ? index : -1;
    }
    if (!Reserve(*list, std::int64_t{list->count} + 1) || !WriteIcon(*list, list->count, icon)) {
        return -1;
    }
    return list->count++;
}

BOOL WINAPI ImageList_Remove(HIMAGELIST handle, int index) {
    ImageList* list = FindImageList(handle);
    if (!list || (index != -1 && !list->Has(index))) {
        return FALSE;
    }
    if (index == -1) {
        list->count = 0;
        return TRUE;
    }
    CloseGap(*list, list->images, index);
    if (list->Masked()) {
        CloseGap(*list, list->masks, index);
    }
    --list->count;
    return TRUE;
}

HIMAGELIST WINAPI ImageList_LoadImageA(HINSTANCE instance, LPCSTR name, int cx, int grow, COLORREF mask, UINT type,
                                       UINT flags) {
    if (type != IMAGE_BITMAP || cx <= 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const auto bitmap = static_cast<HBITMAP>(LoadImageA(instance, name, type, 0, 0, flags));
    BITMAP size{};
    if (!bitmap || !GetObjectA(bitmap, sizeof size, &size)) {
        return nullptr;
    }
    HIMAGELIST handle =
        ImageList_Create(cx, size.bmHeight, mask == CLR_NONE ? ILC_COLOR : ILC_MASK, size.bmWidth / cx, grow);
    if (handle && ImageList_AddMasked(handle, bitmap, mask) < 0) {
        ImageList_Destroy(handle);
        handle = nullptr;
    }
    DeleteObject(bitmap);
    return handle;
}

COLORREF WINAPI ImageList_SetBkColor(HIMAGELIST handle, COLORREF colour) {
    ImageList* list = FindImageList(handle);
    return list ? std::exchange(list->background, colour) : CLR_NONE;
}

COLORREF WINAPI ImageList_GetBkColor(HIMAGELIST handle) {
    const ImageList* list = FindImageList(handle);
    return list ? list->background : CLR_NONE;
}

BOOL WINAPI ImageList_SetOverlayImage(HIMAGELIST handle, int index, int overlay) {
    ImageList* list = FindImageList(handle);
    if (!list || !list->Has(index) || overlay < 1 || overlay > ImageList::kOverlays) {
        return FALSE;
    }
    list->overlays[static_cast<std::size_t>(overlay - 1)] = index;
    return TRUE;
}
