// Frames: how wide they are, what a point on them means, and what a person does with them.
#include <gtest/gtest.h>

#include <windows.h>

#include "tests/platform/support/expect_rect.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Pump;
using tests::Recorder;

class Frames : public ::testing::Test {
  protected:
    void SetUp() override {
        Recorder::Get().Reset();
        DestroyWindow(Recorder::Get().Make(WS_POPUP, 0, 0, 1, 1));  // registers the class
    }
    void TearDown() override {
        Recorder::Get().Reset();
        if (IsWindow(window)) {
            DestroyWindow(window);
        }
        Pump();
    }
    void Make(DWORD style, DWORD exStyle = 0) {
        window = CreateWindowExA(exStyle | WS_EX_TOPMOST, Recorder::kClass, "Frame", style, 100, 100, 200, 150, nullptr,
                                 nullptr, nullptr, nullptr);
        ASSERT_NE(window, nullptr);
    }
    /// What lies between the two rectangles: left, top, right, bottom.
    RECT Insets() const {
        RECT outer;
        RECT inner;
        GetWindowRect(window, &outer);
        GetClientRect(window, &inner);
        MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inner), 2);
        return {inner.left - outer.left, inner.top - outer.top, outer.right - inner.right, outer.bottom - inner.bottom};
    }
    LRESULT Hit(int x, int y) const {
        return SendMessageA(window, WM_NCHITTEST, 0, MAKELPARAM(x, y));
    }
    HWND window = nullptr;
};

TEST_F(Frames, AreAsWideAsAdjustWindowRectSays) {
    struct Case {
        DWORD style;
        DWORD exStyle;
    };
    const Case cases[] = {{WS_POPUP, 0},
                          {WS_POPUP | WS_BORDER, 0},
                          {WS_POPUP | WS_DLGFRAME, 0},
                          {WS_POPUP | WS_CAPTION | WS_SYSMENU, 0},
                          {WS_POPUP | WS_CAPTION, WS_EX_DLGMODALFRAME},
                          {WS_OVERLAPPEDWINDOW, 0},
                          {WS_OVERLAPPEDWINDOW, WS_EX_CLIENTEDGE},
                          {WS_POPUP, WS_EX_CLIENTEDGE},
                          {WS_POPUP | WS_BORDER, WS_EX_CLIENTEDGE},
                          {WS_POPUP, WS_EX_STATICEDGE},
                          {WS_POPUP | WS_CAPTION, WS_EX_TOOLWINDOW}};
    for (const Case& each : cases) {
        Make(each.style, each.exStyle);
        RECT adjusted{0, 0, 0, 0};
        EXPECT_TRUE(AdjustWindowRectEx(&adjusted, each.style, FALSE, each.exStyle));
        const RECT insets = Insets();
        EXPECT_EQ(insets.left, -adjusted.left) << std::hex << each.style << ' ' << each.exStyle;
        EXPECT_EQ(insets.top, -adjusted.top) << std::hex << each.style << ' ' << each.exStyle;
        EXPECT_EQ(insets.right, adjusted.right) << std::hex << each.style << ' ' << each.exStyle;
        EXPECT_EQ(insets.bottom, adjusted.bottom) << std::hex << each.style << ' ' << each.exStyle;
        DestroyWindow(window);
    }
}

TEST_F(Frames, FollowTheMetrics) {
    Make(WS_POPUP | WS_CAPTION);
    EXPECT_EQ(Insets().left, GetSystemMetrics(SM_CXFIXEDFRAME));
    EXPECT_EQ(Insets().top, GetSystemMetrics(SM_CYFIXEDFRAME) + GetSystemMetrics(SM_CYCAPTION));
    DestroyWindow(window);
    Make(WS_POPUP | WS_BORDER);
    EXPECT_EQ(Insets().left, GetSystemMetrics(SM_CXBORDER));
    DestroyWindow(window);
    Make(WS_POPUP, WS_EX_CLIENTEDGE);
    EXPECT_EQ(Insets().left, GetSystemMetrics(SM_CXEDGE));
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
    RECT rect;
    GetWindowRect(window, &rect);
    EXPECT_EQ(rect.right - rect.left, 250);
    EXPECT_EQ(rect.bottom - rect.top, 180);
    SetWindowPos(window, nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    GetWindowRect(window, &rect);
    EXPECT_EQ(rect.right - rect.left, 250);
    ShowWindow(window, SW_SHOWMAXIMIZED);
    GetWindowRect(window, &rect);
    ExpectRect(rect, 20, 30, 420, 330);
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

TEST_F(Frames, TheParentMayChooseTheCursor) {
    Make(WS_POPUP | WS_VISIBLE);
    HWND child = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, window);
    const LPARAM where = MAKELPARAM(HTCLIENT, WM_MOUSEMOVE);
    Recorder::Get().Clear();
    SetCursor(nullptr);
    SendMessageA(child, WM_SETCURSOR, reinterpret_cast<WPARAM>(child), where);
    EXPECT_EQ(Recorder::Get().Count(WM_SETCURSOR), 2);
    EXPECT_EQ(SetCursor(nullptr), LoadCursorA(nullptr, IDC_ARROW));
    HCURSOR const cross = LoadCursorA(nullptr, IDC_CROSS);
    Recorder::Get().answer = [=, parent = window](const Heard& heard, LRESULT* result) {
        if (heard.message != WM_SETCURSOR || heard.window != parent) {
            return false;
        }
        SetCursor(cross);
        *result = TRUE;
        return true;
    };
    EXPECT_EQ(SendMessageA(child, WM_SETCURSOR, reinterpret_cast<WPARAM>(child), where), TRUE);
    EXPECT_EQ(SetCursor(nullptr), cross);
}

TEST_F(Frames, ColoursOfControlsAreTheSystems) {
    Make(WS_POPUP);
    HDC context = GetDC(window);
    EXPECT_EQ(SendMessageA(window, WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(context), 0),
              reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW)));
    EXPECT_EQ(GetBkColor(context), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(SendMessageA(window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context), 0),
              reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_3DFACE)));
    EXPECT_EQ(GetBkColor(context), GetSysColor(COLOR_3DFACE));
    ReleaseDC(window, context);
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
