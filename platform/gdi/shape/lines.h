/// @file lines.h
/// Strokes with a context's pen.
#pragma once

#include <array>

#include "gdi/context/raster.h"

namespace platform::gdi {

/// Draws connected lines with the pen and background of a context; dashes run on from line to line. A line
/// excludes its end point.
class Stroke {
  public:
    explicit Stroke(DeviceContext& context);
    /// Surface coordinates.
    void Line(POINT from, POINT to);
    bool None() const {
        return none_;
    }
    int Width() const {
        return width_;
    }
    bool Dashed() const {
        return dashed_;
    }
    const Ink& PenInk() const {
        return ink_;
    }

  private:
    void Thin(POINT from, POINT to);

    DeviceContext& context_;
    Ink ink_;
    Ink gapInk_;
    int width_ = 1;
    bool none_ = false;
    bool dashed_ = false;
    bool gaps_ = false;
    std::array<bool, 32> pattern_{};
    int period_ = 0;
    int phase_ = 0;
};

}  // namespace platform::gdi
