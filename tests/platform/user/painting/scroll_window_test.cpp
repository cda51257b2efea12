#include "tests/platform/support/painted_window.h"

namespace {

using Scrolling = PaintedWindows;

TEST_F(Scrolling, MovesPixelsAndInvalidatesWhatTheyLeft) {
    HWND window = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    Settle();
    Mark(window, 20, 40);
    EXPECT_TRUE(ScrollWindow(window, 0, -10, nullptr, nullptr));
    EXPECT_EQ(PixelAt(window, 20, 30), kYellow);
    ExpectRect(UpdateOf(window), 0, 70, 100, 80);
    Settle();
    EXPECT_EQ(PixelAt(window, 20, 75), kRed);
}

TEST_F(Scrolling, WhatIsDueMovesAlong) {
    HWND window = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    Settle();
    const RECT due{10, 40, 20, 50};
    InvalidateRect(window, &due, FALSE);
    RECT update;
    EXPECT_EQ(ScrollWindowEx(window, 0, -10, nullptr, nullptr, nullptr, &update, 0), SIMPLEREGION);
    ExpectRect(update, 0, 70, 100, 80);
    HRGN region = CreateRectRgn(0, 0, 0, 0);
    GetUpdateRgn(window, region, FALSE);
    EXPECT_TRUE(PtInRegion(region, 15, 32));
    DeleteObject(region);
}

TEST_F(Scrolling, ClipHoldsBothEnds) {
    HWND window = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    Settle();
    Mark(window, 10, 40);
    Mark(window, 60, 40);
    const RECT part{0, 0, 50, 80};
    ScrollWindowEx(window, 0, -10, &part, &part, nullptr, nullptr, SW_INVALIDATE);
    EXPECT_EQ(PixelAt(window, 10, 30), kYellow);
    EXPECT_EQ(PixelAt(window, 60, 40), kYellow);
    ExpectRect(UpdateOf(window), 0, 70, 50, 80);
}

TEST_F(Scrolling, ChildrenMoveWhenAsked) {
    HWND window = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    HWND child = Child(window, 10, 40, 20, 20, kGreen);
    Settle();
    Mark(child, 3, 3);
    ScrollWindow(window, 5, -10, nullptr, nullptr);
    RECT rect;
    GetWindowRect(child, &rect);
    ExpectRect(rect, 25, 40, 45, 60);
    EXPECT_EQ(PixelAt(child, 3, 3), kYellow);
    Settle();
    EXPECT_EQ(PixelAt(child, 3, 3), kYellow);
    EXPECT_EQ(PixelAt(window, 20, 55), kRed);
}

TEST_F(Scrolling, ContextsScrollToo) {
    HWND window = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    Settle();
    Mark(window, 20, 40);
    HDC context = GetDC(window);
    const RECT area{0, 0, 100, 80};
    RECT update;
    EXPECT_TRUE(ScrollDC(context, 10, 0, &area, &area, nullptr, &update));
    ReleaseDC(window, context);
    ExpectRect(update, 0, 0, 10, 80);
    EXPECT_EQ(PixelAt(window, 30, 40), kYellow);
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
}

}  // namespace
