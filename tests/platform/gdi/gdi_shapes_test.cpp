#include "tests/platform/support/gdi_canvas.h"

namespace {

TEST(GdiShapes, ALineExcludesItsEndPoint) {
    Canvas canvas;
    for (const POINT& end : {POINT{30, 20}, POINT{10, 20}, POINT{20, 30}, POINT{20, 10}, POINT{30, 30}, POINT{13, 17},
                             POINT{10, 10}, POINT{22, 29}}) {
        canvas.Clear(Canvas::kWhite);
        MoveToEx(canvas, 20, 20, nullptr);
        ASSERT_TRUE(LineTo(canvas, end.x, end.y));
        EXPECT_EQ(Canvas::kBlack, canvas.At(20, 20)) << end.x << ' ' << end.y;
        EXPECT_EQ(Canvas::kWhite, canvas.At(end.x, end.y)) << end.x << ' ' << end.y;
        const int dx = end.x > 20 ? end.x - 20 : 20 - end.x;
        const int dy = end.y > 20 ? end.y - 20 : 20 - end.y;
        EXPECT_EQ(dx > dy ? dx : dy, canvas.Count(canvas.All(), Canvas::kBlack)) << end.x << ' ' << end.y;
        POINT position;
        MoveToEx(canvas, 0, 0, &position);
        EXPECT_EQ(end.x, position.x);
    }
    canvas.Clear(Canvas::kWhite);
    MoveToEx(canvas, 5, 5, nullptr);
    LineTo(canvas, 5, 5);
    EXPECT_EQ(0, canvas.Count(canvas.All(), Canvas::kBlack));
}

TEST(GdiShapes, RectanglesExcludeRightAndBottom) {
    Canvas canvas;
    canvas.Clear(0x808080);
    Rectangle(canvas, 2, 3, 12, 9);
    EXPECT_EQ(Canvas::kBlack, canvas.At(2, 3));
    EXPECT_EQ(Canvas::kBlack, canvas.At(11, 8));
    EXPECT_EQ(0x808080u, canvas.At(12, 8));
    EXPECT_EQ(0x808080u, canvas.At(11, 9));
    EXPECT_EQ(8 * 4, canvas.Count(canvas.All(), Canvas::kWhite));
    EXPECT_EQ(60 - 32, canvas.Count(canvas.All(), Canvas::kBlack));
    canvas.Clear(0x808080);
    SelectObject(canvas, GetStockObject(NULL_BRUSH));
    Rectangle(canvas, 0, 0, 10, 10);
    EXPECT_EQ(36, canvas.Count(canvas.All(), Canvas::kBlack));
    EXPECT_EQ(0, canvas.Count(canvas.All(), Canvas::kWhite)) << "a hollow brush leaves the inside";
    SelectObject(canvas, GetStockObject(WHITE_BRUSH));
    SelectObject(canvas, GetStockObject(NULL_PEN));
    Rectangle(canvas, 0, 0, 10, 10);
    EXPECT_EQ(81, canvas.Count(canvas.All(), Canvas::kWhite)) << "without a pen it is smaller";
}

TEST(GdiShapes, EllipsesFillTheirBox) {
    Canvas canvas;
    SelectObject(canvas, GetStockObject(BLACK_BRUSH));
    Ellipse(canvas, 4, 4, 25, 19);
    ExpectRect(canvas.Inked(), 4, 4, 25, 19);
    EXPECT_EQ(Canvas::kWhite, canvas.At(4, 4));
    EXPECT_EQ(Canvas::kBlack, canvas.At(14, 11));
    // Mirrored halves are alike.
    for (int y = 4; y < 19; ++y) {
        for (int x = 4; x < 25; ++x) {
            ASSERT_EQ(canvas.At(x, y), canvas.At(28 - x, y)) << x << ' ' << y;
            ASSERT_EQ(canvas.At(x, y), canvas.At(x, 22 - y)) << x << ' ' << y;
        }
    }
}

TEST(GdiShapes, FramesAndInversion) {
    Canvas canvas;
    const RECT rect{3, 4, 9, 8};
    EXPECT_NE(0, FrameRect(canvas, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH))));
    EXPECT_EQ(6 * 4 - 4 * 2, canvas.Count(canvas.All(), Canvas::kBlack));
    ExpectRect(canvas.Inked(), 3, 4, 9, 8);
    InvertRect(canvas, &rect);
    EXPECT_EQ(8, canvas.Count(rect, Canvas::kBlack));
    InvertRect(canvas, &rect);
    EXPECT_EQ(16, canvas.Count(rect, Canvas::kBlack));
}

TEST(GdiShapes, AFocusRectangleUndoesItself) {
    Canvas canvas;
    canvas.Clear(0xC0C0C0);
    const RECT rect{3, 4, 30, 20};
    DrawFocusRect(canvas, &rect);
    const int changed = 64 * 48 - canvas.Count(canvas.All(), 0xC0C0C0);
    EXPECT_NEAR(27 + 27 + 14 + 14, changed * 2, 4);
    // Neighbours along a side differ.
    EXPECT_NE(canvas.At(10, 4), canvas.At(11, 4));
    EXPECT_EQ(canvas.At(10, 4), canvas.At(12, 4));
    EXPECT_EQ(0xC0C0C0u, canvas.At(10, 10));
    DrawFocusRect(canvas, &rect);
    EXPECT_EQ(64 * 48, canvas.Count(canvas.All(), 0xC0C0C0));
}

TEST(GdiShapes, ClippingDoesNotBendALine) {
    Canvas whole(60, 60);
    MoveToEx(whole, 3, 5, nullptr);
    LineTo(whole, 57, 40);
    Canvas part(60, 60);
    IntersectClipRect(part, 20, 10, 45, 50);
    MoveToEx(part, 3, 5, nullptr);
    LineTo(part, 57, 40);
    for (int y = 10; y < 50; ++y) {
        for (int x = 20; x < 45; ++x) {
            ASSERT_EQ(whole.At(x, y), part.At(x, y)) << x << ' ' << y;
        }
    }
    const RECT clip{20, 10, 45, 50};
    EXPECT_EQ(part.Count(clip, Canvas::kBlack), part.Count(part.All(), Canvas::kBlack));
}

}  // namespace
