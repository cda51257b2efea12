// DefWindowProcA: what a window does with a message that it has no use for itself.
#include <algorithm>
#include <utility>

#include "gdi/context/device_context.h"
#include "gdi/context/objects.h"
#include "kernel/memory/probe.h"
#include "user/frame/nonclient.h"
#include "user/model/window.h"
#include "user/painting/painting.h"
#include "user/window/above.h"
#include "user/window/position.h"

namespace platform::user {
namespace {

LRESULT SetText(HWND handle, LPCSTR text) {
    const std::size_t length = text ? kernel::ProbeLength(text) : 0;
    if (length == kernel::kBadText) {
        return Fail(ERROR_NOACCESS, FALSE);
    }
    UserHold hold(UserLock());
    Window* window = PeekWindow(handle);
    if (!window) {
        return FALSE;
    }
    if (!MemoryAllows([=] { window->text.assign(text ? text : "", length); })) {
        return FALSE;
    }
    const bool hasCaption = CaptionHeight(window->style, window->exStyle) && IsShown(window);
    hold.unlock();
    if (hasCaption) {
        PaintFrame(handle);
    }
    return TRUE;
}

LRESULT EraseBackground(HWND handle, HDC context) {
    HBRUSH brush = nullptr;
    {
        const UserGuard guard(UserLock());
        const Window* window = PeekWindow(handle);
        brush = window ? window->windowClass->background : nullptr;
    }
    if (!brush) {
        return 0;
    }
    const RECT area = gdi::ClipBounds(context);
    FillRect(context, &area, brush);
    return 1;
}

/// Limits a top-level window with a sizing border to what it says of its smallest and largest size.
void LimitSize(HWND handle, DWORD style, WINDOWPOS* position) {
    if ((position->flags & SWP_NOSIZE) || !(style & WS_THICKFRAME) || (style & WS_MINIMIZE) || IsChildStyle(style)) {
        return;
    }
    const MINMAXINFO limits = QueryMinMax(handle);
    position->cx = std::clamp<int>(position->cx, limits.ptMinTrackSize.x, limits.ptMaxTrackSize.x);
    position->cy = std::clamp<int>(position->cy, limits.ptMinTrackSize.y, limits.ptMaxTrackSize.y);
}

/// Takes the text colour and the background colour in turns.
HBRUSH ChequeredBrush() {
    static const HBRUSH brush = [] {
        const WORD rows[8] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
        const HBITMAP bitmap = CreateBitmap(8, 8, 1, 1, rows);
        const HBRUSH made = gdi::MakePatternBrush(bitmap);
        DeleteObject(bitmap);
        // It is the system's own, and no application is to answer for it.
        if (auto* object = gdi::FindObject<gdi::Brush>(made)) {
            gdi::NoteStock(object);
        }
        return made;
    }();
    return brush;
}

LRESULT ControlColour(UINT message, HDC context) {
    const bool bar = message == WM_CTLCOLORSCROLLBAR;
    const bool field = message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX;
    const int ground = bar ? COLOR_SCROLLBAR : field ? COLOR_WINDOW : COLOR_3DFACE;
    SetTextColor(context, GetSysColor(bar ? COLOR_3DHIGHLIGHT : COLOR_WINDOWTEXT));
    SetBkColor(context, GetSysColor(ground));
    // A scroll bar as grey as its arrows is told from them by every second pixel in white.
    const bool chequered = bar && GetSysColor(COLOR_SCROLLBAR) == GetSysColor(COLOR_3DFACE);
    return reinterpret_cast<LRESULT>(chequered ? ChequeredBrush() : GetSysColorBrush(ground));
}

LRESULT SetCursorFor(HWND handle, WPARAM wParam, LPARAM lParam) {
    const HWND parent = ParentOf(handle);
    if (parent && parent != GetDesktopWindow() && SendMessageA(parent, WM_SETCURSOR, wParam, lParam)) {
        return TRUE;
    }
    return SetHitCursor(reinterpret_cast<HWND>(wParam), static_cast<short>(LOWORD(lParam)), HIWORD(lParam));
}

LRESULT ActivateByMouse(HWND handle, WPARAM wParam, LPARAM lParam) {
    const HWND parent = ParentOf(handle);
    const LRESULT answer = parent ? SendMessageA(parent, WM_MOUSEACTIVATE, wParam, lParam) : 0;
    return answer ? answer : MA_ACTIVATE;
}

void SetRedraw(HWND handle, bool redraw) {
    const UserGuard guard(UserLock());
    Window* window = PeekWindow(handle);
    if (!window) {
        return;
    }
    if (redraw) {
        window->style |= WS_VISIBLE;
    } else {
        window->style &= ~static_cast<DWORD>(WS_VISIBLE);
        window->update = gdi::Region();
    }
    WindowsChanged();
}

LRESULT SetIcon(HWND handle, bool big, HICON icon) {
    UserHold hold(UserLock());
    Window* window = PeekWindow(handle);
    if (!window) {
        return 0;
    }
    const HICON before = std::exchange(big ? window->bigIcon : window->smallIcon, icon);
    const bool hasCaption = CaptionHeight(window->style, window->exStyle) && IsShown(window);
    hold.unlock();
    if (hasCaption) {
        PaintFrame(handle);
    }
    return reinterpret_cast<LRESULT>(before);
}

}  // namespace
}  // namespace platform::user

