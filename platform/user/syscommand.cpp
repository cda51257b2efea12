// What a person does to a frame: moving and sizing, by mouse or keyboard, and the buttons of the caption.
#include <algorithm>

#include "user/nonclient.h"
#include "user/queue.h"

namespace platform::user {
namespace {

constexpr int kKeyStep = 8;

DWORD StyleOf(HWND handle) {
    const Window* window = PeekWindow(handle);
    return window ? window->style : 0;
}

/// The rectangle as SetWindowPos wants it.
RECT PlaceOf(HWND handle) {
    RECT rect{};
    GetWindowRect(handle, &rect);
    const HWND parent = IsChildStyle(StyleOf(handle)) ? GetParent(handle) : nullptr;
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

void Place(HWND handle, const RECT& rect) {
    SetWindowPos(handle, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

bool Touches(int edge, std::initializer_list<int> codes) {
    return std::find(codes.begin(), codes.end(), edge) != codes.end();
}

/// The rectangle after its edge, or all of it, followed the pointer by an offset.
RECT Follow(const RECT& start, int part, int dx, int dy, const MINMAXINFO& limits) {
    RECT rect = start;
    if (part == HTCAPTION) {
        OffsetRect(&rect, dx, dy);
        return rect;
    }
    const int least = limits.ptMinTrackSize.x;
    const int leastHeight = limits.ptMinTrackSize.y;
    if (Touches(part, {HTLEFT, HTTOPLEFT, HTBOTTOMLEFT})) {
        rect.left = std::min(rect.left + dx, rect.right - least);
    }
    if (Touches(part, {HTRIGHT, HTTOPRIGHT, HTBOTTOMRIGHT})) {
        rect.right = std::max(rect.right + dx, rect.left + least);
    }
    if (Touches(part, {HTTOP, HTTOPLEFT, HTTOPRIGHT})) {
        rect.top = std::min(rect.top + dy, rect.bottom - leastHeight);
    }
    if (Touches(part, {HTBOTTOM, HTBOTTOMLEFT, HTBOTTOMRIGHT})) {
        rect.bottom = std::max(rect.bottom + dy, rect.top + leastHeight);
    }
    return rect;
}

WPARAM SizingEdge(int part) {
    switch (part) {
        case HTLEFT:
            return WMSZ_LEFT;
        case HTRIGHT:
            return WMSZ_RIGHT;
        case HTTOP:
            return WMSZ_TOP;
        case HTTOPLEFT:
            return WMSZ_TOPLEFT;
        case HTTOPRIGHT:
            return WMSZ_TOPRIGHT;
        case HTBOTTOM:
            return WMSZ_BOTTOM;
        case HTBOTTOMLEFT:
            return WMSZ_BOTTOMLEFT;
        default:
            return WMSZ_BOTTOMRIGHT;
    }
}

/// Which way an arrow key moves, or false for another key.
bool ArrowStep(WPARAM key, int* dx, int* dy) {
    *dx = key == VK_LEFT ? -kKeyStep : key == VK_RIGHT ? kKeyStep : 0;
    *dy = key == VK_UP ? -kKeyStep : key == VK_DOWN ? kKeyStep : 0;
    return *dx != 0 || *dy != 0;
}

/// Moves or sizes until the button is let go, or Enter or Escape is pressed. Escape puts everything back.
void MoveOrSize(HWND handle, int part, bool byMouse) {
    const RECT start = PlaceOf(handle);
    const MINMAXINFO limits = part == HTCAPTION ? MINMAXINFO{} : QueryMinMax(handle);
    POINT from{};
    GetCursorPos(&from);
    int dx = 0;
    int dy = 0;
    SetCapture(handle);
    SendMessageA(handle, WM_ENTERSIZEMOVE, 0, 0);
    for (MSG message; PeekWindow(handle) && GetMessageA(&message, nullptr, 0, 0);) {
        bool moved = false;
        if (message.message == WM_MOUSEMOVE && byMouse) {
            dx = message.pt.x - from.x;
            dy = message.pt.y - from.y;
            moved = true;
        } else if (message.message == WM_LBUTTONUP || (message.message == WM_KEYDOWN && message.wParam == VK_RETURN)) {
            break;
        } else if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
            Place(handle, start);
            break;
        } else if (int stepX, stepY; message.message == WM_KEYDOWN && ArrowStep(message.wParam, &stepX, &stepY)) {
            dx += stepX;
            dy += stepY;
            moved = true;
        } else if (message.message < WM_KEYFIRST || message.message > WM_MOUSELAST ||
                   (message.message > WM_KEYLAST && message.message < WM_MOUSEFIRST)) {
            DispatchMessageA(&message);
        }
        if (moved) {
            RECT rect = Follow(start, part, dx, dy, limits);
            SendMessageA(handle, part == HTCAPTION ? WM_MOVING : WM_SIZING, part == HTCAPTION ? 0 : SizingEdge(part),
                         reinterpret_cast<LPARAM>(&rect));
            Place(handle, rect);
        }
        if (byMouse && GetCapture() != handle) {
            break;
        }
    }
    if (GetCapture() == handle) {
        ReleaseCapture();
    }
    SendMessageA(handle, WM_EXITSIZEMOVE, 0, 0);
}

/// A button of the caption looks pressed while the pointer is held over it. @returns whether it was let go there.
bool TrackButton(HWND handle, int button) {
    bool inside = true;
    bool pressed = true;
    PaintFrame(handle, reinterpret_cast<HRGN>(1), button);
    SetCapture(handle);
    for (MSG message; PeekWindow(handle) && GetMessageA(&message, nullptr, 0, 0);) {
        if (message.message == WM_MOUSEMOVE || message.message == WM_LBUTTONUP) {
            inside = HitTest(handle, message.pt) == button;
            if (message.message == WM_LBUTTONUP) {
                break;
            }
        } else {
            DispatchMessageA(&message);
        }
        if (GetCapture() != handle) {
            inside = false;
            break;
        }
        if (inside != pressed) {
            pressed = inside;
            PaintFrame(handle, reinterpret_cast<HRGN>(1), pressed ? button : HTNOWHERE);
        }
    }
    if (GetCapture() == handle) {
        ReleaseCapture();
    }
    PaintFrame(handle, reinterpret_cast<HRGN>(1));
    return inside && PeekWindow(handle);
}

}  // namespace

void PressFrame(HWND handle, int hitCode, POINT point) {
    const LPARAM where = MAKELPARAM(point.x, point.y);
    switch (hitCode) {
        case HTCAPTION: {
            // A click on the caption of a child activates the window that it belongs to as any click does.
            const Window* window = PeekWindow(handle);
            if (window && !IsChildStyle(window->style)) {
                ActivateWindow(handle, true);
            }
            SendMessageA(handle, WM_SYSCOMMAND, SC_MOVE | HTCAPTION, where);
            break;
        }
        case HTCLOSE:
            if (TrackButton(handle, hitCode)) {
                SendMessageA(handle, WM_SYSCOMMAND, SC_CLOSE, where);
            }
            break;
        case HTMINBUTTON:
            if (TrackButton(handle, hitCode)) {
                SendMessageA(handle, WM_SYSCOMMAND, SC_MINIMIZE, where);
            }
            break;
        case HTMAXBUTTON:
            if (TrackButton(handle, hitCode)) {
                SendMessageA(handle, WM_SYSCOMMAND,
                             static_cast<WPARAM>(StyleOf(handle) & WS_MAXIMIZE ? SC_RESTORE : SC_MAXIMIZE), where);
            }
            break;
        default:
            if (hitCode >= HTSIZEFIRST && hitCode <= HTSIZELAST) {
                SendMessageA(handle, WM_SYSCOMMAND, SC_SIZE | static_cast<WPARAM>(hitCode - HTSIZEFIRST + 1), where);
            }
    }
}

LRESULT SystemCommand(HWND handle, WPARAM command, POINT) {
    const WPARAM detail = command & 0xF;
    const DWORD style = StyleOf(handle);
    switch (command & 0xFFF0) {
        case SC_MOVE:
            if (!(style & (WS_MAXIMIZE | WS_MINIMIZE))) {
                MoveOrSize(handle, HTCAPTION, detail != 0);
            }
            break;
        case SC_SIZE:
            if ((style & WS_THICKFRAME) && !(style & (WS_MAXIMIZE | WS_MINIMIZE))) {
                MoveOrSize(handle, detail ? HTSIZEFIRST + static_cast<int>(detail) - 1 : HTBOTTOMRIGHT, detail != 0);
            }
            break;
        case SC_CLOSE:
            SendMessageA(handle, WM_CLOSE, 0, 0);
            break;
        case SC_MINIMIZE:
            ShowWindow(handle, SW_MINIMIZE);
            break;
        case SC_MAXIMIZE:
            ShowWindow(handle, SW_MAXIMIZE);
            break;
        case SC_RESTORE:
            ShowWindow(handle, SW_RESTORE);
            break;
        default:
            break;
    }
    return 0;
}

}  // namespace platform::user
