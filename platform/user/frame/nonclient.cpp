// The frame around a client area: how wide it is, and what part of it a point lies on.
#include "user/frame/nonclient.h"

#include "user/frame/scrollbar/bar.h"
#include "user/input/input.h"
#include "user/resource/icons.h"
#include "user/window/above.h"
#include "user/window/position.h"

namespace platform::user {

int FrameWidth(DWORD style, DWORD exStyle) {
    if ((exStyle & (WS_EX_STATICEDGE | WS_EX_DLGMODALFRAME)) == WS_EX_STATICEDGE &&
        !(style & (WS_THICKFRAME | WS_DLGFRAME))) {
        return 1 + ((style & WS_BORDER) ? 1 : 0);
    }
    int width = 0;
    if ((exStyle & WS_EX_DLGMODALFRAME) || (style & (WS_THICKFRAME | WS_DLGFRAME))) {
        width += GetSystemMetrics(SM_CXEDGE);
    }
    if (style & WS_THICKFRAME) {
        width += GetSystemMetrics(SM_CXSIZEFRAME) - GetSystemMetrics(SM_CXFIXEDFRAME);
    }
    if ((style & (WS_BORDER | WS_DLGFRAME)) || (exStyle & WS_EX_DLGMODALFRAME)) {
        width += GetSystemMetrics(SM_CXBORDER);
    }
    return width;
}

int CaptionHeight(DWORD style, DWORD exStyle) {
    if ((style & WS_CAPTION) != WS_CAPTION) {
        return 0;
    }
    return GetSystemMetrics(exStyle & WS_EX_TOOLWINDOW ? SM_CYSMCAPTION : SM_CYCAPTION);
}

namespace {

int ClientEdge(DWORD exStyle) {
    return exStyle & WS_EX_CLIENTEDGE ? GetSystemMetrics(SM_CXEDGE) : 0;
}

}  // namespace

RECT ClientFromWindow(const Window* window, const RECT& windowRect) {
    if (window->style & WS_MINIMIZE) {
        return {windowRect.left, windowRect.top, windowRect.left, windowRect.top};
    }
    const int inset = FrameWidth(window->style, window->exStyle) + ClientEdge(window->exStyle);
    RECT client = windowRect;
    InflateRect(&client, -inset, -inset);
    client.top += CaptionHeight(window->style, window->exStyle);
    // Scroll bars stand where there is room for them.
    const int barWidth = GetSystemMetrics(SM_CXVSCROLL);
    const int barHeight = GetSystemMetrics(SM_CYHSCROLL);
    if ((window->style & WS_VSCROLL) && client.right - client.left >= barWidth) {
        client.right -= barWidth;
    }
    if ((window->style & WS_HSCROLL) && client.bottom - client.top >= barHeight) {
        client.bottom -= barHeight;
    }
    // A window too small for its frame has no client area, at the place where it would begin.
    client.right = std::max(client.right, client.left);
    client.bottom = std::max(client.bottom, client.top);
    return client;
}

HICON CaptionIcon(const Window* window) {
    if (!(window->style & WS_SYSMENU) || (window->exStyle & (WS_EX_TOOLWINDOW | WS_EX_DLGMODALFRAME))) {
        return nullptr;
    }
    const HICON own = window->smallIcon ? window->smallIcon : window->bigIcon;
    return own ? own : window->windowClass->icon;
}

CaptionParts LayOutCaption(const Window* window, RECT windowRect) {
    CaptionParts parts{};
    const int frame = FrameWidth(window->style, window->exStyle);
    InflateRect(&windowRect, -frame, -frame);
    parts.height = CaptionHeight(window->style, window->exStyle);
    if (parts.height == 0) {
        return parts;
    }
    parts.bar = {windowRect.left, windowRect.top, windowRect.right, windowRect.top + parts.height - 1};
    if (!(window->style & WS_SYSMENU)) {
        return parts;
    }
    const int height = parts.height - 1;
    if (CaptionIcon(window)) {
        const int size = GetSystemMetrics(SM_CXSMICON);
        const int top = parts.bar.top + (height - size) / 2;
        parts.icon = {parts.bar.left + 2, top, parts.bar.left + 2 + size, top + size};
    }
    const RECT close{parts.bar.right - 2 - (height - 2), parts.bar.top + 2, parts.bar.right - 2, parts.bar.bottom - 2};
    parts.close = close;
    if (!(window->exStyle & WS_EX_TOOLWINDOW) && (window->style & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX))) {
        const int width = close.right - close.left;
        parts.maximize = {close.left - 2 - width, close.top, close.left - 2, close.bottom};
        parts.minimize = {parts.maximize.left - width, close.top, parts.maximize.left, close.bottom};
    } else if (!(window->exStyle & WS_EX_TOOLWINDOW) && (window->exStyle & WS_EX_CONTEXTHELP)) {
        // The question mark stands only where there are no boxes to minimise and maximise.
        const int width = close.right - close.left;
        parts.help = {close.left - 2 - width, close.top, close.left - 2, close.bottom};
    }
    return parts;
}

namespace {

/// Sizing corners reach as far along an edge as a caption is high.
LRESULT HitSizingFrame(const RECT& rect, POINT point) {
    const int corner = GetSystemMetrics(SM_CYCAPTION) + GetSystemMetrics(SM_CYSIZEFRAME);
    const int column = point.x < rect.left + corner ? 0 : point.x >= rect.right - corner ? 2 : 1;
    const int row = point.y < rect.top + corner ? 0 : point.y >= rect.bottom - corner ? 2 : 1;
    static constexpr LRESULT kCodes[3][3] = {
        {HTTOPLEFT, HTTOP, HTTOPRIGHT}, {HTLEFT, HTBORDER, HTRIGHT}, {HTBOTTOMLEFT, HTBOTTOM, HTBOTTOMRIGHT}};
    return kCodes[row][column];
}

}  // namespace

