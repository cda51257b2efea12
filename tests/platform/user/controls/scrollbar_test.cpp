// Scroll bars of windows and the "scrollbar" class: ranges, pages, appearing and going, mouse and keyboard.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "tests/platform/support/hands.h"
#include "tests/platform/support/looking.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::At;
using tests::Play;
using tests::Recorder;

class ScrollBarTest : public tests::RecordedTest {
  protected:
    void SetUp() override {
        MakeWindow(WS_POPUP | WS_VISIBLE | WS_VSCROLL, 50, 50, 200, 200);
    }
    static SCROLLINFO Info(HWND window, int bar) {
        SCROLLINFO info{sizeof info, SIF_ALL, -1, -1, 99, -1, -1};
        GetScrollInfo(window, bar, &info);
        return info;
    }
    static void SetRange(HWND window, int bar, int last) {
        const SCROLLINFO info{sizeof info, SIF_RANGE, 0, last, 0, 0, 0};
        SetScrollInfo(window, bar, &info, TRUE);
    }
    static bool Shows(HWND window, DWORD style) {
        return (GetWindowLongA(window, GWL_STYLE) & style) != 0;
    }
    HWND MakeBar(DWORD style) {
        return CreateWindowExA(0, "scrollbar", "", WS_CHILD | WS_VISIBLE | style, 10, 10, 20, 120, window, nullptr,
                               nullptr, nullptr);
    }
    /// The codes that were heard, with the positions of those that carry one.
    static std::vector<std::pair<int, int>> Codes(UINT message) {
        std::vector<std::pair<int, int>> codes;
        for (const tests::Heard& heard : Recorder::Get().heard) {
            if (heard.message == message)
                codes.emplace_back(LOWORD(heard.wParam), HIWORD(heard.wParam));
        }
        return codes;
    }
};

TEST_F(ScrollBarTest, NumbersAreBroughtIntoBounds) {
    SCROLLINFO info = Info(window, SB_VERT);
    EXPECT_EQ(0, info.nMin);
    EXPECT_EQ(100, info.nMax);
    EXPECT_EQ(0, SetScrollPos(window, SB_VERT, 150, TRUE));
    EXPECT_EQ(100, GetScrollPos(window, SB_VERT));
    info = {sizeof info, SIF_RANGE | SIF_PAGE, 10, 50, 11, 0, 0};
    EXPECT_EQ(40, SetScrollInfo(window, SB_VERT, &info, TRUE)) << "the end less the page, plus one";
    info = {sizeof info, SIF_PAGE, 0, 0, 1000, 0, 0};
    SetScrollInfo(window, SB_VERT, &info, TRUE);
    EXPECT_EQ(41U, Info(window, SB_VERT).nPage);
    info.cbSize = 3;
    EXPECT_FALSE(GetScrollInfo(window, SB_VERT, &info));
    EXPECT_EQ(10, Info(window, SB_VERT).nMin);
    EXPECT_EQ(50, Info(window, SB_VERT).nMax);
}

TEST_F(ScrollBarTest, ABarComesAndGoesWithWhatThereIsToScroll) {
    RECT client = tests::ClientOf(window);
    EXPECT_EQ(200 - GetSystemMetrics(SM_CXVSCROLL), client.right);
    EXPECT_EQ(200, client.bottom);
    const RECT rect = tests::PlaceOf(window);
    EXPECT_EQ(HTVSCROLL, SendMessageA(window, WM_NCHITTEST, 0, MAKELPARAM(rect.right - 3, rect.top + 3)));
    SetRange(window, SB_VERT, 0);
    EXPECT_FALSE(Shows(window, WS_VSCROLL));
    client = tests::ClientOf(window);
    EXPECT_EQ(200, client.right);
    SetRange(window, SB_VERT, 9);
    EXPECT_TRUE(Shows(window, WS_VSCROLL));
    SCROLLINFO info{sizeof info, SIF_PAGE | SIF_DISABLENOSCROLL, 0, 0, 10, 0, 0};
    SetScrollInfo(window, SB_VERT, &info, TRUE);
    EXPECT_TRUE(Shows(window, WS_VSCROLL)) << "it stays, disabled";
    SetRange(window, SB_HORZ, 9);
    client = tests::ClientOf(window);
    EXPECT_EQ(200 - GetSystemMetrics(SM_CYHSCROLL), client.bottom);
}

