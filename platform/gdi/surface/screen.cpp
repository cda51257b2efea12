#include "gdi/surface/screen.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace platform::gdi {

namespace {

constexpr int kMostPixels = 16384;  // along a side

// What was drawn, as a short list: drawing marks something at every call, and exactness is worth less than speed.
struct Dirty {
    std::array<RECT, 24> rects;
    int count = 0;
    void (*hook)() = nullptr;
};

Dirty& DirtyArea() {
    static Dirty dirty;
    return dirty;
}

bool Covers(const RECT& outer, const RECT& inner) {
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

SIZE UsualSize() {
    if (const char* text = std::getenv("CVUTIL32_SCREEN")) {
        int w = 0;
        int h = 0;
        if (std::sscanf(text, "%dx%d", &w, &h) == 2 && w >= 64 && h >= 64 && w <= kMostPixels && h <= kMostPixels) {
            return {w, h};
        }
    }
    return {1024, 768};
}

ScreenView MakeView(SIZE size) {
    const int width = std::clamp<int>(size.cx, 1, kMostPixels);
    const int height = std::clamp<int>(size.cy, 1, kMostPixels);
    // Untouched pages of a fresh block cost nothing.
    void* pixels = std::calloc(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 4);
    if (!pixels) {
        return {nullptr, 0, 0, 0};
    }
    return {static_cast<std::uint32_t*>(pixels), width, height, width};
}

// Views that were current once are kept: someone may be reading one without the lock.
struct KeptView {
    ScreenView view;
    const KeptView* former;
};

std::atomic<const KeptView*>& CurrentView() {
    static const KeptView first{MakeView(chooseScreenSize ? chooseScreenSize(UsualSize()) : UsualSize()), nullptr};
    static std::atomic<const KeptView*> current{&first};
    return current;
}

/// Calls copy(rect) for destination rectangles (bands from the top, left to right within a band, as regions hold them)
/// so that nothing that is still to be read is overwritten: bands go against the move, and so do the rectangles of a
/// band.
template <class Copy>
void ForEachAgainstMove(std::span<const RECT> rects, int dx, int dy, Copy&& copy) {
    std::size_t low = 0;
    std::size_t high = rects.size();
    while (low < high) {
        std::size_t begin = low;
        std::size_t end = high;
        if (dy > 0) {
            begin = end - 1;
            while (begin > low && rects[begin - 1].top == rects[begin].top) {
                --begin;
            }
            high = begin;
        } else {
            end = begin + 1;
            while (end < high && rects[end].top == rects[begin].top) {
                ++end;
            }
            low = end;
        }
        for (std::size_t i = 0; i < end - begin; ++i) {
            copy(dx > 0 ? rects[end - 1 - i] : rects[begin + i]);
        }
    }
}

}  // namespace

std::recursive_mutex& ScreenLock() {
    static std::recursive_mutex lock;
    return lock;
}

SIZE (*chooseScreenSize)(SIZE usual) = nullptr;

ScreenView Screen() {
    return CurrentView().load(std::memory_order_acquire)->view;
}

bool ResizeScreen(SIZE size) {
    const ScreenGuard guard(ScreenLock());
    const ScreenView old = Screen();
    const ScreenView view = MakeView(size);
    const auto* next = view.pixels ? new (std::nothrow) KeptView{view, CurrentView().load()} : nullptr;
    if (!next) {
        std::free(view.pixels);
        return false;
    }
    const auto bytes = static_cast<std::size_t>(std::min(old.width, view.width)) * 4;
    for (int y = 0; y < std::min(old.height, view.height); ++y) {
        std::memcpy(view.pixels + static_cast<std::ptrdiff_t>(y) * view.stride,
                    old.pixels + static_cast<std::ptrdiff_t>(y) * old.stride, bytes);
    }
    CurrentView().store(next, std::memory_order_release);
    std::free(old.pixels);
    return true;
}

RECT ScreenRect() {
    const ScreenView view = Screen();
    return {0, 0, view.width, view.height};
}

void MarkDirty(const RECT& area) {
    const RECT rect = Cut(area, ScreenRect());
    if (!Holds(rect)) {
        return;
    }
    Dirty& dirty = DirtyArea();
    for (int i = dirty.count; i-- > 0;) {
        if (Covers(dirty.rects[static_cast<std::size_t>(i)], rect)) {
            return;
        }
    }
    const bool first = dirty.count == 0;
    if (dirty.count < static_cast<int>(dirty.rects.size())) {
        dirty.rects[static_cast<std::size_t>(dirty.count++)] = rect;
    } else {
        RECT all = rect;
        for (const RECT& each : dirty.rects) {
            all = Around(all, each);
        }
        dirty.rects[0] = all;
        dirty.count = 1;
    }
    if (first && dirty.hook) {
        dirty.hook();
    }
}

Region TakeDirty() {
    const ScreenGuard guard(ScreenLock());
    Dirty& dirty = DirtyArea();
    Region area(std::span<const RECT>(dirty.rects.data(), static_cast<std::size_t>(dirty.count)));
    dirty.count = 0;
    return area;
}

void SetDirtyHook(void (*hook)()) {
    const ScreenGuard guard(ScreenLock());
    DirtyArea().hook = hook;
}

void CopyScreenArea(const RECT& from, POINT to, const Region& clip) {
    const ScreenGuard guard(ScreenLock());
    const ScreenView view = Screen();
    const int dx = to.x - from.left;
    const int dy = to.y - from.top;
    if (dx == 0 && dy == 0) {
        return;
    }
    Region source(from);
    source.Intersect(ScreenRect());
    source.Offset(dx, dy);
    Region target(clip);
    target.Intersect(source);
    target.Intersect(ScreenRect());
    ForEachAgainstMove(target.Rects(), dx, dy, [&](const RECT& rect) {
        const std::size_t bytes = static_cast<std::size_t>(rect.right - rect.left) * 4;
        for (int i = 0; i < rect.bottom - rect.top; ++i) {
            const int y = dy > 0 ? rect.bottom - 1 - i : rect.top + i;
            std::memmove(view.pixels + static_cast<std::ptrdiff_t>(y) * view.stride + rect.left,
                         view.pixels + static_cast<std::ptrdiff_t>(y - dy) * view.stride + rect.left - dx, bytes);
        }
        MarkDirty(rect);
    });
}

}  // namespace platform::gdi
