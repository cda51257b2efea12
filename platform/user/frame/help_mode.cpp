// Asking for help on a control: by the question mark of a caption, and the message that both it and the F1 key send.
#include <new>
#include <vector>

#include "user/frame/nonclient.h"
#include "user/input/above.h"
#include "user/input/input.h"

namespace platform::user {
namespace {

/// The visible children at a point, disabled ones too, the foremost first. Throws bad_alloc.
std::vector<HWND> ChildrenAt(HWND handle, POINT point) {
    std::vector<HWND> children;
    const UserGuard guard(UserLock());
    const Window* parent = PeekWindow(handle);
    if (!parent || (parent->style & WS_MINIMIZE) || !PtInRect(&parent->clientRect, point)) {
        return children;
    }
    for (const Window* child = parent->firstChild; child; child = child->next) {
        if ((child->style & WS_VISIBLE) && PtInRect(&child->windowRect, point)) {
            children.push_back(child->handle);
        }
    }
    return children;
}

/// Static controls and group boxes let clicks through but can be asked about, unless another control lies under them.
HWND ChildToAsk(HWND parent, POINT point) {
    HWND transparent = nullptr;
    for (HWND child : ChildrenAt(parent, point)) {
        if (SendMessageA(child, WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y)) != HTTRANSPARENT) {
            return child;
        }
        transparent = transparent ? transparent : child;
    }
    return transparent;
}

/// @returns whether a point lies in a window's client area, and no other window covers it there.
bool IsClientPoint(HWND handle, POINT point) {
    const UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    const Window* seen = WindowAt(point);
    return window && seen && (seen == window || IsAncestor(window, seen)) && PtInRect(&window->clientRect, point);
}

/// @returns the innermost window that a click on a window means; null where it means none.
HWND WindowToAsk(HWND handle, POINT point) try {
    if (!IsClientPoint(handle, point)) {
        return nullptr;
    }
    HWND innermost = handle;
    while (const HWND child = ChildToAsk(innermost, point)) {
        innermost = child;
    }
    return innermost;
} catch (const std::bad_alloc&) {
    return nullptr;
}

/// Waits for a press of a button, Escape, or somebody who takes the mouse away. @returns whether the left button went
/// down, and where.
bool WaitForClick(HWND handle, POINT* point) {
    for (MSG message; GetCapture() == handle && NextMessage(handle, &message);) {
        if (IsPress(message.message)) {
            *point = message.pt;
            return message.message == WM_LBUTTONDOWN || message.message == WM_LBUTTONDBLCLK;
        }
        if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
            return false;
        }
        if (!IsInput(message.message)) {
            DispatchMessageA(&message);
        }
    }
    return false;
}

}  // namespace

void AskForHelp(HWND window, POINT point) {
    HELPINFO help{};
    help.cbSize = sizeof help;
    help.iContextType = HELPINFO_WINDOW;
    help.iCtrlId = GetDlgCtrlID(window);
    help.hItemHandle = window;
    help.MousePos = point;
    SendMessageA(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
}

void RunHelpMode(HWND handle) {
    SetCapture(handle);
    const HCURSOR before = SetCursor(LoadCursorA(nullptr, IDC_HELP));
    POINT point{};
    const bool clicked = WaitForClick(handle, &point);
    // The help that is shown may want the mouse for itself.
    LetGoOfMouse(handle);
    SetCursor(before);
    if (const HWND asked = clicked ? WindowToAsk(handle, point) : nullptr) {
        AskForHelp(asked, point);
    }
}

}  // namespace platform::user
