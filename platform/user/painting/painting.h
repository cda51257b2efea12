/// @file painting.h
/// What painting gives: visible regions with their cache, update regions, window contexts, the steps of a paint. All of it is called with UserLock held unless a comment says otherwise.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>

#include "gdi/surface/region.h"
#include "user/model/window.h"

namespace platform::user {

/// How a visible region is cut; the bits index the cache.
enum VisibleFlags : unsigned {
    kVisibleWhole = 1,         ///< the whole window, not only its client area
    kVisibleClipChildren = 2,  ///< without its children
    kVisibleClipSiblings = 4,  ///< without siblings above it; top-level windows are always cut so
    kVisibleFlagCount = 8
};

struct PaintState {
    struct Entry {
        gdi::Region region;
        std::uint64_t generation = 0;
    };
    std::array<Entry, kVisibleFlagCount> visible;
    std::uint64_t prunedGeneration = 0;  ///< when the update region was last cut to what is visible
};

/// Grows with every WindowsChanged.
std::uint64_t WindowsGeneration();

/// The visible region, in screen coordinates; valid until the next call for the same window.
const gdi::Region& Visible(Window* window, unsigned flags);

/// The flags that a window's own styles ask for.
unsigned StyleFlags(const Window* window);

/// The update region in screen coordinates, cut to what is visible now.
gdi::Region ScreenUpdate(Window* window);

/// Cuts the update region to what is still visible. @returns whether anything is left to paint.
bool PruneUpdate(Window* window);

/// Adds an area, in screen coordinates and already cut to the visible region, to a window's update region.
void MarkInvalid(Window* window, gdi::Region area, bool erase, bool frame);

/// Invalidates a window and all its descendants, frames and backgrounds included, where they are visible in an area.
void InvalidateTree(Window* window, const gdi::Region& area);

/// Invalidates what lies under an area within a parent's client area: the parent itself and its children.
void ExposeWithin(Window* parent, const gdi::Region& area);

/// Invalidates whatever lies in an area of the screen that nobody has drawn: windows from the top of the z-order, and the
/// desktop's background. Area in screen coordinates.
void ExposeScreen(const gdi::Region& area);

/// @returns whether the window has something to paint : its update region holds something. Lock held.
bool NeedsPaint(const Window* window);
/// @returns whether a window that is not hidden, or one in it, has something to paint.
bool SubtreeNeedsPaint(const Window* window);

/// Forgets device contexts and regions of a window that is going away.
void ForgetPainting(Window* window);

/// Called after any change of the tree, of a rectangle, of WS_VISIBLE, WS_CLIPCHILDREN, WS_CLIPSIBLINGS or
/// WS_MINIMIZE: visible regions are worked out anew when they are next asked for. Cheap. Lock held.
void WindowsChanged();

// --- contexts (dc.cpp)

/// Hands out a context for a window, clipped as the styles of window and class say. whole: the whole window, not only its
/// client area. limit: null, or the area of the screen that drawing is held to. @returns null when memory has run out.
HDC AcquireContext(Window* window, bool whole, const gdi::Region* limit, bool painting);

/// Takes a context back. @returns false when it is not one that AcquireContext gave. painting: tells whether it was a
/// paint context. Takes the lock itself.
bool ReleaseContext(HDC context, bool* painting = nullptr);

/// Brings the contexts that are in use up to date after windows changed.
void RefreshContexts();

// --- steps of a paint (paint.cpp); they send messages, so the lock must not be held

/// Sends WM_NCPAINT when the frame is due. The window may be gone afterwards.
void SendFramePaint(HWND handle);

/// Sends WM_ERASEBKGND when it is due, to a context of its own.
void SendErase(HWND handle);

/// Sends WM_PAINT to a window and its descendants where it is due, each once, parents first.
/// allChildren: even those of windows with WS_CLIPCHILDREN. eraseOnly: only frames and backgrounds.
void UpdateTree(HWND handle, bool allChildren, bool eraseOnly);

/// Moves the pixels of a client area that nobody else draws to; what comes into view has to be painted. Takes the lock itself.
/// @param erase  whether its background is due as well.
void ScrollClient(HWND control, int dx, int dy, bool erase);

/// @returns how many window contexts are handed out and not released yet, for GetGuiResources.
int ContextsInUse();

}  // namespace platform::user
