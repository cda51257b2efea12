// Moving pixels within a window or a context, and telling what has to be painted behind them.
#include <algorithm>
#include <new>
#include <vector>

#include "base/handle.h"
#include "gdi/context.h"
#include "gdi/device_context.h"
#include "gdi/screen.h"
#include "user/painting.h"
#include "user/thread.h"

namespace platform::user {
namespace {

gdi::Region Shifted(const gdi::Region& region, int dx, int dy) {
    gdi::Region moved = region;
    moved.Offset(dx, dy);
    return moved;
}

RECT OnScreen(const RECT& rect, const RECT& client) {
    return RECT{rect.left + client.left, rect.top + client.top, rect.right + client.left, rect.bottom + client.top};
}

/// Moves pixels. moving: where they are now; reach: where they may appear. @returns what has to be painted: the place
/// they left and the place they should have come to, without what did come.
gdi::Region MovePixels(const gdi::Region& moving, const gdi::Region& reach, int dx, int dy) {
    gdi::Region source = moving;
    source.Intersect(reach);
    gdi::Region target = Shifted(source, dx, dy);
    target.Intersect(reach);
    gdi::Region exposed = Shifted(moving, dx, dy);
    exposed.Union(moving);
    exposed.Intersect(reach);
    exposed.Subtract(target);
    if (!target.Empty()) {
        const RECT to = target.Bounds();
        gdi::CopyScreenArea(RECT{to.left - dx, to.top - dy, to.right - dx, to.bottom - dy}, POINT{to.left, to.top},
                            target);
    }
    return exposed;
}

/// What is due for painting in the moving area moves along with the pixels.
void MoveUpdate(Window* window, const gdi::Region& moving, const gdi::Region& reach, int dx, int dy) {
    gdi::Region due = window->update;
    due.Offset(window->windowRect.left, window->windowRect.top);
    due.Intersect(moving);
    if (due.Empty()) {
        return;
    }
    window->update.Subtract(Shifted(due, -window->windowRect.left, -window->windowRect.top));
    due.Offset(dx, dy);
    due.Intersect(reach);
    MarkInvalid(window, std::move(due), false, false);
}

/// Moves the children that lie in the scrolled area. @returns them.
std::vector<HWND> MoveChildren(Window* window, const RECT& area, bool all, int dx, int dy) {
    std::vector<HWND> moved;
    try {
        for (Window* child = window->firstChild; child != nullptr; child = child->next) {
            RECT common;
            if (all || IntersectRect(&common, &child->windowRect, &area)) {
                moved.push_back(child->handle);
                ShiftTree(child, dx, dy);
            }
        }
    } catch (const std::bad_alloc&) {
    }
    if (!moved.empty()) {
        WindowsChanged();
        RefreshContexts();
    }
    return moved;
}

}  // namespace

}  // namespace platform::user

using namespace platform::user;
namespace base = platform::base;
namespace gdi = platform::gdi;

int WINAPI ScrollWindowEx(HWND handle, int dx, int dy, const RECT* scroll, const RECT* clip, HRGN updateRegion,
                          LPRECT updateRect, UINT flags) {
    HWND caretWindow = nullptr;
    gdi::Region exposed;
    std::vector<HWND> moved;
    {
        UserGuard guard(UserLock());
        Window* window = FindWindowObject(handle);
        if (window == nullptr) {
            return ERROR;
        }
        ThreadState* thread = CurrentThread();
        caretWindow = thread == nullptr ? nullptr : thread->caret.window;
        if (caretWindow != nullptr) {
            SuspendCaret(caretWindow);
        }

        const RECT client = window->clientRect;
        gdi::Region moving(scroll != nullptr ? OnScreen(*scroll, client) : client);
        const RECT area = moving.Bounds();
        gdi::Region reach = Visible(window, StyleFlags(window) & ~kVisibleClipChildren);
        if ((flags & SW_SCROLLCHILDREN) == 0) {
            reach = Visible(window, StyleFlags(window) | kVisibleClipChildren);
        }
        if (clip != nullptr) {
            reach.Intersect(OnScreen(*clip, client));
        }
        MoveUpdate(window, moving, reach, dx, dy);
        exposed = MovePixels(moving, reach, dx, dy);
        if ((flags & SW_SCROLLCHILDREN) != 0) {
            moved = MoveChildren(window, area, scroll == nullptr, dx, dy);
        }
        if (caretWindow == handle && caretWindow != nullptr) {
            POINT at{thread->caret.position.x + client.left, thread->caret.position.y + client.top};
            if (PtInRect(&area, at)) {
                thread->caret.position.x += dx;
                thread->caret.position.y += dy;
            }
        }
        if ((flags & SW_INVALIDATE) != 0 && !exposed.Empty()) {
            if ((flags & SW_SCROLLCHILDREN) != 0) {
                gdi::Region own = exposed;
                own.Intersect(Visible(window, StyleFlags(window)));
                MarkInvalid(window, std::move(own), (flags & SW_ERASE) != 0, false);
                for (Window* child = window->firstChild; child != nullptr; child = child->next) {
                    InvalidateTree(child, exposed);
                }
            } else {
                MarkInvalid(window, exposed, (flags & SW_ERASE) != 0, false);
            }
        }
        exposed.Offset(-client.left, -client.top);
    }
    if (caretWindow != nullptr) {
        ResumeCaret(caretWindow);
    }
    for (HWND child : moved) {
        RECT place{};
        {
            UserGuard guard(UserLock());
            const Window* window = base::Find<Window>(child, base::HandleKind::Window);
            if (window == nullptr) {
                continue;
            }
            const POINT origin = ParentOrigin(window);
            place = window->clientRect;
            OffsetRect(&place, -origin.x, -origin.y);
        }
        SendMessageA(child, WM_MOVE, 0, MAKELPARAM(place.left, place.top));
    }
    if (updateRect != nullptr) {
        *updateRect = exposed.Bounds();
    }
    const int type = gdi::Complexity(exposed);
    if (updateRegion != nullptr && !gdi::AssignRegion(updateRegion, exposed)) {
        SetLastError(ERROR_INVALID_HANDLE);
        return ERROR;
    }
    return type;
}

