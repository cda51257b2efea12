#include "user/painting/painting.h"

#include <new>

#include "base/handle.h"
#include "gdi/surface/screen.h"

namespace platform::user {
namespace {

std::uint64_t generation = 1;

void CutSiblings(gdi::Region& region, const Window* window) {
    const RECT bounds = region.Bounds();
    for (const Window* above = window->previous; above != nullptr; above = above->previous) {
        if ((above->style & WS_VISIBLE) != 0 && gdi::Holds(gdi::Cut(bounds, above->windowRect))) {
            region.Subtract(above->windowRect);
        }
    }
}

/// Cuts a region of a window's pixels by everything around the window.
void CutSurroundings(gdi::Region& region, const Window* window, bool ownSiblings) {
    const Window* desktop = Desktop();
    bool siblings = ownSiblings;
    for (const Window* at = window; at != desktop && !region.Empty();) {
        const Window* parent = at->parent;
        if (parent == nullptr) {
            region.Clear();
            return;
        }
        if (siblings || parent == desktop) {
            CutSiblings(region, at);
        }
        if (parent != desktop) {
            if ((parent->style & WS_MINIMIZE) != 0) {
                region.Clear();
                return;
            }
            region.Intersect(parent->clientRect);
        }
        at = parent;
        siblings = (at->style & WS_CLIPSIBLINGS) != 0;
    }
}

void CutChildren(gdi::Region& region, const Window* window) {
    for (const Window* child = window->firstChild; child != nullptr; child = child->next) {
        // A child does not reach into its parent's frame, whatever its rectangle says.
        const RECT seen = gdi::Cut(child->windowRect, window->clientRect);
        if ((child->style & WS_VISIBLE) != 0 && gdi::Holds(seen)) {
            region.Subtract(seen);
        }
    }
}

gdi::Region Compute(Window* window, unsigned flags) {
    gdi::Region region;
    if (window == Desktop()) {
        return gdi::Region(gdi::ScreenRect());
    }
    if (!IsShown(window)) {
        return region;
    }
    region.Set((flags & kVisibleWhole) != 0 ? window->windowRect : window->clientRect);
    region.Intersect(gdi::ScreenRect());
    CutSurroundings(region, window, (flags & kVisibleClipSiblings) != 0);
    if ((flags & kVisibleClipChildren) != 0) {
        CutChildren(region, window);
    }
    return region;
}

}  // namespace

std::uint64_t WindowsGeneration() {
    return generation;
}

void WindowsChanged() {
    ++generation;
}

const gdi::Region& Visible(Window* window, unsigned flags) {
    flags &= kVisibleFlagCount - 1;
    if (window->paintState == nullptr) {
        window->paintState = new (std::nothrow) PaintState;
        if (window->paintState == nullptr) {
            static thread_local gdi::Region uncached;
            uncached = Compute(window, flags);
            return uncached;
        }
    }
    PaintState::Entry& entry = window->paintState->visible[flags];
    if (entry.generation != generation || !entry.region.Valid()) {
        entry.region = Compute(window, flags);
        entry.generation = generation;
    }
    return entry.region;
}

unsigned StyleFlags(const Window* window) {
    return ((window->style & WS_CLIPCHILDREN) != 0 ? kVisibleClipChildren : 0U) |
           ((window->style & WS_CLIPSIBLINGS) != 0 ? kVisibleClipSiblings : 0U);
}

}  // namespace platform::user
