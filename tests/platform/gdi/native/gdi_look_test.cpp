// What is fixed on this layer and varies elsewhere: the measures of the dialog font, and
// documented answers that not every host gives.
#include "tests/platform/support/gdi_canvas.h"

namespace {

TEST(GdiLook, TheDialogFontMeasuresSixByThirteen) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HFONT eight = CreateFontA(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "MS Sans Serif");
    const HFONT helv = CreateFontA(13, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Helv");
    for (const HGDIOBJ font : {GetStockObject(DEFAULT_GUI_FONT), HGDIOBJ{eight}, HGDIOBJ{helv}}) {
        SelectObject(dc, font);
        TEXTMETRICA metrics;
        ASSERT_TRUE(GetTextMetricsA(dc, &metrics));
        EXPECT_EQ(13, metrics.tmHeight);
        EXPECT_EQ(11, metrics.tmAscent);
        EXPECT_EQ(2, metrics.tmDescent);
        SIZE size;
        GetTextExtentPoint32A(dc, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", 52, &size);
        EXPECT_EQ(6, (size.cx / 26 + 1) / 2);
    }
    DeleteDC(dc);
    EXPECT_TRUE(DeleteObject(eight));
    EXPECT_TRUE(DeleteObject(helv));
}

TEST(GdiLook, ASelectedObjectIsNotDeleted) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateBitmap(4, 4, 1, 1, nullptr);
    const HGDIOBJ previous = SelectObject(dc, bitmap);
    const HDC other = CreateCompatibleDC(nullptr);
    EXPECT_EQ(nullptr, SelectObject(other, bitmap)) << "a bitmap is selected once";
    DeleteDC(other);
    EXPECT_FALSE(DeleteObject(bitmap));
    SaveDC(dc);
    SelectObject(dc, previous);
    EXPECT_FALSE(DeleteObject(bitmap));  // the saved state holds it
    RestoreDC(dc, -1);
    SelectObject(dc, previous);
    EXPECT_TRUE(DeleteObject(bitmap));
    DeleteDC(dc);
}

TEST(GdiLook, BytesFollowTheCodePage) {
    const HDC dc = CreateCompatibleDC(nullptr);
    SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    SIZE wide{};
    SIZE narrow{};
    // In code page 1252 this byte is a letter with a diaeresis, as wide as the letter without.
    ASSERT_TRUE(GetTextExtentPoint32A(dc, "\xE4", 1, &wide));
    ASSERT_TRUE(GetTextExtentPoint32A(dc, "a", 1, &narrow));
    EXPECT_EQ(narrow.cx, wide.cx);
    DeleteDC(dc);
}

TEST(GdiLook, ShrinkingMixes) {
    Canvas from(2, 1);
    from.Put(0, 0, 0xFF0000);
    from.Put(1, 0, 0x00FF00);
    Canvas to(1, 1);
    StretchBlt(to, 0, 0, 1, 1, from, 0, 0, 2, 1, SRCCOPY);
    EXPECT_EQ(0x000000u, to.At(0, 0));
}

TEST(GdiLook, PixelsOutsideTheClipRegionAreNone) {
    Canvas canvas;
    IntersectClipRect(canvas, 3, 3, 6, 6);
    EXPECT_EQ(COLORREF{CLR_INVALID}, GetPixel(canvas, 2, 3));
    EXPECT_EQ(COLORREF{CLR_INVALID}, SetPixel(canvas, 6, 6, 0));
    EXPECT_EQ(COLORREF{CLR_INVALID}, GetPixel(canvas, 64, 0));
}

TEST(GdiLook, FarCoordinatesOnlyClip) {
    Canvas canvas;
    const RECT everything{-0x7FFFFFFF, -0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF};
    FillRect(canvas, &everything, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    EXPECT_EQ(64 * 48, canvas.Count(canvas.All(), Canvas::kBlack));
    PatBlt(canvas, 5, 5, 0x7FFFFFFF, 0x7FFFFFFF, WHITENESS);
    EXPECT_EQ((64 - 5) * (48 - 5), canvas.Count(canvas.All(), Canvas::kWhite));
}

}  // namespace
