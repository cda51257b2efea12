// Bitmaps and icons of static controls. A control takes the size of its picture, unless a style fixes its own.
#include "user/controls/static.h"
#include "user/resource/icons.h"

namespace platform::user {
namespace {

bool IsIconKind(WPARAM kind) {
    return kind == IMAGE_ICON || kind == IMAGE_CURSOR;
}

void FitTo(HWND control, SIZE size) {
    const DWORD style = ControlStyle(control);
    if (size.cx <= 0 || size.cy <= 0 || (style & SS_CENTERIMAGE))
        return;
    RECT window{};
    RECT client{};
    GetWindowRect(control, &window);
    GetClientRect(control, &client);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&window), 2);
    const int width = size.cx + (window.right - window.left - client.right);
    const int height = size.cy + (window.bottom - window.top - client.bottom);
    SetWindowPos(control, nullptr, window.left, window.top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT SetBitmap(HWND control, StaticData& data, HBITMAP bitmap) {
    const HBITMAP previous = data.bitmap;
    data.bitmap = bitmap;
    BITMAP info{};
    if (bitmap && GetObjectA(bitmap, sizeof info, &info))
        FitTo(control, {info.bmWidth, info.bmHeight});
    RedrawStatic(control);
    return reinterpret_cast<LRESULT>(previous);
}

LRESULT SetIcon(HWND control, StaticData& data, HICON icon) {
    const HICON previous = data.icon;
    data.icon = icon;
    FitTo(control, IconSize(icon));
    RedrawStatic(control);
    return reinterpret_cast<LRESULT>(previous);
}

}  // namespace

LRESULT SetStaticImage(HWND control, StaticData& data, WPARAM kind, HANDLE image) {
    const DWORD own = StaticKind(ControlStyle(control));
    if (kind == IMAGE_BITMAP && own == SS_BITMAP)
        return SetBitmap(control, data, static_cast<HBITMAP>(image));
    if (IsIconKind(kind) && own == SS_ICON)
        return SetIcon(control, data, static_cast<HICON>(image));
    return 0;
}

LRESULT GetStaticImage(HWND control, const StaticData& data, WPARAM kind) {
    const DWORD own = StaticKind(ControlStyle(control));
    if (kind == IMAGE_BITMAP && own == SS_BITMAP)
        return reinterpret_cast<LRESULT>(data.bitmap);
    if (IsIconKind(kind) && own == SS_ICON)
        return reinterpret_cast<LRESULT>(data.icon);
    return 0;
}

void LoadStaticImage(HWND control, StaticData& data, HINSTANCE instance, LPCSTR name) {
    if (!name || !*name)
        return;
    switch (StaticKind(ControlStyle(control))) {
        case SS_BITMAP:
            data.ownBitmap = LoadBitmapA(instance, name);
            if (data.ownBitmap)
                SetBitmap(control, data, data.ownBitmap);
            break;
        case SS_ICON: {
            HICON icon = LoadIconA(instance, name);
            if (!icon)
                icon = LoadCursorA(instance, name);
            if (icon)
                SetIcon(control, data, icon);
            break;
        }
        default:
            break;
    }
}

}  // namespace platform::user
