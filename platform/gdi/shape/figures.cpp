// Filled figures: the interior with the brush, the border with the pen.
#include <algorithm>

#include "gdi/shape/lines.h"
#include "gdi/context/raster.h"
#include "gdi/shape/shapes.h"

using namespace platform::gdi;

namespace {

RECT Ordered(const RECT& rect) {
    return {std::min(rect.left, rect.right), std::min(rect.top, rect.bottom), std::max(rect.left, rect.right),
            std::max(rect.top, rect.bottom)};
}

/// Where the outer edge of a figure's border runs: a wide pen straddles the edge, and without a
/// pen the figure is a pixel smaller.
RECT OuterEdge(const DeviceContext& context, const Stroke& stroke, const RECT& logical) {
    RECT rect = context.ToSurface(Ordered(logical));
    if (stroke.None()) {
        --rect.right;
        --rect.bottom;
    } else if (stroke.Width() > 1) {
        const int before = stroke.Width() / 2;
        const int after = (stroke.Width() - 1) / 2;
        rect = {rect.left - before, rect.top - before, rect.right + after, rect.bottom + after};
    }
    return rect;
}

void PaintFigure(DeviceContext& context, const Stroke& stroke, const Region& outer) {
    const Ink brush = InkOf(context, *context.state.brush);
    const Region inner = stroke.None() ? outer : Eroded(outer, stroke.Width());
    if (!brush.none) {
        Combine(context, inner, kCopyPattern, &brush);
    }
    if (!stroke.None()) {
        Region border(outer);
        border.Subtract(inner);
        Combine(context, border, kCopyPattern, &stroke.PenInk());
    }
}

}  // namespace

BOOL WINAPI Rectangle(HDC handle, int left, int top, int right, int bottom) {
    const Drawing drawing(handle);
    if (!drawing) {
        return FALSE;
    }
    return Guarded(FALSE, [&] {
        Stroke stroke(*drawing);
        const RECT rect = OuterEdge(*drawing, stroke, {left, top, right, bottom});
        if (rect.left >= rect.right || rect.top >= rect.bottom) {
            return TRUE;
        }
        const int width = stroke.None() ? 0 : stroke.Width();
        const RECT inner{rect.left + width, rect.top + width, rect.right - width, rect.bottom - width};
        Region border(rect);
        border.Subtract(inner);
        const Ink brush = InkOf(*drawing, *drawing->state.brush);
        if (!brush.none) {
            Combine(*drawing, inner, kCopyPattern, &brush);
        }
        if (width > 0) {
            Combine(*drawing, border, kCopyPattern, &stroke.PenInk());
        }
        return TRUE;
    });
}

BOOL WINAPI Ellipse(HDC handle, int left, int top, int right, int bottom) {
    const Drawing drawing(handle);
    if (!drawing) {
        return FALSE;
    }
    return Guarded(FALSE, [&] {
        const Stroke stroke(*drawing);
        PaintFigure(*drawing, stroke, EllipseArea(OuterEdge(*drawing, stroke, {left, top, right, bottom})));
        return TRUE;
    });
}
