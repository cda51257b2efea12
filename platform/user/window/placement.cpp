// Where a window lies when it is neither minimised nor maximised, and which of the three it is.
#include "user/model/window.h"

using namespace platform::user;

namespace {

constexpr DWORD kStates = WS_MINIMIZE | WS_MAXIMIZE;

}  // namespace

BOOL WINAPI GetWindowPlacement(HWND handle, WINDOWPLACEMENT* placement) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    if (!window || !placement || placement->length != sizeof(WINDOWPLACEMENT)) {
        return window ? Fail(ERROR_INVALID_PARAMETER, FALSE) : FALSE;
    }
    const bool iconic = (window->style & WS_MINIMIZE) != 0;
    const bool zoomed = (window->style & WS_MAXIMIZE) != 0;
    placement->flags = iconic && window->restoreMaximised ? WPF_RESTORETOMAXIMIZED : 0u;
    placement->showCmd = static_cast<UINT>(iconic ? SW_SHOWMINIMIZED : zoomed ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL);
    placement->ptMinPosition = placement->ptMaxPosition = {-1, -1};
    placement->rcNormalPosition = iconic || zoomed ? window->restoredRect : window->windowRect;
    const POINT origin = ParentOrigin(window);
    OffsetRect(&placement->rcNormalPosition, -origin.x, -origin.y);
    return TRUE;
}

BOOL WINAPI SetWindowPlacement(HWND handle, const WINDOWPLACEMENT* placement) {
    UserHold hold(UserLock());
    Window* window = FindWindowObject(handle);
    if (!window || window == Desktop() || !placement || placement->length != sizeof(WINDOWPLACEMENT)) {
        return window ? Fail(ERROR_INVALID_PARAMETER, FALSE) : FALSE;
    }
    RECT rect = placement->rcNormalPosition;
    if (window->style & kStates) {
        const POINT origin = ParentOrigin(window);
        OffsetRect(&rect, origin.x, origin.y);
        window->restoredRect = rect;
        hold.unlock();
    } else {
        hold.unlock();
        SetWindowPos(handle, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    ShowWindow(handle, static_cast<int>(placement->showCmd));
    hold.lock();
    window = PeekWindow(handle);
    if (window && (window->style & WS_MINIMIZE) && (placement->flags & WPF_RESTORETOMAXIMIZED)) {
        window->restoreMaximised = true;
    }
    return TRUE;
}
