#include "tests/platform/support/looking.h"
#include "tests/platform/support/painted_window.h"

namespace {

using UpdateRegion = PaintedWindows;

TEST_F(UpdateRegion, GrowsByInvalidationAndShrinksByValidation) {
    HWND window = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    Settle();
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
    ExpectRect(UpdateOf(window), 0, 0, 0, 0);

    const RECT first{5, 5, 20, 20};
    const RECT second{40, 10, 60, 30};
    InvalidateRect(window, &first, FALSE);
    ExpectRect(UpdateOf(window), 5, 5, 20, 20);
    InvalidateRect(window, &second, FALSE);
    ExpectRect(UpdateOf(window), 5, 5, 60, 30);

    ValidateRect(window, &first);
    ExpectRect(UpdateOf(window), 40, 10, 60, 30);
    ValidateRect(window, &second);
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));

    Settle();
    EXPECT_EQ(Of(window).Count(WM_PAINT), 0);
}

TEST_F(UpdateRegion, ReachesChildrenUnlessTheParentLeavesThemOut) {
    HWND plain = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    HWND inPlain = Child(plain, 10, 10, 30, 30, kGreen);
    HWND clipping = Make(kPlain | WS_CLIPCHILDREN, 150, 10, 100, 80, ground, kRed);
    HWND inClipping = Child(clipping, 10, 10, 30, 30, kGreen);
    Settle();

    InvalidateRect(plain, nullptr, TRUE);
    EXPECT_TRUE(GetUpdateRect(inPlain, nullptr, FALSE));
    InvalidateRect(clipping, nullptr, TRUE);
    EXPECT_FALSE(GetUpdateRect(inClipping, nullptr, FALSE));
    Settle();

    RedrawWindow(clipping, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    EXPECT_TRUE(GetUpdateRect(inClipping, nullptr, FALSE));
}

TEST_F(UpdateRegion, BadHandlesAreRefused) {
    HWND gone = Make(kPlain, 10, 10, 20, 20, ground, kBlue);
    DestroyWindow(gone);
    EXPECT_EQ(DWORD{ERROR_INVALID_WINDOW_HANDLE}, tests::ErrorOf([&] { return InvalidateRect(gone, nullptr, TRUE); }));
    EXPECT_FALSE(GetUpdateRect(gone, nullptr, FALSE));
    PAINTSTRUCT paint;
    EXPECT_EQ(BeginPaint(gone, &paint), nullptr);
    EXPECT_EQ(GetDC(gone), nullptr);
}

}  // namespace
