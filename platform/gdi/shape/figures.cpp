// Filled figures: the interior with the brush, the border with the pen.
#include <algorithm>
#include <cmath>
#include <vector>

#include "gdi/shape/lines.h"
#include "gdi/context/raster.h"

using namespace platform::gdi;

namespace {

// Half the width of an ellipse's row, in pixels from the middle; `row` counts from the top of a box `height` high.
double HalfWidth(double width, double height, int row) {
    const double y = (row + 0.5 - height / 2) / (height / 2);
    const double rest = 1 - y * y;
    return rest <= 0 ? 0 : width / 2 * std::sqrt(rest);
}

/// The ellipse that touches the sides of a rectangle (right and bottom excluded). A pixel belongs to it when its centre
/// does.
Region EllipseArea(const RECT& rect) {
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    if (width < 2 || height < 2) {
        return Region(rect);
    }
    std::vector<RECT> rows;
    for (int y = 0; y < height; ++y) {
        // The lower half mirrors the upper one.
        const int row = std::min(y, height - 1 - y);
        const bool middle = 2 * row + 1 == height;
        const int inset = middle ? 0 : static_cast<int>(std::lround(width / 2.0 - HalfWidth(width, height, row)));
        if (2 * inset < width) {
            rows.push_back({rect.left + inset, rect.top + y, rect.right - inset, rect.top + y + 1});
        }
    }
    return Region(std::span<const RECT>(rows));
}

/// What is left of an area without the pixels that have a neighbour outside of it (left, right, above or below).
Region Inside(const Region& area) {
    Region rest(area);
    for (const POINT& shift : {POINT{1, 0}, POINT{-1, 0}, POINT{0, 1}, POINT{0, -1}}) {
        Region moved(area);
        moved.Offset(shift.x, shift.y);
        rest.Intersect(moved);
    }
    return rest;
}

/// areaIn makes the figure's area out of the rectangle that it fills.
BOOL Draw(HDC handle, const RECT& given, Region (*areaIn)(const RECT& rect)) {
    return DrawIn(handle, [&](DeviceContext& context) {
        const Stroke stroke(context);
        RECT rect = context.ToSurface(RECT{std::min(given.left, given.right), std::min(given.top, given.bottom),
                                           std::max(given.left, given.right), std::max(given.top, given.bottom)});
        // Without a pen the figure is a pixel smaller.
        rect.right -= stroke.None();
        rect.bottom -= stroke.None();
        const Region outer = areaIn(rect);
        const Region inner = stroke.None() ? outer : Inside(outer);
        const Ink brush = InkOf(context, *context.state.brush);
        if (!brush.none) {
            Combine(context, inner, kCopyPattern, &brush);
        }
        if (!stroke.None()) {
            Region border(outer);
            border.Subtract(inner);
            Combine(context, border, kCopyPattern, &stroke.PenInk());
        }
        return TRUE;
    });
}

}  // namespace

BOOL WINAPI Rectangle(HDC handle, int left, int top, int right, int bottom) {
    return Draw(handle, {left, top, right, bottom}, [](const RECT& rect) { return Region(rect); });
}

BOOL WINAPI Ellipse(HDC handle, int left, int top, int right, int bottom) {
    return Draw(handle, {left, top, right, bottom}, EllipseArea);
}
