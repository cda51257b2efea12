// The screen in a window of another size.
#include "display/sdl/scaling.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace {

using namespace platform::display;

constexpr int kScreenWidth = 40;
constexpr int kScreenHeight = 30;

std::vector<std::uint32_t> Picture() {
    std::vector<std::uint32_t> pixels;
    for (unsigned i = 0; i < kScreenWidth * kScreenHeight; ++i) {
        pixels.push_back(i * 2654435761U >> 8);
    }
    return pixels;
}

std::vector<std::uint32_t> Drawn(const std::vector<std::uint32_t>& picture, const Placement& placement, Box part,
                                 int width, int height, std::vector<std::uint32_t> onto) {
    onto.resize(static_cast<std::size_t>(width) * height);
    DrawScaled(picture.data(), kScreenWidth, kScreenWidth, kScreenHeight, placement.Area(), placement.ToWindow(part),
               onto.data(), width);
    return onto;
}

TEST(DisplayScaling, ThePictureKeepsItsShapeInTheMiddle) {
    const Placement same(kScreenWidth, kScreenHeight, kScreenWidth, kScreenHeight);
    EXPECT_FALSE(same.Scales());
    const Placement wide(kScreenWidth, kScreenHeight, 100, 30);
    EXPECT_FALSE(wide.Scales());
    EXPECT_EQ(30, wide.Area().left);
    EXPECT_EQ(0, wide.PictureX(30));
    EXPECT_EQ(-1, wide.PictureX(29));
    const Placement half(kScreenWidth, kScreenHeight, 20, 100);
    EXPECT_TRUE(half.Scales());
    EXPECT_EQ(15, half.Area().Height());
    EXPECT_EQ(42, half.Area().top);
    EXPECT_EQ(0, half.PictureY(42));
    EXPECT_EQ(28, half.PictureY(56));
    EXPECT_EQ(-2, half.PictureY(41));
    // A window that is hardly there.
    EXPECT_EQ(1, Placement(kScreenWidth, kScreenHeight, 0, 0).Area().Width());
}

TEST(DisplayScaling, WhatIsDrawnInPartsIsWhatIsDrawnAtOnce) {
    const std::vector<std::uint32_t> before = Picture();
    for (const Box window : {Box{0, 0, 33, 27}, Box{0, 0, 90, 61}, Box{0, 0, 20, 15}, Box{0, 0, 7, 90}}) {
        const int width = window.Width();
        const int height = window.Height();
        const Placement placement(kScreenWidth, kScreenHeight, width, height);
        const Box all{0, 0, kScreenWidth, kScreenHeight};
        for (const Box part : {Box{0, 0, 1, 1}, Box{11, 7, 12, 20}, Box{39, 29, 40, 30}, Box{5, 0, 30, 9}}) {
            std::vector<std::uint32_t> after = before;
            for (int y = part.top; y < part.bottom; ++y) {
                for (int x = part.left; x < part.right; ++x) {
                    after[static_cast<std::size_t>(y) * kScreenWidth + x] ^= 0xFFFFFF;
                }
            }
            const auto first = Drawn(before, placement, all, width, height, {});
            EXPECT_EQ(Drawn(after, placement, all, width, height, {}),
                      Drawn(after, placement, part, width, height, first))
                << width << " by " << height << ", from " << part.left << ", " << part.top;
        }
    }
}

TEST(DisplayScaling, ColoursAreMixedAndNotMadeUp) {
    const std::vector<std::uint32_t> white(kScreenWidth * kScreenHeight, 0xFFFFFF);
    const Placement placement(kScreenWidth, kScreenHeight, 33, 27);
    const auto shown = Drawn(white, placement, {0, 0, kScreenWidth, kScreenHeight}, 33, 27, {});
    for (int y = placement.Area().top; y < placement.Area().bottom; ++y) {
        for (int x = 0; x < 33; ++x) {
            ASSERT_EQ(0xFFFFFFU, shown[static_cast<std::size_t>(y) * 33 + x]);
        }
    }
}

TEST(DisplayScaling, WholeFactorOfADenseDesktop) {
    const Box small{0, 0, 800, 600};
    const Box large{0, 0, 3840, 2160};
    for (const auto& [density, scale] : {std::pair{0, 1}, {144, 1}, {168, 2}, {288, 3}, {960, 3}}) {
        EXPECT_EQ(scale, ScaleOf(density, large));
    }
    EXPECT_EQ(1, ScaleOf(192, small));
    EXPECT_EQ(1, ScaleOf(192, Box{0, 0, 1599, 1200}));
    EXPECT_EQ(2, ScaleOf(192, Box{0, 0, 1600, 1200}));
}

TEST(DisplayScaling, PlacesOutsideTheDesktop) {
    for (const auto& [at, rounded] : {std::pair{-1, -1}, {-2, -1}, {-3, -2}, {3, 1}}) {
        EXPECT_EQ(rounded, RoundDown(at, 2)) << at;
    }
}

TEST(DisplayScaling, WhatLiesUnderABoxIsCutOut) {
    for (const Box hole :
         {Box{2, 2, 5, 5}, Box{-1, 3, 20, 4}, Box{0, 0, 10, 10}, Box{8, 8, 12, 12}, Box{20, 0, 30, 9}}) {
        std::vector<Box> boxes{{0, 0, 10, 10}, {4, 4, 12, 6}};
        CutOut(boxes, hole);
        for (int y = -1; y < 13; ++y) {
            for (int x = -1; x < 13; ++x) {
                const Box pixel{x, y, x + 1, y + 1};
                const auto in = [&](const Box& box) { return !Cut(box, pixel).Empty(); };
                const auto covering = std::count_if(boxes.begin(), boxes.end(), in);
                const int wanted = in(hole) ? 0 : in(Box{0, 0, 10, 10}) + in(Box{4, 4, 12, 6});
                EXPECT_EQ(wanted, covering) << x << ' ' << y;
            }
        }
    }
}

}  // namespace
