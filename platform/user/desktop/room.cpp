#include "user/desktop/room.h"

#include <algorithm>

#include "gdi/surface/screen.h"
#include "user/message/queue.h"
#include "user/painting/painting.h"
#include "user/window/above.h"
#include "user/window/position.h"

namespace platform::user {
namespace {

constexpr int kReach = 32;  ///< how much of a window stays in sight

/// Guarded by UserLock. Empty until a host has told.
RECT& HostWorkArea() {
    static RECT area{};
    return area;
}

void SetWorkArea(const display::Room& room) {
    const RECT all{0, 0, room.width, room.height};
    const RECT work = gdi::Cut({room.work.left, room.work.top, room.work.right, room.work.bottom}, all);
    HostWorkArea() = gdi::Holds(work) ? work : all;
}

/// The screen's memory, the desktop window, and what they show. Lock held.
void ResizeDesktop(const display::Room& room) {
    const gdi::ScreenGuard guard(gdi::ScreenLock());
    if (!gdi::ResizeScreen({room.width, room.height})) {
        return;
    }
    const RECT screen = gdi::ScreenRect();
    Desktop()->windowRect = Desktop()->clientRect = screen;
    WindowsChanged();
    RefreshContexts();
    ExposeScreen(gdi::Region(screen));
}

/// Moves a rectangle so that no more than necessary of it lies outside an area, and its upper left corner never does.
RECT BroughtInto(RECT rect, const RECT& area) {
    const LONG width = rect.right - rect.left;
    const LONG height = rect.bottom - rect.top;
    OffsetRect(&rect, std::max(area.left, std::min(rect.left, area.right - width)) - rect.left,
               std::max(area.top, std::min(rect.top, area.bottom - height)) - rect.top);
    return rect;
}

bool InReach(const RECT& rect, const RECT& area) {
    return rect.right >= area.left + kReach && rect.left <= area.right - kReach && rect.top >= area.top &&
           rect.top <= area.bottom - kReach;
}

void FollowRoom(const SentMessage& sent) {
    const HWND handle = sent.window;
    const RECT screen = gdi::ScreenRect();
    SendMessageA(handle, WM_DISPLAYCHANGE, 32, MAKELPARAM(screen.right, screen.bottom));
    SendMessageA(handle, WM_SETTINGCHANGE, SPI_SETWORKAREA, 0);
    RECT rect{};
    bool zoomed = false;
    bool lost = false;
    {
        UserGuard guard(UserLock());
        Window* window = PeekWindow(handle);
        if (window == nullptr) {
            return;
        }
        const bool iconic = (window->style & WS_MINIMIZE) != 0;
        zoomed = (window->style & WS_MAXIMIZE) != 0 && (window->style & WS_VISIBLE) != 0;
        rect = window->windowRect;
        lost = !InReach(rect, screen) && !IsRectEmpty(&rect);
        if ((iconic || zoomed) && !InReach(window->restoredRect, screen)) {
            window->restoredRect = BroughtInto(window->restoredRect, WorkArea());
        }
    }
    if (zoomed) {
        const RECT place = MaximisedPlace(handle);
        SetWindowPos(handle, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    } else if (lost) {
        rect = BroughtInto(rect, WorkArea());
        SetWindowPos(handle, nullptr, rect.left, rect.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

}  // namespace

RECT WorkArea() {
    UserGuard guard(UserLock());
    const RECT screen = gdi::ScreenRect();  // made by now, and the host asked
    return IsRectEmpty(&HostWorkArea()) ? screen : HostWorkArea();
}

void SetFirstRoom(const display::Room& room) {
    UserGuard guard(UserLock());
    SetWorkArea(room);
}

void ChangeRoom(const display::Room& room) {
    UserGuard guard(UserLock());
    SetWorkArea(room);
    const RECT screen = gdi::ScreenRect();
    if (screen.right != room.width || screen.bottom != room.height) {
        ResizeDesktop(room);
    }
    for (const Window* window = Desktop()->firstChild; window != nullptr; window = window->next) {
        SendErrand(window->handle, FollowRoom);
    }
}

}  // namespace platform::user