BOOL WINAPI ScrollWindow(HWND handle, int dx, int dy, const RECT* scroll, const RECT* clip) {
    const UINT flags = SW_INVALIDATE | SW_ERASE | (scroll == nullptr ? SW_SCROLLCHILDREN : 0U);
    return ScrollWindowEx(handle, dx, dy, scroll, clip, nullptr, nullptr, flags) != ERROR;
}

BOOL WINAPI ScrollDC(HDC context, int dx, int dy, const RECT* scroll, const RECT* clip, HRGN updateRegion,
                     LPRECT updateRect) {
    RECT box;
    if (GetClipBox(context, &box) == ERROR) {
        return FALSE;
    }
    // Everything below counts in device units.
    LPtoDP(context, reinterpret_cast<POINT*>(&box), 2);
    POINT distance[2] = {{0, 0}, {dx, dy}};
    LPtoDP(context, distance, 2);
    dx = distance[1].x - distance[0].x;
    dy = distance[1].y - distance[0].y;
    RECT from = box;
    if (scroll != nullptr) {
        from = *scroll;
        LPtoDP(context, reinterpret_cast<POINT*>(&from), 2);
    }
    RECT within = box;
    if (clip != nullptr) {
        within = *clip;
        LPtoDP(context, reinterpret_cast<POINT*>(&within), 2);
    }
    const POINT origin = gdi::ContextOrigin(context);
    gdi::Region reach = gdi::VisibleArea(context);
    const bool onScreen = !reach.Empty();
    if (onScreen) {
        reach.Offset(-origin.x, -origin.y);
    } else {
        reach.Set(box);
    }
    if (HRGN own = CreateRectRgn(0, 0, 0, 0); own != nullptr) {
        if (GetClipRgn(context, own) == 1) {
            reach.Intersect(gdi::RegionOf(own));
        }
        DeleteObject(own);
    }
    reach.Intersect(within);
    gdi::Region exposed(from);
    if (onScreen) {
        reach.Offset(origin.x, origin.y);
        exposed.Offset(origin.x, origin.y);
        exposed = MovePixels(exposed, reach, dx, dy);
        exposed.Offset(-origin.x, -origin.y);
    } else {
        gdi::Region source = exposed;
        source.Intersect(reach);
        gdi::Region target = Shifted(source, dx, dy);
        target.Intersect(reach);
        exposed.Union(Shifted(exposed, dx, dy));
        exposed.Intersect(reach);
        exposed.Subtract(target);
        if (!target.Empty()) {
            RECT to = target.Bounds();
            RECT logical[2] = {to, RECT{to.left - dx, to.top - dy, to.right - dx, to.bottom - dy}};
            DPtoLP(context, reinterpret_cast<POINT*>(logical), 4);
            BitBlt(context, logical[0].left, logical[0].top, logical[0].right - logical[0].left,
                   logical[0].bottom - logical[0].top, context, logical[1].left, logical[1].top, SRCCOPY);
        }
    }
    if (updateRegion != nullptr && !gdi::AssignRegion(updateRegion, exposed)) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    if (updateRect != nullptr) {
        *updateRect = exposed.Bounds();
        DPtoLP(context, reinterpret_cast<POINT*>(updateRect), 2);
    }
    return TRUE;
}
