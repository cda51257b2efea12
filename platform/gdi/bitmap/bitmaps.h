/// @file bitmaps.h
/// Making bitmaps, and reading device-independent ones.
#pragma once

#include <array>
#include <memory>
#include <optional>

#include "gdi/context/objects.h"

namespace platform::gdi {

/// @returns whether there are bitmaps with so many bits a pixel.
bool IsDepth(int bitsPerPixel);

/// @returns a bitmap of zeroes with rows of multiples of four bytes; null, with the error set, for a bad size or
/// format.
std::unique_ptr<Bitmap> NewBitmap(int width, int height, int bitsPerPixel);

/// A device-independent bitmap's header, checked.
struct DibLayout {
    int width = 0;
    int height = 0;
    bool topDown = false;
    int bitsPerPixel = 0;
    std::size_t rowBytes = 0;
    std::size_t headerBytes = 0;
    std::size_t paletteBytes = 0;  ///< the colours that follow
    std::array<std::uint32_t, 256> palette{};
    int paletteSize = 0;

    /// @returns a view of `lines` rows, which lie in memory as the header says.
    Surface View(const void* bits, int lines) const;
    std::size_t Bytes() const {
        return rowBytes * static_cast<std::size_t>(height);
    }
};

/// Reads a header (both kinds) and, where colours are asked for, the palette. @returns nothing for a format that is not
/// supported. `room` is how many bytes may be read; 0 when the caller vouches for them.
std::optional<DibLayout> ReadLayout(const void* info, UINT usage, bool colours, std::size_t room = 0);

/// Fills a bitmap with the pixels of a device-independent one.
bool SetBits(HBITMAP bitmap, const void* bits, const BITMAPINFO* info);
/// Draws the pixels of a device-independent bitmap, stretched to the place.
bool StretchBits(HDC context, const RECT& place, const void* bits, const BITMAPINFO* info, DWORD operation);

}  // namespace platform::gdi
