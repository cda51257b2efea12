// Letters larger than any screen's text: drawn like others, and not kept.
#include <windows.h>

#include <gtest/gtest.h>
#include <malloc.h>

#include "tests/platform/support/gdi_canvas.h"

namespace {

// What is in use of the free store, large blocks of their own included.
std::size_t InUse() {
    struct mallinfo2 const info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

TEST(LargeText, IsDrawnAndNotKept) {
    Canvas canvas(1, 1);
    std::size_t first = 0;
    for (int height = 1200; height < 1240; ++height) {
        HFONT const font = CreateFontA(-height, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "sans-serif");
        HGDIOBJ const before = SelectObject(canvas, font);
        SIZE size{};
        char const letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
        EXPECT_TRUE(GetTextExtentPoint32A(canvas, letters, 52, &size));
        EXPECT_GT(size.cx, height * 20);
        SetBkMode(canvas, TRANSPARENT);
        SetTextColor(canvas, RGB(255, 0, 0));
        canvas.Clear(Canvas::kWhite);
        // The middle of the stem.
        SIZE stem{};
        EXPECT_TRUE(GetTextExtentPoint32A(canvas, "I", 1, &stem));
        EXPECT_TRUE(TextOutA(canvas, -stem.cx / 2, -stem.cy / 2, "I", 1));
        EXPECT_EQ(canvas.At(0, 0), 0xFF0000u);
        SelectObject(canvas, before);
        DeleteObject(font);
        first = first ? first : InUse();
    }
    // Forty fonts' worth of pictures would be gigabytes.
    EXPECT_LT(InUse(), first + (64u << 20));
}

}  // namespace
