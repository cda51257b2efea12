#include "tests/platform/support/gdi_canvas.h"

namespace {

TEST(GdiClip, RectanglesNarrow) {
    Canvas canvas;
    EXPECT_EQ(SIMPLEREGION, IntersectClipRect(canvas, 10, 10, 2, 4));  // in either order
    PatBlt(canvas, 0, 0, 64, 48, BLACKNESS);
    ExpectRect(canvas.Inked(), 2, 4, 10, 10);
    EXPECT_EQ(SIMPLEREGION, IntersectClipRect(canvas, 4, 0, 100, 100));
    PatBlt(canvas, 0, 0, 64, 48, WHITENESS);
    ExpectRect(canvas.Inked(), 2, 4, 4, 10);
    EXPECT_EQ(NULLREGION, IntersectClipRect(canvas, 0, 0, 1, 1));
}

TEST(GdiRectangles, Arithmetic) {
    RECT result;
    const RECT a{0, 0, 10, 10};
    const RECT b{5, 5, 15, 15};
    const RECT empty{3, 3, 3, 9};
    EXPECT_TRUE(IntersectRect(&result, &a, &b));
    ExpectRect(result, 5, 5, 10, 10);
    const RECT beside{10, 0, 20, 10};
    EXPECT_FALSE(IntersectRect(&result, &a, &beside));
    ExpectRect(result, 0, 0, 0, 0);
    EXPECT_TRUE(UnionRect(&result, &a, &b));
    ExpectRect(result, 0, 0, 15, 15);
    EXPECT_TRUE(UnionRect(&result, &empty, &b));
    ExpectRect(result, 5, 5, 15, 15);
    EXPECT_TRUE(IsRectEmpty(&empty));
    EXPECT_TRUE(PtInRect(&a, POINT{0, 0}));
    EXPECT_FALSE(PtInRect(&a, POINT{10, 0}));
    result = a;
    InflateRect(&result, 2, -1);
    ExpectRect(result, -2, 1, 12, 9);
    OffsetRect(&result, 2, 3);
    ExpectRect(result, 0, 4, 14, 12);
    EXPECT_FALSE(EqualRect(&result, &a));
    EXPECT_FALSE(SetRect(nullptr, 0, 0, 0, 0));
}

}  // namespace
