/// @file raster.h
/// Raster operations: how pattern, source and destination become pixels.
#pragma once

#include <cstdint>
#include <vector>

#include "gdi/context/context.h"

namespace platform::gdi {

/// A ternary raster operation: bit P*4 + S*2 + D of the byte is the result for those three bits.
using Operation = std::uint8_t;
constexpr Operation kCopyPattern = 0xF0;
constexpr Operation kCopySource = 0xCC;
constexpr Operation kInvert = 0x55;
constexpr Operation kXorPattern = 0x5A;
constexpr Operation kBlack = 0x00;
constexpr Operation kWhite = 0xFF;
constexpr Operation kKeep = 0xAA;

constexpr Operation OperationOf(DWORD rasterOperation) {
    return static_cast<Operation>(rasterOperation >> 16);
}
constexpr bool UsesPattern(Operation operation) {
    return ((operation >> 4 ^ operation) & 0x0F) != 0;
}
constexpr bool UsesSource(Operation operation) {
    return ((operation >> 2 ^ operation) & 0x33) != 0;
}
constexpr bool UsesDestination(Operation operation) {
    return ((operation >> 1 ^ operation) & 0x55) != 0;
}

/// What a brush or pen lays down on one surface, in its native values.
struct Ink {
    bool none = false;
    std::uint32_t colour = 0;
    int width = 0;  ///< of the tile; 0 for a plain colour
    int height = 0;
    POINT origin{};  ///< of the tile, surface coordinates
    std::vector<std::uint32_t> tile;
};
Ink InkOf(const DeviceContext& context, const Brush& brush);
Ink PlainInk(const DeviceContext& context, COLORREF colour);

/// Delivers source pixels as native values of the destination.
class RowSource {
  public:
    virtual ~RowSource() = default;
    /// The pixels for destination (x, y) and right of it, surface coordinates.
    virtual void Read(int x, int y, int count, std::uint32_t* out) = 0;
};

/// Mixes ink and source into a rectangle that lies inside the surface.
void CombineRect(const Surface& surface, const RECT& rect, Operation operation, const Ink* ink, RowSource* source);

/// The same for whatever of the area (surface coordinates) the context can draw to, and notes it as drawn.
void Combine(DeviceContext& context, const RECT& area, Operation operation, const Ink* ink,
             RowSource* source = nullptr);
void Combine(DeviceContext& context, const Region& area, Operation operation, const Ink* ink);

}  // namespace platform::gdi
