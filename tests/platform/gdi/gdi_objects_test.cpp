#include "tests/platform/support/gdi_canvas.h"

namespace {

TEST(GdiObjects, StaleHandlesAreRefused) {
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    EXPECT_TRUE(DeleteObject(brush));
    EXPECT_FALSE(DeleteObject(brush));
    EXPECT_EQ(nullptr, SelectObject(Canvas(), brush));
    const HDC dc = CreateCompatibleDC(nullptr);
    ASSERT_TRUE(DeleteDC(dc));
    SetLastError(0);
    EXPECT_FALSE(DeleteDC(dc));
    EXPECT_EQ(DWORD{ERROR_INVALID_HANDLE}, GetLastError());
    EXPECT_EQ(COLORREF{CLR_INVALID}, SetTextColor(dc, 0));
    EXPECT_EQ(0, SetBkMode(dc, OPAQUE));
    EXPECT_FALSE(BitBlt(dc, 0, 0, 1, 1, nullptr, 0, 0, BLACKNESS));
    EXPECT_EQ(0, SaveDC(dc));
}

TEST(GdiObjects, StockObjectsOutliveDeletion) {
    const HGDIOBJ white = GetStockObject(WHITE_BRUSH);
    EXPECT_TRUE(DeleteObject(white));
    EXPECT_EQ(white, GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(nullptr, GetStockObject(-1));
    EXPECT_EQ(nullptr, GetStockObject(1000));
}

TEST(GdiObjects, MemoryContextsStartWithTheDefaults) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP other = CreateBitmap(2, 2, 1, 1, nullptr);
    const HGDIOBJ first = SelectObject(dc, other);
    BITMAP bitmap{};
    ASSERT_NE(0, GetObjectA(first, sizeof(bitmap), &bitmap));
    EXPECT_EQ(1, bitmap.bmWidth * bitmap.bmHeight * bitmap.bmBitsPixel);
    SelectObject(dc, first);
    DeleteObject(other);
    EXPECT_EQ(GetStockObject(BLACK_PEN), SelectObject(dc, GetStockObject(NULL_PEN)));
    EXPECT_EQ(GetStockObject(WHITE_BRUSH), SelectObject(dc, GetStockObject(NULL_BRUSH)));
    EXPECT_EQ(GetStockObject(SYSTEM_FONT), SelectObject(dc, GetStockObject(ANSI_VAR_FONT)));
    EXPECT_EQ(RGB(0, 0, 0), GetTextColor(dc));
    EXPECT_EQ(RGB(255, 255, 255), GetBkColor(dc));
    EXPECT_EQ(OPAQUE, GetBkMode(dc));
    DeleteDC(dc);
}

TEST(GdiObjects, SavedStatesNest) {
    Canvas canvas;
    SetTextColor(canvas, RGB(1, 1, 1));
    const int outer = SaveDC(canvas);
    EXPECT_EQ(1, outer);
    SetTextColor(canvas, RGB(2, 2, 2));
    SelectObject(canvas, GetStockObject(WHITE_PEN));
    IntersectClipRect(canvas, 0, 0, 5, 5);
    EXPECT_EQ(2, SaveDC(canvas));
    SetTextColor(canvas, RGB(3, 3, 3));
    EXPECT_TRUE(RestoreDC(canvas, -1));
    EXPECT_EQ(RGB(2, 2, 2), GetTextColor(canvas));
    SetPixel(canvas, 5, 5, RGB(9, 9, 9));
    EXPECT_EQ(2, SaveDC(canvas));
    EXPECT_FALSE(RestoreDC(canvas, 5));
    EXPECT_TRUE(RestoreDC(canvas, outer));
    EXPECT_EQ(RGB(1, 1, 1), GetTextColor(canvas));
    EXPECT_EQ(GetStockObject(BLACK_PEN), SelectObject(canvas, GetStockObject(WHITE_PEN)));
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(canvas, 5, 5)) << "it was clipped still";
    SetPixel(canvas, 5, 5, RGB(9, 9, 9));
    EXPECT_EQ(RGB(9, 9, 9), GetPixel(canvas, 5, 5)) << "nothing is clipped any more";
    EXPECT_FALSE(RestoreDC(canvas, -1));
}

TEST(GdiObjects, SystemColourBrushes) {
    const HBRUSH brush = GetSysColorBrush(COLOR_BTNFACE);
    ASSERT_NE(nullptr, brush);
    EXPECT_EQ(brush, GetSysColorBrush(COLOR_BTNFACE));
    EXPECT_EQ(nullptr, GetSysColorBrush(1000));
    Canvas canvas;
    const RECT rect{0, 0, 4, 4};
    FillRect(canvas, &rect, brush);
    EXPECT_EQ(PixelOf(GetSysColor(COLOR_BTNFACE)), canvas.At(3, 3));
    FillRect(canvas, &rect, reinterpret_cast<HBRUSH>(COLOR_HIGHLIGHT + 1));
    EXPECT_EQ(PixelOf(GetSysColor(COLOR_HIGHLIGHT)), canvas.At(0, 0));
    SelectObject(canvas, GetStockObject(BLACK_BRUSH));
    EXPECT_NE(0, FillRect(canvas, &rect, nullptr)) << "without one it is the selected one";
    EXPECT_EQ(16, canvas.Count(canvas.All(), Canvas::kBlack));
    EXPECT_EQ(0, FrameRect(canvas, &rect, nullptr));
}

}  // namespace
