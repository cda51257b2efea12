#include "gallery/capture.h"

namespace gallery {
namespace {

bool CopyFromScreen(HDC screen, const RECT& rect, HBITMAP bitmap) {
    HDC memory = CreateCompatibleDC(screen);
    if (memory == nullptr) {
        return false;
    }
    HGDIOBJ previous = SelectObject(memory, bitmap);
    const BOOL copied =
        BitBlt(memory, 0, 0, rect.right - rect.left, rect.bottom - rect.top, screen, rect.left, rect.top, SRCCOPY);
    SelectObject(memory, previous);
    DeleteDC(memory);
    return copied != FALSE;
}

bool ReadPixels(HDC screen, HBITMAP bitmap, Picture& picture) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width;
    info.bmiHeader.biHeight = -picture.height;  // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    const UINT rows = static_cast<UINT>(picture.height);
    return GetDIBits(screen, bitmap, 0, rows, picture.pixels.data(), &info, DIB_RGB_COLORS) == picture.height;
}

}  // namespace

std::optional<Picture> CaptureWindow(HWND window) {
    RECT rect;
    if (!GetWindowRect(window, &rect)) {
        return std::nullopt;
    }
    Picture picture{rect.right - rect.left, rect.bottom - rect.top, {}};
    if (picture.width <= 0 || picture.height <= 0) {
        return std::nullopt;
    }
    picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
    HDC screen = GetDC(nullptr);
    if (screen == nullptr) {
        return std::nullopt;
    }
    HBITMAP bitmap = CreateCompatibleBitmap(screen, picture.width, picture.height);
    const bool read = bitmap != nullptr && CopyFromScreen(screen, rect, bitmap) && ReadPixels(screen, bitmap, picture);
    if (bitmap != nullptr) {
        DeleteObject(bitmap);
    }
    ReleaseDC(nullptr, screen);
    if (!read) {
        return std::nullopt;
    }
    return picture;
}

}  // namespace gallery
