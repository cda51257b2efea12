/// @file lines.h
/// Strokes with a context's pen.
#pragma once

#include "gdi/context/raster.h"

namespace platform::gdi {

/// Draws lines with the pen of a context. A line excludes its end point.
class Stroke {
  public:
    explicit Stroke(DeviceContext& context);
    /// Surface coordinates.
    void Line(POINT from, POINT to);
    bool None() const {
        return none_;
    }
    const Ink& PenInk() const {
        return ink_;
    }

  private:
    void Thin(POINT from, POINT to);

    DeviceContext& context_;
    Ink ink_;
    bool none_ = false;
};

}  // namespace platform::gdi
