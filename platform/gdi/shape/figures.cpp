// Filled figures: the interior with the brush, the border with the pen.
#include <algorithm>
#include <vector>

#include "gdi/shape/lines.h"
#include "gdi/context/raster.h"
#include "gdi/shape/shapes.h"

using namespace platform::gdi;

namespace {

RECT Ordered(const RECT& rect) {
    return {std::min(rect.left, rect.right), std::min(rect.top, rect.bottom), std::max(rect.left, rect.right),
            std::max(rect.top, rect.bottom)};
}

/// Where the outer edge of a figure's border runs: a wide pen straddles the edge unless it keeps inside the frame, and
/// without a pen the figure is a pixel smaller.
RECT OuterEdge(const DeviceContext& context, const Stroke& stroke, const RECT& logical) {
    RECT rect = context.ToSurface(Ordered(logical));
    if (stroke.None()) {
        --rect.right;
        --rect.bottom;
    } else if (stroke.Width() > 1 && context.state.pen->style != PS_INSIDEFRAME) {
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
        Combine(context, inner, stroke.Mix(), &brush);
    }
    if (!stroke.None()) {
        Region border(outer);
        border.Subtract(inner);
        Combine(context, border, stroke.Mix(), &stroke.PenInk());
    }
}

template <class Shape>
BOOL Figure(HDC handle, const RECT& rect, Shape&& shape) {
    const Drawing drawing(handle);
    if (!drawing) {
        return FALSE;
    }
    return Guarded(FALSE, [&] {
        const Stroke stroke(*drawing);
        PaintFigure(*drawing, stroke, shape(OuterEdge(*drawing, stroke, rect)));
        return TRUE;
    });
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
        if (!stroke.Dashed()) {
            const int width = stroke.None() ? 0 : stroke.Width();
            const RECT inner{rect.left + width, rect.top + width, rect.right - width, rect.bottom - width};
            Region border(rect);
            border.Subtract(inner);
            const Ink brush = InkOf(*drawing, *drawing->state.brush);
            if (!brush.none) {
                Combine(*drawing, inner, stroke.Mix(), &brush);
            }
            if (width > 0) {
                Combine(*drawing, border, stroke.Mix(), &stroke.PenInk());
            }
            return TRUE;
        }
        const Ink brush = InkOf(*drawing, *drawing->state.brush);
        if (!brush.none) {
            Combine(*drawing, RECT{rect.left + 1, rect.top + 1, rect.right - 1, rect.bottom - 1}, stroke.Mix(), &brush);
        }
        const POINT corners[4] = {{rect.right - 1, rect.top},
                                  {rect.left, rect.top},
                                  {rect.left, rect.bottom - 1},
                                  {rect.right - 1, rect.bottom - 1}};
        for (int i = 0; i < 4; ++i) {
            stroke.Line(corners[i], corners[(i + 1) % 4]);
        }
        return TRUE;
    });
}

BOOL WINAPI RoundRect(HDC handle, int left, int top, int right, int bottom, int width, int height) {
    return Figure(handle, {left, top, right, bottom},
                  [&](const RECT& rect) { return RoundRectArea(rect, width, height); });
}

BOOL WINAPI Ellipse(HDC handle, int left, int top, int right, int bottom) {
    return Figure(handle, {left, top, right, bottom}, [](const RECT& rect) { return EllipseArea(rect); });
}

BOOL WINAPI Polygon(HDC handle, const POINT* points, int count) {
    const Drawing drawing(handle);
    if (!drawing) {
        return FALSE;
    }
    if (!points || count < 2) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    return Guarded(FALSE, [&] {
        std::vector<POINT> corners;
        corners.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            corners.push_back(drawing->ToSurface(points[i].x, points[i].y));
        }
        Stroke stroke(*drawing);
        const Ink brush = InkOf(*drawing, *drawing->state.brush);
        if (!brush.none) {
            Combine(*drawing, PolygonArea(corners, drawing->state.polyFillMode == WINDING), stroke.Mix(), &brush);
        }
        for (std::size_t i = 0; i < corners.size(); ++i) {
            stroke.Line(corners[i], corners[(i + 1) % corners.size()]);
        }
        return TRUE;
    });
}

namespace {

Region OnSurface(const DeviceContext& context, const Region& logical) {
    Region area(logical);
    const POINT zero = context.ToSurface(0, 0);
    area.Offset(zero.x, zero.y);
    return area;
}

BOOL FillArea(HDC handle, HRGN region, const Brush* brush, const Operation* operation) {
    const Drawing drawing(handle);
    const auto* object = FindObject<RegionObject>(region);
    if (!drawing || !object) {
        return FALSE;
    }
    return Guarded(FALSE, [&] {
        const Ink ink = InkOf(*drawing, brush ? *brush : *drawing->state.brush);
        if (!ink.none || operation) {
            Combine(*drawing, OnSurface(*drawing, object->region),
                    operation ? *operation : OperationOfMode(drawing->state.rop2), &ink);
        }
        return TRUE;
    });
}

}  // namespace

BOOL WINAPI FillRgn(HDC context, HRGN region, HBRUSH brush) {
    const auto* object = FindObject<Brush>(brush);
    return object && FillArea(context, region, object, nullptr);
}

BOOL WINAPI PaintRgn(HDC context, HRGN region) {
    return FillArea(context, region, nullptr, nullptr);
}

BOOL WINAPI InvertRgn(HDC context, HRGN region) {
    const Operation invert = kInvert;
    return FillArea(context, region, nullptr, &invert);
}

BOOL WINAPI FrameRgn(HDC handle, HRGN region, HBRUSH brush, int width, int height) {
    const Drawing drawing(handle);
    const auto* object = FindObject<RegionObject>(region);
    const auto* filling = FindObject<Brush>(brush);
    if (!drawing || !object || !filling || width <= 0 || height <= 0) {
        return FALSE;
    }
    return Guarded(FALSE, [&] {
        Region inner(object->region);
        for (const POINT& shift : {POINT{width, 0}, POINT{-width, 0}, POINT{0, height}, POINT{0, -height}}) {
            Region moved(object->region);
            moved.Offset(shift.x, shift.y);
            inner.Intersect(moved);
        }
        Region frame(object->region);
        frame.Subtract(inner);
        const Ink ink = InkOf(*drawing, *filling);
        if (!ink.none) {
            Combine(*drawing, OnSurface(*drawing, frame), OperationOfMode(drawing->state.rop2), &ink);
        }
        return TRUE;
    });
}
