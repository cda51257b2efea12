/// @file system_ink.h
/// Painting with system colours, for edges and frame controls.
#pragma once

#include "gdi/context/raster.h"
#include "gdi/context/syscolors.h"

namespace platform::gdi {

/// Fills rectangles given in logical coordinates. The context stays locked while it lives.
class SystemPainter {
  public:
    explicit SystemPainter(DeviceContext& context) : context_(context) {}
    void Fill(const RECT& rect, int colour) {
        Ink ink;
        ink.colour = NativeColour(context_.surface, SystemColourPixel(colour));
        Combine(context_, context_.ToSurface(rect), kCopyPattern, &ink);
    }
    void Fill(int left, int top, int right, int bottom, int colour) {
        Fill(RECT{left, top, right, bottom}, colour);
    }
    /// Every other pixel in either colour.
    void Dither(const RECT& rect, int first, int second);

  private:
    DeviceContext& context_;
};

/// DrawEdge with the context at hand; true for what DrawEdge answers TRUE to.
bool PaintEdge(SystemPainter& painter, RECT& rect, UINT edge, UINT flags);

}  // namespace platform::gdi
