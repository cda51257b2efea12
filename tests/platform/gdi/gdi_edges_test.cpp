#include "tests/platform/support/gdi_canvas.h"

namespace {

std::uint32_t System(int index) {
    return PixelOf(GetSysColor(index));
}

struct EdgeCase {
    UINT edge;
    UINT flags;
    int outerTopLeft;
    int outerBottomRight;
    int innerTopLeft;
    int innerBottomRight;
};

TEST(GdiEdges, EveryLineOfEveryEdge) {
    const EdgeCase cases[] = {
        {EDGE_RAISED, BF_RECT, COLOR_3DLIGHT, COLOR_3DDKSHADOW, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW},
        {EDGE_SUNKEN, BF_RECT, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW, COLOR_3DLIGHT},
        {EDGE_ETCHED, BF_RECT, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW},
        {EDGE_BUMP, BF_RECT, COLOR_3DLIGHT, COLOR_3DDKSHADOW, COLOR_3DDKSHADOW, COLOR_3DLIGHT},
        {EDGE_RAISED, BF_RECT | BF_SOFT, COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW, COLOR_3DLIGHT, COLOR_BTNSHADOW},
        {EDGE_SUNKEN, BF_RECT | BF_SOFT, COLOR_3DDKSHADOW, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW, COLOR_3DLIGHT},
        {EDGE_RAISED, BF_RECT | BF_FLAT, COLOR_BTNSHADOW, COLOR_BTNSHADOW, COLOR_BTNFACE, COLOR_BTNFACE},
    };
    for (const EdgeCase& each : cases) {
        SCOPED_TRACE(::testing::Message() << each.edge << ' ' << each.flags);
        Canvas canvas(20, 16);
        canvas.Clear(0x123456);
        RECT rect{2, 2, 18, 14};
        ASSERT_TRUE(DrawEdge(canvas, &rect, each.edge, each.flags));
        ExpectRect(rect, 2, 2, 18, 14);
        EXPECT_EQ(System(each.outerTopLeft), canvas.At(2, 8));
        EXPECT_EQ(System(each.outerTopLeft), canvas.At(9, 2));
        EXPECT_EQ(System(each.outerBottomRight), canvas.At(17, 8));
        EXPECT_EQ(System(each.outerBottomRight), canvas.At(9, 13));
        EXPECT_EQ(System(each.innerTopLeft), canvas.At(3, 8));
        EXPECT_EQ(System(each.innerTopLeft), canvas.At(9, 3));
        EXPECT_EQ(System(each.innerBottomRight), canvas.At(16, 8));
        EXPECT_EQ(System(each.innerBottomRight), canvas.At(9, 12));
        // The lower right lines own the corners that they share.
        EXPECT_EQ(System(each.outerBottomRight), canvas.At(17, 2));
        EXPECT_EQ(System(each.outerBottomRight), canvas.At(2, 13));
        EXPECT_EQ(0x123456u, canvas.At(4, 4));
    }
}

TEST(GdiEdges, FlagsChooseSidesMiddleAndAdjustment) {
    Canvas canvas(20, 16);
    canvas.Clear(0x123456);
    RECT rect{0, 0, 20, 16};
    DrawEdge(canvas, &rect, EDGE_SUNKEN, BF_TOP | BF_ADJUST);
    ExpectRect(rect, 0, 2, 20, 16);
    EXPECT_EQ(40, 20 * 16 - canvas.Count(canvas.All(), 0x123456));
    rect = {0, 0, 20, 16};
    DrawEdge(canvas, &rect, BDR_RAISEDINNER, BF_RECT | BF_MIDDLE | BF_ADJUST);
    ExpectRect(rect, 1, 1, 19, 15);
    EXPECT_EQ(System(COLOR_BTNFACE), canvas.At(10, 8));
}

TEST(GdiEdges, FrameControlsShowTheirState) {
    Canvas canvas(40, 40);
    RECT rect{0, 0, 30, 20};
    ASSERT_TRUE(DrawFrameControl(canvas, &rect, DFC_BUTTON, DFCS_BUTTONPUSH));
    EXPECT_EQ(System(COLOR_BTNHIGHLIGHT), canvas.At(0, 0));
    EXPECT_EQ(System(COLOR_3DDKSHADOW), canvas.At(29, 19));
    EXPECT_EQ(System(COLOR_BTNFACE), canvas.At(15, 10));
    rect = {0, 0, 13, 13};
    DrawFrameControl(canvas, &rect, DFC_BUTTON, DFCS_BUTTONCHECK);
    EXPECT_EQ(System(COLOR_BTNSHADOW), canvas.At(0, 6));
    EXPECT_EQ(System(COLOR_WINDOW), canvas.At(6, 6));
    const RECT inside{2, 2, 11, 11};
    const int plain = canvas.Count(inside, System(COLOR_WINDOWTEXT));
    DrawFrameControl(canvas, &rect, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED);
    EXPECT_LT(plain + 10, canvas.Count(inside, System(COLOR_WINDOWTEXT)));
    rect = {0, 0, 16, 16};
    ASSERT_TRUE(DrawFrameControl(canvas, &rect, DFC_SCROLL, DFCS_SCROLLDOWN));
    const RECT middle{3, 3, 13, 13};
    EXPECT_LT(0, canvas.Count(middle, System(COLOR_BTNTEXT)));
}

}  // namespace
