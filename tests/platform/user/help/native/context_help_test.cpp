// Help on a control by the question mark of a caption: input that nobody else can disturb.
#include <gtest/gtest.h>

#include <windows.h>

#include <utility>
#include <vector>

#include "tests/platform/support/hands.h"
#include "tests/platform/support/looking.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::At;
using tests::Heard;
using tests::Key;
using tests::Pump;
using tests::Recorder;

constexpr UINT kDuring = WM_APP;
constexpr DWORD kStyle = WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU;

/// What WM_HELP brought to a window; what its parameter points to is gone afterwards.
struct Asked {
    HWND by;
    HELPINFO info;
};

class ContextHelp : public tests::RecordedTest {
  protected:
    static constexpr int kLeft = 100;
    static constexpr int kTop = 100;
    static constexpr int kWidth = 300;
    static constexpr int kHeight = 200;

    void SetUp() override {
        Recorder::Get().answer = [this](const Heard& heard, LRESULT*) {
            if (heard.message == WM_HELP) {
                asked.push_back({heard.window, *reinterpret_cast<const HELPINFO*>(heard.lParam)});
            }
            // It begins a loop, which delivers what is posted.
            if (heard.message == WM_SYSCOMMAND) {
                PostMessageA(heard.window, kDuring, 0, 0);
            } else if (heard.message == kDuring) {
                cursor = SetCursor(nullptr);
                SetCursor(cursor);
                capture = GetCapture();
            }
            return false;
        };
    }
    void Make(DWORD style = kStyle, DWORD exStyle = WS_EX_CONTEXTHELP) {
        window = Recorder::Get().Make(style, kLeft, kTop, kWidth, kHeight, nullptr,
                                      exStyle | WS_EX_TOPMOST | WS_EX_DLGMODALFRAME, "Help");
        ASSERT_NE(window, nullptr);
        SetForegroundWindow(window);
        UpdateWindow(window);
        Pump();
    }
    HWND MakeChild(const char* className, DWORD style, int id, HWND parent = nullptr) {
        return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, 20, 20, 100, 60,
                               parent ? parent : window, reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr,
                               nullptr);
    }
    LRESULT Hit(POINT point) const {
        return SendMessageA(window, WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y));
    }
    /// The part of the caption that answers with a hit code.
    RECT PartOf(LRESULT code) const {
        RECT part{};
        for (int y = kTop; y < kTop + GetSystemMetrics(SM_CYFIXEDFRAME) + GetSystemMetrics(SM_CYCAPTION); ++y) {
            for (int x = kLeft; x < kLeft + kWidth; ++x) {
                const RECT pixel{x, y, x + 1, y + 1};
                if (Hit({x, y}) == code) {
                    UnionRect(&part, &part, &pixel);
                }
            }
        }
        return part;
    }
    POINT MiddleOf(LRESULT code) const {
        const RECT part = PartOf(code);
        return {(part.left + part.right) / 2, (part.top + part.bottom) / 2};
    }
    COLORREF TopLeftOf(LRESULT code) const {
        const RECT part = PartOf(code);
        return tests::PixelOf(nullptr, part.left, part.top);
    }
    static POINT In(HWND child, int x = 50, int y = 30) {
        POINT point{x, y};
        ClientToScreen(child, &point);
        return point;
    }
    /// All of it is queued before any is taken: the loops of the frame find it waiting.
    static void Play(const std::vector<INPUT>& inputs) {
        tests::Play(inputs);
        Pump();
    }
    void AskAbout(POINT point) {
        const POINT mark = MiddleOf(HTHELP);
        Play({At(mark, MOUSEEVENTF_LEFTDOWN), At(mark, MOUSEEVENTF_LEFTUP), At(point, 0),
              At(point, MOUSEEVENTF_LEFTDOWN), At(point, MOUSEEVENTF_LEFTUP)});
    }

    std::vector<Asked> asked;
    HCURSOR cursor = nullptr;  ///< while help is asked for
    HWND capture = nullptr;
};

TEST_F(ContextHelp, TheMarkStandsLeftOfTheCloseBoxWhereNoOtherBoxesDo) {
    Make();
    const RECT part = PartOf(HTHELP);
    const RECT close = PartOf(HTCLOSE);
    EXPECT_EQ(part.right - part.left, close.right - close.left);
    EXPECT_EQ(part.top, close.top);
    EXPECT_EQ(part.bottom, close.bottom);
    EXPECT_EQ(part.right + 2, close.left);
    EXPECT_EQ(TopLeftOf(HTHELP), GetSysColor(COLOR_3DHIGHLIGHT));
    const RECT face{part.left + 2, part.top + 2, part.right - 2, part.bottom - 2};
    EXPECT_GT(tests::CountPixels(nullptr, face, GetSysColor(COLOR_3DFACE)), 40);
    EXPECT_GT(tests::CountPixels(nullptr, face, GetSysColor(COLOR_BTNTEXT)), 15);
    const POINT mark = MiddleOf(HTHELP);
    DestroyWindow(window);
    Make(kStyle | WS_MINIMIZEBOX);
    EXPECT_NE(Hit(mark), HTHELP);
    DestroyWindow(window);
    Make(kStyle, 0);
    EXPECT_EQ(Hit(mark), HTCAPTION);
}

