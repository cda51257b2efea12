// The "static" class: labels, frames, etched lines and icons.
#include "user/controls/static.h"

namespace platform::user {

void RedrawStatic(HWND control) {
    InvalidateRect(control, nullptr, TRUE);
    UpdateWindow(control);
}

namespace {

LRESULT OnCreate(HWND control, StaticData& data, const CREATESTRUCTA* create) {
    if (create)
        LoadStaticIcon(control, data, create->hInstance, create->lpszName);
    return 0;
}

LRESULT OnSetText(HWND control, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = DefWindowProcA(control, WM_SETTEXT, wParam, lParam);
    RedrawStatic(control);
    return result;
}

void SinkEdge(HWND control) {
    if (ControlStyle(control) & SS_SUNKEN)
        SetWindowLongA(control, GWL_EXSTYLE, GetWindowLongA(control, GWL_EXSTYLE) | WS_EX_STATICEDGE);
}

void Notify(HWND control, UINT code) {
    if (ControlStyle(control) & SS_NOTIFY)
        NotifyParent(control, code);
}

LRESULT HandleStatic(HWND window, StaticData& data, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE:
            SinkEdge(window);
            return DefWindowProcA(window, message, wParam, lParam);
        case WM_CREATE:
            return OnCreate(window, data, reinterpret_cast<const CREATESTRUCTA*>(lParam));
        case WM_GETDLGCODE:
            return DLGC_STATIC;
        case WM_NCHITTEST:
            return ControlStyle(window) & SS_NOTIFY ? HTCLIENT : HTTRANSPARENT;
        case WM_PAINT:
            return PaintWith(window, [&](HDC context, const RECT&) { PaintStatic(window, data, context); });
        case WM_ENABLE:
            Notify(window, wParam ? STN_ENABLE : STN_DISABLE);
            InvalidateRect(window, nullptr, TRUE);
            return 0;
        case WM_SETTEXT:
            return OnSetText(window, wParam, lParam);
        case WM_SETFONT:
            data.font = reinterpret_cast<HFONT>(wParam);
            if (LOWORD(lParam))
                RedrawStatic(window);
            return 0;
        case WM_LBUTTONDOWN:
            Notify(window, STN_CLICKED);
            return 0;
        case WM_LBUTTONDBLCLK:
            Notify(window, STN_DBLCLK);
            return 0;
        case STM_SETICON:
            return SetStaticIcon(window, data, reinterpret_cast<HICON>(wParam));
        case STM_GETICON:
            return reinterpret_cast<LRESULT>(StaticKind(ControlStyle(window)) == SS_ICON ? data.icon : nullptr);
        default:
            return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace

LRESULT CALLBACK StaticProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerAs<StaticData>(window, message, wParam, lParam, HandleStatic);
}

}  // namespace platform::user
