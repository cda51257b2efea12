// What this layer promises beyond what all hosts do: top-level windows share one screen, so that each shows what the
// ones above it uncover, and children are painted anew where their parent has painted over them.
#include "tests/platform/support/painted_window.h"

namespace {

class Exposure : public PaintedWindows {
  protected:
    static COLORREF Screen(int x, int y) {
        return tests::PixelOf(nullptr, x, y);
    }

    HWND Top(int x, int y, COLORREF colour) {
        return Make(kTop, x, y, 60, 60, ground, colour);
    }
};

TEST_F(Exposure, AMovedWindowUncoversAndTakesOnlyItsVisiblePixelsAlong) {
    HWND lower = Top(10, 10, kRed);
    HWND upper = Top(40, 40, kGreen);
    Settle();
    EXPECT_EQ(Screen(50, 50), kGreen);
    SetWindowPos(upper, nullptr, 100, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_FALSE(GetUpdateRect(upper, nullptr, FALSE));
    ExpectRect(UpdateOf(lower), 30, 30, 60, 60);
    EXPECT_EQ(Screen(110, 50), kGreen);
    Settle();
    EXPECT_EQ(Screen(50, 50), kRed);
    EXPECT_EQ(Screen(90, 90), RGB(0, 0, 128));

    // What of the lower window was covered has nothing to take along.
    SetWindowPos(upper, nullptr, 40, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    Settle();
    SetWindowPos(lower, nullptr, 150, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    ExpectRect(UpdateOf(lower), 30, 30, 60, 60);
    Settle();
    EXPECT_EQ(Screen(200, 150), kRed);
}

TEST_F(Exposure, OrderHidingAndDestroying) {
    HWND first = Top(10, 10, kRed);
    HWND second = Top(30, 30, kGreen);
    Settle();
    SetWindowPos(first, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ExpectRect(UpdateOf(first), 20, 20, 60, 60);
    EXPECT_FALSE(GetUpdateRect(second, nullptr, FALSE));
    Settle();
    EXPECT_EQ(Screen(40, 40), kRed);
    ShowWindow(first, SW_HIDE);
    ExpectRect(UpdateOf(second), 0, 0, 40, 40);
    Settle();
    EXPECT_EQ(Screen(40, 40), kGreen);
    DestroyWindow(second);
    ExpectRect(UpdateOf(ground), 30, 30, 90, 90);
    Settle();
    EXPECT_EQ(Screen(40, 40), RGB(0, 0, 128));
}

TEST_F(Exposure, AContextThatIsHeldFollowsItsWindow) {
    HWND window = Top(10, 10, kRed);
    Settle();
    HDC context = GetDC(window);
    SetWindowPos(window, nullptr, 200, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    Settle();
    SetPixel(context, 3, 3, kYellow);
    EXPECT_EQ(Screen(203, 103), kYellow);
    Top(200, 100, kGreen);
    Settle();
    SetPixel(context, 4, 4, kYellow);
    EXPECT_EQ(Screen(204, 104), kGreen);
    ReleaseDC(window, context);
}

}  // namespace