namespace platform::user {

HBRUSH AskForBrush(HWND asked, UINT message, HDC context, HWND about) {
    const auto dc = reinterpret_cast<WPARAM>(context);
    const auto self = reinterpret_cast<LPARAM>(about);
    const LRESULT brush = asked ? SendMessageA(asked, message, dc, self) : 0;
    return reinterpret_cast<HBRUSH>(brush ? brush : DefWindowProcA(about, message, dc, self));
}

}  // namespace platform::user

using namespace platform::user;

LRESULT WINAPI DefWindowProcA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    Window* window = FindWindowObject(handle);
    if (!window) {
        return 0;
    }
    switch (message) {
        case WM_NCCREATE: {
            const auto* given = reinterpret_cast<const CREATESTRUCTA*>(lParam);
            SetText(handle, given ? given->lpszName : nullptr);
            return TRUE;
        }
        case WM_NCHITTEST:
            return HitTest(handle, MousePoint(lParam));
        case WM_NCPAINT:
            PaintFrame(handle);
            return 0;
        case WM_NCACTIVATE:
            window->captionActive = wParam != 0;
            if (window->style & WS_VISIBLE) {
                PaintFrame(handle);
            }
            return TRUE;
        case WM_NCLBUTTONDOWN:
            PressFrame(handle, static_cast<int>(wParam), MousePoint(lParam));
            return 0;
        case WM_NCLBUTTONDBLCLK:
            OnFrameDoubleClick(window, static_cast<int>(wParam), lParam);
            return 0;
        case WM_SYSCOMMAND:
            return SystemCommand(handle, wParam, MousePoint(lParam));
        case WM_SETTEXT:
            return SetText(handle, reinterpret_cast<LPCSTR>(lParam));
        case WM_GETTEXT:
            return CopyText(window->text, wParam, reinterpret_cast<LPSTR>(lParam));
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(window->text.size());
        case WM_SETREDRAW:
            SetRedraw(handle, wParam != 0);
            return 0;
        case WM_PAINT: {
            PAINTSTRUCT paint;
            if (BeginPaint(handle, &paint)) {
                EndPaint(handle, &paint);
            }
            return 0;
        }
        case WM_ERASEBKGND:
            return EraseBackground(handle, reinterpret_cast<HDC>(wParam));
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_CTLCOLORSCROLLBAR:
        case WM_CTLCOLORSTATIC:
            return ControlColour(message, reinterpret_cast<HDC>(wParam));
        case WM_WINDOWPOSCHANGING:
            LimitSize(handle, window->style, reinterpret_cast<WINDOWPOS*>(lParam));
            return 0;
        case WM_WINDOWPOSCHANGED: {
            const UINT flags = reinterpret_cast<const WINDOWPOS*>(lParam)->flags;
            if (!(flags & kNoClientMove)) {
                SendMove(handle);
            }
            if (!(flags & kNoClientSize)) {
                SendSize(handle);
            }
            return 0;
        }
        case WM_CLOSE:
            DestroyWindow(handle);
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE && !(window->style & WS_MINIMIZE)) {
                SetFocus(handle);
            }
            return 0;
        case WM_MOUSEACTIVATE:
            return ActivateByMouse(handle, wParam, lParam);
        case WM_SETCURSOR:
            return SetCursorFor(handle, wParam, lParam);
        case WM_SYSKEYDOWN:
            return OnSystemKey(handle, wParam, lParam);
        case WM_SYSCHAR:
            return OnSystemCharacter(handle, wParam, lParam);
        case WM_KEYUP:
            return OnKeyUp(handle, wParam);
        case WM_RBUTTONUP: {
            POINT point = MousePoint(lParam);
            ClientToScreen(handle, &point);
            return SendMessageA(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(handle), MAKELPARAM(point.x, point.y));
        }
        case WM_NCRBUTTONUP:
            return SendMessageA(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(handle), lParam);
        case WM_HELP: {
            // What has no help of its own leaves it to its parent, and a window of the top level to its owner.
            const HWND above = IsChildStyle(window->style) ? GetParent(handle) : GetWindow(handle, GW_OWNER);
            return above ? SendMessageA(above, message, wParam, lParam) : 0;
        }
        case WM_CONTEXTMENU:
            return OnContextMenu(handle, wParam, lParam);
        case WM_MOUSEWHEEL: {
            const HWND parent = ParentOf(handle);
            return parent ? SendMessageA(parent, message, wParam, lParam) : 0;
        }
        case WM_VKEYTOITEM:
            return -1;
        case WM_GETICON:
            return reinterpret_cast<LRESULT>(wParam == ICON_BIG ? window->bigIcon : window->smallIcon);
        case WM_SETICON:
            return SetIcon(handle, wParam == ICON_BIG, reinterpret_cast<HICON>(lParam));
        case WM_CANCELMODE:
            LeaveModes(handle);
            return 0;
        default:
            return 0;
    }
}
