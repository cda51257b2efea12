#include "gdi/bitmap/convert.h"

#include <algorithm>
#include <cstring>

namespace platform::gdi {

namespace {

bool SamePalette(const Surface& a, const Surface& b) {
    return a.bitsPerPixel == b.bitsPerPixel && a.monochrome == b.monochrome &&
           (a.monochrome || a.palette == b.palette ||
            (a.paletteSize == b.paletteSize &&
             std::memcmp(a.palette, b.palette, static_cast<std::size_t>(a.paletteSize) * sizeof(*a.palette)) == 0));
}

}  // namespace

Converter::Converter(const Surface& from, const Surface& to, const MonoColours& colours) : to_(to) {
    if (from.Indexed()) {
        if (SamePalette(from, to)) {
            return;
        }
        kind_ = Kind::Table;
        const std::uint32_t match = PixelOf(colours.match);
        for (std::uint32_t i = 0; i < 1u << from.bitsPerPixel; ++i) {
            std::uint32_t pixel = ShownColour(from, i);
            if (from.monochrome) {
                pixel = PixelOf(i ? colours.one : colours.zero);
            }
            table_[i] = to.monochrome ? pixel == match : NativeColour(to, pixel);
        }
    } else if (to.monochrome) {
        kind_ = Kind::Match;
        match_ = NativeColour(from, PixelOf(colours.match));
    } else if (to.Indexed()) {
        kind_ = Kind::Nearest;
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
        case Kind::Nearest:
            for (int i = 0; i < count; ++i) {
                const std::uint32_t pixel = values[i] & 0x00FFFFFF;
                if (pixel != lastPixel_) {
                    lastPixel_ = pixel;
                    lastIndex_ = NativeColour(to_, pixel);
                }
                values[i] = lastIndex_;
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

/// The source pixels, from `first` to before `last`, that one target pixel stands for along an axis.
struct Slice {
    int first;
    int last;
};

std::vector<Slice> Slices(int sourceFrom, int sourceSize, int targetFrom, int targetSize, int partFrom, int partTo,
                          bool mirror, int limit) {
    std::vector<Slice> slices;
    slices.reserve(static_cast<std::size_t>(partTo - partFrom));
    for (int i = partFrom; i < partTo; ++i) {
        int at = i - targetFrom;
        if (mirror) {
            at = targetSize - 1 - at;
        }
        const auto begin = static_cast<int>(std::int64_t{at} * sourceSize / targetSize);
        const auto end = static_cast<int>((std::int64_t{at} + 1) * sourceSize / targetSize);
        const int first = std::clamp(sourceFrom + begin, 0, limit - 1);
        slices.push_back({first, std::clamp(sourceFrom + std::max(end, begin + 1), first + 1, limit)});
    }
    return slices;
}

/// Several source pixels made one.
class Mixture {
  public:
    explicit Mixture(int mode) : mode_(mode) {}
    bool UsesFirstOnly() const {
        return mode_ == COLORONCOLOR;
    }
    void Add(std::uint32_t value) {
        if (count_++ == 0) {
            bits_ = value;
        } else if (mode_ == BLACKONWHITE) {
            bits_ &= value;
        }
    }
    std::uint32_t Take() const {
        return bits_;
    }

  private:
    int mode_;
    std::uint32_t count_ = 0;
    std::uint32_t bits_ = 0;
};

}  // namespace

std::vector<std::uint32_t> Stretched(const Surface& from, const RECT& source, const RECT& target, const RECT& part,
                                     bool mirrorX, bool mirrorY, int mode, const Surface& to,
                                     const MonoColours& colours) {
    const auto columns = Slices(source.left, source.right - source.left, target.left, target.right - target.left,
                                part.left, part.right, mirrorX, from.width);
    const auto rows = Slices(source.top, source.bottom - source.top, target.top, target.bottom - target.top, part.top,
                             part.bottom, mirrorY, from.height);
    Converter converter(from, to, colours);
    std::vector<std::uint32_t> values(columns.size() * rows.size());
    std::vector<std::uint32_t> line(static_cast<std::size_t>(from.width));
    const Mixture mixture(mode);
    const int firstColumn = std::min(columns.front().first, columns.back().first);
    const int lastColumn = std::max(columns.front().last, columns.back().last);
    std::vector<Mixture> sums;
    std::uint32_t* out = values.data();
    for (std::size_t y = 0; y < rows.size(); ++y) {
        sums.assign(columns.size(), mixture);
        const int last = mixture.UsesFirstOnly() ? rows[y].first + 1 : rows[y].last;
        for (int row = rows[y].first; row < last; ++row) {
            ReadRow(from, firstColumn, row, lastColumn - firstColumn, line.data());
            for (std::size_t x = 0; x < columns.size(); ++x) {
                const int end = mixture.UsesFirstOnly() ? columns[x].first + 1 : columns[x].last;
                for (int column = columns[x].first; column < end; ++column) {
                    sums[x].Add(line[static_cast<std::size_t>(column - firstColumn)]);
                }
            }
        }
        for (std::size_t x = 0; x < columns.size(); ++x) {
            out[x] = sums[x].Take();
        }
        converter.Convert(out, static_cast<int>(columns.size()));
        out += columns.size();
    }
    return values;
}

}  // namespace platform::gdi
