// Brushes turned into what they lay down on a surface.
#include <array>

#include "gdi/context/raster.h"

namespace platform::gdi {

namespace {

constexpr int kHatchSize = 8;

// Rows from the top, the leftmost pixel in the highest bit.
constexpr std::array<std::array<std::uint8_t, kHatchSize>, 6> kHatches{{
    {0x00, 0x00, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00},  // horizontal
    {0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08},  // vertical
    {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01},  // downwards
    {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80},  // upwards
    {0x08, 0x08, 0x08, 0x08, 0xFF, 0x08, 0x08, 0x08},  // cross
    {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81},  // diagonal cross
}};

void PlaceTile(Ink& ink, const DeviceContext& context, int width, int height) {
    ink.width = width;
    ink.height = height;
    ink.origin = {static_cast<LONG>(context.origin.x + context.state.brushOrigin.x),
                  static_cast<LONG>(context.origin.y + context.state.brushOrigin.y)};
    ink.tile.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
}

Ink HatchInk(const DeviceContext& context, const Brush& brush) {
    Ink ink;
    PlaceTile(ink, context, kHatchSize, kHatchSize);
    const std::uint32_t line = NativeColour(context.surface, PixelOf(brush.colour));
    const std::uint32_t back = NativeColour(context.surface, PixelOf(context.state.backColour));
    const bool holes = context.state.backMode == TRANSPARENT;
    if (holes) {
        ink.holes.resize(ink.tile.size());
    }
    const auto& rows = kHatches[brush.hatch];
    for (std::size_t i = 0; i < ink.tile.size(); ++i) {
        const bool set = rows[i / kHatchSize] & 0x80 >> i % kHatchSize;
        ink.tile[i] = set ? line : back;
        if (holes) {
            ink.holes[i] = !set;
        }
    }
    return ink;
}

Ink PatternInk(const DeviceContext& context, const Brush& brush) {
    Ink ink;
    PlaceTile(ink, context, brush.width, brush.height);
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
        case BS_HATCHED:
            return HatchInk(context, brush);
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
