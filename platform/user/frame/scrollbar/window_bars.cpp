// The scroll bars at a window's edges, and the calls that set and ask for what any scroll bar shows.
#include "user/frame/scrollbar/bar.h"

#include "user/frame/above.h"
#include "user/frame/nonclient.h"

namespace platform::user {
namespace {

/// @returns the state of a window's bar; null where there is none yet and none is to be made, or without memory. Lock held.
BarState* StateOf(Window* window, bool vertical, bool make) {
    if (!window->bars) {
        if (!make && !(window->style & (WS_HSCROLL | WS_VSCROLL))) {
            return nullptr;
        }
        if (!MemoryAllows([=] { window->bars = std::make_shared<WindowBars>(); })) {
            return nullptr;
        }
    }
    return vertical ? &window->bars->vertical : &window->bars->horizontal;
}

bool SameLayout(const BarLayout& a, const BarLayout& b) {
    return EqualRect(&a.whole, &b.whole) && EqualRect(&a.thumb, &b.thumb);
}

bool Knows(int bar) {
    return bar == SB_HORZ || bar == SB_VERT || bar == SB_CTL;
}

void ShowWindowBar(HWND handle, int bar, bool show) {
    const DWORD wanted = bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL;
    {
        const UserGuard guard(UserLock());
        Window* window = FindWindowObject(handle);
        if (!window) {
            return;
        }
        const DWORD style = show ? window->style | wanted : window->style & ~wanted;
        if (style == window->style) {
            return;
        }
        window->style = style;
    }
    SetWindowPos(handle, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

/// Changes a bar of a window as a SCROLLINFO says. @returns the position that it comes to.
int ChangeWindowBar(HWND handle, bool vertical, const SCROLLINFO& info, bool redraw) {
    const Bar bar{handle, vertical ? SB_VERT : SB_HORZ};
    BarLayout before;
    BarLayout after;
    BarState state;
    const bool shown = ReadBar(bar, &state, &before);
    bool disabled = state.disabled;
    {
        const UserGuard guard(UserLock());
        Window* window = FindWindowObject(handle);
        BarState* own = window ? StateOf(window, vertical, true) : nullptr;
        if (!own) {
            return 0;
        }
        disabled = own->disabled;
        ApplyInfo(*own, info);
        if (info.fMask & (SIF_RANGE | SIF_PAGE | SIF_DISABLENOSCROLL)) {
            // A bar that had nothing to scroll comes to life again.
            own->disabled = !CanScroll(*own) && (info.fMask & SIF_DISABLENOSCROLL || own->disabled);
        }
        state = *own;
    }
    if (info.fMask & (SIF_RANGE | SIF_PAGE | SIF_DISABLENOSCROLL)) {
        ShowWindowBar(handle, bar.kind, CanScroll(state) || (info.fMask & SIF_DISABLENOSCROLL));
    }
    BarState now;
    if (shown && redraw && ReadBar(bar, &now, &after) && (!SameLayout(before, after) || disabled != now.disabled)) {
        PaintBar(bar);
    }
    return state.position;
}

}  // namespace

RECT BarRect(const Window* window, bool vertical) {
    if (!(window->style & (vertical ? WS_VSCROLL : WS_HSCROLL)) || (window->style & WS_MINIMIZE)) {
        return {};
    }
    const RECT& client = window->clientRect;
    const RECT bar =
        vertical ? RECT{client.right, client.top, client.right + GetSystemMetrics(SM_CXVSCROLL), client.bottom}
                 : RECT{client.left, client.bottom, client.right, client.bottom + GetSystemMetrics(SM_CYHSCROLL)};
    // A frame too small for its bar does without.
    RECT within;
    return IntersectRect(&within, &bar, &window->windowRect) && EqualRect(&within, &bar) ? bar : RECT{};
}

bool ReadBar(const Bar& bar, BarState* state, BarLayout* layout) {
    if (bar.kind == SB_CTL) {
        const auto own = ControlBar(bar.window);
        RECT whole{};
        if (!own || !GetWindowRect(bar.window, &whole)) {
            return false;
        }
        *state = *own;
        *layout = LayOutBar(whole, (GetWindowLongA(bar.window, GWL_STYLE) & SBS_VERT) != 0, *state);
        return true;
    }
    const bool vertical = bar.kind == SB_VERT;
    const UserGuard guard(UserLock());
    Window* window = PeekWindow(bar.window);
    const BarState* own = window ? StateOf(window, vertical, false) : nullptr;
    if (!own) {
        return false;
    }
    const RECT whole = BarRect(window, vertical);
    if (IsRectEmpty(&whole)) {
        return false;
    }
    *state = *own;
    *layout = LayOutBar(whole, vertical, *state);
    return true;
}

namespace {

void Draw(const Bar& bar, HDC context, BarPart pressed) {
    BarState state;
    BarLayout layout;
    RECT corner{};
    if (!ReadBar(bar, &state, &layout) || !GetWindowRect(bar.window, &corner)) {
        return;
    }
    for (RECT* part : {&layout.whole, &layout.firstArrow, &layout.thumb, &layout.secondArrow}) {
        OffsetRect(part, -corner.left, -corner.top);
    }
    const HWND parent = bar.kind == SB_CTL ? GetParent(bar.window) : nullptr;
    const int saved = SaveDC(context);
    if (bar.kind == SB_CTL && (GetWindowLongA(bar.window, GWL_STYLE) & WS_DISABLED)) {
        state.disabled = true;
        layout.thumb = RECT{};
    }
    DrawBar(context, layout, state, pressed,
            AskForBrush(parent ? parent : bar.window, WM_CTLCOLORSCROLLBAR, context, bar.window));
    RestoreDC(context, saved);
}

}  // namespace

void PaintBar(const Bar& bar, BarPart pressed) {
    if (!IsWindowVisible(bar.window)) {
        return;
    }
    if (HDC context = GetWindowDC(bar.window)) {
        Draw(bar, context, pressed);
        ReleaseDC(bar.window, context);
    }
}

void DrawBarControl(HWND window, HDC context) {
    Draw({window, SB_CTL}, context, BarPart::None);
}

void DrawWindowBars(HWND handle, HDC context) {
    RECT across{};
    RECT down{};
    POINT corner{};
    {
        const UserGuard guard(UserLock());
        const Window* window = PeekWindow(handle);
        if (!window) {
            return;
        }
        across = BarRect(window, false);
        down = BarRect(window, true);
        corner = {window->windowRect.left, window->windowRect.top};
    }
    if (!IsRectEmpty(&across)) {
        Draw({handle, SB_HORZ}, context, BarPart::None);
    }
    if (!IsRectEmpty(&down)) {
        Draw({handle, SB_VERT}, context, BarPart::None);
    }
    if (!IsRectEmpty(&across) && !IsRectEmpty(&down)) {
        RECT box{down.left, across.top, down.right, across.bottom};
        OffsetRect(&box, -corner.x, -corner.y);
        FillRect(context, &box, GetSysColorBrush(COLOR_3DFACE));
    }
}

}  // namespace platform::user

using namespace platform::user;

int WINAPI SetScrollInfo(HWND window, int bar, LPCSCROLLINFO info, BOOL redraw) {
    if (!FindWindowObject(window)) {
        return 0;
    }
    if (!Knows(bar) || !info || info->cbSize != sizeof *info) {
        return Fail(ERROR_INVALID_PARAMETER, 0);
    }
    if (bar == SB_CTL) {
        return static_cast<int>(
            SendMessageA(window, SBM_SETSCROLLINFO, redraw != FALSE, reinterpret_cast<LPARAM>(info)));
    }
    return ChangeWindowBar(window, bar == SB_VERT, *info, redraw != FALSE);
}

BOOL WINAPI GetScrollInfo(HWND handle, int bar, LPSCROLLINFO info) {
    if (!FindWindowObject(handle)) {
        return FALSE;
    }
    if (!Knows(bar) || !info) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    if (bar == SB_CTL) {
        return SendMessageA(handle, SBM_GETSCROLLINFO, 0, reinterpret_cast<LPARAM>(info)) != 0;
    }
    const UserGuard guard(UserLock());
    Window* window = FindWindowObject(handle);
    const BarState* own = window ? StateOf(window, bar == SB_VERT, false) : nullptr;
    if (!own) {
        return Fail(ERROR_NO_SCROLLBARS, FALSE);
    }
    return FillInfo(*own, info) ? TRUE : Fail(ERROR_INVALID_PARAMETER, FALSE);
}

int WINAPI SetScrollPos(HWND handle, int bar, int position, BOOL redraw) {
    if (!FindWindowObject(handle)) {
        return 0;
    }
    if (bar == SB_CTL) {
        return static_cast<int>(SendMessageA(handle, SBM_SETPOS, static_cast<WPARAM>(position), redraw));
    }
    SCROLLINFO info{sizeof info, SIF_POS, 0, 0, 0, 0, 0};
    if (!GetScrollInfo(handle, bar, &info)) {
        return 0;
    }
    const int before = info.nPos;
    info.nPos = position;
    SetScrollInfo(handle, bar, &info, redraw);
    return before;
}

int WINAPI GetScrollPos(HWND handle, int bar) {
    if (bar == SB_CTL) {
        return FindWindowObject(handle) ? static_cast<int>(SendMessageA(handle, SBM_GETPOS, 0, 0)) : 0;
    }
    SCROLLINFO info{sizeof info, SIF_POS, 0, 0, 0, 0, 0};
    return GetScrollInfo(handle, bar, &info) ? info.nPos : 0;
}
