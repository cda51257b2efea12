/// @file bitmaps.h
/// Making bitmaps, and reading device-independent ones.
#pragma once

#include <array>
#include <memory>
#include <optional>

#include "gdi/context/objects.h"

namespace platform::gdi {

/// @returns a bitmap of zeroes with rows of multiples of four bytes, and one bit a pixel or 32; null, with the error set,
/// for a bad size.
std::unique_ptr<Bitmap> NewBitmap(int width, int height, int bitsPerPixel);

/// A device-independent bitmap's header, checked.
struct DibLayout {
    int width = 0;
    int height = 0;
    bool topDown = false;
    int bitsPerPixel = 0;
    std::size_t rowBytes = 0;
    std::size_t headerBytes = 0;  ///< with the colours that follow
    std::array<std::uint32_t, 256> palette{};

    /// @returns a view of `lines` rows, which lie in memory as the header says.
    Surface View(const void* bits, int lines) const;
    std::size_t Bytes() const {
        return rowBytes * static_cast<std::size_t>(height);
    }
};

/// Reads a header and its palette. @returns nothing for a format that is not supported, and for a palette that ends beyond
/// the bytes that may be read (`room`).
std::optional<DibLayout> ReadLayout(const void* info, std::size_t room);

/// Draws pixels (0x00RRGGBB, the top row first), stretched to the place.
bool StretchBits(HDC context, const RECT& place, const std::uint32_t* pixels, SIZE size, DWORD operation);

}  // namespace platform::gdi
