// The "scrollbar" class: a scroll bar on its own.
#include "user/controls/controls.h"
#include "user/frame/above.h"
#include "user/frame/scrollbar/bar.h"

namespace platform::user {
namespace {

struct ScrollBarData : ControlData {
    std::shared_ptr<BarState> bar = std::make_shared<BarState>();
    bool keyHeld = false;

    ScrollBarData() {
        bar->high = 0;
    }
};

// --- the caret: a grey block that blinks on the thumb

RECT CaretPlace(HWND window) {
    BarState state;
    BarLayout layout;
    if (!ReadBar({window, SB_CTL}, &state, &layout) || IsRectEmpty(&layout.thumb))
        return {};
    RECT place = layout.thumb;
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    InflateRect(&place, -2, -2);
    return place;
}

void ShowFocus(HWND window) {
    if (GetFocus() != window)
        return;
    const RECT place = CaretPlace(window);
    if (IsRectEmpty(&place)) {
        DestroyCaret();
        return;
    }
    CreateCaret(window, reinterpret_cast<HBITMAP>(1), place.right - place.left, place.bottom - place.top);
    SetCaretPos(place.left, place.top);
    ShowCaret(window);
}

void Repaint(HWND window) {
    const bool focused = GetFocus() == window;
    if (focused)
        HideCaret(window);
    PaintBar({window, SB_CTL});
    if (focused)
        ShowFocus(window);
}

// --- input

void OnButtonDown(HWND window, LPARAM lParam) {
    POINT point = MousePoint(lParam);
    ClientToScreen(window, &point);
    if (ControlStyle(window) & WS_TABSTOP)
        SetFocus(window);
    TrackBar({window, SB_CTL}, point);
}

int CodeOfKey(WPARAM key) {
    switch (key) {
        case VK_UP:
        case VK_LEFT:
            return SB_LINEUP;
        case VK_DOWN:
        case VK_RIGHT:
            return SB_LINEDOWN;
        case VK_PRIOR:
            return SB_PAGEUP;
        case VK_NEXT:
            return SB_PAGEDOWN;
        case VK_HOME:
            return SB_TOP;
        case VK_END:
            return SB_BOTTOM;
        default:
            return -1;
    }
}

void OnKey(HWND window, ScrollBarData& data, WPARAM key, bool down) {
    const int code = CodeOfKey(key);
    if (code < 0 || (!down && !data.keyHeld))
        return;
    data.keyHeld = down;
    TellBar({window, SB_CTL}, down ? code : SB_ENDSCROLL);
}

// --- what it shows

LRESULT Change(HWND window, ScrollBarData& data, const SCROLLINFO& info, bool redraw) {
    ApplyInfo(*data.bar, info);
    const int position = data.bar->position;
    if (redraw)
        Repaint(window);
    return position;
}

LRESULT OnBarMessage(HWND window, ScrollBarData& data, UINT message, WPARAM wParam, LPARAM lParam) {
    BarState& bar = *data.bar;
    switch (message) {
        case SBM_SETPOS: {
            const int before = bar.position;
            const SCROLLINFO info{sizeof info, SIF_POS, 0, 0, 0, static_cast<int>(wParam), 0};
            Change(window, data, info, lParam != 0);
            return before;
        }
        case SBM_GETPOS:
            return bar.position;
        case SBM_SETSCROLLINFO: {
            const auto* info = reinterpret_cast<const SCROLLINFO*>(lParam);
            return info ? Change(window, data, *info, wParam != 0) : 0;
        }
        case SBM_GETSCROLLINFO:
            return FillInfo(bar, reinterpret_cast<SCROLLINFO*>(lParam));
        default:
            return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace

std::shared_ptr<BarState> ControlBar(HWND window) {
    const auto data = ControlOf<ScrollBarData>(window);
    return data ? data->bar : nullptr;
}

namespace {

LRESULT HandleScrollBar(HWND window, ScrollBarData& data, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS;
        case WM_PAINT:
            return PaintWith(window, [&](HDC context, const RECT&) { DrawBarControl(window, context); });
        case WM_ENABLE:
            data.bar->disabled = !wParam;
            Repaint(window);
            return 0;
        case WM_SETFOCUS:
            ShowFocus(window);
            return 0;
        case WM_KILLFOCUS:
            DestroyCaret();
            return 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnButtonDown(window, lParam);
            return 0;
        case WM_KEYDOWN:
        case WM_KEYUP:
            OnKey(window, data, wParam, message == WM_KEYDOWN);
            return DefWindowProcA(window, message, wParam, lParam);
        default:
            if (message >= SBM_SETPOS && message <= SBM_GETSCROLLINFO)
                return OnBarMessage(window, data, message, wParam, lParam);
            return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace

LRESULT CALLBACK ScrollBarProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerAs<ScrollBarData>(window, message, wParam, lParam, HandleScrollBar);
}

}  // namespace platform::user