TEST_F(ContextHelp, TheControlUnderTheClickIsAskedAndThenItsParents) {
    Make();
    HWND page = MakeChild(Recorder::kClass, 0, 7);
    HWND control = CreateWindowExA(0, Recorder::kClass, "", WS_CHILD | WS_VISIBLE, 30, 10, 50, 40, page,
                                   reinterpret_cast<HMENU>(LONG_PTR{42}), nullptr, nullptr);
    const POINT click = In(control, 20, 20);
    Recorder::Get().Clear();
    AskAbout(click);
    ASSERT_EQ(asked.size(), 3U);
    EXPECT_EQ(asked[0].by, control);
    EXPECT_EQ(asked[1].by, page);
    EXPECT_EQ(asked[2].by, window);
    for (const Asked& each : asked) {
        EXPECT_EQ(each.info.cbSize, sizeof(HELPINFO));
        EXPECT_EQ(each.info.iContextType, HELPINFO_WINDOW);
        EXPECT_EQ(each.info.iCtrlId, 42);
        EXPECT_EQ(each.info.hItemHandle, control);
        EXPECT_EQ(each.info.MousePos.x, click.x);
        EXPECT_EQ(each.info.MousePos.y, click.y);
    }
    EXPECT_EQ(TopLeftOf(HTHELP), GetSysColor(COLOR_3DHIGHLIGHT));
    EXPECT_EQ(cursor, LoadCursorA(nullptr, IDC_HELP));
    EXPECT_EQ(capture, window);
    // The click was for help and nothing else.
    EXPECT_EQ(Recorder::Get().Find(WM_LBUTTONDOWN, control), nullptr);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_NE(SetCursor(nullptr), LoadCursorA(nullptr, IDC_HELP));
    // It is over with one click.
    Play({At(click, MOUSEEVENTF_LEFTDOWN), At(click, MOUSEEVENTF_LEFTUP)});
    EXPECT_EQ(asked.size(), 3U);
    EXPECT_NE(Recorder::Get().Find(WM_LBUTTONDOWN, control), nullptr);
}

TEST_F(ContextHelp, WhatTakesNoClicksCanBeAskedAboutToo) {
    Make();
    const std::pair<const char*, DWORD> kinds[] = {{"button", WS_DISABLED}, {"static", SS_LEFT}};
    for (const auto& [className, style] : kinds) {
        HWND child = MakeChild(className, style, 11);
        AskAbout(In(child));
        ASSERT_FALSE(asked.empty());
        EXPECT_EQ(asked[0].info.hItemHandle, child);
        EXPECT_EQ(asked[0].info.iCtrlId, 11);
        DestroyWindow(child);
        asked.clear();
    }
}

TEST_F(ContextHelp, EscapeAndAClickElsewhereEndIt) {
    Make();
    HWND control = MakeChild(Recorder::kClass, 0, 42);
    const POINT mark = MiddleOf(HTHELP);
    const INPUT press = At(mark, MOUSEEVENTF_LEFTDOWN);
    const INPUT release = At(mark, MOUSEEVENTF_LEFTUP);
    const POINT inside = In(control);
    Play({press, release, Key(VK_ESCAPE), Key(VK_ESCAPE, KEYEVENTF_KEYUP), At(inside, MOUSEEVENTF_LEFTDOWN),
          At(inside, MOUSEEVENTF_LEFTUP)});
    EXPECT_TRUE(asked.empty());
    EXPECT_NE(Recorder::Get().Find(WM_LBUTTONDOWN, control), nullptr);
    EXPECT_EQ(GetCapture(), nullptr);

    HWND other = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, kLeft + kWidth + 20, kTop, 100, 100);
    const POINT outside = In(other);
    Play({press, release, At(outside, MOUSEEVENTF_LEFTDOWN), At(outside, MOUSEEVENTF_LEFTUP)});
    DestroyWindow(other);
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ContextHelp, TheOwnerIsAskedAfterAWindowOfTheTopLevel) {
    Make();
    HWND owned = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, window);
    HWND child = MakeChild("edit", 0, 5, owned);
    SetFocus(child);
    Play({Key(VK_F1), Key(VK_F1, KEYEVENTF_KEYUP)});
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_EQ(asked[0].by, owned);
    EXPECT_EQ(asked[1].by, window);
    EXPECT_EQ(asked[1].info.hItemHandle, child);
}

}  // namespace
