// The change itself: rectangles, order and visibility, pixels that move along, and what has to be drawn.
#include <algorithm>
#include <new>

#include "gdi/screen.h"
#include "user/position_step.h"
#include "user/queue.h"

namespace platform::user {
namespace {

constexpr unsigned kPixels = kVisibleWhole | kVisibleClipSiblings;

/// A window that only moves in the z-order because another one of its owner group does.
struct Companion {
    Window* window;
    gdi::Region oldPixels;
};

void Resize(Window* window, const Step& step) {
    const int dx = step.newClient.left - window->clientRect.left;
    const int dy = step.newClient.top - window->clientRect.top;
    // The update region counts from the window's corner, its client part has to stay with the client area.
    const int insetX =
        (step.newClient.left - step.newWindow.left) - (window->clientRect.left - window->windowRect.left);
    const int insetY = (step.newClient.top - step.newWindow.top) - (window->clientRect.top - window->windowRect.top);
    if ((insetX != 0 || insetY != 0) && !window->update.Empty()) {
        window->update.Offset(insetX, insetY);
    }
    window->windowRect = step.newWindow;
    window->clientRect = step.newClient;
    if (dx != 0 || dy != 0) {
        for (Window* child = window->firstChild; child != nullptr; child = child->next) {
            ShiftTree(child, dx, dy);
        }
    }
}

/// Moves the pixels that stay good. @returns where they are now. overwritten: what moves of other windows have already
/// drawn over, and grows by this one.
gdi::Region KeepPixels(const Step& step, const gdi::Region& newPixels, gdi::Region& overwritten) {
    gdi::Region kept = step.oldPixels;
    int dx = step.newWindow.left - step.oldWindow.left;
    int dy = step.newWindow.top - step.oldWindow.top;
    if (step.keep == Keep::Nothing) {
        return gdi::Region();
    }
    if (step.keep == Keep::Client) {
        kept.Intersect(step.validSource);
        dx = step.validTarget.left - step.validSource.left;
        dy = step.validTarget.top - step.validSource.top;
    }
    kept.Subtract(overwritten);
    kept.Offset(dx, dy);
    if (step.keep == Keep::Client) {
        kept.Intersect(step.validTarget);
    }
    kept.Intersect(newPixels);
    if ((dx != 0 || dy != 0) && !kept.Empty()) {
        const RECT to = kept.Bounds();
        gdi::CopyScreenArea(RECT{to.left - dx, to.top - dy, to.right - dx, to.bottom - dy}, POINT{to.left, to.top},
                            kept);
        overwritten.Union(kept);
    }
    return kept;
}

/// Brings one window's update regions in line. @returns what it shows now.
gdi::Region Settle(Window* window, const Step& step, gdi::Region& overwritten) {
    const UINT flags = step.change->position.flags;
    gdi::Region pixels = Visible(window, kPixels);
    gdi::Region fresh = pixels;
    if (step.wasVisible && (flags & SWP_NOCOPYBITS) == 0) {
        fresh.Subtract(KeepPixels(step, pixels, overwritten));
    }
    if (!fresh.Empty()) {
        InvalidateTree(window, fresh);
    }
    return pixels;
}

std::vector<Companion> Companions(const std::vector<Step>& steps) {
    std::vector<Companion> companions;
    std::vector<Window*> group;
    for (const Step& step : steps) {
        Window* window = step.alive && step.order ? PeekWindow(step.change->position.hwnd) : nullptr;
        if (window != nullptr && window->parent == Desktop()) {
            CollectGroup(window, group);
        }
    }
    for (Window* window : group) {
        const bool stepped = std::any_of(steps.begin(), steps.end(), [window](const Step& step) {
            return step.alive && step.change->position.hwnd == window->handle;
        });
        const bool known = std::any_of(companions.begin(), companions.end(),
                                       [window](const Companion& companion) { return companion.window == window; });
        if (!stepped && !known) {
            companions.push_back(Companion{window, Visible(window, kPixels)});
        }
    }
    return companions;
}

}  // namespace

void ApplySteps(std::vector<Step>& steps) {
    UserGuard guard(UserLock());
    std::vector<Companion> companions;
    try {
        companions = Companions(steps);
    } catch (const std::bad_alloc&) {
        // Then they are drawn when next something uncovers them.
    }
    for (Step& step : steps) {
        Window* window = step.alive ? PeekWindow(step.change->position.hwnd) : nullptr;
        step.alive = window != nullptr;
        if (window != nullptr) {
            step.wasVisible = (window->style & WS_VISIBLE) != 0;
            if ((step.change->position.flags & SWP_NOREDRAW) == 0) {
                step.oldPixels = Visible(window, kPixels);
            }
        }
    }
    for (Step& step : steps) {
        Window* window = step.alive ? PeekWindow(step.change->position.hwnd) : nullptr;
        if (window == nullptr) {
            continue;
        }
        const WINDOWPOS& position = step.change->position;
        if (step.order) {
            ChangeOrder(window, position.hwndInsertAfter, position.flags);
        }
        if ((position.flags & SWP_SHOWWINDOW) != 0) {
            window->style |= WS_VISIBLE;
        } else if ((position.flags & SWP_HIDEWINDOW) != 0) {
            window->style &= ~static_cast<DWORD>(WS_VISIBLE);
        }
        Resize(window, step);
    }
    WindowsChanged();

    gdi::Region lost, held, overwritten;
    Window* parent = nullptr;
    bool sameParent = true;
    for (Step& step : steps) {
        Window* window = step.alive ? PeekWindow(step.change->position.hwnd) : nullptr;
        if (window == nullptr || (step.change->position.flags & SWP_NOREDRAW) != 0) {
            continue;
        }
        sameParent = sameParent && (parent == nullptr || parent == window->parent);
        parent = window->parent;
        lost.Union(step.oldPixels);
        held.Union(Settle(window, step, overwritten));
    }
    for (const Companion& companion : companions) {
        const gdi::Region& pixels = Visible(companion.window, kPixels);
        gdi::Region gained = pixels;
        gained.Subtract(companion.oldPixels);
        held.Union(pixels);
        lost.Union(companion.oldPixels);
        if (!gained.Empty()) {
            InvalidateTree(companion.window, gained);
        }
    }
    lost.Subtract(held);
    if (!lost.Empty()) {
        ExposeWithin(sameParent ? parent : nullptr, lost);
    }
    RefreshContexts();
}

}  // namespace platform::user
