// Focus, activation and the caret.
#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <thread>
#include <vector>

#include "tests/platform/support/hands.h"
#include "tests/platform/support/looking.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Pump;
using tests::PumpUntil;
using tests::Recorder;

class FocusTest : public tests::RecordedTest {
  protected:
    void SetUp() override {
        MakeWindow(WS_POPUP | WS_VISIBLE, 100, 100, 300, 200);
        ASSERT_TRUE(PumpUntil([this] { return GetForegroundWindow() == window; }));
        Recorder::Get().Reset();
    }
    HWND other = nullptr;
};

TEST_F(FocusTest, ShowingAWindowActivatesIt) {
    other = Recorder::Get().Make(WS_POPUP, 200, 200, 100, 100);
    Recorder::Get().Clear();
    ShowWindow(other, SW_SHOW);
    EXPECT_EQ(GetActiveWindow(), other);
    EXPECT_EQ(GetFocus(), other);
    const std::vector<UINT> wanted{WM_NCACTIVATE, WM_ACTIVATE, WM_KILLFOCUS, WM_SETFOCUS};
    EXPECT_EQ(Recorder::Get().Numbers(wanted, window), (std::vector<UINT>{WM_NCACTIVATE, WM_ACTIVATE, WM_KILLFOCUS}));
    EXPECT_EQ(Recorder::Get().Numbers(wanted, other), (std::vector<UINT>{WM_NCACTIVATE, WM_ACTIVATE, WM_SETFOCUS}));
    const Heard* left = Recorder::Get().Find(WM_ACTIVATE, window);
    EXPECT_EQ(LOWORD(left->wParam), WA_INACTIVE);
    EXPECT_EQ(left->lParam, reinterpret_cast<LPARAM>(other));
    const Heard* came = Recorder::Get().Find(WM_ACTIVATE, other);
    EXPECT_EQ(LOWORD(came->wParam), WA_ACTIVE);
    EXPECT_EQ(came->lParam, reinterpret_cast<LPARAM>(window));
    // It goes: the one before is active again.
    DestroyWindow(other);
    EXPECT_EQ(GetActiveWindow(), window);
    EXPECT_EQ(GetFocus(), window);
}

TEST_F(FocusTest, FocusMovesWithMessagesInOrder) {
    HWND first = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, window);
    HWND second = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 20, 0, 10, 10, window);
    EXPECT_EQ(SetFocus(first), window);
    HWND seen = nullptr;
    Recorder::Get().answer = [&seen](const Heard& heard, LRESULT*) {
        if (heard.message == WM_KILLFOCUS) {
            seen = GetFocus();
        }
        return false;
    };
    Recorder::Get().Clear();
    EXPECT_EQ(SetFocus(second), first);
    EXPECT_EQ(seen, second);
    ASSERT_GE(Recorder::Get().heard.size(), 2u);
    EXPECT_EQ(Recorder::Get().Find(WM_KILLFOCUS, first)->wParam, reinterpret_cast<WPARAM>(second));
    EXPECT_EQ(Recorder::Get().Find(WM_SETFOCUS, second)->wParam, reinterpret_cast<WPARAM>(first));
    EXPECT_EQ(Recorder::Get().Numbers({WM_KILLFOCUS, WM_SETFOCUS}), (std::vector<UINT>{WM_KILLFOCUS, WM_SETFOCUS}));
    Recorder::Get().Clear();
    EXPECT_EQ(SetFocus(second), second);
    EXPECT_TRUE(Recorder::Get().Numbers({WM_KILLFOCUS, WM_SETFOCUS}).empty());
    // A focus window that is disabled loses it.
    EnableWindow(second, FALSE);
    EXPECT_NE(GetFocus(), second);
}

TEST_F(FocusTest, FocusIsRefusedWhereItCannotBe) {
    HWND child = Recorder::Get().Make(WS_CHILD | WS_VISIBLE | WS_DISABLED, 0, 0, 10, 10, window);
    EXPECT_EQ(SetFocus(child), nullptr);
    EXPECT_NE(GetFocus(), child);
    HWND focus = GetFocus();
    HWND gone = Recorder::Get().Make(WS_POPUP, 0, 0, 10, 10);
    DestroyWindow(gone);
    EXPECT_EQ(DWORD{ERROR_INVALID_WINDOW_HANDLE}, tests::ErrorOf([&] { return SetFocus(gone); }));
    EXPECT_EQ(GetFocus(), focus);
    HWND result = window;
    std::thread([&result, this] { result = SetFocus(window); }).join();
    EXPECT_EQ(result, nullptr);
}

TEST_F(FocusTest, FocusActivatesTheTopLevelWindow) {
    other = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 200, 200, 100, 100);
    ASSERT_EQ(GetActiveWindow(), other);
    HWND child = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, window);
    SetFocus(child);
    EXPECT_EQ(GetActiveWindow(), window);
    EXPECT_EQ(GetFocus(), child);
}

