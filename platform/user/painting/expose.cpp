// What becomes visible without having been drawn: windows get it into their update regions, the desktop gets its
// colour.
#include <algorithm>

#include "gdi/context/syscolors.h"
#include "gdi/surface/screen.h"
#include "user/model/above.h"
#include "user/painting/painting.h"

namespace platform::user {

void InvalidateTree(Window* window, const gdi::Region& area) {
    if ((window->style & WS_VISIBLE) == 0 || !area.Touches(window->windowRect)) {
        return;
    }
    gdi::Region own = area;
    own.Intersect(Visible(window, (StyleFlags(window) | kVisibleWhole)));
    MarkInvalid(window, std::move(own), true, true);
    if (window->firstChild == nullptr || (window->style & WS_MINIMIZE) != 0) {
        return;
    }
    gdi::Region inside = area;
    inside.Intersect(window->clientRect);
    if (inside.Empty()) {
        return;
    }
    for (Window* child = window->firstChild; child != nullptr; child = child->next) {
        InvalidateTree(child, inside);
    }
}

void ExposeWithin(Window* parent, const gdi::Region& area) {
    if (area.Empty()) {
        return;
    }
    if (parent == nullptr || parent == Desktop()) {
        ExposeScreen(area);
        return;
    }
    gdi::Region inside = area;
    inside.Intersect(parent->clientRect);
    InvalidateTree(parent, inside);
}

void ExposeScreen(const gdi::Region& area) {
    UserGuard guard(UserLock());
    gdi::Region bare = area;
    bare.Intersect(gdi::ScreenRect());
    for (Window* window = Desktop()->firstChild; window != nullptr && !bare.Empty(); window = window->next) {
        if ((window->style & WS_VISIBLE) == 0 || !bare.Touches(window->windowRect)) {
            continue;
        }
        InvalidateTree(window, bare);
        bare.Subtract(window->windowRect);
    }
    if (!bare.Empty()) {
        PaintDesktop(bare);
    }
}

void PaintDesktop(const gdi::Region& area) {
    const std::uint32_t pixel = gdi::SystemColourPixel(COLOR_BACKGROUND);
    gdi::ScreenGuard guard(gdi::ScreenLock());
    const gdi::ScreenView screen = gdi::Screen();
    gdi::Region inside = area;
    inside.Intersect(gdi::ScreenRect());
    for (const RECT& rect : inside.Rects()) {
        for (LONG y = rect.top; y < rect.bottom; ++y) {
            std::uint32_t* row = screen.pixels + static_cast<std::ptrdiff_t>(y) * screen.stride;
            std::fill(row + rect.left, row + rect.right, pixel);
        }
        gdi::MarkDirty(rect);
    }
}

}  // namespace platform::user
