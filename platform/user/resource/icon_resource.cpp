// Icons in a module's resources: a group that names pictures of several sizes, and the pictures themselves,
// device-independent bitmaps with a second, monochrome half that tells where the background shows.
#include "user/resource/icons.h"

#include <cstdlib>
#include <cstring>

#include "kernel/modules/resource.h"
namespace platform::user {
namespace {

constexpr int kLargest = 256;

/// A resource's bytes; every read is checked against their number.
class Bytes {
  public:
    Bytes(HINSTANCE instance, LPCSTR name, LPCSTR type) : data_(kernel::FindResourceBytes(instance, name, type)) {}
    bool Has(std::size_t at, std::size_t count) const {
        return at <= data_.size() && count <= data_.size() - at;
    }
    template <class Number>
    Number Read(std::size_t at) const {
        Number value = 0;
        if (Has(at, sizeof value)) {
            std::memcpy(&value, data_.data() + at, sizeof value);
        }
        return value;
    }

  private:
    kernel::Bytes data_;
};

/// A pixel, whose highest byte says nothing.
std::uint32_t PixelAt(const Bytes& bytes, std::size_t row, int x, int bits, std::size_t palette) {
    const auto column = static_cast<std::size_t>(x);
    const auto entry = [&](std::size_t index) { return bytes.Read<std::uint32_t>(palette + 4 * index); };
    switch (bits) {
        case 1:
            return entry(bytes.Read<std::uint8_t>(row + column / 8) >> (7 - x % 8) & 1u);
        case 4:
            return entry(bytes.Read<std::uint8_t>(row + column / 2) >> (x % 2 ? 0 : 4) & 15u);
        case 8:
            return entry(bytes.Read<std::uint8_t>(row + column));
        case 24:
            return bytes.Read<std::uint16_t>(row + 3 * column) |
                   static_cast<std::uint32_t>(bytes.Read<std::uint8_t>(row + 3 * column + 2)) << 16;
        default:
            return bytes.Read<std::uint32_t>(row + 4 * column);
    }
}

std::optional<IconPicture> ReadPicture(const Bytes& bytes) {
    const auto headerSize = bytes.Read<std::uint32_t>(0);
    const int width = bytes.Read<std::int32_t>(4);
    const int height = bytes.Read<std::int32_t>(8) / 2;
    const int bits = bytes.Read<std::uint16_t>(14);
    const auto used = bytes.Read<std::uint32_t>(32);
    const bool known = bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32;
    if (headerSize != 40 || width < 1 || width > kLargest || height < 1 || height > kLargest || !known || used > 256 ||
        bytes.Read<std::uint32_t>(16) != BI_RGB) {
        return std::nullopt;
    }
    const std::size_t colours = bits > 8 ? used : used ? used : std::size_t{1} << bits;
    const std::size_t palette = headerSize;
    const std::size_t image = palette + 4 * colours;
    const std::size_t stride = (static_cast<std::size_t>(width * bits) + 31) / 32 * 4;
    const std::size_t maskStride = (static_cast<std::size_t>(width) + 31) / 32 * 4;
    const std::size_t mask = image + stride * static_cast<std::size_t>(height);
    if (!bytes.Has(image, (stride + maskStride) * static_cast<std::size_t>(height))) {
        return std::nullopt;
    }
    IconPicture picture;
    picture.width = width;
    picture.height = height;
    picture.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = height - 1; y >= 0; --y) {
        for (int x = 0; x < width; ++x) {
            const auto line = static_cast<std::size_t>(y);
            const bool clear =
                bytes.Read<std::uint8_t>(mask + line * maskStride + static_cast<std::size_t>(x) / 8) >> (7 - x % 8) & 1;
            const std::uint32_t pixel = PixelAt(bytes, image + line * stride, x, bits, palette) & 0xFFFFFF;
            picture.pixels.push_back(clear ? kTransparent | pixel : pixel);
        }
    }
    return picture;
}

}  // namespace

std::optional<IconPicture> ReadIconResource(HINSTANCE instance, LPCSTR name) {
    constexpr std::size_t entrySize = 14;
    const Bytes group(instance, name, RT_GROUP_ICON);
    std::optional<IconPicture> best;
    int bestDistance = 0;
    unsigned bestBits = 0;
    const std::size_t count = group.Read<std::uint16_t>(4);
    for (std::size_t i = 0; i < count && group.Has(6 + i * entrySize, entrySize); ++i) {
        const std::size_t entry = 6 + i * entrySize;
        const unsigned bits = group.Read<std::uint16_t>(entry + 6);
        const Bytes one(instance, MAKEINTRESOURCEA(group.Read<std::uint16_t>(entry + 12)), RT_ICON);
        auto picture = ReadPicture(one);
        if (!picture) {
            continue;
        }
        const int distance = std::abs(picture->width - GetSystemMetrics(SM_CXICON));
        if (!best || distance < bestDistance || (distance == bestDistance && bits > bestBits)) {
            best = std::move(picture);
            bestDistance = distance;
            bestBits = bits;
        }
    }
    if (!best) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    }
    return best;
}

}  // namespace platform::user
