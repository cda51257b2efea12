// Frames: how wide they are, what a point on them means, and what a person does with them.
#include <gtest/gtest.h>

#include <windows.h>

#include "tests/platform/support/expect_rect.h"
#include "tests/platform/support/looking.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Pump;
using tests::Recorder;

class Frames : public tests::RecordedTest {
  protected:
    void Make(DWORD style, DWORD exStyle = 0) {
        window = Recorder::Get().Make(style, 100, 100, 200, 150, nullptr, exStyle | WS_EX_TOPMOST, "Frame");
        ASSERT_NE(window, nullptr);
    }
    /// What lies between the two rectangles: left, top, right, bottom.
    RECT Insets() const {
        const RECT outer = tests::PlaceOf(window);
        RECT inner = tests::ClientOf(window);
        MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inner), 2);
        return {inner.left - outer.left, inner.top - outer.top, outer.right - inner.right, outer.bottom - inner.bottom};
    }
    LRESULT Hit(int x, int y) const {
        return SendMessageA(window, WM_NCHITTEST, 0, MAKELPARAM(x, y));
    }
};

TEST_F(Frames, AreAsWideAsAdjustWindowRectSays) {
    struct Case {
        DWORD style;
        DWORD exStyle;
    };
    const Case cases[] = {{WS_POPUP, 0},
                          {WS_POPUP | WS_DLGFRAME, 0},
                          {WS_POPUP | WS_CAPTION, WS_EX_DLGMODALFRAME},
                          {WS_OVERLAPPEDWINDOW, WS_EX_CLIENTEDGE},
                          {WS_POPUP | WS_BORDER, WS_EX_CLIENTEDGE},
                          {WS_POPUP, WS_EX_STATICEDGE},
                          {WS_POPUP | WS_CAPTION, WS_EX_TOOLWINDOW}};
    for (const Case& each : cases) {
        Make(each.style, each.exStyle);
        RECT adjusted{0, 0, 0, 0};
        EXPECT_TRUE(AdjustWindowRectEx(&adjusted, each.style, FALSE, each.exStyle));
        SCOPED_TRACE(testing::Message() << std::hex << each.style << ' ' << each.exStyle);
        ExpectRect(Insets(), -adjusted.left, -adjusted.top, adjusted.right, adjusted.bottom);
        DestroyWindow(window);
    }
}

TEST_F(Frames, TellTheirPartsApart) {
    Make(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME);
    const int frame = GetSystemMetrics(SM_CXSIZEFRAME);
    EXPECT_EQ(Hit(200, 200), HTCLIENT);
    EXPECT_EQ(Hit(50, 50), HTNOWHERE);
    EXPECT_EQ(Hit(200, 100 + frame + 8), HTCAPTION);
    EXPECT_EQ(Hit(300 - frame - 10, 100 + frame + 9), HTCLOSE);
    EXPECT_EQ(Hit(100, 180), HTLEFT);
    EXPECT_EQ(Hit(299, 180), HTRIGHT);
    EXPECT_EQ(Hit(200, 100), HTTOP);
    EXPECT_EQ(Hit(200, 249), HTBOTTOM);
    EXPECT_EQ(Hit(100, 100), HTTOPLEFT);
    EXPECT_EQ(Hit(299, 249), HTBOTTOMRIGHT);
    DestroyWindow(window);
    Make(WS_POPUP | WS_DLGFRAME);
    EXPECT_EQ(Hit(100, 180), HTBORDER);
}

TEST_F(Frames, OverlappedWindowsGetWhatTheirStyleImplies) {
    Make(WS_OVERLAPPED);
    EXPECT_EQ(GetWindowLongA(window, GWL_STYLE) & WS_CAPTION, WS_CAPTION);
    EXPECT_TRUE(GetWindowLongA(window, GWL_STYLE) & WS_CLIPSIBLINGS);
}

TEST_F(Frames, SizesAreKeptWithinTheLimitsThatAreAskedFor) {
    Recorder::Get().answer = [](const Heard& heard, LRESULT* result) {
        if (heard.message != WM_GETMINMAXINFO) {
            return false;
        }
        auto* limits = reinterpret_cast<MINMAXINFO*>(heard.lParam);
        limits->ptMinTrackSize = {250, 180};
        limits->ptMaxPosition = {20, 30};
        limits->ptMaxSize = {400, 300};
        *result = 0;
        return true;
    };
    Make(WS_OVERLAPPEDWINDOW);
    ExpectRect(tests::PlaceOf(window), 100, 100, 350, 280);
    SetWindowPos(window, nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    ExpectRect(tests::PlaceOf(window), 100, 100, 350, 280);
    ShowWindow(window, SW_SHOWMAXIMIZED);
    ExpectRect(tests::PlaceOf(window), 20, 30, 420, 330);
}

TEST_F(Frames, AWindowKeepsTheIconsThatItIsGiven) {
    Make(WS_OVERLAPPEDWINDOW);
    const auto icon = reinterpret_cast<LPARAM>(LoadIconA(nullptr, IDI_APPLICATION));
    EXPECT_EQ(SendMessageA(window, WM_SETICON, ICON_BIG, icon), 0);
    EXPECT_EQ(SendMessageA(window, WM_GETICON, ICON_BIG, 0), icon);
    EXPECT_EQ(SendMessageA(window, WM_SETICON, ICON_BIG, 0), icon);
    EXPECT_EQ(SendMessageA(window, WM_GETICON, ICON_BIG, 0), 0);
}

TEST_F(Frames, DrawingIsSwitchedOffAndOn) {
    Make(WS_POPUP | WS_VISIBLE);
    UpdateWindow(window);
    SendMessageA(window, WM_SETREDRAW, FALSE, 0);
    InvalidateRect(window, nullptr, TRUE);
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
    SendMessageA(window, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window, nullptr, TRUE);
    EXPECT_TRUE(GetUpdateRect(window, nullptr, FALSE));
}

TEST_F(Frames, CloseLeadsToDestruction) {
    Make(WS_POPUP | WS_CAPTION | WS_SYSMENU);
    Recorder::Get().Clear();
    SendMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_FALSE(IsWindow(window));
    const std::vector<UINT> told{WM_SYSCOMMAND, WM_CLOSE, WM_DESTROY, WM_NCDESTROY};
    EXPECT_EQ(Recorder::Get().Numbers(told), told);
}

TEST_F(Frames, AltF4ClosesTheWindowAroundTheFocus) {
    Make(WS_POPUP | WS_CAPTION | WS_SYSMENU);
    HWND child = Recorder::Get().Make(WS_CHILD, 0, 0, 10, 10, window);
    SendMessageA(child, WM_SYSKEYDOWN, VK_F4, 1 | (1 << 29));
    Pump();
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(Frames, DrawingIsNoLeak) {
    Make(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME, WS_EX_CLIENTEDGE);
    Pump();
    const DWORD before = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    for (int i = 0; i < 20; ++i) {
        SendMessageA(window, WM_NCPAINT, 1, 0);
        SendMessageA(window, WM_NCACTIVATE, i & 1, 0);
    }
    EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), before);
}

}  // namespace
