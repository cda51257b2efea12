// Brushes turned into what they lay down on a surface.
#include "gdi/context/raster.h"

namespace platform::gdi {

namespace {

Ink PatternInk(const DeviceContext& context, const Brush& brush) {
    Ink ink;
    ink.width = brush.width;
    ink.height = brush.height;
    ink.origin = context.origin;
    ink.tile.resize(static_cast<std::size_t>(brush.width) * static_cast<std::size_t>(brush.height));
    if (brush.monochrome) {
        // On a monochrome bitmap the pattern's bits are the bitmap's.
        const bool same = context.surface.monochrome;
        const std::uint32_t zero = same ? 0 : NativeColour(context.surface, PixelOf(context.state.textColour));
        const std::uint32_t one = same ? 1 : NativeColour(context.surface, PixelOf(context.state.backColour));
        for (std::size_t i = 0; i < ink.tile.size(); ++i) {
            ink.tile[i] = brush.pixels[i] ? one : zero;
        }
    } else {
        for (std::size_t i = 0; i < ink.tile.size(); ++i) {
            ink.tile[i] = NativeColour(context.surface, brush.pixels[i]);
        }
    }
    return ink;
}

}  // namespace

Ink PlainInk(const DeviceContext& context, COLORREF colour) {
    Ink ink;
    ink.colour = NativeColour(context.surface, PixelOf(colour));
    return ink;
}

Ink InkOf(const DeviceContext& context, const Brush& brush) {
    switch (brush.style) {
        case BS_PATTERN:
            return PatternInk(context, brush);
        case BS_NULL: {
            Ink ink;
            ink.none = true;
            return ink;
        }
        default:
            return PlainInk(context, brush.colour);
    }
}

}  // namespace platform::gdi