TEST_F(ScrollBarTest, ABarOnItsOwn) {
    const HWND bar = MakeBar(SBS_VERT);
    EXPECT_EQ(0, Info(bar, SB_CTL).nMax) << "an empty range to begin with";
    SetRange(bar, SB_CTL, 20);
    EXPECT_EQ(0, SetScrollPos(bar, SB_CTL, 5, TRUE));
    EXPECT_EQ(5, SendMessageA(bar, SBM_SETPOS, 7, FALSE));
    EXPECT_EQ(7, GetScrollPos(bar, SB_CTL));
    EXPECT_EQ(DLGC_WANTARROWS, SendMessageA(bar, WM_GETDLGCODE, 0, 0));
    SetFocus(bar);
    SendMessageA(bar, WM_KEYDOWN, VK_DOWN, 1);
    SendMessageA(bar, WM_KEYDOWN, VK_PRIOR, 1);
    SendMessageA(bar, WM_KEYDOWN, VK_END, 1);
    std::vector<int> codes;
    for (const auto& [code, position] : Codes(WM_VSCROLL)) {
        if (code != SB_ENDSCROLL)
            codes.push_back(code);
    }
    EXPECT_EQ((std::vector<int>{SB_LINEDOWN, SB_PAGEUP, SB_BOTTOM}), codes);
    EXPECT_EQ(reinterpret_cast<LPARAM>(bar), Recorder::Get().Find(WM_VSCROLL)->lParam);
}

TEST_F(ScrollBarTest, PressingAnArrowAndTheShaft) {
    const RECT rect = tests::PlaceOf(window);
    const auto press = [&](int y) {
        Recorder::Get().Clear();
        Play({At(rect.right - 5, y, MOUSEEVENTF_LEFTDOWN), At(rect.right - 5, y, MOUSEEVENTF_LEFTUP)});
        tests::PumpUntil([] { return !Codes(WM_VSCROLL).empty() && Codes(WM_VSCROLL).back().first == SB_ENDSCROLL; });
        return Codes(WM_VSCROLL).empty() ? -1 : Codes(WM_VSCROLL).front().first;
    };
    EXPECT_EQ(SB_LINEUP, press(rect.top + 5));
    EXPECT_EQ(SB_LINEDOWN, press(rect.bottom - 5));
    EXPECT_EQ(SB_PAGEDOWN, press(rect.bottom - 30));
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(ScrollBarTest, DraggingTheThumb) {
    const RECT rect = tests::PlaceOf(window);
    // Everything waits in the queue before the press is delivered: the bar takes it from there.
    SetCursorPos(rect.right - 5, rect.top + GetSystemMetrics(SM_CYVSCROLL) + 4);
    tests::Pump();
    Play({At(rect.right - 5, rect.top + GetSystemMetrics(SM_CYVSCROLL) + 4, MOUSEEVENTF_LEFTDOWN)});
    PostMessageA(window, WM_APP, 0, 0);
    Recorder::Get().answer = [&](const tests::Heard& heard, LRESULT*) {
        if (heard.message == WM_APP) {
            Play({At(rect.right - 5, rect.bottom - 20, MOUSEEVENTF_LEFTUP)});
            return true;
        }
        return false;
    };
    ASSERT_TRUE(
        tests::PumpUntil([] { return !Codes(WM_VSCROLL).empty() && Codes(WM_VSCROLL).back().first == SB_ENDSCROLL; }));
    const auto codes = Codes(WM_VSCROLL);
    ASSERT_GE(codes.size(), 3U);
    EXPECT_EQ(SB_THUMBTRACK, codes.front().first);
    const auto& end = codes[codes.size() - 2];
    EXPECT_EQ(SB_THUMBPOSITION, end.first);
    EXPECT_EQ(100, end.second);
    EXPECT_EQ(0, GetScrollPos(window, SB_VERT)) << "the window itself sets the position";
}

}  // namespace
