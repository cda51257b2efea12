// What a person does to a frame: moving and sizing, by mouse or keyboard, and the buttons of the caption.
#include <algorithm>
#include <utility>

#include "user/frame/above.h"
#include "user/frame/nonclient.h"
#include "user/frame/scrollbar/bar.h"
#include "user/input/input.h"
#include "user/model/thread.h"
#include "user/window/above.h"

namespace platform::user {
namespace {

constexpr int kKeyStep = 8;
constexpr int kReach = 32;  ///< how much of a caption stays in sight

DWORD LiveStyle(HWND handle) {
    const Window* window = PeekWindow(handle);
    return window ? window->style : 0;
}

void Place(HWND handle, RECT rect) {
    MapWindowPoints(nullptr, ParentOf(handle), reinterpret_cast<POINT*>(&rect), 2);
    SetWindowPos(handle, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

bool Touches(int edge, std::initializer_list<int> codes) {
    return std::find(codes.begin(), codes.end(), edge) != codes.end();
}

/// Where a window can be seen: on the screen, a child in its parent's client area.
RECT SightOf(const Window* window) {
    return IsChildStyle(window->style) && window->parent ? window->parent->clientRect : Desktop()->windowRect;
}

/// What a window can be moved by: its caption between the icon and the buttons.
RECT GripOf(const Window* window, const RECT& rect) {
    const CaptionParts parts = LayOutCaption(window, rect);
    RECT grip = parts.bar;
    grip.left = parts.icon.right > parts.icon.left ? parts.icon.right : grip.left;
    for (const RECT& button : {parts.help, parts.minimize, parts.maximize, parts.close}) {
        grip.right = button.right > button.left ? std::min(grip.right, button.left) : grip.right;
    }
    return grip.left < grip.right ? grip : parts.bar;
}

/// Moves a rectangle for a window back to where the caption can be got hold of.
void KeepInReach(HWND handle, RECT* rect) {
    const UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    if (!window || CaptionHeight(window->style, window->exStyle) == 0) {
        return;
    }
    const RECT sight = SightOf(window);
    const RECT grip = GripOf(window, *rect);
    const LONG reach = std::min<LONG>(kReach, grip.right - grip.left);
    LONG dx = std::min<LONG>(0, sight.right - reach - grip.left);
    dx = std::max(dx, sight.left + reach - grip.right);
    LONG dy = std::min<LONG>(0, sight.bottom - grip.bottom);
    dy = std::max(dy, sight.top - rect->top);
    OffsetRect(rect, dx, dy);
}

/// An edge follows the pointer no further than the pointer can be seen.
POINT InSight(HWND handle, POINT point) {
    const UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    const RECT sight = window ? SightOf(window) : RECT{point.x, point.y, point.x + 1, point.y + 1};
    return {std::clamp(point.x, sight.left, std::max(sight.left, sight.right - 1)),
            std::clamp(point.y, sight.top, std::max(sight.top, sight.bottom - 1))};
}

/// The rectangle after its edge, or all of it, followed the pointer by an offset.
RECT Follow(const RECT& start, int part, int dx, int dy, const MINMAXINFO& limits) {
    RECT rect = start;
    if (part == HTCAPTION) {
        OffsetRect(&rect, dx, dy);
        return rect;
    }
    const POINT least = limits.ptMinTrackSize;
    const POINT most = limits.ptMaxTrackSize;
    if (Touches(part, {HTLEFT, HTTOPLEFT, HTBOTTOMLEFT})) {
        rect.left = std::clamp(rect.left + dx, rect.right - most.x, rect.right - least.x);
    }
    if (Touches(part, {HTRIGHT, HTTOPRIGHT, HTBOTTOMRIGHT})) {
        rect.right = std::clamp(rect.right + dx, rect.left + least.x, rect.left + most.x);
    }
    if (Touches(part, {HTTOP, HTTOPLEFT, HTTOPRIGHT})) {
        rect.top = std::clamp(rect.top + dy, rect.bottom - most.y, rect.bottom - least.y);
    }
    if (Touches(part, {HTBOTTOM, HTBOTTOMLEFT, HTBOTTOMRIGHT})) {
        rect.bottom = std::clamp(rect.bottom + dy, rect.top + least.y, rect.top + most.y);
    }
    return rect;
}

/// Which way an arrow key moves, or false for another key.
bool ArrowStep(WPARAM key, int* dx, int* dy) {
    *dx = key == VK_LEFT ? -kKeyStep : key == VK_RIGHT ? kKeyStep : 0;
    *dy = key == VK_UP ? -kKeyStep : key == VK_DOWN ? kKeyStep : 0;
    return *dx != 0 || *dy != 0;
}

/// Sizing by the keyboard: the first arrow takes hold of an edge, one across it of the corner there. @returns the part that
/// is held then; the same one as before when the arrow moves it.
int Grasp(int part, int dx, int dy) {
    switch (part) {
        case HTNOWHERE:
            return dx < 0 ? HTLEFT : dx > 0 ? HTRIGHT : dy < 0 ? HTTOP : HTBOTTOM;
        case HTLEFT:
            return dy == 0 ? part : dy < 0 ? HTTOPLEFT : HTBOTTOMLEFT;
        case HTRIGHT:
            return dy == 0 ? part : dy < 0 ? HTTOPRIGHT : HTBOTTOMRIGHT;
        case HTTOP:
            return dx == 0 ? part : dx < 0 ? HTTOPLEFT : HTTOPRIGHT;
        case HTBOTTOM:
            return dx == 0 ? part : dx < 0 ? HTBOTTOMLEFT : HTBOTTOMRIGHT;
        default:
            return part;
    }
}

/// The pointer that shows what is being moved by the keyboard.
void ShowHold(int part) {
    const LPCSTR shape = part == HTCAPTION || part == HTNOWHERE ? IDC_SIZEALL : SizingCursor(part);
    SetCursor(LoadCursorA(nullptr, shape));
}

/// One round of moving or sizing: where the window was, what of it follows, and how far by now.
struct MoveDrag {
    HWND window;
    int part;
    RECT start{};
    MINMAXINFO limits{};
    int dx = 0;
    int dy = 0;

    void Apply() const {
        RECT rect = Follow(start, part, dx, dy, limits);
        if (part == HTCAPTION) {
            KeepInReach(window, &rect);
        }
        Place(window, rect);
    }

    void MoveTo(POINT from, POINT to) {
        to = part == HTCAPTION ? to : InSight(window, to);
        if (dx != to.x - from.x || dy != to.y - from.y) {
            dx = to.x - from.x;
            dy = to.y - from.y;
            Apply();
        }
    }

    /// An arrow key, or the mouse between two of them, goes on from where the last one has led.
    void GoOn(int stepX, int stepY) {
        dx += stepX;
        dy += stepY;
        Apply();
        RECT now;
        if (GetWindowRect(window, &now)) {
            dx = now.left != start.left ? now.left - start.left : now.right - start.right;
            dy = now.top != start.top ? now.top - start.top : now.bottom - start.bottom;
        }
    }

    void Step(int stepX, int stepY) {
        const int held = part == HTCAPTION ? part : Grasp(part, stepX, stepY);
        if (held == part) {
            GoOn(stepX, stepY);
        } else {
            part = held;
            ShowHold(part);
        }
    }

    void MoveOn(POINT from, POINT to) {
        if (part != HTNOWHERE && (to.x != from.x || to.y != from.y)) {
            GoOn(to.x - from.x, to.y - from.y);
        }
    }
};

/// The key that a message tells of going down, with Alt or without; 0 for other messages.
WPARAM KeyOf(const MSG& message) {
    return message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN ? message.wParam : 0;
}

/// Moves or sizes until the button is let go, or Enter or Escape is pressed. Escape puts everything back. By the keyboard, the
/// mouse helps and a click ends it.
void MoveOrSize(HWND handle, int part, bool byMouse, POINT from) {
    MoveDrag drag{handle, part};
    GetWindowRect(handle, &drag.start);
    if (part != HTCAPTION) {
        drag.limits = QueryMinMax(handle);
    }
    HCURSOR cursor = nullptr;
    if (!byMouse) {
        GetCursorPos(&from);
        cursor = SetCursor(nullptr);
        ShowHold(part);
    }
    SetCapture(handle);
    for (MSG message; NextMessage(handle, &message);) {
        int stepX = 0;
        int stepY = 0;
        if (byMouse && (message.message == WM_MOUSEMOVE || message.message == WM_LBUTTONUP)) {
            drag.MoveTo(from, message.pt);
        } else if (message.message == WM_MOUSEMOVE) {
            drag.MoveOn(std::exchange(from, message.pt), message.pt);
        } else if (KeyOf(message) == VK_ESCAPE) {
            Place(handle, drag.start);
        } else if (ArrowStep(KeyOf(message), &stepX, &stepY)) {
            drag.Step(stepX, stepY);
        } else if (!IsInput(message.message)) {
            DispatchMessageA(&message);
        }
        const bool over = message.message == WM_LBUTTONUP || KeyOf(message) == VK_RETURN || KeyOf(message) == VK_ESCAPE;
        if (over || GetCapture() != handle) {
            break;
        }
    }
    LetGoOfMouse(handle);
    if (!byMouse) {
        SetCursor(cursor);
    }
    SendMessageA(handle, WM_EXITSIZEMOVE, 0, 0);
}

/// The press on the icon that puts its menu away does not open it anew.
bool HasJustClosedMenu(HWND handle) {
    ThreadState* self = CurrentThread();
    const UserGuard guard(UserLock());
    return std::exchange(self->menu.closedOwner, nullptr) == handle && self->menu.closingPress == self->messageTime;
}

/// A button of the caption looks pressed while the pointer is held over it. @returns whether it was let go there.
bool TrackButton(HWND handle, int button) {
    bool inside = true;
    bool released = false;
    PaintFrame(handle, button);
    SetCapture(handle);
    for (MSG message; !released && GetCapture() == handle && NextMessage(handle, &message);) {
        released = message.message == WM_LBUTTONUP;
        if (message.message == WM_MOUSEMOVE || released) {
            const bool now = HitTest(handle, message.pt) == button;
            if (now != inside) {
                inside = now;
                PaintFrame(handle, inside ? button : HTNOWHERE);
            }
        } else if (!IsInput(message.message)) {
            DispatchMessageA(&message);
        }
    }
    LetGoOfMouse(handle);
    PaintFrame(handle);
    return inside && released && PeekWindow(handle);
}

/// What a button of the caption is for.
WPARAM CommandOf(int button, DWORD style) {
    switch (button) {
        case HTCLOSE:
            return SC_CLOSE;
        case HTHELP:
            return SC_CONTEXTHELP;
        case HTMINBUTTON:
            return style & WS_MINIMIZE ? SC_RESTORE : SC_MINIMIZE;
        default:
            return style & WS_MAXIMIZE ? SC_RESTORE : SC_MAXIMIZE;
    }
}

}  // namespace

HWND ParentOf(HWND handle) {
    return IsChildStyle(LiveStyle(handle)) ? GetParent(handle) : nullptr;
}

bool NextMessage(HWND handle, MSG* message) {
    if (!PeekWindow(handle)) {
        return false;
    }
    const BOOL got = GetMessageA(message, nullptr, 0, 0);
    if (got == 0) {
        PostQuitMessage(static_cast<int>(message->wParam));
    }
    return got > 0;
}

bool IsPress(UINT message) {
    return message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDOWN ||
           message == WM_RBUTTONDBLCLK || message == WM_MBUTTONDOWN || message == WM_MBUTTONDBLCLK;
}

bool IsInput(UINT message) {
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

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
        case HTSYSMENU:
            SendMessageA(handle, WM_SYSCOMMAND, SC_MOUSEMENU | HTSYSMENU, where);
            break;
        case HTCLOSE:
        case HTHELP:
        case HTMINBUTTON:
        case HTMAXBUTTON:
            if (TrackButton(handle, hitCode)) {
                SendMessageA(handle, WM_SYSCOMMAND, CommandOf(hitCode, LiveStyle(handle)), where);
            }
            break;
        case HTVSCROLL:
            SendMessageA(handle, WM_SYSCOMMAND, SC_VSCROLL | HTVSCROLL, where);
            break;
        case HTHSCROLL:
            SendMessageA(handle, WM_SYSCOMMAND, SC_HSCROLL | HTHSCROLL, where);
            break;
        default:
            if (hitCode >= HTSIZEFIRST && hitCode <= HTSIZELAST) {
                SendMessageA(handle, WM_SYSCOMMAND, SC_SIZE | static_cast<WPARAM>(hitCode - HTSIZEFIRST + 1), where);
            }
    }
}

LRESULT SystemCommand(HWND handle, WPARAM command, POINT point) {
    const WPARAM detail = command & 0xF;
    const DWORD style = LiveStyle(handle);
    switch (command & 0xFFF0) {
        case SC_MOVE:
            if (!(style & (WS_MAXIMIZE | WS_MINIMIZE))) {
                MoveOrSize(handle, HTCAPTION, detail != 0, point);
            }
            break;
        case SC_SIZE:
            if ((style & WS_THICKFRAME) && !(style & (WS_MAXIMIZE | WS_MINIMIZE))) {
                MoveOrSize(handle, detail ? HTSIZEFIRST + static_cast<int>(detail) - 1 : HTNOWHERE, detail != 0, point);
            }
            break;
        case SC_MOUSEMENU:
            if (!HasJustClosedMenu(handle)) {
                OpenSystemMenu(handle, nullptr, false);
            }
            break;
        case SC_KEYMENU:
            if (point.x == VK_SPACE) {
                OpenSystemMenu(handle, nullptr, true);
            }
            break;
        case SC_VSCROLL:
            TrackBar({handle, SB_VERT}, point);
            break;
        case SC_HSCROLL:
            TrackBar({handle, SB_HORZ}, point);
            break;
        case SC_CLOSE:
            SendMessageA(handle, WM_CLOSE, 0, 0);
            break;
        case SC_CONTEXTHELP:
            RunHelpMode(handle);
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
