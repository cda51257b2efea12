// The screen in a window of another size.
#include "display/sdl/scaling.h"

#include <gtest/gtest.h>

#include <cstdint>
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

}  // namespace
