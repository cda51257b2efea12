#include "tests/platform/support/painted_window.h"

namespace {

constexpr UINT kQuiet = SWP_NOACTIVATE | SWP_NOZORDER;
constexpr UINT kOrder = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

using Positions = PaintedWindows;

TEST_F(Positions, MessagesComeInTheDocumentedOrder) {
    HWND window = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    Settle();
    SetWindowPos(window, nullptr, 20, 30, 60, 50, kQuiet);
    const Painted& record = Of(window);
    const int changing = record.Position(WM_WINDOWPOSCHANGING);
    const int changed = record.Position(WM_WINDOWPOSCHANGED);
    EXPECT_GE(changing, 0);
    EXPECT_LT(changing, changed);
    EXPECT_LT(changed, record.Position(WM_MOVE));
    EXPECT_LT(changed, record.Position(WM_SIZE));
    EXPECT_EQ(record.lastPosition.x, 20);
    EXPECT_EQ(record.lastPosition.cy, 50);
    EXPECT_EQ(record.lastSize, MAKELPARAM(60, 50));

    Settle();
    SetWindowPos(window, nullptr, 25, 30, 60, 50, kQuiet);
    EXPECT_EQ(Of(window).Count(WM_WINDOWPOSCHANGED), 1);
    EXPECT_EQ(Of(window).Count(WM_SIZE), 0);
    EXPECT_EQ(Of(window).Count(WM_MOVE), 1);
    Settle();
    SetWindowPos(window, nullptr, 25, 30, 60, 50, kQuiet);
    EXPECT_EQ(Of(window).Count(WM_WINDOWPOSCHANGED), 0);
}

TEST_F(Positions, AMovedWindowTakesItsPixelsAlong) {
    HWND window = Make(kPlain, 10, 10, 60, 60, ground, kRed);
    HWND child = Child(window, 10, 10, 20, 20, kGreen);
    Settle();
    Mark(window, 50, 50);
    Mark(child, 5, 5);
    SetWindowPos(window, nullptr, 100, 40, 0, 0, SWP_NOSIZE | kQuiet);
    EXPECT_EQ(PixelAt(window, 50, 50), kYellow);
    EXPECT_EQ(PixelAt(child, 5, 5), kYellow);
    ExpectRect(tests::PlaceOf(child), 110, 50, 130, 70);
    // Only what lay under its old place is to be painted.
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
    ExpectRect(UpdateOf(ground), 10, 10, 70, 70);
    Settle();
    EXPECT_EQ(PixelAt(ground, 20, 20), kGround);
    EXPECT_EQ(PixelAt(window, 50, 50), kYellow);

    SetWindowPos(window, nullptr, 110, 40, 0, 0, SWP_NOSIZE | SWP_NOCOPYBITS | kQuiet);
    Settle();
    EXPECT_EQ(PixelAt(window, 50, 50), kRed);
}

TEST_F(Positions, AGrownWindowPaintsWhatIsNew) {
    HWND window = Make(kPlain, 10, 10, 60, 60, ground, kRed);
    Settle();
    Mark(window, 5, 5);
    SetWindowPos(window, nullptr, 0, 0, 80, 60, SWP_NOMOVE | kQuiet);
    ExpectRect(UpdateOf(window), 60, 0, 80, 60);
    Settle();
    EXPECT_EQ(PixelAt(window, 5, 5), kYellow);
    EXPECT_EQ(PixelAt(window, 70, 30), kRed);
    SetWindowPos(window, nullptr, 0, 0, 40, 40, SWP_NOMOVE | kQuiet);
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
    Settle();
    EXPECT_EQ(PixelAt(window, 5, 5), kYellow);
    EXPECT_EQ(PixelAt(window, 60, 30), kGround);
}

TEST_F(Positions, RedrawStylesInvalidateEverything) {
    Register("PaintedRedraw", CS_HREDRAW);
    HWND window = Make(kPlain, 10, 10, 60, 60, ground, kRed, 0, "PaintedRedraw");
    Settle();
    SetWindowPos(window, nullptr, 0, 0, 80, 60, SWP_NOMOVE | kQuiet);
    ExpectRect(UpdateOf(window), 0, 0, 80, 60);
    Settle();
    SetWindowPos(window, nullptr, 0, 0, 80, 70, SWP_NOMOVE | kQuiet);
    ExpectRect(UpdateOf(window), 0, 60, 80, 70);
}

TEST_F(Positions, HidingUncoversWhatLiesBelow) {
    HWND upper = Make(kPlain, 30, 30, 60, 60, ground, kGreen);
    HWND lower = Make(kPlain, 10, 10, 60, 60, ground, kRed);
    Settle();
    EXPECT_EQ(PixelAt(lower, 30, 30), kGreen);
    ShowWindow(upper, SW_HIDE);
    ExpectRect(UpdateOf(lower), 20, 20, 60, 60);
    Settle();
    EXPECT_EQ(PixelAt(lower, 30, 30), kRed);
    EXPECT_EQ(PixelAt(ground, 80, 80), kGround);
}

TEST_F(Positions, OrderChangesShowTheUpperWindow) {
    HWND first = Child(ground, 10, 10, 40, 40, kRed, WS_CLIPSIBLINGS);
    HWND second = Child(ground, 30, 30, 40, 40, kGreen, WS_CLIPSIBLINGS);
    Settle();
    SetWindowPos(second, HWND_TOP, 0, 0, 0, 0, kOrder);
    Settle();
    EXPECT_EQ(GetWindow(ground, GW_CHILD), second);
    EXPECT_EQ(PixelAt(ground, 40, 40), kGreen);
    SetWindowPos(second, HWND_BOTTOM, 0, 0, 0, 0, kOrder);
    ExpectRect(UpdateOf(first), 20, 20, 40, 40);
    Settle();
    EXPECT_EQ(PixelAt(ground, 40, 40), kRed);
    SetWindowPos(first, second, 0, 0, 0, 0, kOrder);
    Settle();
    EXPECT_EQ(GetWindow(second, GW_HWNDNEXT), first);
    EXPECT_EQ(PixelAt(ground, 40, 40), kGreen);
}

TEST_F(Positions, OwnedWindowsStayAboveAndTopmostOnesAboveAll) {
    HWND owner = Make(kTop, 10, 10, 60, 60, nullptr, kRed);
    HWND owned = Make(kTop, 20, 20, 60, 60, owner, kGreen);
    HWND other = Make(kTop, 30, 30, 60, 60, nullptr, kYellow);
    Settle();
    const auto above = [](HWND window, HWND below) {
        for (HWND at = GetWindow(window, GW_HWNDNEXT); at != nullptr; at = GetWindow(at, GW_HWNDNEXT)) {
            if (at == below) {
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(above(other, owner));
    SetWindowPos(owner, HWND_TOP, 0, 0, 0, 0, kOrder);
    EXPECT_TRUE(above(owned, owner));
    EXPECT_TRUE(above(owner, other));
    EXPECT_TRUE(above(ground, owned));

    SetWindowPos(other, HWND_TOPMOST, 0, 0, 0, 0, kOrder);
    EXPECT_NE(GetWindowLongA(other, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    SetWindowPos(owner, HWND_TOP, 0, 0, 0, 0, kOrder);
    EXPECT_TRUE(above(other, owned));
    SetWindowPos(other, HWND_NOTOPMOST, 0, 0, 0, 0, kOrder);
    EXPECT_EQ(GetWindowLongA(other, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    EXPECT_TRUE(above(ground, other));
}

TEST_F(Positions, ShowingTellsAndTheFirstTimeSizes) {
    HWND window = Make(WS_POPUP, 10, 10, 60, 60, ground, kRed);
    Settle();
    EXPECT_FALSE(ShowWindow(window, SW_SHOWNA));
    EXPECT_EQ(Of(window).Count(WM_SHOWWINDOW), 1);
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_NE(GetActiveWindow(), window);
    Settle();
    EXPECT_EQ(PixelAt(window, 5, 5), kRed);
    // Showing it again is no reason to activate it.
    EXPECT_TRUE(ShowWindow(window, SW_SHOW));
    EXPECT_NE(GetActiveWindow(), window);
    ShowWindow(window, SW_HIDE);
    ShowWindow(window, SW_SHOW);
    EXPECT_EQ(GetActiveWindow(), window);
    EXPECT_TRUE(ShowWindow(window, SW_HIDE));
    EXPECT_FALSE(ShowWindow(window, SW_HIDE));
    EXPECT_NE(GetActiveWindow(), window);
}

TEST_F(Positions, MaximisingAndRestoring) {
    HWND window = Make(kTop | WS_CAPTION | WS_THICKFRAME | WS_MAXIMIZEBOX | WS_MINIMIZEBOX | WS_SYSMENU, 10, 10, 200,
                       150, nullptr, kRed);
    Settle();
    const RECT before = tests::PlaceOf(window);
    ShowWindow(window, SW_SHOWMAXIMIZED);
    EXPECT_TRUE(IsZoomed(window));
    RECT after = tests::PlaceOf(window);
    EXPECT_LE(after.left, 0);
    EXPECT_GT(after.right - after.left, 600);
    ShowWindow(window, SW_MINIMIZE);
    EXPECT_TRUE(IsIconic(window));
    ShowWindow(window, SW_RESTORE);
    EXPECT_TRUE(IsZoomed(window));
    ShowWindow(window, SW_RESTORE);
    EXPECT_FALSE(IsZoomed(window));
    after = tests::PlaceOf(window);
    EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(Positions, APlacementIsTheNormalPlaceAndTheState) {
    HWND window = Make(WS_CAPTION | WS_THICKFRAME | WS_VISIBLE, 10, 10, 200, 150, nullptr, kRed);
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    placement.showCmd = SW_SHOWMAXIMIZED;
    placement.ptMinPosition = placement.ptMaxPosition = {-1, -1};
    placement.rcNormalPosition = {30, 40, 280, 220};
    EXPECT_TRUE(SetWindowPlacement(window, &placement));
    EXPECT_TRUE(IsZoomed(window));
    WINDOWPLACEMENT read{};
    read.length = sizeof read;
    EXPECT_TRUE(GetWindowPlacement(window, &read));
    EXPECT_EQ(read.showCmd, static_cast<UINT>(SW_SHOWMAXIMIZED));
    ExpectRect(read.rcNormalPosition, 30, 40, 280, 220);

    placement.showCmd = SW_SHOWNORMAL;
    placement.rcNormalPosition = {50, 60, 300, 240};
    EXPECT_TRUE(SetWindowPlacement(window, &placement));
    EXPECT_FALSE(IsZoomed(window));
    ExpectRect(tests::PlaceOf(window), 50, 60, 300, 240);

    HWND child = Make(WS_CHILD | WS_VISIBLE, 5, 6, 20, 30, window, kGreen);
    EXPECT_TRUE(GetWindowPlacement(child, &read));
    ExpectRect(read.rcNormalPosition, 5, 6, 25, 36);
}

TEST_F(Positions, OwnedPopupsGoAndComeWithTheirOwner) {
    HWND owner = Make(kTop, 10, 10, 60, 60, nullptr, kRed);
    HWND shown = Make(kTop, 20, 20, 20, 20, owner, kGreen);
    HWND hidden = Make(WS_POPUP, 20, 20, 20, 20, owner, kGreen);
    ShowWindow(owner, SW_MINIMIZE);
    EXPECT_FALSE(IsWindowVisible(shown));
    ShowWindow(owner, SW_RESTORE);
    EXPECT_TRUE(IsWindowVisible(shown));
    EXPECT_FALSE(IsWindowVisible(hidden));
}

}  // namespace
