#include "gdi/surface/surface.h"

#include <cstring>

namespace platform::gdi {

std::uint32_t ReadPixel(const Surface& surface, int x, int y) {
    std::uint32_t value = 0;
    ReadRow(surface, x, y, 1, &value);
    return value;
}

void WritePixel(const Surface& surface, int x, int y, std::uint32_t value) {
    WriteRow(surface, x, y, 1, &value);
}

void ReadRow(const Surface& surface, int x, int y, int count, std::uint32_t* out) {
    const auto* row = reinterpret_cast<const unsigned char*>(surface.Row(y));
    switch (surface.bitsPerPixel) {
        case 32:
            std::memcpy(out, surface.Row32(y) + x, static_cast<std::size_t>(count) * 4);
            break;
        case 24:
            row += static_cast<std::ptrdiff_t>(x) * 3;
            for (int i = 0; i < count; ++i, row += 3) {
                out[i] = static_cast<std::uint32_t>(row[0] | row[1] << 8 | row[2] << 16);
            }
            break;
        case 8:
            for (int i = 0; i < count; ++i) {
                out[i] = row[x + i];
            }
            break;
        case 4:
            for (int i = 0; i < count; ++i) {
                const int at = x + i;
                out[i] = at & 1 ? row[at >> 1] & 15u : row[at >> 1] >> 4u;
            }
            break;
        case 1:
            for (int i = 0; i < count; ++i) {
                const int at = x + i;
                out[i] = row[at >> 3] >> (7 - (at & 7)) & 1u;
            }
            break;
        default:
            break;
    }
}

void WriteRow(const Surface& surface, int x, int y, int count, const std::uint32_t* values) {
    if (surface.bitsPerPixel == 32) {
        std::memcpy(surface.Row32(y) + x, values, static_cast<std::size_t>(count) * 4);
        return;
    }
    auto* row = reinterpret_cast<unsigned char*>(surface.Row(y));
    for (int at = x; at < x + count; ++at) {
        const unsigned bit = 0x80u >> (at & 7);
        unsigned char& byte = row[at >> 3];
        byte = static_cast<unsigned char>(values[at - x] & 1 ? byte | bit : byte & ~bit);
    }
}

std::uint32_t NativeColour(const Surface& surface, std::uint32_t pixel) {
    pixel &= 0x00FFFFFF;
    if (!surface.monochrome) {
        return pixel;
    }
    return (pixel >> 16) + (pixel >> 8 & 0xFF) + (pixel & 0xFF) > 3 * 127 ? 1 : 0;
}

std::uint32_t ShownColour(const Surface& surface, std::uint32_t value) {
    return surface.monochrome ? (value & 1 ? 0x00FFFFFF : 0) : value & 0x00FFFFFF;
}

}  // namespace platform::gdi
