// Icons of static controls. A control takes the size of its icon, unless a style fixes its own.
#include "user/controls/static.h"
#include "user/resource/icons.h"

namespace platform::user {
namespace {

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

}  // namespace

LRESULT SetStaticIcon(HWND control, StaticData& data, HICON icon) {
    if (StaticKind(ControlStyle(control)) != SS_ICON)
        return 0;
    const HICON previous = data.icon;
    data.icon = icon;
    FitTo(control, IconSize(icon));
    RedrawStatic(control);
    return reinterpret_cast<LRESULT>(previous);
}

void LoadStaticIcon(HWND control, StaticData& data, HINSTANCE instance, LPCSTR name) {
    if (!name || !*name || StaticKind(ControlStyle(control)) != SS_ICON)
        return;
    if (const HICON icon = LoadIconA(instance, name))
        SetStaticIcon(control, data, icon);
}

}  // namespace platform::user
