/// @file shapes.h
/// Shapes as areas of pixels. A pixel belongs to a shape when its centre does.
#pragma once

#include <windef.h>

#include "gdi/surface/region.h"

namespace platform::gdi {

/// The ellipse that touches the sides of a rectangle (right and bottom excluded).
Region EllipseArea(const RECT& rect);
/// The stroke of a line `width` pixels wide with round ends.
Region StrokeArea(POINT from, POINT to, int width);
/// What is left of an area when `steps` layers of border pixels are taken off (neighbours left, right, above and
/// below).
Region Eroded(const Region& area, int steps);

}  // namespace platform::gdi
