// Showing and hiding, minimising, maximising and restoring.
#include <algorithm>
#include <utility>
#include <vector>

#include "user/input/input.h"
#include "user/model/thread.h"
#include "user/painting/painting.h"
#include "user/window/above.h"
#include "user/window/position.h"
#include "user/window/tree.h"

namespace platform::user {
namespace {

constexpr int kMinimisedWidth = 160;
constexpr int kMinimisedHeight = 24;

/// What ShowWindow makes of its argument.
struct Plan {
    bool show = true;
    DWORD state = 0;  ///< WS_MINIMIZE, WS_MAXIMIZE or 0
    bool keepState = false;
    bool activate = true;
    bool activateNext = false;  ///< a minimised window hands activation on
};

Plan PlanOf(int show) {
    switch (show) {
        case SW_HIDE:
            return {.show = false, .keepState = true, .activate = false};
        case SW_SHOWMINIMIZED:
            return {.state = WS_MINIMIZE};
        case SW_MINIMIZE:
            return {.state = WS_MINIMIZE, .activate = false, .activateNext = true};
        case SW_SHOWMAXIMIZED:
            return {.state = WS_MAXIMIZE};
        case SW_SHOWNOACTIVATE:
            return {.activate = false};
        case SW_SHOWNA:
            return {.keepState = true, .activate = false};
        case SW_SHOW:
            return {.keepState = true};
        default:
            return {};
    }
}

/// The first free place of a row along the lower edge.
RECT MinimisedPlace(const Window* window) {
    const RECT ground = Ground(window);
    const int columns = std::max<int>(1, (ground.right - ground.left) / kMinimisedWidth);
    for (int slot = 0;; ++slot) {
        const LONG left = ground.left + (slot % columns) * kMinimisedWidth;
        const LONG bottom = ground.bottom - (slot / columns) * kMinimisedHeight;
        const RECT place{left, bottom - kMinimisedHeight, left + kMinimisedWidth, bottom};
        bool taken = false;
        for (const Window* other = window->parent->firstChild; other != nullptr && !taken; other = other->next) {
            RECT common;
            taken = other != window && (other->style & WS_MINIMIZE) != 0 && (other->style & WS_VISIBLE) != 0 &&
                    IntersectRect(&common, &other->windowRect, &place);
        }
        if (!taken || slot > 1000) {
            return place;
        }
    }
}

/// The state that a window was created in and has not been given its place for.
DWORD PendingState(const Window* window) {
    return IsRectEmpty(&window->restoredRect) ? window->style & (WS_MINIMIZE | WS_MAXIMIZE) : 0;
}

/// Puts a window into another state. @returns whether it changed, with the new place in screen coordinates.
bool ChangeState(HWND handle, DWORD wanted, bool toNormal, RECT* place) {
    // It may have to go back to being maximised.
    const RECT maximised = wanted == WS_MAXIMIZE || toNormal ? MaximisedPlace(handle) : RECT{};
    UserGuard guard(UserLock());
    Window* window = PeekWindow(handle);
    if (window == nullptr) {
        return false;
    }
    const DWORD old = PendingState(window) != 0 ? 0 : window->style & (WS_MINIMIZE | WS_MAXIMIZE);
    if (toNormal && (old & WS_MINIMIZE) != 0 && window->restoreMaximised) {
        wanted = WS_MAXIMIZE;
    }
    if (old == wanted) {
        return false;
    }
    if (old == 0) {
        window->restoredRect = window->windowRect;
    }
    window->restoreMaximised = wanted == WS_MINIMIZE && old == WS_MAXIMIZE;
    *place = wanted == WS_MAXIMIZE ? maximised : wanted == WS_MINIMIZE ? MinimisedPlace(window) : window->restoredRect;
    window->style = (window->style & ~static_cast<DWORD>(WS_MINIMIZE | WS_MAXIMIZE)) | wanted;
    WindowsChanged();
    return true;
}

/// A window that was made hidden has not heard of its size yet.
void SendFirstSize(HWND handle) {
    if (Window* window = PeekWindow(handle); window != nullptr && !std::exchange(window->sizeSent, true)) {
        SendSize(handle);
        SendMove(handle);
    }
}

bool IsVisibleItself(const Window* window) {
    return (window->style & WS_VISIBLE) != 0;
}

/// @returns whether a window is to go or to come with its owner.
bool FollowsOwner(HWND handle, bool show) {
    UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    return window != nullptr && (show ? !IsVisibleItself(window) && window->hiddenByOwner : IsVisibleItself(window));
}

/// Hides an owner's windows that are shown, or shows those that were hidden so.
void ShowOwned(HWND owner, bool show) {
    std::vector<HWND> owned;
    {
        UserGuard guard(UserLock());
        const Window* window = PeekWindow(owner);
        if (window == nullptr) {
            return;
        }
        if (!MemoryAllows(
                [&] { owned = TopLevelWindows([=](const Window* each) { return each->owner == window; }); })) {
            return;
        }
    }
    for (HWND popup : owned) {
        if (!FollowsOwner(popup, show)) {
            continue;
        }
        SendMessageA(popup, WM_SHOWWINDOW, show, 0);
        SetWindowPos(
            popup, nullptr, 0, 0, 0, 0,
            SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
        UserGuard guard(UserLock());
        if (Window* window = PeekWindow(popup); window != nullptr) {
            window->hiddenByOwner = !show && !IsVisibleItself(window);
        }
    }
}

}  // namespace

RECT Ground(const Window* window) {
    return window->parent != nullptr && window->parent != Desktop() ? window->parent->clientRect : WorkArea();
}

RECT MaximisedPlace(HWND handle) {
    const MINMAXINFO limits = QueryMinMax(handle);
    UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    if (window == nullptr) {
        return RECT{};
    }
    const RECT ground = Ground(window);
    const LONG left = ground.left + limits.ptMaxPosition.x;
    const LONG top = ground.top + limits.ptMaxPosition.y;
    return RECT{left, top, left + limits.ptMaxSize.x, top + limits.ptMaxSize.y};
}

void SendMove(HWND handle) {
    POINT place{};
    {
        UserGuard guard(UserLock());
        const Window* window = PeekWindow(handle);
        if (window == nullptr) {
            return;
        }
        const POINT origin = ParentOrigin(window);
        place = {window->clientRect.left - origin.x, window->clientRect.top - origin.y};
    }
    SendMessageA(handle, WM_MOVE, 0, MAKELPARAM(place.x, place.y));
}

void SendSize(HWND handle) {
    RECT client{};
    WPARAM kind = SIZE_RESTORED;
    {
        UserGuard guard(UserLock());
        const Window* window = PeekWindow(handle);
        if (window == nullptr) {
            return;
        }
        client = window->clientRect;
        kind = (window->style & WS_MINIMIZE) != 0   ? SIZE_MINIMIZED
               : (window->style & WS_MAXIMIZE) != 0 ? SIZE_MAXIMIZED
                                                    : SIZE_RESTORED;
    }
    SendMessageA(handle, WM_SIZE, kind, MAKELPARAM(client.right - client.left, client.bottom - client.top));
}

}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI ShowWindow(HWND handle, int show) {
    if (show < SW_HIDE || show > SW_SHOWDEFAULT) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    Plan plan = PlanOf(show);
    bool wasVisible = false;
    bool child = false;
    bool parentShown = true;
    bool active = false;
    bool iconic = false;
    {
        UserGuard guard(UserLock());
        Window* window = FindWindowObject(handle);
        if (window == nullptr || window == Desktop()) {
            return FALSE;
        }
        wasVisible = (window->style & WS_VISIBLE) != 0;
        child = (window->style & WS_CHILD) != 0;
        parentShown = window->parent == nullptr || window->parent == Desktop() || IsShown(window->parent);
        active = window->thread != nullptr && window->thread->active == handle;
        window->hiddenByOwner = false;
        if (const DWORD pending = PendingState(window); plan.show && plan.keepState && pending != 0) {
            plan.state = pending;
            plan.keepState = false;
        }
        const DWORD state = window->style & (WS_MINIMIZE | WS_MAXIMIZE);
        iconic = (state & WS_MINIMIZE) != 0;
        // Where only showing was asked for, a window that is shown already is not even activated.
        if (wasVisible == plan.show && PendingState(window) == 0 &&
            (plan.keepState || (state == plan.state && (!plan.activate || child || active)))) {
            return wasVisible;
        }
    }
    RECT place{};
    const bool restored = !plan.keepState && plan.state == 0;
    const bool moved = !plan.keepState && ChangeState(handle, plan.state, restored && show == SW_RESTORE, &place);
    if (moved && plan.state == WS_MINIMIZE && !child) {
        ShowOwned(handle, false);
    }
    if (wasVisible != plan.show) {
        SendMessageA(handle, WM_SHOWWINDOW, plan.show, 0);
    }
    UINT flags = plan.show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW;
    const bool bitOnly = child && !parentShown && !moved;
    Window* window = nullptr;
    {
        UserGuard guard(UserLock());
        window = PeekWindow(handle);
        if (window == nullptr) {
            return wasVisible;
        }
        if (bitOnly) {
            // Nothing is to be seen of it.
            window->style = plan.show ? window->style | WS_VISIBLE : window->style & ~static_cast<DWORD>(WS_VISIBLE);
            WindowsChanged();
        }
        const POINT origin = ParentOrigin(window);
        OffsetRect(&place, -origin.x, -origin.y);
    }
    if (bitOnly) {
        if (!plan.show) {
            LeaveDisabledOrHidden(window, true);
        }
        return wasVisible;
    }
    if (!moved) {
        flags |= SWP_NOMOVE | SWP_NOSIZE;
    } else {
        flags |= SWP_FRAMECHANGED | SWP_NOCOPYBITS;
    }
    if (!plan.activate || child) {
        flags |= SWP_NOACTIVATE | SWP_NOZORDER;
    }
    SetWindowPos(handle, HWND_TOP, place.left, place.top, place.right - place.left, place.bottom - place.top, flags);
    if (plan.show) {
        SendFirstSize(handle);
    }
    if (plan.activateNext && active && (window = PeekWindow(handle)) != nullptr) {
        ActivateNext(CurrentThread(), window);
    }
    if (moved && plan.state != WS_MINIMIZE && !child) {
        ShowOwned(handle, true);
        // Minimised, a window can be active but takes no focus.
        if (iconic && GetActiveWindow() == handle && GetFocus() == nullptr) {
            SetFocus(handle);
        }
    }
    return wasVisible;
}
