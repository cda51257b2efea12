#include "tests/platform/support/gdi_canvas.h"

namespace {

/// What a ternary operation makes of three bits, by the definition of its code.
std::uint32_t Expected(unsigned operation, std::uint32_t pattern, std::uint32_t source, std::uint32_t destination) {
    std::uint32_t result = 0;
    for (int bit = 0; bit < 24; ++bit) {
        const unsigned index = (pattern >> bit & 1) << 2 | (source >> bit & 1) << 1 | (destination >> bit & 1);
        result |= (operation >> index & 1) << bit;
    }
    return result;
}

TEST(GdiRaster, EveryTernaryOperation) {
    Canvas to(4, 4);
    Canvas from(4, 4);
    const HBRUSH brush = CreateSolidBrush(RGB(0x0F, 0x35, 0xF0));
    const HGDIOBJ previous = SelectObject(to, brush);
    for (unsigned operation = 0; operation < 256; ++operation) {
        to.Clear(0x33A5C3);
        from.Clear(0x5569AA);
        // Not all low words are published; the operation itself sits in the third byte.
        ASSERT_TRUE(BitBlt(to, 0, 0, 3, 3, from, 0, 0, operation << 16)) << operation;
        EXPECT_EQ(Expected(operation, 0x0F35F0, 0x5569AA, 0x33A5C3), to.At(2, 2)) << operation;
        EXPECT_EQ(0x33A5C3u, to.At(3, 3)) << operation;
    }
    for (const DWORD code : {SRCCOPY, SRCPAINT, SRCINVERT, MERGECOPY, PATCOPY, PATINVERT, DSTINVERT, WHITENESS}) {
        to.Clear(0x33A5C3);
        ASSERT_TRUE(StretchBlt(to, 1, 1, 3, 2, from, 0, 0, 2, 4, code));
        EXPECT_EQ(6, to.Count(to.All(), Expected(code >> 16 & 0xFF, 0x0F35F0, 0x5569AA, 0x33A5C3))) << code;
    }
    SelectObject(to, previous);
    DeleteObject(brush);
}

TEST(GdiRaster, OverlappingCopiesKeepTheSource) {
    for (const POINT& move : {POINT{3, 0}, POINT{-3, 0}, POINT{0, 3}, POINT{0, -3}, POINT{2, 2}, POINT{-2, 2}}) {
        Canvas canvas(20, 20);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 20; ++x) {
                canvas.Put(x, y, static_cast<std::uint32_t>(y * 256 + x));
            }
        }
        BitBlt(canvas, 5 + move.x, 5 + move.y, 10, 10, canvas, 5, 5, SRCCOPY);
        for (int y = 5; y < 15; ++y) {
            for (int x = 5; x < 15; ++x) {
                ASSERT_EQ(static_cast<std::uint32_t>(y * 256 + x), canvas.At(x + move.x, y + move.y))
                    << move.x << ' ' << move.y << ' ' << x << ' ' << y;
            }
        }
    }
}

TEST(GdiRaster, MonochromeTakesTheColoursOfTheDestination) {
    const WORD rows[2] = {0x0040, 0x0080};  // second pixel set, then first
    const HBITMAP mono = CreateBitmap(2, 2, 1, 1, rows);
    const HDC memory = CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = SelectObject(memory, mono);
    Canvas canvas(4, 4);
    SetTextColor(canvas, RGB(255, 0, 0));
    SetBkColor(canvas, RGB(0, 0, 255));
    BitBlt(canvas, 0, 0, 2, 2, memory, 0, 0, SRCCOPY);
    EXPECT_EQ(0xFF0000u, canvas.At(0, 0));
    EXPECT_EQ(0x0000FFu, canvas.At(1, 0));
    EXPECT_EQ(0x0000FFu, canvas.At(0, 1));
    EXPECT_EQ(0xFF0000u, canvas.At(1, 1));
    SelectObject(memory, previous);
    DeleteDC(memory);
    DeleteObject(mono);
}

TEST(GdiRaster, ColoursBecomeMonochromeByTheBackground) {
    // A device-dependent source: its background colour marks the ones.
    Canvas canvas(2, 1);
    canvas.Put(0, 0, 0x00FF00);
    canvas.Put(1, 0, 0xFF00FF);
    SetBkColor(canvas, RGB(0, 255, 0));
    const HBITMAP mono = CreateBitmap(2, 1, 1, 1, nullptr);
    const HDC memory = CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = SelectObject(memory, mono);
    BitBlt(memory, 0, 0, 2, 1, canvas, 0, 0, SRCCOPY);
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(memory, 0, 0));
    EXPECT_EQ(RGB(0, 0, 0), GetPixel(memory, 1, 0));
    SelectObject(memory, previous);
    DeleteDC(memory);
    DeleteObject(mono);
}

TEST(GdiRaster, StretchGrowsAndShrinks) {
    Canvas from(4, 1);
    from.Put(0, 0, 0xFF0000);
    from.Put(1, 0, 0x00FF00);
    from.Put(2, 0, 0x0000FF);
    from.Put(3, 0, 0x000000);
    Canvas to(8, 2);
    StretchBlt(to, 0, 0, 8, 2, from, 0, 0, 4, 1, SRCCOPY);
    EXPECT_EQ(0xFF0000u, to.At(0, 0));
    EXPECT_EQ(0xFF0000u, to.At(1, 1));
    EXPECT_EQ(0x00FF00u, to.At(2, 0));
    EXPECT_EQ(0x000000u, to.At(7, 1));
    to.Clear(Canvas::kWhite);
    StretchBlt(to, 0, 0, 2, 1, from, 0, 0, 4, 1, SRCCOPY);
    EXPECT_EQ(Canvas::kWhite, to.At(2, 0));
}

TEST(GdiRaster, ClippingHoldsForEveryPath) {
    Canvas canvas(10, 10);
    Canvas from(10, 10);
    from.Clear(0x010203);
    IntersectClipRect(canvas, 3, 3, 6, 6);
    PatBlt(canvas, 0, 0, 10, 10, BLACKNESS);
    EXPECT_EQ(9, canvas.Count(canvas.All(), Canvas::kBlack));
    BitBlt(canvas, -4, -4, 20, 20, from, 0, 0, SRCCOPY);
    EXPECT_EQ(9, canvas.Count(canvas.All(), 0x010203));
    BitBlt(canvas, 0, 0, 10, 10, from, 0, 0, SRCINVERT);
    EXPECT_EQ(9, canvas.Count(canvas.All(), Canvas::kBlack));
    EXPECT_EQ(RGB(0, 0, 0), GetPixel(canvas, 3, 3));
    SetPixel(canvas, 6, 6, RGB(255, 0, 0));
    EXPECT_EQ(Canvas::kWhite, canvas.At(6, 6));
}

}  // namespace
