#include "gdi/bitmap/convert.h"

#include <algorithm>
#include <cstring>

namespace platform::gdi {

Converter::Converter(const Surface& from, const Surface& to, const MonoColours& colours) {
    const std::uint32_t match = PixelOf(colours.match);
    if (!from.Indexed()) {
        kind_ = to.monochrome ? Kind::Match : Kind::Same;
        match_ = match;
    } else if (!from.monochrome || !to.monochrome) {
        kind_ = Kind::Table;
        for (std::uint32_t i = 0; i < 1u << from.bitsPerPixel; ++i) {
            const std::uint32_t pixel = !from.monochrome ? from.palette[i] : PixelOf(i ? colours.one : colours.zero);
            table_[i] = to.monochrome ? pixel == match : pixel;
        }
    }
}

void Converter::Convert(std::uint32_t* values, int count) {
    switch (kind_) {
        case Kind::Same:
            break;
        case Kind::Table:
            for (int i = 0; i < count; ++i) {
                values[i] = table_[values[i] & 0xFF];
            }
            break;
        case Kind::Match:
            for (int i = 0; i < count; ++i) {
                values[i] = (values[i] & 0x00FFFFFF) == match_;
            }
            break;
    }
}

void BufferRows::Read(int x, int y, int count, std::uint32_t* out) {
    const auto width = static_cast<std::size_t>(area_.right - area_.left);
    const std::uint32_t* row = values_.data() + static_cast<std::size_t>(y - area_.top) * width + (x - area_.left);
    std::memcpy(out, row, static_cast<std::size_t>(count) * sizeof(*out));
}

namespace {

/// The source pixels, from `first` to before `last`, that one target pixel is made of along an axis.
struct Slice {
    int first;
    int last;
};

std::vector<Slice> Slices(int sourceFrom, int sourceSize, int targetFrom, int targetSize, int partFrom, int partTo,
                          Shrink shrink, int limit) {
    std::vector<Slice> slices;
    slices.reserve(static_cast<std::size_t>(partTo - partFrom));
    for (int i = partFrom; i < partTo; ++i) {
        const int at = i - targetFrom;
        const auto begin = static_cast<int>(std::int64_t{at} * sourceSize / targetSize);
        const auto end = static_cast<int>((std::int64_t{at} + 1) * sourceSize / targetSize);
        const int first = std::clamp(sourceFrom + begin, 0, limit - 1);
        const int last = std::clamp(sourceFrom + std::max(end, begin + 1), first + 1, limit);
        slices.push_back({first, shrink == Shrink::TakeFirst ? first + 1 : last});
    }
    return slices;
}

}  // namespace

std::vector<std::uint32_t> Stretched(const Surface& from, const RECT& source, const RECT& target, const RECT& part,
                                     Shrink shrink, const Surface& to, const MonoColours& colours) {
    const auto columns = Slices(source.left, source.right - source.left, target.left, target.right - target.left,
                                part.left, part.right, shrink, from.width);
    const auto rows = Slices(source.top, source.bottom - source.top, target.top, target.bottom - target.top, part.top,
                             part.bottom, shrink, from.height);
    Converter converter(from, to, colours);
    std::vector<std::uint32_t> values(columns.size() * rows.size(), ~std::uint32_t{0});
    const int firstColumn = columns.front().first;
    const int lastColumn = columns.back().last;
    std::vector<std::uint32_t> line(static_cast<std::size_t>(lastColumn - firstColumn));
    std::uint32_t* out = values.data();
    for (const Slice& each : rows) {
        for (int row = each.first; row < each.last; ++row) {
            ReadRow(from, firstColumn, row, lastColumn - firstColumn, line.data());
            for (std::size_t x = 0; x < columns.size(); ++x) {
                for (int column = columns[x].first; column < columns[x].last; ++column) {
                    out[x] &= line[static_cast<std::size_t>(column - firstColumn)];
                }
            }
        }
        converter.Convert(out, static_cast<int>(columns.size()));
        out += columns.size();
    }
    return values;
}

}  // namespace platform::gdi
