#include "tests/platform/support/gdi_canvas.h"

#include <vector>

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
    SelectObject(to, previous);
    DeleteObject(brush);
}

TEST(GdiRaster, EveryBinaryMode) {
    Canvas canvas(8, 8);
    const HPEN pen = CreatePen(PS_SOLID, 1, RGB(0x0F, 0x35, 0xF0));
    const HGDIOBJ previous = SelectObject(canvas, pen);
    const std::uint32_t p = 0x0F35F0;
    const std::uint32_t d = 0x33A5C3;
    const std::uint32_t expected[16] = {0,     ~(p | d), ~p & d, ~p,     p & ~d, ~d,     p ^ d, ~(p & d),
                                        p & d, ~(p ^ d), d,      ~p | d, p,      p | ~d, p | d, 0xFFFFFF};
    for (int mode = R2_BLACK; mode <= R2_WHITE; ++mode) {
        canvas.Clear(d);
        SetROP2(canvas, mode);
        MoveToEx(canvas, 0, 0, nullptr);
        LineTo(canvas, 5, 5);
        EXPECT_EQ(expected[mode - 1] & 0xFFFFFF, canvas.At(2, 2)) << mode;
        MoveToEx(canvas, 0, 7, nullptr);
        LineTo(canvas, 5, 7);
        EXPECT_EQ(expected[mode - 1] & 0xFFFFFF, canvas.At(2, 7)) << mode;
    }
    SelectObject(canvas, previous);
    DeleteObject(pen);
}

TEST(GdiRaster, OverlappingCopiesKeepTheSource) {
    for (const POINT& move : {POINT{3, 0}, POINT{-3, 0}, POINT{0, 3}, POINT{0, -3}, POINT{2, 2}, POINT{-2, 2}}) {
        Canvas canvas(20, 20);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 20; ++x) {
                canvas.Put(x, y, static_cast<std::uint32_t>(y * 256 + x));
            }
        }
        // A clip region of several rectangles makes the order of copying matter.
        const HRGN clip = CreateRectRgn(0, 0, 20, 20);
        const HRGN hole = CreateRectRgn(9, 9, 11, 11);
        CombineRgn(clip, clip, hole, RGN_DIFF);
        SelectClipRgn(canvas, clip);
        BitBlt(canvas, 5 + move.x, 5 + move.y, 10, 10, canvas, 5, 5, SRCCOPY);
        for (int y = 5; y < 15; ++y) {
            for (int x = 5; x < 15; ++x) {
                const POINT at{x + move.x, y + move.y};
                if (!PtInRegion(hole, at.x, at.y)) {
                    ASSERT_EQ(static_cast<std::uint32_t>(y * 256 + x), canvas.At(at.x, at.y))
                        << move.x << ' ' << move.y << ' ' << x << ' ' << y;
                }
            }
        }
        EXPECT_EQ(static_cast<std::uint32_t>(9 * 256 + 9), canvas.At(9, 9));
        DeleteObject(clip);
        DeleteObject(hole);
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

TEST(GdiRaster, PatternsTileFromTheBrushOrigin) {
    const WORD rows[8] = {0x00FF, 0, 0, 0, 0, 0, 0, 0};  // the top row set
    const HBITMAP bitmap = CreateBitmap(8, 8, 1, 1, rows);
    const HBRUSH brush = CreatePatternBrush(bitmap);
    DeleteObject(bitmap);  // the brush has its own copy
    Canvas canvas(16, 16);
    SetTextColor(canvas, RGB(0, 0, 0));
    SetBkColor(canvas, RGB(255, 0, 0));
    SetBrushOrgEx(canvas, 0, 3, nullptr);
    const HGDIOBJ previous = SelectObject(canvas, brush);
    PatBlt(canvas, 0, 0, 16, 16, PATCOPY);
    EXPECT_EQ(0xFF0000u, canvas.At(5, 3));
    EXPECT_EQ(0xFF0000u, canvas.At(5, 11));
    EXPECT_EQ(Canvas::kBlack, canvas.At(5, 4));
    SelectObject(canvas, previous);
    DeleteObject(brush);
}

TEST(GdiRaster, HatchesLeaveHolesWhereTheBackgroundIsTransparent) {
    const HBRUSH brush = CreateHatchBrush(HS_HORIZONTAL, RGB(0, 0, 255));
    Canvas canvas(16, 16);
    canvas.Clear(0x123456);
    SetBkMode(canvas, TRANSPARENT);
    const RECT rect{0, 0, 8, 8};
    FillRect(canvas, &rect, brush);
    EXPECT_EQ(8, canvas.Count(rect, 0x0000FF));
    EXPECT_EQ(56, canvas.Count(rect, 0x123456));
    SetBkMode(canvas, OPAQUE);
    FillRect(canvas, &rect, brush);
    EXPECT_EQ(56, canvas.Count(rect, Canvas::kWhite));
    DeleteObject(brush);
}

TEST(GdiRaster, StretchGrowsShrinksAndMirrors) {
    Canvas from(4, 1);
    from.Put(0, 0, 0xFF0000);
    from.Put(1, 0, 0x00FF00);
    from.Put(2, 0, 0x0000FF);
    from.Put(3, 0, 0x000000);
    Canvas to(8, 2);
    SetStretchBltMode(to, COLORONCOLOR);
    StretchBlt(to, 0, 0, 8, 2, from, 0, 0, 4, 1, SRCCOPY);
    EXPECT_EQ(0xFF0000u, to.At(0, 0));
    EXPECT_EQ(0xFF0000u, to.At(1, 1));
    EXPECT_EQ(0x00FF00u, to.At(2, 0));
    EXPECT_EQ(0x000000u, to.At(7, 1));
    to.Clear(Canvas::kWhite);
    StretchBlt(to, 0, 0, 2, 1, from, 0, 0, 4, 1, SRCCOPY);
    EXPECT_EQ(Canvas::kWhite, to.At(2, 0));
    to.Clear(Canvas::kWhite);
    StretchBlt(to, 0, 0, 4, 1, from, 3, 0, -4, 1, SRCCOPY);
    EXPECT_EQ(0x000000u, to.At(0, 0));
    EXPECT_EQ(0xFF0000u, to.At(3, 0));
}

TEST(GdiRaster, MasksChooseBetweenTwoOperations) {
    const WORD row = 0x0080;  // the first of two pixels
    const HBITMAP mask = CreateBitmap(2, 1, 1, 1, &row);
    Canvas from(2, 1);
    from.Clear(0x112233);
    Canvas to(2, 1);
    ASSERT_TRUE(MaskBlt(to, 0, 0, 2, 1, from, 0, 0, mask, 0, 0, MAKEROP4(SRCCOPY, BLACKNESS)));
    EXPECT_EQ(0x112233u, to.At(0, 0));
    EXPECT_EQ(Canvas::kBlack, to.At(1, 0));
    DeleteObject(mask);
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
    SetPixelV(canvas, 6, 6, RGB(255, 0, 0));
    EXPECT_EQ(Canvas::kWhite, canvas.At(6, 6));
}

}  // namespace
