// Invalidating, validating and updating windows on an application's behalf.
#include <algorithm>
#include <vector>

#include "user/model/thread.h"
#include "user/painting/painting.h"

namespace platform::user {
namespace {

bool AffectsChildren(const Window* window, UINT flags) {
    return (flags & RDW_ALLCHILDREN) != 0 || (window->style & WS_CLIPCHILDREN) == 0;
}

void InvalidateWalk(Window* window, const gdi::Region& area, UINT flags) {
    if ((window->style & WS_VISIBLE) == 0) {
        return;
    }
    const bool frame = (flags & RDW_FRAME) != 0;
    gdi::Region own = area;
    own.Intersect(Visible(window, StyleFlags(window) | (frame ? kVisibleWhole : 0U)));
    MarkInvalid(window, std::move(own), (flags & RDW_ERASE) != 0, frame);
    if (window->firstChild == nullptr || !AffectsChildren(window, flags)) {
        return;
    }
    gdi::Region inside = area;
    inside.Intersect(window->clientRect);
    // A parent that paints over its children paints over their frames too.
    const UINT childFlags = (window->style & WS_CLIPCHILDREN) == 0 ? flags | RDW_FRAME : flags;
    for (Window* child = window->firstChild; child != nullptr; child = child->next) {
        if (inside.Touches(child->windowRect)) {
            InvalidateWalk(child, inside, childFlags);
        }
    }
}

void ValidateWalk(Window* window, const gdi::Region& area) {
    if (!window->update.Empty()) {
        gdi::Region valid = area;
        if (window->frameNeeded) {
            valid.Intersect(window->clientRect);
        }
        valid.Offset(-window->windowRect.left, -window->windowRect.top);
        window->update.Subtract(valid);
    }
    if (window->update.Empty()) {
        window->eraseNeeded = false;
        window->paintRuns = false;
    }
    if (!AffectsChildren(window, 0)) {
        return;
    }
    gdi::Region inside = area;
    inside.Intersect(window->clientRect);
    for (Window* child = window->firstChild; child != nullptr; child = child->next) {
        if (inside.Touches(child->windowRect)) {
            ValidateWalk(child, inside);
        }
    }
}

/// The area that a caller means, in screen coordinates.
gdi::Region AreaOf(const Window* window, const RECT* rect, bool whole) {
    if (rect == nullptr) {
        return gdi::Region(whole ? window->windowRect : window->clientRect);
    }
    // An inverted rectangle means the same area, and far coordinates must not overflow.
    const auto limit = [](LONG value) { return std::clamp<LONG>(value, -0x100000, 0x100000); };
    const RECT& client = window->clientRect;
    return gdi::Region(RECT{
        limit(std::min(rect->left, rect->right)) + client.left, limit(std::min(rect->top, rect->bottom)) + client.top,
        limit(std::max(rect->left, rect->right)) + client.left, limit(std::max(rect->top, rect->bottom)) + client.top});
}

/// Everything on the screen is to be drawn anew.
void RedrawScreen(const RECT* rect) {
    std::vector<HWND> windows;
    {
        UserGuard guard(UserLock());
        ExposeScreen(AreaOf(Desktop(), rect, true));
        MemoryAllows(
            [&] { windows = TopLevelWindows([](const Window* window) { return window->thread == CurrentThread(); }); });
    }
    for (HWND window : windows) {
        UpdateTree(window, true, true);
    }
}

/// A procedure that answers WM_PAINT by validating alone still owes its frame; it gets WM_NCPAINT here, or WM_PAINT
/// would come for ever.
void FinishFrame(HWND handle) {
    {
        UserGuard guard(UserLock());
        const Window* window = FindWindowObject(handle);
        if (window == nullptr || !window->frameNeeded || window->thread != CurrentThread()) {
            return;
        }
        RECT rect = window->clientRect;
        OffsetRect(&rect, -window->windowRect.left, -window->windowRect.top);
        if (window->update.Touches(rect)) {
            return;
        }
    }
    SendFramePaint(handle);
}

}  // namespace

}  // namespace platform::user

using namespace platform::user;
namespace gdi = platform::gdi;

BOOL WINAPI RedrawWindow(HWND handle, const RECT* rect, HRGN region, UINT flags) {
    if (region != nullptr) {
        return Fail(ERROR_INVALID_HANDLE, FALSE);
    }
    if (handle == nullptr || handle == GetDesktopWindow()) {
        if ((flags & RDW_INVALIDATE) != 0) {
            RedrawScreen(rect);
        }
        return TRUE;
    }
    {
        UserGuard guard(UserLock());
        Window* window = FindWindowObject(handle);
        if (window == nullptr) {
            return FALSE;
        }
        if ((flags & RDW_INVALIDATE) != 0 && IsShown(window)) {
            InvalidateWalk(window, AreaOf(window, rect, (flags & RDW_FRAME) != 0), flags);
        }
    }
    if ((flags & RDW_UPDATENOW) != 0) {
        UpdateTree(handle, (flags & RDW_ALLCHILDREN) != 0, false);
    }
    return TRUE;
}

BOOL WINAPI InvalidateRect(HWND handle, const RECT* rect, BOOL erase) {
    return RedrawWindow(handle, rect, nullptr, RDW_INVALIDATE | (erase ? RDW_ERASE : 0U));
}

BOOL WINAPI ValidateRect(HWND handle, const RECT* rect) {
    if (handle == nullptr) {
        // Documented so: without a window everything is invalidated.
        return RedrawWindow(nullptr, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
    }
    {
        const UserGuard guard(UserLock());
        Window* window = FindWindowObject(handle);
        if (window == nullptr) {
            return FALSE;
        }
        ValidateWalk(window, AreaOf(window, rect, true));
    }
    FinishFrame(handle);
    return TRUE;
}

BOOL WINAPI UpdateWindow(HWND handle) {
    {
        UserGuard guard(UserLock());
        if (FindWindowObject(handle) == nullptr) {
            return FALSE;
        }
    }
    UpdateTree(handle, true, false);
    return TRUE;
}
