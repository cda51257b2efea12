#include "gdi/context/raster.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace platform::gdi {

namespace {

constexpr int kChunk = 512;

// An operation as a sum (exclusive or) of products, which mixes a row without a branch.
struct Mixer {
    std::array<std::uint32_t, 8> term{};

    explicit Mixer(Operation operation) {
        std::array<unsigned, 8> bit{};
        for (unsigned i = 0; i < 8; ++i) {
            bit[i] = operation >> i & 1u;
        }
        for (unsigned step = 1; step < 8; step <<= 1) {
            for (unsigned i = 0; i < 8; ++i) {
                if (i & step) {
                    bit[i] ^= bit[i ^ step];
                }
            }
        }
        for (unsigned i = 0; i < 8; ++i) {
            term[i] = bit[i] ? 0xFFFFFFFF : 0;
        }
    }
    std::uint32_t operator()(std::uint32_t p, std::uint32_t s, std::uint32_t d) const {
        return term[0] ^ (term[1] & d) ^ (s & (term[2] ^ (term[3] & d))) ^
               (p & (term[4] ^ (term[5] & d) ^ (s & (term[6] ^ (term[7] & d)))));
    }
};

int Wrapped(int value, int size) {
    const int rest = value % size;
    return rest < 0 ? rest + size : rest;
}

void ReadTile(const Ink& ink, int x, int y, int count, std::uint32_t* out) {
    const int row = Wrapped(y - ink.origin.y, ink.height) * ink.width;
    int column = Wrapped(x - ink.origin.x, ink.width);
    for (int i = 0; i < count; ++i) {
        out[i] = ink.tile[static_cast<std::size_t>(row + column)];
        if (++column == ink.width) {
            column = 0;
        }
    }
}

bool CombineFast(const Surface& surface, const RECT& rect, Operation operation, const Ink* ink, RowSource* source) {
    if (surface.bitsPerPixel != 32) {
        return false;
    }
    const int width = rect.right - rect.left;
    const bool plain = ink && ink->width == 0;
    if (operation == kBlack || operation == kWhite || (operation == kCopyPattern && plain)) {
        const std::uint32_t value = operation == kBlack ? 0 : operation == kWhite ? 0x00FFFFFF : ink->colour;
        std::uint32_t* first = surface.Row32(rect.top) + rect.left;
        std::fill_n(first, width, value);
        for (int y = rect.top + 1; y < rect.bottom; ++y) {
            std::memcpy(surface.Row32(y) + rect.left, first, static_cast<std::size_t>(width) * sizeof(value));
        }
        return true;
    }
    if (operation == kInvert || (operation == kXorPattern && plain)) {
        const std::uint32_t value = operation == kInvert ? 0x00FFFFFF : ink->colour;
        for (int y = rect.top; y < rect.bottom; ++y) {
            std::uint32_t* row = surface.Row32(y) + rect.left;
            for (int x = 0; x < width; ++x) {
                row[x] ^= value;
            }
        }
        return true;
    }
    if (operation == kCopySource) {
        for (int y = rect.top; y < rect.bottom; ++y) {
            source->Read(rect.left, y, width, surface.Row32(y) + rect.left);
        }
        return true;
    }
    return false;
}

}  // namespace

void CombineRect(const Surface& surface, const RECT& rect, Operation operation, const Ink* ink, RowSource* source) {
    if (operation == kKeep || CombineFast(surface, rect, operation, ink, source)) {
        return;
    }
    const Mixer mix(operation);
    const bool needsSource = source && UsesSource(operation);
    const bool tiled = ink && ink->width > 0 && UsesPattern(operation);
    const bool needsDestination = UsesDestination(operation);
    const std::uint32_t mask = surface.Mask();
    std::array<std::uint32_t, kChunk> patterns;
    std::array<std::uint32_t, kChunk> sources;
    std::array<std::uint32_t, kChunk> values;
    patterns.fill(ink ? ink->colour : 0);
    sources.fill(0);
    values.fill(0);
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; x += kChunk) {
            const int count = std::min(kChunk, static_cast<int>(rect.right) - x);
            if (tiled) {
                ReadTile(*ink, x, y, count, patterns.data());
            }
            if (needsSource) {
                source->Read(x, y, count, sources.data());
            }
            if (needsDestination) {
                ReadRow(surface, x, y, count, values.data());
            }
            for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
                values[i] = mix(patterns[i], sources[i], values[i]) & mask;
            }
            WriteRow(surface, x, y, count, values.data());
        }
    }
}

void Combine(DeviceContext& context, const RECT& area, Operation operation, const Ink* ink, RowSource* source) {
    const Region& drawable = context.Drawable();
    for (const RECT& each : drawable.Rects()) {
        if (each.top >= area.bottom) {
            break;
        }
        if (const RECT part = Cut(each, area); Holds(part)) {
            CombineRect(context.surface, part, operation, ink, source);
            context.Drawn(part);
        }
    }
}

void Combine(DeviceContext& context, const Region& area, Operation operation, const Ink* ink) {
    Region inside(context.Drawable());
    inside.Intersect(area);
    for (const RECT& each : inside.Rects()) {
        CombineRect(context.surface, each, operation, ink, nullptr);
    }
    if (!inside.Empty()) {
        context.Drawn(inside.Bounds());
    }
}

}  // namespace platform::gdi
