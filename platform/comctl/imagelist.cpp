// Image lists: making them, and what they hold.
#include "comctl/imagelist.h"
#include "base/fail.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>

namespace platform::comctl {

namespace {

constexpr DWORD kClearWhereSet = 0x00220326;  // destination AND NOT source

/// Where the background shows, out of a bitmap that says so, or of the background's colour.
bool WriteMasks(const ImageList& list, HDC pixels, HBITMAP mask, COLORREF ground) {
    const int width = list.count * list.cx;
    const gdi::MemoryContext target(list.masks);
    if (mask) {
        const gdi::MemoryContext given(mask);
        return target && given && BitBlt(target, 0, 0, width, list.cy, given, 0, 0, SRCCOPY);
    }
    // Into one bit a pixel: the source's background colour gives 1, any other 0.
    SetBkColor(pixels, ground == CLR_DEFAULT ? GetPixel(pixels, 0, 0) : ground);
    return target && BitBlt(target, 0, 0, width, list.cy, pixels, 0, 0, SRCCOPY);
}

bool WriteAll(const ImageList& list, HBITMAP image, HBITMAP mask, COLORREF ground) {
    const int width = list.count * list.cx;
    const gdi::MemoryContext pixels(image);
    const gdi::MemoryContext target(list.images);
    if (!pixels || !target || !BitBlt(target, 0, 0, width, list.cy, pixels, 0, 0, SRCCOPY)) {
        return false;
    }
    if (!list.masks) {
        return true;
    }
    if (!WriteMasks(list, pixels, mask, ground)) {
        return false;
    }
    const gdi::MemoryContext masks(list.masks);
    return masks && BitBlt(target, 0, 0, width, list.cy, masks, 0, 0, kClearWhereSet);
}

}  // namespace

ImageList::~ImageList() {
    DeleteObject(images);
    DeleteObject(masks);
}

ImageList* FindImageList(HIMAGELIST handle) {
    auto* list = base::Find<ImageList>(handle, base::HandleKind::ImageList);
    return list ? list : base::Fail<ImageList*>(ERROR_INVALID_HANDLE, nullptr);
}

HIMAGELIST MakeImageList(int cx, HBITMAP image, HBITMAP mask, COLORREF ground) {
    BITMAP size{};
    if (!GetObjectA(image, sizeof size, &size)) {
        return nullptr;
    }
    std::unique_ptr<ImageList> list(new (std::nothrow) ImageList);
    if (!list) {
        return base::Fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    list->cx = cx;
    list->cy = size.bmHeight;
    list->count = size.bmWidth / cx;
    const bool masked = mask || ground != CLR_NONE;
    const int width = std::max<int>(size.bmWidth, cx);
    const HDC screen = GetDC(nullptr);
    list->images = CreateCompatibleBitmap(screen, width, list->cy);
    ReleaseDC(nullptr, screen);
    list->masks = masked ? CreateBitmap(width, list->cy, 1, 1, nullptr) : nullptr;
    if (!list->images || (masked && !list->masks)) {
        return nullptr;
    }
    if (!WriteAll(*list, image, mask, ground)) {
        return base::Fail(ERROR_INVALID_PARAMETER, nullptr);
    }
    const std::uint32_t handle = base::InsertHandle(base::HandleKind::ImageList, list.get());
    if (!handle) {
        return base::Fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    static_cast<void>(list.release());
    return base::ToHandle<HIMAGELIST>(handle);
}

}  // namespace platform::comctl

using namespace platform::comctl;
namespace base = platform::base;

BOOL WINAPI ImageList_Destroy(HIMAGELIST handle) {
    const std::unique_ptr<ImageList> list(FindImageList(handle));
    if (!list) {
        return FALSE;
    }
    platform::base::RemoveHandle(platform::base::ToNumber(handle), platform::base::HandleKind::ImageList);
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

// A list that is loaded never grows: `grow` says nothing here.
HIMAGELIST WINAPI ImageList_LoadImageA(HINSTANCE instance, LPCSTR name, int cx, int, COLORREF mask, UINT type,
                                       UINT flags) {
    if (type != IMAGE_BITMAP || cx <= 0) {
        return base::Fail(ERROR_INVALID_PARAMETER, nullptr);
    }
    const auto bitmap = static_cast<HBITMAP>(LoadImageA(instance, name, type, 0, 0, flags));
    if (!bitmap) {
        return nullptr;
    }
    const HIMAGELIST handle = MakeImageList(cx, bitmap, nullptr, mask);
    DeleteObject(bitmap);
    return handle;
}
