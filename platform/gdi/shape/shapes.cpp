#include "gdi/shape/shapes.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace platform::gdi {

namespace {

// Half the width of an ellipse's row, in pixels from the middle; `row` counts from the top of a box `height` high.
double HalfWidth(double width, double height, int row) {
    const double y = (row + 0.5 - height / 2) / (height / 2);
    const double rest = 1 - y * y;
    return rest <= 0 ? 0 : width / 2 * std::sqrt(rest);
}

/// A closed polygon that does not cross itself.
Region PolygonArea(std::span<const POINT> points) {
    const auto [lowest, highest] =
        std::minmax_element(points.begin(), points.end(), [](const POINT& a, const POINT& b) { return a.y < b.y; });
    const int top = std::max<int>(lowest->y, -(1 << 20));
    const int bottom = std::min<int>(highest->y, 1 << 20);
    std::vector<RECT> rows;
    std::vector<double> edges;  // x at the row's middle
    for (int y = top; y < bottom; ++y) {
        edges.clear();
        // Pixel centres lie on the grid points: a row includes its upper edge and excludes its lower one.
        for (std::size_t i = 0; i < points.size(); ++i) {
            const POINT& a = points[i];
            const POINT& b = points[(i + 1) % points.size()];
            if (a.y != b.y && y >= std::min(a.y, b.y) && y < std::max(a.y, b.y)) {
                const double t = (static_cast<double>(y) - a.y) / (static_cast<double>(b.y) - a.y);
                edges.push_back(a.x + t * (static_cast<double>(b.x) - a.x));
            }
        }
        std::sort(edges.begin(), edges.end());
        for (std::size_t i = 0; i + 1 < edges.size(); i += 2) {
            const int left = static_cast<int>(std::ceil(edges[i]));
            const int right = static_cast<int>(std::ceil(edges[i + 1]));
            if (left < right) {
                rows.push_back({left, y, right, y + 1});
            }
        }
    }
    return Region(std::span<const RECT>(rows));
}

}  // namespace

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

Region StrokeArea(POINT from, POINT to, int width) {
    const int before = width / 2;
    const auto dot = [&](POINT at) {
        const RECT box{at.x - before, at.y - before, at.x - before + width, at.y - before + width};
        return width > 2 ? EllipseArea(box) : Region(box);
    };
    Region area = dot(from);
    area.Union(dot(to));
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = std::hypot(dx, dy);
    if (length == 0) {
        return area;
    }
    if (dx == 0 || dy == 0) {
        const RECT straight =
            dy == 0 ? RECT{std::min(from.x, to.x), from.y - before, std::max(from.x, to.x), from.y - before + width}
                    : RECT{from.x - before, std::min(from.y, to.y), from.x - before + width, std::max(from.y, to.y)};
        area.Union(straight);
        return area;
    }
    const double nx = -dy / length * width / 2;
    const double ny = dx / length * width / 2;
    const auto corner = [](double x, double y) {
        return POINT{static_cast<LONG>(std::lround(x)), static_cast<LONG>(std::lround(y))};
    };
    const POINT body[4] = {corner(from.x + nx, from.y + ny), corner(to.x + nx, to.y + ny), corner(to.x - nx, to.y - ny),
                           corner(from.x - nx, from.y - ny)};
    area.Union(PolygonArea(body));
    return area;
}

Region Eroded(const Region& area, int steps) {
    Region rest(area);
    for (int i = 0; i < steps && !rest.Empty(); ++i) {
        const Region whole(rest);
        for (const POINT& shift : {POINT{1, 0}, POINT{-1, 0}, POINT{0, 1}, POINT{0, -1}}) {
            Region moved(whole);
            moved.Offset(shift.x, shift.y);
            rest.Intersect(moved);
        }
    }
    return rest;
}

}  // namespace platform::gdi
