/// @file surface.h
/// Pixels in memory, in the formats that bitmaps have. Rows are read and written as native values: 0x00RRGGBB where
/// pixels hold colours (24 and 32 bits), an index where they hold indices (1, 4 and 8 bits). What is drawn on has 1 or 32 bits.
#pragma once

#include <windef.h>

#include <cstddef>
#include <cstdint>

namespace platform::gdi {

struct Surface {
    std::byte* bits = nullptr;  ///< the top row
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;  ///< bytes from a row to the one below it
    int bitsPerPixel = 0;
    const std::uint32_t* palette = nullptr;  ///< colours of the indices, unless it is monochrome
    bool monochrome = false;  ///< a device-dependent bitmap of one bit, which takes its colours from contexts

    bool Indexed() const {
        return bitsPerPixel <= 8;
    }
    /// The bits of a native value.
    std::uint32_t Mask() const {
        return Indexed() ? (1u << bitsPerPixel) - 1 : 0x00FFFFFF;
    }
    std::byte* Row(int y) const {
        return bits + y * stride;
    }
    std::uint32_t* Row32(int y) const {
        return reinterpret_cast<std::uint32_t*>(Row(y));
    }
    RECT Bounds() const {
        return {0, 0, width, height};
    }
};

constexpr std::uint32_t PixelOf(COLORREF colour) {
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}
constexpr COLORREF ColourOf(std::uint32_t pixel) {
    return PixelOf(pixel);
}

/// Bytes of a row of a device-dependent bitmap (multiples of 2) and of a device-independent one (multiples of 4).
constexpr std::int64_t WordRowBytes(int width, int bitsPerPixel) {
    return (std::int64_t{width} * bitsPerPixel + 15) / 16 * 2;
}
constexpr std::int64_t DwordRowBytes(int width, int bitsPerPixel) {
    return (std::int64_t{width} * bitsPerPixel + 31) / 32 * 4;
}

/// Whether pixels of this size (not negative) stay below a gibibyte, the most that a bitmap may have.
constexpr bool FitsMemory(std::int64_t rowBytes, int height) {
    constexpr std::int64_t kLargest = std::int64_t{1} << 30;
    return rowBytes <= kLargest && (height == 0 || rowBytes <= kLargest / height);
}

/// Coordinates lie inside the surface: the callers clip.
std::uint32_t ReadPixel(const Surface& surface, int x, int y);
void WritePixel(const Surface& surface, int x, int y, std::uint32_t value);
void ReadRow(const Surface& surface, int x, int y, int count, std::uint32_t* out);
void WriteRow(const Surface& surface, int x, int y, int count, const std::uint32_t* values);

/// @returns the native value that shows a colour (0x00RRGGBB) best.
std::uint32_t NativeColour(const Surface& surface, std::uint32_t pixel);
/// @returns the colour (0x00RRGGBB) that a native value shows; black and white for a monochrome bitmap.
std::uint32_t ShownColour(const Surface& surface, std::uint32_t value);

}  // namespace platform::gdi
