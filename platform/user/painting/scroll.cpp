// Moving the pixels of a client area, and telling what has to be painted behind them.
#include "gdi/surface/screen.h"
#include "user/painting/painting.h"

namespace platform::user {
namespace {

gdi::Region Shifted(const gdi::Region& region, int dx, int dy) {
    gdi::Region moved = region;
    moved.Offset(dx, dy);
    return moved;
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

}  // namespace

void ScrollClient(HWND handle, int dx, int dy, bool erase) {
    const UserGuard guard(UserLock());
    Window* window = FindWindowObject(handle);
    if (window == nullptr) {
        return;
    }
    const gdi::Region moving(window->clientRect);
    const gdi::Region reach = Visible(window, StyleFlags(window) | kVisibleClipChildren);
    MoveUpdate(window, moving, reach, dx, dy);
    MarkInvalid(window, MovePixels(moving, reach, dx, dy), erase, false);
}

}  // namespace platform::user
