#include "display/sdl/scaling.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace platform::display {
namespace {

/// The two pixels of the picture that one of the window lies between along an axis, and how far on its way to the second.
struct Between {
    int first;
    int second;
    std::uint32_t way;  ///< of 256
};

Between Find(int at, int shown, int size) {
    // Middles of pixels lie on middles of pixels.
    const std::int64_t place = ((std::int64_t{2} * at + 1) * size * 128) / shown - 128;
    const auto first = static_cast<int>(std::clamp<std::int64_t>(place >> 8, 0, size - 1));
    return {first, std::min(first + 1, size - 1), place < 0 ? 0 : static_cast<std::uint32_t>(place & 0xFF)};
}

/// Two channels at once: each has eight bits to spare above it.
std::uint32_t Mixed(std::uint32_t a, std::uint32_t b, std::uint32_t way) {
    constexpr std::uint32_t kRedBlue = 0x00FF00FF;
    constexpr std::uint32_t kGreen = 0x0000FF00;
    const std::uint32_t redBlue = (a & kRedBlue) * (256 - way) + (b & kRedBlue) * way;
    const std::uint32_t green = (a & kGreen) * (256 - way) + (b & kGreen) * way;
    return (redBlue >> 8 & kRedBlue) | (green >> 8 & kGreen);
}

int Scaled(int at, int from, int to) {
    return static_cast<int>(std::int64_t{at} * to / from);
}

int ScaledUp(int at, int from, int to) {
    return static_cast<int>((std::int64_t{at} * to + from - 1) / from);
}

/// Rounds down also below zero.
int Unscaled(int at, int shown, int size) {
    const std::int64_t product = std::int64_t{at} * size;
    return static_cast<int>(product >= 0 ? product / shown : (product - shown + 1) / shown);
}

}  // namespace

Box Cut(const Box& a, const Box& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right), std::min(a.bottom, b.bottom)};
}

Box Around(const Box& a, const Box& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

void CutOut(std::vector<Box>& boxes, const Box& hole) {
    std::vector<Box> rest;
    for (const Box& box : boxes) {
        const Box common = Cut(box, hole);
        if (common.Empty()) {
            rest.push_back(box);
            continue;
        }
        for (const Box& part :
             {Box{box.left, box.top, box.right, common.top}, Box{box.left, common.bottom, box.right, box.bottom},
              Box{box.left, common.top, common.left, common.bottom},
              Box{common.right, common.top, box.right, common.bottom}}) {
            if (!part.Empty()) {
                rest.push_back(part);
            }
        }
    }
    boxes.swap(rest);
}

int ScaleOf(int density, const Box& desktop) {
    constexpr int kUsual = 96;
    constexpr int kLeastWidth = 800;
    constexpr int kLeastHeight = 600;
    const int room = std::min(desktop.Width() / kLeastWidth, desktop.Height() / kLeastHeight);
    return std::clamp(std::min((density + kUsual / 4) / kUsual, room), 1, kMostScale);
}

int RoundDown(int at, int scale) {
    return Unscaled(at, scale, 1);
}

Placement::Placement(int width, int height, int windowWidth, int windowHeight) : width_(width), height_(height) {
    int shownWidth = windowWidth;
    int shownHeight = Scaled(height, width, windowWidth);
    if (shownHeight > windowHeight) {
        shownHeight = windowHeight;
        shownWidth = Scaled(width, height, windowHeight);
    }
    shownWidth = std::max(shownWidth, 1);
    shownHeight = std::max(shownHeight, 1);
    area_.left = (windowWidth - shownWidth) / 2;
    area_.top = (windowHeight - shownHeight) / 2;
    area_.right = area_.left + shownWidth;
    area_.bottom = area_.top + shownHeight;
}

Box Placement::ToWindow(const Box& part) const {
    if (!Scales()) {
        return Cut({part.left + area_.left, part.top + area_.top, part.right + area_.left, part.bottom + area_.top},
                   area_);
    }
    // A pixel of the picture shows until the middles of its neighbours.
    return Cut({area_.left + Scaled(std::max(part.left - 1, 0), width_, area_.Width()),
                area_.top + Scaled(std::max(part.top - 1, 0), height_, area_.Height()),
                area_.left + ScaledUp(part.right + 1, width_, area_.Width()),
                area_.top + ScaledUp(part.bottom + 1, height_, area_.Height())},
               area_);
}

int Placement::PictureX(int x) const {
    return Unscaled(x - area_.left, area_.Width(), width_);
}

int Placement::PictureY(int y) const {
    return Unscaled(y - area_.top, area_.Height(), height_);
}

void DrawScaled(const std::uint32_t* from, int fromStride, int width, int height, const Box& area, const Box& part,
                std::uint32_t* to, int toStride) {
    std::vector<Between> columns;
    columns.reserve(static_cast<std::size_t>(std::max(part.Width(), 0)));
    for (int x = part.left; x < part.right; ++x) {
        columns.push_back(Find(x - area.left, area.Width(), width));
    }
    for (int y = part.top; y < part.bottom; ++y) {
        const Between rows = Find(y - area.top, area.Height(), height);
        const std::uint32_t* upper = from + std::ptrdiff_t{rows.first} * fromStride;
        const std::uint32_t* lower = from + std::ptrdiff_t{rows.second} * fromStride;
        std::uint32_t* out = to + std::ptrdiff_t{y} * toStride + part.left;
        for (const Between& column : columns) {
            *out++ = Mixed(Mixed(upper[column.first], upper[column.second], column.way),
                           Mixed(lower[column.first], lower[column.second], column.way), rows.way);
        }
    }
}

}  // namespace platform::display