TEST_F(FocusTest, ClickActivatesAndRaises) {
    other = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 450, 100, 100, 100);
    ASSERT_EQ(GetActiveWindow(), other);
    Pump();
    Recorder::Get().Clear();
    const auto click = [](int x) {
        tests::Play({tests::At(x, 120, MOUSEEVENTF_LEFTDOWN), tests::At(x, 120, MOUSEEVENTF_LEFTUP)});
    };
    click(120);
    ASSERT_TRUE(PumpUntil([] { return Recorder::Get().Find(WM_LBUTTONUP) != nullptr; }));
    EXPECT_EQ(GetActiveWindow(), window);
    const Heard* came = Recorder::Get().Find(WM_ACTIVATE, window);
    ASSERT_NE(came, nullptr);
    EXPECT_EQ(LOWORD(came->wParam), WA_CLICKACTIVE);
    const std::vector<UINT> order = Recorder::Get().Numbers({WM_MOUSEACTIVATE, WM_ACTIVATE, WM_LBUTTONDOWN}, window);
    EXPECT_EQ(order, (std::vector<UINT>{WM_MOUSEACTIVATE, WM_ACTIVATE, WM_LBUTTONDOWN}));
    // A window may refuse.
    Recorder::Get().answer = [this](const Heard& heard, LRESULT* result) {
        *result = MA_NOACTIVATE;
        return heard.message == WM_MOUSEACTIVATE && heard.window == other;
    };
    Recorder::Get().Clear();
    click(470);
    ASSERT_TRUE(PumpUntil([] { return Recorder::Get().Find(WM_LBUTTONUP) != nullptr; }));
    EXPECT_EQ(GetActiveWindow(), window);
    EXPECT_NE(Recorder::Get().Find(WM_LBUTTONDOWN), nullptr);
}

TEST_F(FocusTest, ForegroundMovesBetweenThreads) {
    std::atomic<HWND> theirs{nullptr};
    std::atomic<bool> theirsActive{false};
    std::atomic<bool> done{false};
    std::thread thread([&] {
        theirs = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 400, 400, 50, 50, nullptr, nullptr, nullptr,
                                 nullptr);
        while (!done) {
            Pump();
            theirsActive = GetActiveWindow() == theirs;
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        }
        DestroyWindow(theirs);
    });
    while (theirs == nullptr) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 1, QS_ALLINPUT);
        Pump();
    }
    SetForegroundWindow(window);
    EXPECT_TRUE(PumpUntil([&] { return GetForegroundWindow() == window && GetActiveWindow() == window; }));
    Pump();
    Recorder::Get().Clear();
    SetForegroundWindow(theirs);
    EXPECT_TRUE(PumpUntil([&] { return GetForegroundWindow() == theirs && theirsActive; }));
    EXPECT_TRUE(PumpUntil([&] { return GetActiveWindow() == nullptr && GetFocus() == nullptr; }));
    EXPECT_NE(Recorder::Get().Find(WM_KILLFOCUS, window), nullptr);
    // A desktop below may tell late of the window before, and be followed once more.
    EXPECT_TRUE(PumpUntil([&] {
        if (GetForegroundWindow() != window) {
            SetForegroundWindow(window);
        }
        return GetActiveWindow() == window && GetFocus() == window;
    }));
    done = true;
    thread.join();
}

// A caret blinks only while its thread waits for messages.
class CaretTest : public FocusTest {
  protected:
    void SetUp() override {
        FocusTest::SetUp();
        UpdateWindow(window);
        Pump();
    }
    COLORREF Pixel(int x, int y) {
        return tests::PixelOf(window, x, y);
    }
    static constexpr COLORREF kWhite = RGB(255, 255, 255);
    static constexpr COLORREF kBlack = RGB(0, 0, 0);
};

TEST_F(CaretTest, InvertsItsBlockWhereItStands) {
    ASSERT_EQ(Pixel(50, 60), kWhite);
    ASSERT_TRUE(CreateCaret(window, nullptr, 2, 10));
    ASSERT_TRUE(SetCaretPos(50, 60));
    POINT position{};
    ASSERT_TRUE(GetCaretPos(&position));
    EXPECT_EQ(position.x, 50);
    EXPECT_EQ(position.y, 60);
    EXPECT_EQ(Pixel(50, 60), kWhite) << "a new caret is hidden";
    ASSERT_TRUE(ShowCaret(window));
    EXPECT_EQ(Pixel(50, 60), kBlack);
    EXPECT_EQ(Pixel(51, 69), kBlack);
    EXPECT_EQ(Pixel(52, 60), kWhite);
    EXPECT_EQ(Pixel(50, 70), kWhite);
    ASSERT_TRUE(SetCaretPos(80, 60));
    EXPECT_EQ(Pixel(50, 60), kWhite);
    EXPECT_EQ(Pixel(80, 60), kBlack);
    // Hiding is cumulative.
    HideCaret(window);
    HideCaret(window);
    EXPECT_EQ(Pixel(80, 60), kWhite);
    ShowCaret(window);
    EXPECT_EQ(Pixel(80, 60), kWhite);
    ShowCaret(window);
    EXPECT_EQ(Pixel(80, 60), kBlack);
    EXPECT_TRUE(DestroyCaret());
    EXPECT_EQ(Pixel(80, 60), kWhite);
    EXPECT_FALSE(ShowCaret(window));
}

TEST_F(CaretTest, StaysInsideItsWindowAndSurvivesPainting) {
    HWND child = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, window);
    UpdateWindow(child);
    CreateCaret(child, nullptr, 10, 10);
    SetCaretPos(15, 0);
    ShowCaret(child);
    EXPECT_EQ(Pixel(19, 5), kBlack);
    EXPECT_EQ(Pixel(20, 5), kWhite);
    InvalidateRect(child, nullptr, TRUE);
    UpdateWindow(child);
    EXPECT_EQ(Pixel(19, 5), kBlack);
    EXPECT_EQ(Pixel(10, 5), kWhite);
    HideCaret(child);
    EXPECT_EQ(Pixel(19, 5), kWhite);
}

TEST_F(CaretTest, BlinksWhileTheThreadWaits) {
    CreateCaret(window, nullptr, 2, 10);
    SetCaretPos(50, 60);
    ShowCaret(window);
    ASSERT_EQ(Pixel(50, 60), kBlack);
    EXPECT_TRUE(PumpUntil([this] { return Pixel(50, 60) == kWhite; }));
    EXPECT_TRUE(PumpUntil([this] { return Pixel(50, 60) == kBlack; }));
}

}  // namespace
