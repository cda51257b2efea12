// Drawing icons: the ground is kept where the mask lets it through, then the picture is laid over it by exclusive or. Where
// the mask is clear the picture's black leaves the ground as it is; any other colour there inverts it.
#include "user/resource/icons.h"

#include <new>

#include "base/handle.h"

namespace platform::user {
namespace {

const Icon* FindIcon(HICON handle) {
    const Icon* icon = base::Find<Icon>(handle, base::HandleKind::Icon);
    if (!icon) {
        icon = base::Find<Icon>(handle, base::HandleKind::Cursor);
    }
    if (!icon) {
        SetLastError(ERROR_INVALID_ICON_HANDLE);
    }
    return icon;
}

BITMAPINFO HeaderOf(const IconPicture& picture) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width;
    info.bmiHeader.biHeight = -picture.height;  // the top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

/// White where the background shows, black elsewhere.
std::vector<std::uint32_t> MaskOf(const IconPicture& picture) {
    std::vector<std::uint32_t> mask;
    mask.reserve(picture.pixels.size());
    for (const std::uint32_t pixel : picture.pixels) {
        mask.push_back(pixel & kTransparent ? 0xFFFFFF : 0);
    }
    return mask;
}

std::vector<std::uint32_t> ColoursOf(const IconPicture& picture) {
    std::vector<std::uint32_t> colours = picture.pixels;
    for (std::uint32_t& pixel : colours) {
        pixel &= 0xFFFFFF;
    }
    return colours;
}

bool Put(HDC context, const RECT& place, const IconPicture& picture, const std::vector<std::uint32_t>& pixels,
         DWORD operation) {
    const BITMAPINFO info = HeaderOf(picture);
    return StretchDIBits(context, place.left, place.top, place.right - place.left, place.bottom - place.top, 0, 0,
                         picture.width, picture.height, pixels.data(), &info, DIB_RGB_COLORS, operation) > 0;
}

int SizeOr(int given, bool usual, int metric, int own) {
    return given ? given : usual ? GetSystemMetrics(metric) : own;
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI DrawIconEx(HDC context, int x, int y, HICON handle, int width, int height, UINT, HBRUSH brush,
                       UINT flags) try {
    const Icon* icon = FindIcon(handle);
    if (!icon) {
        return FALSE;
    }
    const IconPicture& picture = icon->picture;
    const bool usual = (flags & DI_DEFAULTSIZE) != 0;
    const RECT place{x, y, x + SizeOr(width, usual, SM_CXICON, picture.width),
                     y + SizeOr(height, usual, SM_CYICON, picture.height)};
    if (brush) {
        FillRect(context, &place, brush);
    }
    if (picture.pixels.empty()) {
        return TRUE;
    }
    bool done = true;
    if (flags & DI_MASK) {
        done = Put(context, place, picture, MaskOf(picture), flags & DI_IMAGE ? SRCAND : SRCCOPY);
    }
    if (flags & DI_IMAGE) {
        done = Put(context, place, picture, ColoursOf(picture), flags & DI_MASK ? SRCINVERT : SRCCOPY) && done;
    }
    return done;
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return FALSE;
}

BOOL WINAPI DrawIcon(HDC context, int x, int y, HICON icon) {
    return DrawIconEx(context, x, y, icon, 0, 0, 0, nullptr, DI_NORMAL | DI_DEFAULTSIZE);
}

BOOL WINAPI GetIconInfo(HICON handle, PICONINFO info) try {
    const Icon* icon = FindIcon(handle);
    if (!icon || !info) {
        return FALSE;
    }
    const IconPicture& picture = icon->picture;
    const int width = picture.width ? picture.width : GetSystemMetrics(SM_CXICON);
    const int height = picture.height ? picture.height : GetSystemMetrics(SM_CYICON);
    const std::vector<std::uint32_t> mask = MaskOf(picture);
    const std::vector<std::uint32_t> colours = ColoursOf(picture);
    HDC screen = GetDC(nullptr);
    info->fIcon = !icon->cursor;
    info->xHotspot = static_cast<DWORD>(picture.hotspot.x);
    info->yHotspot = static_cast<DWORD>(picture.hotspot.y);
    info->hbmMask = CreateBitmap(width, height, 1, 1, nullptr);
    info->hbmColor = CreateCompatibleBitmap(screen, width, height);
    bool done = info->hbmMask && info->hbmColor;
    if (done && !picture.pixels.empty()) {
        const BITMAPINFO header = HeaderOf(picture);
        const auto lines = static_cast<UINT>(height);
        done = SetDIBits(screen, info->hbmMask, 0, lines, mask.data(), &header, DIB_RGB_COLORS) &&
               SetDIBits(screen, info->hbmColor, 0, lines, colours.data(), &header, DIB_RGB_COLORS);
    }
    ReleaseDC(nullptr, screen);
    if (!done) {
        DeleteObject(info->hbmMask);
        DeleteObject(info->hbmColor);
        *info = {};
    }
    return done;
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return FALSE;
}
