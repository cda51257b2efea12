/// @file context.h
/// A device context from inside: where it draws, what is selected, and the clip that results.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <mutex>
#include <optional>
#include <type_traits>
#include <vector>

#include "gdi/context/objects.h"
#include "gdi/surface/region.h"
#include "gdi/surface/screen.h"
#include "gdi/surface/surface.h"

namespace platform::gdi {

/// A coordinate, or the far point beyond every surface that stands for all that lie further off: what is computed from
/// such numbers cannot overflow.
constexpr LONG Near(std::int64_t coordinate) {
    constexpr std::int64_t kFar = std::int64_t{1} << 28;
    return static_cast<LONG>(std::clamp(coordinate, -kFar, kFar));
}

/// What SaveDC keeps.
struct DrawState {
    Pen* pen = nullptr;
    Brush* brush = nullptr;
    Font* font = nullptr;
    Bitmap* bitmap = nullptr;  ///< memory contexts only
    COLORREF textColour = RGB(0, 0, 0);
    COLORREF backColour = RGB(255, 255, 255);
    int backMode = OPAQUE;
    POINT position{};
    std::optional<Region> clip;  ///< device coordinates
};

struct DeviceContext {
    static constexpr base::HandleKind kKind = base::HandleKind::DeviceContext;
    std::uint32_t handle = 0;
    bool screen = false;
    bool windowContext = false;  ///< kept by the user module
    Surface surface;
    POINT origin{};  ///< device (0, 0) on the surface
    Region visible;  ///< surface coordinates
    DrawState state;
    std::vector<DrawState> saved;

    Region drawable;  ///< visible area cut by the clip region, surface coordinates
    bool drawableStale = true;

    const Region& Drawable();
    void ClipChanged() {
        drawableStale = true;
    }
    /// Device to surface coordinates.
    POINT ToSurface(int x, int y) const {
        return {Near(std::int64_t{Near(x)} + origin.x), Near(std::int64_t{Near(y)} + origin.y)};
    }
    RECT ToSurface(const RECT& rect) const {
        const POINT a = ToSurface(rect.left, rect.top);
        const POINT b = ToSurface(rect.right, rect.bottom);
        return {a.x, a.y, b.x, b.y};
    }
    /// Notes what was drawn on the screen. Surface coordinates, cut to the drawable area's bounds.
    void Drawn(const RECT& rect) const;
};

/// The screen may have been given other pixels since the context was made. Its lock is held.
void FollowScreen(DeviceContext& context);

/// Finds a context, and holds the screen's lock while it draws there. Test it before use; a bad handle has set the
/// error.
class Drawing {
  public:
    explicit Drawing(HDC context) : context_(FindObject<DeviceContext>(context)) {
        if (context_ && context_->screen) {
            lock_.emplace(ScreenLock());
            FollowScreen(*context_);
        }
    }
    explicit operator bool() const {
        return context_ != nullptr;
    }
    DeviceContext* operator->() const {
        return context_;
    }
    DeviceContext& operator*() const {
        return *context_;
    }

  private:
    DeviceContext* context_;
    std::optional<ScreenGuard> lock_;
};

/// Runs draw(context) with the screen's lock held, and no exception leaves it. @returns its result; 0 for a bad handle and
/// without memory, with the error set.
template <class Draw>
auto DrawIn(HDC handle, Draw draw) {
    using Result = std::invoke_result_t<Draw, DeviceContext&>;
    const Drawing drawing(handle);
    return drawing ? Guarded(Result{}, [&] { return draw(*drawing); }) : Result{};
}

}  // namespace platform::gdi
