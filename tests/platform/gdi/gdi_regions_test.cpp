#include "tests/platform/support/gdi_canvas.h"

namespace {

class GdiRegions : public ::testing::Test {
  protected:
    void SetUp() override {
        a = CreateRectRgn(0, 0, 10, 10);
        b = CreateRectRgn(5, 5, 15, 15);
        result = CreateRectRgn(0, 0, 0, 0);
    }
    void TearDown() override {
        DeleteObject(a);
        DeleteObject(b);
        DeleteObject(result);
    }
    HRGN a;
    HRGN b;
    HRGN result;
};

TEST_F(GdiRegions, Combine) {
    EXPECT_EQ(SIMPLEREGION, CombineRgn(result, a, b, RGN_AND));
    RECT box;
    EXPECT_EQ(SIMPLEREGION, GetRgnBox(result, &box));
    ExpectRect(box, 5, 5, 10, 10);
    EXPECT_EQ(COMPLEXREGION, CombineRgn(result, a, b, RGN_OR));
    EXPECT_TRUE(PtInRegion(result, 14, 14));
    EXPECT_FALSE(PtInRegion(result, 12, 2));
    EXPECT_EQ(COMPLEXREGION, CombineRgn(result, a, b, RGN_XOR));
    EXPECT_FALSE(PtInRegion(result, 7, 7));
    EXPECT_EQ(COMPLEXREGION, CombineRgn(result, a, b, RGN_DIFF));
    EXPECT_FALSE(PtInRegion(result, 5, 5));
    EXPECT_TRUE(PtInRegion(result, 4, 5));
    EXPECT_EQ(NULLREGION, CombineRgn(result, a, a, RGN_DIFF));
    GetRgnBox(result, &box);
    ExpectRect(box, 0, 0, 0, 0);
    EXPECT_EQ(SIMPLEREGION, CombineRgn(result, a, nullptr, RGN_COPY));
    EXPECT_TRUE(EqualRgn(result, a));
    EXPECT_EQ(ERROR, CombineRgn(result, a, nullptr, RGN_AND));
}

TEST_F(GdiRegions, EdgesBelongToTheUpperLeft) {
    EXPECT_TRUE(PtInRegion(a, 0, 0));
    EXPECT_FALSE(PtInRegion(a, 10, 9));
    EXPECT_FALSE(PtInRegion(a, 9, 10));
    const RECT beside{10, 0, 20, 10};
    EXPECT_FALSE(RectInRegion(a, &beside));
    const RECT touching{9, 9, 20, 20};
    EXPECT_TRUE(RectInRegion(a, &touching));
}

TEST_F(GdiRegions, MoveAndReset) {
    EXPECT_EQ(SIMPLEREGION, OffsetRgn(a, 5, 5));
    EXPECT_TRUE(EqualRgn(a, b));
    EXPECT_TRUE(SetRectRgn(a, 20, 20, 10, 10));  // in either order
    RECT box;
    GetRgnBox(a, &box);
    ExpectRect(box, 10, 10, 20, 20);
}

TEST_F(GdiRegions, ClipRegionsNarrowAndAreCopied) {
    Canvas canvas;
    RECT box;
    EXPECT_EQ(SIMPLEREGION, GetClipBox(canvas, &box));
    ExpectRect(box, 0, 0, 64, 48);
    EXPECT_EQ(0, GetClipRgn(canvas, result));
    EXPECT_EQ(SIMPLEREGION, SelectClipRgn(canvas, a));
    DeleteObject(a);
    a = CreateRectRgn(0, 0, 10, 10);
    EXPECT_EQ(1, GetClipRgn(canvas, result));
    EXPECT_TRUE(EqualRgn(result, a));
    EXPECT_EQ(COMPLEXREGION, ExcludeClipRect(canvas, 2, 2, 4, 4));
    EXPECT_FALSE(PtVisible(canvas, 3, 3));
    EXPECT_TRUE(PtVisible(canvas, 4, 4));
    const RECT hidden{2, 2, 4, 4};
    EXPECT_FALSE(RectVisible(canvas, &hidden));
    EXPECT_EQ(SIMPLEREGION, IntersectClipRect(canvas, 4, 4, 100, 100));
    GetClipBox(canvas, &box);
    ExpectRect(box, 4, 4, 10, 10);
    EXPECT_EQ(SIMPLEREGION, ExtSelectClipRgn(canvas, b, RGN_COPY));
    EXPECT_EQ(NULLREGION, IntersectClipRect(canvas, 0, 0, 1, 1));
    SelectClipRgn(canvas, nullptr);
    GetClipBox(canvas, &box);
    ExpectRect(box, 0, 0, 64, 48);
}

TEST_F(GdiRegions, ClipRectanglesAreLogicalAndRegionsAreNot) {
    Canvas canvas;
    SetViewportOrgEx(canvas, 10, 10, nullptr);
    SelectClipRgn(canvas, b);
    RECT box;
    GetClipBox(canvas, &box);
    ExpectRect(box, -5, -5, 5, 5);
    IntersectClipRect(canvas, 0, 0, 3, 3);
    SetViewportOrgEx(canvas, 0, 0, nullptr);
    GetClipBox(canvas, &box);
    ExpectRect(box, 10, 10, 13, 13);
}

TEST_F(GdiRegions, FillAndFrame) {
    Canvas canvas;
    const HBRUSH black = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    CombineRgn(result, a, b, RGN_OR);
    EXPECT_TRUE(FillRgn(canvas, result, black));
    EXPECT_EQ(175, canvas.Count(canvas.All(), Canvas::kBlack));
    canvas.Clear(Canvas::kWhite);
    EXPECT_TRUE(FrameRgn(canvas, a, black, 1, 2));
    EXPECT_EQ(100 - 8 * 6, canvas.Count(canvas.All(), Canvas::kBlack));
    EXPECT_TRUE(InvertRgn(canvas, a));
    EXPECT_EQ(8 * 6, canvas.Count(canvas.All(), Canvas::kBlack));
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
    EXPECT_FALSE(UnionRect(&result, &empty, &empty));
    EXPECT_TRUE(SubtractRect(&result, &a, &b));  // would leave no rectangle
    ExpectRect(result, 0, 0, 10, 10);
    const RECT right{6, -1, 20, 11};
    EXPECT_TRUE(SubtractRect(&result, &a, &right));
    ExpectRect(result, 0, 0, 6, 10);
    EXPECT_FALSE(SubtractRect(&result, &a, &a));
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
