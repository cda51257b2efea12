#include "gdi/surface/surface.h"

#include <array>
#include <cstring>

namespace platform::gdi {

std::uint32_t ReadPixel(const Surface& surface, int x, int y) {
    std::uint32_t value = 0;
    ReadRow(surface, x, y, 1, &value);
    return value;
}

void WritePixel(const Surface& surface, int x, int y, std::uint32_t value) {
    if (surface.bitsPerPixel == 32) {
        surface.Row32(y)[x] = value;
    } else {
        WriteRow(surface, x, y, 1, &value);
    }
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
    auto* row = reinterpret_cast<unsigned char*>(surface.Row(y));
    switch (surface.bitsPerPixel) {
        case 32:
            std::memcpy(surface.Row32(y) + x, values, static_cast<std::size_t>(count) * 4);
            break;
        case 24:
            row += static_cast<std::ptrdiff_t>(x) * 3;
            for (int i = 0; i < count; ++i, row += 3) {
                row[0] = static_cast<unsigned char>(values[i]);
                row[1] = static_cast<unsigned char>(values[i] >> 8);
                row[2] = static_cast<unsigned char>(values[i] >> 16);
            }
            break;
        case 8:
            for (int i = 0; i < count; ++i) {
                row[x + i] = static_cast<unsigned char>(values[i]);
            }
            break;
        case 4:
            for (int i = 0; i < count; ++i) {
                const int at = x + i;
                unsigned char& byte = row[at >> 1];
                byte = static_cast<unsigned char>(at & 1 ? (byte & 0xF0) | (values[i] & 15)
                                                         : (byte & 0x0F) | (values[i] & 15) << 4);
            }
            break;
        case 1:
            for (int i = 0; i < count; ++i) {
                const int at = x + i;
                const unsigned bit = 0x80u >> (at & 7);
                unsigned char& byte = row[at >> 3];
                byte = static_cast<unsigned char>(values[i] & 1 ? byte | bit : byte & ~bit);
            }
            break;
        default:
            break;
    }
}

int NearestIndex(const std::uint32_t* palette, int size, std::uint32_t pixel) {
    const auto channel = [](std::uint32_t value, int shift) { return static_cast<int>(value >> shift & 0xFF); };
    int best = 0;
    int bestDistance = 1 << 30;
    for (int i = 0; i < size; ++i) {
        const int red = channel(palette[i], 16) - channel(pixel, 16);
        const int green = channel(palette[i], 8) - channel(pixel, 8);
        const int blue = channel(palette[i], 0) - channel(pixel, 0);
        const int distance = red * red + green * green + blue * blue;
        if (distance < bestDistance) {
            best = i;
            bestDistance = distance;
            if (distance == 0) {
                break;
            }
        }
    }
    return best;
}

std::uint32_t NativeColour(const Surface& surface, std::uint32_t pixel) {
    pixel &= 0x00FFFFFF;
    if (!surface.Indexed()) {
        return pixel;
    }
    if (surface.monochrome) {
        return (pixel >> 16) + (pixel >> 8 & 0xFF) + (pixel & 0xFF) > 3 * 127 ? 1 : 0;
    }
    return static_cast<std::uint32_t>(NearestIndex(surface.palette, surface.paletteSize, pixel));
}

std::uint32_t ShownColour(const Surface& surface, std::uint32_t value) {
    if (!surface.Indexed()) {
        return value & 0x00FFFFFF;
    }
    if (surface.monochrome) {
        return value & 1 ? 0x00FFFFFF : 0;
    }
    return value < static_cast<std::uint32_t>(surface.paletteSize) ? surface.palette[value] : 0;
}

const std::uint32_t* DefaultPalette(int bitsPerPixel) {
    static constexpr std::array<std::uint32_t, 2> kTwo{0x000000, 0xFFFFFF};
    static constexpr std::array<std::uint32_t, 16> kSixteen{0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                                                            0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                                                            0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
    // The low and high sixteen colours at the ends, a 6-6-6 cube and greys between them.
    static const std::array<std::uint32_t, 256> kMany = [] {
        std::array<std::uint32_t, 256> table{};
        for (unsigned i = 0; i < 8; ++i) {
            table[i] = kSixteen[i];
            table[248 + i] = kSixteen[8 + i];
        }
        for (unsigned i = 0; i < 216; ++i) {
            table[8 + i] = i / 36 * 51 << 16 | i / 6 % 6 * 51 << 8 | i % 6 * 51;
        }
        for (unsigned i = 0; i < 24; ++i) {
            table[224 + i] = (i * 10 + 8) * 0x010101;
        }
        return table;
    }();
    return bitsPerPixel == 1 ? kTwo.data() : bitsPerPixel == 4 ? kSixteen.data() : kMany.data();
}

}  // namespace platform::gdi
