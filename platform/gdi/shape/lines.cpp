// Lines and single pixels.
#include <algorithm>
#include <cstdlib>
#include <optional>

#include "gdi/shape/lines.h"
#include "gdi/context/raster.h"

namespace platform::gdi {

Stroke::Stroke(DeviceContext& context) : context_(context) {
    const Pen& pen = *context.state.pen;
    none_ = pen.style == PS_NULL;
    ink_ = PlainInk(context, pen.colour);
}

void Stroke::Line(POINT from, POINT to) {
    if (none_) {
        return;
    }
    if (from.x == to.x || from.y == to.y) {
        // The end point stays out, whichever end it is.
        RECT rect{std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x), std::max(from.y, to.y)};
        if (from.y == to.y) {
            rect.left += from.x > to.x;
            rect.right += from.x > to.x;
            rect.bottom = rect.top + 1;
        } else {
            rect.top += from.y > to.y;
            rect.bottom += from.y > to.y;
            rect.right = rect.left + 1;
        }
        Combine(context_, rect, kCopyPattern, &ink_);
    } else {
        Thin(from, to);
    }
}

void Stroke::Thin(POINT from, POINT to) {
    const Region& drawable = context_.Drawable();
    const RECT bounds = drawable.Bounds();
    const std::int64_t dx = std::abs(std::int64_t{to.x} - from.x);
    const std::int64_t dy = std::abs(std::int64_t{to.y} - from.y);
    const int stepX = from.x < to.x ? 1 : -1;
    const int stepY = from.y < to.y ? 1 : -1;
    const std::int64_t major = std::max(dx, dy);
    const std::int64_t minor = std::min(dx, dy);
    // Steps before and after the drawable area are not taken one by one.
    const bool flat = dx >= dy;
    const std::int64_t start = flat ? from.x : from.y;
    const std::int64_t low = flat ? bounds.left : bounds.top;
    const std::int64_t high = flat ? bounds.right : bounds.bottom;
    const bool forward = (flat ? stepX : stepY) > 0;
    const std::int64_t first = std::clamp<std::int64_t>(forward ? low - start : start - high + 1, 0, major);
    const std::int64_t last = std::clamp<std::int64_t>(forward ? high - start : start - low + 1, first, major);
    for (std::int64_t i = first; i < last; ++i) {
        const std::int64_t travelled = i * minor - major / 2;
        const std::int64_t aside = travelled > 0 ? (travelled + major - 1) / major : 0;
        const POINT at{static_cast<LONG>(from.x + stepX * (flat ? i : aside)),
                       static_cast<LONG>(from.y + stepY * (flat ? aside : i))};
        if (drawable.Contains(at)) {
            WritePixel(context_.surface, at.x, at.y, ink_.colour);
        }
    }
    const RECT seen = Cut(bounds, {std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x) + 1,
                                   std::max(from.y, to.y) + 1});
    if (Holds(seen)) {
        context_.Drawn(seen);
    }
}

}  // namespace platform::gdi

using namespace platform::gdi;

namespace {

/// @returns where a pixel lies on the surface; nothing where nothing can be drawn.
std::optional<POINT> PixelAt(const Drawing& drawing, int x, int y) {
    const POINT at = drawing ? drawing->ToSurface(x, y) : POINT{};
    return drawing && drawing->Drawable().Contains(at) ? std::optional(at) : std::nullopt;
}

}  // namespace

BOOL WINAPI MoveToEx(HDC handle, int x, int y, LPPOINT previous) {
    auto* context = FindObject<DeviceContext>(handle);
    if (!context) {
        return FALSE;
    }
    if (previous) {
        *previous = context->state.position;
    }
    context->state.position = {x, y};
    return TRUE;
}

BOOL WINAPI LineTo(HDC handle, int x, int y) {
    return DrawIn(handle, [&](DeviceContext& context) {
        POINT& position = context.state.position;
        Stroke(context).Line(context.ToSurface(position.x, position.y), context.ToSurface(x, y));
        position = {x, y};
        return TRUE;
    });
}

COLORREF WINAPI GetPixel(HDC handle, int x, int y) {
    const Drawing drawing(handle);
    const auto at = PixelAt(drawing, x, y);
    return at ? ColourOf(ShownColour(drawing->surface, ReadPixel(drawing->surface, at->x, at->y))) : CLR_INVALID;
}

COLORREF WINAPI SetPixel(HDC handle, int x, int y, COLORREF colour) {
    const Drawing drawing(handle);
    const auto at = PixelAt(drawing, x, y);
    if (!at) {
        return CLR_INVALID;
    }
    const std::uint32_t value = NativeColour(drawing->surface, PixelOf(colour));
    WritePixel(drawing->surface, at->x, at->y, value);
    drawing->Drawn({at->x, at->y, at->x + 1, at->y + 1});
    return ColourOf(ShownColour(drawing->surface, value));
}
