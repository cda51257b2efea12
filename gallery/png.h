/// @file png.h
/// Writes pictures as PNG files, on any host and without a library.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gallery {

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;  ///< 0x00RRGGBB, top row first
};

/// @returns the bytes of a PNG file: 24-bit colour, not compressed.
std::string EncodePng(const Picture& picture);

/// @returns false when the file could not be written in full.
bool WritePng(const std::string& file, const Picture& picture);

}  // namespace gallery
