// The change itself: rectangles, order and visibility, pixels that move along, and what has to be drawn.
#include <new>

#include "gdi/surface/screen.h"
#include "user/painting/painting.h"
#include "user/window/position.h"

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

/// Moves the pixels that stay good. @returns where they are now.
gdi::Region KeepPixels(const Step& step, const gdi::Region& newPixels) {
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
    kept.Offset(dx, dy);
    if (step.keep == Keep::Client) {
        kept.Intersect(step.validTarget);
    }
    kept.Intersect(newPixels);
    if ((dx != 0 || dy != 0) && !kept.Empty()) {
        const RECT to = kept.Bounds();
        gdi::CopyScreenArea(RECT{to.left - dx, to.top - dy, to.right - dx, to.bottom - dy}, POINT{to.left, to.top},
                            kept);
    }
    return kept;
}

/// The windows that change their place in the order together with the one that is moved. Throws bad_alloc.
std::vector<Companion> Companions(const Step& step, const Window* window) {
    std::vector<Window*> group;
    if (step.order && window->parent == Desktop()) {
        CollectGroup(const_cast<Window*>(window), group);
    }
    std::vector<Companion> companions;
    for (Window* each : group) {
        if (each != window) {
            companions.push_back(Companion{each, Visible(each, kPixels)});
        }
    }
    return companions;
}

}  // namespace

void Apply(Step& step) {
    const UserGuard guard(UserLock());
    const WINDOWPOS& position = step.position;
    Window* window = PeekWindow(position.hwnd);
    if (window == nullptr) {
        return;
    }
    std::vector<Companion> companions;
    // Without memory they are drawn when next something uncovers them.
    MemoryAllows([&] { companions = Companions(step, window); });
    const bool redraw = (position.flags & SWP_NOREDRAW) == 0;
    const bool wasVisible = (window->style & WS_VISIBLE) != 0;
    if (redraw) {
        step.oldPixels = Visible(window, kPixels);
    }
    if (step.order) {
        ChangeOrder(window, position.hwndInsertAfter, position.flags);
    }
    if ((position.flags & SWP_SHOWWINDOW) != 0) {
        window->style |= WS_VISIBLE;
    } else if ((position.flags & SWP_HIDEWINDOW) != 0) {
        window->style &= ~static_cast<DWORD>(WS_VISIBLE);
    }
    Resize(window, step);
    WindowsChanged();

    gdi::Region lost, held;
    if (redraw) {
        held = Visible(window, kPixels);
        gdi::Region fresh = held;
        if (wasVisible && (position.flags & SWP_NOCOPYBITS) == 0) {
            fresh.Subtract(KeepPixels(step, held));
        }
        if (!fresh.Empty()) {
            InvalidateTree(window, fresh);
        }
        lost = step.oldPixels;
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
        ExposeWithin(redraw ? window->parent : nullptr, lost);
    }
    RefreshContexts();
}

}  // namespace platform::user
