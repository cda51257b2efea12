// Update regions: what a window still has to paint, and who is next to paint it.
#include "user/message/above.h"
#include "user/model/thread.h"
#include "user/painting/painting.h"

namespace platform::user {
namespace {

Window* SearchChildren(Window* parent, const ThreadState* thread);

/// @returns the first window at or below one that has something to paint; parents before children, for a parent may
/// paint over them.
Window* Search(Window* window, const ThreadState* thread) {
    if ((window->style & WS_VISIBLE) == 0) {
        return nullptr;
    }
    if (window->thread == thread && !window->paintRuns && NeedsPaint(window) && PruneUpdate(window)) {
        return window;
    }
    return (window->style & WS_MINIMIZE) != 0 ? nullptr : SearchChildren(window, thread);
}

Window* SearchChildren(Window* parent, const ThreadState* thread) {
    for (Window* child = parent->firstChild; child != nullptr; child = child->next) {
        if (Window* found = Search(child, thread); found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

}  // namespace

gdi::Region ScreenUpdate(Window* window) {
    gdi::Region region = window->update;
    if (!region.Empty()) {
        region.Offset(window->windowRect.left, window->windowRect.top);
        region.Intersect(Visible(window, StyleFlags(window) | kVisibleWhole));
    }
    return region;
}

bool PruneUpdate(Window* window) {
    if (!window->update.Empty() &&
        (window->paintState == nullptr || window->paintState->prunedGeneration != WindowsGeneration())) {
        gdi::Region region = ScreenUpdate(window);
        region.Offset(-window->windowRect.left, -window->windowRect.top);
        window->update = std::move(region);
        if (window->paintState != nullptr) {
            window->paintState->prunedGeneration = WindowsGeneration();
        }
    }
    if (window->update.Empty()) {
        window->frameNeeded = false;
    }
    return NeedsPaint(window);
}

void MarkInvalid(Window* window, gdi::Region area, bool erase, bool frame) {
    if (area.Empty() || window->thread == nullptr) {
        return;
    }
    if (frame && !window->frameNeeded) {
        const RECT bounds = area.Bounds();
        const RECT& client = window->clientRect;
        window->frameNeeded = bounds.left < client.left || bounds.top < client.top || bounds.right > client.right ||
                              bounds.bottom > client.bottom;
    }
    const bool waiting = NeedsPaint(window) && window->thread->paintWindows > 0;
    area.Offset(-window->windowRect.left, -window->windowRect.top);
    if (window->update.Empty()) {
        window->update = std::move(area);
    } else {
        window->update.Union(area);
    }
    if (!window->update.Valid()) {
        window->update.Set(RECT{0, 0, window->windowRect.right - window->windowRect.left,
                                window->windowRect.bottom - window->windowRect.top});
    }
    window->eraseNeeded |= erase;
    if (!waiting) {
        window->thread->paintWindows = 1;
        WakeThread(window->thread, QS_PAINT);
    }
}

bool NeedsPaint(const Window* window) {
    return !window->update.Empty();
}

bool SubtreeNeedsPaint(const Window* window) {
    if ((window->style & WS_VISIBLE) == 0) {
        return false;
    }
    if (NeedsPaint(window)) {
        return true;
    }
    for (const Window* child = window->firstChild; child != nullptr; child = child->next) {
        if (SubtreeNeedsPaint(child)) {
            return true;
        }
    }
    return false;
}

Window* NextPaintWindow(ThreadState* thread, Window* within) {
    if (thread->paintWindows == 0) {
        return nullptr;
    }
    if (within != nullptr) {
        return IsShown(within) ? Search(within, thread) : nullptr;
    }
    Window* found = SearchChildren(Desktop(), thread);
    if (found == nullptr) {
        thread->paintWindows = 0;
    }
    return found;
}

}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI GetUpdateRect(HWND handle, LPRECT rect, BOOL erase) {
    if (erase) {
        SendFramePaint(handle);
        SendErase(handle);
    }
    UserGuard guard(UserLock());
    Window* window = FindWindowObject(handle);
    if (window == nullptr) {
        return FALSE;
    }
    platform::gdi::Region region = ScreenUpdate(window);
    region.Intersect(window->clientRect);
    region.Offset(-window->clientRect.left, -window->clientRect.top);
    if (rect != nullptr) {
        *rect = region.Bounds();
    }
    return !region.Empty();
}