LRESULT HitTest(HWND handle, POINT point) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    if (!window || !PtInRect(&window->windowRect, point)) {
        return HTNOWHERE;
    }
    if (PtInRect(&window->clientRect, point)) {
        return HTCLIENT;
    }
    const int frame = FrameWidth(window->style, window->exStyle);
    RECT inner = window->windowRect;
    InflateRect(&inner, -frame, -frame);
    if (!PtInRect(&inner, point)) {
        const bool sizable = (window->style & WS_THICKFRAME) && !(window->style & (WS_MAXIMIZE | WS_MINIMIZE));
        return sizable ? HitSizingFrame(window->windowRect, point) : HTBORDER;
    }
    const CaptionParts parts = LayOutCaption(window, window->windowRect);
    if (parts.height && point.y < inner.top + parts.height) {
        if (PtInRect(&parts.icon, point)) {
            return HTSYSMENU;
        }
        if (PtInRect(&parts.close, point)) {
            return HTCLOSE;
        }
        if (PtInRect(&parts.maximize, point)) {
            return window->style & WS_MAXIMIZEBOX ? HTMAXBUTTON : HTCAPTION;
        }
        if (PtInRect(&parts.minimize, point)) {
            return window->style & WS_MINIMIZEBOX ? HTMINBUTTON : HTCAPTION;
        }
        return PtInRect(&parts.help, point) ? HTHELP : HTCAPTION;
    }
    const RECT down = BarRect(window, true);
    const RECT across = BarRect(window, false);
    if (PtInRect(&down, point)) {
        return HTVSCROLL;
    }
    if (PtInRect(&across, point)) {
        return HTHSCROLL;
    }
    return HTBORDER;
}

LPCSTR SizingCursor(int hitCode) {
    switch (hitCode) {
        case HTLEFT:
        case HTRIGHT:
            return IDC_SIZEWE;
        case HTTOP:
        case HTBOTTOM:
            return IDC_SIZENS;
        case HTTOPLEFT:
        case HTBOTTOMRIGHT:
            return IDC_SIZENWSE;
        case HTTOPRIGHT:
        case HTBOTTOMLEFT:
            return IDC_SIZENESW;
        default:
            return IDC_ARROW;
    }
}

bool SetHitCursor(HWND hit, int hitCode, UINT mouseMessage) {
    if (hitCode == HTERROR && IsPress(mouseMessage)) {
        // A press on a disabled window is meant for the box that stands before it.
        SetForegroundWindow(WindowToActivate(hit));
    }
    if (hitCode == HTCLIENT) {
        HCURSOR cursor = nullptr;
        {
            const UserGuard guard(UserLock());
            const Window* window = PeekWindow(hit);
            cursor = window ? window->windowClass->cursor : nullptr;
        }
        if (!cursor) {
            return false;
        }
        SetCursor(cursor);
        return true;
    }
    SetCursor(LoadCursorA(nullptr, SizingCursor(hitCode)));
    return true;
}

constexpr POINT kLeastCaptioned{112, 27};

MINMAXINFO QueryMinMax(HWND handle) {
    MINMAXINFO limits{};
    {
        const UserGuard guard(UserLock());
        const Window* window = PeekWindow(handle);
        if (!window) {
            return limits;
        }
        const int frame = FrameWidth(window->style, window->exStyle);
        const RECT ground = Ground(window);
        limits.ptMaxSize = {ground.right - ground.left + 2 * frame, ground.bottom - ground.top + 2 * frame};
        limits.ptMaxPosition = {-frame, -frame};
        // The least size has room for a caption with its buttons; a mere frame needs its own edges only.
        const bool plain = !(window->style & (WS_BORDER | WS_DLGFRAME));
        limits.ptMinTrackSize = plain ? POINT{2 * frame, 2 * frame} : kLeastCaptioned;
    }
    limits.ptMaxTrackSize = {GetSystemMetrics(SM_CXSCREEN) + 12, GetSystemMetrics(SM_CYSCREEN) + 12};
    SendMessageA(handle, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    const POINT least = limits.ptMinTrackSize;
    POINT& most = limits.ptMaxTrackSize;
    most = {std::max(least.x, most.x), std::max(least.y, most.y)};
    return limits;
}

void OnFrameDoubleClick(const Window* window, int hitCode, LPARAM where) {
    const HWND handle = window->handle;
    const DWORD style = window->style;
    if (hitCode == HTCAPTION && (style & WS_MINIMIZE)) {
        SendMessageA(handle, WM_SYSCOMMAND, SC_RESTORE, where);
    } else if (hitCode == HTCAPTION && (style & WS_MAXIMIZEBOX)) {
        SendMessageA(handle, WM_SYSCOMMAND, static_cast<WPARAM>(style & WS_MAXIMIZE ? SC_RESTORE : SC_MAXIMIZE), where);
    } else if (hitCode == HTSYSMENU) {
        SendMessageA(handle, WM_SYSCOMMAND, SC_CLOSE, where);
    } else {
        PressFrame(handle, hitCode, MousePoint(where));
    }
}

}  // namespace platform::user

BOOL WINAPI AdjustWindowRectEx(LPRECT rect, DWORD style, BOOL menu, DWORD exStyle) {
    using namespace platform::user;
    const int inset = FrameWidth(style, exStyle) + ClientEdge(exStyle);
    InflateRect(rect, inset, inset);
    rect->top -= CaptionHeight(style, exStyle) + (menu ? GetSystemMetrics(SM_CYMENU) : 0);
    return TRUE;
}
